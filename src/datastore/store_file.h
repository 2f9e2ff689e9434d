#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "datastore/gate.h"
#include "datastore/rows.h"
#include "values/dates.h"

struct sqlite3;
struct sqlite3_stmt;

namespace torvane {

// One database file and the handle that all connections to it share. The handle is opened at the first statement, and
// anew when another file stands in the place. Neither the application id nor the version in the file is asked then: any
// database with the tables works, and another one fails its first statement, with nothing in it changed. Every failure
// is a RuntimeFailure with SQLite's primary result code.
class StoreFile {
public:
    StoreFile(std::string name, ShortDate style);
    ~StoreFile();
    StoreFile(const StoreFile&) = delete;
    StoreFile& operator=(const StoreFile&) = delete;

    // Sees to it that the handle is open on the file that bears the name now.
    void ready();
    void execute(std::string_view statement);
    RowArray query(std::string_view statement);
    // Writes tried and files opened so far; another program's write opens the file anew.
    std::uint64_t writes() const { return writes_; }

    // Groups nest; only the outermost one writes. A failed start leaves no group, a failed end has undone the group.
    void beginGroup();
    void endGroup();
    // Commits what the open group has executed so far; statements that still follow take effect one by one.
    void commitEarly();

    // See Store::settle.
    void settle();

private:
    struct Compiled;
    struct Logs;
    struct Identity {
        dev_t device = 0;
        ino_t inode = 0;
        off_t size = 0;
        time_t changed = 0;
        long nanoseconds = 0;

        bool operator==(const Identity&) const = default;
        bool sameFile(const Identity& other) const { return device == other.device && inode == other.inode; }
    };

    bool inGroup() const { return depth_ > 0; }
    std::optional<Identity> identify() const;
    void openHandle();
    void closeHandle();
    // Lets SQLite play an interrupted write back, and closes the file again.
    void playBack(const Logs& logs);
    void renewIdentity();
    std::unique_ptr<Compiled> compile(std::string_view statement);
    Compiled& cached(std::string_view statement);
    // Runs statements of our own, which the gate lets through.
    void runPastGate(const char* sql);
    void commit();
    [[noreturn]] void failed(std::string_view refused) const;

    std::string name_;
    ShortDate style_;
    sqlite3* handle_ = nullptr;
    Gate gate_;
    Identity identity_;
    std::map<std::string, std::unique_ptr<Compiled>, std::less<>> cache_;
    std::uint64_t writes_ = 0;
    int depth_ = 0;
};

}  // namespace torvane
