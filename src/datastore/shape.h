#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace torvane {

// A grouped command: the rows of `inner`, regrouped into one parent row per distinct combination of the `by` columns.
//
//   SHAPE { <inner select> } AS <child> COMPUTE <child> BY '<column>' [, '<column>']...
struct ShapedCommand {
    std::string inner;
    std::string child;
    std::vector<std::string> by;
};

// A RuntimeFailure (number of a refused statement, with the text) when the text is not of that shape.
ShapedCommand readShape(std::string_view text);

}  // namespace torvane
