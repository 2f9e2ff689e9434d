#include "datastore/store_file.h"

#include <sqlite3.h>
#include <unistd.h>

#include <utility>

#include "datastore/dialect.h"
#include "datastore/functions.h"
#include "files/file_copy.h"
#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr int patienceMilliseconds = 5000;  // with another program's lock
constexpr std::size_t mostCached = 64;
constexpr off_t smallestPage = 512;

enum class ColumnKind { Plain, Single, Date };

ColumnKind kindOf(const char* declared) {
    if (declared == nullptr) return ColumnKind::Plain;
    if (sqlite3_stricmp(declared, "real") == 0) return ColumnKind::Single;
    if (sqlite3_stricmp(declared, "date") == 0) return ColumnKind::Date;
    return ColumnKind::Plain;
}

Value dateOrText(std::string text) {
    if (const auto date = readDate(text); date && isoText(*date) == text) return *date;
    return text;
}

Value cell(sqlite3_stmt* statement, int column, ColumnKind kind) {
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_NULL:
            return Null{};
        case SQLITE_INTEGER:
            if (kind != ColumnKind::Single) return std::int64_t{sqlite3_column_int64(statement, column)};
            [[fallthrough]];
        case SQLITE_FLOAT: {
            const double number = sqlite3_column_double(statement, column);
            if (kind == ColumnKind::Single) return narrowToSingle(number);
            return number;
        }
        default: {
            const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            std::string text(bytes == nullptr ? "" : bytes,
                             static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
            if (kind == ColumnKind::Date) return dateOrText(std::move(text));
            return text;
        }
    }
}

// Column names as SQLite gives them; those that several columns bear are qualified by their tables.
std::vector<std::string> namesOf(sqlite3_stmt* statement) {
    const int count = sqlite3_column_count(statement);
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) {
        const char* name = sqlite3_column_name(statement, i);
        bool shared = false;
        for (int other = 0; other < count && !shared; ++other) {
            shared = other != i && sqlite3_stricmp(name, sqlite3_column_name(statement, other)) == 0;
        }
        const char* table = shared ? sqlite3_column_table_name(statement, i) : nullptr;
        names.push_back(table == nullptr ? std::string(name) : std::string(table) + '.' + name);
    }
    return names;
}

bool exists(const std::string& name) {
    return access(name.c_str(), F_OK) == 0;
}

// A name that SQLite can't take for one of its own kind, as ":memory:" or "file:".
std::string plainPath(const std::string& name) {
    return name.starts_with('/') ? name : "./" + name;
}

}  // namespace

// The files beside a database that SQLite plays into it when it opens it, and the index of the second.
struct StoreFile::Logs {
    explicit Logs(std::string database)
        : file(std::move(database)), names{file + "-journal", file + "-wal", file + "-shm"} {}
    bool any() const { return exists(names[0]) || exists(names[1]); }
    void remove() const {
        for (const std::string& name : names) unlink(name.c_str());
    }

    std::string file;
    std::string names[3];
};

struct StoreFile::Compiled {
    Compiled() = default;
    Compiled(const Compiled&) = delete;
    Compiled& operator=(const Compiled&) = delete;
    ~Compiled() { sqlite3_finalize(statement); }

    sqlite3_stmt* statement = nullptr;
    std::vector<std::string> names;
    std::vector<ColumnKind> kinds;
};

StoreFile::StoreFile(std::string name, ShortDate style) : name_(std::move(name)), style_(std::move(style)) {}

StoreFile::~StoreFile() {
    closeHandle();
}

std::optional<StoreFile::Identity> StoreFile::identify() const {
    struct stat status {};
    if (stat(name_.c_str(), &status) != 0) return std::nullopt;
    return Identity{status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void StoreFile::failed(std::string_view refused) const {
    throw RuntimeFailure(sqlite3_errcode(handle_), sqlite3_errmsg(handle_), std::string(refused));
}

void StoreFile::openHandle() {
    closeHandle();
    ++writes_;
    const auto before = identify();
    if (!before) throw RuntimeFailure(SQLITE_CANTOPEN, "unable to open database file", name_);
    // SQLite takes a file that is shorter than any page for a new database.
    if (before->size < smallestPage) throw RuntimeFailure(SQLITE_NOTADB, "file is not a database", name_);

    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    const int opened = sqlite3_open_v2(plainPath(name_).c_str(), &handle_, flags, nullptr);
    try {
        if (opened != SQLITE_OK || !addFunctions(handle_) || !guardHandle(handle_, gate_)) failed(name_);
        sqlite3_busy_timeout(handle_, patienceMilliseconds);
        // The first reading plays an interrupted write back and finds out whether this is a database. A foreign file
        // may have been kept with a write-ahead log, which a copy of the one file would leave behind.
        runPastGate("select count(*) from sqlite_schema; pragma journal_mode = delete; pragma synchronous = full");
    } catch (...) {
        closeHandle();
        throw;
    }
    identity_ = *before;
    renewIdentity();
}

void StoreFile::closeHandle() {
    cache_.clear();
    sqlite3_close(handle_);
    handle_ = nullptr;
}

// After a write of our own. Another file by the same name is left for the next statement to find.
void StoreFile::renewIdentity() {
    if (const auto now = identify(); now && now->sameFile(identity_)) identity_ = *now;
}

void StoreFile::ready() {
    const auto now = identify();
    if (handle_ != nullptr && inGroup()) {
        if (sqlite3_get_autocommit(handle_) != 0) {
            throw RuntimeFailure(SQLITE_ABORT, "the write group was undone by the database", name_);
        }
        // Within a group the file may well change by our own writes.
        if (now && now->sameFile(identity_)) return;
        throw RuntimeFailure(SQLITE_READONLY, "the database file was replaced during a write group", name_);
    }
    if (handle_ == nullptr || now != identity_) openHandle();
}

void StoreFile::runPastGate(const char* sql) {
    gate_.open = true;
    const int result = sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr);
    gate_.open = false;
    if (result != SQLITE_OK) failed(name_);
}

std::unique_ptr<StoreFile::Compiled> StoreFile::compile(std::string_view statement) {
    const std::string sql = translate(statement, style_);
    auto compiled = std::make_unique<Compiled>();
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &compiled->statement, &tail) != SQLITE_OK) failed(statement);
    const auto refuse = [&](const char* why) { throw RuntimeFailure(SQLITE_ERROR, why, std::string(statement)); };
    if (compiled->statement == nullptr) refuse("an empty statement");
    if (*tail != '\0') refuse("text behind the statement");
    if (sqlite3_bind_parameter_count(compiled->statement) != 0) refuse("a parameter in the statement");
    return compiled;
}

