#include "conversions/units.h"

#include <gtest/gtest.h>

namespace torvane {
namespace {

const Unit& unit(std::string_view category, std::string_view name) {
    for (const Category& one : categories())
        if (one.name == category)
            for (const Unit& found : one.units)
                if (found.name == name) return found;
    throw std::logic_error("no unit: " + std::string(name));
}

// A text in one unit, what it is in another; then that back, where `back` is given.
struct Row {
    const char* category;
    const char* from;
    const char* text;
    const char* to;
    const char* result;
    const char* back = nullptr;
};

void check(const Row& row) {
    const Unit& from = unit(row.category, row.from);
    const Unit& to = unit(row.category, row.to);
    EXPECT_EQ(converted(row.text, from, to), row.result) << row.from << ": " << row.text;
    if (!row.back) return;
    EXPECT_EQ(converted(row.result, to, from), row.back) << row.to << ": " << row.result;
}

TEST(Conversions, Units) {
    const Row rows[] = {
        {"Length", "Feet", "1", "Meters", "0.3048", "1"},
        {"Length", "Feet", "0.1", "Inches", "1.2", "0.1"},
        {"Length", "Inches", "6-1/2 in", "Millimeters", "165.1", "6.5"},
        {"Length", "Miles", "1", "Rods", "320", "1"},
        {"Length", "Chains", "1", "Yards", "22", "1"},
        {"Length", "Kilometers", "1", "Centimeters", "100000", "1"},
        {"Area", "Square feet", "43560", "Acres", "1", "43560"},
        {"Area", "Squares (100 sq ft)", "3", "Square yards", "33.3333333333333"},
        {"Area", "Square miles", "1", "Acres", "640", "1"},
        {"Area", "Square inches", "1", "Square centimeters", "6.4516", "1"},
        {"Area", "Hectares", "1", "Square meters", "10000", "1"},
        {"Volume", "Cubic yards", "1", "Cubic feet", "27", "1"},
        {"Volume", "US gallons", "1", "Cubic inches", "231", "1"},
        {"Volume", "US gallons", "1", "Liters", "3.785411784", "1"},
        {"Volume", "US quarts", "1", "US pints", "2", "1"},
        {"Volume", "US fluid ounces", "128", "US gallons", "1", "128"},
        {"Volume", "Cubic meters", "1", "Milliliters", "1000000", "1"},
        {"Weight", "Pounds", "1", "Kilograms", "0.45359237", "1"},
        {"Weight", "Short tons (2000 lb)", "1", "Long tons (2240 lb)", "0.892857142857143"},
        {"Weight", "Hundredweights (100 lb)", "1", "Ounces", "1600", "1"},
        {"Weight", "Metric tons", "1", "Grams", "1000000", "1"},
        {"Temperature", "Fahrenheit", "212 F", "Celsius", "100", "212"},
        {"Temperature", "Fahrenheit", "-459.67", "Kelvin", "0", "-459.67"},
        {"Temperature", "Celsius", "0.1", "Kelvin", "273.25", "0.1"},
        {"Pressure", "Pounds per sq inch", "1", "Pascals", "6894.75729316836", "1"},
        {"Pressure", "Kips per sq inch", "1", "Pounds per sq foot", "144000", "1"},
        {"Pressure", "Atmospheres", "1", "Bars", "1.01325", "1"},
        {"Pressure", "Feet of water", "1", "Kilopascals", "2.98906692", "1"},
        {"Pressure", "Inches of water", "1", "Megapascals", "0.00024908891"},
        {"Angle", "Degrees", "180", "Radians", "3.14159265358979"},
        {"Angle", "Minutes of arc", "30", "Seconds of arc", "1800", "30"},
        {"Angle", "Turns", "0.25", "Gradians", "100", "0.25"},
        {"Slope", "Rise in 12", "6", "Percent", "50", "6"},
        {"Slope", "Rise in 12", "12", "Degrees", "45", "12"},
        {"Slope", "Degrees", "30", "Rise in 12", "6.92820323027551", "30"},
        {"Slope", "Ratio, rise to run", "1:4", "Percent", "25", "1:4"},
        {"Slope", "Ratio, rise to run", "6/12", "Rise in 12", "6", "1:2"},
        {"Slope", "Ratio, rise to run", "-8", "Percent", "-12.5", "-1:8"},
        {"Slope", "Percent", "0", "Ratio, rise to run", ""},
        {"Slope", "Degrees", "90", "Percent", ""},
        {"Board feet", "Inches x inches x feet", "2 x 6X14", "Board feet", "14", "1 x 12 x 14"},
        {"Board feet", "Inches x inches x feet", "5/4*6*8", "Board feet", "5"},
        {"Board feet", "Inches x inches x feet", "2 x 6", "Board feet", ""},
        {"Board feet", "Feet of 2 x 4", "12", "Board feet", "8", "12"},
        {"Board feet", "Thousand board feet", "1", "Cubic feet", "83.3333333333333"},
        {"Board feet", "Cubic meters", "1", "Board feet", "423.776000657863"},
        // Not wholly understood, or beyond all numbers.
        {"Length", "Feet", "12 ft", "Inches", "144"},
        {"Length", "Inches", "12 ft", "Feet", ""},
        {"Length", "Feet", "1,250", "Inches", ""},
        {"Length", "Feet", "1/0", "Inches", ""},
        {"Length", "Feet", "", "Inches", ""},
        {"Length", "Feet", "nan", "Inches", ""},
        {"Length", "Kilometers", "1e308", "Inches", ""},
    };
    for (const Row& row : rows) check(row);
    const Unit& piece = unit("Board feet", "Inches x inches x feet");
    EXPECT_EQ(converted("20", unit("Board feet", "Board feet"), piece, {.replaced = "2 x 6 x 14"}), "2 x 6 x 20");
}

TEST(Conversions, FeetAndInches) {
    const Row rows[] = {
        {"Length", "Feet and inches", "12' 6 1/2\"", "Inches", "150.5", "12' 6 1/2\""},
        {"Length", "Feet and inches", "12'-6-1/2", "Inches", "150.5"},
        {"Length", "Feet and inches", "12 ft 6.5 IN", "Inches", "150.5"},
        {"Length", "Feet and inches", "12 6 1/2", "Inches", "150.5"},
        {"Length", "Feet and inches", "12.5", "Inches", "150", "12' 6\""},
        {"Length", "Feet and inches", "6 1/2''", "Inches", "6.5", "6 1/2\""},
        {"Length", "Feet and inches", "-7/8\"", "Inches", "-0.875", "-7/8\""},
        {"Length", "Feet and inches", "6\" 3", "Inches", ""},
        {"Length", "Feet and inches", "12' x", "Inches", ""},
        {"Length", "Inches", "0", "Feet and inches", "0\"", "0"},
        {"Length", "Inches", "-0.01", "Feet and inches", "0\""},
        {"Length", "Inches", "11.99", "Feet and inches", "1' 0\"", "12"},
        {"Length", "Inches", "0.0625", "Feet and inches", "1/16\""},
        {"Length", "Inches", "12.25", "Feet and inches", "1' 1/4\"", "12.25"},
        {"Length", "Inches", "1e16", "Feet and inches", ""},
    };
    for (const Row& row : rows) check(row);
    EXPECT_EQ(converted("10.3", unit("Length", "Inches"), unit("Length", "Feet and inches"), {.denominator = 64}),
              "10 19/64\"");
}

}  // namespace
}  // namespace torvane
