#pragma once

#include <algorithm>

#include "calculators/panel.h"
#include "calculators/trade_math.h"
#include "values/numbers.h"

namespace torvane::panels {

// --- Sums and products -----------------------------------------------------------------------------------------------

struct LinearTotal : Panel {
    LinearTotal() : Panel("frmTab17", "", 117) {}
    Box first = input("txtTab17_1", "First", 0, 0, "feet");
    Box second = input("txtTab17_2", "Second", 1, 0, "feet");
    Box third = input("txtTab17_3", "Third", 2, 0, "feet");
    Box fourth = input("txtTab17_4", "Fourth", 3, 0, "feet");
    Button compute = button("cmdTab17", "Compute", 4, 0, [this] { total = first + second + third + fourth; });
    Box total = result("txtTab17_5", "Total", 5, 0, "feet");
};

struct LinearTotalBySide : Panel {
    LinearTotalBySide() : Panel("frmTab26", "", 126) {}
    Box front = input("txtTab26_1", "Front", 0, 0, "feet");
    Box rear = input("txtTab26_2", "Rear", 1, 0, "feet");
    Box left = input("txtTab26_3", "Left", 2, 0, "feet");
    Box right = input("txtTab26_4", "Right", 3, 0, "feet");
    Button compute = button("cmdTab26", "Compute", 4, 0, [this] { total = front + rear + left + right; });
    Box total = result("txtTab26_5", "Total", 5, 0, "feet");
};

struct SurfaceByHeight : Panel {
    SurfaceByHeight() : Panel("frmTab20", "", 120) {}
    Box length = input("txtTab20_1", "Length", 0, 0, "feet");
    Box height = input("txtTab20_2", "Height", 1, 0, "feet");
    Button compute = button("cmdTab20", "Compute", 2, 0, [this] { total = length * height; });
    Box total = result("txtTab20_3", "Total", 3, 0, "sq. feet");
};

struct FloorSurface : Panel {
    FloorSurface() : Panel("frmTab22", "", 122) {}
    Box length = input("txtTab22_1", "Length", 0, 0, "feet");
    Box width = input("txtTab22_2", "Weight", 1, 0, "feet");
    Button compute = button("cmdTab22_1", "Compute", 2, 0, [this] { total = length * width; });
    Box total = result("txtTab22_3", "Total", 3, 0, "sq. feet");
};

// --- Paint -----------------------------------------------------------------------------------------------------------

// Costs are taken from the areas and not from the gallons, whose text has lost digits: a third of a gallon at 30 is 10.
struct PaintCoverage : Panel {
    PaintCoverage() : Panel("frmTab13", "Paint Coverage Calculator", 113) {
        help("cmdHelp2_13", 7, 1,
             "The wall painting calculator will give you the total number of gallons required for some commonly "
             "painted surfaces. The calculator assumes brushing or rolling paint. It will separate the gallons "
             "required for ceiling and walls also. Input the fields below and select what type of surface it is.");
    }

