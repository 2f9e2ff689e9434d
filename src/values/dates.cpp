#include "values/dates.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <vector>

#include "values/letters.h"

namespace torvane {

namespace {

std::string padded(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.insert(0, width - std::min(width, text.size()), '0');
}

struct Month {
    int number;
    std::size_t length;
};

// The longest month name that `text` begins with.
std::optional<Month> monthAt(std::string_view text, const ShortDate& style) {
    static const ShortDate english;
    std::optional<Month> found;
    for (const auto* names :
         {&english.monthNames, &english.shortMonthNames, &style.monthNames, &style.shortMonthNames}) {
        int number = 1;
        for (const std::string& name : *names) {
            if (beginsWith(text, name) && (!found || name.size() > found->length)) found = {number, name.size()};
            ++number;
        }
    }
    return found;
}

struct Number {
    int value;
    std::size_t digits;

    bool canOnlyBeYear() const { return value > 31; }
    int year() const { return digits > 2 ? value : value + (value < 30 ? 2000 : 1900); }
};

struct Parts {
    std::vector<Number> numbers;
    Number month{};  // by name; 0 without one
};

// A piece of a style's pattern: a run of one sign, or what stands between quotes.
struct Piece {
    char sign;  // the quote for a literal
    std::string text;
};
std::vector<Piece> piecesOf(const std::string& pattern) {
    std::vector<Piece> pieces;
    for (std::size_t at = 0; at < pattern.size();) {
        const char sign = pattern[at];
        if (sign == '\'') {
            const std::size_t close = std::min(pattern.find(sign, at + 1), pattern.size());
            // Two quotes side by side are one quote.
            pieces.push_back({sign, close == at + 1 ? "'" : pattern.substr(at + 1, close - at - 1)});
            at = close + 1;
        } else {
            const std::size_t end = std::min(pattern.find_first_not_of(sign, at), pattern.size());
            pieces.push_back({sign, pattern.substr(at, end - at)});
            at = end;
        }
    }
    return pieces;
}

// The bytes of a word that the style's pattern holds between quotes, such as the sign for "year" behind one; 0 when the
// text begins with none.
std::size_t literalAt(std::string_view text, const ShortDate& style) {
    std::size_t longest = 0;
    for (const auto& [sign, word] : piecesOf(style.pattern))
        if (sign == '\'' && beginsWith(text, word)) longest = std::max(longest, word.size());
    return longest;
}

// Cuts the text into numbers and a month's name; between two parts stands at most one sign besides blanks.
std::optional<Parts> cut(std::string_view text, const ShortDate& style) {
    Parts parts;
    bool separated = true;  // nothing may stand before the first part
    while (!text.empty()) {
        const char c = text.front();
        std::size_t length = 1;
        if (isBlank(c)) {
        } else if (c == '/' || c == '.' || c == '-' || c == ',') {
            if (separated) return std::nullopt;
            separated = true;
        } else if (isDigit(c)) {
            length = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isDigit) - text.begin());
            if (length > 4) return std::nullopt;
            Number number{0, length};
            std::from_chars(text.data(), text.data() + length, number.value);
            parts.numbers.push_back(number);
            separated = false;
        } else if (const auto month = monthAt(text, style); month && parts.month.value == 0) {
            parts.month.value = month->number;
            length = month->length;
            separated = false;
        } else if (const std::size_t literal = literalAt(text, style); literal != 0) {
            length = literal;
            separated = false;
        } else {
            return std::nullopt;
        }
        text.remove_prefix(length);
    }
    return parts;
}

std::optional<Date> checked(const Number& year, const Number& month, const Number& day) {
    if (month.digits > 2 || day.digits > 2 || year.year() < 100) return std::nullopt;
    const Date date{year.year(), month.value, day.value};
    const bool inCalendar = (std::chrono::year{date.year} / date.month / date.day).ok();
    return inCalendar ? std::optional(date) : std::nullopt;
}

// The parts of the style's pattern in their order, such as "Mdy".
std::string order(const ShortDate& style) {
    std::string parts;
    for (const auto& [sign, run] : piecesOf(style.pattern))
        if (sign == 'd' || sign == 'M' || sign == 'y') parts += sign;
    return parts;
}

}  // namespace

std::string shortDateText(const Date& date, const ShortDate& style) {
    const auto month = static_cast<std::size_t>(date.month - 1);
    std::string text;
    for (const auto& [sign, run] : piecesOf(style.pattern)) {
        if (sign == 'd') {
            text += padded(date.day, run.size());
        } else if (sign == 'M' && run.size() > 2) {
            text += run.size() > 3 ? style.monthNames[month] : style.shortMonthNames[month];
        } else if (sign == 'M') {
            text += padded(date.month, run.size());
        } else if (sign == 'y') {
            text += padded(date.year, 4);
        } else {
            text += run;
        }
    }
    return text;
}

std::string isoText(const Date& date) {
    return padded(date.year, 4) + '-' + padded(date.month, 2) + '-' + padded(date.day, 2);
}

std::optional<Date> readDate(std::string_view text, const ShortDate& style) {
    const auto parts = cut(text, style);
    if (!parts) return std::nullopt;
    const std::vector<Number>& numbers = parts->numbers;

    if (numbers.size() == 2) {
        if (numbers[0].canOnlyBeYear()) return checked(numbers[0], parts->month, numbers[1]);
        return checked(numbers[1], parts->month, numbers[0]);
    }
    if (parts->month.value != 0 || numbers.size() != 3) return std::nullopt;
    if (numbers[0].canOnlyBeYear()) return checked(numbers[0], numbers[1], numbers[2]);
    if (const auto date = checked(numbers[2], numbers[0], numbers[1])) return date;
    return checked(numbers[2], numbers[1], numbers[0]);
}

std::optional<Date> readTypedDate(std::string_view text, const ShortDate& style) {
    const auto parts = cut(text, style);
    const std::string typed = order(style);
    if (parts && parts->month.value == 0 && parts->numbers.size() == 3 && typed.size() == 3) {
        const auto number = [&](char part) { return parts->numbers[typed.find(part)]; };
        if (const auto date = checked(number('y'), number('M'), number('d'))) return date;
    }
    return readDate(text, style);
}

}  // namespace torvane
