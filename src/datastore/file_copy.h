#pragma once

#include <cstddef>
#include <string>

namespace torvane {

// The calls by which files that are not the database engine's own are written. Each gives false on failure; tests put a
// failing one in their place.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    // Whether a file has this name; a folder is none.
    virtual bool exists(const std::string& name);
    // Whether the file is there and the user may not write to it.
    virtual bool protectedFile(const std::string& name);
    // Opens for reading, or a new file for writing: one that has the name is removed, and nothing is written through a
    // link. -1 on failure.
    virtual int openToRead(const std::string& name);
    virtual int openToWrite(const std::string& name);
    // Gives an open file the owner and the permissions of another, as far as they can be given.
    virtual void adoptOwnerAndMode(int file, const std::string& of);
    // Bytes read, 0 at the end, -1 on failure.
    virtual long read(int file, char* bytes, std::size_t count);
    virtual bool write(int file, const char* bytes, std::size_t count);
    virtual bool sync(int file);
    virtual void close(int file);
    virtual bool rename(const std::string& from, const std::string& to);
    virtual bool syncFolder(const std::string& folder);
    virtual bool remove(const std::string& name);
};

// Copies a file so that the target is, at every moment, its old content or the whole new one: into "<to>.new" in the
// same folder, flushed, then renamed over the target, and the folder flushed. Owner and permissions of the target stay.
// False when the target is protected against writing and when a step fails; the target is as it was then, unless only
// the last flush failed, and the ".new" file has been removed if it could be.
bool copyFile(FileSystem& files, const std::string& from, const std::string& to);

}  // namespace torvane
