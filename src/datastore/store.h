#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/rows.h"
#include "values/dates.h"
#include "values/value.h"

namespace torvane {

// The connection text that every connection of the system uses.
std::string connectionText(std::string_view programDirectory);
// The file that a connection text names. Failure::InvalidCall when it names none.
std::string dataSource(std::string_view connectionText);

class StoreFile;
class WriteGroup;

// The one door to SQLite, made once per program and once per test. All connections to one file share one handle, so a
// write through one of them is seen by all at the next query; the handle is opened with the first connection and closed
// with the last. When another file has been put in its place (a restored backup) the next statement opens that one.
class Store {
public:
    explicit Store(ShortDate style = {});
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // Commits every open write group; called before the program ends by a failure. Never throws.
    void commitOpenGroups() noexcept;

    // Closes the handle of a file for the time in which it is copied or replaced: an interrupted write is played back
    // first (so that the file is whole and no journal stands beside it), connections stay open in name and reopen at
    // their next statement. Failure as of any statement when the file is there but can't be settled, is busy, or a
    // write group is open, and when a journal can't be removed. A missing file is no failure, nor is one that is no
    // database: nothing can be played back into it, and a journal beside it is removed. Nor is one that is damaged or
    // read-only, when no journal stands beside it.
    void settle(const std::string& file);

private:
    friend class Connection;
    struct Files;
    std::unique_ptr<Files> files_;
};

// One connection of one object. Statements are texts in the system's dialect; a text that the engine refuses, more than
// one statement, a remark, and anything that reaches outside the file (attach, pragma, schema changes) is a
// RuntimeFailure with the engine's number and text and the statement; nothing has been changed by it then.
class Connection {
public:
    explicit Connection(Store& store);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Opens the file that the text names. A missing or damaged file is a RuntimeFailure with its name in refused();
    // none is created. Failure::InvalidCall when it is open already.
    void open(std::string_view connectionText);
    void close();
    // 1 open, 0 closed.
    int state() const { return file_ ? 1 : 0; }

    // Carries out one statement that gives no rows (insert, update, delete). It takes effect at once, or with the write
    // group that is open. Failure::InvalidCall on a closed connection, or for a statement that gives rows.
    void execute(std::string_view statement);

private:
    friend class Recordset;
    friend class WriteGroup;
    StoreFile& file() const;
    Store& store_;
    std::shared_ptr<StoreFile> file_;
};

// The rows of one statement, fetched when it opens; it holds nothing of the file afterwards. The page size that it was
// last given is remembered over closing and opening.
class Recordset {
public:
    Recordset() = default;

    // Failure::InvalidCall when it is open already, on a closed connection, and for a statement that gives no rows; it
    // stays as it was then, and nothing has been executed. Column names are those of the statement; a name that several
    // columns bear is qualified as table.column.
    void open(std::string_view statement, Connection& connection);
    void close();
    int state() const { return open_ ? 1 : 0; }

    bool eof() const { return row_ >= rowCount_; }
    // Failure::InvalidCall behind the last row.
    void moveNext();
    long recordCount() const { return rowCount_; }
    // Position from 1, as set by opening, moveNext and the setter; setting outside 1..recordCount is InvalidCall.
    long absolutePosition() const { return row_ + 1; }
    void setAbsolutePosition(long position);

    // A cell of the current row, by name (without regard to case) or by number from 0. Failure::InvalidCall when there
    // is no current row or no such column.
    const Value& field(std::string_view name) const;
    const Value& field(int index) const;
    const std::vector<std::string>& names() const { return names_; }

    // All rows from the current one on, or nothing when there are none; moves behind the last row.
    std::optional<RowArray> getRows();

    // One page of a sorted list, read as a page: the count and the rows of the page, in one fixed order over all pages
    // (rows that tie keep the order of the statement's first column). Leaves the recordset closed.
    //   statement   without an order clause; the clause " order by <FldName>", with " Desc" unless AscOrDesc is "A", is
    //               appended to it
    //   Page        from 1; below 1 (of a statement with rows) is Failure::InvalidCall, with the parameters untouched.
    //               It is positioned by the page size that stood before this read, 10 for the first read of the
    //               instance; from now on by PageSize
    //   PageCount, RecordCount   stay untouched when the statement has no rows at all; the count is narrowed to 16 bits
    //               with Failure::Overflow
    // Result: the rows; an empty array for a page past the end; nothing when there are no rows at all.
    std::optional<RowArray> readPage(std::string_view statement, std::string_view FldName, std::string_view AscOrDesc,
                                     Connection& connection, long Page, std::int16_t PageSize, long& PageCount,
                                     std::int16_t& RecordCount);
    // The same without paging, for the lists that may ask for page -1: every row; PageCount is that of the page size in
    // force, which stays.
    std::optional<RowArray> readAll(std::string_view statement, std::string_view FldName, std::string_view AscOrDesc,
                                    Connection& connection, long& PageCount, std::int16_t& RecordCount);

private:
    void require(bool condition) const;
    std::vector<std::string> names_;
    std::vector<Value> cells_;
    long rowCount_ = 0;
    long row_ = 0;
    bool open_ = false;
    std::int16_t pageSize_ = 10;
};

// The statements of one operation, flushed to the disk once. Each takes effect at once for every reader of this
// program; on the disk they arrive together, so a killed process leaves all of them or none. When the body fails, what
// was executed before is committed and the failure goes on. Groups inside a group join it. A commit that fails is a
// RuntimeFailure, and nothing of the group remains.
void grouped(Connection& connection, const std::function<void()>& body);

}  // namespace torvane
