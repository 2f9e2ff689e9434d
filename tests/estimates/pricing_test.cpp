// The edges of the arithmetic that the journeys of the estimate screen don't reach.

#include "estimates/pricing.h"

#include "estimates/line_row.h"
#include "estimates/take_off.h"
#include "support/record_test.h"
#include "values/numbers.h"

namespace torvane {
namespace {

class PricingTest : public RecordTest {
protected:
    // The amounts of a saved line, as the list of lines shows them.
    static std::string stored(float quantity, float material, float labor, float subLabor, float equipment) {
        const LineRow row = storedRow({}, {quantity, material, 3, 2, subLabor, labor, equipment, nullptr});
        return row[LineColumn::quantity] + "|" + row[LineColumn::material] + "|" + row[LineColumn::labor] + "|" +
               row[LineColumn::subLabor] + "|" + row[LineColumn::others] + "|" + row[LineColumn::total];
    }
};

TEST_F(PricingTest, AmountsAndTheirTexts) {
    const LinePanel odd{"1.", "12abc", "7,5", "abc", "1 2"};
    const TotalTexts totals = totalTexts("100", "-7,5", "x");
    const struct {
        const char* name;
        std::string found, expected;
    } rows[] = {
        {"the longest numeric prefix counts", generalText(panelTotal(odd)) + generalText(lineAmounts(odd).total),
         "3131"},
        {"15 digits", generalText(panelTotal({"3", "0.1", "", "", ""})), "0.3"},
        {"a price per unit", unitPriceText("2", "25") + unitPriceText("0", "25") + unitPriceText("-1", "25"), "12.500"},
        {"percentages", totals.tax + " " + totals.overhead + " " + totals.finalTotal, "-7 0 93"},
        {"the sum is kept in single precision", generalText(sumOfTotals({"16777216", "1", "1"})), "1.677722E+07"},
        {"a room lower than a foot", roomAreas("10", "12", "0.5").concrete, "44"},
        {"a whole quantity, half to even", stored(2.5F, 25, 0, 0, 0) + " " + stored(3.5F, 25, 0, 0, 0),
         "2|25|0|0|0|25 4|25|0|0|0|25"},
        {"four decimals", stored(1, 1.00005F, 0, 0, 0), "1|1|0|0|0|1"},
        {"a total of what is shown", stored(1, 12.35F, 0.1F, 3.15F, 0.4F), "1|12.35|0.1|3.15|0.4|16"},
        {"7 digits", stored(1, 0, 0, 12345678, 0), "1|0|0|1.234568E+07|0|12345680"},
    };
    for (const auto& row : rows) EXPECT_EQ(row.found, row.expected) << row.name;
}

TEST_F(PricingTest, WhatIsTooLargeOrNoNumberFails) {
    const std::function<void()> overflows[] = {
        [] {
            panelTotal({"1e200", "1e200", "", "", ""});
        },
        [] {
            lineAmounts({"1e200", "1e200", "", "", ""});
        },
        [] { totalTexts("1e300", "1e300", ""); },
        [] { totalTexts("1e300", "", "1e300"); },
        [] { sumOfTotals({"4e38"}); },
        [] { roomAreas("1e200", "1e200", "1"); },
        [] { stored(3e9F, 0, 0, 0, 0); },
    };
    for (const auto& act : overflows) EXPECT_EQ(numberOf(act), 6);
    EXPECT_EQ(numberOf([] { unitPriceText("1", "25x"); }), 13);
}

}  // namespace
}  // namespace torvane
