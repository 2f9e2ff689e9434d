#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace torvane {

// The calls by which files that are not the database engine's own are written. Each gives false on failure; tests put a
// failing one in their place.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    // Whether there is a file of this name (a folder is not one).
    virtual bool exists(const std::string& name);
    // Whether something has this name that must not be replaced: a file that the user may not write to, or no file.
    virtual bool protectedFile(const std::string& name);
    // -1 on failure.
    virtual int openToRead(const std::string& name);
    // Makes a file beside another one and opens it for writing. Its name, which nothing had before, goes to `fresh`. -1
    // on failure.
    virtual int openFresh(const std::string& beside, std::string& fresh);
    // Gives an open file the owner and the permissions of `target`, as far as they can be given; when that is not
    // there, the permissions of `model`, or those of any new file when that is "".
    virtual void setPermissions(int file, const std::string& target, const std::string& model);
    // Bytes read, 0 at the end, -1 on failure.
    virtual long read(int file, char* bytes, std::size_t count);
    virtual bool write(int file, std::string_view bytes);
    virtual bool sync(int file);
    virtual void close(int file);
    virtual bool rename(const std::string& from, const std::string& to);
    virtual bool syncFolder(const std::string& folder);
    virtual bool remove(const std::string& name);
};

// The name to which symbolic links under a name lead, be there a file or not; "" when they lead round in circles.
std::string followed(const std::string& name);

// Both of these leave the target, at every moment, with its old content or the whole new one: that goes into a fresh
// file "Torvane-..." in the same folder, is flushed, then renamed over the target, and the folder is flushed. A link is
// followed. Owner and permissions of the target stay. False when the target is protected and when a step fails; the
// target is as it was then, unless only the last flush failed, and the fresh file has been removed if it could be. A
// process that is killed meanwhile leaves the fresh file.

// Copies a file. A target that was not there has the permissions of the source.
bool copyFile(FileSystem& files, const std::string& from, const std::string& to);
// Writes a file with this content.
bool writeFile(FileSystem& files, const std::string& to, std::string_view content);

}  // namespace torvane
