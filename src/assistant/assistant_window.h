#pragma once

#include <QByteArray>
#include <QHash>
#include <QPixmap>
#include <QRegion>
#include <QWidget>
#include <string>

#include "screens/form_window.h"

namespace torvane {

class Balloon;

// The character's window: frameless, see-through, above the others, and never with the focus. It stays usable while a
// modal window stands, but is out of sight while that is a message box, which it must not cover. A click, or Escape in
// any window, asks for the text to go, and only without a text is Escape the window's own; the character can be
// dragged, and its menu sends it away.
//
// On Wayland it is a part of the window that was in front when it spoke last, and its places are those in that window: a
// window of its own would take the keys each time it appears, and lie below the others.
class AssistantWindow : public QWidget {
    Q_OBJECT
public:
    // As large as the drawings; a window of its own or a part of the one in front.
    explicit AssistantWindow(const QSize& size, bool ofItsOwn = !onWayland());
    ~AssistantWindow() override;

    void enter();
    void leave();
    // The upper left corner of the character, moved so that all of it can be seen.
    void moveTo(int x, int y);
    void showDrawing(const QByteArray& drawing);
    void showText(const std::string& text);
    void hideText();

signals:
    void dismissed();
    void sentAway();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct Picture {
        QPixmap pixmap;
        QRegion mask;
    };
    const Picture& picture(const QByteArray& drawing);
    QRect roomAt(const QPoint& place) const;
    bool textShown() const;
    void placeBalloon();
    void showMenu(const QPoint& globalPosition);
    void takePlace();
    QWidget* windowToStandIn() const;
    void standIn(QWidget* front);
    void standOverModal();
    void comeToFront();

    const bool ofItsOwn_;
    Balloon* balloon_ = nullptr;  // the own child, or one of the window in which it stands
    QHash<QByteArray, Picture> pictures_;
    qreal drawnAt_ = 0;
    QByteArray drawing_;
    QPoint pressed_;
    bool dragged_ = false;
    bool entered_ = false;
    bool speaking_ = false;
};

}  // namespace torvane
