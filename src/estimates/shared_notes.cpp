#include "estimates/shared_notes.h"

#include "datastore/store.h"

namespace torvane {

std::string readSharedNotes(Connection& connection) {
    Recordset notes;
    notes.open("Select * from BlankNotes", connection);
    return textOf(notes.field(0));
}

void writeSharedNotes(Connection& connection, std::string_view text) {
    std::string statement = "Update BlankNotes set Notes='";
    for (const char c : text) statement.append(c == '\'' ? 2 : 1, c);
    connection.execute(statement + "'");
}

}  // namespace torvane
