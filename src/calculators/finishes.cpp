#include <algorithm>
#include <array>

#include "calculators/numbered_boxes.h"
#include "values/numbers.h"

namespace torvane {

namespace {

using enum PanelKind;

constexpr double squareInchesInFoot = 144;
constexpr double squareFeetInYard = 9;

// --- Sums and products -----------------------------------------------------------------------------------------------

template <int panel>
void sumOfFour(PanelTexts& texts) {
    NumberedBoxes box(texts, panel);
    box.write(5, box[1] + box[2] + box[3] + box[4]);
}

template <int panel>
void product(PanelTexts& texts) {
    NumberedBoxes box(texts, panel);
    box.write(3, box[1] * box[2]);
}

constexpr PanelControl linear[] = {
    {Input, "txtTab17_1", "First", 0, 0, "feet"},   {Input, "txtTab17_2", "Second", 1, 0, "feet"},
    {Input, "txtTab17_3", "Third", 2, 0, "feet"},   {Input, "txtTab17_4", "Fourth", 3, 0, "feet"},
    computeButton("cmdTab17", 4, 0, sumOfFour<17>), {Result, "txtTab17_5", "Total", 5, 0, "feet"},
};

constexpr PanelControl linearBySide[] = {
    {Input, "txtTab26_1", "Front", 0, 0, "feet"},   {Input, "txtTab26_2", "Rear", 1, 0, "feet"},
    {Input, "txtTab26_3", "Left", 2, 0, "feet"},    {Input, "txtTab26_4", "Right", 3, 0, "feet"},
    computeButton("cmdTab26", 4, 0, sumOfFour<26>), {Result, "txtTab26_5", "Total", 5, 0, "feet"},
};

constexpr PanelControl surface[] = {
    {Input, "txtTab20_1", "Length", 0, 0, "feet"},
    {Input, "txtTab20_2", "Height", 1, 0, "feet"},
    computeButton("cmdTab20", 2, 0, product<20>),
    {Result, "txtTab20_3", "Total", 3, 0, "sq. feet"},
};

constexpr PanelControl floorSurface[] = {
    {Input, "txtTab22_1", "Length", 0, 0, "feet"},
    {Input, "txtTab22_2", "Weight", 1, 0, "feet"},  // the width
    computeButton("cmdTab22_1", 2, 0, product<22>),
    {Result, "txtTab22_3", "Total", 3, 0, "sq. feet"},
};

// --- Paint Coverage --------------------------------------------------------------------------------------------------

constexpr double doorSquareFeet = 20;    // a 3-0 x 6-8 door is 20 sq. ft.
constexpr double windowSquareFeet = 15;  // a 3 x 5 ft. window is 15 sq. ft.

// Writes gallons and cost for the square feet in box `area`, at square feet per gallon. The cost is taken from the area
// and not from the gallons, whose text has lost digits: a third of a gallon at 30 is 10. 0 where there is no rate.
void writePaint(NumberedBoxes& box, int area, int gallons, int cost, int rate) {
    box.write(gallons, rate > 0 ? box[area] / rate : 0);
    box.write(cost, rate > 0 ? box[area] * box[6] / rate : 0);
}

void computePaint(PanelTexts& texts) {
    NumberedBoxes box(texts, 13);
    const int rate = texts.listIndex("cmbTab13") < 0 ? 0 : texts.itemData("cmbTab13");
    box.write(7, box[1] * box[2]);
    writePaint(box, 7, 8, 9, rate);
    const double openings = doorSquareFeet * box[4] + windowSquareFeet * box[5];
    const double walls = finite(2 * (box[1] + box[2]) * box[3] - openings);
    box.write(10, std::max(0.0, walls));
    writePaint(box, 10, 11, 12, rate);
    box.write(13, box[9] + box[12]);
}

// Square feet per gallon.
constexpr PanelEntry surfaces[] = {
    {"Drywall (Flat)", 450}, {"Drywall (Gloss)", 400}, {"Plaster", 250},
    {"Siding (Paint)", 420}, {"Siding (Stain)", 150},  {"Concrete (Paint)", 450},
};

constexpr PanelControl paint[] = {
    {Input, "txtTab13_1", "Length of room (feet)", 0, 0},
    {Input, "txtTab13_2", "Width of room (feet)", 1, 0},
    {Input, "txtTab13_3", "Height of walls ", 2, 0},
    {Input, "txtTab13_4", "Number of Doors", 3, 0},
    {Input, "txtTab13_5", "Number of Windows", 4, 0},
    {.kind = List, .name = "cmbTab13", .label = "Select Surface Type", .row = 5, .entries = surfaces},
    {Input, "txtTab13_6", "Enter Paint Cost", 6, 0},
    computeButton("cmdTab13", 7, 0, computePaint),
    {Result, "txtTab13_7", "Ceiling SF", 0, 1},
    {Result, "txtTab13_8", "Ceiling Gallons", 1, 1},
    {Result, "txtTab13_9", "Ceiling Paint Cost", 2, 1},
    {Result, "txtTab13_10", "Wall SF", 3, 1},
    {Result, "txtTab13_11", "Wall Gallons", 4, 1},
    {Result, "txtTab13_12", "Wall Paint Cost", 5, 1},
    {Result, "txtTab13_13", "Total Paint Cost", 6, 1},
    {Help, "cmdHelp2_13",
     "The wall painting calculator will give you the total number of gallons required for some commonly painted "
     "surfaces. The calculator assumes brushing or rolling paint. It will separate the gallons required for ceiling "
     "and walls also. Input the fields below and select what type of surface it is.",
     7, 1},
};

// --- Ceramic Tile ----------------------------------------------------------------------------------------------------

// How many tiles cover the square feet, cuts included; `side` in inches.
double tilesFor(double squareFeet, int side) {
    return squareFeet * squareInchesInFoot / (side * side);
}

void computeCeramicTile(PanelTexts& texts) {
    constexpr double withWaste = 1.1;
    NumberedBoxes box(texts, 32);
    box.write(3, box[1] * box[2]);
    box.write(4, tilesFor(box[3], texts.itemData("cmbTab32")));
    box.write(4, box[4] * withWaste);
}

// Sides in inches.
constexpr PanelEntry ceramicTiles[] = {
    {"3 x 3", 3},    {"4 x 4", 4},    {"6 x 6", 6},    {"8 x 8", 8},    {"10 x 10", 10},
    {"12 x 12", 12}, {"14 x 14", 14}, {"16 x 16", 16}, {"18 x 18", 18}, {"24 x 24", 24},
};

constexpr PanelControl ceramicTile[] = {
    {Input, "txtTab32_1", "Tile Area Length", 0, 0, "Ft."},
    {Input, "txtTab32_2", "Tile Area Width", 1, 0, "Ft."},
    {.kind = List,
     .name = "cmbTab32",
     .label = "Tile Size (inches)",
     .row = 2,
     .start = "first",
     .entries = ceramicTiles},
    computeButton("cmdTab32", 3, 0, computeCeramicTile),
    {Result, "txtTab32_3", "Total Tile Area", 4, 0, "Sq. Ft."},
    {Result, "txtTab32_4", "Total Tiles you need", 5, 0, "Pcs."},
    {Label, {}, "(Takes 10% wastage into consideration)", 6, 0},
};

// --- Carpet and Sheet Vinyl ------------------------------------------------------------------------------------------

// `perStair`: how often a stair counts, a tread with its riser twice.
template <int panel, int perStair>
void computeCovering(PanelTexts& texts) {
    NumberedBoxes box(texts, panel);
    for (int row = 1; row <= 3; ++row) box.write(8 + row, box[row] * box[4 + row]);
    box.write(12, box[4] * box[8] * perStair);
    box.write(13, box[9] + box[10] + box[11] + box[12]);
    box.write(14, box[13] / squareFeetInYard);
    box.raise(14);
}

// Boxes from number 1 up.
using CoveringBoxes = std::array<std::string_view, 14>;

constexpr auto covering(const CoveringBoxes& box, PanelControl button) {
    return std::array<PanelControl, 16>{{
        {Input, box[0], "Area 1 (in feet)", 1, 0, "Width x "},
        {Input, box[4], {}, 1, 1, "Length"},
        {Input, box[1], "Area 2 (in feet)", 2, 0, "Width x "},
        {Input, box[5], {}, 2, 1, "Length"},
        {Input, box[2], "Area 3 (in feet)", 3, 0, "Width x "},
        {Input, box[6], {}, 3, 1, "Length"},
        {Input, box[3], "Stairway (in feet)", 4, 0, "Width x "},
        {Input, box[7], {}, 4, 1, "Number of Stairs"},
        button,
        {Heading, {}, "Totals", 0, 2},
        {Result, box[8], {}, 1, 2},
        {Result, box[9], {}, 2, 2},
        {Result, box[10], {}, 3, 2},
        {Result, box[11], {}, 4, 2},
        {Result, box[12], "Total area to be carpeted: ", 6, 0, "Sq. Ft."},
        {Result, box[13], "Amount of carpet needed: ", 7, 0, "Sq. yards"},
    }};
}

constexpr CoveringBoxes carpetBoxes{"txtTab33_1",  "txtTab33_2",  "txtTab33_3",  "txtTab33_4", "txtTab33_5",
                                    "txtTab33_6",  "txtTab33_7",  "txtTab33_8",  "txtTab33_9", "txtTab33_10",
                                    "txtTab33_11", "txtTab33_12", "txtTab33_13", "txtTab33_14"};
constexpr CoveringBoxes vinylBoxes{"txtTab35_1",  "txtTab35_2",  "txtTab35_3",  "txtTab35_4", "txtTab35_5",
                                   "txtTab35_6",  "txtTab35_7",  "txtTab35_8",  "txtTab35_9", "txtTab35_10",
                                   "txtTab35_11", "txtTab35_12", "txtTab35_13", "txtTab35_14"};
constexpr auto carpet = covering(carpetBoxes, computeButton("cmdTab33", 5, 0, computeCovering<33, 2>));
constexpr auto vinyl = covering(vinylBoxes, computeButton("cmdTab35", 5, 0, computeCovering<35, 1>));

// --- Wallpaper -------------------------------------------------------------------------------------------------------

void computeWallpaper(PanelTexts& texts) {
    constexpr double squareFeetInRoll = 27;
    NumberedBoxes box(texts, 34);
    box.write(7, box[1] * box[4]);
    box.write(8, box[2] * box[5]);
    box.write(9, box[3] + box[6]);  // a sum, for all that the label says
    box.write(10, box[7] + box[8] + box[9]);
    box.write(11, box[10] / squareFeetInRoll);
    box.raise(11, 2);
}

constexpr PanelControl wallpaper[] = {
    {Input, "txtTab34_1", "Wall (in feet)", 1, 0, "Height x "},
    {Input, "txtTab34_4", {}, 1, 1, "Room perimeter"},
    {Input, "txtTab34_2", "Ceiling (in feet)", 2, 0, "Length x"},
    {Input, "txtTab34_5", {}, 2, 1, "Width"},
    {Input, "txtTab34_3", "Sloping wall (in feet)", 3, 0, "Height x "},
    {Input, "txtTab34_6", {}, 3, 1, "Base"},
    computeButton("cmdTab34", 4, 0, computeWallpaper),
    {Heading, {}, "Totals", 0, 2},
    {Result, "txtTab34_7", {}, 1, 2},
    {Result, "txtTab34_8", {}, 2, 2},
    {Result, "txtTab34_9", {}, 3, 2},
    {Result, "txtTab34_10", "Total wallpaper area: ", 5, 0, "Sq. Ft."},
    {Result, "txtTab34_11", "Total rolls of wallpaper you need: ", 6, 0, "roll(s)"},
};

// --- Resilient Tile --------------------------------------------------------------------------------------------------

void computeResilientTile(PanelTexts& texts) {
    NumberedBoxes box(texts, 36);
    for (int row = 1; row <= 3; ++row) box.write(6 + row, box[row] * box[3 + row]);
    box.write(10, box[7] + box[8] + box[9]);
    box.write(11, tilesFor(box[10], texts.itemData("cmbTab36")));
    box.raise(11);
}

// Sides in inches.
constexpr PanelEntry resilientTiles[] = {{"12\"-by-12\"", 12}, {"9\"-by-9\"", 9}, {"6\"-by-6\"", 6}};

constexpr PanelControl resilientTile[] = {
    {Input, "txtTab36_1", "Area 1 (in feet)", 1, 0, "Width x "},
    {Input, "txtTab36_4", {}, 1, 1, "Length"},
    {Input, "txtTab36_2", "Area 2 (in feet)", 2, 0, "Width x "},
    {Input, "txtTab36_5", {}, 2, 1, "Length"},
    {Input, "txtTab36_3", "Area 3 (in feet)", 3, 0, "Width x "},
    {Input, "txtTab36_6", {}, 3, 1, "Length"},
    {.kind = List, .name = "cmbTab36", .label = "Tile Size (inches)", .row = 4, .entries = resilientTiles},
    computeButton("cmdTab36", 5, 0, computeResilientTile),
    {Heading, {}, "Totals", 0, 2},
    {Result, "txtTab36_7", {}, 1, 2},
    {Result, "txtTab36_8", {}, 2, 2},
    {Result, "txtTab36_9", {}, 3, 2},
    {Result, "txtTab36_10", "Total Area to be tiled", 6, 0, "Sq. Ft."},
    {Result, "txtTab36_11", "Amount of resilient tile needed: ", 7, 0, "Pcs."},
};

constexpr Panel panels[] = {
    {"frmTab13", "Paint Coverage Calculator", paint},
    {"frmTab17", {}, linear},
    {"frmTab20", {}, surface},
    {"frmTab22", {}, floorSurface},
    {"frmTab26", {}, linearBySide},
    {"frmTab32", "Ceramic Tile Calculator", ceramicTile},
    {"frmTab33", "Carpet Calculator", carpet},
    {"frmTab34", "Wallpaper Calculator", wallpaper},
    {"frmTab35", "Sheet Vinyl Calculator", vinyl},
    {"frmTab36", "Resilient Tile Calculator", resilientTile},
};

}  // namespace

std::span<const Panel> finishesPanels() {
    return panels;
}

}  // namespace torvane