    Box length = input("txtTab13_1", "Length of room (feet)", 0, 0);
    Box width = input("txtTab13_2", "Width of room (feet)", 1, 0);
    Box height = input("txtTab13_3", "Height of walls ", 2, 0);
    Box doors = input("txtTab13_4", "Number of Doors", 3, 0);
    Box windows = input("txtTab13_5", "Number of Windows", 4, 0);
    static constexpr ListEntry squareFeetPerGallon[] = {{"Drywall (Flat)", 450}, {"Drywall (Gloss)", 400},
                                                        {"Plaster", 250},        {"Siding (Paint)", 420},
                                                        {"Siding (Stain)", 150}, {"Concrete (Paint)", 450}};
    List surface = list("cmbTab13", "Select Surface Type", 5, 0, squareFeetPerGallon);
    Box gallonPrice = input("txtTab13_6", "Enter Paint Cost", 6, 0);
    Button compute = button("cmdTab13", "Compute", 7, 0, [this] {
        constexpr double doorSquareFeet = 20;    // a 3-0 x 6-8 door is 20 sq. ft.
        constexpr double windowSquareFeet = 15;  // a 3 x 5 ft. window is 15 sq. ft.
        ceiling = length * width;
        ceilingGallons = perGallon(ceiling);
        ceilingCost = perGallon(ceiling * gallonPrice);
        const double openings = doorSquareFeet * doors + windowSquareFeet * windows;
        walls = std::max(0.0, finite(2 * (length + width) * height - openings));
        wallGallons = perGallon(walls);
        wallCost = perGallon(walls * gallonPrice);
        total = ceilingCost + wallCost;
    });
    Box ceiling = result("txtTab13_7", "Ceiling SF", 0, 1);
    Box ceilingGallons = result("txtTab13_8", "Ceiling Gallons", 1, 1);
    Box ceilingCost = result("txtTab13_9", "Ceiling Paint Cost", 2, 1);
    Box walls = result("txtTab13_10", "Wall SF", 3, 1);
    Box wallGallons = result("txtTab13_11", "Wall Gallons", 4, 1);
    Box wallCost = result("txtTab13_12", "Wall Paint Cost", 5, 1);
    Box total = result("txtTab13_13", "Total Paint Cost", 6, 1);

private:
    // 0 while no surface is selected.
    double perGallon(double amount) const { return surface.selected() ? amount / surface.itemData() : 0; }
};

// --- Tiles -----------------------------------------------------------------------------------------------------------

// How many tiles cover the square feet, cuts included; the side is the number of the selected entry, in inches.
inline double tilesFor(double squareFeet, const List& size) {
    const int side = size.itemData();
    return squareFeet * 144 / (side * side);
}

struct CeramicTile : Panel {
    CeramicTile() : Panel("frmTab32", "Ceramic Tile Calculator", 132) {
        size.opensOnFirst = true;
        label("(Takes 10% wastage into consideration)", 6, 0);
    }

