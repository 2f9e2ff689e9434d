#pragma once

#include <sqlite3.h>
#include <unistd.h>

#include <csignal>
#include <map>

#include "files/file_copy.h"

namespace torvane {

// What happens at a call of the disk: that call fails; it and all that follow fail; writes fail from there on; the
// process is killed. A write that fails, or in which the process dies, has written half.
enum class Fault { Once, Gone, Full, Killed };

// A disk that fails at its n-th call, be it SQLite's or one of the program's own copies. SQLite opens its files here as
// long as the object lives, one at a time; the engine's other disks are reached by their names. Nothing is flushed: no
// power fails.
class FaultyDisk : public FileSystem {
public:
    FaultyDisk() : vfs_(*real_) {
        disk = this;
        vfs_.zName = "faulty";
        vfs_.xOpen = openFile;
        vfs_.xDelete = [](sqlite3_vfs*, const char* name, int) {
            return disk->fails() ? SQLITE_IOERR_DELETE : disk->real_->xDelete(disk->real_, name, 0);
        };
        sqlite3_vfs_register(&vfs_, 1);
    }
    ~FaultyDisk() override { sqlite3_vfs_unregister(&vfs_); }
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    // Counts from now on; the first call is 1. Fault::Full counts writes alone.
    void arm(Fault fault, int call) {
        fault_ = fault;
        left_ = call;
        armed_ = true;
    }
    // All is well from here on.
    void disarm() { armed_ = false; }
    // Whether the call has come.
    bool struck() const { return left_ <= 0; }

    int openToRead(const std::string& name) override { return fails() ? -1 : FileSystem::openToRead(name); }
    int openFresh(const std::string& beside, std::string& fresh) override {
        return fails() ? -1 : FileSystem::openFresh(beside, fresh);
    }
    long read(int file, char* bytes, std::size_t count) override {
        return fails() ? -1 : FileSystem::read(file, bytes, count);
    }
    bool write(int file, const char* bytes, std::size_t count) override {
        const bool failing = fails([&] { FileSystem::write(file, bytes, count / 2); }, true);
        return !failing && FileSystem::write(file, bytes, count);
    }
    bool sync(int) override { return !fails(); }
    bool rename(const std::string& from, const std::string& to) override {
        return !fails() && FileSystem::rename(from, to);
    }
    bool syncFolder(const std::string&) override { return !fails(); }
    bool remove(const std::string& name) override { return !fails() && FileSystem::remove(name); }

private:
    // Whether this call fails; `half` is what a failing call does all the same.
    template <class Half>
    bool fails(Half half, bool writes) {
        if (!armed_ || (fault_ == Fault::Full && !writes)) return false;
        --left_;
        if (left_ > 0 || (left_ < 0 && fault_ == Fault::Once)) return false;
        half();
        if (fault_ == Fault::Killed) ::kill(getpid(), SIGKILL);
        return true;
    }
    bool fails() {
        return fails([] {}, false);
    }

    static int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
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
            const bool failing = disk->fails([&] { real.xWrite(to, bytes, count / 2, at); }, true);
            if (!failing) return real.xWrite(to, bytes, count, at);
            return disk->fault_ == Fault::Full ? SQLITE_FULL : SQLITE_IOERR_WRITE;
        };
        faulty.xTruncate = [](sqlite3_file* of, sqlite3_int64 size) {
            return disk->fails() ? SQLITE_IOERR_TRUNCATE : real.xTruncate(of, size);
        };
        faulty.xSync = [](sqlite3_file*, int) { return disk->fails() ? SQLITE_IOERR_FSYNC : SQLITE_OK; };
        file->pMethods = &faulty;
        return result;
    }

    static inline FaultyDisk* disk = nullptr;  // the one that stands
    static inline sqlite3_io_methods real;     // SQLite's own calls on an open file
    // Each kind of files, which lock in different ways, with ours in their place.
    static inline std::map<const sqlite3_io_methods*, sqlite3_io_methods> faultyOf;

    sqlite3_vfs* real_ = sqlite3_vfs_find(nullptr);
    sqlite3_vfs vfs_;
    Fault fault_ = Fault::Once;
    int left_ = 1;
    bool armed_ = false;
};

}  // namespace torvane
