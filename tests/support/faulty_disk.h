#pragma once

#include <sqlite3.h>

#include "files/file_copy.h"

namespace torvane {

// What happens at a call of the disk: that call fails; it and all that follow fail; writes fail from there on; the
// process is killed. A write that fails, or in which the process dies, has written half.
enum class Fault { Once, Gone, Full, Killed };

// A disk that fails at its n-th call, be it SQLite's or one of the program's own copies. SQLite opens its files here as
// long as the object lives, one at a time; the engine's other disks are reached by their names. Nothing is flushed: no power fails.
class FaultyDisk : public FileSystem {
public:
    FaultyDisk();
    ~FaultyDisk() override;
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    // Counts from now on; the first call is 1. Fault::Full counts writes alone.
    void arm(Fault fault, int call);
    // All is well from here on.
    void disarm() { armed_ = false; }
    // Whether the call has come.
    bool struck() const { return left_ <= 0; }

    int openToRead(const std::string& name) override;
    int openFresh(const std::string& beside, std::string& fresh) override;
    long read(int file, char* bytes, std::size_t count) override;
    bool write(int file, const char* bytes, std::size_t count) override;
    bool sync(int file) override;
    bool rename(const std::string& from, const std::string& to) override;
    bool syncFolder(const std::string& folder) override;
    bool remove(const std::string& name) override;

private:
    // Whether this call fails; `half` is what a failing call does all the same.
    template <class Half>
    bool fails(Half half, bool writes = false);
    bool fails();
    int failure(int code) const { return fault_ == Fault::Full ? SQLITE_FULL : code; }

    static int openFile(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags);
    static int deleteFile(sqlite3_vfs* vfs, const char* name, int syncFolder);

    sqlite3_vfs* real_;
    sqlite3_vfs vfs_;
    Fault fault_ = Fault::Once;
    int left_ = 1;
    bool armed_ = false;
};

}  // namespace torvane
