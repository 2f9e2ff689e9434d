#include "estimates/shared_notes.h"

#include "datastore/store.h"

namespace torvane {

std::string readSharedNotes(Connection& connection) {
    const RowArray notes = connection.query("Select * from BlankNotes");
    if (notes.empty()) fail(Failure::InvalidCall);
    return textOf(notes(0, 0));
}

void writeSharedNotes(Connection& connection, std::string_view text) {
    std::string statement = "Update BlankNotes set Notes='";
    for (const char c : text) statement.append(c == '\'' ? 2 : 1, c);
    connection.execute(statement + "'");
}

}  // namespace torvane
