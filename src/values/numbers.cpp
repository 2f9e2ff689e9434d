#include "values/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

#include "values/failure.h"
#include "values/letters.h"

namespace torvane {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// A number as it stands in a text, free of blanks: digits with at most one point, then perhaps an exponent.
struct Numeral {
    bool negative = false;
    std::string text;          // without the sign
    std::size_t mantissa = 0;  // its length in `text`; 0 when there is no digit at all
    std::size_t consumed = 0;  // how far the source was read
};

// Reads the longest prefix of `source` that is a number. Blanks before and between its signs are skipped when
// `skipBlanks` is set; otherwise the first sign must be part of it.
Numeral scan(std::string_view source, bool skipBlanks) {
    Numeral numeral;
    std::size_t at = 0;
    const auto peek = [&]() -> char {
        while (skipBlanks && at < source.size() && isBlank(source[at])) ++at;
        return at < source.size() ? source[at] : '\0';
    };
    const auto takeDigits = [&] {
        const std::size_t before = numeral.text.size();
        while (isDigit(peek())) numeral.text += source[at++];
        return numeral.text.size() > before;
    };

    if (const char sign = peek(); sign == '-' || sign == '+') {
        numeral.negative = sign == '-';
        ++at;
    }
    bool digits = takeDigits();
    if (peek() == '.') {
        numeral.text += '.';
        ++at;
        digits = takeDigits() || digits;
    }
    if (!digits) return {};
    numeral.mantissa = numeral.text.size();
    numeral.consumed = at;

    if (const char letter = peek(); letter == 'e' || letter == 'E') {
        numeral.text += 'e';
        ++at;
        if (const char sign = peek(); sign == '-' || sign == '+') {
            numeral.text += sign;
            ++at;
        }
        if (takeDigits()) {
            numeral.consumed = at;
        } else {
            numeral.text.resize(numeral.mantissa);
        }
    }
    return numeral;
}

// The decimal exponent of the leading digit, held within a range that can't overflow. Tells a number that is too large
// from one that is too small, which the library reports alike.
long magnitude(std::string_view text, std::size_t mantissa) {
    constexpr long bound = 1'000'000'000;
    const std::size_t point = std::min(text.substr(0, mantissa).find('.'), mantissa);
    const std::size_t leading = text.substr(0, mantissa).find_first_of("123456789");
    if (leading == std::string_view::npos) return -bound;
    const long position = static_cast<long>(point) - static_cast<long>(leading);
    if (text.size() <= mantissa + 1) return position;

    const char* digits = text.data() + mantissa + 1;
    if (*digits == '+') ++digits;
    long exponent = 0;
    if (std::from_chars(digits, text.data() + text.size(), exponent).ec != std::errc{}) {
        exponent = *digits == '-' ? -bound : bound;
    }
    return position + std::clamp(exponent, -bound, bound);
}

// Nothing when the number is beyond the range of a double; one too small for it is 0.
std::optional<double> convert(std::string_view text, std::size_t mantissa) {
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (magnitude(text, mantissa) > 0) return std::nullopt;
        return 0.0;
    }
    if (!std::isfinite(value)) return std::nullopt;
    return value;
}

double withSign(bool negative, double value) {
    return negative && value != 0 ? -value : value;
}

// The value of the longest finite prefix of a numeral that is too large as a whole. A longer prefix of the mantissa, or
// of a positive exponent, is never smaller, so halving finds it.
double longestFinite(const Numeral& numeral) {
    const std::string_view text = numeral.text;
    std::size_t good = 1;  // a single digit or point is finite
    std::size_t bad = numeral.mantissa;
    double value = convert(text.substr(0, 1), 1).value_or(0);
    if (const auto mantissa = convert(text.substr(0, numeral.mantissa), numeral.mantissa)) {
        // Prefixes that end behind the exponent's letter or sign count as the bare mantissa.
        good = numeral.mantissa;
        bad = text.size();
        value = *mantissa;
    }
    while (bad - good > 1) {
        const std::size_t middle = good + (bad - good) / 2;
        const std::string_view prefix = text.substr(0, middle);
        const std::size_t mantissa = std::min(middle, numeral.mantissa);
        if (const auto shorter = convert(prefix, mantissa)) {
            good = middle;
            value = *shorter;
        } else {
            bad = middle;
        }
    }
    return value;
}

enum class Reading { Good, NoNumber, TooLarge };

