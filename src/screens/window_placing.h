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
    // screen while no main window has ever been set. The window becomes as much larger than given as its type is.
    void place(QWidget& window);
    // Called at the unload of each window.
    void unloaded(QWidget* window);

private:
    void rememberMainWindow();

    QPointer<QWidget> mainWindow_;
    QRect geometry_;  // of the main window
    QMargins frame_;
    bool mainWindowHasGone_ = false;
};

}  // namespace torvane
