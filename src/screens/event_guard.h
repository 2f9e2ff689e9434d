#pragma once

#include <functional>
#include <string>
#include <vector>

#include "datastore/data_access.h"

namespace torvane {

class FocusWatcher;
class LastWindow;
class RuntimeFailure;

// Runs the handlers of all windows, and ends the program when a failure leaves one of them.
class EventGuard {
public:
    // `leave` leaves the process with a status; it never returns.
    EventGuard(const DataAccess& access, FocusWatcher& watcher, LastWindow& lastWindow,
               std::function<void(int status)> leave);
    EventGuard(const EventGuard&) = delete;
    EventGuard& operator=(const EventGuard&) = delete;

    // Runs a handler. A failure that leaves it ends the program; nothing ever leaves `run` itself. Runs nothing while
    // the program ends. A LostFocus that is still waiting comes before the handler.
    void run(const std::function<void()>& handler);
    bool idle() const { return running_.empty(); }

    // Says what is going on as long as it stands, for the run-time error box: "saving the estimate". Where nobody does,
    // the box names the window whose handler failed.
    class Doing {
    public:
        Doing(EventGuard& guard, std::string what);
        ~Doing();
        Doing(const Doing&) = delete;
        Doing& operator=(const Doing&) = delete;

    private:
        EventGuard& guard_;
        int failuresBefore_;
    };

    // Makes all handlers inert, shows the run-time error box, commits open write groups and leaves the process with
    // status 1. A further failure, while the box stands, changes nothing.
    void end(RuntimeFailure failure);

private:
    const DataAccess access_;
    FocusWatcher& watcher_;
    LastWindow& lastWindow_;
    std::function<void(int)> leave_;
    std::vector<int> running_;        // the depth of event loops in which each running handler was entered
    std::vector<std::string> doing_;  // what is going on, the innermost last
    std::string failedWhile_;         // the innermost that a failure has left
    bool ending_ = false;
};

// Leaves the process at once with this status: output is flushed, no destructor runs. What main() gives as `leave`.
[[noreturn]] void leaveProcess(int status);

}  // namespace torvane
