#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/rows.h"
#include "platform/controls.h"
#include "platform/form.h"

class QLabel;
class QMenu;

namespace torvane {

// What the paged lists of items, categories and customers have in common: modes, paging, sorting by header, search,
// copying, editing and deleting a row, refill after a child window, the record counter. A list states its columns, its
// reads, its texts and what it does otherwise.
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
    virtual bool searchedByName() = 0;
    virtual std::string_view offerToAdd() const = 0;
    virtual std::string_view notFound() const = 0;
    virtual void cmdSearch_Click() = 0;
    virtual void cmdAdd_Click() = 0;
    virtual void CmdSelect_Click() = 0;
    virtual void cmdMainHelp_Click() = 0;
    // The action flag of the list's own record.
    virtual std::string& AddEditDel() = 0;
    // Removes the record with this key; the flag is "D" by then.
    virtual void deleteRecord(std::int16_t key) = 0;
    // Puts the record with this key and an action flag into the entry form, and shows that modally.
    virtual void showEntryForm(std::int16_t key, std::string_view flag) = 0;

    // --- What it gets ------------------------------------------------------------------------------------------------
    // The common part of Form_Load: page 1, columns, first fill, the button and caption of the mode.
    void loadList(std::string_view sortField);
    // Connects the controls that all lists have.
    template <class Ui>
    void connectList(Ui& ui);
    struct RelatedEntry {
        const char* name;
        const char* caption;
        std::string_view opens;  // the caption that the opened window would begin with; empty: nothing is opened
    };
    // The pop-up menu mnuRel. The windows that its entries are for are not part of this system, so choosing one is
    // Failure::ObjectNotSet.
    QMenu& addRelatedMenu(std::initializer_list<RelatedEntry> entries);
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
    void cmdCopy_Click();
    virtual void CmdEdit_Click();
    virtual void cmdDel_Click();
    virtual void ListView1_DblClick();
    bool hasRows() { return controls().list->RowCount() > 0; }
    // Key of the selected row. Failure::ObjectNotSet when no row is selected.
    std::string selectedKey();
    std::int16_t selectedKey16();
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

template <class Ui>
void ListSkeleton::connectList(Ui& ui) {
    const auto click = [this](QAbstractButton* button, void (ListSkeleton::*handler)()) {
        on(form(), button, &QAbstractButton::clicked, [this, handler] { (this->*handler)(); });
    };
    click(ui.cmdSearch, &ListSkeleton::cmdSearch_Click);
    click(ui.CmdAll, &ListSkeleton::CmdAll_Click);
    click(ui.CmdPrev, &ListSkeleton::CmdPrev_Click);
    click(ui.CmdNext, &ListSkeleton::CmdNext_Click);
    click(ui.cmdAdd, &ListSkeleton::cmdAdd_Click);
    if constexpr (requires { ui.cmdCopy; }) click(ui.cmdCopy, &ListSkeleton::cmdCopy_Click);
    click(ui.CmdEdit, &ListSkeleton::CmdEdit_Click);
    click(ui.cmdDel, &ListSkeleton::cmdDel_Click);
    click(ui.CmdSelect, &ListSkeleton::CmdSelect_Click);
    click(ui.cmdMainHelp, &ListSkeleton::cmdMainHelp_Click);
    on(form(), ui.cmdExit, &QAbstractButton::clicked, [this] { form().Unload(); });
    on(form(), ui.ListView1, &ReportList::DblClick, [this] { ListView1_DblClick(); });
    on(form(), ui.ListView1, &ReportList::ColumnClick, [this](int column) { sortBy(column); });
}

}  // namespace torvane
