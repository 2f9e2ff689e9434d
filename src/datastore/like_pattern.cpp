#include "datastore/like_pattern.h"

#include <algorithm>
#include <optional>

#include "values/letters.h"

namespace torvane {

namespace {

// No byte of UTF-8.
constexpr char any = '\xFF';
constexpr char one = '\xFE';

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

LikePattern::LikePattern(std::string_view pattern) {
    while (!pattern.empty()) {
        const std::size_t plain = std::min(pattern.find_first_of("%_"), pattern.size());
        pattern_ += withoutCase(pattern.substr(0, plain));
        if (plain == pattern.size()) return;
        pattern_ += pattern[plain] == '%' ? any : one;
        pattern.remove_prefix(plain + 1);
    }
}

bool LikePattern::matches(std::string_view text) const {
    return std::ranges::all_of(text, isAscii) ? matchesFolded(pattern_, text)
                                              : matchesFolded(pattern_, withoutCase(text));
}

}  // namespace torvane
