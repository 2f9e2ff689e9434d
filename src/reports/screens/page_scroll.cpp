#include "reports/screens/page_scroll.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace torvane {

bool PageScroll::atEnd(int direction) const {
    const QScrollBar& bar = *verticalScrollBar();
    return bar.value() == (direction > 0 ? bar.maximum() : bar.minimum());
}

void PageScroll::keyPressEvent(QKeyEvent* event) {
    const bool down = event->key() == Qt::Key_PageDown || event->key() == Qt::Key_Down;
    const bool up = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_Up;
    const int direction = down ? 1 : -1;
    if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)
        emit TurnToEnd(event->key() == Qt::Key_End);
    else if ((down || up) && atEnd(direction))
        emit Turn(direction);
    else
        QScrollArea::keyPressEvent(event);
}

// Fine wheels and touch pads tell less than a step at a time.
void PageScroll::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    const int direction = turned < 0 ? 1 : -1;
    const bool zooms = event->modifiers() & Qt::ControlModifier;
    if (turned == 0 || (!zooms && !atEnd(direction))) {
        wheelTurned_ = 0;
        return QScrollArea::wheelEvent(event);
    }
    wheelTurned_ += turned;
    if (std::abs(wheelTurned_) < QWheelEvent::DefaultDeltasPerStep) return;
    wheelTurned_ = 0;
    if (zooms)
        emit Zoom(-direction);
    else
        emit Turn(direction);
}

void PageScroll::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    emit Resized();
}

}  // namespace torvane
