#pragma once

#include <string>

namespace torvane {

// Tells whether another copy of the program runs on the same folder, in any session of any user. The lock is one of the
// operating system on the folder itself, so it leaves no file behind and goes with its process, however that ends.
class FolderLock {
public:
    explicit FolderLock(const std::string& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    bool previousInstance() const { return previousInstance_; }

private:
    int handle_;
    bool previousInstance_;
};

}  // namespace torvane
