#include "datastore/store.h"

#include <sqlite3.h>

#include <map>
#include <utility>

#include "datastore/store_file.h"

namespace torvane {

namespace {

constexpr std::string_view sourceKey = "Data Source=";
constexpr std::string_view securityKey = ";Persist Security Info=";

}  // namespace

std::string connectionText(std::string_view programDirectory) {
    return std::string("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + std::string(programDirectory) +
           "\\Larkfen.mdb;Persist Security Info=False";
}

std::string dataSource(std::string_view connectionText) {
    const std::size_t key = connectionText.find(sourceKey);
    if (key == std::string_view::npos) fail(Failure::InvalidCall, connectionText);
    std::string_view rest = connectionText.substr(key + sourceKey.size());
    // A folder's name may hold semicolons, so the end is sought from behind.
    std::size_t end = rest.rfind(securityKey);
    if (end == std::string_view::npos) end = rest.find(';');
    std::string source(rest.substr(0, end));
    if (source.empty()) fail(Failure::InvalidCall, connectionText);
    if (const std::size_t separator = source.rfind('\\'); separator != std::string::npos) source[separator] = '/';
    return source;
}

struct Store::Files {
    explicit Files(ShortDate shortDate) : style(std::move(shortDate)) {}

    std::shared_ptr<StoreFile> file(const std::string& name) {
        std::weak_ptr<StoreFile>& known = byName[name];
        std::shared_ptr<StoreFile> file = known.lock();
        if (!file) {
            file = std::make_shared<StoreFile>(name, style);
            known = file;
        }
        return file;
    }

    ShortDate style;
    std::map<std::string, std::weak_ptr<StoreFile>> byName;
};

Store::Store(ShortDate style) : files_(std::make_unique<Files>(std::move(style))) {}

Store::~Store() = default;

void Store::commitOpenGroups() noexcept {
    for (const auto& [name, known] : files_->byName) {
        try {
            if (const auto file = known.lock()) file->commitEarly();
        } catch (const std::exception&) {
            // The program is ending already; the group's end would tell the same failure.
        }
    }
}

void Store::settle(const std::string& file) {
    files_->file(file)->settle();
}

Connection::Connection(Store& store) : store_(store) {}

Connection::~Connection() = default;

void Connection::open(std::string_view connectionText) {
    if (file_) fail(Failure::InvalidCall, connectionText);
    auto file = store_.files_->file(dataSource(connectionText));
    file->ready();
    file_ = std::move(file);
}

void Connection::close() {
    file_.reset();
}

StoreFile& Connection::file() const {
    if (!file_) fail(Failure::InvalidCall);
    return *file_;
}

void Connection::execute(std::string_view statement) {
    file().execute(statement);
}

// Keeps the file's handle for the length of a group, whatever becomes of the connection meanwhile.
class WriteGroup {
public:
    explicit WriteGroup(const Connection& connection) : file_(connection.file_) {
        if (!file_) fail(Failure::InvalidCall);
        file_->beginGroup();
    }
    WriteGroup(const WriteGroup&) = delete;
    WriteGroup& operator=(const WriteGroup&) = delete;

    void end() { file_->endGroup(); }

private:
    std::shared_ptr<StoreFile> file_;
};

void grouped(Connection& connection, const std::function<void()>& body) {
    WriteGroup group(connection);
    try {
        body();
    } catch (...) {
        try {
            group.end();
        } catch (const RuntimeFailure&) {
            // The failure of the body came first and is the one to tell.
        }
        throw;
    }
    group.end();
}

}  // namespace torvane
