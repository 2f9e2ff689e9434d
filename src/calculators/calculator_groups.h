#pragma once

#include <span>
#include <string_view>

namespace torvane {

struct CalculatorTab {
    std::string_view caption;
    std::string_view toolTip = {};
};

// One of the four calculator windows as data: its tabs, in the order of the strip.
struct CalculatorGroup {
    std::string_view name;       // of the screen
    std::string_view helpLabel;  // name of the label beside its help button
    std::span<const CalculatorTab> tabs;
};
const CalculatorGroup& calculatorGroup1();
const CalculatorGroup& calculatorGroup2();
const CalculatorGroup& calculatorGroup3();
const CalculatorGroup& calculatorGroup4();

}  // namespace torvane
