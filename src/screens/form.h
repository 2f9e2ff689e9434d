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
    const std::string& name() const { return name_; }
    // F1 in this window opens the help here. 0, the default, opens the contents.
    void setHelpContext(int context) { helpContext_ = context; }
    int helpContext() const { return helpContext_; }
    // Whether the program goes on while only this window stands, and whether the focus leaves other windows when it
    // goes here; so it is for all windows but that of the help.
    void setCounts(bool counts) { counts_ = counts; }
    bool counts() const { return counts_; }

protected:
    // Puts the controls into the new window. Touching controls from here on loads nothing.
    virtual void build(QWidget& window) = 0;
    // Forgets the controls; the window may live on, hidden, until its handlers are done.
    virtual void dropControls() = 0;
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

private:
    friend class FormWindow;
    void present(QWidget* front);
    void drop();
    Program& program_;
    std::string name_;
    QPointer<QWidget> window_;  // a FormWindow
    std::vector<QEventLoop*> modalLoops_;
    int helpContext_ = 0;
    bool counts_ = true;
    bool shown_ = false;
    bool unloading_ = false;
};

// As long as one of these stands, a window is not deleted, whatever unloads its screen.
class Busy {
public:
    // The window of a screen, or null: then it holds nothing.
    explicit Busy(QWidget* window);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    // Whether the screen has let go of the window; its events count no more.
    bool unloaded() const;

private:
    QPointer<QWidget> window_;
    bool given_;
    int outer_ = 0;
};

// Runs what is entered neither by a signal nor by the screen itself (a timer, an event filter, an overridden event
// handler) as a handler of the window: inside the event guard, and not at all once the window has been unloaded.
template <class Body>
void asHandler(Program& program, QWidget* window, Body&& body) {
    const Busy busy(window);
    program.guarded([&] {
        if (!busy.unloaded()) body();
    });
}

// A screen drawn by a form file: Ui is the struct that uic makes of it. `ui()` loads the screen, as touching a control
// does.
template <class Ui>
class FormOf : public Form {
public:
    using Form::Form;
    Ui& ui() {
        if (!controls_) Load();
        if (!controls_) fail(Failure::ObjectNotSet);
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
// handler may take fewer arguments than the signal. The connection dies with the sender, and is dead from the moment in
// which the screen is unloaded; a sender that outlives the screen itself needs a connection of its own.
//   on(form, ui().cmdAdd, &QAbstractButton::clicked, &frmOrder::cmdAdd_Click);   a member of the screen without
//   arguments on(form, ui().list, &ReportList::ColumnClick, [this](int column) { ... });
template <class Screen, class Sender, class Signal, class Handler>
void on(Screen& form, Sender* sender, Signal signal, Handler handler);

namespace detail {

template <class Screen, class Handler, class Arguments, std::size_t... index>
void callHandler(Screen& form, Handler& handler, Arguments& arguments, std::index_sequence<index...>) {
    if constexpr (std::is_member_function_pointer_v<Handler> &&
                  std::is_invocable_v<Handler&, Screen&, std::tuple_element_t<index, Arguments>...>) {
        std::invoke(handler, form, std::get<index>(arguments)...);
    } else if constexpr (std::is_invocable_v<Handler&, std::tuple_element_t<index, Arguments>...>) {
        handler(std::get<index>(arguments)...);
    } else {
        static_assert(sizeof...(index) > 0, "the handler takes arguments that the signal does not give");
        if constexpr (sizeof...(index) > 0)
            callHandler(form, handler, arguments, std::make_index_sequence<sizeof...(index) - 1>{});
    }
}

template <class Screen, class Sender, class Base, class... Arguments, class Handler>
void connectHandler(Screen& form, Sender* sender, void (Base::*signal)(Arguments...), Handler handler) {
    const QPointer<QWidget> window = form.standingWindow();
    QObject::connect(sender, signal, sender,
                     [&form, &program = form.program(), window, handler](Arguments... arguments) mutable {
                         asHandler(program, window, [&] {
                             std::tuple<Arguments&...> given(arguments...);
                             callHandler(form, handler, given, std::index_sequence_for<Arguments...>{});
                         });
                     });
}

}  // namespace detail

template <class Screen, class Sender, class Signal, class Handler>
void on(Screen& form, Sender* sender, Signal signal, Handler handler) {
    detail::connectHandler(form, sender, signal, std::move(handler));
}

// The same for the clicks of many buttons; each handler is a member of the screen.
template <class Screen>
void onClicks(Screen& form, std::initializer_list<std::pair<QAbstractButton*, void (Screen::*)()>> handlers) {
    for (const auto& [button, handler] : handlers) on(form, button, &QAbstractButton::clicked, handler);
}

}  // namespace torvane
