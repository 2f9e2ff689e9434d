#include "values/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "values/failure.h"

namespace torvane {
namespace {

const std::string nines(400, '9');
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

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
        {"7,5", 7},
        {"1.2.3", 1.2},
        {".5", 0.5},
        {"5.", 5},
        {".", 0},
        {"-.", 0},
        {"e5", 0},
        {"1e3", 1000},
        {"1 E + 3", 1000},
        {"2.5e-3x", 0.0025},
        {"1e", 1},
        {"1e+", 1},
        {"3e+x", 3},
        {"$5", 0},
        {"1e308", 1e308},
        {"1e400", 1e40},
        {"-1e400", -1e40},
        {"1e+99999999999999999999", 1e99},
        {"1e-400", 0},
        {"1e-99999999999999999999", 0},
        {"0e999", 0},
        {nines, std::stod(std::string(308, '9'))},
        {nines + "e5", std::stod(std::string(308, '9'))},
        {nines + "e-300", std::stod(nines + "e-300")},
        {"1" + nines + ".5", std::stod("1" + std::string(307, '9'))},
        {"0." + std::string(400, '0') + "1e402", 10},
        {"0.1", 0.1},
        {"123456789012345678", 123456789012345678.0},
        {"9007199254740993", 9007199254740992.0},
        {"9007199254740993.00001", 9007199254740994.0},
        {std::string("1\0002", 3), 1},
    };
    for (const auto& row : rows) EXPECT_EQ(lenientNumber(row.text), row.value) << "text: " << row.text;
    EXPECT_FALSE(std::signbit(lenientNumber("-0")));
    EXPECT_FALSE(std::signbit(lenientNumber("-1e-400")));
}

TEST(Numbers, TextsOfAMillionDigits) {
    const std::string huge(1'000'000, '9');
    EXPECT_EQ(lenientNumber(huge), std::stod(std::string(308, '9')));
    EXPECT_EQ(lenientNumber("1e" + huge), 1e99);
}

// A row's result is a value or the number of a failure.
struct Strict {
    std::string text;
    double value;
    int failure = 0;
};

template <typename Read>
void checkStrict(const Strict& row, Read read) {
    try {
        const auto value = read(row.text);
        EXPECT_EQ(row.failure, 0) << "accepted: '" << row.text << "'";
        EXPECT_EQ(static_cast<double>(value), row.value) << "text: '" << row.text << "'";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), row.failure) << "text: '" << row.text << "'";
    }
}

TEST(Numbers, StrictDouble) {
    const Strict rows[] = {
        {"12", 12},      {" 12\t", 12},    {"-1.5", -1.5},   {"+.5", 0.5},     {"5.", 5},
        {"1e3", 1000},   {"1E-2", 0.01},   {"1e-400", 0},    {"", 0, 13},      {"  ", 0, 13},
        {"abc", 0, 13},  {"12abc", 0, 13}, {"1 2", 0, 13},   {"- 5", 0, 13},   {"7,5", 0, 13},
        {"1e", 0, 13},   {".", 0, 13},     {"1.2.3", 0, 13}, {"inf", 0, 13},   {"nan", 0, 13},
        {"0x10", 0, 13}, {"1e400", 0, 6},  {nines, 0, 6},    {"-1e999", 0, 6}, {"1e3 x", 0, 13},
    };
    for (const auto& row : rows) {
        checkStrict(row, strictDouble);
        EXPECT_EQ(isNumeric(row.text), row.failure == 0) << "text: '" << row.text << "'";
    }
}

TEST(Numbers, StrictNarrowConversions) {
    const Strict int16[] = {
        {"32767", 32767}, {"32767.4", 32767}, {"32767.5", 0, 6}, {"-32768.5", -32768}, {"-32769", 0, 6}, {"2.5", 2},
        {"3.5", 4},       {"-0.5", 0},        {"1e4", 10000},    {"1e400", 0, 6},      {"", 0, 13},      {"x", 0, 13},
    };
    for (const auto& row : int16) checkStrict(row, strictInt16);
    const Strict int32[] = {
        {"2147483647", 2147483647}, {"2147483647.5", 0, 6}, {"-2147483648", -2147483648.0}, {"0.5", 0}, {"1.5", 2}};
    for (const auto& row : int32) checkStrict(row, strictInt32);
    const Strict single[] = {{"0.1", static_cast<double>(0.1F)},
                             {"1e38", static_cast<double>(1e38F)},
                             {"3.4028235e38", static_cast<double>(std::numeric_limits<float>::max())},
                             {"3.5e38", 0, 6},
                             {"1e-60", 0},
                             {"?", 0, 13}};
    for (const auto& row : single)
        checkStrict(row, [](const std::string& text) { return narrowToSingle(strictDouble(text)); });
}

