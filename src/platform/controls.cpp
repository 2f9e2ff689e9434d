#include "platform/controls.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QValidator>
#include <algorithm>

#include "platform/form_window.h"
#include "platform/pictures.h"
#include "platform/program.h"

namespace torvane {

std::string utf8(const QString& text) {
    return text.toStdString();
}

QString qstring(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

double fontScale(const QWidget& control) {
    constexpr double usualHeight = 14;
    return std::max(1.0, QFontMetricsF(control.font()).height() / usualHeight);
}

// --- TextBox ---------------------------------------------------------------------------------------------------------

QString oneLine(QString text) {
    static const QRegularExpression notOfALine(QStringLiteral("\\r\\n|[\\t\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]"));
    return text.replace(notOfALine, QStringLiteral(" "));
}

class TextBox::OneLine : public QValidator {
public:
    explicit OneLine(TextBox& box) : QValidator(&box), box_(box) {}

    State validate(QString& text, int& caret) const override {
        if (box_.byCode_) return Acceptable;
        const QString before = oneLine(text.left(caret));
        text = before + oneLine(text.mid(caret));
        caret = static_cast<int>(before.size());
        return Acceptable;
    }

private:
    const TextBox& box_;
};

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setValidator(new OneLine(*this));
}

std::string TextBox::Text() const {
    return utf8(text());
}

void TextBox::setText(std::string_view text) {
    setText(qstring(text));
}

void TextBox::setText(const QString& text) {
    const QScopedValueRollback byCode(byCode_, true);
    QLineEdit::setText(text);
    setCursorPosition(0);
}

void TextBox::setKeyFilter(std::string_view allowed) {
    allowed_ = qstring(allowed);
    filtered_ = true;
}

// The signs of backspace, Delete, Enter and the like are no characters.
bool TextBox::passes(const QString& typed) const {
    return !filtered_ || std::all_of(typed.begin(), typed.end(), [this](QChar sign) {
        return sign < u' ' || sign == u'\x7f' || allowed_.contains(sign);
    });
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    // Control with a letter is a command; with Alt as well it is how some keyboards write a character, and with Shift
    // how they write one that is not seen.
    const Qt::KeyboardModifiers held = event->modifiers();
    const bool command = (held & Qt::ControlModifier) && !(held & Qt::AltModifier);
    const QString typed = event->text();
    const bool letter = typed.isEmpty() || typed.at(0).isPrint();
    if ((command && letter) || passes(typed))
        QLineEdit::keyPressEvent(event);
    else
        event->accept();
}

// Composed characters and those of an on-screen keyboard come this way. What does not pass leaves nothing behind.
void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent nothing;
    const bool pass = passes(event->commitString()) && passes(event->preeditString());
    QLineEdit::inputMethodEvent(pass ? event : &nothing);
}

void TextBox::setResult(bool result) {
    setReadOnly(result);
    setFocusPolicy(result ? Qt::ClickFocus : Qt::StrongFocus);
    QPalette colours = parentWidget() ? parentWidget()->palette() : QPalette();
    if (result) colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    setPalette(colours);
}

// --- DropList --------------------------------------------------------------------------------------------------------

class DropList::Entries : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(entries_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const Entry* entry = at(index.row());
        if (!entry || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
        return qstring(entry->text);
    }
    const Entry* at(int row) const {
        return row >= 0 && row < rowCount() ? &entries_[static_cast<std::size_t>(row)] : nullptr;
    }
    void replace(std::vector<Entry> entries) {
        beginResetModel();
        entries_ = std::move(entries);
        endResetModel();
    }
    void add(Entry entry) {
        beginInsertRows({}, rowCount(), rowCount());
        entries_.push_back(std::move(entry));
        endInsertRows();
    }

private:
    std::vector<Entry> entries_;
};

DropList::DropList(QWidget* parent) : QComboBox(parent), entries_(new Entries(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
    setPlaceholderText(" ");  // else the first entry would select itself
    // Else the first show measures every entry.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setModel(entries_);
    connect(this, &QComboBox::activated, this, &DropList::Click);
}

void DropList::Clear() {
    fill({});
}

void DropList::AddItem(std::string_view text, int itemData) {
    entries_->add({std::string(text), itemData});
}

void DropList::fill(std::vector<Entry> entries) {
    entries_->replace(std::move(entries));
    setCurrentIndex(-1);
}

int DropList::ListCount() const {
    return entries_->rowCount();
}

int DropList::ListIndex() const {
    return currentIndex();
}

void DropList::select(int index) {
    if (index < -1 || index >= ListCount()) fail(Failure::InvalidCall);
    setCurrentIndex(index);
    if (index >= 0) emit Click();
}

void DropList::selectItemData(int itemData) {
    for (int index = 0; index < ListCount(); ++index)
        if (ItemData(index) == itemData) select(index);
}

int DropList::ItemData(int index) const {
    const Entry* entry = entries_->at(index);
    if (!entry) fail(Failure::Subscript);
    return entry->itemData;
}

std::string DropList::List(int index) const {
    const Entry* entry = entries_->at(index);
    return entry ? entry->text : std::string();
}

void DropList::showPopup() {
    // Made at the first opening only: a list that nobody opens needs no view.
    if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
    QComboBox::showPopup();
}

// --- ReportList ------------------------------------------------------------------------------------------------------

namespace {

QStringList qstrings(const std::vector<std::string>& texts) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) list.append(qstring(text));
    return list;
}

