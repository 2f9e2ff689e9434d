#pragma once

#include <QMargins>
#include <QPointer>
#include <QRect>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "datastore/data_access.h"
#include "screens/assistant.h"
#include "values/failure.h"

class QWidget;

namespace torvane {

class Form;
class FocusWatcher;

// The program as every screen sees it. One object, made in main() and in each test.
class Program {
public:
    // `leave` leaves the process with a status; it never returns.
    Program(DataAccess access, std::function<void(int status)> leave);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    const DataAccess& dataAccess() const { return access_; }
    Host& host() const { return access_.host; }

    // --- The event guard ---------------------------------------------------------------------------------------------
    // Runs a handler. A failure that leaves it ends the program; nothing ever leaves `guarded` itself. Runs nothing
    // while the program ends. A LostFocus that is still waiting comes before the handler.
    template <class Handler>
    void guarded(Handler&& handler) {
        if (!enter()) return;
        const Leaving leaving{*this};
        try {
            handler();
        } catch (const RuntimeFailure& failure) {
            end(failure);
        } catch (const std::exception& failure) {
            end(RuntimeFailure{0, failure.what()});
        }
    }
    // Says what is going on as long as it stands, for the run-time error box: "saving the estimate". Where nobody does,
    // the box names the window whose handler failed.
    class Doing {
    public:
        Doing(Program& program, std::string what) : program_(program), failuresBefore_(std::uncaught_exceptions()) {
            program_.doing_.push_back(std::move(what));
        }
        ~Doing() {
            if (std::uncaught_exceptions() > failuresBefore_ && program_.failedWhile_.empty())
                program_.failedWhile_ = program_.doing_.back();
            program_.doing_.pop_back();
        }
        Doing(const Doing&) = delete;
        Doing& operator=(const Doing&) = delete;

    private:
        Program& program_;
        int failuresBefore_;
    };
    // Makes all handlers inert, shows the run-time error box, commits open write groups and leaves the process with
    // status 1. Returns only when the box stands already, for another failure.
    void end(RuntimeFailure failure);
    // What shows the failure, in place of the run-time error box.
    void setErrorBox(std::function<void(const RuntimeFailure&)> show) { showFailure_ = std::move(show); }

    // --- Boxes -------------------------------------------------------------------------------------------------------
    void say(std::string_view text, std::string_view title);      // OK
    bool confirm(std::string_view text, std::string_view title);  // Yes/No; true on Yes

    // --- The assistant -----------------------------------------------------------------------------------------------
    // Failure::ObjectNotSet while there is none.
    Assistant& Merlin() const;
    void setMerlin(Assistant* assistant) { merlin_ = assistant; }
    // What a help button does: Show, then Speak unless there is nothing to say. Nothing once the main window has gone.
    void speakHelp(std::string_view text);

    // --- Windows -----------------------------------------------------------------------------------------------------
    // The window that StartUp places others over; its last geometry is remembered when it has gone.
    void setMainWindow(QWidget* window);
    bool mainWindowHasGone() const { return mainWindowHasGone_; }
    // Centres the screen's window over the main window and lifts it by 250 twips, wholly on the screen. Over the middle
    // of the screen while no main window has ever been set. The window is as much larger than given as its type is.
    void StartUp(Form& form);
    // F1: opens the help at a context. Set by the shell.
    void setHelp(std::function<void(int context)> open) { openHelp_ = std::move(open); }
    void help(int context);

    FocusWatcher& focusWatcher() { return *watcher_; }

    // What to do when the last window that was shown has gone and the handlers are done.
    void onLastWindowGone(std::function<void()> leave) { lastWindowGone_ = std::move(leave); }

private:
    friend class Form;
    struct Leaving {
        Program& program;
        ~Leaving() { program.leave(); }
    };
    bool enter();
    void leave();
    void windowShown() { ++shownWindows_; }
    void windowUnloaded(QWidget* window, bool wasShown);
    void leaveWithLastWindow();

    DataAccess access_;
    std::vector<std::string> doing_;  // what is going on, the innermost last
    std::string failedWhile_;         // the innermost that a failure has left
    std::function<void(int)> leave_;
    std::function<void(const RuntimeFailure&)> showFailure_;
    std::function<void(int)> openHelp_;
    std::function<void()> lastWindowGone_;
    std::unique_ptr<FocusWatcher> watcher_;
    Assistant* merlin_ = nullptr;
    QPointer<QWidget> mainWindow_;
    QRect mainGeometry_;
    QMargins mainFrame_;
    std::vector<int> handlers_;  // the depth of event loops in which each running handler was entered
    int shownWindows_ = 0;
    bool lastWindowWent_ = false;
    bool mainWindowHasGone_ = false;
    bool ending_ = false;
};

// Leaves the process at once with this status: output is flushed, no destructor runs. What main() gives as `leave`.
[[noreturn]] void leaveProcess(int status);

}  // namespace torvane
