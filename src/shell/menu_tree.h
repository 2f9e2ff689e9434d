#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace torvane {

// The menu tree of the main window as a table, in order. An entry without a parent stands on the menu bar; one that is
// the parent of others is a menu.
struct MenuEntry {
    std::string_view parent;
    std::string_view name;
    std::string_view caption;  // empty: a separator
};
std::span<const MenuEntry> menuTree();

// Which calculator window an entry of the Calculators menu opens, and on which tab.
struct CalculatorEntry {
    std::string_view entry;
    std::size_t group;  // from 1
    std::int16_t Which;
    bool showsFirst = false;  // the window is shown before its tab is chosen
};
std::span<const CalculatorEntry> calculatorEntries();

}  // namespace torvane
