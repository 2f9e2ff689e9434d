#pragma once

#include <QWidget>

namespace torvane {

class Form;
class Program;

// The window of a screen from load to unload. Unloaded, it is hidden, belongs to no screen any more, and goes when the
// handlers that run on it are done.
class FormWindow : public QWidget {
    Q_OBJECT
public:
    explicit FormWindow(Form& form);

    Program& program() const { return program_; }
    bool unloaded() const { return form_ == nullptr; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Form;
    friend class Busy;
    void letGo();

    Program& program_;
    Form* form_;
    int handlers_ = 0;
};

// The window in front that a new one is to stand over: the modal one on top, else the active one, else any that shows;
// null when there is none but `except`.
QWidget* frontWindow(const QWidget* except = nullptr);

// Makes `window` usable and keeps it above `front` also while `front` is modal. Nothing without `front`.
void standOver(QWidget& window, QWidget* front);

// The place of a window moved so that the screen shows all of it, or at least its upper left corner.
QRect whollyOn(const QRect& screen, QRect window);

// Throws Ended when the program that the control's window belongs to has ended. A control in no screen's window passes.
void checkProgram(const QWidget& control);

}  // namespace torvane
