#include "conversions/units.h"

#include <gtest/gtest.h>

#include <sstream>

namespace torvane {
namespace {

const Unit& unit(std::string_view category, std::string_view name) {
    for (const Category& one : categories())
        if (one.name == category)
            for (const Unit& found : one.units)
                if (found.name == name) return found;
    throw std::logic_error("no unit: " + std::string(name));
}

// The same amount in all units of a category.
TEST(Conversions, EqualAmounts) {
    const std::pair<const char*, const char*> rows[] = {
        {"Length",
         "Miles=1;Feet and inches=5280' 0\";Mils=63360000;Inches=63360;Feet=5280;Yards=1760;Rods=320;Chains=80;Miles=1;"
         "Millimeters=1609344;Centimeters=160934.4;Meters=1609.344;Kilometers=1.609344"},
        {"Area",
         "Square miles=1;Square inches=4014489600;Square feet=27878400;Square yards=3097600;"
         "Squares (100 sq ft)=278784;Acres=640;Square centimeters=25899881103.36;Square meters=2589988.110336;"
         "Hectares=258.9988110336"},
        {"Volume",
         "Cubic yards=1;Cubic inches=46656;Cubic feet=27;US fluid ounces=25852.6753246753;US pints=1615.79220779221;"
         "US quarts=807.896103896104;US gallons=201.974025974026;Milliliters=764554.857984;Liters=764.554857984;"
         "Cubic meters=0.764554857984"},
        {"Weight",
         "Long tons (2240 lb)=25;Ounces=896000;Pounds=56000;Hundredweights (100 lb)=560;Short tons (2000 lb)=28;"
         "Grams=25401172.72;Kilograms=25401.17272;Metric tons=25.40117272"},
        {"Temperature", "Fahrenheit=-459.67;Celsius=-273.15;Kelvin=0"},
        {"Temperature", "Celsius=0.1;Fahrenheit=32.18;Kelvin=273.25"},
        {"Pressure",
         "Kips per sq inch=1;Pounds per sq inch=1000;Pounds per sq foot=144000;Inches of water=27679.9047102031;"
         "Feet of water=2306.65872585026;Atmospheres=68.0459639098777;Bars=68.9475729316836;"
         "Pascals=6894757.29316836;Kilopascals=6894.75729316836;Megapascals=6.89475729316836"},
        {"Power",
         "Tons of cooling=1;BTU per hour=12000;Thousand BTU per hour=12;Horsepower=4.71617734706645;"
         "Watts=3516.85284206667;Kilowatts=3.51685284206667"},
        {"Flow",
         "Cubic feet per second=1;Cubic feet per minute=60;Gallons per minute=448.831168831169;"
         "Gallons per hour=26929.8701298701;Liters per second=28.316846592;Liters per minute=1699.01079552;"
         "Cubic meters per hour=101.9406477312"},
        {"Angle",
         "Turns=0.25;Degrees=90;Minutes of arc=5400;Seconds of arc=324000;Radians=1.5707963267949;Gradians=100"},
        {"Slope", "Degrees=45;Rise in 12=12;Percent=100;Ratio, rise to run=1:1"},
        {"Slope", "Percent=-12.5;Ratio, rise to run=-1:8;Rise in 12=-1.5"},
        {"Slope", "Percent=0;Ratio, rise to run=;Degrees=0"},
        {"Board feet",
         "Thousand board feet=1;Board feet=1000;Inches x inches x feet=1 x 12 x 1000;Feet of 1 x 4=3000;"
         "Feet of 1 x 6=2000;Feet of 1 x 8=1500;Feet of 2 x 4=1500;Feet of 2 x 6=1000;Feet of 2 x 8=750;"
         "Feet of 2 x 10=600;Feet of 2 x 12=500;Feet of 4 x 4=750;Feet of 6 x 6=333.333333333333;"
         "Cubic feet=83.3333333333333;Cubic meters=2.359737216"},
    };
    for (const auto& [category, amounts] : rows) {
        std::istringstream stream(amounts);
        const Unit* from = nullptr;
        std::string given;
        for (std::string name, text; std::getline(stream, name, '=') && std::getline(stream, text, ';');) {
            const Unit& to = unit(category, name);
            if (!from) {
                from = &to;
                given = text;
            }
            EXPECT_EQ(converted(given, *from, to), text) << given << " " << from->name << " in " << name;
        }
    }
}

// A text as a user may write it, and what it is in another unit; "" where it can't be understood.
TEST(Conversions, TextsOfUsers) {
    const struct {
        const char* category;
        const char* from;
        const char* text;
        const char* to;
        const char* result;
        ResultForm form = {};
    } rows[] = {
        {"Length", "Inches", " - 6-1/2 IN", "Inches", "-6.5"},
        {"Length", "Feet", "+ 12 3/4", "Feet", "12.75"},
        {"Length", "Inches", "12 ft", "Feet", "12"},
        {"Length", "Feet", "6 1/2\"", "Inches", "6.5"},
        {"Length", "Meters", "12 ft. 6 in.", "Inches", "150"},
        {"Length", "Inches", "12’ 5½”", "Inches", "149.5"},
        {"Length", "Feet", "12 6 1/2", "Inches", ""},
        {"Length", "Feet", "1,250.5 feet", "Feet", "1250.5"},
        {"Length", "Feet", "1,234,567", "Feet", "1234567"},
        {"Length", "Feet", "7,5", "Feet", ""},
        {"Length", "Feet", "0,250", "Feet", ""},
        {"Length", "Feet", "12 apples", "Feet", ""},
        {"Length", "Feet", "1 meter", "Meters", "1"},
        {"Area", "Square feet", "2 sq. yds.", "Square feet", "18"},
        {"Temperature", "Celsius", "212°F", "Celsius", "100"},
        {"Slope", "Rise in 12", "6/12", "Percent", "50"},
        {"Slope", "Percent", "6 in 12", "Percent", "50"},
        {"Board feet", "Board feet", "12 ft", "Board feet", ""},
        {"Board feet", "Inches x inches x feet", "2\" x 6\" x 14'", "Board feet", "14"},
        {"Board feet", "Inches x inches x feet", "2 by 6 by 14' 6\"", "Board feet", "14.5"},
        {"Board feet", "Inches x inches x feet", "2x6x14 6", "Board feet", ""},
        {"Length", "Feet", "1/0", "Inches", ""},
        {"Length", "Feet", "--1", "Inches", ""},
        {"Length", "Feet", "", "Inches", ""},
        {"Length", "Feet", "nan", "Inches", ""},
        {"Length", "Kilometers", "1e308", "Inches", ""},
        {"Area", "Square feet", "9 SqFt", "Square yards", "1"},
        {"Length", "Feet and inches", "12'-6-1/2", "Inches", "150.5"},
        {"Length", "Feet and inches", "12 ft 6.5 IN", "Inches", "150.5"},
        {"Length", "Feet and inches", "12 6 1/2", "Inches", "150.5"},
        {"Length", "Feet and inches", "12.5", "Inches", "150"},
        {"Length", "Feet and inches", "-7/8''", "Inches", "-0.875"},
        {"Length", "Feet and inches", "6\" 3", "Inches", ""},
        {"Length", "Feet and inches", "12' x", "Inches", ""},
        {"Length", "Inches", "-0.01", "Feet and inches", "0\""},
        {"Length", "Inches", "-6.5", "Feet and inches", "-6 1/2\""},
        {"Length", "Inches", "11.99", "Feet and inches", "1' 0\""},
        {"Length", "Inches", "12.0625", "Feet and inches", "1' 1/16\""},
        {"Length", "Inches", "10.3", "Feet and inches", "10 19/64\"", {.denominator = 64}},
        {"Length", "Inches", "1e16", "Feet and inches", ""},
        {"Slope", "Ratio, rise to run", "6 / 12", "Percent", "50"},
        {"Slope", "Ratio, rise to run", "-8", "Percent", "-12.5"},
        {"Slope", "Ratio, rise to run", "1:0", "Percent", ""},
        {"Slope", "Degrees", "30", "Rise in 12", "6.92820323027551"},
        {"Slope", "Degrees", "90", "Percent", ""},
        {"Board feet", "Inches x inches x feet", "5/4*6X8", "Board feet", "5"},
        {"Board feet", "Inches x inches x feet", "2 x 6", "Board feet", ""},
        {"Board feet", "Board feet", "20", "Inches x inches x feet", "2 x 6 x 20", {.replaced = "2 x 6 x 14"}},
        {"Board feet", "Board feet", "-20", "Inches x inches x feet", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(converted(row.text, unit(row.category, row.from), unit(row.category, row.to), row.form), row.result)
            << row.from << ": " << row.text;
}

}  // namespace
}  // namespace torvane
