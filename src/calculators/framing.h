#pragma once

#include <algorithm>
#include <cmath>

#include "calculators/panel.h"
#include "calculators/trade_math.h"

namespace torvane::panels {

// Feet along a slope to a foot of level run, by Pythagoras: 1 is the square of that foot for common rafters and roof
// planes, 2 for a hip, which runs over the plan's diagonal. The pitch is over 12.
inline double slopeFactor(double pitch, double runSquared = 1) {
    return std::sqrt(runSquared + (pitch / 12) * (pitch / 12));
}

struct WallFraming : Panel {
    WallFraming() : Panel("frmTab9", "Wall Framing Calculator", 109) {
        for (Wall* wall : {&exterior, &interior})
            for (Box* box : {&wall->spacing, &wall->corners, &wall->spaces, &wall->openings})
                box->says = (wall == &exterior ? "Exterior " : "Interior ") + box->label;
        help("cmdHelp2_9", 5, 1,
             "This calculator will give you the total board footage for framed walls. Input values as stated. Add "
             "factors are general, as is labor factor. This estimator is by no means perfect and will only give a "
             "ballpark estimate to check actual estimates. Assumptions are as follows: 8 ' wall height , 3 plates");
    }

    struct Wall {
        Box length, spacing, corners, spaces, openings;
    };
    struct Lumber {
        Box studs, boardFeet, plates;
    };
    Wall exterior{
        input("txtTab9_1", "Exterior Perimeter (feet)", 0, 0), input("txtTab9_2", "Stud spacing (inches)", 1, 0),
        input("txtTab9_3", "Number of Corners", 2, 0),         input("txtTab9_4", "Number of Spaces", 3, 0),
        input("txtTab9_5", "Number of Openings", 4, 0),
    };
    Wall interior{
        input("txtTab9_6", "Interior Length (feet)", 0, 1), input("txtTab9_7", "Stud spacing (inches)", 1, 1),
        input("txtTab9_8", "Number of Corners", 2, 1),      input("txtTab9_9", "Number of Spaces", 3, 1),
        input("txtTab9_10", "Number of Openings", 4, 1),
    };
    Button compute = button("cmdTab9", "Compute", 5, 0, [this] {
        frameWall(exterior, exteriorLumber, 6);
        frameWall(interior, interiorLumber, 4);
    });
    Lumber exteriorLumber{
        result("txtTab9_11", "Number of Ext 2x6 studs", 6, 0),
        result("txtTab9_12", "Board Foot Measure of Ext 2x6 studs", 7, 0),
        result("txtTab9_13", "Number of Ext 2x6x16' plates", 8, 0),
    };
    Lumber interiorLumber{
        result("txtTab9_14", "Number of Int 2x4 studs", 6, 1),
        result("txtTab9_15", "Board Foot Measure of Int 2x4 stud", 7, 1),
        result("txtTab9_16", "Number of Int 2x6x16' plates", 8, 1),
    };

private:
    // Length over spacing, plus one stud to close the last space (Estimating in Building Construction, ch. 13), and two
    // more for each corner, each space (where a partition meets the wall) and each opening (Modern Carpentry, ch. 11).
    // Studs are 8 feet long, the three plates come in lengths of 16 feet; openings don't shorten them.
    static void frameWall(const Wall& wall, Lumber& lumber, double studWidth) {
        const bool hasField = wall.length > 0 && wall.spacing > 0;
        const double field = hasField ? wholeUp(wall.length * inchesInFoot / wall.spacing) + 1 : 0;
        lumber.studs = raised(field + (2 * wall.corners + 2 * wall.spaces + 2 * wall.openings));
        lumber.boardFeet = lumber.studs * 2 * studWidth * 8 / 12;
        lumber.plates = raised(std::max<double>(wall.length, 0) * 3 / 16);
    }
};

// Plan area times slope factor (JLC, Estimating with a Spreadsheet), which holds for gable and regular hip alike;
// sheets of 4 by 8 feet.
struct RoofArea : Panel {
    RoofArea() : Panel("frmTab10", "Roof Area Calculator", 110) {
        help("cmdHelp2_10", 4, 1,
             "This calculator will give you the area of a gable or simple hip roof. Input the values in feet. The "
             "length and width of roof should include overhang. Make sure that the Roof Pitch is a single number. So "
             "if you have a roof pitch of 5/12 just input 5. Values are rounded to next highest number.");
    }

