#include "support/data_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>

namespace torvane {

namespace fs = std::filesystem;

DataFolder::DataFolder() : path_((fs::temp_directory_path() / "torvane-XXXXXX").string()) {
    EXPECT_NE(nullptr, ::mkdtemp(path_.data()));
}

DataFolder::~DataFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string DataFolder::put(const char* delivered, const std::string& as) {
    fs::copy_file(fs::path(TORVANE_DELIVERED) / delivered, as, fs::copy_options::overwrite_existing);
    return as;
}

std::vector<std::string> DataFolder::rows(std::string_view select, const std::string& file) const {
    sqlite3* handle = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr)) << file;
    std::vector<std::string> all;
    const auto add = [](void* rows, int columns, char** cells, char**) {
        std::string& row = static_cast<std::vector<std::string>*>(rows)->emplace_back();
        for (int i = 0; i < columns; ++i) row.append(i > 0 ? "|" : "").append(cells[i] ? cells[i] : "null");
        return 0;
    };
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(handle, std::string(select).c_str(), add, &all, nullptr))
        << select << ": " << sqlite3_errmsg(handle);
    sqlite3_close(handle);
    return all;
}

std::string DataFolder::cell(std::string_view select) const {
    const auto all = rows(select);
    EXPECT_EQ(1U, all.size()) << select;
    return all.empty() ? std::string{} : all.front();
}

}  // namespace torvane
