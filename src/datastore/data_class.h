#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/data_access.h"
#include "datastore/store.h"

namespace torvane {

// What all data classes have in common: a connection of their own for the object's whole life, queries, and the paged
// read of lists. None of them handles a failure: a refused statement, a Null where a value is needed and an overflow
// are RuntimeFailures that go up to the event.
class DataClass {
public:
    // Rows per page; copied from the host at construction.
    std::int16_t PageSize;
    // Rows of the last list read that found any.
    std::int16_t RecordCount = 0;

    // For an idle moment: reads what the next page of the list that was read last would wait for. A failure is that of
    // the next page, and told by it.
    void readAhead();

protected:
    // Opens the connection; a missing or damaged database is a RuntimeFailure.
    explicit DataClass(const DataAccess& access);
    ~DataClass() = default;

    // All rows of a statement.
    RowArray query(std::string_view statement);
    // The same as the lists of drop-down boxes are given: nothing when there are no rows.
    ListRows readRows(std::string_view statement);

    // One page of a sorted list, read as a page: the count and the rows of the page, in one fixed order over all pages
    // (rows that tie keep the order of the statement's first column).
    //   statement   without an order clause; the clause " order by <FldName>", with " Desc" unless AscOrDesc is "A", is
    //               appended to it
    //   Page        from 1; below 1 (of a statement with rows) is Failure::InvalidCall, with the parameters untouched.
    //               It is positioned by the page size that stood before this read, 10 for the first read of the
    //               instance; from now on by PageSize
    //   PageCount, RecordCount   stay untouched when the statement has no rows at all; the count is narrowed to 16 bits
    //               with Failure::Overflow
    // Result: the rows; an empty array for a page past the end; nothing when there are no rows at all.
    ListRows readPage(std::string_view statement, long Page, long& PageCount, std::string_view FldName,
                      std::string_view AscOrDesc);
    // The same, with every row for Page -1; PageCount is that of the page size in force, which stays.
    ListRows readPageOrAll(std::string_view statement, long Page, long& PageCount, std::string_view FldName,
                           std::string_view AscOrDesc);

    Host& host_;
    Connection connection_;
    // A class has one recordset, and every query closes it first. Set by an operation that leaves it open, for the one
    // that does not close it.
    bool leftOpen_ = false;

private:
    // The list that was read last, whose pages are fetched by their keys from the second read on, as long as nothing is
    // written: sorting all rows for each page would cost more with each page.
    struct Kept {
        std::string ordered;  // the statement with its order
        std::string key;      // its first column
        std::uint64_t writes = 0;
        std::vector<std::string> keys;  // of every row, in order; empty before the second read
    };
    bool isKept(const std::string& ordered);
    void readKeys();
    RowArray keptPage(std::size_t first);

    Kept kept_;
    std::int16_t positionedBy_ = 10;
};

}  // namespace torvane
