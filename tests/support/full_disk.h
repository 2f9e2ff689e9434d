#pragma once

#include <sys/resource.h>

#include <csignal>

namespace torvane {

// Stops every file of this process from growing beyond a size, as a full disk does.
struct FullDisk {
    explicit FullDisk(rlim_t size) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{size, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
    rlimit before{};
};

}  // namespace torvane
