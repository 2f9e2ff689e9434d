#pragma once

#include <span>
#include <string_view>

#include "calculators/panel.h"

namespace torvane {

// One of the four calculator windows as data: its tabs, in the order of the strip, and what its opening sets.
struct CalculatorGroup {
    std::string_view name;       // of the screen
    std::string_view helpLabel;  // name of the label beside its help button
    std::span<const CalculatorTab> tabs;
    std::string_view firstFrame;  // shown when the window loads; empty: none
};
const CalculatorGroup& calculatorGroup1();
const CalculatorGroup& calculatorGroup2();
const CalculatorGroup& calculatorGroup3();
const CalculatorGroup& calculatorGroup4();

// Lists that open on their first entry each time their frame is shown.
bool opensOnFirstEntry(std::string_view list);

// The panel in a frame. Failure::InvalidCall when there is none.
const Panel& panelOf(std::string_view frame);

}  // namespace torvane
