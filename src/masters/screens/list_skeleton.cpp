#include "masters/screens/list_skeleton.h"

#include <QLabel>

#include "platform/form.h"
#include "values/numbers.h"

namespace torvane {

void ListSkeleton::loadList(std::string_view sortField, int iconColumn) {
    Page = 1;
    PageCount = 0;
    FldName = sortField;
    AscOrDesc = "A";
    std::vector<ReportList::Column> shown;
    for (const Column& column : columns()) shown.push_back(column.shown);
    controls().list->setColumns(shown);
    RefreshGrid();
    for (const Mode& mode : modes()) {
        mode.button->setVisible(mode.which == Which);
        if (mode.which == Which) form().setCaption(mode.caption);
    }
    controls().list->setColumnIcon(iconColumn, ReportList::Icon::Down);
}

void ListSkeleton::enablePaging() {
    controls().previous->setEnabled(Page > 1);
    controls().next->setEnabled(Page < PageCount);
}

// The row that was selected is selected again where it is still among them.
void ListSkeleton::showRows(const std::optional<RowArray>& rows) {
    ReportList& list = *controls().list;
    const int before = keepsSelection() ? list.SelectedRow() : -1;
    const std::string key = before < 0 ? std::string() : list.Cell(before, 0);
    list.ClearRows();
    if (!rows) return;
    std::vector<std::vector<std::string>> texts;
    texts.reserve(static_cast<std::size_t>(rows->rows()));
    for (int row = 0; row < rows->rows(); ++row) texts.push_back(rowTexts(*rows, row));
    list.AddRows(texts);
    for (int row = 0; before >= 0 && row < list.RowCount(); ++row)
        if (list.Cell(row, 0) == key) list.selectRow(row);
}

void ListSkeleton::RefreshGrid() {
    const Program::Doing doing(form().program(), "reading the list");
    const auto rows = readAllRows();
    Searched = "All";
    enablePaging();
    showRows(rows);
    ShowLabel();
}

void ListSkeleton::SearchItem() {
    const Program::Doing doing(form().program(), "searching");
    const auto rows = readSearchedRows();
    Searched = "Searched";
    enablePaging();
    if (rows) {
        showRows(rows);
        ShowLabel();
        return;
    }
    Program& program = form().program();
    if (searchedByName() && Which == "A") {
        if (program.confirm(offerToAdd(), "Inventory")) cmdAdd_Click();
    } else {
        program.say(notFound(), "");
    }
}

void ListSkeleton::ShowLabel() {
    const std::int16_t base = narrowToInt16((Page - 1) * pageSize());
    controls().records->setText(qstring("Record " + generalText(1 + base) + " - " +
                                        generalText(controls().list->RowCount() + base) + " of " +
                                        generalText(recordCount())));
}

void ListSkeleton::refill() {
    if (Searched == "Searched")
        SearchItem();
    else
        RefreshGrid();
}

void ListSkeleton::startSearch() {
    Page = 1;
    SearchItem();
    enableSearch();
    controls().search->selectAll();
}

void ListSkeleton::enableSearch() {
    controls().search->setEnabled(true);
    controls().search->setFocus();
}

void ListSkeleton::CmdAll_Click() {
    RefreshGrid();
    enableSearch();
}

void ListSkeleton::CmdNext_Click() {
    if (Page < PageCount) ++Page;
    refill();
}

void ListSkeleton::CmdPrev_Click() {
    if (Page > 1) --Page;
    refill();
}

void ListSkeleton::sortBy(int column) {
    ReportList& list = *controls().list;
    const std::vector<Column> all = columns();
    for (int i = 0; i < static_cast<int>(all.size()); ++i) list.setColumnIcon(i, ReportList::Icon::Blank);
    const std::string_view field = all.at(static_cast<std::size_t>(column)).sortField;
    if (!field.empty()) FldName = field;
    // One flag for all columns: a click on another column flips the direction as well.
    AscOrDesc = list.ascending ? "D" : "A";
    refill();
    list.ascending = !list.ascending;
    list.setColumnIcon(column, list.ascending ? ReportList::Icon::Up : ReportList::Icon::Down);
}

int ListSkeleton::selectedRow() {
    const int row = controls().list->SelectedRow();
    if (row < 0) fail(Failure::ObjectNotSet);
    return row;
}

std::string ListSkeleton::selectedKey() {
    return controls().list->Cell(selectedRow(), 0);
}

std::string ListSkeleton::selectedName() {
    return controls().list->Cell(selectedRow(), 1);
}

}  // namespace torvane
