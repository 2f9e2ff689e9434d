#include "calculators/calculator_groups.h"

#include <algorithm>

#include "values/failure.h"

namespace torvane {

namespace {

constexpr CalculatorTab tabs1[] = {
    {"Blocks Calculator", "frmTab1"},
    {"Concrete Materials Calculators", "frmTab2"},
    {"Block Wall Calculator", "frmTab3"},
    {"Column Calculator", "frmTab4"},
    {"Bricks Calculator", "frmTab5"},
    {"Conversions", "", "Open conversions calculator window"},
    {"Scientific Calculator", ""},
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
    {"Trenching for Tanks", "frmTab28"},
    {"Utility Trenching", "frmTab29"},
    {"Excavation Volume", "frmTab30"},
    {"Steel Beam", "frmTab31"},
    {"Ceramic Tile Calculator", "frmTab32"},
    {"Carpet Calculator", "frmTab33"},
    {"Wallpaper Calculator", "frmTab34"},
    {"Sheet Vinyl Calculator", "frmTab35"},
    {"Resilient Tile Calculator", "frmTab36"},
};

constexpr CalculatorTab tabs4[] = {
    {"Roofing Calculator", "frmTab37"},
    {"Lumber Calculator", "frmTab38"},
};

constexpr CalculatorGroup group1{"frmCalculators", "Label23", tabs1, ""};
constexpr CalculatorGroup group2{"frmCalculator2", "Label99", tabs2, "frmTab12"};
constexpr CalculatorGroup group3{"frmCalculator3", "Label82", tabs3, "frmTab28"};
constexpr CalculatorGroup group4{"frmCalculator4", "Label82", tabs4, "frmTab37"};

constexpr std::string_view listsOnFirstEntry[] = {"cmbTab32", "cmbTab37", "cmbTab38_1", "cmbTab38_2"};

}  // namespace

const CalculatorGroup& calculatorGroup1() { return group1; }
const CalculatorGroup& calculatorGroup2() { return group2; }
const CalculatorGroup& calculatorGroup3() { return group3; }
const CalculatorGroup& calculatorGroup4() { return group4; }

bool opensOnFirstEntry(std::string_view list) { return std::ranges::find(listsOnFirstEntry, list) != std::end(listsOnFirstEntry); }

const Panel& panelOf(std::string_view frame) {
    for (const std::span<const Panel> panels : {masonryPanels(), framingPanels(), finishesPanels(), siteWorkPanels()})
        for (const Panel& panel : panels)
            if (panel.frame == frame) return panel;
    fail(Failure::InvalidCall, frame);
}

}  // namespace torvane
