#include "values/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "values/failure.h"

namespace torvane {
namespace {

const std::string nines(400, '9');
const std::string million(1'000'000, '9');
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
    const struct {
        std::string text;
        double value;
    } rows[] = {
        {"", 0},
        {"12abc", 12},
        {"1 2", 12},
        {" \t\r\n 7", 7},
        {"- 5", -5},
        {"+5", 5},
        {"--5", 0},
        {"+-5", 0},
        {"7,5", 7},
        {"1.2.3", 1.2},
        {"-.5", -0.5},
        {"5.", 5},
        {"-.", 0},
        {"inf", 0},
        {"1 E + 3", 1000},
        {"2.5e-3x", 0.0025},
        {"1e+", 1},
        {"0x10", 0},
        {"-1e400", -1e40},
        {"1e+99999999999999999999", 1e99},
        {"1e-99999999999999999999", 0},
        {nines + "e5", std::stod(std::string(308, '9'))},
        {nines + "e-300", std::stod(nines + "e-300")},
        {"0." + std::string(400, '0') + "1e402", 10},
        {million, std::stod(std::string(308, '9'))},
        {"1e" + million, 1e99},
        {"9007199254740993.00001", 9007199254740994.0},
        {std::string("1\0002", 3), 1},
    };
    for (const auto& row : rows) EXPECT_EQ(lenientNumber(row.text), row.value) << row.text.substr(0, 40);
    EXPECT_FALSE(std::signbit(lenientNumber("-0")));
    EXPECT_FALSE(std::signbit(lenientNumber("-1e-400")));
}

TEST(Numbers, StrictReading) {
    const struct {
        std::string text;
        const char* asDouble;
        const char* asInt16;
        const char* asInt32;
    } rows[] = {
        {" 12\t", "12", "12", "12"},
        {"+.5", "0.5", "0", "0"},
        {"-1.5e0", "-1.5", "-2", "-2"},
        {"2.5", "2.5", "2", "2"},
        {"32767.4", "32767.4", "32767", "32767"},
        {"32767.5", "32767.5", "fails 6", "32768"},
        {"-32768.5", "-32768.5", "-32768", "-32768"},
        {"-32769", "-32769", "fails 6", "-32769"},
        {"2147483647.5", "2147483647.5", "fails 6", "fails 6"},
        {"-2147483648", "-2147483648", "fails 6", "-2147483648"},
        {"1e-400", "0", "0", "0"},
        {"-1e999", "fails 6", "fails 6", "fails 6"},
        {"  ", "fails 13", "fails 13", "fails 13"},
        {"12abc", "fails 13", "fails 13", "fails 13"},
        {"1 2", "fails 13", "fails 13", "fails 13"},
        {"7,5", "fails 13", "fails 13", "fails 13"},
        {"1e", "fails 13", "fails 13", "fails 13"},
        {"nan", "fails 13", "fails 13", "fails 13"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(outcome([&] { return strictDouble(row.text); }), row.asDouble);
        EXPECT_EQ(outcome([&] { return strictInt16(row.text); }), row.asInt16);
        EXPECT_EQ(outcome([&] { return strictInt32(row.text); }), row.asInt32);
        EXPECT_EQ(isNumeric(row.text), !std::string(row.asDouble).starts_with("fails"));
    }
}

TEST(Numbers, NarrowingRefusesWhatDoesNotFit) {
    for (const double value : {infinite, -infinite, undefined, 1e39}) {
        EXPECT_EQ(outcome([&] { return narrowToInt16(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToInt32(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToSingle(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return narrowToCurrency(value); }), "fails 6");
        EXPECT_EQ(outcome([&] { return generalText(finite(value)).size(); }), value == 1e39 ? "5" : "fails 6");
    }
    EXPECT_EQ(narrowToSingle(3.4028235e38), std::numeric_limits<float>::max());
    EXPECT_FALSE(std::signbit(narrowToSingle(-1e-60)));
    EXPECT_EQ(narrowToCurrency(1.00005), 1.0001);  // above the half in binary
    EXPECT_EQ(narrowToCurrency(0.03125), 0.0312);
    EXPECT_EQ(narrowToCurrency(-922337203685477.5), -922337203685477.5);
    EXPECT_EQ(outcome([] { return narrowToCurrency(922337203685478.0); }), "fails 6");
    EXPECT_EQ(decimalOf(250000.1F), 250000.1);
}

TEST(Numbers, GeneralText) {
    const struct {
        double value;
        const char* text;
        const char* ofFloat;
    } rows[] = {
        {-0.0, "0", "0"},
        {-0.25, "-0.25", "-0.25"},
        {0.1 + 0.2, "0.3", "0.3"},
        {2.0 / 3 * 100, "66.6666666666667", "66.66666"},
        {123456.78, "123456.78", "123456.8"},
        {9999999, "9999999", "9999999"},
        {1e7, "10000000", "1E+07"},
        {999999999999999, "999999999999999", "1E+15"},
        {999999999999999.9, "1E+15", "1E+15"},
        {-1.5e15, "-1.5E+15", "-1.5E+15"},
        {0.0001, "0.0001", "0.0001"},
        {0.00009999999999999999, "0.0001", "0.0001"},
        {0.000025, "2.5E-05", "2.5E-05"},
        {1.7976931348623157e308, "1.79769313486232E+308", nullptr},
        {5e-324, "4.94065645841247E-324", nullptr},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(generalText(row.value), row.text);
        if (row.ofFloat) {
            EXPECT_EQ(generalText(static_cast<float>(row.value)), row.ofFloat);
        }
    }
}

TEST(Numbers, RoundingAndFixedText) {
    const struct {
        double value;
        int places;
        double rounded;
        const char* text;
    } rows[] = {
        {2.675, 2, 2.67, "2.68"},
        {0.015, 2, 0.01, "0.02"},
        {0.996, 2, 1, "1.00"},
        {0.0049, 2, 0, "0.00"},
        {0.125, 2, 0.12, "0.12"},
        {0.375, 2, 0.38, "0.38"},
        {-2.5, 0, -2, "-2"},
        {3.5, 0, 4, "4"},
        {-0.001, 2, 0, "0.00"},
        {-0.005, 2, -0.01, "0.00"},
        {5e-324, 2, 0, "0.00"},
        {1234.5, 2, 1234.5, "1234.50"},
        {3.4e25, 2, 3.4e25, "34000000000000000000000000.00"},
        {0.1, 4, 0.1, "0.1000"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(roundHalfEven(row.value, row.places), row.rounded) << row.value;
        EXPECT_EQ(fixedText(row.value, row.places), row.text);
    }
    EXPECT_FALSE(std::signbit(roundHalfEven(-0.001, 2)));
    EXPECT_EQ(fixedText(1.7976931348623157e308, 2).size(), 312U);
    EXPECT_THROW(fixedText(undefined, 2), RuntimeFailure);
}

}  // namespace
}  // namespace torvane
