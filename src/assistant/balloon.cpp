#include "assistant/balloon.h"

#include <QApplication>
#include <QBitmap>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>

namespace torvane {

namespace {

constexpr int tail = 16;
constexpr int padding = 14;
constexpr int corner = 12;
const QColor border("#4a7fb5");

}  // namespace

Balloon::Balloon(QWidget* character)
    : QWidget(character, character->windowFlags()), area_(new QScrollArea(this)), label_(new QLabel) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    label_->setObjectName("Balloon");
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    area_->setWidget(label_);
    // The scroll area switches this on when it takes the label.
    label_->setAutoFillBackground(false);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->viewport()->setAutoFillBackground(false);
    // The text stands on the palette's Base, so its colour must be the one that goes with it.
    label_->setForegroundRole(QPalette::Text);
}

void Balloon::setText(const QString& text) {
    label_->setText(text);
}

// Lines of some fifty letters, longer ones only when the text would else be too high.
QSize Balloon::textSize(const QSize& most) const {
    // A hidden label learns of a change of the program's font only when it is shown.
    const QFontMetrics metrics(QApplication::font(label_));
    QSize size;
    for (const int letters : {48, 70, 100, 150}) {
        const int width = std::min(letters * metrics.averageCharWidth(), most.width());
        size = metrics.boundingRect(QRect(0, 0, width, 100000), Qt::TextWordWrap, label_->text()).size();
        if (size.height() <= most.height() * 2 / 3) break;
    }
    return size + QSize(2, 2);
}

void Balloon::placeAt(const QRect& character, const QRect& screen) {
    const int frame = 2 * padding;
    const QSize most(screen.width() - frame - 2 * tail, screen.height() - frame - 2 * tail);
    const QSize text = textSize(most);
    const bool scrolls = text.height() > most.height();
    const int bar = scrolls ? area_->verticalScrollBar()->sizeHint().width() : 0;
    const QSize inner(std::min(text.width() + bar, most.width()), std::min(text.height(), most.height()));
    QRect body(QPoint(), inner + QSize(frame, frame));

    enum Side { Above, Right, Left, Below };
    const std::array room{
        character.top() - screen.top() - body.height(), screen.right() - character.right() - body.width(),
        character.left() - screen.left() - body.width(), screen.bottom() - character.bottom() - body.height()};
    const auto fitting = std::find_if(room.begin(), room.end(), [](int left) { return left >= tail; });
    const auto side = static_cast<Side>((fitting == room.end() ? std::max_element(room.begin(), room.end()) : fitting) -
                                        room.begin());
    const QPoint mouth(character.center().x(), character.top() + character.height() * 2 / 5);
    QPoint tip;
    switch (side) {
        case Above:
            tip = QPoint(mouth.x(), character.top());
            body.moveCenter(tip + QPoint(body.width() / 3, 0));
            body.moveBottom(tip.y() - tail);
            break;
        case Right:
            tip = QPoint(character.right() - character.width() / 12, mouth.y());
            body.moveCenter(tip);
            body.moveLeft(character.right() + tail);
            break;
        case Left:
            tip = QPoint(character.left() + character.width() / 12, mouth.y());
            body.moveCenter(tip);
            body.moveRight(character.left() - tail);
            break;
        case Below:
            tip = QPoint(mouth.x(), character.bottom());
            body.moveCenter(tip);
            body.moveTop(tip.y() + tail);
            break;
    }
    body.moveRight(std::min(body.right(), screen.right() - 1));
    body.moveLeft(std::max(body.left(), screen.left() + 1));
    body.moveBottom(std::min(body.bottom(), screen.bottom() - 1));
    body.moveTop(std::max(body.top(), screen.top() + 1));

    const QRect whole = body.united(QRect(tip, QSize(1, 1))).adjusted(-1, -1, 1, 1);
    setGeometry(whole);
    const QRectF box = QRectF(body.translated(-whole.topLeft())).adjusted(0.5, 0.5, -0.5, -0.5);
    const QPointF end = QPointF(tip - whole.topLeft());
    // The foot of the tail: on the edge towards the character, clear of the round corners.
    const bool upright = side == Above || side == Below;
    const double low = upright ? box.left() + corner + 10 : box.top() + corner + 10;
    const double high = upright ? box.right() - corner - 10 : box.bottom() - corner - 10;
    const double foot = std::clamp(upright ? end.x() : end.y(), low, std::max(low, high));
    const auto onEdge = [&](double along) {
        if (upright) return QPointF(along, side == Above ? box.bottom() - 1 : box.top() + 1);
        return QPointF(side == Left ? box.right() - 1 : box.left() + 1, along);
    };
    QPainterPath pointer;
    pointer.moveTo(onEdge(foot - 9));
    pointer.lineTo(end);
    pointer.lineTo(onEdge(foot + 9));
    pointer.closeSubpath();
    outline_ = QPainterPath();
    outline_.addRoundedRect(box, corner, corner);
    outline_ = outline_.united(pointer);

    area_->setGeometry(box.toAlignedRect().adjusted(padding, padding, -padding + 1, -padding + 1));
    label_->resize(inner.width() - bar, std::max(text.height(), inner.height()));
    QImage shape(size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    draw(painter);
    painter.end();
    setMask(seenRegion(shape));
    update();
}

void Balloon::draw(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(border, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(palette().base());
    painter.drawPath(outline_);
}

void Balloon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    draw(painter);
}

void Balloon::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit clicked();
}

void Balloon::contextMenuEvent(QContextMenuEvent* event) {
    emit menuAsked(event->globalPos());
}

QRegion seenRegion(const QImage& picture) {
    QImage seen = picture.scaled((QSizeF(picture.size()) / picture.devicePixelRatio()).toSize())
                      .convertToFormat(QImage::Format_ARGB32);
    seen.setDevicePixelRatio(1);
    for (int y = 0; y < seen.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(seen.scanLine(y));
        for (int x = 0; x < seen.width(); ++x) line[x] = qAlpha(line[x]) > 8 ? 0xFF000000U : 0U;
    }
    return QRegion(QBitmap::fromImage(seen.createAlphaMask()));
}

}  // namespace torvane
