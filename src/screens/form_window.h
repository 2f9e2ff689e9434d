#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

namespace torvane {

class Form;
class Program;

// The window of a screen from load to unload. Unloaded, it is hidden, belongs to no screen any more, and goes when the
// handlers that run on it are done.
class FormWindow : public QWidget {
    Q_OBJECT
public:
    explicit FormWindow(Form& form);

    bool unloaded() const { return form_ == nullptr; }
    // See Form::auxiliary; true once unloaded.
    bool auxiliary() const;
    // The window that gets the keys after a box of this one, in place of this one; null for most of the time.
    QPointer<QWidget> keysAfterBox;
    // The control in it that had the focus last, as the FocusWatcher sees it.
    QPointer<QWidget> lastIn;
    // The shown window whose handler is running, the innermost one where handlers stand within handlers; null for none.
    static FormWindow* handling();

protected:
    void closeEvent(QCloseEvent* event) override;
    // Enter presses the button that has the focus.
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class Form;
    friend class RunningHandler;
    void deleteWhenUnused();

    Program& program_;
    Form* form_;
    int handlers_ = 0;
    int innermost_ = 0;  // the depth of its innermost handler among all that run; 0 while none of its runs
};

// As long as one of these stands, a window is not deleted, whatever unloads its screen.
class RunningHandler {
public:
    // The window of a screen, or null: then it holds nothing.
    explicit RunningHandler(QWidget* window);
    ~RunningHandler();
    RunningHandler(const RunningHandler&) = delete;
    RunningHandler& operator=(const RunningHandler&) = delete;
    // Whether the screen has unloaded the window; its events count no more.
    bool unloaded() const;

private:
    QPointer<QWidget> window_;
    bool given_;
    int outer_ = 0;
};

// Runs what is entered neither by a signal nor by the screen itself (a timer, an event filter, an overridden event
// handler) as a handler of the window: inside the event guard, and not at all once the window has been unloaded.
void asHandler(Program& program, QWidget* window, const std::function<void()>& body);

// The window that a box or another window shown now is to stand over: the modal one on top, else the one whose handler
// shows it, else the active one, else any that shows; null when there is none but `except`.
QWidget* frontWindow(const QWidget* except = nullptr);

// Gives a window that was drawn by a form file its keys: letters to its buttons, and Escape, which presses the first
// that shows of its Close Notes, Cancel, Close and Exit.
void giveKeys(QWidget& window);

// Makes `window` usable and keeps it above `front` also while `front` is modal. Nothing without `front`.
void standOver(QWidget& window, QWidget* front);

// Whether the desktop speaks Wayland: windows have no place there that the program knows or asks for, none stays above
// the others unless it is a dialog of theirs, and each new one has the keys.
bool onWayland();

// The place of a window moved so that the screen shows all of it, or at least its upper left corner.
QRect whollyOn(const QRect& screen, QRect window);

}  // namespace torvane
