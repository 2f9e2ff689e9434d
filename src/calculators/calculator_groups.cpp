#include "calculators/calculator_groups.h"

namespace torvane {

namespace {

constexpr CalculatorTab tabs1[] = {
    {"Blocks Calculator", "frmTab1"},
    {"Concrete Materials Calculators", "frmTab2"},
    {"Block Wall Calculator", "frmTab3"},
    {"Column Calculator", "frmTab4"},
    {"Bricks Calculator", "frmTab5"},
    {"Conversions", "", TabOpens::Conversions, "Open conversions calculator window"},
    {"Scientific Calculator", "", TabOpens::Scientific},
    {"Foundation Concrete Calculator", "frmTab8"},
    {"Wall Framing Calculator", "frmTab9"},
    {"Roof Area Calculator", "frmTab10"},
    {"Board Foot Calculator", "frmTab11"},
};

constexpr CalculatorTab tabs2[] = {
    {"Rafter Angle Calculator", "frmTab12"},
    {"Paint Coverage Calculator", "frmTab13"},
    {"Concrete Calculator for Circular Volumes", "frmTab14"},
    {"Crown Molding Calculator", "frmTab15"},
    {"Square House Calculator", "frmTab16"},
    {"Wall base", "frmTab17"},
    {"Shoe mould", "frmTab17"},
    {"Crown mould", "frmTab17"},
    {"Insulation", "frmTab20"},
    {"Deck hand railing input", "frmTab17"},
    {"Deck", "frmTab22"},
    {"Tile", "frmTab22"},
    {"Oak floor", "frmTab22"},
    {"Carpet", "frmTab22"},
    {"Gutter", "frmTab26"},
    {"Sofface", "frmTab26"},
};

constexpr CalculatorTab tabs3[] = {
    {"Trenching for Tanks", "frmTab28"},       {"Utility Trenching", "frmTab29"},
    {"Excavation Volume", "frmTab30"},         {"Steel Beam", "frmTab31"},
    {"Ceramic Tile Calculator", "frmTab32"},   {"Carpet Calculator", "frmTab33"},
    {"Wallpaper Calculator", "frmTab34"},      {"Sheet Vinyl Calculator", "frmTab35"},
    {"Resilient Tile Calculator", "frmTab36"},
};

constexpr CalculatorTab tabs4[] = {
    {"Roofing Calculator", "frmTab37"},
    {"Lumber Calculator", "frmTab38"},
};

constexpr CalculatorGroup group1{"frmCalculators", "Label23", tabs1, 21};
constexpr CalculatorGroup group2{"frmCalculator2", "Label99", tabs2, 22};
constexpr CalculatorGroup group3{"frmCalculator3", "Label82", tabs3, 23};
constexpr CalculatorGroup group4{"frmCalculator4", "Label82", tabs4, 24};

}  // namespace

const CalculatorGroup& calculatorGroup1() {
    return group1;
}
const CalculatorGroup& calculatorGroup2() {
    return group2;
}
const CalculatorGroup& calculatorGroup3() {
    return group3;
}
const CalculatorGroup& calculatorGroup4() {
    return group4;
}

const Panel* findPanel(std::string_view frame) {
    for (const std::span<const Panel> panels : {masonryPanels(), framingPanels(), finishesPanels(), siteWorkPanels()})
        for (const Panel& panel : panels)
            if (panel.frame == frame) return &panel;
    return nullptr;
}

}  // namespace torvane
