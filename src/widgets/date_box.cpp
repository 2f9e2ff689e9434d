#include "widgets/date_box.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "widgets/texts.h"

namespace torvane {

DateBox::DateBox(QWidget* parent) : QDateEdit(parent) {
    setCalendarPopup(true);
    setFocusPolicy(Qt::StrongFocus);
    setDateRange(QDate(1601, 1, 1), QDate(9999, 12, 31));
    // The stock box is a row of small boxes, which the caret leaves by itself when one is full. This one is a text.
    setKeyboardTracking(false);
    disconnect(lineEdit(), &QLineEdit::cursorPositionChanged, this, nullptr);
}

Date DateBox::Value() {
    interpretText();
    return {date().year(), date().month(), date().day()};
}

void DateBox::setValue(const Date& date) {
    setDate(QDate(date.year, date.month, date.day));
}

void DateBox::setDateStyle(ShortDate style) {
    style_ = std::move(style);
    setDisplayFormat(qstring(style_.pattern));
}

// Past what the stock box does with its row of small boxes.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void DateBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier))
        openCalendar();
    else
        QAbstractSpinBox::keyPressEvent(event);
}

void DateBox::focusInEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusInEvent(event);
}

bool DateBox::focusNextPrevChild(bool next) {
    return QAbstractSpinBox::focusNextPrevChild(next);
}
// NOLINTEND(bugprone-parent-virtual-call)

// The stock box opens it by its arrow alone.
void DateBox::openCalendar() {
    QStyleOptionComboBox box;
    box.initFrom(this);
    const QPointF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, this).center().toPointF();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton, {});
    mousePressEvent(&press);
}

void DateBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QDateEdit::wheelEvent(event);
    else
        event->ignore();
}

void DateBox::stepBy(int steps) {
    interpretText();
    static const QRegularExpression part(QStringLiteral("[^\\s./,-]+"));
    const auto parts = [this] {
        QList<QRegularExpressionMatch> found;
        for (auto each = part.globalMatch(text()); each.hasNext();) found.append(each.next());
        return found;
    };
    const int caret = lineEdit()->hasSelectedText() ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
    int at = 0;
    for (const QRegularExpressionMatch& each : parts()) at += each.capturedEnd() < caret;
    at = std::min(at, sectionCount() - 1);
    switch (sectionAt(at)) {
        case YearSection:
            setDate(date().addYears(steps));
            break;
        case MonthSection:
            setDate(date().addMonths(steps));
            break;
        default:
            setDate(date().addDays(steps));
            break;
    }
    const QRegularExpressionMatch moved = parts().value(at);
    lineEdit()->setSelection(static_cast<int>(moved.capturedStart()), static_cast<int>(moved.capturedLength()));
}

// A date typed into the one that stood there, in front of it, behind it or within, stands in its place.
QDate DateBox::read(const QString& text) const {
    const auto typed = [this](QString signs) {
        signs.removeIf([](QChar sign) { return sign.category() == QChar::Other_Format; });
        for (QChar& sign : signs) {
            if (sign.isSpace()) sign = QLatin1Char(' ');
            if (sign.isDigit()) sign = QLatin1Char(static_cast<char>('0' + sign.digitValue()));
        }
        const auto found = readTypedDate(utf8(signs), style_);
        const QDate day = found ? QDate(found->year, found->month, found->day) : QDate();
        return day >= minimumDate() && day <= maximumDate() ? day : QDate();
    };
    if (const QDate whole = typed(text); whole.isValid()) return whole;
    const QString upToCaret = text.left(lineEdit()->cursorPosition());
    const QString behind = text.mid(upToCaret.size());
    QString before = textFromDateTime(dateTime());
    if (!before.endsWith(behind)) return {};
    before.chop(behind.size());
    return upToCaret.startsWith(before) ? typed(upToCaret.mid(before.size())) : QDate();
}

QValidator::State DateBox::validate(QString& text, int&) const {
    return read(text).isValid() ? QValidator::Acceptable : QValidator::Intermediate;
}

QDateTime DateBox::dateTimeFromText(const QString& text) const {
    return read(text).startOfDay(timeSpec());
}

QString DateBox::textFromDateTime(const QDateTime& date) const {
    const QDate day = date.date();
    return qstring(shortDateText({day.year(), day.month(), day.day()}, style_));
}

}  // namespace torvane
