#pragma once

#include <QComboBox>
#include <QDateEdit>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QWheelEvent>
#include <string>
#include <string_view>
#include <vector>

#include "values/dates.h"

namespace torvane {

class Program;

// Texts of controls are UTF-8 std::string towards the screens: records, SQL and boxes all take them as they are.
std::string utf8(const QString& text);
QString qstring(std::string_view text);

// Coordinates of the system are twips: 15 to the pixel at 96 dots per inch.
constexpr int pixels(double twips) {
    return static_cast<int>(twips / 15.0 + (twips < 0 ? -0.5 : 0.5));
}

// Given sizes hold for the usual type; this is how much larger the control's own type is. At least 1.
double fontScale(const QWidget& control);

// The text on one line: each line break and each tab is a blank.
QString oneLine(QString text);

// A text box. `Change` is textChanged: it fires only when the text differs. What the user pastes or drops comes in on
// one line; what code writes stays as it is until the user changes it. Where a key filter is set, a typed character
// passes only if it is among `allowed`; paste, copy, Delete, backspace, arrows and Tab always work.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    explicit TextBox(QWidget* parent = nullptr);
    std::string Text() const;
    // The caret goes to the front, so that a long text shows its beginning.
    void setText(std::string_view text);
    void setText(const char* text) { setText(std::string_view(text)); }
    void setText(const QString& text);  // what uic calls
    void setKeyFilter(std::string_view allowed);
    // Shown like a result: read-only, greyed, no tab stop; still selectable for copying.
    void setResult(bool result);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    class OneLine;
    bool passes(const QString& typed) const;
    QString allowed_;
    bool filtered_ = false;
    bool byCode_ = false;  // the text is being written by code
};

// A drop-down list whose entries carry a number (item data). Nothing is selected until somebody selects. `Click` fires
// on each act of selecting, by the user (also of the entry that stands already) or by `select`, and not on clearing,
// filling or the wheel, which changes no drop-down list at all. ListIndex is -1 while nothing is selected. The entries
// are changed by Clear, AddItem and fill only.
class DropList : public QComboBox {
    Q_OBJECT
public:
    explicit DropList(QWidget* parent = nullptr);
    struct Entry {
        std::string text;
        int itemData = 0;
    };
    void Clear();
    void AddItem(std::string_view text, int itemData);
    // The whole list at once; what a long list wants.
    void fill(std::vector<Entry> entries);
    int ListCount() const;
    int ListIndex() const;
    // Selects an entry and fires Click. Failure::InvalidCall when there is no such entry; -1 clears the selection.
    void select(int index);
    // Selects each entry with this number, from the first to the last; none leaves the selection as it is.
    void selectItemData(int itemData);
    // The number of an entry, or of the selected one. Failure::Subscript when there is none.
    int ItemData(int index) const;
    int ItemData() const { return ItemData(ListIndex()); }
    // The text of an entry; "" when there is none.
    std::string List(int index) const;
    // The text of the selected entry, or "".
    std::string Text() const { return List(ListIndex()); }

    void showPopup() override;

signals:
    void Click();

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    class Entries;
    Entries* entries_;
};

// The report list: rows of texts under headers. Column 0 is the row's own text; the columns of width 0 are hidden and
// carry keys that code reads by index. Sorted by the database, never by the list. Ctrl+C copies the visible texts of
// the selected row, separated by tabs; Enter is a double click.
class ReportList : public QTreeWidget {
    Q_OBJECT
public:
    enum class Icon { Blank, Up, Down };
    struct Column {
        std::string_view header;
        int twips = 0;
        bool numeric = false;  // right-aligned
    };
    explicit ReportList(QWidget* parent = nullptr);
    void setColumns(const std::vector<Column>& columns);
    void ClearRows();
    // Appends a row, column by column; selects it if it is the first row of the list.
    void AddRow(const std::vector<std::string>& texts);
    // The same for many rows at once.
    void AddRows(const std::vector<std::vector<std::string>>& rows);
    // Failure::Subscript when there is no such row; likewise where a row or column is named below.
    void RemoveRow(int row);
    int RowCount() const;
    // -1 when no row is selected.
    int SelectedRow() const;
    void selectRow(int row);
    // -1, no row selected, is a failure of the caller like any other row that is not there.
    std::string Cell(int row, int column) const;
    void setCell(int row, int column, std::string_view text);
    void setRow(int row, const std::vector<std::string>& texts);
    void setColumnIcon(int column, Icon icon);
    Icon columnIcon(int column) const;
    // The direction flag of the list: true is ascending, as at the start. The list itself never acts on it.
    bool ascending = true;

signals:
    void ColumnClick(int column);
    void
    DblClick();  // double-clicked, on a row or beside the rows (the selected one counts), or Enter pressed on a row
    void RightClick(const QPoint& globalPosition);  // the right button let go, or the menu key

public:
    void keyboardSearch(const QString& search) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;

private:
    QTreeWidgetItem& item(int row) const;
    void makeCurrent(QTreeWidgetItem& row);
    void requireColumn(int column) const;
    int firstVisibleColumn() const;
    std::vector<Icon> icons_;
};

// The date picker: typed as a text, picked from a calendar, or stepped by the arrow keys, which move the part that the
// caret stands in. A typed text is read when it is done, in the order of the machine's short date; one that is no date,
// or none from 1601 to 9999, leaves the date as it was. The wheel changes it only while it has the focus.
class DateBox : public QDateEdit {
    Q_OBJECT
public:
    explicit DateBox(QWidget* parent = nullptr);
    // What has been typed so far counts.
    Date Value();
    void setValue(const Date& date);
    void stepBy(int steps) override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void wheelEvent(QWheelEvent* event) override;
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    QValidator::State validate(QString& text, int& caret) const override;
    void fixup(QString&) const override {}
    QDateTime dateTimeFromText(const QString& text) const override;
    QString textFromDateTime(const QDateTime& date) const override;

private:
    QDate read(const QString& text) const;
    ShortDate style_;
};

// A button whose face is a picture that says what it does, art/<name>.svg, and beside it the word: its text, or else
// its accessible name, which is its tool tip, too, where it has none of its own.
class PictureButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture WRITE setPicture)
    Q_PROPERTY(bool pictureOnly READ pictureOnly WRITE setPictureOnly)
    Q_PROPERTY(bool leftAligned READ leftAligned WRITE setLeftAligned)
public:
    explicit PictureButton(QWidget* parent = nullptr);
    QString picture() const { return picture_; }
    void setPicture(const QString& name);
    // No word beside the picture, where there is one.
    bool pictureOnly() const { return pictureOnly_; }
    void setPictureOnly(bool pictureOnly) { pictureOnly_ = pictureOnly; }
    // The face begins at the left, for buttons that stand in a column.
    bool leftAligned() const { return leftAligned_; }
    void setLeftAligned(bool leftAligned) { leftAligned_ = leftAligned; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString label() const;
    QString picture_;
    QIcon face_;
    bool pictureOnly_ = false;
    bool leftAligned_ = false;
};

}  // namespace torvane
