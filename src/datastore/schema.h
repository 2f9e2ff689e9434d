#pragma once

#include <string_view>

namespace torvane {

inline constexpr int applicationId = 0x546F7276;  // "Torv"
inline constexpr int schemaVersion = 1;

// All tables, the view and the indexes of the database, as SQLite text; what the maker of the delivered file runs.
// Text columns ignore case, amounts are declared real and read as float32, dates are ISO text.
std::string_view schemaText();

}  // namespace torvane
