#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "screens/form_window.h"
#include "screens/program.h"

class QEventLoop;

namespace torvane {

// A screen: one long-lived object whose window exists from load to unload. Fields of the screen live on; the window and
// its controls do not. Unloading from inside a handler of the very window is allowed: the window is hidden at once and
// deleted when its handlers are done; a load in between makes a new window.
class Form {
public:
    Form(Program& program, std::string_view name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // Builds the window and runs Form_Load; nothing when it is loaded. If Form_Load fails the window goes again.
    void Load();
    // Loads, shows, brings to the front (also out of the minimised state).
    void Show();
    // The same, as a window that stands in front of its owner's.
    void Show(const Form& owner);
    // The same, application-modal; returns when the screen has been unloaded. On a screen that stands open modeless the
    // window is hidden, made modal and shown again; nothing is loaded.
    void ShowModal();
    // Runs Form_Unload, then the window goes. Nothing when it is not loaded. The close box comes here too.
    void Unload();
    bool loaded() const { return !window_.isNull(); }

    // The window; loads the screen. Failure::ObjectNotSet when Form_Load has unloaded it again.
    QWidget& window();
    // The window if there is one; loads nothing.
    QWidget* standingWindow() const { return window_; }
    void setCaption(std::string_view caption);  // loads the screen
    std::string caption();

    Program& program() const { return program_; }
    // The page of the help book, by its number there, that F1 opens in this window. 0, the default: the contents.
    void setHelpContext(int context) { helpContext_ = context; }
    int helpContext() const { return helpContext_; }
    // A window beside the work, as that of the help is: the program does not go on for it alone, and the focus has not
    // left another window when it goes here.
    void setAuxiliary(bool auxiliary) { auxiliary_ = auxiliary; }
    bool auxiliary() const { return auxiliary_; }

protected:
    // Puts the controls into the new window. Touching controls from here on loads nothing.
    virtual void build(QWidget& window) = 0;
    // Forgets the controls; the window may live on, hidden, until its handlers are done.
    virtual void dropControls() = 0;
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

private:
    friend class FormWindow;
    void bringToFront(QWidget* front);
    void drop();
    void letGo(bool counted);
    Program& program_;
    std::string name_;
    QPointer<QWidget> window_;  // a FormWindow
    std::vector<QEventLoop*> modalLoops_;
    int helpContext_ = 0;
    bool auxiliary_ = false;
    bool shown_ = false;
    bool unloading_ = false;
};

// A screen drawn by a form file: Ui is the struct that uic makes of it. `ui()` loads the screen, as touching a control
// does.
template <class Ui>
class FormOf : public Form {
public:
    using Form::Form;
    Ui& ui() {
        if (!controls_) window();
        return *controls_;
    }

protected:
    void build(QWidget& window) override {
        controls_ = std::make_unique<Ui>();
        // uic sets the window title and the window's objectName itself.
        controls_->setupUi(&window);
        giveKeys(window);
    }
    void dropControls() override { controls_.reset(); }

private:
    std::unique_ptr<Ui> controls_;
};

// How a screen connects a handler: it runs inside the event guard, and the window can't be deleted under it. The
// handler takes all that the signal gives, the first of it, or nothing; or it is a member of the screen that takes
// nothing. The connection dies with the sender, and is dead from the moment in which the screen is unloaded; a sender
// that outlives the screen itself needs a connection of its own.
//
//   on(*this, ui().cmdAdd, &QAbstractButton::clicked, &frmOrder::cmdAdd_Click);
//   on(*this, ui().list, &ReportList::ColumnClick, [this](int column) { ... });
template <class Screen, class Sender, class Source, class... Arguments, class Handler>
void on(Screen& form, Sender* sender, void (Source::*signal)(Arguments...), Handler handler) {
    const QPointer<QWidget> window = form.standingWindow();
    QObject::connect(sender, signal, sender,
                     [&form, &program = form.program(), window, handler](Arguments... arguments) mutable {
                         asHandler(program, window, [&] {
                             if constexpr (std::is_member_function_pointer_v<Handler>)
                                 std::invoke(handler, form);
                             else if constexpr (std::is_invocable_v<Handler&, Arguments...>)
                                 handler(arguments...);
                             else if constexpr (std::is_invocable_v<Handler&>)
                                 handler();
                             else
                                 handler(std::get<0>(std::tie(arguments...)));
                         });
                     });
}

// The same for the clicks of many buttons; each handler is a member of the screen.
template <class Screen>
void onClicks(Screen& form, std::initializer_list<std::pair<QAbstractButton*, void (Screen::*)()>> handlers) {
    for (const auto& [button, handler] : handlers) on(form, button, &QAbstractButton::clicked, handler);
}

}  // namespace torvane
