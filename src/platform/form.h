#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <type_traits>

#include "platform/program.h"

class QCloseEvent;
class QEventLoop;

namespace torvane {

// A screen: one long-lived object whose window exists from load to unload. Fields of the screen live on; the window and
// its controls do not. Unloading from inside a handler of the very window is allowed: the window is hidden at once and
// deleted when its handlers are done; a load in between makes a new window.
class Form {
public:
    Form(Program& program, const char* name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // Builds the window and runs Form_Load; nothing when it is loaded. If Form_Load fails the window goes again.
    void Load();
    // Loads, shows, brings to the front (also out of the minimised state).
    void Show();
    // The same, application-modal; returns when the screen has been unloaded. On a screen that stands open modeless the
    // window is hidden, made modal and shown again; nothing is loaded.
    void ShowModal();
    // Runs Form_Unload, then the window goes. Nothing when it is not loaded. The close box comes here too.
    void Unload();
    bool loaded() const { return !window_.isNull(); }

    // The window; loads the screen.
    QWidget& window();
    void setCaption(std::string_view caption);  // loads the screen
    std::string caption();

    Program& program() const { return program_; }
    const std::string& name() const { return name_; }
    // F1 in this window opens the help here. 0, the default, opens the contents.
    void setHelpContext(int context) { helpContext_ = context; }
    int helpContext() const { return helpContext_; }

protected:
    // Puts the controls into the new window. Touching controls from here on loads nothing.
    virtual void build(QWidget& window) = 0;
    // Forgets the controls; the window may live on, hidden, until its handlers are done.
    virtual void dropControls() = 0;
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

private:
    friend class FormWindow;
    Program& program_;
    std::string name_;
    QPointer<QWidget> window_;
    QEventLoop* modalLoop_ = nullptr;
    int helpContext_ = 0;
    bool unloading_ = false;
};

// A screen drawn by a form file: Ui is the struct that uic makes of it. `ui()` loads the screen, as touching a control
// does.
template <class Ui>
class FormOf : public Form {
public:
    using Form::Form;
    Ui& ui() {
        if (!controls_) Load();
        return *controls_;
    }

protected:
    void build(QWidget& window) override {
        controls_ = std::make_unique<Ui>();
        // uic sets the window title and the window's objectName itself.
        controls_->setupUi(&window);
    }
    void dropControls() override { controls_.reset(); }

private:
    std::unique_ptr<Ui> controls_;
};

// The only connect in screens: the handler runs inside the event guard, and the window can't be deleted under it. The
// handler may take fewer arguments than the signal. The connection dies with the sender.
//   on(form, ui().cmdAdd, &QAbstractButton::clicked, &frmOrder::cmdAdd_Click);   a member of the screen without arguments
//   on(form, ui().list, &ReportList::ColumnClick, [this](int column) { ... });
template <class Screen, class Sender, class Signal, class Handler>
void on(Screen& form, Sender* sender, Signal signal, Handler handler);

}  // namespace torvane
