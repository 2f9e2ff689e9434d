#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches.h"
#include "harness.h"
#include "sample.h"

// Our program and two that are nothing but a window, each started as a process of its own and watched until its window
// is painted. The window with menus is there because the first text of a process, with the fonts that are sought for
// it, costs more than half of a bare window's whole start.

namespace torvane::bench {

namespace {

constexpr int rounds = 21;

// A child process whose first line of output can be read.
class Child {
public:
    // `arguments` begin with the program's file name. `outputNumber` is the file descriptor that the child writes to.
    Child(const std::vector<std::string>& arguments, int outputNumber) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
        std::vector<char*> texts;
        for (const std::string& argument : arguments) texts.push_back(const_cast<char*>(argument.c_str()));
        texts.push_back(nullptr);
        id_ = fork();
        if (id_ == 0) {
            dup2(ends[1], outputNumber);
            execvp(texts.front(), texts.data());
            _exit(127);
        }
        close(ends[1]);
        output_ = ends[0];
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        close(output_);
        if (id_ > 0) {
            kill(id_, SIGTERM);
            waitpid(id_, nullptr, 0);
        }
    }

    // Up to the line's end; empty when the child has ended without one.
    std::string line() const {
        std::string text;
        char sign = 0;
        while (read(output_, &sign, 1) == 1 && sign != '\n') text += sign;
        return text;
    }

private:
    pid_t id_ = -1;
    int output_ = -1;
};

struct Start {
    std::vector<double> milliseconds;
    std::vector<double> mebibytes;
};

void startOnce(const std::vector<std::string>& program, Start& measured) {
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    const Child child(program, STDOUT_FILENO);
    const std::string resident = child.line();
    measured.milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
    if (resident.empty()) throw std::runtime_error(program.front() + " ended before its window was painted");
    measured.mebibytes.push_back(std::stod(resident) / 1024);
}

void compareStarts(const std::string& platform, const std::string& ours) {
    struct Program {
        std::vector<std::string> arguments;
        Start start{};
    };
    Program programs[] = {{{ours}}, {{TORVANE_BENCH_BARE}}, {{TORVANE_BENCH_BARE, "menus"}}};
    for (Program& program : programs) {
        Start warmUp;
        startOnce(program.arguments, warmUp);
    }
    for (int i = 0; i < rounds; ++i)
        for (Program& program : programs) startOnce(program.arguments, program.start);
    const Start& mine = programs[0].start;
    const auto against = [&](const Start& other, const std::string& what, double start, double memory) {
        print(platform + ": start against " + what, {.ratio = start}, median(mine.milliseconds),
              median(other.milliseconds));
        print(platform + ": resident memory against it", {.ratio = memory}, median(mine.mebibytes),
              median(other.mebibytes), "MiB");
    };
    against(programs[1].start, "a bare window", 1.5, 1.7);
    against(programs[2].start, "one with menus", 1.05, 1.1);
}

// Gives the environment back as it was.
class Variable {
public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        setenv(name, value.c_str(), 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() {
        if (before_)
            setenv(name_, before_->c_str(), 1);
        else
            unsetenv(name_);
    }

private:
    const char* name_;
    std::optional<std::string> before_;
};

}  // namespace

void start(Sample& sample) {
    // The program finds its data beside itself.
    const std::filesystem::path folder(sample.folder());
    const std::string ours = folder / "torvane";
    std::filesystem::copy_file(TORVANE_BENCH_START, ours);
    std::filesystem::copy_file(TORVANE_DELIVERED "/Merlin.ACS", folder / "Merlin.ACS");
    {
        const Variable offscreen("QT_QPA_PLATFORM", "offscreen");
        compareStarts("offscreen", ours);
    }
    const Child server({"Xvfb", "-displayfd", "3", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"}, 3);
    const std::string display = server.line();
    if (display.empty()) throw std::runtime_error("no Xvfb here to measure the start under X");
    const Variable platform("QT_QPA_PLATFORM", "xcb");
    const Variable screen("DISPLAY", ":" + display);
    compareStarts("Xvfb", ours);
}

}  // namespace torvane::bench
