#include <algorithm>
#include <cmath>
#include <iterator>

#include "calculators/panel.h"
#include "calculators/trade_math.h"

namespace torvane {

namespace {

using enum PanelKind;

// Feet along a slope to a foot of level run, by Pythagoras: 1 is the square of that foot for common rafters and roof
// planes, 2 for a hip, which runs over the plan's diagonal. The pitch is over 12.
double slopeFactor(double pitch, double runSquared = 1) {
    return std::sqrt(runSquared + (pitch / 12) * (pitch / 12));
}

// --- Wall Framing ----------------------------------------------------------------------------------------------------

// The boxes of one kind of wall, and the nominal width of its studs in inches.
struct Wall {
    std::string_view length, spacing, corners, spaces, openings;
    std::string_view studs, boardFeet, plates;
    double studWidth;
};

constexpr Wall exterior{
    "txtTab9_1", "txtTab9_2", "txtTab9_3", "txtTab9_4", "txtTab9_5", "txtTab9_11", "txtTab9_12", "txtTab9_13", 6};
constexpr Wall interior{
    "txtTab9_6", "txtTab9_7", "txtTab9_8", "txtTab9_9", "txtTab9_10", "txtTab9_14", "txtTab9_15", "txtTab9_16", 4};

// Length over spacing, plus one to close the last space (Estimating in Building Construction, ch. 13).
double fieldStuds(double feet, double spacing) {
    return feet > 0 && spacing > 0 ? wholeUp(feet * 12 / spacing) + 1 : 0;
}

// Two more studs for each corner, each space (where a partition meets the wall) and each opening (Modern Carpentry,
// ch. 11). Studs are 8 feet long, the three plates come in lengths of 16 feet; openings don't shorten them.
void frameWall(PanelTexts& panel, const Wall& wall) {
    const double field = fieldStuds(panel.value(wall.length), panel.value(wall.spacing));
    const double extra = 2 * panel.value(wall.corners) + 2 * panel.value(wall.spaces) + 2 * panel.value(wall.openings);
    writeRaised(panel, wall.studs, field + extra);
    panel.write(wall.boardFeet, panel.value(wall.studs) * 2 * wall.studWidth * 8 / 12);
    writeRaised(panel, wall.plates, std::max(panel.value(wall.length), 0.0) * 3 / 16);
}

void cmdTab9(PanelTexts& panel) {
    frameWall(panel, exterior);
    frameWall(panel, interior);
}

constexpr PanelControl wallFraming[] = {
    {Input, "txtTab9_1", "Exterior Perimeter (feet)", 0, 0},
    {Input, "txtTab9_2", "Stud spacing (inches)", 1, 0},
    {Input, "txtTab9_3", "Number of Corners", 2, 0},
    {Input, "txtTab9_4", "Number of Spaces", 3, 0},
    {Input, "txtTab9_5", "Number of Openings", 4, 0},
    {Input, "txtTab9_6", "Interior Length (feet)", 0, 1},
    {Input, "txtTab9_7", "Stud spacing (inches)", 1, 1},
    {Input, "txtTab9_8", "Number of Corners", 2, 1},
    {Input, "txtTab9_9", "Number of Spaces", 3, 1},
    {Input, "txtTab9_10", "Number of Openings", 4, 1},
    {.kind = Button, .name = "cmdTab9", .label = "Compute", .row = 5, .compute = cmdTab9},
    {Result, "txtTab9_11", "Number of Ext 2x6 studs", 6, 0},
    {Result, "txtTab9_12", "Board Foot Measure of Ext 2x6 studs", 7, 0},
    {Result, "txtTab9_13", "Number of Ext 2x6x16' plates", 8, 0},
    {Result, "txtTab9_14", "Number of Int 2x4 studs", 6, 1},
    {Result, "txtTab9_15", "Board Foot Measure of Int 2x4 stud", 7, 1},
    {Result, "txtTab9_16", "Number of Int 2x6x16' plates", 8, 1},
    {Help, "cmdHelp2_9",
     "This calculator will give you the total board footage for framed walls. Input values as stated. Add factors are "
     "general, as is labor factor. This estimator is by no means perfect and will only give a ballpark estimate to "
     "check actual estimates. Assumptions are as follows: 8 ' wall height , 3 plates",
     5, 1},
};

// --- Roof Area -------------------------------------------------------------------------------------------------------

// Plan area times slope factor (JLC, Estimating with a Spreadsheet), which holds for gable and regular hip alike;
// sheets of 4 by 8 feet.
void cmdTab10(PanelTexts& panel) {
    const double plan = panel.value("txtTab10_2") * panel.value("txtTab10_3");
    writeRaised(panel, "txtTab10_5", plan * slopeFactor(panel.value("txtTab10_1")));
    writeRaised(panel, "txtTab10_6", panel.value("txtTab10_5") / 32);
    writeRaised(panel, "txtTab10_7", panel.value("txtTab10_6") * panel.value("txtTab10_4"));
}

constexpr PanelControl roofArea[] = {
    {Input, "txtTab10_1", "Input Roof Pitch", 0, 0, "/ 12"},
    {Input, "txtTab10_2", "Input Width of Roof", 1, 0},
    {Input, "txtTab10_3", "Input Length of Roof", 2, 0},
    {Input, "txtTab10_4", "Cost per Sheet", 3, 0},
    {.kind = Button, .name = "cmdTab10", .label = "Compute", .row = 4, .compute = cmdTab10},
    {Result, "txtTab10_5", "Roof Area", 5, 0},
    {Result, "txtTab10_6", "Number of sheets", 6, 0},
    {Result, "txtTab10_7", "Material Cost", 7, 0},
    {Help, "cmdHelp2_10",
     "This calculator will give you the area of a gable or simple hip roof. Input the values in feet. The length and "
     "width of roof should include overhang. Make sure that the Roof Pitch is a single number. So if you have a roof "
     "pitch of 5/12 just input 5. Values are rounded to next highest number.",
     4, 1},
};

// --- Board Foot ------------------------------------------------------------------------------------------------------

constexpr PanelEntry nominalSizes[] = {{"Select"},        {"1 x 2"}, {"1 x 3"}, {"1 x 4"},
                                       {"1 x 6 / 2 x 3"}, {"2 x 4"}, {"2 x 6"}, {"2 x 8"}};

// Thickness times width of each entry, in square inches.
constexpr double sections[] = {0, 2, 3, 4, 6, 8, 12, 16};
static_assert(std::size(sections) == std::size(nominalSizes));

double selectedSection(const PanelTexts& panel, std::string_view list) {
    const int index = panel.listIndex(list);
    return index < 0 ? 0 : sections[index];
}

// Nominal thickness and width in inches times length in feet, over 12 (NAVEDTRA, Engineering Aid: board measure).
// Nothing is rounded: rounded rows would not add up.
void cmdTab11(PanelTexts& panel) {
    panel.write("txtTab11_7", selectedSection(panel, "cmbTab11_1") * panel.value("txtTab11_1") / 12);
    panel.write("txtTab11_8", selectedSection(panel, "cmbTab11_2") * panel.value("txtTab11_2") / 12);
    panel.write("txtTab11_9", selectedSection(panel, "cmbTab11_3") * panel.value("txtTab11_3") / 12);
    const double custom = panel.value("txtTab11_5") * panel.value("txtTab11_6");
    panel.write("txtTab11_10", custom * panel.value("txtTab11_4") / 12);
    panel.write("txtTab11_11", sumOfBoxes(panel, "txtTab11_", 7, 10));
}

constexpr PanelControl boardFoot[] = {
    {Heading, "", "Nominal size", 0, 0},
    {Heading, "", "Length (feet)", 0, 2},
    {Heading, "", "Total BF", 0, 3},
    {.kind = List, .name = "cmbTab11_1", .label = "", .row = 1, .entries = nominalSizes},
    {Input, "txtTab11_1", "", 1, 2},
    {.kind = List, .name = "cmbTab11_2", .label = "", .row = 2, .entries = nominalSizes},
    {Input, "txtTab11_2", "", 2, 2},
    {.kind = List, .name = "cmbTab11_3", .label = "", .row = 3, .entries = nominalSizes},
    {Input, "txtTab11_3", "", 3, 2},
    {Heading, "", "Size (in)", 4, 0},
    {Input, "txtTab11_5", "", 5, 0, "X"},
    {Input, "txtTab11_6", "", 5, 1},
    {Input, "txtTab11_4", "", 5, 2},
    {.kind = Button, .name = "cmdTab11", .label = "Compute", .row = 6, .compute = cmdTab11},
    {Result, "txtTab11_7", "", 1, 3},
    {Result, "txtTab11_8", "", 2, 3},
    {Result, "txtTab11_9", "", 3, 3},
    {Result, "txtTab11_10", "", 5, 3},
    {Result, "txtTab11_11", "Total BF : ", 6, 3},
    {Help, "cmdHelp2_11",
     "This calculator will give you the board foot measure for 3 standard sizes of wood and 1 custom size. Input "
     "values as stated.",
     6, 1},
};

// --- Rafter Angle ----------------------------------------------------------------------------------------------------

// Rafters by the foot of common run, the hip's from the plan's diagonal (NAVEDTRA 14044, roof framing).
struct Rafters {
    double run;  // from the ridge's face to the building line: half the ridge's thickness comes off the plan distance
    double overhang;  // level, in feet
    double common;    // feet of rafter to a foot of common run
    double hip;       // feet of hip to a foot of common run

