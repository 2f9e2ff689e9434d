#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

namespace torvane {

class Form;
class FormWindow;
class Program;

// Tells when the focus has moved from a control to another one of the same window, or to another window of the program:
// not to a box, a menu, the help or another program, and not because the window closes. The handler runs at a quiet
// moment: no mouse button down, no list open, and before the handler of whatever took the focus, which then acts once.
class FocusWatcher : public QObject {
    Q_OBJECT
public:
    explicit FocusWatcher(Program& program);

    // `lostFocus` runs (guarded) each time the control has lost the focus, as long as the window stands.
    void watch(Form& form, QWidget* control, std::function<void()> lostFocus);
    // Runs what waits, if the moment is quiet; the first thing that each guarded handler does.
    void flush();
    // Watches nothing in this window any more; called at unload.
    void forget(QWidget* window);

private:
    struct Watched {
        QPointer<QWidget> control;
        QPointer<QWidget> window;
        std::function<void()> lostFocus;
    };
    // A control that has lost the focus, within its window or to another one.
    struct FocusLoss {
        QPointer<QWidget> control;
        bool toAnotherWindow = false;
        QPointer<QWidget> to = {};  // that window, as long as it stands
    };

    void focusIn(QWidget* now);
    void windowActive(FormWindow* now);
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void waitForDesktop();
    void takeFocusAsItStands(FormWindow* window);
    void wait(const FocusLoss& one);
    const Watched* find(const QWidget* control) const;

    Program& program_;
    std::vector<Watched> watched_;
    QPointer<QWidget> active_;         // the window that has the keys, or had them last
    std::vector<FocusLoss> losses_;    // what waits, in order
    QTimer timer_{this};               // runs until what waits is looked at
    QTimer settling_{this};            // runs while a desktop may still give the keys to and fro
    std::optional<int> handlerDepth_;  // the depth of event loops in which a handler of ours runs
};

}  // namespace torvane
