#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "datastore/rows.h"

namespace torvane {

// The arithmetic of the estimate screen, on the texts of its boxes. Texts are read leniently, sums are doubles, nothing
// is rounded, and a result beyond the range of a double is Failure::Overflow. Only material is a price per unit; labor,
// sub-labor (`extension`) and others are amounts of the whole line.

// The texts of the line panel's boxes.
struct LinePanel {
    std::string quantity;
    std::string material;  // price per unit
    std::string labor;
    std::string extension;
    std::string others;
};

// Total of the line being entered: quantity x material + labor + sub-labor + others.
double panelTotal(const LinePanel& panel);

// A line as its amounts.
struct LineAmounts {
    double quantity = 0;
    double material = 0;  // whole line: quantity times unit price
    double labor = 0;
    double extension = 0;
    double others = 0;
    // material + sub-labor + labor + others
    double total = 0;
};
LineAmounts lineAmounts(const LinePanel& panel);

// Price per unit of a listed line, as a text: extended material (strictly read) by quantity, or "0" where the quantity
// is not above 0.
std::string unitPriceText(std::string_view quantity, std::string_view extendedMaterial);

// The sum of the lines as the estimate keeps it: added in double precision, narrowed to single precision after every
// line.
float sumOfTotals(const std::vector<std::string>& lineTotals);

// The texts of the totals box that follow from the amount and the two percentages.
struct TotalTexts {
    std::string tax;
    std::string overhead;
    std::string finalTotal;
};
TotalTexts totalTexts(std::string_view amount, std::string_view taxPercent, std::string_view overheadPercent);

// The master prices of an item as one text: material # labor # default quantity # sub-labor # equipment.
enum class PricePart { Material = 0, Labor = 1, Quantity = 2, SubLabor = 3, Equipment = 4 };
// From a row of ClsOrder::GetComboItems.
std::string priceEntry(const RowArray& items, int row);
// One part of such a text. Failure::Subscript when the text has no such part.
std::string pricePart(std::string_view entry, PricePart part);

}  // namespace torvane
