#pragma once

#include <QByteArray>
#include <QHash>
#include <QPixmap>
#include <QRegion>
#include <QWidget>
#include <string>

namespace torvane {

class Balloon;

// The character's window: frameless, see-through, above the others, and never with the focus. It stays usable while a
// modal window stands, but is out of sight while that is a message box, which it must not cover. A click, or Escape in
// any window, asks for the text to go, and only without a text is Escape the window's own; the character can be
// dragged, and its menu sends it away.
class AssistantWindow : public QWidget {
    Q_OBJECT
public:
    // As large as the drawings.
    explicit AssistantWindow(const QSize& size);

    void enter();
    void leave();
    // The upper left corner of the character, moved so that the screen shows all of it.
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
    bool textShown() const;
    void placeBalloon();
    void showMenu(const QPoint& globalPosition);
    void takePlace();
    void standOverModal();
    void comeToFront();

    Balloon* balloon_ = nullptr;
    QHash<QByteArray, Picture> pictures_;
    qreal drawnAt_ = 0;
    QByteArray drawing_;
    QPoint pressed_;
    bool dragged_ = false;
    bool entered_ = false;
    bool speaking_ = false;
};

}  // namespace torvane
