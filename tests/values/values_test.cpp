#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "values/dates.h"
#include "values/failure.h"
#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {
namespace {

// --- Numbers ---------------------------------------------------------------------------------------------------------

// The text of a result, or "fails" with the number of the failure.
template <typename Work>
std::string outcome(Work work) {
    try {
        return generalText(work());
    } catch (const RuntimeFailure& failure) {
        return "fails " + std::to_string(failure.number());
    }
}

TEST(Numbers, LenientReading) {
    const std::pair<const char*, double> rows[] = {
        {"12abc", 12}, {" \t\r\n1 2", 12}, {"- 5", -5},       {"7,5", 7},
        {"-.5", -0.5}, {"1 E + 3", 1000},  {"-1e400", -1e40}, {"1e-99999999999999999999", 0},
    };
    for (const auto& [text, value] : rows) EXPECT_EQ(lenientNumber(text), value) << text;
    for (const char* zero : {"", "--5", "+-5", "-.", "e5", "inf", "x1", "0x10", "-0", "-1e-400"}) {
        EXPECT_EQ(lenientNumber(zero), 0) << zero;
        EXPECT_FALSE(std::signbit(lenientNumber(zero))) << zero;
    }
}

TEST(Numbers, StrictReading) {
    // The text, and then as a double, in 16 bits and in 32.
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {" -1.5e0\t", "-1.5", "-2", "-2"},
        {"32767.5", "32767.5", "fails 6", "32768"},
        {"-32768.5", "-32768.5", "-32768", "-32768"},
        {"2147483647.5", "2147483647.5", "fails 6", "fails 6"},
        {"2147483647", "2147483647", "fails 6", "2147483647"},
        {"-1e999", "fails 6", "fails 6", "fails 6"},
    };
    for (const auto& [number, asDouble, asInt16, asInt32] : rows) {
        const std::string_view text = number;
        EXPECT_EQ(outcome([&] { return strictDouble(text); }), asDouble);
        EXPECT_EQ(outcome([&] { return strictInt16(text); }), asInt16) << text;
        EXPECT_EQ(outcome([&] { return strictInt32(text); }), asInt32) << text;
        EXPECT_EQ(isNumeric(text), *asDouble != 'f') << text;
    }
    for (const char* text : {"", "  ", "12abc", "1 2", "- 5", "7,5", "1e", ".", "nan", "0x10"}) {
        EXPECT_EQ(outcome([&] { return strictDouble(text); }), "fails 13") << text;
        EXPECT_FALSE(isNumeric(text)) << text;
    }
}

