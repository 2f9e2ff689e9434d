#pragma once

#include "calculators/panel.h"
#include "calculators/trade_math.h"

namespace torvane::panels {

// A block's nominal size includes the joint, a course is 8 inches (NCMA TEK 14); outside lengths without a deduction
// for corners (NAVEDTRA 14045, table 4-3). A part block is bought whole.
struct Blocks : Panel {
    Blocks() : Panel("frmTab1", "Blocks Calculator", 101) {
        blockSize.start = "16";
        heading("Length (Feet) ", 1, 0);
        heading("# of Blocks", 1, 1);
        calculate.says = "Calculate # of Blocks along the footer";
        calculateTotal.says = "Calculate Total # of Blocks";
    }

    Box blockSize = input("txtTab1_BlockSize", "Size of Each Block (Inches) e.g. 16\" Block", 0, 0);
    Box front = input("txtTab1_Length1", "Front", 2, 0);
    Box back = input("txtTab1_Length2", "Back", 3, 0);
    Box left = input("txtTab1_Length3", "Left Side", 4, 0);
    Box right = input("txtTab1_Length4", "Right Side", 5, 0);
    Button calculate = button("cmdTab6_1", "Calculate", 6, 0, [this] { countBlocks(); });
    Box frontBlocks = result("txtTab1_Blocks1", "", 2, 1);
    Box backBlocks = result("txtTab1_Blocks2", "", 3, 1);
    Box leftBlocks = result("txtTab1_Blocks3", "", 4, 1);
    Box rightBlocks = result("txtTab1_Blocks4", "", 5, 1);
    Box footerBlocks = result("txtTab1_FooterBlocks", "Total # of Blocks along the footer", 7, 0);
    Box height = input("txtTab1_Height", "Height (Feet)", 8, 0);
    Button calculateTotal = button("cmdTab6_2", "Calculate", 9, 0, [this] { countBlocks(); });
    Box totalBlocks = result("txtTab1_TotalBlocks", "Total # of Blocks", 10, 0);

private:
    void countBlocks() {
        frontBlocks = blocksAlong(front);
        backBlocks = blocksAlong(back);
        leftBlocks = blocksAlong(left);
        rightBlocks = blocksAlong(right);
        footerBlocks = frontBlocks + backBlocks + leftBlocks + rightBlocks;
        const double courses = wholeUp(height * inchesInFoot / 8);
        totalBlocks = footerBlocks * courses;
    }
    Raised blocksAlong(double feet) const { return raised(blockSize > 0 ? feet * inchesInFoot / blockSize : 0); }
};

// The depth unit stands over the depths, each result beside the input that completes it.
struct ConcreteMaterials : Panel {
    ConcreteMaterials() : Panel("frmTab2", "Concrete Materials Calculators", 102) {
        inches.setAtStart = true;
        inches.says = "Depth in Inches";
        feet.says = "Depth in Feet";
    }
    Box length = input("txtTab2_2", "Length (Feet) ", 0, 0);
    Box width = input("txtTab2_1", "Width (Feet) ", 1, 0);
    Option inches = option("Tab2_Option1", "Inches", 2, 0);
    Option feet = option("Tab2_Option2", "Feet", 3, 0);
    Box slabDepth = input("txtTab2_3", "Depth of Slab (Inch)", 4, 0);
    Box baseDepth = input("txtTab2_BaseDepth", "Depth of Base (Inch)", 5, 0);
    Button compute = button("cmdTab2", "Compute", 6, 0, [this] {
        const double area = width * length;
        slabArea = area;
        const double unitsInFoot = inches ? inchesInFoot : 1;
        const double slab = area * (slabDepth / unitsInFoot) / cubicFeetInYard;
        const double base = area * (baseDepth / unitsInFoot) / cubicFeetInYard;
        slabVolume = rounded(slab, 5);
        baseVolume = rounded(base, 5);
        totalVolume = rounded(slab + base, 5);
    });
    Box slabArea = result("txtTab2_Slabarea", "Slab Area (Sq.Feet)", 1, 1);
    Box slabVolume = result("txtTab2_4", "Slab Volume (CY)", 4, 1);
    Box baseVolume = result("txtTab2_Basevolume", "Base Volume (CY)", 5, 1);
    Box totalVolume = result("txtTab2_Totvolume", "Total Volume (CY)", 6, 1);
};

// The concrete in the cores of the blocks. The result of this panel and of the next is open to typing.
struct BlockWall : Panel {
    BlockWall() : Panel("frmTab3", "Block Wall Calculator", 103) {
        eightInch.setAtStart = true;
        for (Option* size : {&eightInch, &twelveInch}) size->says = "Block Size " + size->label;
        heading("Block Size", 2, 0);
    }

