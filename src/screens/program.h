#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "datastore/data_access.h"
#include "screens/event_guard.h"
#include "screens/focus_watcher.h"
#include "screens/last_window.h"
#include "screens/window_placing.h"

class QWidget;

namespace torvane {

class Assistant;
class Form;

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

    // --- Its parts ---------------------------------------------------------------------------------------------------
    EventGuard& guard() { return guard_; }
    FocusWatcher& focusWatcher() { return focusWatcher_; }
    WindowPlacing& placing() { return placing_; }
    LastWindow& lastWindow() { return lastWindow_; }

    // What handlers want of the parts all the time.
    void guarded(const std::function<void()>& handler) { guard_.run(handler); }
    struct Doing : EventGuard::Doing {
        Doing(Program& program, std::string what) : EventGuard::Doing(program.guard_, std::move(what)) {}
    };
    // Places the screen's window.
    void StartUp(Form& form);
    // Tells the parts that the window of a screen has gone. `counted`: LastWindow has counted it.
    void windowUnloaded(QWidget* window, bool counted);

    // --- Boxes -------------------------------------------------------------------------------------------------------
    void say(std::string_view text, std::string_view title);      // OK
    bool confirm(std::string_view text, std::string_view title);  // Yes/No; true on Yes

    // --- The assistant and the help ----------------------------------------------------------------------------------
    // Failure::ObjectNotSet while there is none.
    Assistant& Merlin() const;
    // In place of the one before; null: there is none any more.
    void setMerlin(std::unique_ptr<Assistant> assistant);
    // What a help button does: Show, then Speak unless there is nothing to say. Nothing once the main window has gone.
    void speakHelp(std::string_view text);
    // F1: opens the help at a context, once there is something that opens it.
    void help(int context);
    void setHelp(std::function<void(int context)> open) { openHelp_ = std::move(open); }

private:
    DataAccess access_;
    FocusWatcher focusWatcher_;
    LastWindow lastWindow_;
    EventGuard guard_;
    WindowPlacing placing_;
    std::unique_ptr<Assistant> merlin_;
    std::function<void(int)> openHelp_;
};

}  // namespace torvane