StoreFile::Compiled& StoreFile::cached(std::string_view statement) {
    if (const auto found = cache_.find(statement); found != cache_.end()) return *found->second;
    auto compiled = compile(statement);
    const int columns = sqlite3_column_count(compiled->statement);
    if (columns == 0 || sqlite3_stmt_readonly(compiled->statement) == 0) fail(Failure::InvalidCall, statement);
    compiled->names = namesOf(compiled->statement);
    for (int i = 0; i < columns; ++i)
        compiled->kinds.push_back(kindOf(sqlite3_column_decltype(compiled->statement, i)));
    if (cache_.size() == mostCached) cache_.clear();
    return *(cache_[std::string(statement)] = std::move(compiled));
}

RowArray StoreFile::query(std::string_view statement) {
    ready();
    const Compiled& compiled = cached(statement);
    // A statement that is not reset would hold its lock on the file.
    const struct Reset {
        sqlite3_stmt* statement;
        ~Reset() { sqlite3_reset(statement); }
    } reset{compiled.statement};

    std::vector<Value> cells;
    const int columns = static_cast<int>(compiled.kinds.size());
    int step = SQLITE_ROW;
    while ((step = sqlite3_step(compiled.statement)) == SQLITE_ROW) {
        for (int i = 0; i < columns; ++i) {
            cells.push_back(cell(compiled.statement, i, compiled.kinds[static_cast<std::size_t>(i)]));
        }
    }
    if (step != SQLITE_DONE) failed(statement);
    return {compiled.names, std::move(cells)};
}

void StoreFile::execute(std::string_view statement) {
    ready();
    const auto compiled = compile(statement);
    if (sqlite3_column_count(compiled->statement) != 0) fail(Failure::InvalidCall, statement);
    ++writes_;
    if (sqlite3_step(compiled->statement) != SQLITE_DONE) failed(statement);
    if (sqlite3_get_autocommit(handle_) != 0) renewIdentity();
}

void StoreFile::beginGroup() {
    if (depth_ == 0) {
        ready();
        runPastGate("begin immediate");
    }
    ++depth_;
}

void StoreFile::endGroup() {
    if (depth_ > 1) {
        --depth_;
        return;
    }
    try {
        ready();
        commit();
    } catch (...) {
        // No group is left, and no half of one, whatever state the failure has brought about.
        --depth_;
        closeHandle();
        throw;
    }
    --depth_;
}

void StoreFile::commit() {
    runPastGate("commit");
    renewIdentity();
}

void StoreFile::commitEarly() {
    if (!inGroup()) return;
    ready();
    commit();
}

void StoreFile::settle() {
    if (inGroup()) throw RuntimeFailure(SQLITE_BUSY, "a write group is open", name_);
    closeHandle();
    const Logs logs(plainPath(followed(name_)));  // SQLite names them after the file that a link leads to
    try {
        if (exists(logs.file)) playBack(logs);
    } catch (const RuntimeFailure& failure) {
        // Nothing can be played back into a file that is no database. One that is damaged or read-only has nothing to
        // wait for when no log stands beside it.
        const bool waits = (failure.number() != SQLITE_CORRUPT && failure.number() != SQLITE_READONLY) || logs.any();
        if (failure.number() != SQLITE_NOTADB && waits) throw;
        logs.remove();
    }
    if (!exists(logs.file)) logs.remove();
    // One that stays would be played into the file that comes.
    if (logs.any()) throw RuntimeFailure(SQLITE_IOERR, "a journal can't be removed", name_);
}

void StoreFile::playBack(const Logs& logs) {
    const struct Close {
        StoreFile& file;
        ~Close() { file.closeHandle(); }
    } close{*this};
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(logs.file.c_str(), &handle_, flags, nullptr) != SQLITE_OK) failed(name_);
    sqlite3_busy_timeout(handle_, patienceMilliseconds);
    runPastGate("pragma journal_mode = delete; begin exclusive");
    // Whatever still stands under this lock has nothing to play back.
    logs.remove();
    runPastGate("rollback");
}

}  // namespace torvane
