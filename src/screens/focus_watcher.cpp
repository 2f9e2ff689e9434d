#include "screens/focus_watcher.h"

#include <QApplication>
#include <QHash>
#include <QMenuBar>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <vector>

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

struct FocusWatcher::State {
    // A control that has lost the focus, within its window or to another one.
    struct Left {
        QPointer<QWidget> control;
        bool toAnotherWindow = false;
        QPointer<QWidget> to;  // that window, as long as it stands
    };
    struct Watched {
        QPointer<QWidget> control;
        QPointer<QWidget> window;
        std::function<void()> lostFocus;
    };

    explicit State(Program& theProgram) : program(theProgram) {}

    Watched* find(const QWidget* control) {
        for (Watched& one : watched)
            if (one.control == control) return &one;
        return nullptr;
    }

    void wait(const Left& one) {
        left.push_back(one);
        timer.start(one.toAnotherWindow ? clickFollowsWithinMs : 0);
    }
    void focusIn(QWidget* now);
    void windowActive(FormWindow* now);
    void settled();

    Program& program;
    std::vector<Watched> watched;
    QHash<const QWidget*, QPointer<QWidget>> lastIn;  // by window: the control that had the focus last
    QPointer<FormWindow> active;                      // the window that has the keys, or had them last
    QTimer settling;                                  // runs while a desktop may still give the keys to and fro
    std::vector<Left> left;                           // what waits, in order
    QTimer timer;
    int runningAt = -1;  // the depth of event loops in which a handler of ours runs
};

void FocusWatcher::State::focusIn(QWidget* now) {
    // Neither a menu, nor a list that has opened, nor a box takes the focus out of a control.
    if (!now || qobject_cast<QMenuBar*>(now)) return;
    const auto* window = qobject_cast<const FormWindow*>(now->window());
    if (!window || window->unloaded() || settling.isActive()) return;
    const QPointer<QWidget> before = std::exchange(lastIn[window], now);
    if (before && before != now && find(before)) wait({before, false, nullptr});
}

void FocusWatcher::State::windowActive(FormWindow* now) {
    if (!now || !now->counts() || now == active || runningAt >= 0 || settling.isActive()) return;
    const QPointer<FormWindow> before = std::exchange(active, now);
    // A focus that is back before anything was told has never been away.
    const auto isBack = [&](const Left& one) {
        return one.toAnotherWindow && one.control && one.control->window() == now;
    };
    for (const Left& one : left)
        if (isBack(one)) lastIn[now] = one.control;
    std::erase_if(left, isBack);
    if (!before || before->unloaded() || !before->isVisible()) return;
    const QPointer<QWidget> control = std::exchange(lastIn[before], nullptr);
    if (control && find(control)) wait({control, true, now});
}

// Takes the focus as it stands.
void FocusWatcher::State::settled() {
    active = qobject_cast<FormWindow*>(QApplication::activeWindow());
    if (active) lastIn[active] = active->focusWidget();
}

FocusWatcher::FocusWatcher(Program& program) : state_(std::make_unique<State>(program)) {
    state_->timer.setSingleShot(true);
    state_->settling.setSingleShot(true);
    connect(&state_->settling, &QTimer::timeout, this, [this] { state_->settled(); });
    connect(&state_->timer, &QTimer::timeout, this, &FocusWatcher::flush);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { state_->focusIn(now); });
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            [this] { state_->windowActive(qobject_cast<FormWindow*>(QApplication::activeWindow())); });
}

FocusWatcher::~FocusWatcher() = default;

void FocusWatcher::watch(Form& form, QWidget* control, std::function<void()> lostFocus) {
    std::erase_if(state_->watched, [](const State::Watched& one) { return !one.control; });
    state_->watched.push_back({control, form.standingWindow(), std::move(lostFocus)});
}

void FocusWatcher::flush() {
    const int loops = QThread::currentThread()->loopLevel();
    while (!state_->left.empty() && state_->runningAt != loops) {
        const auto [control, toAnotherWindow, to] = state_->left.front();
        const State::Watched* watched = control ? state_->find(control) : nullptr;
        const bool underWay = toAnotherWindow && !qobject_cast<FormWindow*>(QApplication::activeWindow());
        if (watched && (underWay || QGuiApplication::mouseButtons() != Qt::NoButton ||
                        QApplication::activePopupWidget() || modalWindowAbove(*control->window()))) {
            state_->timer.start(askAgainAfterMs);
            return;
        }
        state_->left.erase(state_->left.begin());
        if (!watched) continue;
        const auto handler = watched->lostFocus;  // a handler may watch more controls
        auto* window = qobject_cast<FormWindow*>(watched->window);
        if (toAnotherWindow) window->keysAfterBox = to;
        const QPointer<FormWindow> asked = window;
        const int outer = std::exchange(state_->runningAt, loops);
        asHandler(state_->program, window, handler);
        state_->runningAt = outer;
        if (!toAnotherWindow) continue;
        if (asked) asked->keysAfterBox = nullptr;
        if (to != QApplication::activeWindow()) state_->settling.start(settlesWithinMs);
    }
}

void FocusWatcher::forget(QWidget* window) {
    state_->lastIn.remove(window);
    std::erase_if(state_->left,
                  [window](const State::Left& one) { return !one.control || one.control->window() == window; });
    std::erase_if(state_->watched,
                  [window](const State::Watched& one) { return !one.control || one.window == window; });
}

}  // namespace torvane
