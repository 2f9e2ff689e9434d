#pragma once

#include <span>
#include <string>
#include <string_view>

namespace torvane {

// How the amounts of a unit are written.
enum class Notation {
    Number,
    Temperature,  // a number on a scale with a zero of its own
    Feet,         // a number, or feet and inches to be read
    FeetInches,
    Angle,  // of a slope, in degrees
    Ratio,
    Lumber,  // thickness x width x length
};

struct Unit {
    std::string_view name;
    std::string_view words;  // what may stand behind a number besides the name, between bars: "in|inch"
    long double factor = 1;  // of the base unit of its category
    Notation notation = Notation::Number;
    double zero = 0;                // of a temperature: what the base unit's 0 is on this scale
    std::string_view example = {};  // of a notation that a person may not know
};

struct Category {
    std::string_view name;
    std::span<const Unit> units;
    int from = 0;  // the pair of units that stands at the start
    int to = 1;
};

std::span<const Category> categories();

// How a result is to be written.
struct ResultForm {
    int denominator = 16;            // of the fractions of an inch
    std::string_view replaced = {};  // the text whose place the result takes: its size of lumber stays
};

// Whether a text is an amount of the unit, or of another one of its category that it tells: 12' 6" under meters.
bool understood(std::string_view text, const Unit& unit);

// The text of the same amount in another unit of the category; empty when the text is not understood, or when the
// other unit has no such amount (a ratio for no slope, an angle of 90 degrees, numbers beyond the range of a double).
std::string converted(std::string_view text, const Unit& from, const Unit& to, const ResultForm& form = {});

}  // namespace torvane
