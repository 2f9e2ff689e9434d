#include "conversions/units.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>

namespace torvane {
namespace {

const Unit& unit(std::string_view category, std::string_view name) {
    return *std::ranges::find(std::ranges::find(categories(), category, &Category::name)->units, name, &Unit::name);
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
        {"Temperature", "Fahrenheit=32.1;Celsius=0.0555555556"},
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
        {"Slope", "Percent=100;Rise in 12=12;Degrees=45;Ratio, rise to run=1:1"},
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
        std::string name, given;
        std::getline(std::getline(stream, name, '='), given, ';');
        const Unit& from = unit(category, name);
        for (std::string text; std::getline(std::getline(stream, name, '='), text, ';');)
            EXPECT_EQ(converted(given, from, unit(category, name)), text)
                << given << " " << from.name << " in " << name;
    }
}

// Texts as users write them, and what they all are in another unit; "" where they can't be understood or written.
TEST(Conversions, TextsOfUsers) {
    const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
        {"Length", "Inches", "Inches", " - 6-1/2 IN;-6.5;- 5 3/2 in", "-6.5"},
        {"Length", "Feet", "Feet", "+ 12 3/4;51/4ft;12.75/1", "12.75"},
        {"Length", "Feet", "Feet", "1,234,567;1,234,567.0 feet;123,456,700/100", "1234567"},
        {"Length", "Meters", "Inches", "12 ft. 6 in.;12’ 6”;150\";12 ft, 6 in;12½-foot", "150"},
        {"Area", "Square feet", "Square feet", "2 sq. yds.;18;18 sf;2 Square yard", "18"},
        {"Temperature", "Celsius", "Celsius", "212°F;100", "100"},
        {"Length", "Feet", "Inches", "7,5;0,250;1250,000;,250;12 6 1/2;12 apples;1/0;--1;;nan", ""},
        {"Length", "Feet and inches", "Inches", "12'-6-1/2;12 ft 6.5 IN;12 6 1/2;150.5'';12' 6 1/2", "150.5"},
        {"Length", "Feet and inches", "Inches", "12.5;12 1/2 foot", "150"},
        {"Length", "Feet and inches", "Inches", "-7/8'';-7/8 inch", "-0.875"},
        {"Length", "Feet and inches", "Inches", "6\" 3;12' x", ""},
        {"Length", "Meters", "Feet and inches", "-0.01 in;0 in", "0\""},
        {"Length", "Inches", "Feet and inches", "-1.0625", "-1 1/16\""},
        {"Length", "Inches", "Feet and inches", "0.5", "1/2\""},
        {"Length", "Inches", "Feet and inches", "11.99;12", "1' 0\""},
        {"Length", "Kilometers", "Feet and inches", "1e308;1e12", ""},
        {"Slope", "Ratio, rise to run", "Percent", "6 / 12;1:2;2", "50"},
        {"Slope", "Ratio, rise to run", "Percent", "-8;-1:8", "-12.5"},
        {"Slope", "Ratio, rise to run", "Percent", "1:0;1:;:8;x", ""},
        {"Slope", "Rise in 12", "Percent", "6/12;6 in 12;6\" per foot;1:2;6;50%", "50"},
        {"Slope", "Degrees", "Rise in 12", "30", "6.92820323027551"},
        {"Slope", "Degrees", "Percent", "90;-90", ""},
        {"Board feet", "Inches x inches x feet", "Board feet", "5/4*6X8;1 1/4 x 6 x 8", "5"},
        {"Board feet", "Inches x inches x feet", "Board feet", "2 x 6;2 x 6 x 8 x;2x6x14 6;12 ft", ""},
        {"Board feet", "Inches x inches x feet", "Board feet",
         "2\" x 6\" x 14' 6\";2 by 6 by 14.5 ft;2x6x174\";14.5 bf", "14.5"},
        {"Board feet", "Board feet", "Inches x inches x feet", "-20", ""},
        {"Board feet", "Board feet", "Inches x inches x feet", "0", "1 x 12 x 0"},
        {"Board feet", "Feet of 2 x 4", "Board feet", "12' 6\";12.5;12.5 ft", "8.33333333333333"},
        {"Board feet", "Feet of 2 x 4", "Board feet", "12 6", ""},
    };
    for (const auto& [category, from, to, texts, result] : rows) {
        std::istringstream stream(texts);
        for (std::string text; std::getline(stream, text, ';');)
            EXPECT_EQ(converted(text, unit(category, from), unit(category, to)), result) << from << ": " << text;
    }
}

}  // namespace
}  // namespace torvane
