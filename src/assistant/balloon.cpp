#include "assistant/balloon.h"

#include <QApplication>
#include <QBitmap>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "screens/form_window.h"

namespace torvane {

namespace {

constexpr int tail = 16;
constexpr int padding = 14;
constexpr int corner = 12;
const QColor border("#4a7fb5");

enum class Side { Above, Right, Left, Below };

// The first side of the character that has room for the balloon, or else the one with the most.
Side sideWithRoom(const QSize& body, const QRect& character, const QRect& screen) {
    const std::array room{
        character.top() - screen.top() - body.height(), screen.right() - character.right() - body.width(),
        character.left() - screen.left() - body.width(), screen.bottom() - character.bottom() - body.height()};
    const auto* fitting = std::ranges::find_if(room, [](int left) { return left >= tail; });
    return static_cast<Side>((fitting == room.end() ? std::ranges::max_element(room) : fitting) - room.begin());
}

// Where the tail ends: at the character's head.
QPoint tipOf(Side side, const QRect& character) {
    const int mouth = character.top() + character.height() * 2 / 5;
    const int inward = character.width() / 12;
    if (side == Side::Right) return {character.right() - inward, mouth};
    if (side == Side::Left) return {character.left() + inward, mouth};
    return {character.center().x(), side == Side::Above ? character.top() : character.bottom()};
}

// The balloon without its tail, wholly on the screen.
QRect bodyOf(Side side, const QSize& size, const QRect& character, const QRect& screen) {
    QRect body(QPoint(), size);
    body.moveCenter(tipOf(side, character));
    if (side == Side::Right) body.moveLeft(character.right() + tail);
    if (side == Side::Left) body.moveRight(character.left() - tail);
    if (side == Side::Below) body.moveTop(character.bottom() + tail);
    if (side == Side::Above) {
        body.translate(size.width() / 3, 0);
        body.moveBottom(character.top() - tail);
    }
    return whollyOn(screen.adjusted(1, 1, -1, -1), body);
}

// The balloon's line with a tail from the edge towards the character, clear of the round corners.
QPainterPath outlineOf(Side side, const QRectF& box, const QPointF& tip) {
    constexpr int halfFoot = 9;
    constexpr int clear = corner + 10;
    const bool upright = side == Side::Above || side == Side::Below;
    const double low = (upright ? box.left() : box.top()) + clear;
    const double high = (upright ? box.right() : box.bottom()) - clear;
    const double foot = std::clamp(upright ? tip.x() : tip.y(), low, std::max(low, high));
    const auto onEdge = [&](double along) {
        if (upright) return QPointF(along, side == Side::Above ? box.bottom() - 1 : box.top() + 1);
        return QPointF(side == Side::Left ? box.right() - 1 : box.left() + 1, along);
    };
    QPainterPath pointer(onEdge(foot - halfFoot));
    pointer.lineTo(tip);
    pointer.lineTo(onEdge(foot + halfFoot));
    pointer.closeSubpath();
    QPainterPath outline;
    outline.addRoundedRect(box, corner, corner);
    return outline.united(pointer);
}

}  // namespace

Balloon::Balloon(QWidget* character)
    : QWidget(character, character->windowFlags()), area_(new QScrollArea(this)), label_(new QLabel) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
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

// Lines of some fifty letters, longer ones only when the text would otherwise be too high.
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

void Balloon::placeAt(const QRect& character, const QRect& room) {
    const QSize frame(2 * padding, 2 * padding);
    const QSize most = room.size() - frame - QSize(2 * tail, 2 * tail);
    const QSize text = textSize(most);
    const int bar = text.height() > most.height() ? area_->verticalScrollBar()->sizeHint().width() : 0;
    const QSize inner = (text + QSize(bar, 0)).boundedTo(most);

    const Side side = sideWithRoom(inner + frame, character, room);
    const QPoint tip = tipOf(side, character);
    const QRect body = bodyOf(side, inner + frame, character, room);
    setGeometry(body.united(QRect(tip, QSize(1, 1))).adjusted(-1, -1, 1, 1));
    const QRectF box = QRectF(body.translated(-pos())).adjusted(0.5, 0.5, -0.5, -0.5);
    outline_ = outlineOf(side, box, tip - pos());
    area_->setGeometry(box.toAlignedRect().adjusted(padding, padding, -padding + 1, -padding + 1));
    label_->resize(inner.width() - bar, std::max(text.height(), inner.height()));

    update();
    if (!isWindow()) return;
    QImage shape(size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    draw(painter);
    painter.end();
    setMask(seenRegion(shape));
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
    QImage seen = picture.scaled((QSizeF(picture.size()) / picture.devicePixelRatio()).toSize());
    seen.setDevicePixelRatio(1);
    return QRegion(QPixmap::fromImage(seen).mask());
}

}  // namespace torvane