    explicit Rafters(const PanelTexts& panel)
        : run(std::max(panel.value("txtTab12_3") - panel.value("txtTab12_2") / 24, 0.0)),
          overhang(panel.value("txtTab12_4")),
          common(slopeFactor(panel.value("txtTab12_1"))),
          hip(slopeFactor(panel.value("txtTab12_1"), 2)) {}
};

void writeDegrees(PanelTexts& panel, std::string_view box, double angle) {
    panel.writeRounded(box, degrees(angle), 5);
}

// Lengths as above. The miters are the plumb cuts, measured from a square cut; the bevel is the backing of the hip,
// arc sine of sine of slope times cosine of 45 degrees, which at pitch 12 is a carpenter's 30 degrees.
void cmdTab12(PanelTexts& panel) {
    const Rafters rafters(panel);
    panel.writeRounded("txtTab12_5", (rafters.run + rafters.overhang) * rafters.common, 5);
    panel.writeRounded("txtTab12_6", (rafters.run + rafters.overhang) * rafters.hip, 5);
    panel.writeRounded("txtTab12_7", rafters.run * rafters.hip, 5);
    panel.writeRounded("txtTab12_8", rafters.overhang * rafters.hip, 5);
    const double slope = std::atan(panel.value("txtTab12_1") / 12);
    writeDegrees(panel, "txtTab12_9", slope);
    writeDegrees(panel, "txtTab12_10", asin(std::sin(slope) * std::sqrt(0.5)));
    writeDegrees(panel, "txtTab12_11", std::atan(panel.value("txtTab12_1") / (12 * std::sqrt(2))));
}

constexpr PanelControl rafterAngle[] = {
    {Input, "txtTab12_1", "Roof Pitch", 0, 0, "/ 12"},
    {Input, "txtTab12_2", "Nominal Ridge Width (decimal inches)", 1, 0, "inches"},
    {Input, "txtTab12_3", "Plan Distance (decimal feet)", 2, 0, "Feet"},
    {Input, "txtTab12_4", "Eave Overhang (decimal feet)", 3, 0, "Feet"},
    {Check, "chkTab12", "Hip Roof? (Check if hip roof)", 4, 0},
    {.kind = Button, .name = "cmdTab12", .label = "Compute", .row = 5, .compute = cmdTab12},
    {Result, "txtTab12_5", "Rafter Length", 6, 0, "Feet"},
    {Result, "txtTab12_6", "Hip Rafter Length", 7, 0, "Feet"},
    {Result, "txtTab12_7", "Length to birdsmouth from peak (hip)", 8, 0, "Feet"},
    {Result, "txtTab12_8", "Length to birdsmouth from heel (hip)", 9, 0, "Feet"},
    {Result, "txtTab12_9", "Main Rafter Miter Angle", 10, 0, "°"},
    {Result, "txtTab12_10", "Hip Rafter Bevel Angle", 11, 0, "°"},
    {Result, "txtTab12_11", "Hip Rafter Miter Angle", 12, 0, "°"},
    {Help, "cmdHelp2_12",
     "This calculator will give you the angles and lengths needed for hand framing your roof. When asked for decimal "
     "feet input values such as 12.5 for 12 feet -6 inches. The Hip Roof checkbox is not functional at this time so "
     "the calculator will output all values. Input values as stated.",
     5, 1},
};

// --- Crown Molding ---------------------------------------------------------------------------------------------------

// The molding lies flat on the saw; the spring angle is the one between wall and molding. Miter and bevel as in the
// tables of compound-miter saw manuals (90 and 38 degrees: 31.6 and 33.9). Only a wall angle between 0 and 360 makes a
// corner.
void cmdTab15(PanelTexts& panel) {
    const double wall = panel.value("txtTab15_1");
    const double spring = radians(panel.value("txtTab15_2"));
    const bool corner = wall > 0 && wall < 360;
    const double half = radians(wall) / 2;
    writeDegrees(panel, "txtTab15_3", corner ? std::atan2(std::sin(spring) * std::cos(half), std::sin(half)) : 0);
    const double bevel = std::cos(spring) * std::cos(half);
    writeDegrees(panel, "txtTab15_4", corner && std::abs(bevel) < 1 ? asin(bevel) : 0);
    panel.writeRounded("txtTab15_5", corner ? 90 - panel.value("txtTab15_2") : 0, 5);
}

constexpr PanelControl crownMolding[] = {
    {Input, "txtTab15_1", "Input Wall Angle", 0, 0, "°"},
    {Input, "txtTab15_2", "Input Spring Angle", 1, 0, "°"},
    {.kind = Button, .name = "cmdTab15", .label = "Compute", .row = 2, .compute = cmdTab15},
    {Result, "txtTab15_3", "Miter Angle", 3, 0, "°"},
    {Result, "txtTab15_4", "Bevel Angle", 4, 0, "°"},
    {Result, "txtTab15_5", "Angle from level", 5, 0, "°"},
    {Help, "cmdHelp2_15",
     "The crown molding calculator will find the miter and bevel angles for any wall angle and spring angle.", 2, 1},
};

// --- Square House ----------------------------------------------------------------------------------------------------

// 192 sixteenths of an inch to the foot.
double side(const PanelTexts& panel, std::string_view feet, std::string_view inches, std::string_view sixteenths) {
    return panel.value(feet) + panel.value(inches) / 12 + panel.value(sixteenths) / 192;
}

// The diagonal by Pythagoras, in decimal feet.
void cmdTab16(PanelTexts& panel) {
    const double a = side(panel, "txtTab16_1", "txtTab16_2", "txtTab16_3");
    const double b = side(panel, "txtTab16_4", "txtTab16_5", "txtTab16_6");
    panel.writeRounded("txtTab16_7", std::sqrt(a * a + b * b), 5);
}

constexpr PanelControl squareHouse[] = {
    {Input, "txtTab16_1", "Input Side 1", 0, 0, "ft"},
    {Input, "txtTab16_2", "", 0, 1, "Inches"},
    {Input, "txtTab16_3", "", 0, 2, "/16"},
    {Input, "txtTab16_4", "Input Side 2", 1, 0, "ft"},
    {Input, "txtTab16_5", "", 1, 1, "Inches"},
    {Input, "txtTab16_6", "", 1, 2, "/16"},
    {.kind = Button, .name = "cmdTab16", .label = "Compute", .row = 2, .compute = cmdTab16},
    {Result, "txtTab16_7", "Side 3 Length (hypotenuse)", 3, 0},
    {Help, "cmdHelp2_16",
     "A user has requested this calculator for the instances where the 3-4-5 method just doesn't work. This "
     "calculator will give you the hypotenuse of a triangle. Input the length of 2 sides of a triangle, in feet, and "
     "the calculator will output the 3rd side (hypotenuse) in decimal feet. This of course only works for a right "
     "triangle. This can be helpful when pulling square for concrete forms, walls, or floor and roof sheathing.",
     2, 1},
};

// --- Roofing ---------------------------------------------------------------------------------------------------------

constexpr PanelEntry pitches[] = {{"4 in 12"}, {"5 in 12"},  {"6 in 12"},  {"7 in 12"}, {"8 in 12"},
                                  {"9 in 12"}, {"10 in 12"}, {"11 in 12"}, {"12 in 12"}};

// Slope factors to two places, as roofers use them.
constexpr double pitchFactors[] = {1.06, 1.08, 1.12, 1.16, 1.2, 1.25, 1.3, 1.36, 1.42};
static_assert(std::size(pitchFactors) == std::size(pitches));

// A roofing square is 100 square feet; a part of one counts as a whole one.
void cmdTab37(PanelTexts& panel) {
    const int pitch = panel.listIndex("cmbTab37");
    if (pitch >= 0) panel.write("txtTab37_2", panel.value("txtTab37_1") * pitchFactors[pitch]);
    writeRaised(panel, "txtTab37_3", panel.value("txtTab37_2") / 100);
}

constexpr PanelControl roofing[] = {
    {Input, "txtTab37_1", "Nominal roof size (in sq. ft.)", 0, 0},
    {.kind = List, .name = "cmbTab37", .label = "Roof pitch", .row = 1, .start = "first", .entries = pitches},
    {.kind = Button, .name = "cmdTab37", .label = "Compute", .row = 2, .compute = cmdTab37},
    {Result, "txtTab37_2", "Actual square feet of house: ", 3, 0, "Sq. Ft."},
    {Result, "txtTab37_3", "Number of squares you need: ", 4, 0},
};

// --- Lumber ----------------------------------------------------------------------------------------------------------

// Neither list has a part in it.
void cmdTab38(PanelTexts& panel) {
    panel.write("txtTab38_3", panel.value("txtTab38_1") * panel.value("txtTab38_2"));
}

constexpr PanelEntry lumberDimensions[] = {{"2 by 2"},  {"2 by 3"}, {"2 by 4"},  {"2 by 6"}, {"2 by 8"},  {"2 by 10"},
                                           {"2 by 12"}, {"4 by 4"}, {"4 by 6"},  {"4 by 8"}, {"4 by 10"}, {"4 by 12"},
                                           {"6 by 6"},  {"6 by 8"}, {"6 by 10"}, {"6 by 12"}};
constexpr PanelEntry lumberUnits[] = {{"Lineal foot"}, {"Board foot"}};

constexpr PanelControl lumber[] = {
    {.kind = List,
     .name = "cmbTab38_1",
     .label = "Lumber Dimension",
     .row = 0,
     .start = "first",
     .entries = lumberDimensions},
    {.kind = List,
     .name = "cmbTab38_2",
     .label = "Unit of measurement",
     .row = 1,
     .start = "first",
     .entries = lumberUnits},
    {Input, "txtTab38_1", "Price per lineal foot", 2, 0},
    {Input, "txtTab38_2", "Number of lineal feet", 3, 0},
    {.kind = Button, .name = "cmdTab38", .label = "Compute", .row = 4, .compute = cmdTab38},
    {Result, "txtTab38_3", "Cost for lineal feet:", 5, 0},
};

constexpr Panel panels[] = {
    {"frmTab9", "Wall Framing Calculator", wallFraming},
    {"frmTab10", "Roof Area Calculator", roofArea},
    {"frmTab11", "Board Foot Calculator", boardFoot},
    {"frmTab12", "Rafter Angle Calculator", rafterAngle},
    {"frmTab15", "Crown Molding Calculator", crownMolding},
    {"frmTab16", "Square House Calculator", squareHouse},
    {"frmTab37", "Roofing Calculator", roofing},
    {"frmTab38", "Lumber Calculator", lumber},
};

}  // namespace

std::span<const Panel> framingPanels() {
    return panels;
}

}  // namespace torvane
