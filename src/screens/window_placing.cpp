#include "screens/window_placing.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/form_window.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr double liftInTwips = 250;

// What a small screen does not show can be scrolled to, and what gets the focus comes into view. Gives the width of the
// scroll bar.
int scrollContents(QWidget& window) {
    auto* contents = new QWidget;
    contents->setLayout(window.layout());  // takes its controls along
    auto* area = new QScrollArea(&window);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    QObject::connect(qApp, &QApplication::focusChanged, contents, [area](QWidget*, QWidget* now) {
        if (now) area->ensureWidgetVisible(now);
    });
    return area->verticalScrollBar()->sizeHint().width();
}

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

QRect WindowPlacing::available() const {
    QScreen* screen = geometry_.isNull() ? nullptr : QGuiApplication::screenAt(geometry_.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

void WindowPlacing::place(QWidget& window) {
    window.ensurePolished();
    if (mainWindow_) rememberMainWindow();
    // The frame of a window that was never shown is not known; the main window's is as good.
    QSize room = available().size().shrunkBy(frame_);
    // Wayland desktops tell neither of the frame that they draw nor of their panels.
    if (onWayland()) room.rheight() -= 2 * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QSize least = window.minimumSizeHint();
    if (least.width() > room.width() || least.height() > room.height()) least.rwidth() += scrollContents(window);
    window.resize((window.size() * fontScale(window)).expandedTo(least).boundedTo(room));

    // Where a text wraps, the narrowest window needs the most height.
    if (const QLayout* layout = window.layout(); layout && layout->hasHeightForWidth())
        window.setMinimumHeight(std::min(layout->totalHeightForWidth(least.width()), room.height()));

    const QRect main = geometry_.isNull() ? available() : geometry_;
    const QSize whole = window.size().grownBy(frame_);
    moveTo(window, {main.left() + (main.width() - whole.width()) / 2,
                    main.top() + (main.height() - whole.height()) / 2 - pixels(liftInTwips)});
}

void WindowPlacing::moveTo(QWidget& window, QPoint place) const {
    window.move(whollyOn(available(), {place, window.size().grownBy(frame_)}).topLeft());
}

void WindowPlacing::unloaded(QWidget* window) {
    if (window != mainWindow_) return;
    rememberMainWindow();
    mainWindow_ = nullptr;
    mainWindowHasGone_ = true;
}

}  // namespace torvane
