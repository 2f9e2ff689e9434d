#include "support/data_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>

namespace torvane {

namespace {

class Handle {
public:
    explicit Handle(const std::string& file) {
        EXPECT_EQ(SQLITE_OK, sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr)) << file;
    }
    ~Handle() { sqlite3_close(handle_); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    operator sqlite3*() const { return handle_; }

private:
    sqlite3* handle_ = nullptr;
};

}  // namespace

DataFolder::DataFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "torvane-XXXXXX").string();
    const char* made = ::mkdtemp(name.data());
    EXPECT_NE(nullptr, made);
    path_ = name;
}

DataFolder::~DataFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string DataFolder::useEmpty() {
    return put("/Larkfen.mdb");
}

std::string DataFolder::useSample() {
    return put("/Sample.bak");
}

std::string DataFolder::put(const char* delivered) {
    std::filesystem::copy_file(std::string(TORVANE_DELIVERED) + delivered, database(),
                               std::filesystem::copy_options::overwrite_existing);
    return database();
}

void DataFolder::useHelpBook() {
    std::filesystem::copy_file(TORVANE_DELIVERED "/LARKFENVERSION2.HLP", helpBook());
}

void DataFolder::execute(std::string_view statements) const {
    const Handle handle(database());
    char* message = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(handle, std::string(statements).c_str(), nullptr, nullptr, &message))
        << statements << ": " << (message ? message : "");
    sqlite3_free(message);
}

std::vector<std::string> DataFolder::rows(std::string_view select, const std::string& file) const {
    const Handle handle(file);
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(SQLITE_OK,
              sqlite3_prepare_v2(handle, select.data(), static_cast<int>(select.size()), &statement, nullptr))
        << select << ": " << sqlite3_errmsg(handle);
    std::vector<std::string> all;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        std::string& row = all.emplace_back();
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            row += (column > 0 ? "|" : "") + std::string(text ? text : "null");
        }
    }
    sqlite3_finalize(statement);
    return all;
}

std::string DataFolder::cell(std::string_view select) const {
    const auto all = rows(select);
    EXPECT_EQ(1U, all.size()) << select;
    return all.empty() ? std::string{} : all.front();
}

}  // namespace torvane
