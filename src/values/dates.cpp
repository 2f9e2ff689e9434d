#include "values/dates.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <vector>

#include "values/letters.h"

namespace torvane {

namespace {

// Bytes beyond ASCII count as letters: month names may hold any.
bool isLetter(char c) {
    return (lower(c) >= 'a' && lower(c) <= 'z') || !isAscii(c);
}

std::string padded(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

struct Month {
    int number = 0;
    std::size_t length = 0;
};

// The longest month name that `text` begins with and that no further letter follows.
Month monthAt(std::string_view text, const ShortDate& style) {
    static const ShortDate english;
    Month found;
    for (const auto* names :
         {&english.monthNames, &english.shortMonthNames, &style.monthNames, &style.shortMonthNames}) {
        for (std::size_t i = 0; i < names->size(); ++i) {
            const std::string& name = (*names)[i];
            const bool whole =
                text.size() == name.size() || (text.size() > name.size() && !isLetter(text[name.size()]));
            if (name.size() > found.length && beginsWith(text, name) && whole) {
                found = {static_cast<int>(i) + 1, name.size()};
            }
        }
    }
    return found;
}

struct Number {
    int value = 0;
    std::size_t digits = 0;

    bool canOnlyBeYear() const { return digits > 2 || value > 31; }
    int year() const { return digits > 2 ? value : value + (value < 30 ? 2000 : 1900); }
};

struct Parts {
    std::vector<Number> numbers;
    int month = 0;  // by name
};

// Length of a word that the style's pattern holds between quotes, such as the sign for "year" behind one.
std::size_t literalAt(std::string_view text, const ShortDate& style) {
    const std::string& pattern = style.pattern;
    std::size_t longest = 0;
    for (std::size_t open = pattern.find('\''); open != std::string::npos; open = pattern.find('\'', open + 1)) {
        const std::size_t close = pattern.find('\'', open + 1);
        if (close == std::string::npos) break;
        const std::string_view word = std::string_view(pattern).substr(open + 1, close - open - 1);
        if (beginsWith(text, word)) longest = std::max(longest, word.size());
        open = close;
    }
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
        } else if (const Month month = monthAt(text, style); month.number != 0 && parts.month == 0) {
            parts.month = month.number;
            length = month.length;
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

std::optional<Date> checked(const Number& year, int month, const Number& day) {
    const Date date{year.year(), month, day.value};
    if (day.digits > 2 || !isValid(date)) return std::nullopt;
    return date;
}
std::optional<Date> checked(const Number& year, const Number& month, const Number& day) {
    return checked(year, month.digits > 2 ? 0 : month.value, day);
}

// The parts of the style's pattern in their order, such as "Mdy".
std::string order(const ShortDate& style) {
    std::string parts;
    bool quoted = false;
    for (const char c : style.pattern) {
        if (c == '\'') quoted = !quoted;
        const bool part = c == 'd' || c == 'M' || c == 'y';
        if (part && !quoted && parts.find(c) == std::string::npos) parts += c;
    }
    return parts;
}

}  // namespace

bool isValid(const Date& date) {
    // Clamped to what is no month or day either, for the calendar's own types keep a byte of them.
    const int month = std::clamp(date.month, 0, 13);
    const int day = std::clamp(date.day, 0, 32);
    return date.year >= 100 && date.year <= 9999 && (std::chrono::year{date.year} / month / day).ok();
}

std::string shortDateText(const Date& date, const ShortDate& style) {
    const std::string& pattern = style.pattern;
    std::string text;
    for (std::size_t at = 0; at < pattern.size();) {
        const char c = pattern[at];
        if (c == '\'') {
            const std::size_t close = std::min(pattern.find('\'', at + 1), pattern.size());
            // Two quotes side by side are one quote.
            text += close == at + 1 ? "'" : pattern.substr(at + 1, close - at - 1);
            at = close + 1;
            continue;
        }
        const std::size_t run = std::min(pattern.find_first_not_of(c, at), pattern.size()) - at;
        const std::size_t month = static_cast<std::size_t>(std::clamp(date.month, 1, 12) - 1);
        if (c == 'd') {
            text += padded(date.day, run >= 2 ? 2 : 1);
        } else if (c == 'M') {
            text += run >= 4   ? style.monthNames[month]
                    : run == 3 ? style.shortMonthNames[month]
                               : padded(date.month, run);
        } else if (c == 'y') {
            text += run == 2 ? padded(date.year % 100, 2) : padded(date.year, 4);
        } else {
            text.append(run, c);
        }
        at += run;
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

    if (parts->month != 0 && numbers.size() == 2) {
        if (numbers[0].canOnlyBeYear()) return checked(numbers[0], parts->month, numbers[1]);
        return checked(numbers[1], parts->month, numbers[0]);
    }
    if (parts->month != 0 || numbers.size() != 3) return std::nullopt;
    if (numbers[0].canOnlyBeYear()) return checked(numbers[0], numbers[1], numbers[2]);
    if (const auto date = checked(numbers[2], numbers[0], numbers[1])) return date;
    return checked(numbers[2], numbers[1], numbers[0]);
}

std::optional<Date> readTypedDate(std::string_view text, const ShortDate& style) {
    const auto parts = cut(text, style);
    const std::string typed = order(style);
    if (parts && parts->month == 0 && parts->numbers.size() == 3 && typed.size() == 3) {
        const auto number = [&](char part) { return parts->numbers[typed.find(part)]; };
        if (const auto date = checked(number('y'), number('M'), number('d'))) return date;
    }
    return readDate(text, style);
}

}  // namespace torvane
