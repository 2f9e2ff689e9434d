#include "conversions/units.h"

#include <algorithm>
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
    {"Mils", "mil", inch / 1000},
    {"Inches", "\"|in|inch", inch},
    {"Feet", "'|ft|foot", foot},
    {"Yards", "yd|yds", yard},
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
    {"Square inches", "sq in|in2|sq inch", square(inch)},
    {"Square feet", "sq ft|sf|ft2|sq foot|sq feet", square(foot)},
    {"Square yards", "sq yd|sq yds|sy|yd2", square(yard)},
    {"Squares (100 sq ft)", "sq|squares", square(foot) * 100},
    {"Acres", "ac", acre},
    {"Square miles", "sq mi|sq miles", square(mile)},
    {"Square centimeters", "sq cm|cm2", 0.0001L},
    {"Square meters", "sq m|m2", 1},
    {"Hectares", "ha", 10000},
};

// In cubic meters.
constexpr Unit volumes[] = {
    {"Cubic inches", "cu in|in3", cube(inch)},
    {"Cubic feet", "cu ft|cf|ft3|cu feet", cube(foot)},
    {"Cubic yards", "cu yd|cu yds|cy|yd3|yd|yds|yards", cube(yard)},
    {"US fluid ounces", "fl oz|oz", gallon / 128},
    {"US pints", "pt|pints", gallon / 8},
    {"US quarts", "qt|quarts", gallon / 4},
    {"US gallons", "gal|gallons", gallon},
    {"Milliliters", "ml", 0.000001L},
    {"Liters", "l", 0.001L},
    {"Cubic meters", "cu m|m3", 1},
};

// In kilograms.
constexpr Unit weights[] = {
    {"Ounces", "oz", pound / 16},
    {"Pounds", "lb|lbs|#", pound},
    {"Hundredweights (100 lb)", "cwt|hundredweights", pound * 100},
    {"Short tons (2000 lb)", "ton|tons", pound * 2000},
    {"Long tons (2240 lb)", "long ton|long tons", pound * 2240},
    {"Grams", "g", 0.001L},
    {"Kilograms", "kg", 1},
    {"Metric tons", "t", 1000},
};

// In degrees Celsius.
constexpr Unit temperatures[] = {
    {"Fahrenheit", "F|°F|°|deg F", 5.0L / 9, Temperature, 32},
    {"Celsius", "C|°C|°|deg C", 1, Temperature},
    {"Kelvin", "K", 1, Temperature, 273.15},
};

// In pascals.
constexpr Unit pressures[] = {
    {"Pounds per sq inch", "psi|lb/sq in|lb/in2", psi},
    {"Pounds per sq foot", "psf|lb/sq ft|lb/ft2", psi / 144},
    {"Kips per sq inch", "ksi", psi * 1000},
    {"Inches of water", "in|\"|in wc|in wg|inch", inchOfWater},
    {"Feet of water", "ft|'|foot", inchOfWater * 12},
    {"Atmospheres", "atm", 101325},
    {"Bars", "bar", 100000},
    {"Pascals", "Pa", 1},
    {"Kilopascals", "kPa", 1000},
    {"Megapascals", "MPa", 1000000},
};

// In degrees.
constexpr Unit angles[] = {
    {"Degrees", "°|deg", 1},      {"Minutes of arc", "'", 1.0L / 60}, {"Seconds of arc", "\"", 1.0L / 3600},
    {"Radians", "rad", 180 / pi}, {"Gradians", "gon", 0.9L},          {"Turns", "", 360},
};

// In rise over run.
constexpr Unit slopes[] = {
    {"Rise in 12", "/12|:12|in 12|in|\"|in/ft|\"/ft|in per foot|\" per foot", 1.0L / 12},
    {"Percent", "%|percent", 0.01L},
    {"Degrees", "°|deg", pi / 180, Angle},
    {"Ratio, rise to run", "", 1, Ratio, 0, "1:4"},
};

constexpr Unit feetOf(std::string_view name, int thickness, int width) {
    return {name, "ft|'|foot|feet", thickness * width / 12.0L, Feet};
}
// In board feet; sizes are nominal.
constexpr Unit lumber[] = {
    {"Board feet", "bf|bd ft|board foot|fbm", 1},
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
    {"Cubic feet", "cu ft|ft3", 12},
    {"Cubic meters", "cu m|m3", 12 / cube(foot)},
};

