#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace torvane {

// A process that has this one's memory; it tells by signs how far it is, and is killed with the object.
class Child {
public:
    // `work` may call say() with signs; it must use neither windows nor the test's own files. The process waits for its
    // end afterwards, and ends at once by an exception.
    template <class Work>
    explicit Child(Work work) {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        output_ = ends[0];
        id_ = fork();
        if (id_ == 0) {
            [&]() noexcept {
                work([&](char sign) { EXPECT_EQ(::write(ends[1], &sign, 1), 1); });
                for (;;) pause();
            }();
        }
        ::close(ends[1]);
    }
    ~Child() {
        ::kill(id_, SIGKILL);
        EXPECT_EQ(waitpid(id_, nullptr, 0), id_);
        ::close(output_);
    }
    // The next sign; 0 when the process has ended without one.
    char heard() const {
        char sign = 0;
        return ::read(output_, &sign, 1) == 1 ? sign : '\0';
    }

private:
    pid_t id_ = -1;
    int output_ = -1;
};

}  // namespace torvane
