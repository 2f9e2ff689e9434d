#include "values/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include "values/failure.h"
#include "values/value.h"

namespace torvane {
namespace {

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
    const struct {
        const char* text;
        const char* asDouble;
        const char* asInt16;
        const char* asInt32;
    } rows[] = {
        {" -1.5e0\t", "-1.5", "-2", "-2"},
        {"32767.5", "32767.5", "fails 6", "32768"},
        {"-32768.5", "-32768.5", "-32768", "-32768"},
        {"2147483647.5", "2147483647.5", "fails 6", "fails 6"},
        {"-2147483648", "-2147483648", "fails 6", "-2147483648"},
        {"-1e999", "fails 6", "fails 6", "fails 6"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(outcome([&] { return strictDouble(row.text); }), row.asDouble);
        EXPECT_EQ(outcome([&] { return strictInt16(row.text); }), row.asInt16) << row.text;
        EXPECT_EQ(outcome([&] { return strictInt32(row.text); }), row.asInt32) << row.text;
        EXPECT_EQ(isNumeric(row.text), *row.asDouble != 'f') << row.text;
    }
    for (const char* text : {"", "  ", "12abc", "1 2", "- 5", "7,5", "1e", ".", "nan", "0x10"}) {
        EXPECT_EQ(outcome([&] { return strictDouble(text); }), "fails 13") << text;
        EXPECT_FALSE(isNumeric(text)) << text;
    }
}

TEST(Numbers, NarrowingRefusesWhatDoesNotFit) {
    for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(outcome([&] { return narrowToInt16(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToSingle(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToCurrency(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return fixedText(value, 2).size(); }), "fails 6");
    }
    EXPECT_EQ(outcome([] { return narrowToSingle(3.4028236e38); }), "fails 6");
    EXPECT_EQ(narrowToSingle(3.4028235e38), std::numeric_limits<float>::max());
    EXPECT_EQ(narrowToCurrency(1.00005), 1.0001) << "above the half in binary";
    EXPECT_EQ(narrowToCurrency(-922337203685477.5), -922337203685477.5);
    EXPECT_EQ(outcome([] { return narrowToCurrency(922337203685478.0); }), "fails 6");
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
        {2.675, 2, 2.67, "2.68"}, {2.665, 2, 2.67, "2.66"},       {-0.001, 2, 0, "0.00"},
        {5e-324, 2, 0, "0.00"},   {1234.5, 2, 1234.5, "1234.50"}, {3.4e25, 2, 3.4e25, "34000000000000000000000000.00"},
    };
    for (const auto& [value, places, rounded, text] : fixed) {
        EXPECT_EQ(roundHalfEven(value, places), rounded) << value;
        EXPECT_EQ(fixedText(value, places), text);
    }
    EXPECT_FALSE(std::signbit(roundHalfEven(-0.001, 2)));
}

TEST(Values, Conversions) {
    const std::tuple<Value, const char*, const char*, const char*> rows[] = {
        {Null{}, "", "fails 94", "fails 94"},
        {std::string(" 2.5 "), " 2.5 ", "2.5", "2"},
        {std::string(), "", "fails 13", "fails 13"},
        {12.5F, "12.5", "12.5", "12"},
        {std::int64_t{-32769}, "-32769", "-32769", "fails 6"},
        {Date{2003, 7, 4}, "7/4/2003", "fails 13", "fails 13"},
    };
    for (const auto& [value, text, asDouble, asInt16] : rows) {
        EXPECT_EQ(textOrEmpty(value), text);
        EXPECT_EQ(outcome([&, &held = value] { return toDouble(held); }), asDouble) << text;
        EXPECT_EQ(outcome([&, &held = value] { return toInt16(held); }), asInt16) << text;
    }
    EXPECT_EQ(outcome([] { return toInt32(std::int64_t{1} << 31); }), "fails 6");
    EXPECT_EQ(singleOrZero(Null{}) + static_cast<float>(int16OrZero(Null{}) + int32OrZero(Null{})), 0);
    EXPECT_EQ(toDate(std::string("2003-07-04")), (Date{2003, 7, 4}));
    EXPECT_THROW(toDate(37806.0), RuntimeFailure) << "a number is no date";
}

}  // namespace
}  // namespace torvane
