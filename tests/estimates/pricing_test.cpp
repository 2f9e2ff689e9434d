// The edges of the arithmetic that the journeys of the estimate screen don't reach.

#include "estimates/pricing.h"

#include <gtest/gtest.h>

#include "estimates/line_row.h"
#include "values/numbers.h"

namespace torvane {
namespace {

// The amounts of a saved line, as the list of lines shows them.
std::string stored(float quantity, float material, float labor, float subLabor, float equipment) {
    const LineRow row = storedRow({}, {quantity, material, 3, 2, subLabor, labor, equipment, nullptr});
    std::string all;
    for (const auto column : {LineColumn::quantity, LineColumn::material, LineColumn::labor, LineColumn::subLabor,
                              LineColumn::others, LineColumn::total})
        all += row[column] + " ";
    return all;
}

TEST(PricingTest, AmountsAndTheirTexts) {
    const LinePanel odd{"1.", "12abc", "7,5", "abc", "1 2"};
    const TotalTexts totals = totalTexts("100", "-7,5", "x");
    const struct {
        const char* name;
        std::string found, expected;
    } rows[] = {
        {"the longest numeric prefix counts", generalText(panelTotal(odd)) + generalText(lineAmounts(odd).total),
         "3131"},
        {"15 digits", generalText(panelTotal({"3", "0.1", "", "", ""})), "0.3"},
        {"none where there are no units", unitPriceText("0", "25") + unitPriceText("-1", "25"), "00"},
        {"percentages", totals.tax + " " + totals.overhead + " " + totals.finalTotal, "-7 0 93"},
        {"the sum is kept in single precision", generalText(sumOfTotals({"16777216", "1", "1"})), "1.677722E+07"},
        {"a whole quantity, half to even", stored(2.5F, 25, 0, 0, 0) + stored(3.5F, 25, 0, 0, 0),
         "2 25 0 0 0 25 4 25 0 0 0 25 "},
        {"four decimals", stored(1, 1.00005F, 0, 0, 0), "1 1 0 0 0 1 "},
        {"a total of what is shown", stored(1, 12.35F, 0.1F, 3.15F, 0.4F), "1 12.35 0.1 3.15 0.4 16 "},
        {"7 digits", stored(1, 0, 0, 12345678, 0), "1 0 0 1.234568E+07 0 12345680 "},
    };
    for (const auto& row : rows) EXPECT_EQ(row.found, row.expected) << row.name;
}

}  // namespace
}  // namespace torvane