    Box length = input("txtTab32_1", "Tile Area Length", 0, 0, "Ft.");
    Box width = input("txtTab32_2", "Tile Area Width", 1, 0, "Ft.");
    static constexpr ListEntry sides[] = {{"3 x 3", 3},    {"4 x 4", 4},    {"6 x 6", 6},    {"8 x 8", 8},
                                          {"10 x 10", 10}, {"12 x 12", 12}, {"14 x 14", 14}, {"16 x 16", 16},
                                          {"18 x 18", 18}, {"24 x 24", 24}};
    List size = list("cmbTab32", "Tile Size (inches)", 2, 0, sides);
    Button compute = button("cmdTab32", "Compute", 3, 0, [this] {
        area = length * width;
        tiles = tilesFor(area, size);
        tiles = tiles * 1.1;
    });
    Box area = result("txtTab32_3", "Total Tile Area", 4, 0, "Sq. Ft.");
    Box tiles = result("txtTab32_4", "Total Tiles you need", 5, 0, "Pcs.");
};

struct ResilientTile : Panel {
    ResilientTile() : Panel("frmTab36", "Resilient Tile Calculator", 136) { heading("Totals", 0, 2); }
    Box width1 = input("txtTab36_1", "Area 1 (in feet)", 1, 0, "Width x ");
    Box length1 = input("txtTab36_4", "", 1, 1, "Length");
    Box width2 = input("txtTab36_2", "Area 2 (in feet)", 2, 0, "Width x ");
    Box length2 = input("txtTab36_5", "", 2, 1, "Length");
    Box width3 = input("txtTab36_3", "Area 3 (in feet)", 3, 0, "Width x ");
    Box length3 = input("txtTab36_6", "", 3, 1, "Length");
    static constexpr ListEntry sides[] = {{"12\"-by-12\"", 12}, {"9\"-by-9\"", 9}, {"6\"-by-6\"", 6}};
    List size = list("cmbTab36", "Tile Size (inches)", 4, 0, sides);
    Button compute = button("cmdTab36", "Compute", 5, 0, [this] {
        area1 = width1 * length1;
        area2 = width2 * length2;
        area3 = width3 * length3;
        total = area1 + area2 + area3;
        tiles = raised(tilesFor(total, size));
    });
    Box area1 = result("txtTab36_7", "", 1, 2);
    Box area2 = result("txtTab36_8", "", 2, 2);
    Box area3 = result("txtTab36_9", "", 3, 2);
    Box total = result("txtTab36_10", "Total Area to be tiled", 6, 0, "Sq. Ft.");
    Box tiles = result("txtTab36_11", "Amount of resilient tile needed: ", 7, 0, "Pcs.");
};

// --- Coverings -------------------------------------------------------------------------------------------------------

// Three areas and a stairway, of which each stair counts once or twice.
class Covering : public Panel {
protected:
    Covering(Text panelNumber, Text frameCaption, int help, double timesAStair)
        : Panel("frmTab" + panelNumber, frameCaption, help), number(panelNumber), countsOfAStair(timesAStair) {
        heading("Totals", 0, 2);
    }

private:
    const std::string number;
    const std::string box = "txtTab" + number + "_";
    const double countsOfAStair;

public:
    Box width1 = input(box + "1", "Area 1 (in feet)", 1, 0, "Width x ");
    Box length1 = input(box + "5", "", 1, 1, "Length");
    Box width2 = input(box + "2", "Area 2 (in feet)", 2, 0, "Width x ");
    Box length2 = input(box + "6", "", 2, 1, "Length");
    Box width3 = input(box + "3", "Area 3 (in feet)", 3, 0, "Width x ");
    Box length3 = input(box + "7", "", 3, 1, "Length");
    Box stairWidth = input(box + "4", "Stairway (in feet)", 4, 0, "Width x ");
    Box stairs = input(box + "8", "", 4, 1, "Number of Stairs");
    Button compute = button("cmdTab" + number, "Compute", 5, 0, [this] {
        area1 = width1 * length1;
        area2 = width2 * length2;
        area3 = width3 * length3;
        stairway = stairWidth * stairs * countsOfAStair;
        squareFeet = area1 + area2 + area3 + stairway;
        squareYards = raised(squareFeet / 9);
    });
    Box area1 = result(box + "9", "", 1, 2);
    Box area2 = result(box + "10", "", 2, 2);
    Box area3 = result(box + "11", "", 3, 2);
    Box stairway = result(box + "12", "", 4, 2);
    Box squareFeet = result(box + "13", "Total area to be carpeted: ", 6, 0, "Sq. Ft.");
    Box squareYards = result(box + "14", "Amount of carpet needed: ", 7, 0, "Sq. yards");
};

// A tread and its riser: each stair counts twice.
struct Carpet : Covering {
    Carpet() : Covering("33", "Carpet Calculator", 133, 2) {}
};

struct SheetVinyl : Covering {
    SheetVinyl() : Covering("35", "Sheet Vinyl Calculator", 135, 1) {}
};

struct Wallpaper : Panel {
    Wallpaper() : Panel("frmTab34", "Wallpaper Calculator", 134) { heading("Totals", 0, 2); }
    Box wallHeight = input("txtTab34_1", "Wall (in feet)", 1, 0, "Height x ");
    Box perimeter = input("txtTab34_4", "", 1, 1, "Room perimeter");
    Box ceilingLength = input("txtTab34_2", "Ceiling (in feet)", 2, 0, "Length x");
    Box ceilingWidth = input("txtTab34_5", "", 2, 1, "Width");
    Box slopingHeight = input("txtTab34_3", "Sloping wall (in feet)", 3, 0, "Height x ");
    Box slopingBase = input("txtTab34_6", "", 3, 1, "Base");
    Button compute = button("cmdTab34", "Compute", 4, 0, [this] {
        constexpr double squareFeetInRoll = 27;
        walls = wallHeight * perimeter;
        ceiling = ceilingLength * ceilingWidth;
        slopingWall = slopingHeight + slopingBase;  // a sum, whatever its label suggests
        total = walls + ceiling + slopingWall;
        rolls = raised(total / squareFeetInRoll, 2);
    });
    Box walls = result("txtTab34_7", "", 1, 2);
    Box ceiling = result("txtTab34_8", "", 2, 2);
    Box slopingWall = result("txtTab34_9", "", 3, 2);
    Box total = result("txtTab34_10", "Total wallpaper area: ", 5, 0, "Sq. Ft.");
    Box rolls = result("txtTab34_11", "Total rolls of wallpaper you need: ", 6, 0, "roll(s)");
};

}  // namespace torvane::panels
