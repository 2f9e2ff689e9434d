#include "widgets/report_list.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>
#include <numeric>

#include "values/failure.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

class ReportList::Rows : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    // No rows under these columns.
    void reset(std::vector<Column> columns) {
        beginResetModel();
        columns_ = std::move(columns);
        rows_.clear();
        endResetModel();
    }
    void clear() { reset(columns_); }
    void add(const std::vector<std::vector<std::string>>& rows) {
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(rows.size()) - 1);
        for (const std::vector<std::string>& row : rows) rows_.emplace_back(row).resize(columns_.size());
        endInsertRows();
    }
    void remove(int row) {
        beginRemoveRows({}, row, row);
        rows_.erase(rows_.begin() + row);
        endRemoveRows();
    }
    void set(int row, const std::vector<std::string>& texts) {
        if (texts.empty()) return;
        text(row, static_cast<int>(texts.size()) - 1);
        std::ranges::copy(texts, rows_[static_cast<std::size_t>(row)].begin());
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
    // Failure::Subscript when there is no such cell.
    const std::string& text(int row, int column) const {
        if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) fail(Failure::Subscript);
        return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }

    // A table is asked for nothing below its cells.
    int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(rows_.size()); }
    int columnCount(const QModelIndex& = {}) const override { return static_cast<int>(columns_.size()); }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole) return qstring(text(index.row(), index.column()));
        return role == Qt::TextAlignmentRole ? alignment(index.column()) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation, int role) const override {
        if (role == Qt::DisplayRole) return qstring(columns_[static_cast<std::size_t>(section)].header);
        return role == Qt::TextAlignmentRole ? alignment(section) : QVariant();
    }

private:
    QVariant alignment(int column) const {
        const bool numeric = columns_[static_cast<std::size_t>(column)].numeric;
        return QVariant((numeric ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
};

ReportList::ReportList(QWidget* parent) : QTreeView(parent), rows_(new Rows(this)) {
    setModel(rows_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setTextElideMode(Qt::ElideRight);
    header()->setResizeContentsPrecision(0);  // only the rows in view are measured
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
    return QTreeView::viewportEvent(event);
}

void ReportList::setColumns(const std::vector<Column>& columns) {
    rows_->reset(columns);
    const double scale = fontScale(*this);
    givenWidths_.clear();
    for (const Column& column : columns) {
        givenWidths_.push_back(pixels(column.twips * scale));
        // A width of 0 alone could be dragged open.
        setColumnHidden(static_cast<int>(givenWidths_.size()) - 1, givenWidths_.back() == 0);
    }
    dragged_ = false;
    fitColumnsSoon();  // also where the list has its size already
}

void ReportList::fitColumnsSoon() {
    fitting_.start();
}

// A column that cuts a text of the rows in view, or its header, gets what others do not need; the one that lacks least
// comes first, so that dates and numbers are whole. Where nothing is cut the given widths stand.
void ReportList::fitColumns() {
    if (dragged_) return;
    struct Lack {
        int pixels;
        int column;
    };
    std::vector<Lack> lacks;
    std::vector<int> widths = givenWidths_;
    for (int column = 0; column < columnCount(); ++column) {
        int& width = widths[static_cast<std::size_t>(column)];
        if (width == 0) continue;
        const int wanted = std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
        lacks.push_back({std::max(0, wanted - width), column});
        width = std::min(width, wanted);
    }
    std::ranges::sort(lacks, {}, &Lack::pixels);
    int spare = std::max(0, viewport()->width() - std::reduce(widths.begin(), widths.end()));
    const auto widen = [&](int column, int most) {
        const int more = std::min(most, spare);
        spare -= more;
        widths[static_cast<std::size_t>(column)] += more;
    };
    int left = static_cast<int>(lacks.size());
    for (const auto& [pixels, column] : lacks) widen(column, std::min(pixels, spare / left--));
    // What is still free gives the others their widths back.
    for (const auto& [pixels, column] : lacks)
        widen(column,
              std::max(0, givenWidths_[static_cast<std::size_t>(column)] - widths[static_cast<std::size_t>(column)]));
    const QScopedValueRollback own(fittingNow_, true);
    for (const auto& [pixels, column] : lacks) setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
}

void ReportList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    fitColumnsSoon();
}

void ReportList::AddRow(const std::vector<std::string>& texts) {
    AddRows({texts});
}

void ReportList::AddRows(const std::vector<std::vector<std::string>>& rows) {
    if (rows.empty()) return;
    const bool first = RowCount() == 0;
    rows_->add(rows);
    if (first) selectRow(0);
    fitColumnsSoon();
}

void ReportList::clear() {
    rows_->clear();
}

void ReportList::RemoveRow(int row) {
    rows_->remove(row);
}

int ReportList::RowCount() const {
    return rows_->rowCount();
}

int ReportList::columnCount() const {
    return rows_->columnCount();
}

int ReportList::SelectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

// The current cell must be one that is shown: from a hidden one the arrow keys move on, but select nothing.
void ReportList::selectRow(int row) {
    setCurrentIndex(rows_->index(row, firstVisibleColumn()));
}

std::string ReportList::Cell(int row, int column) const {
    return rows_->text(row, column);
}

void ReportList::setRow(int row, const std::vector<std::string>& texts) {
    rows_->set(row, texts);
    fitColumnsSoon();
}

void ReportList::setOrderMark(int column, Qt::SortOrder order) {
    header()->setSortIndicator(column, order);
    header()->setSortIndicatorShown(true);
}

int ReportList::firstVisibleColumn() const {
    int column = 0;
    while (isColumnHidden(column)) ++column;
    return column;
}

// The stock search would look at the key in the hidden first column.
void ReportList::keyboardSearch(const QString& search) {
    selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(firstVisibleColumn()),
                                      QItemSelectionModel::NoUpdate);
    QTreeView::keyboardSearch(search);
}

// A click beside the rows, or with Control held, would leave the list without a selected row, which none of its buttons
// can do anything with.
QItemSelectionModel::SelectionFlags ReportList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    const auto flags = QTreeView::selectionCommand(index, event);
    const bool takesAway = flags & (QItemSelectionModel::Toggle | QItemSelectionModel::Deselect);
    return takesAway ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows : flags;
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    const int row = SelectedRow();
    if (event->matches(QKeySequence::Copy)) {
        if (row < 0) return;
        QStringList texts;
        for (int column = 0; column < columnCount(); ++column)
            if (!isColumnHidden(column)) texts.append(qstring(Cell(row, column)));
        QApplication::clipboard()->setText(texts.join('\t'));
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (row >= 0) emit DblClick();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void ReportList::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) emit DblClick();
}

void ReportList::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton) emit RightClick(event->globalPosition().toPoint());
}

void ReportList::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse has its own way: the menu comes when the button is let go, on every platform.
    if (event->reason() != QContextMenuEvent::Keyboard) return;
    const QRect row = visualRect(currentIndex());
    emit RightClick(viewport()->mapToGlobal(row.isValid() ? row.bottomLeft() : QPoint()));
}

}  // namespace torvane
