#include "screens/focus_watcher.h"

#include <QApplication>
#include <QMenuBar>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "screens/form.h"
#include "screens/form_window.h"

namespace torvane {

namespace {

constexpr int askAgainAfterMs = 15;
// A click in another window is told after the window's focus.
constexpr int clickFollowsWithinMs = 100;
// How long desktops give the keys to and fro between windows when a box has gone.
constexpr int settlesWithinMs = 500;

bool modalWindowAbove(const QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == &window) return false;
    const QWindow* above = modal->windowHandle();
    const QWindow* ours = window.windowHandle();
    return !(above && ours && above->isAncestorOf(ours, QWindow::IncludeTransients));
}

}  // namespace

FocusWatcher::FocusWatcher(Program& program) : program_(program) {
    timer_.setSingleShot(true);
    settling_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &FocusWatcher::flush);
    connect(&settling_, &QTimer::timeout, this,
            [this] { takeFocusAsItStands(qobject_cast<FormWindow*>(QApplication::activeWindow())); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusIn(now); });
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            [this] { windowActive(qobject_cast<FormWindow*>(QApplication::activeWindow())); });
}

void FocusWatcher::watch(Form& form, QWidget* control, std::function<void()> lostFocus) {
    watched_.push_back({control, form.standingWindow(), std::move(lostFocus)});
}

const FocusWatcher::Watched* FocusWatcher::find(const QWidget* control) const {
    const auto found = std::ranges::find_if(watched_, [&](const Watched& one) { return one.control == control; });
    return found == watched_.end() ? nullptr : &*found;
}

void FocusWatcher::focusIn(QWidget* now) {
    // Neither a menu, nor a list that has opened, nor a box takes the focus out of a control.
    if (!now || qobject_cast<QMenuBar*>(now)) return;
    auto* window = qobject_cast<FormWindow*>(now->window());
    if (!window || settling_.isActive()) return;
    const QPointer<QWidget> before = std::exchange(window->lastIn, now);
    if (before != now && find(before)) wait({before});
}

void FocusWatcher::windowActive(FormWindow* now) {
    if (!now || now->auxiliary() || now == active_ || handlerDepth_ || settling_.isActive()) return;
    auto* before = qobject_cast<FormWindow*>(std::exchange(active_, now));
    // A focus that is back before anything was told has never been away.
    const auto isBack = [&](const FocusLoss& one) {
        return one.toAnotherWindow && one.control && one.control->window() == now;
    };
    for (const FocusLoss& one : losses_)
        if (isBack(one)) now->lastIn = one.control;
    std::erase_if(losses_, isBack);
    if (!before || !before->isVisible()) return;
    const QPointer<QWidget> control = std::exchange(before->lastIn, nullptr);
    if (find(control)) wait({control, true, now});
}

// Where a box has gone the desktop gives the keys to and fro; until then the focus says nothing of the user.
void FocusWatcher::waitForDesktop() {
    settling_.start(settlesWithinMs);
    qApp->installEventFilter(this);
}

// Whoever presses something has the keys where he wants them.
bool FocusWatcher::eventFilter(QObject* receiver, QEvent* event) {
    if ((event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) && event->spontaneous()) {
        const auto* pressed = qobject_cast<QWidget*>(receiver);
        if (auto* window = pressed ? qobject_cast<FormWindow*>(pressed->window()) : nullptr)
            takeFocusAsItStands(window);
    }
    return false;
}

void FocusWatcher::takeFocusAsItStands(FormWindow* window) {
    settling_.stop();
    qApp->removeEventFilter(this);
    active_ = window;
    if (window) window->lastIn = window->focusWidget();
}

void FocusWatcher::wait(const FocusLoss& one) {
    losses_.push_back(one);
    timer_.start(one.toAnotherWindow ? clickFollowsWithinMs : 0);
}

void FocusWatcher::flush() {
    const int loops = QThread::currentThread()->loopLevel();
    while (!losses_.empty() && handlerDepth_ != loops) {
        const auto [control, toAnotherWindow, to] = losses_.front();
        const Watched* watched = find(control);
        const bool underWay = toAnotherWindow && !qobject_cast<FormWindow*>(QApplication::activeWindow());
        if (watched && (underWay || QGuiApplication::mouseButtons() != Qt::NoButton ||
                        QApplication::activePopupWidget() || modalWindowAbove(*control->window()))) {
            timer_.start(askAgainAfterMs);
            return;
        }
        losses_.erase(losses_.begin());
        if (!watched) continue;
        const auto handler = watched->lostFocus;  // a handler may watch more controls
        const QPointer<FormWindow> window = qobject_cast<FormWindow*>(watched->window);
        if (toAnotherWindow) window->keysAfterBox = to;
        const auto outer = std::exchange(handlerDepth_, loops);
        asHandler(program_, window, handler);
        handlerDepth_ = outer;
        if (!toAnotherWindow) continue;
        if (window) window->keysAfterBox = nullptr;
        if (to != QApplication::activeWindow()) waitForDesktop();
    }
}

void FocusWatcher::forget(QWidget* window) {
    std::erase_if(watched_, [window](const Watched& one) { return one.window == window; });
}

}  // namespace torvane
