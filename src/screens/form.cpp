#include "screens/form.h"

#include <QApplication>
#include <QEventLoop>
#include <QWindow>

#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

Form::Form(Program& program, std::string_view name) : program_(program), name_(name) {}

Form::~Form() {
    if (window_) letGo(false);
}

void Form::Load() {
    if (window_) return;
    auto* window = new FormWindow(*this);
    const RunningHandler handler(window);
    window_ = window;
    window->setObjectName(qstring(name_));
    try {
        build(*window);
        const Program::Doing opening(program_, "opening the window \"" + utf8(window->windowTitle()) + '"');
        Form_Load();
    } catch (...) {
        if (window_ == window) drop();
        throw;
    }
}

void Form::bringToFront(QWidget* front) {
    QWidget& window = *window_;
    standOver(window, front);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    if (!std::exchange(shown_, true) && !auxiliary_) program_.lastWindow().shown();
    window.show();
    window.raise();
    window.activateWindow();
}

void Form::Show() {
    Load();
    if (window_) bringToFront(QApplication::activeModalWidget());
}

void Form::Show(const Form& owner) {
    Load();
    if (window_) bringToFront(owner.standingWindow());
}

void Form::ShowModal() {
    Load();
    if (!window_) return;
    const QPointer<QWidget> before = frontWindow(window_);
    // The modality of a window changes only with its next show.
    window_->hide();
    window_->setWindowModality(Qt::ApplicationModal);
    bringToFront(before);

    QEventLoop loop;
    modalLoops_.push_back(&loop);
    loop.exec(QEventLoop::DialogExec);
    std::erase(modalLoops_, &loop);

    // Without a window manager nobody gives the keys back to the window before.
    if (before && before->isVisible()) before->activateWindow();
}

void Form::Unload() {
    if (!window_ || unloading_) return;
    const RunningHandler handler(window_);
    unloading_ = true;
    Form_Unload();
    unloading_ = false;
    drop();
}

// The window goes, without a word to the screen.
void Form::drop() {
    if (QWindow* handle = window_->windowHandle())
        for (QWindow* other : QGuiApplication::topLevelWindows())
            if (other->transientParent() == handle) other->setTransientParent(nullptr);
    letGo(std::exchange(shown_, false) && !auxiliary_);
    dropControls();
    for (QEventLoop* loop : modalLoops_) loop->quit();
}

void Form::letGo(bool counted) {
    auto* window = static_cast<FormWindow*>(window_.data());
    program_.windowUnloaded(window, counted);
    window_ = nullptr;
    window->form_ = nullptr;
    window->hide();
    window->deleteWhenUnused();
}

QWidget& Form::window() {
    if (!window_) Load();
    if (!window_) fail(Failure::ObjectNotSet);
    return *window_;
}

void Form::setCaption(std::string_view caption) {
    window().setWindowTitle(qstring(caption));
}

std::string Form::caption() {
    return utf8(window().windowTitle());
}

}  // namespace torvane
