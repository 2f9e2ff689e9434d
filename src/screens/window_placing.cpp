#include "screens/window_placing.h"

#include <QGuiApplication>
#include <QScreen>

#include "screens/form_window.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr double liftInTwips = 250;

}  // namespace

void WindowPlacing::setMainWindow(QWidget* window) {
    mainWindow_ = window;
    mainWindowHasGone_ = false;
}

void WindowPlacing::rememberMainWindow() {
    geometry_ = mainWindow_->frameGeometry();
    const QRect inner = mainWindow_->geometry();
    frame_ = {inner.left() - geometry_.left(), inner.top() - geometry_.top(), geometry_.right() - inner.right(),
              geometry_.bottom() - inner.bottom()};
}

void WindowPlacing::place(QWidget& window) {
    window.ensurePolished();
    if (mainWindow_) rememberMainWindow();
    QScreen* screen = geometry_.isNull() ? nullptr : QGuiApplication::screenAt(geometry_.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    const QSize wanted = window.size().expandedTo((window.size() * fontScale(window)).boundedTo(available.size()));
    window.resize(wanted.expandedTo(window.minimumSizeHint()));
    const QRect main = geometry_.isNull() ? available : geometry_;

    // The frame of a window that was never shown is not known; the main window's is as good.
    QRect place(QPoint(), window.size().grownBy(frame_));
    place.moveLeft(main.left() + (main.width() - place.width()) / 2);
    place.moveTop(main.top() + (main.height() - place.height()) / 2 - pixels(liftInTwips));
    window.move(whollyOn(available, place).topLeft());
}

void WindowPlacing::unloaded(QWidget* window) {
    if (window != mainWindow_) return;
    rememberMainWindow();
    mainWindow_ = nullptr;
    mainWindowHasGone_ = true;
}

}  // namespace torvane
