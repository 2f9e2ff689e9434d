#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace torvane {

// Text to number and back, the same everywhere: screens, SQL text, reports, calculators and conversions. The decimal
// mark is always a point and there is no grouping, whatever the machine's locale says. "Blank" is a space, a tab or a
// line break.

// --- Reading ---------------------------------------------------------------------------------------------------------

// The number at the beginning of a text: a sign, digits with at most one decimal point, an exponent.
struct NumberPrefix {
    std::size_t length = 0;           // characters that belong to it; 0 when the text begins with no number
    std::optional<double> value = 0;  // never minus zero; nothing when it is too large for a double
};
NumberPrefix numberPrefix(std::string_view text);

// The number that the text begins with, blanks skipped wherever they stand; 0 when there is none. "12abc" is 12, "1 2"
// is 12, "1e3" is 1000, "7,5" is 7, "." is 0. A text beyond the range of a double counts by its longest prefix that is
// finite. Never fails, never gives a minus zero.
double lenientNumber(std::string_view text);

// The whole text must be a number, with blanks around it at most. Anything else is Failure::TypeMismatch, too large a
// number Failure::Overflow.
double strictDouble(std::string_view text);
// Fractions are rounded half to even.
std::int16_t strictInt16(std::string_view text);
std::int32_t strictInt32(std::string_view text);
// Whether strictDouble would accept the text.
bool isNumeric(std::string_view text);

// --- Narrowing -------------------------------------------------------------------------------------------------------
// Each fails with Failure::Overflow when the value does not fit (infinite and undefined values included).

float narrowToSingle(double value);
std::int16_t narrowToInt16(double value);  // half to even
std::int32_t narrowToInt32(double value);  // half to even
// Fixed-point currency: four decimals, half to even, up to 922337203685477.5807 either way.
double narrowToCurrency(double value);
// The value itself; Failure::Overflow when arithmetic has left the range of a double.
double finite(double value);

// The number that a float's text says, exactly: 250000.1, where the float itself is 250000.09375.
double decimalOf(float value);

// --- Writing ---------------------------------------------------------------------------------------------------------

// General form: no fixed decimals, no trailing zeros, a zero before the point, at most 15 significant digits for a
// double and 7 for a float. Exponent form (1E+15, 1.234568E+07, 2.5E-05) from 1E15 or 1E7 up and below 1E-04.
// Minus zero is "0". Failure::Overflow for an infinite or undefined value.
std::string generalText(double value);
std::string generalText(float value);
std::string generalText(std::integral auto value) {
    return std::to_string(value);
}

// The value with exactly `places` decimals (the report format 0.00 is places = 2), rounded half to even, decided on the
// value's 15 significant digits: 0.015 is 0.02 and 2.675 is 2.68, as one who reads them expects.
// Never "-0.00". Failure::Overflow for an infinite or undefined value.
std::string fixedText(double value, int places);

// --- Rounding --------------------------------------------------------------------------------------------------------

// To `places` decimals, half to even, decided on the value's exact binary form.
double roundHalfEven(double value, int places);

}  // namespace torvane
