#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/rows.h"
#include "platform/controls.h"

class QLabel;

namespace torvane {

class Form;

// What the paged lists have in common: modes, paging, sorting by header, search, refill after a child window, the
// record counter. A list states its columns, its reads and its texts.
//
// `Which` is the mode: "A" add, "E" edit, "D" delete, "S" select, "C" copy; a double click on a row turns the first
// three into "AE", "EE" and "DE", and the value stays so until the next opener sets it.
class ListSkeleton {
public:
    std::string Which;

    // Reads the current page of all rows and shows it.
    void RefreshGrid();
    // Reads the current page of what is searched for and shows it. When there is nothing, the rows stay as they are and
    // a box says so, or offers to add.
    void SearchItem();
    // The record counter: which rows of how many are shown, by full pages.
    void ShowLabel();

protected:
    struct Column {
        ReportList::Column shown;
        std::string_view sortField;  // empty: a click changes nothing
    };
    struct Mode {
        std::string_view which;
        std::string_view caption;
        QWidget* button = nullptr;  // the one action button that shows
    };
    struct Controls {
        ReportList* list = nullptr;
        TextBox* search = nullptr;
        QAbstractButton* previous = nullptr;
        QAbstractButton* next = nullptr;
        QLabel* records = nullptr;
    };
    ~ListSkeleton() = default;

    // --- What a list states ------------------------------------------------------------------------------------------
    virtual Form& form() = 0;
    virtual Controls controls() = 0;
    virtual std::vector<Column> columns() const = 0;
    virtual std::vector<Mode> modes() = 0;
    virtual std::optional<RowArray> readAllRows() = 0;
    virtual std::optional<RowArray> readSearchedRows() = 0;
    // The texts of one row of the list.
    virtual std::vector<std::string> rowTexts(const RowArray& rows, int row) = 0;
    virtual std::int16_t pageSize() = 0;
    virtual std::int16_t recordCount() = 0;
    // Nothing was found: `offerToAdd` is asked (Yes/No) in place of `told` where adding is the mode.
    virtual bool searchedByName() { return false; }
    virtual std::string_view offerToAdd() const { return {}; }
    virtual std::string_view notFound() const = 0;
    virtual void cmdAdd_Click() {}
    // Whether the selected row stays selected when the list is filled again.
    virtual bool keepsSelection() const { return true; }

    // --- What it gets ------------------------------------------------------------------------------------------------
    // The common part of Form_Load: page 1, columns, first fill, the button and caption of the mode. The icon of the
    // order stands on `iconColumn`, whatever the real order is.
    void loadList(std::string_view sortField, int iconColumn = 1);
    // The common steps of cmdSearch, once the screen has set what to search for.
    void startSearch();
    // SearchItem after a search, RefreshGrid otherwise.
    void refill();
    // The search box, ready to be typed into.
    void enableSearch();
    virtual void CmdAll_Click();
    void CmdNext_Click();
    void CmdPrev_Click();
    void sortBy(int column);
    bool hasRows() { return controls().list->RowCount() > 0; }
    // Key of the selected row. Failure::ObjectNotSet when no row is selected.
    std::string selectedKey();
    // First visible column of the selected row.
    std::string selectedName();

    std::int16_t Page = 1;
    long PageCount = 0;
    std::string Searched;
    std::string FldName;
    std::string AscOrDesc;

private:
    void showRows(const std::optional<RowArray>& rows);
    void enablePaging();
    int selectedRow();
};

}  // namespace torvane