// In watts.
constexpr long double btuPerHour = 1055.05585262L / 3600;  // of the international table
constexpr Unit powers[] = {
    {"BTU per hour", "BTU/h|BTU/hr|BTUH|BTU", btuPerHour},
    {"Thousand BTU per hour", "MBH", btuPerHour * 1000},
    {"Tons of cooling", "ton|tons", btuPerHour * 12000},
    {"Horsepower", "hp", 550 * foot* pound* gravity},
    {"Watts", "W", 1},
    {"Kilowatts", "kW", 1000},
};

// In cubic meters per second.
constexpr Unit flows[] = {
    {"Gallons per minute", "gpm|gal/min", gallon / 60},
    {"Gallons per hour", "gph|gal/h", gallon / 3600},
    {"Cubic feet per minute", "cfm|cu ft/min", cube(foot) / 60},
    {"Cubic feet per second", "cfs|cu ft/s", cube(foot)},
    {"Liters per second", "l/s", 0.001L},
    {"Liters per minute", "l/min", 0.001L / 60},
    {"Cubic meters per hour", "cu m/h|m3/h", 1.0L / 3600},
};

constexpr Category all[] = {
    {"Length", lengths, 0, 10}, {"Area", areas, 1, 7},         {"Volume", volumes, 2, 9},
    {"Weight", weights, 1, 6},  {"Temperature", temperatures}, {"Pressure", pressures, 0, 8},
    {"Power", powers, 0, 2},    {"Flow", flows, 0, 2},         {"Angle", angles, 0, 3},
    {"Slope", slopes, 0, 2},    {"Board feet", lumber, 1, 0},
};

// A number with one of the unit's words behind it, its name for many and for one among them. What may be a fraction
// without the word is none with it: 6/12 is a rise of 6 in 12.
std::optional<double> readWithWord(std::string_view text, const Unit& unit) {
    std::string_view one = unit.name;
    if (one.ends_with('s')) one.remove_suffix(1);
    for (const std::string_view name : {unit.name, one})
        if (const auto value = readNumber(text, name)) return value;
    for (std::string_view words = unit.words; !words.empty();) {
        const std::string_view word = words.substr(0, words.find('|'));
        if (const auto value = readNumber(text, word)) return value;
        words.remove_prefix(std::min(words.size(), word.size() + 1));
    }
    return std::nullopt;
}

// In the base unit. `bare`: the text may have no word or mark that tells the unit.
std::optional<long double> read(std::string_view text, const Unit& unit, bool bare) {
    const auto times = [&unit](std::optional<double> value) {
        return value ? std::optional((static_cast<long double>(*value) - unit.zero) * unit.factor) : std::nullopt;
    };
    const auto number = [&] {
        const auto value = readWithWord(text, unit);
        return value || !bare ? value : readNumber(text);
    };
    switch (unit.notation) {
        case Number:
        case Temperature:
            return times(number());
        case Feet: {
            const auto inches = number() ? std::nullopt : readFeetInches(text, false);
            return times(inches ? *inches / 12 : number());
        }
        case FeetInches:
            return times(readFeetInches(text, bare));
        case Ratio:
            return times(readRatio(text));
        case Angle: {
            const auto degrees = number();
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

// In the base unit. What is not an amount of the unit may tell another one of its category, but just one.
std::optional<long double> read(std::string_view text, const Unit& unit) {
    if (const auto amount = read(text, unit, true)) return amount;
    if (readNumber(text)) return std::nullopt;
    const auto holds = [&unit](const Category& category) {
        return std::ranges::any_of(category.units, [&unit](const Unit& one) { return &one == &unit; });
    };
    const auto differ = [](long double one, long double two) { return std::abs(one - two) > std::abs(one) * 1e-14L; };
    std::optional<long double> found;
    for (const Unit& other : std::ranges::find_if(all, holds)->units) {
        const auto amount = read(text, other, false);
        if (found && amount && differ(*found, *amount)) return std::nullopt;
        if (amount) found = amount;
    }
    return found;
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
        case Feet:
            break;
    }
    return writeNumber(value);
}

}  // namespace

std::span<const Category> categories() {
    return all;
}

bool understood(std::string_view text, const Unit& unit) {
    return read(text, unit).has_value();
}

std::string converted(std::string_view text, const Unit& from, const Unit& to, const ResultForm& form) {
    const auto amount = read(text, from);
    return amount ? write(*amount, to, form) : std::string();
}

}  // namespace torvane
