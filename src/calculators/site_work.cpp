#include "calculators/numbered_boxes.h"
#include "calculators/trade_math.h"

namespace torvane {

namespace {

using enum PanelKind;

constexpr double cubicFeetInYard = 27;
constexpr double inchesInFoot = 12;
constexpr double poundsInShortTon = 2000;

// --- Trenching for Tanks ---------------------------------------------------------------------------------------------

double tankCubicFeet(const PanelTexts& texts, const NumberedBoxes& box) {
    if (texts.isSet("optTab28_2")) return box[5] * box[6] * box[7];
    const double radius = box[1] / 2;
    return radius * radius * circleConstant * box[7];
}

void computeTank(PanelTexts& texts) {
    NumberedBoxes box(texts, 28);
    box.writeRounded(9, box[2] * box[3] * box[4] / cubicFeetInYard, 2);
    // The bed lies under the whole hole.
    box.writeRounded(10, box[2] * box[4] * (box[8] / inchesInFoot) / cubicFeetInYard, 2);
    box.write(12, tankCubicFeet(texts, box) / cubicFeetInYard);
    box.raise(12);
    box.writeRounded(11, box[9] - box[10] - box[12], 2);
}

constexpr PanelControl tank[] = {
    {Label, {}, "Tank is Round?", 0, 0},
    {Option, "optTab28_1", "Yes", 0, 0},
    {Option, "optTab28_2", "No", 1, 0},
    {Input, "txtTab28_1", "Diameter if Round", 2, 0, "LF"},
    {Input, "txtTab28_2", "Tank Excavation Width", 3, 0, "LF"},
    {Input, "txtTab28_3", "Tank Excavation Depth", 4, 0, "LF"},
    {Input, "txtTab28_4", "Tank Excavation Length", 5, 0, "LF"},
    {Input, "txtTab28_5", "Tank Width", 6, 0, "LF"},
    {Input, "txtTab28_6", "Tank Length", 7, 0, "LF"},
    {Input, "txtTab28_7", "Tank Depth", 8, 0, "LF"},
    {Input, "txtTab28_8", "Bed Tank Depth", 9, 0, "IN"},
    computeButton("cmdTab28", 10, 0, computeTank),
    {Result, "txtTab28_9", "Tank Hole Volume", 2, 1, "CY"},
    {Result, "txtTab28_10", "Tank Bed Fill Volume", 3, 1, "CY"},
    {Result, "txtTab28_11", "Tank Back Fill Volume", 4, 1, "CY"},
    {Result, "txtTab28_12", "Tank Volume", 5, 1, "CY"},
};

// --- Utility Trenching -----------------------------------------------------------------------------------------------

void computeTrench(PanelTexts& texts) {
    NumberedBoxes box(texts, 29);
    // Cubic yards along the trench, of a cross section whose sides are boxes in inches.
    const auto volume = [&box](int height, int width) {
        return (box[height] / inchesInFoot) * (box[width] / inchesInFoot) * box[3] / cubicFeetInYard;
    };
    box.writeRounded(7, volume(2, 1), 2);
    box.writeRounded(8, volume(6, 1), 2);
    box.writeRounded(10, volume(5, 4), 2);
    box.writeRounded(9, box[7] - box[10] - box[8], 2);
}

constexpr PanelControl trench[] = {
    {Input, "txtTab29_1", "Trench for Utilities-1 Excavation Width", 0, 0, "IN"},
    {Input, "txtTab29_2", "Trench for Utilities-1 Excavation Depth", 1, 0, "IN"},
    {Input, "txtTab29_3", "Trench for Utilities-1 Excavation Length", 2, 0, "LF"},
    {Input, "txtTab29_4", "Pipe/casing Width", 3, 0, "IN"},
    {Input, "txtTab29_5", "Pipe/casing Height", 4, 0, "IN"},
    {Input, "txtTab29_6", "Sand/gravel Bed Depth", 5, 0, "IN"},
    computeButton("cmdTab29", 6, 0, computeTrench),
    {Result, "txtTab29_7", "Trench for Utilities-1 Excavation Volume", 7, 0, "CY"},
    {Result, "txtTab29_8", "Trench for Utilities-1 Bed Fill Volume", 8, 0, "CY"},
    {Result, "txtTab29_9", "Trench for Utilities-1 Back Fill Volume", 9, 0, "CY"},
    {Result, "txtTab29_10", "Pipe/casing Volume deduct", 10, 0, "CY"},
};

// --- Excavation Volume -----------------------------------------------------------------------------------------------

void computeExcavation(PanelTexts& texts) {
    NumberedBoxes box(texts, 30);
    box.write(6, box[1] * ((box[2] + box[3] + box[4] + box[5]) / 4));
}

constexpr PanelControl excavation[] = {
    {Input, "txtTab30_1", "Surface Area", 0, 0, "Sq. Ft."},  {Input, "txtTab30_2", "Height A:", 1, 0, "LF"},
    {Input, "txtTab30_3", "Height B:", 2, 0, "LF"},          {Input, "txtTab30_4", "Height C:", 3, 0, "LF"},
    {Input, "txtTab30_5", "Height D:", 4, 0, "LF"},          computeButton("cmdTab30", 5, 0, computeExcavation),
    {Result, "txtTab30_6", "Excavation Volume", 6, 0, "CF"},
};

// --- Steel Beam ------------------------------------------------------------------------------------------------------

void computeBeam(PanelTexts& texts) {
    NumberedBoxes box(texts, 31);
    box.write(3, box[1] * box[2] / poundsInShortTon);
    box.raise(3, 4);
    box.write(4, box[1] * box[2]);
}

constexpr PanelControl beam[] = {
    {Input, "txtTab31_1", "Steel Beam Unit Weight", 0, 0, "LB/FT"},
    {Input, "txtTab31_2", "Beam Weight", 1, 0, "LF"},  // its length
    computeButton("cmdTab31", 2, 0, computeBeam),
    {Result, "txtTab31_3", "Steel Beam Weight (Ton.)", 3, 0, "Ton"},
    {Result, "txtTab31_4", "Steel Beam Weight (Lbs.)", 4, 0, "Lbs."},
};

constexpr Panel panels[] = {
    {"frmTab28", "Trenching for Tanks", tank},
    {"frmTab29", "Utility Trenching", trench},
    {"frmTab30", "Excavation Volume", excavation},
    {"frmTab31", "Steel Beam", beam},
};

}  // namespace

std::span<const Panel> siteWorkPanels() {
    return panels;
}

}  // namespace torvane
