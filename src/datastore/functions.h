#pragma once

struct sqlite3;

namespace torvane {

// Gives an open database the functions that statements of the system call: Val, cdbl and isnumeric. Also puts the
// letters of all scripts in the place of ASCII alone where SQLite has no regard to case: in LIKE, and in the collation
// NOCASE of all text columns. That is a name that every SQLite tool knows, so the file stays everybody's; an index by
// it would not, for tools would keep it in another order. False when SQLite refuses; the handle tells why.
bool addFunctions(sqlite3* handle);

}  // namespace torvane
