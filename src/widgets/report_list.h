#pragma once

#include <QTimer>
#include <QTreeView>
#include <string>
#include <string_view>
#include <vector>

namespace torvane {

// The report list: rows of texts under headers. Column 0 is the row's own text; the columns of width 0 are hidden and
// carry keys that code reads by index. A column whose texts are cut gets what the others do not need, until the user
// drags a width. Sorted by the database, never by the list. Ctrl+C copies the visible texts of the selected
// row, separated by tabs; Enter is a double click.
class ReportList : public QTreeView {
    Q_OBJECT
public:
    struct Column {
        std::string_view header;
        int twips = 0;
        bool numeric = false;  // right-aligned
    };
    explicit ReportList(QWidget* parent = nullptr);
    // The columns of a list without rows.
    void setColumns(const std::vector<Column>& columns);
    int columnCount() const;
    // Removes all rows.
    void clear();
    // Appends a row, column by column; selects it if it is the first row of the list.
    void AddRow(const std::vector<std::string>& texts);
    // The same for many rows at once.
    void AddRows(const std::vector<std::vector<std::string>>& rows);
    void RemoveRow(int row);
    int RowCount() const;
    // -1 when no row is selected.
    int SelectedRow() const;
    void selectRow(int row);
    // Failure::Subscript when there is no such cell, as with -1, no row selected; likewise below.
    std::string Cell(int row, int column) const;
    void setRow(int row, const std::vector<std::string>& texts);
    // The mark of the order in the header. One column has it at a time.
    void setOrderMark(int column, Qt::SortOrder order);

signals:
    void ColumnClick(int column);
    // Double-clicked, on a row or beside the rows (the selected one counts), or Enter pressed on a row.
    void DblClick();
    void RightClick(const QPoint& globalPosition);  // the right button let go, or the menu key

public:
    void keyboardSearch(const QString& search) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;

private:
    class Rows;  // the texts, which the view reads where they lie
    int firstVisibleColumn() const;
    void fitColumnsSoon();
    void fitColumns();

    Rows* rows_;
    std::vector<int> givenWidths_;  // pixels
    QTimer fitting_;
    bool fittingNow_ = false;
    bool dragged_ = false;  // the widths are the user's
};

}  // namespace torvane