class RightAligned : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
};

// All three are of one size, or the captions would jump from one to the other.
QIcon headerIcon(const ReportList& list, ReportList::Icon icon) {
    const int side = list.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, list.header());
    const qreal ratio = list.devicePixelRatioF();
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    if (icon != ReportList::Icon::Blank) {
        const qreal middle = side / 2.0;
        const qreal reach = side * 0.45;
        const qreal tip = icon == ReportList::Icon::Up ? -reach : reach;
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(list.palette().color(QPalette::ButtonText));
        painter.drawPolygon(QPolygonF(
            {{middle - reach, middle - tip / 2}, {middle + reach, middle - tip / 2}, {middle, middle + tip / 2}}));
    }
    return QIcon(pixmap);
}

}  // namespace

ReportList::ReportList(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setTextElideMode(Qt::ElideRight);
    connect(header(), &QHeaderView::sectionClicked, this, &ReportList::ColumnClick);
    // A quick second click comes as a double click.
    connect(header(), &QHeaderView::sectionDoubleClicked, this, &ReportList::ColumnClick);
}

// A text that its column cuts is shown whole as a tool tip.
bool ReportList::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        constexpr int margins = 8;
        const bool cut = index.isValid() && fontMetrics().horizontalAdvance(index.data().toString()) + margins >
                                                columnWidth(index.column());
        // Always as rich text: a tool tip guesses from the signs in it which of the two a text is.
        const QString whole = QStringLiteral("<div style='white-space:pre-wrap'>%1</div>");
        if (cut)
            QToolTip::showText(help->globalPos(), whole.arg(index.data().toString().toHtmlEscaped()), this,
                               visualRect(index));
        else
            QToolTip::hideText();
        return true;
    }
    return QTreeWidget::viewportEvent(event);
}

void ReportList::setColumns(const std::vector<Column>& columns) {
    const int count = static_cast<int>(columns.size());
    setColumnCount(count);
    icons_.assign(columns.size(), Icon::Blank);
    auto* captions = new QTreeWidgetItem;
    auto* right = new RightAligned(this);
    for (int index = 0; index < count; ++index) {
        const Column& column = columns[static_cast<std::size_t>(index)];
        captions->setText(index, qstring(column.header));
        captions->setTextAlignment(index, (column.numeric ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        setItemDelegateForColumn(index, column.numeric ? right : nullptr);
    }
    setHeaderItem(captions);
    const double scale = fontScale(*this);
    for (int index = 0; index < count; ++index) {
        const int width = pixels(columns[static_cast<std::size_t>(index)].twips * scale);
        setColumnHidden(index, width == 0);  // a width of 0 alone could be dragged open
        if (width > 0) setColumnWidth(index, width);
    }
}

void ReportList::ClearRows() {
    clear();
}

void ReportList::AddRow(const std::vector<std::string>& texts) {
    AddRows({texts});
}

void ReportList::AddRows(const std::vector<std::vector<std::string>>& rows) {
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(rows.size()));
    for (const std::vector<std::string>& row : rows) items.append(new QTreeWidgetItem(qstrings(row)));
    const bool first = RowCount() == 0;
    addTopLevelItems(items);
    if (first && !items.isEmpty()) makeCurrent(*items.constFirst());
}

void ReportList::RemoveRow(int row) {
    item(row);
    delete takeTopLevelItem(row);
}

int ReportList::RowCount() const {
    return topLevelItemCount();
}

int ReportList::SelectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void ReportList::selectRow(int row) {
    makeCurrent(item(row));
}

// The current cell must be one that is shown: from a hidden one the arrow keys move on, but select nothing.
void ReportList::makeCurrent(QTreeWidgetItem& row) {
    setCurrentItem(&row, firstVisibleColumn());
}

QTreeWidgetItem& ReportList::item(int row) const {
    if (row < 0 || row >= RowCount()) fail(Failure::Subscript);
    return *topLevelItem(row);
}

void ReportList::requireColumn(int column) const {
    if (column < 0 || column >= columnCount()) fail(Failure::Subscript);
}

std::string ReportList::Cell(int row, int column) const {
    requireColumn(column);
    return utf8(item(row).text(column));
}

void ReportList::setCell(int row, int column, std::string_view text) {
    requireColumn(column);
    item(row).setText(column, qstring(text));
}

void ReportList::setRow(int row, const std::vector<std::string>& texts) {
    item(row);
    if (!texts.empty()) requireColumn(static_cast<int>(texts.size()) - 1);
    for (std::size_t column = 0; column < texts.size(); ++column) setCell(row, static_cast<int>(column), texts[column]);
}

void ReportList::setColumnIcon(int column, Icon icon) {
    requireColumn(column);
    icons_[static_cast<std::size_t>(column)] = icon;
    for (int each = 0; each < columnCount(); ++each) {
        // A caption at the right stays where it is without an icon of no picture, and has all the room.
        const bool blank = columnIcon(each) == Icon::Blank;
        const bool right = headerItem()->textAlignment(each) & Qt::AlignRight;
        headerItem()->setIcon(each, blank && right ? QIcon() : headerIcon(*this, columnIcon(each)));
    }
}

ReportList::Icon ReportList::columnIcon(int column) const {
    requireColumn(column);
    return icons_[static_cast<std::size_t>(column)];
}

int ReportList::firstVisibleColumn() const {
    for (int column = 0; column < columnCount(); ++column)
        if (!isColumnHidden(column)) return column;
    return 0;
}

// The stock search would look at the key in the hidden first column.
void ReportList::keyboardSearch(const QString& search) {
    if (RowCount() == 0) return;
    const int row = std::max(0, currentIndex().row());
    selectionModel()->setCurrentIndex(model()->index(row, firstVisibleColumn()), QItemSelectionModel::NoUpdate);
    QTreeWidget::keyboardSearch(search);
}

// A click beside the rows, or with Control held, would leave the list without a selected row, which none of its buttons
// can do anything with.
QItemSelectionModel::SelectionFlags ReportList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    const auto flags = QTreeWidget::selectionCommand(index, event);
    const bool takesAway = flags & (QItemSelectionModel::Toggle | QItemSelectionModel::Deselect);
    return takesAway ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows : flags;
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    const int row = SelectedRow();
    if (event->matches(QKeySequence::Copy)) {
        event->accept();
        if (row < 0) return;
        QStringList texts;
        for (int column = 0; column < columnCount(); ++column)
            if (!isColumnHidden(column)) texts.append(item(row).text(column));
        QApplication::clipboard()->setText(texts.join('\t'));
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (row >= 0) emit DblClick();
    } else {
        QTreeWidget::keyPressEvent(event);
    }
}

