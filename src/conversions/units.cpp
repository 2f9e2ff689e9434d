#include "conversions/units.h"

#include <cmath>

#include "conversions/measures.h"
#include "values/numbers.h"

namespace torvane {

namespace {

using enum Notation;

constexpr long double pi = 3.14159265358979323846L;

constexpr long double square(long double side) {
    return side * side;
}
constexpr long double cube(long double side) {
    return side * side * side;
}

// The international foot, pound and standard gravity, from which the rest follows exactly.
constexpr long double foot = 0.3048L;
constexpr long double inch = foot / 12;
constexpr long double yard = foot * 3;
constexpr long double mile = foot * 5280;
constexpr long double pound = 0.45359237L;
constexpr long double gravity = 9.80665L;
constexpr long double acre = 43560 * square(foot);
constexpr long double gallon = 231 * cube(inch);
constexpr long double psi = pound * gravity / square(inch);
constexpr long double inchOfWater = 1000 * gravity * inch;  // of 1000 kg per cubic meter

// In meters.
constexpr Unit lengths[] = {
    {"Feet and inches", "", inch, FeetInches, 0, "12' 6 1/2\""},
    {"Inches", "in", inch},
    {"Feet", "ft", foot},
    {"Yards", "yd", yard},
    {"Rods", "rd", foot * 16.5L},
    {"Chains", "ch", foot * 66},
    {"Miles", "mi", mile},
    {"Millimeters", "mm", 0.001L},
    {"Centimeters", "cm", 0.01L},
    {"Meters", "m", 1},
    {"Kilometers", "km", 1000},
};

// In square meters.
constexpr Unit areas[] = {
    {"Square inches", "sq in", square(inch)},
    {"Square feet", "sq ft", square(foot)},
    {"Square yards", "sq yd", square(yard)},
    {"Squares (100 sq ft)", "sq", square(foot) * 100},
    {"Acres", "ac", acre},
    {"Square miles", "sq mi", square(mile)},
    {"Square centimeters", "sq cm", 0.0001L},
    {"Square meters", "sq m", 1},
    {"Hectares", "ha", 10000},
};

// In cubic meters.
constexpr Unit volumes[] = {
    {"Cubic inches", "cu in", cube(inch)},
    {"Cubic feet", "cu ft", cube(foot)},
    {"Cubic yards", "cu yd", cube(yard)},
    {"US fluid ounces", "fl oz", gallon / 128},
    {"US pints", "pt", gallon / 8},
    {"US quarts", "qt", gallon / 4},
    {"US gallons", "gal", gallon},
    {"Milliliters", "ml", 0.000001L},
    {"Liters", "l", 0.001L},
    {"Cubic meters", "cu m", 1},
};

// In kilograms.
constexpr Unit weights[] = {
    {"Ounces", "oz", pound / 16},
    {"Pounds", "lb", pound},
    {"Hundredweights (100 lb)", "cwt", pound * 100},
    {"Short tons (2000 lb)", "ton", pound * 2000},
    {"Long tons (2240 lb)", "long ton", pound * 2240},
    {"Grams", "g", 0.001L},
    {"Kilograms", "kg", 1},
    {"Metric tons", "t", 1000},
};

// In degrees Celsius.
constexpr Unit temperatures[] = {
    {"Fahrenheit", "F", 5.0L / 9, Temperature, 32},
    {"Celsius", "C", 1, Temperature},
    {"Kelvin", "K", 1, Temperature, 273.15},
};

// In pascals.
constexpr Unit pressures[] = {
    {"Pounds per sq inch", "psi", psi},
    {"Pounds per sq foot", "psf", psi / 144},
    {"Kips per sq inch", "ksi", psi * 1000},
    {"Inches of water", "in", inchOfWater},
    {"Feet of water", "ft", inchOfWater * 12},
    {"Atmospheres", "atm", 101325},
    {"Bars", "bar", 100000},
    {"Pascals", "Pa", 1},
    {"Kilopascals", "kPa", 1000},
    {"Megapascals", "MPa", 1000000},
};

// In degrees.
constexpr Unit angles[] = {
    {"Degrees", "°", 1},          {"Minutes of arc", "'", 1.0L / 60}, {"Seconds of arc", "\"", 1.0L / 3600},
    {"Radians", "rad", 180 / pi}, {"Gradians", "gon", 0.9L},          {"Turns", "", 360},
};

// In rise over run.
constexpr Unit slopes[] = {
    {"Rise in 12", "", 1.0L / 12},
    {"Percent", "%", 0.01L},
    {"Degrees", "°", pi / 180, Angle},
    {"Ratio, rise to run", "", 1, Ratio, 0, "1:4"},
};

constexpr Unit feetOf(std::string_view name, int thickness, int width) {
    return {name, "ft", thickness * width / 12.0L};
}
// In board feet; sizes are nominal.
constexpr Unit lumber[] = {
    {"Board feet", "bf", 1},
    {"Inches x inches x feet", "", 1, Lumber, 0, "2 x 6 x 14"},
    feetOf("Feet of 1 x 4", 1, 4),
    feetOf("Feet of 1 x 6", 1, 6),
    feetOf("Feet of 1 x 8", 1, 8),
    feetOf("Feet of 2 x 4", 2, 4),
    feetOf("Feet of 2 x 6", 2, 6),
    feetOf("Feet of 2 x 8", 2, 8),
    feetOf("Feet of 2 x 10", 2, 10),
    feetOf("Feet of 2 x 12", 2, 12),
    feetOf("Feet of 4 x 4", 4, 4),
    feetOf("Feet of 6 x 6", 6, 6),
    {"Thousand board feet", "mbf", 1000},
    {"Cubic feet", "cu ft", 12},
    {"Cubic meters", "cu m", 12 / cube(foot)},
};

constexpr Category all[] = {
    {"Length", lengths, 0, 9}, {"Area", areas, 1, 7},         {"Volume", volumes, 2, 9},
    {"Weight", weights, 1, 6}, {"Temperature", temperatures}, {"Pressure", pressures, 0, 8},
    {"Angle", angles, 0, 3},   {"Slope", slopes, 0, 2},       {"Board feet", lumber, 1, 0},
};

// In the base unit.
std::optional<long double> read(std::string_view text, const Unit& unit) {
    const auto times = [&unit](std::optional<double> value) {
        return value ? std::optional((static_cast<long double>(*value) - unit.zero) * unit.factor) : std::nullopt;
    };
    switch (unit.notation) {
        case Number:
        case Temperature:
            return times(readNumber(text, unit.symbol));
        case FeetInches:
            return times(readFeetInches(text));
        case Ratio:
            return times(readRatio(text));
        case Angle: {
            const auto degrees = readNumber(text, unit.symbol);
            if (!degrees || std::abs(*degrees) >= 90) return std::nullopt;
            return std::tan(*times(degrees));
        }
        case Lumber: {
            const auto piece = readPiece(text);
            return times(piece ? std::optional(piece->boardFeet()) : std::nullopt);
        }
    }
    return std::nullopt;
}

std::string write(long double amount, const Unit& unit, const ResultForm& form) {
    const auto value = static_cast<double>(amount / unit.factor + unit.zero);
    switch (unit.notation) {
        case Temperature:
            // Beside the zero of a scale the last digits of the text are noise.
            return writeNumber(roundHalfEven(value, 10));
        case FeetInches:
            return writeFeetInches(value, form.denominator);
        case Angle:
            return writeNumber(static_cast<double>(std::atan(amount) / unit.factor));
        case Ratio:
            return writeRatio(value);
        case Lumber:
            return writePiece(value, readPiece(form.replaced).value_or(Piece{}));
        case Number:
            break;
    }
    return writeNumber(value);
}

}  // namespace

std::span<const Category> categories() {
    return all;
}

std::string converted(std::string_view text, const Unit& from, const Unit& to, const ResultForm& form) {
    const auto amount = read(text, from);
    return amount ? write(*amount, to, form) : std::string();
}

}  // namespace torvane
