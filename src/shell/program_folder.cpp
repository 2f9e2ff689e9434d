#include "shell/program_folder.h"

#include <filesystem>
#include <system_error>

#include "datastore/data_access.h"
#include "files/file_copy.h"

namespace torvane {

namespace fs = std::filesystem;

namespace {

// What is used where it is installed and needs no link.
bool staysBehind(const std::string& name) {
    return name == databaseName || name == "per-user" || name == "torvane";
}

// A name that can't be looked at counts as one that is there.
bool isFree(const fs::path& name) {
    std::error_code unknown;
    return fs::symlink_status(name, unknown).type() == fs::file_type::not_found;
}

bool leadsNowhere(const fs::path& name) {
    std::error_code unknown;
    return fs::symlink_status(name, unknown).type() == fs::file_type::symlink &&
           fs::status(name, unknown).type() == fs::file_type::not_found;
}

void link(const fs::path& installed, const fs::path& folder) {
    std::error_code failed;
    const fs::directory_iterator end;
    for (fs::directory_iterator file(installed, failed); !failed && file != end; file.increment(failed)) {
        const std::string name = file->path().filename().string();
        const fs::path here = folder / name;
        if (staysBehind(name)) continue;
        std::error_code passedOver;
        if (leadsNowhere(here)) fs::remove(here, passedOver);
        if (isFree(here)) fs::create_symlink(file->path(), here, passedOver);
    }
}

void make(FileSystem& files, const fs::path& installed, const fs::path& folder) {
    std::error_code failed;
    const fs::path fresh = folder.string() + ".new";
    fs::create_directories(fresh, failed);
    if (!copyFile(files, (installed / databaseName).string(), (fresh / databaseName).string())) return;
    // The delivered one may be write-protected; this one is the user's.
    fs::permissions(fresh / databaseName, fs::perms::owner_write, fs::perm_options::add, failed);
    fs::rename(fresh, folder, failed);
}

}  // namespace

std::string programFolder(FileSystem& files, const std::string& installed, const std::string& ofUser) {
    if (!files.exists(installed + "/per-user")) return installed;
    if (isFree(ofUser)) make(files, installed, ofUser);
    link(installed, ofUser);
    return ofUser;
}

}  // namespace torvane
