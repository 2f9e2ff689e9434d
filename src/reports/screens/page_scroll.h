#pragma once

#include <QScrollArea>

namespace torvane {

// What a page is read through. At its lower end Page Down, Down and the wheel go on to the next page, at its upper end
// the other way; Home and End go to the first and the last page, the wheel with Ctrl zooms.
class PageScroll : public QScrollArea {
    Q_OBJECT
public:
    using QScrollArea::QScrollArea;

signals:
    void Turn(int pages);       // 1 or -1
    void TurnToEnd(bool last);  // to the last page, or to the first
    void Zoom(int steps);       // 1 or -1
    void Resized();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool atEnd(int direction) const;
    int wheelTurned_ = 0;  // in eighths of a degree, of what is not yet a step
};

}  // namespace torvane
