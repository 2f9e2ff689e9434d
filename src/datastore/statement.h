#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "values/numbers.h"

namespace torvane {

// Joins the pieces of a statement: texts exactly as they stand, with nothing escaped, numbers in their general form (a
// float32 with at most 7 significant digits).
template <class... Pieces>
std::string joined(const Pieces&... pieces) {
    std::string text;
    const auto append = [&text](const auto& piece) {
        if constexpr (std::convertible_to<decltype(piece), std::string_view>)
            text += std::string_view{piece};
        else
            text += generalText(piece);
    };
    (append(pieces), ...);
    return text;
}

// The pieces with commas between them.
std::string listed(const auto& pieces) {
    std::string text;
    for (const auto& piece : pieces) text += joined(text.empty() ? "" : ",", piece);
    return text;
}

}  // namespace torvane
