#include "widgets/picture_button.h"

#include <QEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "widgets/pictures.h"

namespace torvane {

PictureButton::PictureButton(QWidget* parent) : QPushButton(parent) {}

void PictureButton::setPicture(const QString& name) {
    picture_ = name;
    face_ = torvane::picture(name);
}

bool PictureButton::event(QEvent* event) {
    if (event->type() == QEvent::Polish) {
        const QString name = word().remove('&');
        if (accessibleName().isEmpty()) setAccessibleName(name);
        if (toolTip().isEmpty()) setToolTip(name);
    }
    return QPushButton::event(event);
}

// The face is the picture and, where the button has room for it, the word beside it.
QSize PictureButton::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int height = metrics.height() * 3 / 2;
    const int gap = metrics.height() / 2;
    int width = 2 * gap;
    if (!face_.isNull()) width += height;
    if (!face_.isNull() && !pictureOnly_) width += gap;
    if (face_.isNull() || !pictureOnly_) width += metrics.horizontalAdvance(word().remove('&'));
    return {width, height + gap};
}

void PictureButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButton, option);

    const QString shown = face_.isNull() || !pictureOnly_ ? word() : QString();
    const QFontMetrics metrics = fontMetrics();
    const int gap = metrics.height() / 2;
    const int side = face_.isNull() ? 0 : std::min(metrics.height() * 3 / 2, height() - 6);
    const int wordWidth =
        shown.isEmpty() ? 0 : metrics.horizontalAdvance(QString(shown).remove('&')) + (side > 0 ? gap : 0);
    const int left = leftAligned_ ? gap : std::max(gap / 2, (width() - side - wordWidth) / 2);
    if (side > 0)
        face_.paint(&painter, QRect(left, (height() - side) / 2, side, side), Qt::AlignCenter,
                    isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!shown.isEmpty())
        style()->drawItemText(&painter, QRect(left + side + (side > 0 ? gap : 0), 0, width(), height()),
                              Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(), isEnabled(), shown,
                              QPalette::ButtonText);
}

}  // namespace torvane
