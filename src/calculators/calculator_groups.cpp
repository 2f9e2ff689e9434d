#include "calculators/calculator_groups.h"

namespace torvane {

namespace {

constexpr CalculatorTab tabs1[] = {
    {"Blocks Calculator"},       {"Concrete Materials Calculators"},
    {"Block Wall Calculator"},   {"Column Calculator"},
    {"Bricks Calculator"},       {"Conversions", "Open conversions calculator window"},
    {"Scientific Calculator"},   {"Foundation Concrete Calculator"},
    {"Wall Framing Calculator"}, {"Roof Area Calculator"},
    {"Board Foot Calculator"},
};

constexpr CalculatorTab tabs2[] = {
    {"Rafter Angle Calculator"},
    {"Paint Coverage Calculator"},
    {"Concrete Calculator for Circular Volumes"},
    {"Crown Molding Calculator"},
    {"Square House Calculator"},
    {"Wall base"},
    {"Shoe mould"},
    {"Crown mould"},
    {"Insulation"},
    {"Deck hand railing input"},
    {"Deck"},
    {"Tile"},
    {"Oak floor"},
    {"Carpet"},
    {"Gutter"},
    {"Sofface"},
};

constexpr CalculatorTab tabs3[] = {
    {"Trenching for Tanks"},  {"Utility Trenching"},       {"Excavation Volume"},
    {"Steel Beam"},           {"Ceramic Tile Calculator"}, {"Carpet Calculator"},
    {"Wallpaper Calculator"}, {"Sheet Vinyl Calculator"},  {"Resilient Tile Calculator"},
};

constexpr CalculatorTab tabs4[] = {
    {"Roofing Calculator"},
    {"Lumber Calculator"},
};

constexpr CalculatorGroup group1{"frmCalculators", "Label23", tabs1};
constexpr CalculatorGroup group2{"frmCalculator2", "Label99", tabs2};
constexpr CalculatorGroup group3{"frmCalculator3", "Label82", tabs3};
constexpr CalculatorGroup group4{"frmCalculator4", "Label82", tabs4};

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

}  // namespace torvane
