#include "values/dates.h"

#include <gtest/gtest.h>

#include <string>

#include "values/failure.h"
#include "values/value.h"

namespace torvane {
namespace {

ShortDate german() {
    ShortDate style;
    style.pattern = "dd.MM.yy";
    style.monthNames[2] = "März";
    style.shortMonthNames[2] = "März";
    return style;
}

TEST(Dates, Reading) {
    const struct {
        const char* text;
        const char* iso;  // empty: no date
    } rows[] = {
        {"7/4/2003", "2003-07-04"},
        {" 7 / 4 / 2003 ", "2003-07-04"},
        {"4.7.2003", "2003-04-07"},
        {"13/5/2003", "2003-05-13"},
        {"7 4 2003", "2003-07-04"},
        {"04. 07. 2003.", "2003-04-07"},
        {"2003-07-04", "2003-07-04"},
        {"99-12-31", "1999-12-31"},
        {"1/1/29", "2029-01-01"},
        {"1/1/30", "1930-01-01"},
        {"1/1/00", "2000-01-01"},
        {"2/29/2000", "2000-02-29"},
        {"2/29/1900", ""},
        {"2/30/2003", ""},
        {"4 July 2003", "2003-07-04"},
        {"JULY 4, 2003", "2003-07-04"},
        {"4-Jul-03", "2003-07-04"},
        {"Jul. 4 2003", "2003-07-04"},
        {"2003 Jul 4", "2003-07-04"},
        {"4 März 2003", "2003-03-04"},
        {"4 Mar 2003", "2003-03-04"},
        {"4 Juli 2003", ""},
        {"July 2003", ""},
        {"July 4 July 2003", ""},
        {"", ""},
        {"7/4", ""},
        {"7//4/2003", ""},
        {"/7/4/2003", ""},
        {"-7/4/2003", ""},
        {"7/4/2003/1", ""},
        {"13/13/2003", ""},
        {"0/4/2003", ""},
        {"7/4/20030", ""},
        {"7/004/2003", ""},
        {"2003-13-01", ""},
        {"7:4:2003", ""},
        {"1/1/0050", ""},
        {"today", ""},
    };
    for (const auto& row : rows) {
        const auto date = readDate(row.text, german());
        EXPECT_EQ(date ? isoText(*date) : "", row.iso) << "text: '" << row.text << "'";
    }
}

TEST(Dates, ShortTextAndBack) {
    const Date date{2003, 7, 4};
    const struct {
        const char* pattern;
        const char* text;
        bool textOnly = false;  // reads as another date, or as none
    } rows[] = {
        {"MM/dd/yy", "07/04/03"},        {"d MMM yyyy", "4 Jul 2003"},
        {"d MMMM, yy", "4 July, 03"},    {"d'.' M'.' yyyy 'year'", "4. 7. 2003 year", true},
        {"yyyy ''dd", "2003 '04", true},
    };
    for (const auto& row : rows) {
        ShortDate style;
        style.pattern = row.pattern;
        const std::string text = shortDateText(date, style);
        EXPECT_EQ(text, row.text) << row.pattern;
        if (!row.textOnly) {
            EXPECT_EQ(readDate(text, style), date) << row.pattern;
        }
    }
}

TEST(Values, Conversions) {
    EXPECT_EQ(textOf(Value(12.5F)), "12.5");
    EXPECT_EQ(textOf(Value(0.1 + 0.2)), "0.3");
    EXPECT_EQ(textOf(Value(Date{2003, 7, 4})), "7/4/2003");
    EXPECT_EQ(textOf(Value(std::int64_t{-3})), "-3");
    EXPECT_EQ(textOrEmpty(Null{}), "");
    EXPECT_EQ(singleOrZero(Null{}), 0.0F);
    EXPECT_EQ(int16OrZero(std::string(" 2.5 ")), 2);
    EXPECT_EQ(toInt32(std::int64_t{2147483647}), 2147483647);
    EXPECT_EQ(toSingle(0.1), 0.1F);
    EXPECT_EQ(toDate(std::string("2003-07-04")), (Date{2003, 7, 4}));
}

TEST(Values, RefusedConversions) {
    const struct {
        const char* name;
        void (*convert)();
        Failure failure;
    } rows[] = {
        {"text of Null", [] { textOf(Null{}); }, Failure::NullValue},
        {"double of Null", [] { toDouble(Null{}); }, Failure::NullValue},
        {"date of Null", [] { toDate(Null{}); }, Failure::NullValue},
        {"number of empty text", [] { toSingle(std::string()); }, Failure::TypeMismatch},
        {"date of empty text", [] { toDate(std::string()); }, Failure::TypeMismatch},
        {"int16 too large", [] { toInt16(std::int64_t{32768}); }, Failure::Overflow},
        {"int32 too large", [] { int32OrZero(std::int64_t{1} << 40); }, Failure::Overflow},
        {"float too large", [] { toSingle(1e39); }, Failure::Overflow},
        {"date of a number", [] { toDate(37806.0); }, Failure::TypeMismatch},
        {"number of a date", [] { toDouble(Date{2003, 7, 4}); }, Failure::TypeMismatch},
    };
    for (const auto& row : rows) {
        try {
            row.convert();
            ADD_FAILURE() << "accepted: " << row.name;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), static_cast<int>(row.failure)) << row.name;
        }
    }
}

}  // namespace
}  // namespace torvane
