#include <string>

#include "calculators/panel.h"
#include "calculators/trade_math.h"

namespace torvane {

namespace {

using enum PanelKind;

constexpr double cubicFeetPerYard = 27;

// --- Blocks ----------------------------------------------------------------------------------------------------------

// A block's nominal size includes the joint, a course is 8 inches (NCMA TEK 14); outside lengths without a deduction
// for corners (NAVEDTRA 14045, table 4-3). A part block is bought whole.
void cmdTab6_1(PanelTexts& panel) {
    for (const std::string side : {"1", "2", "3", "4"}) {
        const double inches = panel.value("txtTab1_Length" + side) * 12;
        const double block = panel.value("txtTab1_BlockSize");
        writeRaised(panel, "txtTab1_Blocks" + side, block > 0 ? inches / block : 0);
    }
    panel.write("txtTab1_FooterBlocks", sumOfBoxes(panel, "txtTab1_Blocks", 1, 4));
    const double courses = wholeUp(panel.value("txtTab1_Height") * 12 / 8);
    panel.write("txtTab1_TotalBlocks", panel.value("txtTab1_FooterBlocks") * courses);
}

constexpr PanelControl blocks[] = {
    {Input, "txtTab1_BlockSize", "Size of Each Block (Inches) e.g. 16\" Block", 0, 0, {}, {}, "16"},
    {Heading, "", "Length (Feet) ", 1, 0},
    {Heading, "", "# of Blocks", 1, 1},
    {Input, "txtTab1_Length1", "Front", 2, 0},
    {Input, "txtTab1_Length2", "Back", 3, 0},
    {Input, "txtTab1_Length3", "Left Side", 4, 0},
    {Input, "txtTab1_Length4", "Right Side", 5, 0},
    {.kind = Button, .name = "cmdTab6_1", .label = "Calculate", .row = 6, .compute = cmdTab6_1},
    {Result, "txtTab1_Blocks1", "", 2, 1},
    {Result, "txtTab1_Blocks2", "", 3, 1},
    {Result, "txtTab1_Blocks3", "", 4, 1},
    {Result, "txtTab1_Blocks4", "", 5, 1},
    {Result, "txtTab1_FooterBlocks", "Total # of Blocks along the footer", 7, 0},
    {Input, "txtTab1_Height", "Height (Feet)", 8, 0},
    {.kind = Button, .name = "cmdTab6_2", .label = "Calculate", .row = 9, .compute = cmdTab6_1},
    {Result, "txtTab1_TotalBlocks", "Total # of Blocks", 10, 0},
};

// --- Concrete Materials ----------------------------------------------------------------------------------------------

// Area times depth, 27 cubic feet to the yard.
void cmdTab2(PanelTexts& panel) {
    const double area = panel.value("txtTab2_1") * panel.value("txtTab2_2");
    panel.write("txtTab2_Slabarea", area);
    const double perFoot = panel.isSet("Tab2_Option1") ? 12 : 1;
    const double slab = area * (panel.value("txtTab2_3") / perFoot) / cubicFeetPerYard;
    const double base = area * (panel.value("txtTab2_BaseDepth") / perFoot) / cubicFeetPerYard;
    panel.writeRounded("txtTab2_4", slab, 5);
    panel.writeRounded("txtTab2_Basevolume", base, 5);
    panel.writeRounded("txtTab2_Totvolume", slab + base, 5);
}

// The depth unit stands over the depths, each result beside the input that completes it.
constexpr PanelControl concreteMaterials[] = {
    {Input, "txtTab2_2", "Length (Feet) ", 0, 0},
    {Input, "txtTab2_1", "Width (Feet) ", 1, 0},
    {.kind = Option, .name = "Tab2_Option1", .label = "Inches", .row = 2, .start = "set"},
    {Option, "Tab2_Option2", "Feet", 3, 0},
    {Input, "txtTab2_3", "Depth of Slab (Inch)", 4, 0},
    {Input, "txtTab2_BaseDepth", "Depth of Base (Inch)", 5, 0},
    {.kind = Button, .name = "cmdTab2", .label = "Compute", .row = 6, .compute = cmdTab2},
    {Result, "txtTab2_Slabarea", "Slab Area (Sq.Feet)", 1, 1},
    {Result, "txtTab2_4", "Slab Volume (CY)", 4, 1},
    {Result, "txtTab2_Basevolume", "Base Volume (CY)", 5, 1},
    {Result, "txtTab2_Totvolume", "Total Volume (CY)", 6, 1},
};

// --- Block Wall ------------------------------------------------------------------------------------------------------

// Concrete in the cores of a block wall, in cubic feet for a square foot of wall.
void cmdTab3(PanelTexts& panel) {
    const double fill = panel.isSet("Tab3_Option1") ? 0.32 : 0.51;
    panel.writeRounded("txtTab3_4", panel.value("txtTab3_1") * panel.value("txtTab3_2") * fill / cubicFeetPerYard, 5);
}

// The result of this panel and of the next is open to typing.
constexpr PanelControl blockWall[] = {
    {Input, "txtTab3_1", "Height (Feet) ", 0, 0},
    {Input, "txtTab3_2", "Length (Feet) ", 1, 0},
    {Heading, "", "Block Size", 2, 0},
    {.kind = Option, .name = "Tab3_Option1", .label = "8 Inch", .row = 3, .start = "set"},
    {Option, "Tab3_Option2", "12 Inch", 4, 0},
    {.kind = Button, .name = "cmdTab3", .label = "Compute", .row = 5, .compute = cmdTab3},
    {Input, "txtTab3_4", "Cubic Yards Required", 6, 0},
};

// --- Column ----------------------------------------------------------------------------------------------------------

// A cylinder; the diameter in inches is made a radius in feet.
void cmdTab4(PanelTexts& panel) {
    const double radius = panel.value("txtTab4_2") / 24;
    const double cubicFeet = panel.value("txtTab4_1") * radius * radius * circleConstant;
    panel.writeRounded("txtTab4_4", cubicFeet / cubicFeetPerYard, 5);
}

constexpr PanelControl column[] = {
    {Input, "txtTab4_1", "Height (Feet) ", 0, 0},
    {Input, "txtTab4_2", "Diameter (Inches)", 1, 0},
    {.kind = Button, .name = "cmdTab4", .label = "Compute", .row = 2, .compute = cmdTab4},
    {Input, "txtTab4_4", "Cubic Yards Required", 3, 0},
};

// --- Bricks ----------------------------------------------------------------------------------------------------------

void CalTab5Tot(PanelTexts& panel) {
    panel.write("txtTotal", sumOfBoxes(panel, "txtBricks", 1, 4));
    panel.write("txtTotal2", sumOfBoxes(panel, "txtBricks9", 1, 4));
    panel.write("txtTotal3", sumOfBoxes(panel, "txtBricksn", 1, 4));
}

// 7 bricks to a square foot of single-brick wall (Griffith, Carpentry: Brickwork), breakage not included. A part brick
// is bought whole, the area stays as measured.
template <char number>
void calculateBricks(PanelTexts& panel) {
    const std::string n(1, number);
    panel.write("txtArea" + n, panel.value("txtLength" + n) * panel.value("txtWidth" + n));
    writeRaised(panel, "txtBricks" + n, panel.value("txtArea" + n) * 7);
    writeRaised(panel, "txtBricks9" + n, panel.value("txtArea" + n) * 9);
    writeRaised(panel, "txtBricksn" + n, panel.value("txtArea" + n) * panel.value("txtnBricks" + n));
    CalTab5Tot(panel);
}

constexpr PanelControl inFrame(std::string_view frame, PanelControl control) {
    control.frame = frame;
    return control;
}

// The four areas are alike but for the number that ends each name. The user's own rate stands left of its result.
#define BRICK_AREA(N, CAPTION, ROW, COLUMN)                                             \
    {Frame, "ftmTab5_" N, CAPTION, ROW, COLUMN},                                        \
        inFrame("ftmTab5_" N, {Input, "txtLength" N, "Length (Feet) ", 0, 0}),          \
        inFrame("ftmTab5_" N, {Input, "txtWidth" N, "Width (Feet) ", 1, 0}),            \
        inFrame("ftmTab5_" N, {Input, "txtnBricks" N, "", 3, 0}),                       \
        inFrame("ftmTab5_" N, {.kind = Button,                                          \
                               .name = "cmdTab5_" N,                                    \
                               .label = "Calculate",                                    \
                               .row = 2,                                                \
                               .compute = calculateBricks<(N)[0]>}),                    \
        inFrame("ftmTab5_" N, {Result, "txtArea" N, "Area (Square Feet)", 0, 1}),       \
        inFrame("ftmTab5_" N, {Result, "txtBricks" N, "7 Bricks per sq. foot", 1, 1}),  \
        inFrame("ftmTab5_" N, {Result, "txtBricks9" N, "9 Bricks per sq. foot", 2, 1}), \
        inFrame("ftmTab5_" N, {Result, "txtBricksn" N, "Bricks per sq. ft", 3, 1})

constexpr std::string_view bricksTotals = "ftmTab5_Totals";

constexpr PanelControl bricks[] = {
    BRICK_AREA("1", "FIRST AREA", 0, 0),
    BRICK_AREA("2", "SECOND AREA", 0, 1),
    BRICK_AREA("3", "THIRD AREA", 1, 0),
    BRICK_AREA("4", "FOURTH AREA", 1, 1),
    {Frame, bricksTotals, "Total number of Bricks needed", 2, 0},
    inFrame(bricksTotals, {Result, "txtTotal", "7 Bricks per sq. foot", 0, 0}),
    inFrame(bricksTotals, {Result, "txtTotal2", "9 Bricks per sq. foot", 1, 0}),
    inFrame(bricksTotals, {Result, "txtTotal3", "Custom Bricks per sq. foot", 2, 0}),
    inFrame(bricksTotals, {Help, "cmdHelp2_5",
                           "Program will calculate for 7 bricks per sq. foot and 9 bricks per sq. foot. In case you "
                           "have any other brick size, please enter the value in the box labelled 'Bricks per sq.ft'",
                           2, 1}),
};

#undef BRICK_AREA

// --- Foundation Concrete ---------------------------------------------------------------------------------------------

// Labor is a factor of 3 times the material, as the panel's label has it.
void writeCosts(PanelTexts& panel, std::string_view yards, std::string_view price, std::string_view material,
                std::string_view labor, std::string_view total) {
    panel.write(material, panel.value(yards) * panel.value(price));
    panel.write(labor, 3 * panel.value(material));
    panel.write(total, panel.value(material) + panel.value(labor));
}

// Length times cross-section (Le Jeune, Estimating Concrete Work). Wall and footing share their midline, so that one
// perimeter serves both. Neat volumes: they are raised once, after the add factors.
void cmdTab8_1(PanelTexts& panel) {
    const double footing = panel.value("txtTab8_1") * (panel.value("txtTab8_2") / 12) * (panel.value("txtTab8_3") / 12);
    panel.writeRounded("txtTab8_6", footing / cubicFeetPerYard, 5);
    const double wall = panel.value("txtTab8_1") * panel.value("txtTab8_4") * (panel.value("txtTab8_5") / 12);
    panel.writeRounded("txtTab8_7", wall / cubicFeetPerYard, 5);
}

// Two pours are two orders: each is raised to whole yards, which are what is paid for.
void cmdTab8_2(PanelTexts& panel) {
    writeRaised(panel, "txtTab8_9", panel.value("txtTab8_6") * 1.12);
    writeRaised(panel, "txtTab8_10", panel.value("txtTab8_7") * 1.08);
    panel.write("txtTab8_11", panel.value("txtTab8_9") + panel.value("txtTab8_10"));
    writeCosts(panel, "txtTab8_11", "txtTab8_8", "txtTab8_12", "txtTab8_13", "txtTab8_14");
}

constexpr PanelControl foundationConcrete[] = {
    {Input, "txtTab8_1", "Building Perimeter (feet)", 0, 0},
    {Input, "txtTab8_2", "Footing Width (inches)", 1, 0},
    {Input, "txtTab8_3", "Footing Depth (inches)", 2, 0},
    {Input, "txtTab8_4", "Stem Wall Height (feet)", 3, 0},
    {Input, "txtTab8_5", "Stem Wall Width (inches)", 4, 0},
    {.kind = Button, .name = "cmdTab8_1", .label = "Compute", .row = 5, .compute = cmdTab8_1},
    {Result, "txtTab8_6", "Footing CY", 2, 1},
    {Result, "txtTab8_7", "Stem Wall CY", 4, 1},
    {Rule, "", "", 6, 0},
    {Input, "txtTab8_8", "Cost per Cubic Yard (Include haul)", 7, 0, "/ CY", "$"},
    {.kind = Button, .name = "cmdTab8_2", .label = "Compute", .row = 8, .compute = cmdTab8_2},
    {Result, "txtTab8_9", "Total Cubic Yards Footing (including 12% add factor)", 9, 0, "CY"},
    {Result, "txtTab8_10", "Total Cubic Yards Stem Wall (including 8% add factor)", 10, 0, "CY"},
    {Result, "txtTab8_11", "Total Cubic Yards", 11, 0, "CY"},
    {Result, "txtTab8_12", "Material Cost", 12, 0, {}, "$"},
    {Result, "txtTab8_13", "Labor Cost (by factor of 3 times material)", 13, 0, {}, "$"},
    {Result, "txtTab8_14", "Total Concrete Cost", 14, 0, {}, "$"},
    {Help, "cmdHelp2_8",
     "This calculator will give you the total cubic yards for footings and stem walls. It assumes a concentric stem "
     "wall and footing (midline is same). Add factors are general, as is labor factor. This estimator is by no means "
     "perfect, it will provide an estimate to check actual estimates. The values and formula will solve for any "
     "closed polygonal plan. The values will be rounded up to nearest whole number.",
     8, 1},
};

// --- Concrete for Circular Volumes -----------------------------------------------------------------------------------

// A cylinder without an add factor; the yards are raised and are what is paid for.
void cmdTab14(PanelTexts& panel) {
    const double radius = panel.value("txtTab14_1") / 2;
    const double cubicFeet = circleConstant * radius * radius * panel.value("txtTab14_2");
    writeRaised(panel, "txtTab14_4", cubicFeet / cubicFeetPerYard);
    writeCosts(panel, "txtTab14_4", "txtTab14_3", "txtTab14_5", "txtTab14_6", "txtTab14_7");
}

constexpr PanelControl circularVolumes[] = {
    {Input, "txtTab14_1", "Diameter (feet)", 0, 0},
    {Input, "txtTab14_2", "Depth (feet)", 1, 0},
    {Input, "txtTab14_3", "Cost per Cubic Yard", 2, 0},
    {.kind = Button, .name = "cmdTab14", .label = "Compute", .row = 3, .compute = cmdTab14},
    {Result, "txtTab14_4", "Total CY", 4, 0},
    {Result, "txtTab14_5", "Concrete Cost", 5, 0},
    {Result, "txtTab14_6", "Labor Cost", 6, 0},
    {Result, "txtTab14_7", "Total Cost", 7, 0},
    {Help, "cmdHelp2_14",
     "This calculator will give you the total cubic yards for circular slabs or circular columns. Input values as "
     "stated. Assumes a constant diameter. There are no add factors - this is neatline quantities. This estimator is "
     "by no means perfect, it will only give a ballpark estimate to check actual estimates. The values and formula "
     "will solve for any circular plan. The values will be rounded up to nearest whole number.",
     3, 1},
};

constexpr Panel panels[] = {
    {"frmTab1", "Blocks Calculator", blocks},
    {"frmTab2", "Concrete Materials Calculators", concreteMaterials},
    {"frmTab3", "Block Wall Calculator", blockWall},
    {"frmTab4", "Column Calculator", column},
    {"frmTab5", "Bricks Calculator", bricks},
    {"frmTab8", "Foundation Concrete Calculator", foundationConcrete},
    {"frmTab14", "Concrete Calculator for Circular Volumes", circularVolumes},
};

}  // namespace

std::span<const Panel> masonryPanels() {
    return panels;
}

}  // namespace torvane