    Box height = input("txtTab3_1", "Height (Feet) ", 0, 0);
    Box length = input("txtTab3_2", "Length (Feet) ", 1, 0);
    Option eightInch = option("Tab3_Option1", "8 Inch", 3, 0);
    Option twelveInch = option("Tab3_Option2", "12 Inch", 4, 0);
    Button compute = button("cmdTab3", "Compute", 5, 0, [this] {
        const double cubicFeetInSquareFoot = eightInch ? 0.32 : 0.51;
        cubicYards = rounded(height * length * cubicFeetInSquareFoot / cubicFeetInYard, 5);
    });
    Box cubicYards = input("txtTab3_4", "Cubic Yards Required", 6, 0);
};

struct Column : Panel {
    Column() : Panel("frmTab4", "Column Calculator", 104) {}
    Box height = input("txtTab4_1", "Height (Feet) ", 0, 0);
    Box diameter = input("txtTab4_2", "Diameter (Inches)", 1, 0);
    Button compute = button("cmdTab4", "Compute", 2, 0, [this] {
        const double radius = diameter / (2 * inchesInFoot);
        cubicYards = rounded(height * radius * radius * circleConstant / cubicFeetInYard, 5);
    });
    Box cubicYards = input("txtTab4_4", "Cubic Yards Required", 3, 0);
};

// 7 bricks to a square foot of single-brick wall (Griffith, Carpentry: Brickwork), breakage not included. A part brick
// is bought whole, the area stays as measured.
struct Bricks : Panel {
    Bricks() : Panel("frmTab5", "Bricks Calculator", 105) {
        totals.help("cmdHelp2_5", 2, 1,
                    "Program will calculate for 7 bricks per sq. foot and 9 bricks per sq. foot. In case you have any "
                    "other brick size, please enter the value in the box labelled 'Bricks per sq.ft'");
    }

    // The areas are alike but for the number that ends each name. The user's own rate stands left of its result.
    struct Area : InnerFrame {
        Area(Bricks& in, Text number, Text caption, int atRow, int atColumn)
            : InnerFrame(in, "ftmTab5_" + number, caption, atRow, atColumn), bricks(in), n(number) {
            ownRate.says = atOwnRate.label;
            atOwnRate.says = "Bricks at that rate";
        }

        Bricks& bricks;
        const std::string n;
        Box length = input("txtLength" + n, "Length (Feet) ", 0, 0);
        Box width = input("txtWidth" + n, "Width (Feet) ", 1, 0);
        Box ownRate = input("txtnBricks" + n, "", 3, 0);
        Button calculate = button("cmdTab5_" + n, "Calculate", 2, 0, [this] {
            squareFeet = length * width;
            atSeven = raised(squareFeet * 7);
            atNine = raised(squareFeet * 9);
            atOwnRate = raised(squareFeet * ownRate);
            bricks.CalTab5Tot();
        });
        Box squareFeet = result("txtArea" + n, "Area (Square Feet)", 0, 1);
        Box atSeven = result("txtBricks" + n, "7 Bricks per sq. foot", 1, 1);
        Box atNine = result("txtBricks9" + n, "9 Bricks per sq. foot", 2, 1);
        Box atOwnRate = result("txtBricksn" + n, "Bricks per sq. ft", 3, 1);
    };
    Area first{*this, "1", "FIRST AREA", 0, 0};
    Area second{*this, "2", "SECOND AREA", 0, 1};
    Area third{*this, "3", "THIRD AREA", 1, 0};
    Area fourth{*this, "4", "FOURTH AREA", 1, 1};
    InnerFrame totals{*this, "ftmTab5_Totals", "Total number of Bricks needed", 2, 0};
    Box totalAtSeven = totals.result("txtTotal", "7 Bricks per sq. foot", 0, 0);
    Box totalAtNine = totals.result("txtTotal2", "9 Bricks per sq. foot", 1, 0);
    Box totalAtOwnRate = totals.result("txtTotal3", "Custom Bricks per sq. foot", 2, 0);

private:
    void CalTab5Tot() {
        totalAtSeven = first.atSeven + second.atSeven + third.atSeven + fourth.atSeven;
        totalAtNine = first.atNine + second.atNine + third.atNine + fourth.atNine;
        totalAtOwnRate = first.atOwnRate + second.atOwnRate + third.atOwnRate + fourth.atOwnRate;
    }
};

// Length times cross-section (Le Jeune, Estimating Concrete Work). Wall and footing share their midline, so that one
// perimeter serves both.
struct FoundationConcrete : Panel {
    FoundationConcrete() : Panel("frmTab8", "Foundation Concrete Calculator", 108) {
        computeVolumes.says = "Compute Volumes";
        computeCosts.says = "Compute Costs";
        for (Box* money : {&yardPrice, &material, &labor, &cost}) money->prefix = "$";
        rule(6);
        help("cmdHelp2_8", 8, 1,
             "This calculator will give you the total cubic yards for footings and stem walls. It assumes a concentric "
             "stem wall and footing (midline is same). Add factors are general, as is labor factor. This estimator is "
             "by no means perfect, it will provide an estimate to check actual estimates. The values and formula will "
             "solve for any closed polygonal plan. The values will be rounded up to nearest whole number.");
    }

