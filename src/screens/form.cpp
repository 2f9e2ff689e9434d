#include "screens/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QShortcut>
#include <QWindow>
#include <algorithm>

#include "screens/focus_watcher.h"
#include "screens/form_window.h"
#include "widgets/texts.h"

namespace torvane {

// --- FormWindow ------------------------------------------------------------------------------------------------------

FormWindow::FormWindow(Form& form) : QWidget(nullptr, Qt::Window), program_(form.program()), form_(&form) {
    // A shortcut and not a key event: some controls keep the keys they do not know.
    auto* help = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(help, &QShortcut::activated, this, [this] {
        asHandler(program_, this, [this] {
            // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): `this` is the window, which stands.
            if (form_) program_.help(form_->helpContext());
        });
    });
}

void FormWindow::closeEvent(QCloseEvent* event) {
    asHandler(program_, this, [this] { form_->Unload(); });
    event->setAccepted(unloaded());
}

// Deleted only from the event loop: Qt's own code may still be at work on the window when the last handler is left.
void FormWindow::letGo() {
    if (unloaded() && handlers_ == 0) deleteLater();
}

bool FormWindow::counts() const {
    return form_ && form_->counts();
}

FormWindow* FormWindow::handling() {
    FormWindow* innermost = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<FormWindow*>(widget);
        if (window && window->isVisible() && window->innermost_ > (innermost ? innermost->innermost_ : 0))
            innermost = window;
    }
    return innermost;
}

QWidget* frontWindow(const QWidget* except) {
    const auto fits = [except](const QWidget* window) {
        return window && window != except && window->isVisible() &&
               (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
    };
    if (QWidget* modal = QApplication::activeModalWidget(); fits(modal)) return modal;
    if (QWidget* handling = FormWindow::handling(); fits(handling)) return handling;
    if (QWidget* active = QApplication::activeWindow(); fits(active)) return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (fits(window)) return window;
    return nullptr;
}

void standOver(QWidget& window, QWidget* front) {
    if (!front || front == &window) return;
    window.winId();  // makes the native window
    QWindow* const above = window.windowHandle();
    QWindow* const below = front->windowHandle();
    if (!above || !below) return;
    // A list may stand over an entry form that stands over the list's own former place: never in a ring.
    for (QWindow* step = below; step; step = step->transientParent())
        if (step->transientParent() == above) step->setTransientParent(nullptr);
    above->setTransientParent(below);
}

QRect whollyOn(const QRect& screen, QRect window) {
    window.moveLeft(std::max(screen.left(), std::min(window.left(), screen.right() + 1 - window.width())));
    window.moveTop(std::max(screen.top(), std::min(window.top(), screen.bottom() + 1 - window.height())));
    return window;
}

// --- Busy ------------------------------------------------------------------------------------------------------------

Busy::Busy(QWidget* window) : window_(window), given_(window != nullptr) {
    if (!given_) return;
    auto& entered = static_cast<FormWindow&>(*window);
    ++entered.handlers_;
    const FormWindow* const outer = FormWindow::handling();
    outer_ = std::exchange(entered.innermost_, outer ? outer->innermost_ + 1 : 1);
}

Busy::~Busy() {
    if (auto* window = static_cast<FormWindow*>(window_.data())) {
        --window->handlers_;
        window->innermost_ = outer_;
        window->letGo();
    }
}

bool Busy::unloaded() const {
    return given_ && (!window_ || static_cast<const FormWindow*>(window_.data())->unloaded());
}

// --- Form ------------------------------------------------------------------------------------------------------------

Form::Form(Program& program, std::string_view name) : program_(program), name_(name) {}

Form::~Form() {
    auto* window = static_cast<FormWindow*>(window_.data());
    if (!window) return;
    window->form_ = nullptr;
    program_.focusWatcher().forget(window);
    window->hide();
    if (window->handlers_ == 0) delete window;  // else the last handler sees to it
}

void Form::Load() {
    if (window_) return;
    auto* window = new FormWindow(*this);
    const Busy busy(window);
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

void Form::present(QWidget* front) {
    QWidget& window = *window_;
    standOver(window, front);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    if (!shown_ && counts_) program_.windowShown();
    shown_ = true;
    window.show();
    window.raise();
    window.activateWindow();
}

void Form::Show() {
    Load();
    if (window_) present(QApplication::activeModalWidget());
}

void Form::Show(const Form& owner) {
    Load();
    if (window_) present(owner.standingWindow());
}

void Form::ShowModal() {
    Load();
    if (!window_) return;
    const QPointer<QWidget> before = frontWindow(window_);
    // The modality of a window changes only with its next show.
    window_->hide();
    window_->setWindowModality(Qt::ApplicationModal);
    present(before);

    QEventLoop loop;
    modalLoops_.push_back(&loop);
    loop.exec(QEventLoop::DialogExec);
    std::erase(modalLoops_, &loop);

    // Without a window manager nobody gives the keys back to the window before.
    if (before && before->isVisible()) before->activateWindow();
}

void Form::Unload() {
    if (!window_ || unloading_) return;
    const Busy busy(window_);
    unloading_ = true;
    Form_Unload();
    unloading_ = false;
    drop();
}

// The window goes, without a word to the screen.
void Form::drop() {
    auto* window = static_cast<FormWindow*>(window_.data());
    program_.windowUnloaded(window, std::exchange(shown_, false) && counts_);
    window_ = nullptr;
    window->form_ = nullptr;
    dropControls();
    for (QEventLoop* loop : modalLoops_) loop->quit();
    if (QWindow* handle = window->windowHandle())
        for (QWindow* other : QGuiApplication::topLevelWindows())
            if (other->transientParent() == handle) other->setTransientParent(nullptr);
    window->hide();
    window->letGo();
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
