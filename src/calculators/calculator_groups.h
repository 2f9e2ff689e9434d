#pragma once

#include <span>
#include <string_view>

#include "calculators/panel.h"

namespace torvane {

enum class TabOpens { Panel, Conversions, Scientific };

// A tab of a calculator window. Several tabs may show the same panel.
struct CalculatorTab {
    std::string_view caption;
    std::string_view frame;  // of the panel; empty where the tab shows none
    TabOpens opens = TabOpens::Panel;
    std::string_view toolTip = {};
};

// One of the four calculator windows as data: its tabs, in the order of the strip.
struct CalculatorGroup {
    std::string_view name;       // of the screen
    std::string_view helpLabel;  // name of the label beside its help button
    std::span<const CalculatorTab> tabs;
    int helpContext = 0;
};
const CalculatorGroup& calculatorGroup1();
const CalculatorGroup& calculatorGroup2();
const CalculatorGroup& calculatorGroup3();
const CalculatorGroup& calculatorGroup4();

// The panel with this frame; null when there is none.
const Panel* findPanel(std::string_view frame);

}  // namespace torvane
