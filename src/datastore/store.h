#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "datastore/data_access.h"
#include "datastore/rows.h"
#include "values/dates.h"

namespace torvane {

class StoreFile;

// The one door to SQLite, made once per program and once per test. All connections to one file share one handle, so a
// write through one of them is seen by all at the next query; the handle is opened with the first connection and closed
// with the last. When another file has been put in its place (a restored backup) the next statement opens that one.
class Store {
public:
    explicit Store(ShortDate style = {});
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // Commits every open write group; the last thing that is written before the program ends by a failure. Never throws.
    void commitOpenGroups() noexcept;

    // Closes the handle of a file for the time in which it is copied or replaced: an interrupted write is played back
    // first (so that the file is whole and no journal stands beside it), connections stay and reopen it at their next
    // statement. Failure as of any statement when the file is there but can't be settled, is busy, or a write group is
    // open, and when a journal can't be removed. A missing file is no failure, nor is one that is no database: nothing
    // can be played back into it, and a journal beside it is removed. Nor is one that is damaged or read-only, when no
    // journal stands beside it.
    void settle(const std::string& file);

private:
    friend class Connection;
    std::shared_ptr<StoreFile> file(const std::string& name);
    ShortDate style_;
    std::map<std::string, std::weak_ptr<StoreFile>> files_;
};

// One connection of one object to the program's database, open as long as it lives. Statements are texts in the
// system's dialect; a text that the engine refuses, more than one statement, a remark, and anything that reaches
// outside the file (attach, pragma, schema changes) is a RuntimeFailure with the engine's number and text and the
// statement; nothing has been changed by it then.
class Connection {
public:
    // A missing or damaged file is a RuntimeFailure with its name in refused(); none is created.
    // A copy is a further connection, which is open at once.
    explicit Connection(const DataAccess& access);

    // All rows of a statement. Failure::InvalidCall, with nothing executed, for one that gives no rows.
    RowArray query(std::string_view statement);
    // Carries out one statement that gives no rows (insert, update, delete). It takes effect at once, or with the write
    // group that is open. Failure::InvalidCall for a statement that gives rows.
    void execute(std::string_view statement);
    // Rises with each write to the file, by whomever: what was read at the same count still stands.
    std::uint64_t writes();

private:
    friend void grouped(Connection& connection, const std::function<void()>& body);
    std::shared_ptr<StoreFile> file_;
};

// The statements of one operation, flushed to the disk once. Each takes effect at once for every reader of this
// program; on the disk they arrive together, so a killed process leaves all of them or none. When the body fails, what
// was executed before is committed and the failure goes on. Groups inside a group join it. A commit that fails is a
// RuntimeFailure, and nothing of the group remains.
void grouped(Connection& connection, const std::function<void()>& body);

}  // namespace torvane