    Box pitch = input("txtTab10_1", "Input Roof Pitch", 0, 0, "/ 12");
    Box width = input("txtTab10_2", "Input Width of Roof", 1, 0);
    Box length = input("txtTab10_3", "Input Length of Roof", 2, 0);
    Box sheetPrice = input("txtTab10_4", "Cost per Sheet", 3, 0);
    Button compute = button("cmdTab10", "Compute", 4, 0, [this] {
        area = raised(width * length * slopeFactor(pitch));
        sheets = raised(area / 32);
        cost = raised(sheets * sheetPrice);
    });
    Box area = result("txtTab10_5", "Roof Area", 5, 0);
    Box sheets = result("txtTab10_6", "Number of sheets", 6, 0);
    Box cost = result("txtTab10_7", "Material Cost", 7, 0);
};

// Nominal thickness and width in inches times length in feet, over 12 (NAVEDTRA, Engineering Aid: board measure).
// Nothing is rounded: rounded rows would not add up.
struct BoardFoot : Panel {
    BoardFoot() : Panel("frmTab11", "Board Foot Calculator", 111) {
        heading("Nominal size", 0, 0);
        heading("Length (feet)", 0, 2);
        heading("Total BF", 0, 3);
        heading("Size (in)", 4, 0);
        nameRow("Row 1: ", size1, length1, boardFeet1);
        nameRow("Row 2: ", size2, length2, boardFeet2);
        nameRow("Row 3: ", size3, length3, boardFeet3);
        nameRow("Custom size: ", thickness, customLength, customBoardFeet);
        thickness.says = "Custom size: Thickness (in)";
        width.says = "Custom size: Width (in)";
        help("cmdHelp2_11", 6, 1,
             "This calculator will give you the board foot measure for 3 standard sizes of wood and 1 custom size. "
             "Input values as stated.");
    }

    // The factor is thickness times width, in square inches.
    static constexpr ListEntry nominalSizes[] = {{"Select", 0, 0}, {"1 x 2", 0, 2},         {"1 x 3", 0, 3},
                                                 {"1 x 4", 0, 4},  {"1 x 6 / 2 x 3", 0, 6}, {"2 x 4", 0, 8},
                                                 {"2 x 6", 0, 12}, {"2 x 8", 0, 16}};
    List size1 = list("cmbTab11_1", "", 1, 0, nominalSizes);
    Box length1 = input("txtTab11_1", "", 1, 2);
    List size2 = list("cmbTab11_2", "", 2, 0, nominalSizes);
    Box length2 = input("txtTab11_2", "", 2, 2);
    List size3 = list("cmbTab11_3", "", 3, 0, nominalSizes);
    Box length3 = input("txtTab11_3", "", 3, 2);
    Box thickness = input("txtTab11_5", "", 5, 0, "X");
    Box width = input("txtTab11_6", "", 5, 1);
    Box customLength = input("txtTab11_4", "", 5, 2);
    Button compute = button("cmdTab11", "Compute", 6, 0, [this] {
        boardFeet1 = section(size1) * length1 / 12;
        boardFeet2 = section(size2) * length2 / 12;
        boardFeet3 = section(size3) * length3 / 12;
        customBoardFeet = thickness * width * customLength / 12;
        total = boardFeet1 + boardFeet2 + boardFeet3 + customBoardFeet;
    });
    Box boardFeet1 = result("txtTab11_7", "", 1, 3);
    Box boardFeet2 = result("txtTab11_8", "", 2, 3);
    Box boardFeet3 = result("txtTab11_9", "", 3, 3);
    Box customBoardFeet = result("txtTab11_10", "", 5, 3);
    Box total = result("txtTab11_11", "Total BF : ", 6, 3);

private:
    static void nameRow(const std::string& row, Control& size, Control& length, Control& boardFeet) {
        size.says = row + "Nominal size";
        length.says = row + "Length (feet)";
        boardFeet.says = row + "Total BF";
    }
    static double section(const List& size) { return size.selected() ? size.selected()->factor : 0; }
};

// Rafters by the foot of common run, the hip's from the plan's diagonal (NAVEDTRA 14044, roof framing). The miters are
// the plumb cuts, measured from a square cut; the bevel is the backing of the hip, arc sine of sine of slope times
// cosine of 45 degrees, which at pitch 12 is a carpenter's 30 degrees.
struct RafterAngle : Panel {
    RafterAngle() : Panel("frmTab12", "Rafter Angle Calculator", 112) {
        help("cmdHelp2_12", 5, 1,
             "This calculator will give you the angles and lengths needed for hand framing your roof. When asked for "
             "decimal feet input values such as 12.5 for 12 feet -6 inches. The Hip Roof checkbox is not functional at "
             "this time so the calculator will output all values. Input values as stated.");
    }

