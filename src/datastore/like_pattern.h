#pragma once

#include <string>
#include <string_view>

namespace torvane {

// What LIKE compares with: % stands for any signs, _ for one. Without regard to case, in the letters of all scripts.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);
    bool matches(std::string_view text) const;

private:
    std::string pattern_;  // without case; the wildcards are bytes that no text has
};

}  // namespace torvane
