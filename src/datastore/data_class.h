#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "datastore/environment.h"
#include "datastore/store.h"

namespace torvane {

// What all data classes have in common: a connection of their own for the object's whole life, one recordset for all
// queries, and the paged read of lists. None of them handles a failure: a refused statement, a Null where a value is
// needed and an overflow are RuntimeFailures that go up to the event.
class DataClass {
public:
    // Rows per page; copied from the host at construction.
    std::int16_t PageSize;
    // Rows of the last list read that found any.
    std::int16_t RecordCount = 0;

protected:
    // Opens the connection; a missing or damaged database is a RuntimeFailure.
    explicit DataClass(const Environment& environment);
    DataClass(const DataClass&) = delete;
    DataClass& operator=(const DataClass&) = delete;
    ~DataClass() = default;

    // Opens the recordset on a statement, closing it first if it is open.
    Recordset& read(std::string_view statement);
    // All rows of a statement, or nothing when there are none. Leaves the recordset closed.
    std::optional<RowArray> readRows(std::string_view statement);
    // Whether a statement has any row. Leaves the recordset closed.
    bool anyRow(std::string_view statement);
    // One page of a sorted list: see Recordset::readPage. Closes the recordset first if it is open.
    std::optional<RowArray> readPage(std::string_view statement, long Page, long& PageCount, std::string_view FldName,
                                     std::string_view AscOrDesc);
    // The same, with every row for Page -1.
    std::optional<RowArray> readPageOrAll(std::string_view statement, long Page, long& PageCount,
                                          std::string_view FldName, std::string_view AscOrDesc);

    Host& host_;
    Connection connection_;
    Recordset recordset_;
};

}  // namespace torvane