Reading readStrict(std::string_view text, double& value) {
    text = trimmed(text);
    const Numeral numeral = scan(text, false);
    if (numeral.mantissa == 0 || numeral.consumed != text.size()) return Reading::NoNumber;
    const auto converted = convert(numeral.text, numeral.mantissa);
    if (!converted) return Reading::TooLarge;
    value = withSign(numeral.negative, *converted);
    return Reading::Good;
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

// The nearest number of so many significant digits: d.dddd times ten to the exponent, without zeros at its end. Not for
// zero.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

Decimal decimalForm(double value, int significant) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific,
                                   significant - 1)
                         .ptr;
    std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    Decimal decimal;
    if (scientific.front() == '-') {
        decimal.negative = true;
        scientific.remove_prefix(1);
    }
    const std::size_t letter = scientific.find('e');
    std::from_chars(scientific.data() + letter + 2, end, decimal.exponent);
    if (scientific[letter + 1] == '-') decimal.exponent = -decimal.exponent;
    decimal.digits.append(1, scientific.front()).append(scientific.substr(2, letter - 2));
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    return decimal;
}

std::string exponentText(int exponent) {
    const std::string digits = std::to_string(std::abs(exponent));
    return (exponent < 0 ? "E-" : "E+") + std::string(digits.size() < 2 ? 1 : 0, '0') + digits;
}

// `significant` digits at most; exponent form where the whole part would need more, and below 1E-04.
std::string general(double value, int significant) {
    finite(value);
    if (value == 0) return "0";
    const auto [negative, digits, exponent] = decimalForm(value, significant);
    std::string text(negative ? 1 : 0, '-');
    if (exponent >= significant || exponent < -4) {
        text += digits.front();
        if (digits.size() > 1) text.append(1, '.').append(digits, 1);
        text += exponentText(exponent);
    } else if (exponent < 0) {
        text.append("0.").append(static_cast<std::size_t>(-exponent - 1), '0').append(digits);
    } else {
        const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
        if (digits.size() <= whole) {
            text.append(digits).append(whole - digits.size(), '0');
        } else {
            text.append(digits, 0, whole).append(1, '.').append(digits, whole);
        }
    }
    return text;
}

std::string fixed(double value, int places) {
    // The largest double has 309 digits before the point.
    std::string text(static_cast<std::size_t>(places) + 320, '\0');
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, places).ptr;
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
}

}  // namespace

double lenientNumber(std::string_view text) {
    const Numeral numeral = scan(text, true);
    if (numeral.mantissa == 0) return 0;
    const auto value = convert(numeral.text, numeral.mantissa);
    return withSign(numeral.negative, value ? *value : longestFinite(numeral));
}

double strictDouble(std::string_view text) {
    double value = 0;
    switch (readStrict(text, value)) {
        case Reading::Good:
            return value;
        case Reading::NoNumber:
            fail(Failure::TypeMismatch, text);
        case Reading::TooLarge:
            break;
    }
    fail(Failure::Overflow, text);
}

// By way of the double, as a column of the database is read, so that both give the same float.
float strictSingle(std::string_view text) {
    return narrowToSingle(strictDouble(text));
}
std::int16_t strictInt16(std::string_view text) {
    return narrowToInt16(strictDouble(text));
}
std::int32_t strictInt32(std::string_view text) {
    return narrowToInt32(strictDouble(text));
}

bool isNumeric(std::string_view text) {
    double value = 0;
    return readStrict(text, value) == Reading::Good;
}

float narrowToSingle(double value) {
    // Half a step above the largest float: from here on the nearest one would be infinite.
    constexpr double beyond = 0x1.ffffffp127;
    if (!(std::abs(value) < beyond)) fail(Failure::Overflow);
    return static_cast<float>(value) + 0.0F;  // the sum turns a minus zero into 0
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
std::string generalText(std::int64_t value) {
    return std::to_string(value);
}

std::string fixedText(double value, int places) {
    finite(value);
    // The digits as a whole number of `places` decimals: the point stands in front of the last ones.
    std::string text = "0";
    bool negative = false;
    if (value != 0) {
        const Decimal decimal = decimalForm(value, 15);
        const int kept = decimal.exponent + 1 + places;
        const int given = static_cast<int>(decimal.digits.size());
        if (kept >= given) {
            text = decimal.digits + std::string(static_cast<std::size_t>(kept - given), '0');
        } else if (kept >= 0) {
            const std::string dropped = decimal.digits.substr(static_cast<std::size_t>(kept));
            std::int64_t whole = 0;
            std::from_chars(decimal.digits.data(), decimal.digits.data() + kept, whole);
            if (dropped > "5" || (dropped == "5" && whole % 2 != 0)) ++whole;
            text = std::to_string(whole);
        }
        negative = decimal.negative && text != "0";
    }
    const auto decimals = static_cast<std::size_t>(places);
    if (text.size() <= decimals) text.insert(0, decimals + 1 - text.size(), '0');
    if (places > 0) text.insert(text.size() - decimals, 1, '.');
    return negative ? '-' + text : text;
}

double roundHalfEven(double value, int places) {
    if (!std::isfinite(value)) return value;
    const std::string text = fixed(value, places);
    double rounded = 0;
    std::from_chars(text.data(), text.data() + text.size(), rounded);
    return rounded == 0 ? 0 : rounded;
}

}  // namespace torvane
