#include "screens/program.h"

#include <QApplication>
#include <vector>

#include "screens/assistant.h"
#include "screens/form.h"
#include "screens/form_window.h"
#include "values/failure.h"

namespace torvane {

Program::Program(DataAccess access, std::function<void(int)> leave)
    : access_(access), focusWatcher_(*this), guard_(access_, focusWatcher_, lastWindow_, std::move(leave)) {}

Program::~Program() {
    // Those that still wait for their deletion would look for the program.
    std::vector<FormWindow*> left;  // first all of them: a window may take others with it
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* one = qobject_cast<FormWindow*>(window)) left.push_back(one);
    for (FormWindow* window : left) delete window;
}

void Program::StartUp(Form& form) {
    placing_.place(form.window());
}

void Program::windowUnloaded(QWidget* window, bool counted) {
    focusWatcher_.forget(window);
    placing_.unloaded(window);
    if (!counted) return;
    lastWindow_.unloaded();
    if (guard_.idle()) lastWindow_.tell();
}

void Program::say(std::string_view text, std::string_view title) {
    host().box(text, title, Buttons::Ok);
}

bool Program::confirm(std::string_view text, std::string_view title) {
    return host().box(text, title, Buttons::YesNo) == Answer::Yes;
}

Assistant& Program::Merlin() const {
    if (!merlin_) fail(Failure::ObjectNotSet);
    return *merlin_;
}

void Program::setMerlin(std::unique_ptr<Assistant> assistant) {
    merlin_ = std::move(assistant);
}

void Program::speakHelp(std::string_view text) {
    if (placing_.mainWindowHasGone()) return;
    Merlin().Show();
    if (!text.empty()) Merlin().Speak(text);
}

void Program::help(int context) {
    if (openHelp_) openHelp_(context);
}

}  // namespace torvane
