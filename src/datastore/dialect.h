#pragma once

#include <string>
#include <string_view>

#include "values/dates.h"

namespace torvane {

// The statement as SQLite reads it. A RuntimeFailure, with the statement in refused(), for a date literal that is no
// date, a remark, text behind the statement, and a NUL byte; what is wrong otherwise is left to SQLite to refuse.
std::string translate(std::string_view statement, const ShortDate& style);

}  // namespace torvane
