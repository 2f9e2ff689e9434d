#include "datastore/file_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace torvane {

bool FileSystem::exists(const std::string& name) {
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool FileSystem::protectedFile(const std::string& name) {
    return ::access(name.c_str(), F_OK) == 0 && ::access(name.c_str(), W_OK) != 0;
}

int FileSystem::openToRead(const std::string& name) {
    return ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
}

int FileSystem::openToWrite(const std::string& name) {
    constexpr mode_t everybodyReads = 0644;
    ::unlink(name.c_str());
    return ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, everybodyReads);
}

void FileSystem::adoptOwnerAndMode(int file, const std::string& of) {
    struct stat status {};
    if (::stat(of.c_str(), &status) != 0) return;
    // A disk without owners, or a user who may not give files away, is no reason to fail.
    [[maybe_unused]] const int owner = ::fchown(file, status.st_uid, status.st_gid);
    ::fchmod(file, status.st_mode & 07777);
}

long FileSystem::read(int file, char* bytes, std::size_t count) {
    long got = -1;
    do got = ::read(file, bytes, count);
    while (got < 0 && errno == EINTR);
    return got;
}

bool FileSystem::write(int file, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(file, bytes, count);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes += written;
        count -= static_cast<std::size_t>(written);
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

namespace {

bool copyBytes(FileSystem& files, int source, int target) {
    std::array<char, 1 << 16> bytes;
    for (;;) {
        const long got = files.read(source, bytes.data(), bytes.size());
        if (got < 0) return false;
        if (got == 0) return files.sync(target);
        if (!files.write(target, bytes.data(), static_cast<std::size_t>(got))) return false;
    }
}

}  // namespace

bool copyFile(FileSystem& files, const std::string& from, const std::string& to) {
    if (files.protectedFile(to)) return false;
    const int source = files.openToRead(from);
    if (source < 0) return false;
    const std::string fresh = to + ".new";
    const int target = files.openToWrite(fresh);
    if (target >= 0) files.adoptOwnerAndMode(target, to);
    bool done = target >= 0 && copyBytes(files, source, target);
    files.close(source);
    if (target >= 0) {
        files.close(target);
        done = done && files.rename(fresh, to);
        if (!done) files.remove(fresh);
    }
    return done && files.syncFolder(std::filesystem::path(to).parent_path().string());
}

}  // namespace torvane
