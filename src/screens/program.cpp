#include "screens/program.h"

#include <QApplication>
#include <QScreen>
#include <QThread>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

#include "datastore/store.h"
#include "screens/error_box.h"
#include "screens/focus_watcher.h"
#include "screens/form.h"
#include "screens/form_window.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr double liftInTwips = 250;

QMargins frameOf(const QWidget& window) {
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

}  // namespace

Program::Program(DataAccess access, std::function<void(int)> leave)
    : access_(access),
      leave_(std::move(leave)),
      showFailure_(showErrorBox),
      watcher_(std::make_unique<FocusWatcher>(*this)) {}

Program::~Program() {
    // Those that still wait for their deletion would look for the program.
    std::vector<FormWindow*> ours;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* one = qobject_cast<FormWindow*>(window);
        if (one && &one->program() == this) ours.push_back(one);
    }
    for (FormWindow* window : ours) delete window;
}

bool Program::enter() {
    if (ending_) return false;
    // A handler that runs inside another one, because code wrote a box, is part of it; nothing comes between them. One
    // in an inner event loop is an act of its own.
    const int loops = QThread::currentThread()->loopLevel();
    if (handlers_.empty() || loops > handlers_.back()) watcher_->flush();
    failedWhile_.clear();  // what somebody caught is over
    handlers_.push_back(loops);
    return true;
}

void Program::leave() {
    handlers_.pop_back();
    leaveWithLastWindow();
}

void Program::end(RuntimeFailure failure) {
    if (std::exchange(ending_, true)) return;
    // A handler within a handler ends the program before the outer one's failure is on its way.
    if (failedWhile_.empty() && !doing_.empty()) failedWhile_ = doing_.back();
    if (const FormWindow* window = FormWindow::handling(); window && failedWhile_.empty())
        failedWhile_ = "working in the window \"" + utf8(window->windowTitle()) + '"';
    failure.setDuring(failedWhile_);
    try {
        showFailure_(failure);
    } catch (const std::exception&) {
        // There is nothing left to say it with; the rest of the end must come.
    }
    access_.store.commitOpenGroups();
    leave_(1);
}

void Program::say(std::string_view text, std::string_view title) {
    host().box(text, title, Buttons::Ok);
}

bool Program::confirm(std::string_view text, std::string_view title) {
    return host().box(text, title, Buttons::YesNo) == Answer::Yes;
}

Assistant& Program::Merlin() const {
    if (!merlin_) fail(Failure::ObjectNotSet);
    return *merlin_;
}

void Program::speakHelp(std::string_view text) {
    if (mainWindowHasGone_) return;
    Merlin().Show();
    if (!text.empty()) Merlin().Speak(text);
}

void Program::setMainWindow(QWidget* window) {
    mainWindow_ = window;
    mainWindowHasGone_ = false;
}

void Program::StartUp(Form& form) {
    QWidget& window = form.window();
    window.ensurePolished();
    if (mainWindow_) {
        mainGeometry_ = mainWindow_->frameGeometry();
        mainFrame_ = frameOf(*mainWindow_);
    }
    QScreen* screen = mainGeometry_.isNull() ? nullptr : QGuiApplication::screenAt(mainGeometry_.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    const QSize wanted = window.size().expandedTo((window.size() * fontScale(window)).boundedTo(available.size()));
    window.resize(wanted.expandedTo(window.minimumSizeHint()));
    const QRect main = mainGeometry_.isNull() ? available : mainGeometry_;

    // The frame of a window that was never shown is not known; the main window's is as good.
    QRect place(QPoint(), window.size().grownBy(mainFrame_));
    place.moveLeft(main.left() + (main.width() - place.width()) / 2);
    place.moveTop(main.top() + (main.height() - place.height()) / 2 - pixels(liftInTwips));
    window.move(whollyOn(available, place).topLeft());
}

void Program::help(int context) {
    if (openHelp_) openHelp_(context);
}

void Program::windowUnloaded(QWidget* window, bool wasShown) {
    watcher_->forget(window);
    if (window == mainWindow_) {
        mainGeometry_ = window->frameGeometry();
        mainFrame_ = frameOf(*window);
        mainWindow_ = nullptr;
        mainWindowHasGone_ = true;
    }
    if (!wasShown) return;
    --shownWindows_;
    lastWindowWent_ = true;
    leaveWithLastWindow();
}

// A handler may close the last window and open another one: it counts when the handlers are done.
void Program::leaveWithLastWindow() {
    if (!handlers_.empty() || !lastWindowWent_) return;
    lastWindowWent_ = false;
    if (shownWindows_ == 0 && lastWindowGone_) lastWindowGone_();
}

void leaveProcess(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

}  // namespace torvane