TEST(Numbers, NarrowingRefusesWhatDoesNotFit) {
    for (const double value :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(), 0x1.ffffffp127}) {
        EXPECT_EQ(outcome([&] { return narrowToInt16(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToSingle(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToCurrency(value); }), "fails 6");
    }
    EXPECT_EQ(narrowToSingle(3.4028235e38), std::numeric_limits<float>::max());
    EXPECT_EQ(outcome([] { return narrowToCurrency(922337203685478.0); }), "fails 6");
    EXPECT_EQ(narrowToCurrency(-922337203685477.5807), -922337203685477.5807);
}

TEST(Numbers, WrittenAsTheyAreShown) {
    const std::tuple<double, const char*, const char*> general[] = {
        {-0.0, "0", "0"},
        {-200.0 / 3, "-66.6666666666667", "-66.66666"},
        {9999999, "9999999", "9999999"},
        {999999999999999.9, "1E+15", "1E+15"},
        {0.000025, "2.5E-05", "2.5E-05"},
    };
    for (const auto& [value, text, textOfFloat] : general) {
        EXPECT_EQ(generalText(value), text);
        EXPECT_EQ(generalText(static_cast<float>(value)), textOfFloat);
    }
    const std::tuple<double, int, double, const char*> fixed[] = {
        {9.995, 2, 9.99, "10.00"},
        {-2.5, 0, -2, "-2"},
        {-0.001, 2, 0, "0.00"},
        {1234567890123.5, 2, 1234567890123.5, "1234567890123.50"},
        {3.4e25, 2, 3.4e25, "34000000000000000000000000.00"},
        {0.0009, 2, 0, "0.00"},
        {0.25, 1, 0.2, "0.2"},
    };
    for (const auto& [value, places, rounded, text] : fixed) {
        EXPECT_EQ(roundHalfEven(value, places), rounded) << value;
        EXPECT_EQ(fixedText(value, places), text);
    }
    EXPECT_FALSE(std::signbit(roundHalfEven(-0.001, 2)));
}

// --- Dates -----------------------------------------------------------------------------------------------------------

// Texts in boxes and statements of a machine that writes German dates.
TEST(Dates, Reading) {
    const struct {
        const char* text;
        const char* iso;
        const char* typed = nullptr;  // what a user means who writes the day first; nothing where it is the same
    } rows[] = {
        {" 7 / 4 / 2003 ", "2003-07-04", "2003-04-07"},
        {"04. 07. 2003.", "2003-04-07", "2003-07-04"},
        {"7.13.2003", "2003-07-13"},
        {"13/5/J. 2003", "2003-05-13"},
        {"2003-07-04", "2003-07-04"},
        {"32-12-31", "1932-12-31"},
        {"1/1/100", "0100-01-01"},
        {"1/1/29", "2029-01-01"},
        {"31/1/30", "1930-01-31"},
        {"2/29/2000", "2000-02-29"},
        {"JULY 4, 2003", "2003-07-04"},
        {"4-Jan-03", "2003-01-04"},
        {"2003 Juni 4", "2003-06-04"},
        {"4 Mär 2003 J.", "2003-03-04"},
    };
    ShortDate german;
    german.pattern = "d. MMMM yyyy 'J'.";
    german.monthNames[5] = "Juni", german.shortMonthNames[2] = "Mär";
    const auto text = [](const std::optional<Date>& date) { return date ? isoText(*date) : "none"; };
    for (const auto& row : rows) {
        EXPECT_EQ(text(readDate(row.text, german)), row.iso) << row.text;
        EXPECT_EQ(text(readTypedDate(row.text, german)), row.typed ? row.typed : row.iso) << row.text;
    }
    for (const char* none : {"2/29/1900", "4 Jula 2003", "July 2003", "July 4 July 2003", "7/4", "7//4/2003",
                             "/7/4/2003", "7/4/2003/1", "13/13/2003", "0/4/2003", "7/4/20030", "7/4/02003",
                             "7/004/2003", "004/7/2003", "2003-13-01", "1/1/0050", "today"}) {
        EXPECT_EQ(text(readDate(none, german)), "none") << none;
        EXPECT_EQ(text(readTypedDate(none, german)), "none") << none;
    }
}

TEST(Dates, ShortText) {
    for (const auto& [pattern, text] : {std::pair{"MM/dd/yyyy", "07/04/2003"},
                                        {"d'.' MMMM, yyyy 'year", "4. July, 2003 year"},
                                        {"yyyy ''dd MMM", "2003 '04 Jul"}}) {
        ShortDate style;
        style.pattern = pattern;
        EXPECT_EQ(shortDateText({2003, 7, 4}, style), text);
    }
}

// --- Letters ---------------------------------------------------------------------------------------------------------

// The texts stand in order, with blanks between; those with bars between them are the same without case. The first is
// empty.
const char* const inOrder =
    "| 1/2 ½ 10 2 _ a_b|A_B ab|aB aesop|AESOP æsop|ÆSOP arger|ARGER ärger|ÄRGER|A\u0308rger art cafe café|CAFE\u0301 "
    "cafeteria istanbul|ISTANBUL|İSTANBUL|I\u0307stanbul ıstanbul lodz łódź|ŁÓDŹ lof m2 m²|M² m3 muñoz|MUÑOZ "
    "munro strasse|STRASSE|straße|STRAẞE strate zorn|ZORN σίσυφος|ΣΊΣΥΦΟΣ елка ёлка|ЁЛКА ель|ЕЛЬ "
    "가|\u1100\u1161 나 か が かく 中 \xC3 \xF0\x9F\x98\x80";

// Each text is compared with each: else a list by name shows its rows in a wrong place, or a search misses one.
TEST(Letters, StandInOrderWithoutCase) {
    std::vector<std::pair<std::string, int>> texts;
    std::istringstream places(inOrder);
    int place = 0;
    for (std::string group; places >> group; ++place) {
        std::istringstream same(group + '|');
        for (std::string text; std::getline(same, text, '|');) texts.emplace_back(text, place);
    }
    for (const auto& [a, placeOfA] : texts)
        for (const auto& [b, placeOfB] : texts) {
            const int order = std::clamp(placeOfA - placeOfB, -1, 1);
            EXPECT_EQ(std::clamp(compareWithoutCase(a, b), -1, 1), order) << a << " and " << b;
            EXPECT_EQ(withoutCase(a) == withoutCase(b), placeOfA == placeOfB) << a << " and " << b;
        }
}

}  // namespace
}  // namespace torvane
