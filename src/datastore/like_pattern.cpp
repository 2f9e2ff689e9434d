#include "datastore/like_pattern.h"

#include <algorithm>

#include "values/letters.h"

namespace torvane {

namespace {

// No byte of UTF-8.
constexpr char any = '\xFF';
constexpr char one = '\xFE';
constexpr char never = '\xFD';

// A text of ASCII need not be without case.
bool matchesFolded(std::string_view pattern, std::string_view text) {
    // Where the pattern goes on behind the last `any`, and the text that this one has not yet taken.
    std::optional<std::string_view> behindAny;
    std::string_view untaken;
    while (!text.empty()) {
        if (!pattern.empty() && pattern.front() == any) {
            pattern.remove_prefix(1);
            behindAny = pattern;
            untaken = text;
        } else if (!pattern.empty() && (pattern.front() == one || pattern.front() == lower(text.front()))) {
            text.remove_prefix(pattern.front() == one ? signLength(text) : 1);
            pattern.remove_prefix(1);
        } else if (behindAny) {
            untaken.remove_prefix(signLength(untaken));
            text = untaken;
            pattern = *behindAny;
        } else {
            return false;
        }
    }
    return std::ranges::all_of(pattern, [](char c) { return c == any; });
}

}  // namespace

bool isOneSign(std::string_view text) {
    return !text.empty() && signLength(text) == text.size();
}

LikePattern::LikePattern(std::string_view pattern, std::optional<std::string_view> escape) {
    std::string plain;
    const auto wildcard = [&](char byte) {
        pattern_.append(withoutCase(plain)).append(1, byte);
        plain.clear();
    };
    while (!pattern.empty()) {
        const std::string_view sign = pattern.substr(0, signLength(pattern));
        pattern.remove_prefix(sign.size());
        if (escape == sign) {
            if (pattern.empty()) wildcard(never);
            const std::string_view escaped = pattern.substr(0, signLength(pattern));
            plain += escaped;
            pattern.remove_prefix(escaped.size());
        } else if (sign == "%") {
            wildcard(any);
        } else if (sign == "_") {
            wildcard(one);
        } else {
            plain += sign;
        }
    }
    pattern_ += withoutCase(plain);
}

bool LikePattern::matches(std::string_view text) const {
    return std::ranges::all_of(text, isAscii) ? matchesFolded(pattern_, text)
                                              : matchesFolded(pattern_, withoutCase(text));
}

}  // namespace torvane
