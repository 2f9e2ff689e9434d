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
    PricingTest() { folder.useEmpty(); }
    static std::string joinedBy(char mark, const LineRow& texts) {
        std::string all;
        for (const std::string& text : texts) all += text + mark;
        return all;
    }
    std::string stored(double quantity, double material, double labor, double extension, double others) {
        ColnOrderItems lines(access);
        const Value three{std::int64_t{3}}, two{std::int64_t{2}};
        return joinedBy(
            '|', storedRow({7, "Stud", 3, "Attic", 2, "each"},
                           lines.Add(std::int64_t{7}, quantity, material, three, two, extension, labor, others)));
    }
};

TEST_F(PricingTest, AmountsAndTheirTexts) {
    const LinePanel odd{"1.", "12abc", "7,5", "abc", "1 2"};
    const TotalTexts totals = totalTexts("100", "-7,5", "x");
    const RowArray items({"key", "name", "material", "labor", "quantity", "sub-labor", "equipment"},
                         {std::int64_t{1}, std::string{"Stud"}, Null{}, 1.25F, 10.0F, 0.0F, Null{}});
    const struct {
        const char* name;
        std::string found, expected;
    } rows[] = {
        {"the longest numeric prefix counts", generalText(panelTotal(odd)) + " " + generalText(lineAmounts(odd).total),
         "31 31"},
        {"15 digits", generalText(panelTotal({"3", "0.1", "", "", ""})), "0.3"},
        {"a price per unit", unitPriceText("2", "25") + unitPriceText("0", "25") + unitPriceText("-1", "25"), "12.500"},
        {"percentages", totals.tax + " " + totals.overhead + " " + totals.finalTotal, "-7 0 93"},
        {"the sum is kept in single precision", generalText(sumOfTotals({"16777216", "1", "1", "1"})), "1.677722E+07"},
        {"a sum of nothing", generalText(sumOfTotals({})), "0"},
        {"a price that is Null is an empty part",
         priceEntry(items, 0) + " " + pricePart(priceEntry(items, 0), PricePart::Equipment), "#1.25#10#0# "},
        {"a room lower than a foot", roomAreas("10", "12", "0.5").concrete, "44"},
        {"a whole quantity, half to even", stored(2.5, 25, 0, 0, 0), "7|Attic|2|each|Stud|25|0|0|0|25|3|2|"},
        {"four decimals", stored(3.5, 1.00005, 0, 0, 0), "7|Attic|4|each|Stud|1|0|0|0|1|3|2|"},
        {"a total of what is shown", stored(1, 12.35, 0.1, 3.15, 0.4),
         "7|Attic|1|each|Stud|12.35|0.1|3.15|0.4|16|3|2|"},
        {"7 digits", stored(1, 0, 0, 12345678, 0), "7|Attic|1|each|Stud|0|0|1.234568E+07|0|12345680|3|2|"},
    };
    for (const auto& row : rows) EXPECT_EQ(row.found, row.expected) << row.name;
}

TEST_F(PricingTest, WhatIsNoNumberFails) {
    const std::function<void()> overflows[] = {[] {
                                                   panelTotal({"1e200", "1e200", "", "", ""});
                                               },
                                               [] {
                                                   lineAmounts({"1e200", "1e200", "", "", ""});
                                               },
                                               [] { totalTexts("1e300", "1e300", ""); },
                                               [] { totalTexts("1e300", "", "1e300"); },
                                               [] { sumOfTotals({"4e38"}); },
                                               [] { roomAreas("1e200", "1e200", "1"); },
                                               [this] { stored(3e9, 0, 0, 0, 0); }};
    for (const auto& act : overflows) EXPECT_EQ(numberOf(act), 6);
    EXPECT_EQ(numberOf([] { unitPriceText("1", "25x"); }), 13);
    EXPECT_EQ(numberOf([] { pricePart("1#2", PricePart::Quantity); }), 9);
}

}  // namespace
}  // namespace torvane
