#include "widgets/report_list.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <numeric>

#include "values/failure.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

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
    fitting_.setSingleShot(true);
    connect(&fitting_, &QTimer::timeout, this, &ReportList::fitColumns);
    connect(header(), &QHeaderView::sectionResized, this, [this] { dragged_ = dragged_ || !fittingNow_; });
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
    givenWidths_.clear();
    for (int index = 0; index < count; ++index) {
        givenWidths_.push_back(pixels(columns[static_cast<std::size_t>(index)].twips * scale));
        setColumnHidden(index, givenWidths_.back() == 0);  // a width of 0 alone could be dragged open
    }
    dragged_ = false;
    fitColumns();
}

void ReportList::fitColumnsSoon() {
    fitting_.start(0);
}

// What is free is shared out among the columns that cut a text of the rows in view; the one that lacks least comes
// first, so that dates and numbers are whole.
void ReportList::fitColumns() {
    if (dragged_) return;
    struct Lack {
        int pixels;
        int column;
    };
    std::vector<Lack> lacks;
    for (int column = 0; column < columnCount(); ++column) {
        const int given = givenWidths_[static_cast<std::size_t>(column)];
        const int wanted = std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
        if (given > 0) lacks.push_back({std::max(0, wanted - given), column});
    }
    std::ranges::sort(lacks, {}, &Lack::pixels);
    int spare = std::max(0, viewport()->width() - std::reduce(givenWidths_.begin(), givenWidths_.end()));
    int left = static_cast<int>(lacks.size());
    const QScopedValueRollback own(fittingNow_, true);
    for (const auto& [pixels, column] : lacks) {
        const int more = std::min(pixels, spare / left--);
        spare -= more;
        setColumnWidth(column, givenWidths_[static_cast<std::size_t>(column)] + more);
    }
}

void ReportList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    fitColumnsSoon();
}

void ReportList::AddRow(const std::vector<std::string>& texts) {
    AddRows({texts});
}

void ReportList::AddRows(const std::vector<std::vector<std::string>>& rows) {
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(rows.size()));
    for (const std::vector<std::string>& row : rows) items.append(new QTreeWidgetItem(qstrings(row)));
    fitColumnsSoon();
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

std::string ReportList::Cell(int row, int column) const {
    if (column < 0 || column >= columnCount()) fail(Failure::Subscript);
    return utf8(item(row).text(column));
}

void ReportList::setRow(int row, const std::vector<std::string>& texts) {
    QTreeWidgetItem& changed = item(row);
    const int count = static_cast<int>(texts.size());
    if (count > columnCount()) fail(Failure::Subscript);
    for (int column = 0; column < count; ++column)
        changed.setText(column, qstring(texts[static_cast<std::size_t>(column)]));
    fitColumnsSoon();
}

void ReportList::setOrderMark(int column, Qt::SortOrder order) {
    header()->setSortIndicator(column, order);
    header()->setSortIndicatorShown(true);
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

}  // namespace torvane
