#include "shell/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace torvane {

FolderLock::FolderLock(const std::string& folder)
    : handle_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      previousInstance_(handle_ >= 0 && ::flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {}

FolderLock::~FolderLock() {
    if (handle_ >= 0) ::close(handle_);
}

}  // namespace torvane
