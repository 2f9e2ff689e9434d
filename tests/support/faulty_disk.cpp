#include "support/faulty_disk.h"

#include <unistd.h>

#include <csignal>
#include <map>

namespace torvane {

namespace {

FaultyDisk* disk = nullptr;  // the one that stands
sqlite3_io_methods real;     // SQLite's own calls on an open file
// Each kind of files, which lock in different ways, with ours in their place.
std::map<const sqlite3_io_methods*, sqlite3_io_methods> faultyOf;

}  // namespace

template <class Half>
bool FaultyDisk::fails(Half half, bool writes) {
    if (!armed_ || (fault_ == Fault::Full && !writes)) return false;
    --left_;
    if (left_ > 0 || (left_ < 0 && fault_ == Fault::Once)) return false;
    half();
    if (fault_ == Fault::Killed) ::kill(getpid(), SIGKILL);
    return true;
}

bool FaultyDisk::fails() {
    return fails([] {});
}

FaultyDisk::FaultyDisk() : real_(sqlite3_vfs_find(nullptr)), vfs_(*real_) {
    disk = this;
    vfs_.zName = "faulty";
    vfs_.xOpen = openFile;
    vfs_.xDelete = deleteFile;
    sqlite3_vfs_register(&vfs_, 1);
}

FaultyDisk::~FaultyDisk() {
    sqlite3_vfs_unregister(&vfs_);
    sqlite3_vfs_register(real_, 1);
}

void FaultyDisk::arm(Fault fault, int call) {
    fault_ = fault;
    left_ = call;
    armed_ = true;
}

int FaultyDisk::openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    file->pMethods = nullptr;
    if (disk->fails()) return SQLITE_CANTOPEN;
    const int result = disk->real_->xOpen(disk->real_, name, file, flags, outFlags);
    if (result != SQLITE_OK) return result;
    sqlite3_io_methods& faulty = faultyOf[file->pMethods];
    real = faulty = *file->pMethods;
    faulty.iVersion = 1;
    faulty.xRead = [](sqlite3_file* from, void* into, int count, sqlite3_int64 at) {
        return disk->fails() ? SQLITE_IOERR_READ : real.xRead(from, into, count, at);
    };
    faulty.xWrite = [](sqlite3_file* to, const void* bytes, int count, sqlite3_int64 at) {
        const auto half = [&] { real.xWrite(to, bytes, count / 2, at); };
        return disk->fails(half, true) ? disk->failure(SQLITE_IOERR_WRITE) : real.xWrite(to, bytes, count, at);
    };
    faulty.xTruncate = [](sqlite3_file* of, sqlite3_int64 size) {
        return disk->fails() ? SQLITE_IOERR_TRUNCATE : real.xTruncate(of, size);
    };
    faulty.xSync = [](sqlite3_file*, int) { return disk->fails() ? SQLITE_IOERR_FSYNC : SQLITE_OK; };
    file->pMethods = &faulty;
    return result;
}

int FaultyDisk::deleteFile(sqlite3_vfs*, const char* name, int) {
    return disk->fails() ? SQLITE_IOERR_DELETE : disk->real_->xDelete(disk->real_, name, 0);
}

int FaultyDisk::openToRead(const std::string& name) {
    return fails() ? -1 : FileSystem::openToRead(name);
}

int FaultyDisk::openFresh(const std::string& beside, std::string& fresh) {
    return fails() ? -1 : FileSystem::openFresh(beside, fresh);
}

long FaultyDisk::read(int file, char* bytes, std::size_t count) {
    return fails() ? -1 : FileSystem::read(file, bytes, count);
}

bool FaultyDisk::write(int file, const char* bytes, std::size_t count) {
    const auto half = [&] { FileSystem::write(file, bytes, count / 2); };
    return !fails(half, true) && FileSystem::write(file, bytes, count);
}

bool FaultyDisk::sync(int) {
    return !fails();
}

bool FaultyDisk::rename(const std::string& from, const std::string& to) {
    return !fails() && FileSystem::rename(from, to);
}

bool FaultyDisk::syncFolder(const std::string&) {
    return !fails();
}

bool FaultyDisk::remove(const std::string& name) {
    return !fails() && FileSystem::remove(name);
}

}  // namespace torvane
