#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "estimates/coln_order_items.h"
#include "estimates/pricing.h"

namespace torvane {

// One row of the list of lines, as the estimate screen shows it. The amounts are those of the whole line.
struct LineRow {
    std::string itemId;
    std::string room;
    std::string quantity;
    std::string unit;
    std::string item;
    std::string material;
    std::string labor;
    std::string subLabor;
    std::string others;
    std::string total;
    std::string roomId;
    std::string unitId;
};

struct LineColumn {
    std::string_view header;
    int twips;
    bool numeric;
    std::string LineRow::*text;
};

// The list's columns from left to right. Those without a width are there for the program.
inline constexpr LineColumn lineColumns[] = {
    {"Item ID", 0, false, &LineRow::itemId},      {"Takeoff Name", 1800, false, &LineRow::room},
    {"Quantity", 1200, true, &LineRow::quantity}, {"Unit", 1200, false, &LineRow::unit},
    {"Item Name", 1800, false, &LineRow::item},   {"Material", 1200, true, &LineRow::material},
    {"Labor", 1200, true, &LineRow::labor},       {"Sub-Labor", 1200, true, &LineRow::subLabor},
    {"Others", 1200, true, &LineRow::others},     {"Total", 1200, true, &LineRow::total},
    {"Roomid", 0, false, &LineRow::roomId},       {"Unitid", 0, false, &LineRow::unitId},
};

// The number of a column, from 0.
constexpr int columnOf(std::string LineRow::*text) {
    int number = 0;
    while (lineColumns[number].text != text) ++number;
    return number;
}

std::vector<std::string> cellsOf(const LineRow& row);

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
