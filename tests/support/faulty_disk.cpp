#include "support/faulty_disk.h"

#include <unistd.h>

#include <csignal>

namespace torvane {

// SQLite's file; the real one stands behind it in the same memory.
struct FaultyDisk::File : sqlite3_file {
    FaultyDisk* disk;

    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    const sqlite3_io_methods* calls() { return real()->pMethods; }
    static File& of(sqlite3_file* file) { return *static_cast<File*>(file); }

    static const sqlite3_io_methods methods;
};

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

const sqlite3_io_methods FaultyDisk::File::methods = {
    1,
    [](sqlite3_file* file) { return of(file).calls()->xClose(of(file).real()); },
    [](sqlite3_file* file, void* into, int count, sqlite3_int64 from) {
        if (of(file).disk->fails()) return SQLITE_IOERR_READ;
        return of(file).calls()->xRead(of(file).real(), into, count, from);
    },
    [](sqlite3_file* file, const void* bytes, int count, sqlite3_int64 to) {
        const auto write = [&](int part) { return of(file).calls()->xWrite(of(file).real(), bytes, part, to); };
        if (of(file).disk->fails([&] { write(count / 2); }, true)) return of(file).disk->failure(SQLITE_IOERR_WRITE);
        return write(count);
    },
    [](sqlite3_file* file, sqlite3_int64 size) {
        if (of(file).disk->fails()) return SQLITE_IOERR_TRUNCATE;
        return of(file).calls()->xTruncate(of(file).real(), size);
    },
    [](sqlite3_file* file, int) { return of(file).disk->fails() ? SQLITE_IOERR_FSYNC : SQLITE_OK; },
    [](sqlite3_file* file, sqlite3_int64* size) { return of(file).calls()->xFileSize(of(file).real(), size); },
    [](sqlite3_file* file, int lock) { return of(file).calls()->xLock(of(file).real(), lock); },
    [](sqlite3_file* file, int lock) { return of(file).calls()->xUnlock(of(file).real(), lock); },
    [](sqlite3_file* file, int* held) { return of(file).calls()->xCheckReservedLock(of(file).real(), held); },
    [](sqlite3_file* file, int what, void* about) {
        return of(file).calls()->xFileControl(of(file).real(), what, about);
    },
    [](sqlite3_file* file) { return of(file).calls()->xSectorSize(of(file).real()); },
    [](sqlite3_file* file) { return of(file).calls()->xDeviceCharacteristics(of(file).real()); },
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
};

FaultyDisk::FaultyDisk() : real_(sqlite3_vfs_find(nullptr)), vfs_(*real_) {
    vfs_.zName = "faulty";
    vfs_.szOsFile += static_cast<int>(sizeof(File));
    vfs_.pAppData = this;
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

int FaultyDisk::openFile(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    auto* disk = static_cast<FaultyDisk*>(vfs->pAppData);
    File& made = File::of(file);
    made.pMethods = nullptr;
    made.disk = disk;
    if (disk->fails()) return SQLITE_CANTOPEN;
    const int result = disk->real_->xOpen(disk->real_, name, made.real(), flags, outFlags);
    if (result == SQLITE_OK) made.pMethods = &File::methods;
    return result;
}

int FaultyDisk::deleteFile(sqlite3_vfs* vfs, const char* name, int) {
    auto* disk = static_cast<FaultyDisk*>(vfs->pAppData);
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
