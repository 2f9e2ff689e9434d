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
    // The calculator window that the entry opens, from 1, and the tab there; 0: none.
    std::size_t group = 0;
    std::int16_t Which = 0;
};
std::span<const MenuEntry> menuTree();

}  // namespace torvane
