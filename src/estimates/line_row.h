#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "estimates/coln_order_items.h"
#include "estimates/pricing.h"

namespace torvane {

// One row of the list of lines, as the estimate screen shows it: a text for each column. The amounts are those of the
// whole line.
using LineRow = std::vector<std::string>;

// The list's columns from left to right. Those without a width are there for the program.
struct LineColumn {
    enum Number { itemId, room, quantity, unit, item, material, labor, subLabor, others, total, roomId, unitId };
    std::string_view header;
    int twips;
    bool numeric = false;
};
inline constexpr LineColumn lineColumns[] = {
    {"Item ID", 0},
    {"Takeoff Name", 1800},
    {"Quantity", 1200, true},
    {"Unit", 1200},
    {"Item Name", 1800},
    {"Material", 1200, true},
    {"Labor", 1200, true},
    {"Sub-Labor", 1200, true},
    {"Others", 1200, true},
    {"Total", 1200, true},
    {"Roomid", 0},
    {"Unitid", 0},
};

// What a line is about.
struct LineNames {
    std::int32_t itemId = 0;
    std::string item;
    std::int32_t roomId = 0;
    std::string room;
    std::int32_t unitId = 0;
    std::string unit;
};

// The row of a line that is entered, or changed, in the panel. Failure::Overflow as of lineAmounts.
LineRow enteredRow(const LineNames& names, const LinePanel& panel);
// The row of a line that has been stored: its quantity is shown as a whole number (half to even), material and labor in
// four decimals, sub-labor and others in their 7 digits. Failure::Overflow when the quantity or an amount is too large.
LineRow storedRow(const LineNames& names, const ClsOrderItems& line);

// What tells the lines of an estimate apart.
struct LineKey {
    std::int32_t itemId;
    std::int32_t roomId;
    std::int32_t unitId;

    bool operator==(const LineKey&) const = default;
};
LineKey keyOf(const ClsOrderItems& line);
// Failures as of strictInt32.
LineKey keyOf(const LineRow& row);

}  // namespace torvane
