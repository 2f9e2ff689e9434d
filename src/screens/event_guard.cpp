#include "screens/event_guard.h"

#include <QThread>
#include <cstdlib>
#include <exception>

#include "datastore/store.h"
#include "screens/focus_watcher.h"
#include "screens/form_window.h"
#include "screens/last_window.h"
#include "widgets/texts.h"

namespace torvane {

EventGuard::EventGuard(const DataAccess& access, FocusWatcher& watcher, LastWindow& lastWindow,
                       std::function<void(int)> leave)
    : access_(access), watcher_(watcher), lastWindow_(lastWindow), leave_(std::move(leave)) {}

void EventGuard::run(const std::function<void()>& handler) {
    if (ending_) return;
    // A handler that runs inside another one, because code wrote a box, is part of it; nothing comes between them. One
    // in an inner event loop is an act of its own.
    const int loops = QThread::currentThread()->loopLevel();
    if (idle() || loops > running_.back()) watcher_.flush();
    failedWhile_.clear();  // what somebody caught is over
    running_.push_back(loops);
    try {
        handler();
    } catch (const RuntimeFailure& failure) {
        end(failure);
    } catch (const std::exception& failure) {
        end(RuntimeFailure{0, failure.what()});
    }
    running_.pop_back();
    if (idle()) lastWindow_.tell();
}

EventGuard::Doing::Doing(EventGuard& guard, std::string what)
    : guard_(guard), failuresBefore_(std::uncaught_exceptions()) {
    guard_.doing_.push_back(std::move(what));
}

EventGuard::Doing::~Doing() {
    if (std::uncaught_exceptions() > failuresBefore_ && guard_.failedWhile_.empty())
        guard_.failedWhile_ = guard_.doing_.back();
    guard_.doing_.pop_back();
}

void EventGuard::end(RuntimeFailure failure) {
    if (std::exchange(ending_, true)) return;
    // A handler within a handler ends the program before the outer one's failure is on its way.
    if (failedWhile_.empty() && !doing_.empty()) failedWhile_ = doing_.back();
    if (const FormWindow* window = FormWindow::handling(); window && failedWhile_.empty())
        failedWhile_ = "working in the window \"" + utf8(window->windowTitle()) + '"';
    failure.setDuring(failedWhile_);
    try {
        access_.host.runtimeErrorBox(failure);
    } catch (const std::exception&) {
        // There is nothing left to say it with; the rest of the end must come.
    }
    access_.store.commitOpenGroups();
    leave_(1);
}

void leaveProcess(int status) {
    std::_Exit(status);
}

}  // namespace torvane
