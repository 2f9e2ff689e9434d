#pragma once

#include <string>
#include <string_view>

namespace torvane {

class Connection;

// The shared notes area: one text, in the one row of its table. The only text of the system whose apostrophes are
// doubled on their way into a statement.

// Failure::InvalidCall when the row is missing, Failure::NullValue when its text is Null.
std::string readSharedNotes(Connection& connection);
void writeSharedNotes(Connection& connection, std::string_view text);

}  // namespace torvane
