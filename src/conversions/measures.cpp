#include "conversions/measures.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>

#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// Takes a text apart from the front. Each step skips blanks, and takes nothing when it does not succeed.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool atEnd() const { return trimmed(rest_).empty(); }

    // In any case; blanks may stand in the text where they stand in the word or not.
    bool take(std::string_view word) {
        std::string_view rest = rest_;
        for (const char c : word) {
            if (c == ' ') continue;
            rest = trimmed(rest);
            if (rest.empty() || lower(rest.front()) != lower(c)) return false;
            rest.remove_prefix(1);
        }
        rest_ = rest;
        return true;
    }

    bool takeAny(std::span<const std::string_view> words) {
        return std::ranges::any_of(words, [this](std::string_view word) { return take(word); });
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

    // Without a sign.
    std::optional<double> number() {
        rest_ = trimmed(rest_);
        if (rest_.starts_with('-') || rest_.starts_with('+')) return std::nullopt;
        const auto [length, value] = numberPrefix(rest_);
        rest_.remove_prefix(length);
        return length > 0 ? value : std::nullopt;
    }

private:
    std::optional<double> over(double top) {
        const auto bottom = number();
        if (!bottom || *bottom == 0) return std::nullopt;
        return top / *bottom;
    }

    std::string_view rest_;
};

}  // namespace

std::optional<double> readNumber(std::string_view text, std::string_view symbol) {
    Reader reader(text);
    const double sign = reader.takeSign();
    const auto value = reader.quantity();
    reader.take(symbol);
    if (!value || !reader.atEnd()) return std::nullopt;
    return sign * *value;
}

std::optional<double> readFeetInches(std::string_view text) {
    constexpr std::string_view feet[] = {"'", "′", "feet", "foot", "ft"};
    constexpr std::string_view inch[] = {"\"", "''", "″", "inches", "inch", "in"};
    Reader reader(text);
    const double sign = reader.takeSign();
    auto amount = reader.quantity();
    if (!amount) return std::nullopt;
    if (!reader.takeAny(inch)) {
        reader.takeAny(feet);
        *amount *= 12;
        if (!reader.atEnd()) {
            reader.take("-");
            const auto inches = reader.quantity();
            if (!inches) return std::nullopt;
            *amount += *inches;
            reader.takeAny(inch);
        }
    }
    if (!reader.atEnd()) return std::nullopt;
    return sign * *amount;
}

std::string writeFeetInches(double inches, int denominator) {
    constexpr double tooMany = 1e15;
    if (!(std::abs(inches) < tooMany)) return {};
    const auto parts = static_cast<long long>(std::nearbyint(std::abs(inches) * denominator));
    const long long perFoot = 12LL * denominator;
    const long long whole = parts % perFoot / denominator;
    const long long top = parts % denominator;
    const long long common = std::gcd(top, static_cast<long long>(denominator));

    std::string text = inches < 0 && parts > 0 ? "-" : "";
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
    const auto run = pair ? reader.quantity() : first;
    if (!first || !run || *run == 0 || !reader.atEnd()) return std::nullopt;
    return sign * (pair ? *first : 1) / *run;
}

std::string writeRatio(double slope) {
    if (slope == 0) return {};
    const std::string run = writeNumber(1 / std::abs(slope));
    return run.empty() ? run : (slope < 0 ? "-1:" : "1:") + run;
}

std::optional<Piece> readPiece(std::string_view text) {
    constexpr std::string_view by[] = {"x", "×", "*"};
    Reader reader(text);
    double sides[3] = {};
    for (double& side : sides) {
        if (&side != sides && !reader.takeAny(by)) return std::nullopt;
        const auto value = reader.quantity();
        if (!value) return std::nullopt;
        side = *value;
    }
    if (!reader.atEnd()) return std::nullopt;
    return Piece{sides[0], sides[1], sides[2]};
}

std::string writePiece(double boardFeet, const Piece& like) {
    const double perFoot = Piece{like.thickness, like.width, 1}.boardFeet();
    if (!(perFoot > 0) || boardFeet < 0) return {};
    const std::string length = writeNumber(boardFeet / perFoot);
    return length.empty() ? length : writeNumber(like.thickness) + " x " + writeNumber(like.width) + " x " + length;
}

std::string writeNumber(double value) {
    return std::isfinite(value) ? generalText(value) : std::string();
}

}  // namespace torvane