    Box pitch = input("txtTab12_1", "Roof Pitch", 0, 0, "/ 12");
    Box ridgeWidth = input("txtTab12_2", "Nominal Ridge Width (decimal inches)", 1, 0, "inches");
    Box planDistance = input("txtTab12_3", "Plan Distance (decimal feet)", 2, 0, "Feet");
    Box overhang = input("txtTab12_4", "Eave Overhang (decimal feet)", 3, 0, "Feet");
    Option hipRoof = check("chkTab12", "Hip Roof? (Check if hip roof)", 4, 0);
    Button compute = button("cmdTab12", "Compute", 5, 0, [this] {
        // From the ridge's face to the building line: half the ridge's thickness comes off.
        const double run = std::max(planDistance - ridgeWidth / 24, 0.0);
        const double alongHip = slopeFactor(pitch, 2);
        rafter = rounded((run + overhang) * slopeFactor(pitch), 5);
        hipRafter = rounded((run + overhang) * alongHip, 5);
        hipFromPeak = rounded(run * alongHip, 5);
        hipFromHeel = rounded(overhang * alongHip, 5);
        const double slope = std::atan(pitch / 12);
        rafterMiter = rounded(degrees(slope), 5);
        hipBevel = rounded(degrees(asin(std::sin(slope) * std::sqrt(0.5))), 5);
        hipMiter = rounded(degrees(std::atan(pitch / (12 * std::sqrt(2)))), 5);
    });
    Box rafter = result("txtTab12_5", "Rafter Length", 6, 0, "Feet");
    Box hipRafter = result("txtTab12_6", "Hip Rafter Length", 7, 0, "Feet");
    Box hipFromPeak = result("txtTab12_7", "Length to birdsmouth from peak (hip)", 8, 0, "Feet");
    Box hipFromHeel = result("txtTab12_8", "Length to birdsmouth from heel (hip)", 9, 0, "Feet");
    Box rafterMiter = result("txtTab12_9", "Main Rafter Miter Angle", 10, 0, "°");
    Box hipBevel = result("txtTab12_10", "Hip Rafter Bevel Angle", 11, 0, "°");
    Box hipMiter = result("txtTab12_11", "Hip Rafter Miter Angle", 12, 0, "°");
};

// The molding lies flat on the saw; the spring angle is the one between wall and molding. Miter and bevel as in the
// tables of compound-miter saw manuals (90 and 38 degrees: 31.6 and 33.9). Only a wall angle between 0 and 360 makes a
// corner.
struct CrownMolding : Panel {
    CrownMolding() : Panel("frmTab15", "Crown Molding Calculator", 115) {
        help("cmdHelp2_15", 2, 1,
             "The crown molding calculator will find the miter and bevel angles for any wall angle and spring angle.");
    }

    Box wallAngle = input("txtTab15_1", "Input Wall Angle", 0, 0, "°");
    Box springAngle = input("txtTab15_2", "Input Spring Angle", 1, 0, "°");
    Button compute = button("cmdTab15", "Compute", 2, 0, [this] {
        const bool corner = wallAngle > 0 && wallAngle < 360;
        const double half = radians(wallAngle) / 2;
        const double spring = radians(springAngle);
        const double tilt = std::cos(spring) * std::cos(half);
        miter = corner ? rounded(degrees(std::atan2(std::sin(spring) * std::cos(half), std::sin(half))), 5) : 0;
        bevel = corner && std::abs(tilt) < 1 ? rounded(degrees(asin(tilt)), 5) : 0;
        fromLevel = corner ? rounded(90 - springAngle, 5) : 0;
    });
    Box miter = result("txtTab15_3", "Miter Angle", 3, 0, "°");
    Box bevel = result("txtTab15_4", "Bevel Angle", 4, 0, "°");
    Box fromLevel = result("txtTab15_5", "Angle from level", 5, 0, "°");
};

// The diagonal by Pythagoras, in decimal feet.
struct SquareHouse : Panel {
    SquareHouse() : Panel("frmTab16", "Square House Calculator", 116) {
        help("cmdHelp2_16", 2, 1,
             "A user has requested this calculator for the instances where the 3-4-5 method just doesn't work. This "
             "calculator will give you the hypotenuse of a triangle. Input the length of 2 sides of a triangle, in "
             "feet, and the calculator will output the 3rd side (hypotenuse) in decimal feet. This of course only "
             "works for a right triangle. This can be helpful when pulling square for concrete forms, walls, or floor "
             "and roof sheathing.");
    }

