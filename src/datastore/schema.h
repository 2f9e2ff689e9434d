#pragma once

#include <string>

namespace torvane {

inline constexpr int applicationId = 0x546F7276;  // "Torv"
inline constexpr int schemaVersion = 1;

// All tables, the view and the indexes of the database, as SQLite text; what the maker of the delivered file runs. Each
// column refuses, whoever writes, what its type can't hold: numbers beyond their range, texts and blobs in numbers,
// blobs in texts, texts that are no day in dates. Text columns ignore case, amounts are declared real and read as
// float32, dates are ISO text. Only what every SQLite has is used.
std::string schemaText();

}  // namespace torvane
