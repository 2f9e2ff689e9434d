#include "shell/program_folder.h"

#include <filesystem>
#include <system_error>

#include "datastore/file_copy.h"

namespace torvane {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view database = "Larkfen.mdb";

// What is used where it is installed and needs no link.
bool staysBehind(const std::string& name) {
    return name == database || name == "per-user" || name == "torvane";
}

void link(const fs::path& installed, const fs::path& folder) {
    std::error_code failed;
    for (const fs::directory_entry& file : fs::directory_iterator(installed, failed)) {
        const std::string name = file.path().filename().string();
        const fs::path here = folder / name;
        if (staysBehind(name) || fs::exists(here, failed)) continue;
        fs::remove(here, failed);  // a link that leads nowhere
        fs::create_symlink(file.path(), here, failed);
    }
}

void make(FileSystem& files, const fs::path& installed, const fs::path& folder) {
    std::error_code failed;
    const fs::path fresh = folder.string() + ".new";
    fs::create_directories(fresh, failed);
    if (copyFile(files, (installed / database).string(), (fresh / database).string()))
        fs::rename(fresh, folder, failed);
}

}  // namespace

std::string programFolder(FileSystem& files, const std::string& installed, const std::string& ofUser) {
    if (!files.exists(installed + "/per-user")) return installed;
    if (std::error_code failed; !fs::exists(ofUser, failed)) make(files, installed, ofUser);
    link(installed, ofUser);
    return ofUser;
}

}  // namespace torvane
