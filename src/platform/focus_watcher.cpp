#include "platform/focus_watcher.h"

#include <QApplication>
#include <QHash>
#include <QMenuBar>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <vector>

#include "platform/form.h"
#include "platform/form_window.h"

namespace torvane {

namespace {

constexpr int askAgainAfterMs = 15;

bool modalWindowAbove(const QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == &window) return false;
    const QWindow* above = modal->windowHandle();
    const QWindow* ours = window.windowHandle();
    return !(above && ours && above->isAncestorOf(ours, QWindow::IncludeTransients));
}

}  // namespace

struct FocusWatcher::State {
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

    Program& program;
    std::vector<Watched> watched;
    QHash<const QWidget*, QPointer<QWidget>> lastIn;  // by window: the control that had the focus last
    std::vector<QPointer<QWidget>> left;              // what waits, in order
    QTimer timer;
    int runningAt = -1;  // the depth of event loops in which a handler of ours runs
};

FocusWatcher::FocusWatcher(Program& program) : state_(std::make_unique<State>(program)) {
    state_->timer.setSingleShot(true);
    connect(&state_->timer, &QTimer::timeout, this, &FocusWatcher::flush);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // Neither a menu, nor a list that has opened, nor a box or another window takes the focus out of a control.
        if (!now || qobject_cast<QMenuBar*>(now)) return;
        const auto* window = qobject_cast<const FormWindow*>(now->window());
        if (!window || window->unloaded()) return;
        QPointer<QWidget>& last = state_->lastIn[window];
        if (last == now) return;
        const QPointer<QWidget> before = last;
        last = now;
        if (!before || !state_->find(before)) return;
        state_->left.push_back(before);
        state_->timer.start(0);
    });
}

FocusWatcher::~FocusWatcher() = default;

void FocusWatcher::watch(Form& form, QWidget* control, std::function<void()> lostFocus) {
    std::erase_if(state_->watched, [](const State::Watched& one) { return !one.control; });
    state_->watched.push_back({control, form.standingWindow(), std::move(lostFocus)});
}

void FocusWatcher::flush() {
    const int loops = QThread::currentThread()->loopLevel();
    while (!state_->left.empty() && state_->runningAt != loops) {
        const QPointer<QWidget> control = state_->left.front();
        const State::Watched* watched = control ? state_->find(control) : nullptr;
        if (watched && (QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() ||
                        modalWindowAbove(*control->window()))) {
            state_->timer.start(askAgainAfterMs);
            return;
        }
        state_->left.erase(state_->left.begin());
        if (!watched) continue;
        const auto handler = watched->lostFocus;  // a handler may watch more controls
        const int outer = std::exchange(state_->runningAt, loops);
        asHandler(state_->program, watched->window, handler);
        state_->runningAt = outer;
    }
}

void FocusWatcher::forget(QWidget* window) {
    state_->lastIn.remove(window);
    std::erase_if(state_->left,
                  [window](const QPointer<QWidget>& control) { return !control || control->window() == window; });
    std::erase_if(state_->watched,
                  [window](const State::Watched& one) { return !one.control || one.window == window; });
}

}  // namespace torvane
