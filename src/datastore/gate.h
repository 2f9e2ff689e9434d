#pragma once

struct sqlite3;

namespace torvane {

// What a statement may do on an open database: read and write rows of its tables with a handful of functions, nothing
// else. The authorizer is set once, since each setting compiles every cached statement anew; the program's own
// transactions and settings pass while it is open.
struct Gate {
    bool open = false;
};

// Takes away what reaches outside the file, and puts the gate in place. `gate` must live as long as the handle. False
// when SQLite refuses any of it; the handle tells why.
bool guardHandle(sqlite3* handle, Gate& gate);

}  // namespace torvane