void ReportList::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) emit DblClick();
}

void ReportList::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton) emit RightClick(event->globalPosition().toPoint());
}

void ReportList::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    // The mouse has its own way: the menu comes when the button is let go, on every platform.
    if (event->reason() != QContextMenuEvent::Keyboard) return;
    const QRect row = visualRect(currentIndex());
    emit RightClick(viewport()->mapToGlobal(row.isValid() ? row.bottomLeft() : QPoint()));
}

// --- DateBox ---------------------------------------------------------------------------------------------------------

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

bool DateBox::event(QEvent* event) {
    if (event->type() == QEvent::Polish) {
        if (const auto* inWindow = qobject_cast<const FormWindow*>(window())) {
            style_ = inWindow->program().host().shortDate();
            setDisplayFormat(qstring(style_.pattern));
        }
    }
    return QDateEdit::event(event);
}

// Past the base, which would divide the text into its small boxes.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void DateBox::keyPressEvent(QKeyEvent* event) {
    QAbstractSpinBox::keyPressEvent(event);
}

void DateBox::focusInEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusInEvent(event);
}

bool DateBox::focusNextPrevChild(bool next) {
    return QAbstractSpinBox::focusNextPrevChild(next);
}
// NOLINTEND(bugprone-parent-virtual-call)

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
    const QString stood = textFromDateTime(dateTime());
    const qsizetype caret = lineEdit()->cursorPosition();
    const qsizetype behind = text.size() - caret;
    const qsizetype before = stood.size() - behind;
    if (before < 0 || before > caret || stood != text.left(before) + text.right(behind)) return {};
    return typed(text.mid(before, caret - before));
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

// --- PictureButton ---------------------------------------------------------------------------------------------------

PictureButton::PictureButton(QWidget* parent) : QPushButton(parent) {}

void PictureButton::setPicture(const QString& name) {
    picture_ = name;
    face_ = torvane::picture(name);
    updateGeometry();
    update();
}

QString PictureButton::label() const {
    return text().isEmpty() ? accessibleName() : text();
}

bool PictureButton::event(QEvent* event) {
    if (event->type() == QEvent::Polish) {
        const QString name = label().remove('&');
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
    if (face_.isNull() || !pictureOnly_) width += metrics.horizontalAdvance(label().remove('&'));
    return {width, height + gap};
}

void PictureButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButton, option);

    const QString word = face_.isNull() || !pictureOnly_ ? label().remove('&') : QString();
    const QFontMetrics metrics = fontMetrics();
    const int gap = metrics.height() / 2;
    const int side = face_.isNull() ? 0 : std::min(metrics.height() * 3 / 2, height() - 6);
    const int wordWidth = word.isEmpty() ? 0 : metrics.horizontalAdvance(word) + (side > 0 ? gap : 0);
    const int left = leftAligned_ ? gap : std::max(gap / 2, (width() - side - wordWidth) / 2);
    if (side > 0)
        face_.paint(&painter, QRect(left, (height() - side) / 2, side, side), Qt::AlignCenter,
                    isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!word.isEmpty())
        style()->drawItemText(&painter, QRect(left + side + (side > 0 ? gap : 0), 0, width(), height()),
                              Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), word, QPalette::ButtonText);
}

}  // namespace torvane
