#include "values/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <sstream>
#include <system_error>

#include "values/failure.h"
#include "values/letters.h"

namespace torvane {

namespace {

// The value of the longest finite prefix of a number that is too large as a whole: behind the first prefix that is too
// large no other one is finite, so halving finds it.
double longestFinite(std::string_view number) {
    double value = 0;
    for (std::size_t fits = 0, tooLarge = number.size(); tooLarge - fits > 1;) {
        const std::size_t middle = fits + (tooLarge - fits) / 2;
        const auto shorter = numberPrefix(number.substr(0, middle)).value;
        (shorter ? fits : tooLarge) = middle;
        value = shorter.value_or(value);
    }
    return value;
}

// The text as one number, with blanks around it; its length is 0 when it is anything else.
NumberPrefix wholeNumber(std::string_view text) {
    text = trimmed(text);
    const NumberPrefix number = numberPrefix(text);
    return number.length == text.size() ? number : NumberPrefix();
}

template <typename Integer>
Integer narrowToInteger(double value) {
    const double rounded = std::nearbyint(value);
    // Written so that an undefined value fails, too.
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        fail(Failure::Overflow);
    }
    return static_cast<Integer>(rounded);
}

// At most so many significant digits; exponent form where the whole part would need more, and below 1E-04.
std::string general(double value, int significant) {
    if (finite(value) == 0) return "0";
    std::array<char, 32> text{};
    char* const end = std::to_chars(text.begin(), text.end(), value, std::chars_format::general, significant).ptr;
    std::replace(text.begin(), end, 'e', 'E');
    return {text.begin(), end};
}

}  // namespace

NumberPrefix numberPrefix(std::string_view text) {
    const bool negative = text.starts_with('-');
    const std::string_view digits = text.substr(negative || text.starts_with('+') ? 1 : 0);
    // The library would also take a second sign, "inf" and "nan".
    if (digits.empty() || !(isDigit(digits.front()) || digits.front() == '.')) return {};
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::invalid_argument) return {};
    const auto length = static_cast<std::size_t>(end - text.data());
    if (error == std::errc::result_out_of_range) {
        // Too large and too small are the same to it. A stream fails for a number that is too large.
        std::istringstream stream{std::string(digits.data(), end)};
        if (!(stream >> value)) return {length, std::nullopt};
    }
    return {length, negative && value != 0 ? -value : value};
}

double lenientNumber(std::string_view text) {
    std::string bare(text);
    std::erase_if(bare, isBlank);
    const auto [length, value] = numberPrefix(bare);
    return value ? *value : longestFinite(std::string_view(bare).substr(0, length));
}

double strictDouble(std::string_view text) {
    const auto [length, value] = wholeNumber(text);
    if (length == 0) fail(Failure::TypeMismatch, text);
    if (!value) fail(Failure::Overflow, text);
    return *value;
}

std::int16_t strictInt16(std::string_view text) {
    return narrowToInt16(strictDouble(text));
}
std::int32_t strictInt32(std::string_view text) {
    return narrowToInt32(strictDouble(text));
}

bool isNumeric(std::string_view text) {
    const auto [length, value] = wholeNumber(text);
    return length > 0 && value;
}

float narrowToSingle(double value) {
    // Half a step above the largest float: from here on the nearest one would be infinite.
    constexpr double beyond = 0x1.ffffffp127;
    if (!(std::abs(value) < beyond)) fail(Failure::Overflow);
    return static_cast<float>(value);
}

std::int16_t narrowToInt16(double value) {
    return narrowToInteger<std::int16_t>(value);
}
std::int32_t narrowToInt32(double value) {
    return narrowToInteger<std::int32_t>(value);
}

double narrowToCurrency(double value) {
    constexpr double largest = 922337203685477.5807;
    if (!(std::abs(value) <= largest)) fail(Failure::Overflow);
    return roundHalfEven(value, 4);
}

double finite(double value) {
    if (!std::isfinite(value)) fail(Failure::Overflow);
    return value;
}

double decimalOf(float value) {
    return lenientNumber(generalText(value));
}

std::string generalText(double value) {
    return general(value, 15);
}
std::string generalText(float value) {
    return general(static_cast<double>(value), 7);
}

std::string fixedText(double value, int places) {
    // The significant digits as d.ddde+xx.
    std::array<char, 32> buffer{};
    const char* const end =
        std::to_chars(buffer.begin(), buffer.end(), std::abs(finite(value)), std::chars_format::scientific, 14).ptr;
    const char* const letter = std::find(buffer.cbegin(), end, 'e');
    std::string digits = buffer.front() + std::string(buffer.cbegin() + 2, letter);
    int exponent = 0;
    std::from_chars(letter[1] == '-' ? letter + 1 : letter + 2, end, exponent);

    // As a whole number of `places` decimals: so many digits stay, the others decide the rounding.
    const int stay = exponent + 1 + places;
    digits.insert(0, static_cast<std::size_t>(std::max(-stay, 0)), '0');
    const auto length = static_cast<std::size_t>(std::max(stay, 0));
    if (length < digits.size()) {
        const std::string dropped = digits.substr(length);
        const std::string half = '5' + std::string(dropped.size() - 1, '0');
        std::int64_t number = 0;
        std::from_chars(digits.data(), digits.data() + length, number);
        if (dropped > half || (dropped == half && number % 2 != 0)) ++number;
        digits = std::to_string(number);
    } else {
        digits.resize(length, '0');
    }
    const bool negative = value < 0 && digits != "0";
    const auto decimals = static_cast<std::size_t>(places);
    if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
    if (places > 0) digits.insert(digits.size() - decimals, 1, '.');
    return negative ? '-' + digits : digits;
}

double roundHalfEven(double value, int places) {
    // The largest double has 309 digits before the point.
    std::string text(static_cast<std::size_t>(places) + 320, '\0');
    const char* const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, places).ptr;
    double rounded = 0;
    std::from_chars(text.data(), end, rounded);
    return rounded == 0 ? 0 : rounded;
}

}  // namespace torvane
