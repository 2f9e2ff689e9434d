#pragma once

#include <span>
#include <string_view>

#include "calculators/panel.h"

namespace torvane {

enum class TabOpens { Panel, Conversions, Scientific };

// A tab of a calculator window. Tabs with the same panel show one and the same, with what stands in it.
struct CalculatorTab {
    std::string_view caption;
    MakePanel panel;  // null where the tab shows none
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
std::span<const CalculatorGroup, 4> calculatorGroups();

}  // namespace torvane