    struct Side {
        Box feet, inches, sixteenths;
        double inFeet() const { return feet + inches / inchesInFoot + sixteenths / (16 * inchesInFoot); }
    };
    Side side1{
        input("txtTab16_1", "Input Side 1", 0, 0, "ft"),
        input("txtTab16_2", "", 0, 1, "Inches"),
        input("txtTab16_3", "", 0, 2, "/16"),
    };
    Side side2{
        input("txtTab16_4", "Input Side 2", 1, 0, "ft"),
        input("txtTab16_5", "", 1, 1, "Inches"),
        input("txtTab16_6", "", 1, 2, "/16"),
    };
    Button compute = button("cmdTab16", "Compute", 2, 0, [this] {
        const double a = side1.inFeet();
        const double b = side2.inFeet();
        hypotenuse = rounded(std::sqrt(a * a + b * b), 5);
    });
    Box hypotenuse = result("txtTab16_7", "Side 3 Length (hypotenuse)", 3, 0);
};

// A roofing square is 100 square feet; a part of one counts as a whole one. Slope factors to two places, as roofers use
// them.
struct Roofing : Panel {
    Roofing() : Panel("frmTab37", "Roofing Calculator", 137) { pitch.opensOnFirst = true; }
    Box nominal = input("txtTab37_1", "Nominal roof size (in sq. ft.)", 0, 0);
    static constexpr ListEntry pitches[] = {{"4 in 12", 0, 1.06}, {"5 in 12", 0, 1.08},  {"6 in 12", 0, 1.12},
                                            {"7 in 12", 0, 1.16}, {"8 in 12", 0, 1.2},   {"9 in 12", 0, 1.25},
                                            {"10 in 12", 0, 1.3}, {"11 in 12", 0, 1.36}, {"12 in 12", 0, 1.42}};
    List pitch = list("cmbTab37", "Roof pitch", 1, 0, pitches);
    Button compute = button("cmdTab37", "Compute", 2, 0, [this] {
        if (pitch.selected()) actual = nominal * pitch.selected()->factor;
        squares = raised(actual / 100);
    });
    Box actual = result("txtTab37_2", "Actual square feet of house: ", 3, 0, "Sq. Ft.");
    Box squares = result("txtTab37_3", "Number of squares you need: ", 4, 0);
};

// Neither list changes the cost.
struct LumberCost : Panel {
    LumberCost() : Panel("frmTab38", "Lumber Calculator", 138) { dimension.opensOnFirst = unit.opensOnFirst = true; }
    static constexpr ListEntry dimensions[] = {
        {"2 by 2"}, {"2 by 3"}, {"2 by 4"},  {"2 by 6"},  {"2 by 8"}, {"2 by 10"}, {"2 by 12"}, {"4 by 4"},
        {"4 by 6"}, {"4 by 8"}, {"4 by 10"}, {"4 by 12"}, {"6 by 6"}, {"6 by 8"},  {"6 by 10"}, {"6 by 12"}};
    List dimension = list("cmbTab38_1", "Lumber Dimension", 0, 0, dimensions);
    static constexpr ListEntry units[] = {{"Lineal foot"}, {"Board foot"}};
    List unit = list("cmbTab38_2", "Unit of measurement", 1, 0, units);
    Box price = input("txtTab38_1", "Price per lineal foot", 2, 0);
    Box feet = input("txtTab38_2", "Number of lineal feet", 3, 0);
    Button compute = button("cmdTab38", "Compute", 4, 0, [this] { cost = price * feet; });
    Box cost = result("txtTab38_3", "Cost for lineal feet:", 5, 0);
};

}  // namespace torvane::panels
