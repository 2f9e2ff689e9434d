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

const std::string nines(400, '9');
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

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
    const std::string most(308, '9');
    const std::pair<std::string, double> rows[] = {
        {"12abc", 12},
        {" \t\r\n1 2", 12},
        {"- 5", -5},
        {"7,5", 7},
        {"-.5", -0.5},
        {"1 E + 3", 1000},
        {"-1e400", -1e40},
        {"1e+99999999999999999999", 1e99},
        {"1e-99999999999999999999", 0},
        {nines + "e-300", std::stod(nines + "e-300")},
        {"0." + std::string(400, '0') + "1e402", 10},
        {std::string(1'000'000, '9'), std::stod(most)},
        {std::string("1\0002", 3), 1},
    };
    for (const auto& [text, value] : rows) EXPECT_EQ(lenientNumber(text), value) << text.substr(0, 40);
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
        {" 12\t", "12", "12", "12"},
        {"+.5", "0.5", "0", "0"},
        {"-1.5e0", "-1.5", "-2", "-2"},
        {"32767.5", "32767.5", "fails 6", "32768"},
        {"-32768.5", "-32768.5", "-32768", "-32768"},
        {"2147483647.5", "2147483647.5", "fails 6", "fails 6"},
        {"-2147483648", "-2147483648", "fails 6", "-2147483648"},
        {"-1e999", "fails 6", "fails 6", "fails 6"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(outcome([&] { return strictDouble(row.text); }), row.asDouble);
        EXPECT_EQ(outcome([&] { return strictInt16(row.text); }), row.asInt16);
        EXPECT_EQ(outcome([&] { return strictInt32(row.text); }), row.asInt32);
        EXPECT_EQ(isNumeric(row.text), *row.asDouble != 'f');
    }
    for (const char* text : {"", "  ", "12abc", "1 2", "- 5", "7,5", "1e", ".", "nan", "0x10", "1e3 x"}) {
        EXPECT_EQ(outcome([&] { return strictDouble(text); }), "fails 13") << text;
        EXPECT_FALSE(isNumeric(text)) << text;
    }
}

TEST(Numbers, NarrowingRefusesWhatDoesNotFit) {
    for (const double value : {infinite, -infinite, undefined}) {
        EXPECT_EQ(outcome([&] { return narrowToInt16(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToSingle(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToCurrency(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return std::int64_t(fixedText(value, 2).size()); }), "fails 6");
    }
    EXPECT_EQ(outcome([] { return narrowToSingle(3.4028236e38); }), "fails 6");
    EXPECT_EQ(narrowToSingle(3.4028235e38), std::numeric_limits<float>::max());
    EXPECT_FALSE(std::signbit(narrowToSingle(-1e-60)));
    EXPECT_EQ(narrowToCurrency(1.00005), 1.0001);  // above the half in binary
    EXPECT_EQ(narrowToCurrency(-922337203685477.5), -922337203685477.5);
    EXPECT_EQ(outcome([] { return narrowToCurrency(922337203685478.0); }), "fails 6");
    EXPECT_EQ(decimalOf(250000.1F), 250000.1);
}

TEST(Numbers, GeneralText) {
    const std::tuple<double, const char*, const char*> rows[] = {
        {-0.0, "0", "0"},
        {0.1 + 0.2, "0.3", "0.3"},
        {-200.0 / 3, "-66.6666666666667", "-66.66666"},
        {9999999, "9999999", "9999999"},
        {999999999999999.9, "1E+15", "1E+15"},
        {-1.5e15, "-1.5E+15", "-1.5E+15"},
        {0.000025, "2.5E-05", "2.5E-05"},
    };
    for (const auto& [value, text, textOfFloat] : rows) {
        EXPECT_EQ(generalText(value), text);
        EXPECT_EQ(generalText(static_cast<float>(value)), textOfFloat);
    }
}

TEST(Numbers, RoundingAndFixedText) {
    const std::tuple<double, int, double, const char*> rows[] = {
        {2.675, 2, 2.67, "2.68"},
        {0.0049, 2, 0, "0.00"},
        {-2.5, 0, -2, "-2"},
        {-0.001, 2, 0, "0.00"},
        {-0.005, 2, -0.01, "0.00"},
        {5e-324, 2, 0, "0.00"},
        {1234.5, 2, 1234.5, "1234.50"},
        {3.4e25, 2, 3.4e25, "34000000000000000000000000.00"},
    };
    for (const auto& [value, places, rounded, text] : rows) {
        EXPECT_EQ(roundHalfEven(value, places), rounded) << value;
        EXPECT_EQ(fixedText(value, places), text);
    }
    EXPECT_FALSE(std::signbit(roundHalfEven(-0.001, 2)));
    EXPECT_EQ(fixedText(1.7976931348623157e308, 2).size(), 312U);
}

TEST(Values, Conversions) {
    const struct {
        Value value;
        const char* text;
        const char* number;
        const char* int16;
    } rows[] = {
        {Null{}, "", "fails 94", "fails 94"},
        {std::string(" 2.5 "), " 2.5 ", "2.5", "2"},
        {std::string(), "", "fails 13", "fails 13"},
        {0.1 + 0.2, "0.3", "0.3", "0"},
        {12.5F, "12.5", "12.5", "12"},
        {std::int64_t{-32769}, "-32769", "-32769", "fails 6"},
        {Date{2003, 7, 4}, "7/4/2003", "fails 13", "fails 13"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(textOrEmpty(row.value), row.text);
        EXPECT_EQ(outcome([&] { return toDouble(row.value); }), row.number) << row.text;
        EXPECT_EQ(outcome([&] { return toInt16(row.value); }), row.int16) << row.text;
        const bool null = isNull(row.value);
        EXPECT_EQ(outcome([&] { return singleOrZero(row.value); }),
                  null ? "0" : outcome([&] { return toSingle(row.value); }))
            << row.text;
        EXPECT_EQ(outcome([&] { return int16OrZero(row.value); }), null ? "0" : row.int16) << row.text;
        EXPECT_EQ(outcome([&] { return int32OrZero(row.value); }),
                  null ? "0" : outcome([&] { return toInt32(row.value); }))
            << row.text;
    }
    EXPECT_EQ(outcome([] { return double(toSingle(0.1)); }), "0.100000001490116");
    EXPECT_EQ(outcome([] { return toInt32(std::int64_t{1} << 31); }), "fails 6");
    for (const Value& date : {Value(std::string("2003-07-04")), Value(Date{2003, 7, 4})})
        EXPECT_EQ(toDate(date), (Date{2003, 7, 4}));
    for (const Value& none : {Value(Null{}), Value(37806.0), Value(std::string())})
        EXPECT_THROW(toDate(none), RuntimeFailure);
}

}  // namespace
}  // namespace torvane