TEST(Numbers, NarrowingRefusesWhatDoesNotFit) {
    for (const double value : {infinite, -infinite, undefined}) {
        EXPECT_THROW(narrowToInt16(value), RuntimeFailure);
        EXPECT_THROW(narrowToInt32(value), RuntimeFailure);
        EXPECT_THROW(narrowToSingle(value), RuntimeFailure);
        EXPECT_THROW(narrowToCurrency(value), RuntimeFailure);
        EXPECT_THROW(finite(value), RuntimeFailure);
    }
    EXPECT_EQ(narrowToCurrency(1.00005), 1.0001);  // above the half in binary
    EXPECT_EQ(narrowToCurrency(0.03125), 0.0312);
    EXPECT_EQ(narrowToCurrency(-922337203685477.5), -922337203685477.5);
    EXPECT_THROW(narrowToCurrency(922337203685478.0), RuntimeFailure);
}

TEST(Numbers, GeneralTextOfDouble) {
    const struct {
        double value;
        const char* text;
    } rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {0.5, "0.5"},
        {-0.25, "-0.25"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3 * 100, "66.6666666666667"},
        {123456.78, "123456.78"},
        {1200, "1200"},
        {1e14, "100000000000000"},
        {123456789012345.6, "123456789012346"},
        {999999999999999, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1e15, "1E+15"},
        {1.5e15, "1.5E+15"},
        {-1.25e100, "-1.25E+100"},
        {1.7976931348623157e308, "1.79769313486232E+308"},
        {0.0001, "0.0001"},
        {0.000123456789012345678, "0.000123456789012346"},
        {0.000025, "2.5E-05"},
        {0.00009999999999999999, "0.0001"},
        {5e-324, "4.94065645841247E-324"},
        {2.675, "2.675"},
    };
    for (const auto& row : rows) EXPECT_EQ(generalText(row.value), row.text);
    EXPECT_THROW(generalText(infinite), RuntimeFailure);
}

TEST(Numbers, GeneralTextOfFloat) {
    const struct {
        float value;
        const char* text;
    } rows[] = {
        {0.0F, "0"},
        {-0.0F, "0"},
        {0.1F, "0.1"},
        {12.35F, "12.35"},
        {123456.78F, "123456.8"},
        {9999999.0F, "9999999"},
        {1e7F, "1E+07"},
        {12345678.5F, "1.234568E+07"},
        {-1e10F, "-1E+10"},
        {0.0001F, "0.0001"},
        {0.000025F, "2.5E-05"},
        {3.4028235e38F, "3.402823E+38"},
        {16777216.0F, "1.677722E+07"},
    };
    for (const auto& row : rows) EXPECT_EQ(generalText(row.value), row.text);
    EXPECT_EQ(generalText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(generalText(std::int16_t{-7}), "-7");
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
        {1.005, 2, 1, "1.00"},
        {0.0149, 2, 0.01, "0.01"},
        {0.996, 2, 1, "1.00"},
        {0.0051, 2, 0.01, "0.01"},
        {3.4e25, 2, 3.4e25, "34000000000000000000000000.00"},
        {0.125, 2, 0.12, "0.12"},
        {0.375, 2, 0.38, "0.38"},
        {2.5, 0, 2, "2"},
        {3.5, 0, 4, "4"},
        {-2.5, 0, -2, "-2"},
        {0.5, 0, 0, "0"},
        {-0.001, 2, 0, "0.00"},
        {-0.005, 2, -0.01, "0.00"},
        {1234.5, 2, 1234.5, "1234.50"},
        {1e21, 2, 1e21, "1000000000000000000000.00"},
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

TEST(Failures, TextsByNumber) {
    for (const auto& [number, text] : {std::pair{5, "Invalid call"},
                                       {6, "Overflow"},
                                       {9, "Subscript out of range"},
                                       {11, "Division by zero"},
                                       {13, "Type mismatch"},
                                       {53, "File not found"},
                                       {91, "Object not set"},
                                       {94, "Null where a value is needed"}}) {
        try {
            fail(static_cast<Failure>(number));
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), number);
            EXPECT_EQ(failure.text(), text);
        }
    }
}

}  // namespace
}  // namespace torvane
