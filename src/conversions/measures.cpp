#include "conversions/measures.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <numeric>
#include <span>
#include <utility>

#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// The signs of good typography and what they stand for, which is what the readers know.
constexpr std::pair<std::string_view, std::string_view> plainSigns[] = {
    {"’", "'"},    {"‘", "'"},    {"′", "'"},      {"´", "'"},      {"”", "\""},   {"“", "\""},   {"″", "\""},
    {"''", "\""},  {"½", " 1/2"}, {"⅓", " 1/3"},   {"⅔", " 2/3"},   {"¼", " 1/4"}, {"¾", " 3/4"}, {"⅛", " 1/8"},
    {"⅜", " 3/8"}, {"⅝", " 5/8"}, {"⅞", " 7/8"},   {"⁄", "/"},      {"×", "x"},    {"–", "-"},    {"−", "-"},
    {"²", "2"},    {"³", "3"},    {"\u00A0", " "}, {"\u202F", " "},
};

std::string plain(std::string_view text) {
    std::string result(text);
    for (const auto& [sign, meaning] : plainSigns)
        for (auto at = result.find(sign); at != std::string::npos; at = result.find(sign))
            result.replace(at, sign.size(), meaning);
    return result;
}

std::size_t digitsAt(std::string_view text, std::size_t at) {
    const auto end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), isDigit);
    return static_cast<std::size_t>(end - text.begin()) - at;
}

bool isLetter(char c) {
    return std::isalpha(c, std::locale::classic());
}

// What stands before the word that a text closes with; nothing where it does not. Case does not count, nor do blanks
// and the points of abbreviations: "sq. ft." closes with "sq ft", and so does "9-sq ft".
std::optional<std::string_view> before(std::string_view text, std::string_view word) {
    text = trimmed(text);
    for (auto letter = word.rbegin(); letter != word.rend(); ++letter) {
        const char c = *letter;
        if (c == ' ') continue;
        while (!isDigit(c) && !text.empty() && (isBlank(text.back()) || (isLetter(c) && text.back() == '.')))
            text.remove_suffix(1);
        if (text.empty() || lower(text.back()) != lower(c)) return std::nullopt;
        text.remove_suffix(1);
    }
    text = trimmed(text);
    if (isLetter(word.front()) && text.ends_with('-')) text.remove_suffix(1);
    return text;
}

// Takes a text apart from the front. Each step skips blanks, and takes nothing when it does not succeed.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(plain(text)), rest_(text_) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool atEnd() const { return trimmed(rest_).empty(); }

    // In any case, with the point of an abbreviation.
    bool take(std::string_view word) {
        const std::string_view rest = trimmed(rest_);
        if (!beginsWith(rest, word)) return false;
        rest_ = rest.substr(word.size());
        if (isLetter(word.back()) && rest_.starts_with('.')) rest_.remove_prefix(1);
        return true;
    }

    bool takeAny(std::span<const std::string_view> words) {
        return std::ranges::any_of(words, [this](std::string_view word) { return take(word); });
    }
    bool takeInch() {
        constexpr std::string_view inch[] = {"\"", "inches", "inch", "in"};
        return takeAny(inch);
    }
    bool takeFeet() {
        constexpr std::string_view feet[] = {"'", "feet", "foot", "ft"};
        return takeAny(feet);
    }

    double takeSign() {
        if (take("-")) return -1;
        take("+");
        return 1;
    }

    // A number or a fraction, or a number and a fraction behind it.
    std::optional<double> quantity() {
        const auto first = number();
        if (!first) return std::nullopt;
        if (take("/")) return over(*first);
        const std::string_view before = rest_;
        take("-");
        if (const auto top = number(); top && take("/")) {
            if (const auto fraction = over(*top)) return *first + *fraction;
        }
        rest_ = before;
        return first;
    }

    // Feet and inches, in inches, to the end of the text. A number without a mark is feet; inches behind such a number
    // are taken where `bare` allows it.
    std::optional<double> feetInches(bool bare) {
        auto amount = quantity();
        if (!amount) return std::nullopt;
        if (!takeInch()) {
            const bool marked = takeFeet();
            *amount *= 12;
            if (!atEnd()) {
                if (!marked && !bare) return std::nullopt;
                constexpr std::string_view between[] = {"-", ",", "and"};
                takeAny(between);
                const auto inches = quantity();
                if (!inches) return std::nullopt;
                *amount += *inches;
                takeInch();
            }
        }
        return atEnd() ? amount : std::nullopt;
    }

    // Without a sign.
    std::optional<double> number() {
        rest_ = trimmed(rest_);
        if (rest_.starts_with('-') || rest_.starts_with('+')) return std::nullopt;
        std::string digits(rest_);
        std::size_t commas = 0;
        // 1250,000 and 0,250 are no thousands.
        std::size_t at = digits.starts_with('0') ? 0 : digitsAt(digits, 0);
        for (at = at > 3 ? 0 : at; at > 0 && digits.substr(at, 1) == ","; at += 3, ++commas) {
            if (digitsAt(digits, at + 1) != 3) return std::nullopt;
            digits.erase(at, 1);
        }
        const auto [length, value] = numberPrefix(digits);
        if (length == 0) return std::nullopt;
        rest_.remove_prefix(length + commas);
        return value;
    }