    Box perimeter = input("txtTab8_1", "Building Perimeter (feet)", 0, 0);
    Box footingWidth = input("txtTab8_2", "Footing Width (inches)", 1, 0);
    Box footingDepth = input("txtTab8_3", "Footing Depth (inches)", 2, 0);
    Box wallHeight = input("txtTab8_4", "Stem Wall Height (feet)", 3, 0);
    Box wallWidth = input("txtTab8_5", "Stem Wall Width (inches)", 4, 0);
    // Neat volumes: they are raised once, after the add factors.
    Button computeVolumes = button("cmdTab8_1", "Compute", 5, 0, [this] {
        const double footing = perimeter * (footingWidth / inchesInFoot) * (footingDepth / inchesInFoot);
        neatFooting = rounded(footing / cubicFeetInYard, 5);
        neatWall = rounded(perimeter * wallHeight * (wallWidth / inchesInFoot) / cubicFeetInYard, 5);
    });
    Box neatFooting = result("txtTab8_6", "Footing CY", 2, 1);
    Box neatWall = result("txtTab8_7", "Stem Wall CY", 4, 1);
    Box yardPrice = input("txtTab8_8", "Cost per Cubic Yard (Include haul)", 7, 0, "/ CY");
    // Two pours are two orders: each is raised to whole yards, which are what is paid for.
    Button computeCosts = button("cmdTab8_2", "Compute", 8, 0, [this] {
        footingYards = raised(neatFooting * 1.12);
        wallYards = raised(neatWall * 1.08);
        yards = footingYards + wallYards;
        material = yards * yardPrice;
        labor = 3 * material;
        cost = material + labor;
    });
    Box footingYards = result("txtTab8_9", "Total Cubic Yards Footing (including 12% add factor)", 9, 0, "CY");
    Box wallYards = result("txtTab8_10", "Total Cubic Yards Stem Wall (including 8% add factor)", 10, 0, "CY");
    Box yards = result("txtTab8_11", "Total Cubic Yards", 11, 0, "CY");
    Box material = result("txtTab8_12", "Material Cost", 12, 0);
    Box labor = result("txtTab8_13", "Labor Cost (by factor of 3 times material)", 13, 0);
    Box cost = result("txtTab8_14", "Total Concrete Cost", 14, 0);
};

// A cylinder without an add factor; the yards are raised and are what is paid for. Labor as on the foundation's panel.
struct CircularVolumes : Panel {
    CircularVolumes() : Panel("frmTab14", "Concrete Calculator for Circular Volumes", 114) {
        help("cmdHelp2_14", 3, 1,
             "This calculator will give you the total cubic yards for circular slabs or circular columns. Input values "
             "as stated. Assumes a constant diameter. There are no add factors - this is neatline quantities. This "
             "estimator is by no means perfect, it will only give a ballpark estimate to check actual estimates. The "
             "values and formula will solve for any circular plan. The values will be rounded up to nearest whole "
             "number.");
    }

    Box diameter = input("txtTab14_1", "Diameter (feet)", 0, 0);
    Box depth = input("txtTab14_2", "Depth (feet)", 1, 0);
    Box yardPrice = input("txtTab14_3", "Cost per Cubic Yard", 2, 0);
    Button compute = button("cmdTab14", "Compute", 3, 0, [this] {
        const double radius = diameter / 2;
        yards = raised(circleConstant * radius * radius * depth / cubicFeetInYard);
        material = yards * yardPrice;
        labor = 3 * material;
        cost = material + labor;
    });
    Box yards = result("txtTab14_4", "Total CY", 4, 0);
    Box material = result("txtTab14_5", "Concrete Cost", 5, 0);
    Box labor = result("txtTab14_6", "Labor Cost", 6, 0);
    Box cost = result("txtTab14_7", "Total Cost", 7, 0);
};

}  // namespace torvane::panels
