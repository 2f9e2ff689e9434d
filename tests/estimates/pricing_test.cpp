#include <gtest/gtest.h>

#include "estimates/pricing.h"
#include "estimates/take_off.h"
#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {
namespace {

TEST(Pricing, LineOfThePanel) {
    struct Row {
        const char* name;
        LinePanel panel;
        const char* material;
        const char* total;
    };
    const Row rows[] = {
        {"only material is per unit", {"10", "2", "", "5", ""}, "20", "25"},
        {"all four kinds", {"2.5", "10", "1", "2", "3"}, "25", "31"},
        {"blank boxes count as 0", {"", "", "", "", ""}, "0", "0"},
        {"the longest numeric prefix counts", {"1.", "12abc", "7,5", "abc", "1 2"}, "12", "31"},
        {"15 digits", {"3", "0.1", "0", "0", "0"}, "0.3", "0.3"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.material, generalText(lineAmounts(row.panel).material));
        EXPECT_EQ(row.total, generalText(lineAmounts(row.panel).total));
        EXPECT_EQ(row.total, generalText(panelTotal(row.panel)));
    }
    EXPECT_THROW(panelTotal({"1e200", "1e200", "", "", ""}), RuntimeFailure);
}

TEST(Pricing, UnitPrice) {
    EXPECT_EQ("12.5", unitPriceText("2", "25"));
    EXPECT_EQ("0", unitPriceText("0", "25"));
    EXPECT_EQ("0", unitPriceText("-1", "25"));
    EXPECT_THROW(unitPriceText("1", "25x"), RuntimeFailure);
}

TEST(Pricing, Totals) {
    struct Row {
        const char* amount;
        const char* tax;
        const char* overhead;
        const char* taxText;
        const char* overheadText;
        const char* total;
    };
    for (const Row& row :
         {Row{"350.5", "8", "10", "28.04", "35.05", "413.59"}, Row{"0", "", "", "0", "0", "0"},
          Row{"100", "7,5", "x", "7", "0", "107"}, Row{"333.33", "8.25", "", "27.499725", "0", "360.829725"},
          Row{"100", "-5", "", "-5", "0", "95"}}) {
        SCOPED_TRACE(row.amount);
        const TotalTexts texts = totalTexts(row.amount, row.tax, row.overhead);
        EXPECT_EQ(row.taxText, texts.tax);
        EXPECT_EQ(row.overheadText, texts.overhead);
        EXPECT_EQ(row.total, texts.finalTotal);
    }
    EXPECT_THROW(totalTexts("1e300", "1e300", ""), RuntimeFailure);
}

TEST(Pricing, TheSumIsKeptInSinglePrecision) {
    EXPECT_EQ("350.5", generalText(sumOfTotals({"100", "250.5"})));
    EXPECT_EQ("0", generalText(sumOfTotals({})));
    EXPECT_EQ("123456.8", generalText(sumOfTotals({"123456", "0.78"})));
    EXPECT_EQ("1.677722E+07", generalText(sumOfTotals({"16777216", "1", "1", "1"})));
    EXPECT_THROW(sumOfTotals({"4e38"}), RuntimeFailure);
}

TEST(Pricing, PartsOfAPriceEntry) {
    const RowArray items({"key", "name", "material", "labor", "quantity", "sub-labor", "equipment"},
                         {std::int64_t{1}, std::string{"Stud"}, Null{}, 1.25F, 10.0F, 0.0F, Null{}});
    const std::string entry = priceEntry(items, 0);
    EXPECT_EQ("#1.25#10#0#", entry);
    EXPECT_EQ("1.25", pricePart(entry, PricePart::Labor));
    EXPECT_EQ("10", pricePart(entry, PricePart::Quantity));
    EXPECT_EQ("", pricePart(entry, PricePart::Equipment));
    EXPECT_THROW(pricePart("", PricePart::Labor), RuntimeFailure);
}

TEST(TakeOff, Room) {
    const RoomAreas room = roomAreas("10", "12", "8");
    EXPECT_EQ("44 352 472 2.75 120 472 3.75 2.5 3.75",
              room.perimeter + ' ' + room.walls + ' ' + room.ceiling + ' ' + room.concrete + ' ' + room.floorCeiling +
                  ' ' + room.totalArea + ' ' + room.plywood + ' ' + room.drywall4x12 + ' ' + room.drywall4x8);
    const RoomAreas flat = roomAreas("10", "12x", "");
    EXPECT_EQ("44 0 120 0", flat.perimeter + ' ' + flat.walls + ' ' + flat.ceiling + ' ' + flat.concrete);
    EXPECT_THROW(roomAreas("1e200", "1e200", "1"), RuntimeFailure);
}

}  // namespace
}  // namespace torvane
