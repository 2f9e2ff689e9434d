#pragma once

#include <QMargins>
#include <QPointer>
#include <QRect>
#include <QWidget>

namespace torvane {

// Places windows over the main window, and where that stood last once it has gone.
class WindowPlacing {
public:
    void setMainWindow(QWidget* window);
    bool mainWindowHasGone() const { return mainWindowHasGone_; }
    // Centres a window over the main window and lifts it by 250 twips, wholly on the screen. Over the middle of the
    // screen while no main window has ever been set. The window becomes as much larger than given as its type is, but
    // no larger than the screen: what does not fit is scrolled.
    void place(QWidget& window);
    // Moves a window there, or as near as it is wholly on the screen.
    void moveTo(QWidget& window, QPoint place) const;
    // Called at the unload of each window.
    void unloaded(QWidget* window);

private:
    void rememberMainWindow();
    QRect available() const;  // of the main window's screen

    QPointer<QWidget> mainWindow_;
    QRect geometry_;  // of the main window
    QMargins frame_;
    bool mainWindowHasGone_ = false;
};

}  // namespace torvane
