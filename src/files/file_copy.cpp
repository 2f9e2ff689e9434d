#include "files/file_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace torvane {

bool FileSystem::exists(const std::string& name) {
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool FileSystem::protectedFile(const std::string& name) {
    struct stat status {};
    if (::stat(name.c_str(), &status) != 0) return false;
    return !S_ISREG(status.st_mode) || ::access(name.c_str(), W_OK) != 0;
}

int FileSystem::openToRead(const std::string& name) {
    return ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
}

int FileSystem::openFresh(const std::string& beside, std::string& fresh) {
    fresh = (std::filesystem::path(beside).parent_path() / "Torvane-XXXXXX").string();
    return ::mkostemp(fresh.data(), O_CLOEXEC);
}

void FileSystem::setPermissions(int file, const std::string& target, const std::string& model) {
    struct stat status {};
    if (::stat(target.c_str(), &status) == 0) {
        // A disk without owners, or a user who may not give files away, is no reason to fail.
        [[maybe_unused]] const int owner = ::fchown(file, status.st_uid, status.st_gid);
    } else if (model.empty() || ::stat(model.c_str(), &status) != 0) {
        constexpr mode_t everybodys = 0666;
        const mode_t mask = ::umask(0);
        ::umask(mask);
        status.st_mode = everybodys & ~mask;
    }
    ::fchmod(file, status.st_mode & 07777);
}

long FileSystem::read(int file, char* bytes, std::size_t count) {
    return TEMP_FAILURE_RETRY(::read(file, bytes, count));
}

bool FileSystem::write(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = TEMP_FAILURE_RETRY(::write(file, bytes.data(), bytes.size()));
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool FileSystem::sync(int file) {
    return ::fsync(file) == 0;
}

void FileSystem::close(int file) {
    ::close(file);
}

bool FileSystem::rename(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

bool FileSystem::syncFolder(const std::string& folder) {
    const int handle = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return false;
    // A network disk may have no such flush for folders.
    const bool done = ::fsync(handle) == 0 || errno == EINVAL;
    ::close(handle);
    return done;
}

bool FileSystem::remove(const std::string& name) {
    return ::unlink(name.c_str()) == 0;
}

std::string followed(const std::string& name) {
    constexpr int mostLinks = 40;  // as the system itself goes
    std::filesystem::path path = name;
    for (int links = 0; links <= mostLinks; ++links) {
        std::error_code noLink;
        const std::filesystem::path to = std::filesystem::read_symlink(path, noLink);
        if (noLink) return path.string();
        path = path.parent_path() / to;
    }
    return {};
}

namespace {

bool copyBytes(FileSystem& files, int source, int target) {
    std::array<char, 1 << 16> bytes;
    for (;;) {
        const long got = files.read(source, bytes.data(), bytes.size());
        if (got <= 0) return got == 0;
        if (!files.write(target, {bytes.data(), static_cast<std::size_t>(got)})) return false;
    }
}

template <class Fill>
bool replaceFile(FileSystem& files, const std::string& name, const std::string& model, Fill fill) {
    const std::string target = followed(name);
    if (target.empty() || files.protectedFile(target)) return false;
    std::string fresh;
    const int file = files.openFresh(target, fresh);
    if (file < 0) return false;
    files.setPermissions(file, target, model);
    bool done = fill(file) && files.sync(file);
    files.close(file);
    done = done && files.rename(fresh, target);
    if (!done) files.remove(fresh);
    return done && files.syncFolder(std::filesystem::path(target).parent_path().string());
}

}  // namespace

bool copyFile(FileSystem& files, const std::string& from, const std::string& to) {
    const int source = files.openToRead(from);
    if (source < 0) return false;
    const bool done = replaceFile(files, to, from, [&](int target) { return copyBytes(files, source, target); });
    files.close(source);
    return done;
}

bool writeFile(FileSystem& files, const std::string& to, std::string_view content) {
    return replaceFile(files, to, "", [&](int target) { return files.write(target, content); });
}

}  // namespace torvane
