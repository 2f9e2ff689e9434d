#pragma once

#include <QLabel>
#include <QPainterPath>
#include <QScrollArea>
#include <QWidget>

namespace torvane {

// The word balloon beside the character: a window of its own, so that the character's need not change its size, or a
// part of the window in which that stands. Its text stands in the label "Balloon" as plain text; one that is too long
// for the screen, or for that window, can be scrolled.
class Balloon : public QWidget {
    Q_OBJECT
public:
    explicit Balloon(QWidget* character);

    void setText(const QString& text);
    // Puts the balloon above the character's rectangle, else beside or below it, wholly in the room: the screen, or the
    // window of which it is a part.
    void placeAt(const QRect& character, const QRect& room);

signals:
    void clicked();
    void menuAsked(const QPoint& globalPosition);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void draw(QPainter& painter) const;
    QSize textSize(const QSize& most) const;

    QScrollArea* area_;
    QLabel* label_;
    QPainterPath outline_;
};

// What of a picture can be seen, in device-independent pixels: clicks pass through the rest, and no black box stands
// around it where the desktop knows no translucency.
QRegion seenRegion(const QImage& picture);

}  // namespace torvane
