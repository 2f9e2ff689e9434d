#pragma once

#include <QObject>
#include <functional>
#include <memory>

class QWidget;

namespace torvane {

class Form;
class Program;

// Tells when the focus has moved from a control to another one of the same window, or to another window of the program:
// not to a box, a menu, the help or another program, and not because the window closes. The handler runs at a quiet
// moment: no mouse button down, no list open, and before the handler of whatever took the focus, which then acts once.
class FocusWatcher : public QObject {
    Q_OBJECT
public:
    explicit FocusWatcher(Program& program);
    ~FocusWatcher() override;

    // `handler` runs (guarded) each time the control has lost the focus. Forgotten when the control goes.
    void watch(Form& form, QWidget* control, std::function<void()> lostFocus);
    // Runs what waits, if the moment is quiet; the first thing that each guarded handler does.
    void flush();
    // Drops what waits for this window; called at unload.
    void forget(QWidget* window);

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace torvane
