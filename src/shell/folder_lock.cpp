#include "shell/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace torvane {

// Where there is no such folder both calls refuse the handle.
FolderLock::FolderLock(const std::string& folder)
    : handle_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      previousInstance_(::flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {}

FolderLock::~FolderLock() {
    ::close(handle_);
}

}  // namespace torvane
