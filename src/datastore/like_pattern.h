#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace torvane {

// Whether a text is just one sign, as an escape must be.
bool isOneSign(std::string_view text);

// What LIKE compares with: % stands for any signs, _ for one; behind `escape` each sign stands for itself. Without
// regard to case, in the letters of all scripts.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern, std::optional<std::string_view> escape = std::nullopt);
    bool matches(std::string_view text) const;

private:
    std::string pattern_;  // without case; the wildcards are bytes that no text has
};

}  // namespace torvane
