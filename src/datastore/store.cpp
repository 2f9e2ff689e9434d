#include "datastore/store.h"

#include "datastore/store_file.h"

namespace torvane {

Store::Store(ShortDate style) : style_(std::move(style)) {}

Store::~Store() = default;

std::shared_ptr<StoreFile> Store::file(const std::string& name) {
    std::weak_ptr<StoreFile>& known = files_[name];
    std::shared_ptr<StoreFile> file = known.lock();
    if (!file) known = file = std::make_shared<StoreFile>(name, style_);
    return file;
}

void Store::commitOpenGroups() noexcept {
    for (const auto& [name, known] : files_) {
        try {
            if (const auto file = known.lock()) file->commitEarly();
        } catch (const std::exception&) {
            // The program is ending already; the group's end would tell the same failure.
        }
    }
}

void Store::settle(const std::string& name) {
    file(name)->settle();
}

Connection::Connection(const DataAccess& access) : file_(access.store.file(access.database())) {
    file_->ready();
}

RowArray Connection::query(std::string_view statement) {
    return file_->query(statement);
}

void Connection::execute(std::string_view statement) {
    file_->execute(statement);
}

std::uint64_t Connection::writes() {
    file_->ready();
    return file_->writes();
}

void grouped(Connection& connection, const std::function<void()>& body) {
    // Kept for the length of the group, whatever becomes of the connection meanwhile.
    const std::shared_ptr<StoreFile> file = connection.file_;
    file->beginGroup();
    try {
        body();
    } catch (...) {
        try {
            file->endGroup();
        } catch (const RuntimeFailure&) {
            // The failure of the body came first and is the one to tell.
        }
        throw;
    }
    file->endGroup();
}

}  // namespace torvane