private:
    std::optional<double> over(double top) {
        const double bottom = number().value_or(0);
        if (bottom == 0) return std::nullopt;
        return top / bottom;
    }

    const std::string text_;
    std::string_view rest_;
};

}  // namespace

std::optional<double> readNumber(std::string_view text) {
    Reader reader(text);
    const double sign = reader.takeSign();
    const auto value = reader.quantity();
    if (!value || !reader.atEnd()) return std::nullopt;
    return sign * *value;
}

std::optional<double> readNumber(std::string_view text, std::string_view word) {
    const std::string signs = plain(text);
    const auto number = before(signs, word);
    return number ? readNumber(*number) : std::nullopt;
}

std::optional<double> readFeetInches(std::string_view text, bool bare) {
    Reader reader(text);
    const double sign = reader.takeSign();
    const auto inches = reader.feetInches(bare);
    return inches ? std::optional(sign * *inches) : std::nullopt;
}

std::string writeFeetInches(double inches, int denominator) {
    constexpr double tooMany = 1e15;
    if (!(std::abs(inches) < tooMany)) return {};
    const auto rounded = static_cast<long long>(std::nearbyint(inches * denominator));
    const long long parts = std::abs(rounded);
    const long long perFoot = 12LL * denominator;
    const long long whole = parts % perFoot / denominator;
    const long long top = parts % denominator;
    const long long common = std::gcd(top, static_cast<long long>(denominator));

    std::string text = rounded < 0 ? "-" : "";
    if (parts >= perFoot) text += std::to_string(parts / perFoot) + "' ";
    if (whole > 0 || top == 0) text += std::to_string(whole);
    if (whole > 0 && top > 0) text += ' ';
    if (top > 0) text += std::to_string(top / common) + "/" + std::to_string(denominator / common);
    return text + "\"";
}

std::optional<double> readRatio(std::string_view text) {
    constexpr std::string_view to[] = {":", "/"};
    Reader reader(text);
    const double sign = reader.takeSign();
    const auto first = reader.number();
    const bool pair = reader.takeAny(to);
    const double run = (pair ? reader.quantity() : first).value_or(0);
    if (!first || run == 0 || !reader.atEnd()) return std::nullopt;
    return sign * (pair ? *first : 1) / run;
}

std::string writeRatio(double slope) {
    const std::string run = writeNumber(1 / std::abs(slope));
    return run.empty() ? run : (slope < 0 ? "-1:" : "1:") + run;
}

std::optional<Piece> readPiece(std::string_view text) {
    static constexpr std::string_view by[] = {"x", "*", "by"};
    Reader reader(text);
    const auto side = [&reader] {
        const auto inches = reader.quantity();
        reader.takeInch();
        return reader.takeAny(by) ? inches : std::nullopt;
    };
    const auto thickness = side();
    const auto width = side();
    const auto length = reader.feetInches(false);
    if (!thickness || !width || !length) return std::nullopt;
    return Piece{*thickness, *width, *length / 12};
}

std::string writePiece(double boardFeet, const Piece& like) {
    const double perFoot = Piece{like.thickness, like.width, 1}.boardFeet();
    if (boardFeet < 0) return {};
    const std::string length = writeNumber(boardFeet / perFoot);
    return length.empty() ? length : writeNumber(like.thickness) + " x " + writeNumber(like.width) + " x " + length;
}

std::string writeNumber(double value) {
    return std::isfinite(value) ? generalText(value) : std::string();
}

}  // namespace torvane
