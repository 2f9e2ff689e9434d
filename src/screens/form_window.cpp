#include "screens/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QWindow>
#include <algorithm>

#include "screens/form.h"
#include "widgets/mnemonics.h"

namespace torvane {

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

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = enter ? qobject_cast<QPushButton*>(focusWidget()) : nullptr;
    if (!button) return QWidget::keyPressEvent(event);
    button->click();
}

void giveKeys(QWidget& window) {
    giveMnemonics(window);
    QList<QPushButton*> escapes;
    for (const char* word : {"Close Notes", "Cancel", "Close", "Exit"})
        for (QPushButton* button : window.findChildren<QPushButton*>())
            if (button->text().remove('&') == QLatin1String(word)) escapes.append(button);
    // A shortcut and not a key event: lists keep the keys they do not know.
    auto* escape = new QShortcut(Qt::Key_Escape, &window);
    QObject::connect(escape, &QShortcut::activated, &window, [escapes] {
        const auto shown = std::ranges::find_if(escapes, &QWidget::isVisible);
        if (shown != escapes.end()) (*shown)->click();
    });
}

// Deleted only from the event loop: Qt's own code may still be at work on the window when the last handler is left.
void FormWindow::deleteWhenUnused() {
    if (unloaded() && handlers_ == 0) deleteLater();
}

bool FormWindow::auxiliary() const {
    return !form_ || form_->auxiliary();
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
    // Desktops keep a window above its owner only as a dialog, and let one be minimised that blocks all the others.
    Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                            Qt::WindowCloseButtonHint;
    if (window.windowModality() == Qt::NonModal) flags |= Qt::WindowMinMaxButtonsHint;
    window.setWindowFlags(flags);
    window.winId();  // makes the native window
    QWindow* const above = window.windowHandle();
    QWindow* const below = front->windowHandle();
    // A list may stand over an entry form that stands over the list's own former place: never in a ring.
    for (QWindow* step = below; step; step = step->transientParent())
        if (step->transientParent() == above) step->setTransientParent(nullptr);
    above->setTransientParent(below);
}

bool onWayland() {
    return QGuiApplication::platformName().startsWith("wayland");
}

QRect whollyOn(const QRect& screen, QRect window) {
    window.moveLeft(std::max(screen.left(), std::min(window.left(), screen.right() + 1 - window.width())));
    window.moveTop(std::max(screen.top(), std::min(window.top(), screen.bottom() + 1 - window.height())));
    return window;
}

namespace {

int running = 0;  // handlers, each inside the one before

}  // namespace

RunningHandler::RunningHandler(QWidget* window) : window_(window), given_(window != nullptr) {
    if (!given_) return;
    auto& entered = static_cast<FormWindow&>(*window);
    ++entered.handlers_;
    outer_ = std::exchange(entered.innermost_, ++running);
}

RunningHandler::~RunningHandler() {
    if (given_) --running;
    if (auto* window = static_cast<FormWindow*>(window_.data())) {
        --window->handlers_;
        window->innermost_ = outer_;
        window->deleteWhenUnused();
    }
}

bool RunningHandler::unloaded() const {
    return given_ && (!window_ || static_cast<const FormWindow*>(window_.data())->unloaded());
}

void asHandler(Program& program, QWidget* window, const std::function<void()>& body) {
    const RunningHandler handler(window);
    program.guarded([&] {
        if (!handler.unloaded()) body();
    });
}

}  // namespace torvane
