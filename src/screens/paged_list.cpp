#include "screens/paged_list.h"

#include <QLabel>

#include "datastore/data_class.h"
#include "values/numbers.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

// The rows are painted first.
constexpr int idleAfterMs = 50;

}  // namespace

PagedList::PagedList(Form& form, const std::string& which, Parts parts)
    : form_(form), which_(which), parts_(std::move(parts)) {
    idle_.setSingleShot(true);
    idle_.setInterval(idleAfterMs);
    idle_.callOnTimeout([this] {
        if (form_.loaded()) parts_.data().readAhead();
    });
}

void PagedList::load(std::string_view sortField, int markColumn) {
    Page = 1;
    PageCount = 0;
    FldName = sortField;
    AscOrDesc = "A";
    ascending_ = true;
    const Controls controls = parts_.controls();
    on(form_, controls.previous, &QAbstractButton::clicked, [this] { turn(-1); });
    on(form_, controls.next, &QAbstractButton::clicked, [this] { turn(1); });
    on(form_, controls.list, &ReportList::ColumnClick, [this](int column) { sortBy(column); });
    std::vector<ReportList::Column> shown;
    for (const Column& column : parts_.columns) shown.push_back(column.shown);
    controls.list->setColumns(shown);
    RefreshGrid();
    for (const Mode& mode : parts_.modes()) {
        mode.button->setVisible(mode.which == which_);
        if (mode.which == which_) form_.setCaption(mode.caption);
    }
    controls.list->setOrderMark(markColumn, Qt::AscendingOrder);
}

void PagedList::enablePaging() {
    parts_.controls().previous->setEnabled(Page > 1);
    parts_.controls().next->setEnabled(Page < PageCount);
}

// The row that was selected is selected again where it is still among them.
void PagedList::showRows(const std::optional<RowArray>& rows) {
    ReportList& list = *parts_.controls().list;
    const int before = parts_.keepsSelection ? list.SelectedRow() : -1;
    const std::string key = before < 0 ? std::string() : list.Cell(before, 0);
    list.clear();
    if (!rows) return;
    std::vector<std::vector<std::string>> texts;
    texts.reserve(static_cast<std::size_t>(rows->rows()));
    for (int row = 0; row < rows->rows(); ++row) texts.push_back(parts_.rowTexts(*rows, row));
    list.AddRows(texts);
    for (int row = 0; row < list.RowCount(); ++row)
        if (list.Cell(row, 0) == key) list.selectRow(row);
    if (PageCount > 1) idle_.start();
}

void PagedList::RefreshGrid() {
    const Program::Doing doing(form_.program(), "reading the list");
    const auto rows = parts_.readAll(Page, PageCount, FldName, AscOrDesc);
    Searched = "All";
    enablePaging();
    showRows(rows);
    ShowLabel();
}

void PagedList::SearchItem() {
    const Program::Doing doing(form_.program(), "searching");
    const auto rows = parts_.readSearched(Page, PageCount, FldName, AscOrDesc);
    Searched = "Searched";
    enablePaging();
    if (rows) {
        showRows(rows);
        ShowLabel();
        return;
    }
    Program& program = form_.program();
    if (parts_.searchedByName() && which_ == "A") {
        if (program.confirm(parts_.offerToAdd, "Inventory")) parts_.add();
    } else {
        program.say(parts_.notFound, "");
    }
}

void PagedList::ShowLabel() {
    const std::int16_t base = narrowToInt16((Page - 1) * parts_.data().PageSize);
    parts_.controls().records->setText(qstring("Record " + generalText(1 + base) + " - " +
                                               generalText(parts_.controls().list->RowCount() + base) + " of " +
                                               generalText(parts_.data().RecordCount)));
}

void PagedList::refill() {
    if (Searched == "Searched")
        SearchItem();
    else
        RefreshGrid();
}

void PagedList::startSearch() {
    Page = 1;
    SearchItem();
    enableSearch();
    parts_.controls().search->selectAll();
}

void PagedList::enableSearch() {
    parts_.controls().search->setEnabled(true);
    parts_.controls().search->setFocus();
}

void PagedList::clearSearch() {
    parts_.controls().search->setText("");
    enableSearch();
}

void PagedList::showAll() {
    RefreshGrid();
    enableSearch();
}

void PagedList::turn(int pages) {
    Page = static_cast<std::int16_t>(Page + pages);
    refill();
}

void PagedList::sortBy(int column) {
    const std::string_view field = parts_.columns.at(static_cast<std::size_t>(column)).sortField;
    if (!field.empty()) FldName = field;
    AscOrDesc = ascending_ ? "D" : "A";
    refill();
    ascending_ = !ascending_;
    parts_.controls().list->setOrderMark(column, ascending_ ? Qt::DescendingOrder : Qt::AscendingOrder);
}

std::vector<std::string> rowTexts(const RowArray& rows, int row, std::initializer_list<int> columns,
                                  const ShortDate& dates) {
    std::vector<std::string> texts;
    for (const int column : columns) texts.push_back(textOrEmpty(rows(column, row), dates));
    return texts;
}

int PagedList::selectedRow() {
    const int row = parts_.controls().list->SelectedRow();
    if (row < 0) fail(Failure::ObjectNotSet);
    return row;
}

std::string PagedList::selectedKey() {
    return parts_.controls().list->Cell(selectedRow(), 0);
}

std::int16_t PagedList::selectedKey16() {
    return strictInt16(selectedKey());
}

std::string PagedList::selectedName() {
    return parts_.controls().list->Cell(selectedRow(), 1);
}

}  // namespace torvane
