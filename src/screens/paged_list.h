#pragma once

#include <QRadioButton>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "datastore/rows.h"
#include "screens/form.h"
#include "widgets/report_list.h"
#include "widgets/text_box.h"

class QLabel;

namespace torvane {

class DataClass;

// The list of a screen, a page at a time: paging, sorting by header, search, refill after a child window, the record
// counter, and the one action button of the screen's mode. The screen says in `Parts` what differs. Everything here
// touches controls, and so loads the screen.
class PagedList {
public:
    struct Controls {
        ReportList* list;
        TextBox* search;
        QAbstractButton* previous;
        QAbstractButton* next;
        QLabel* records;
    };
    struct Column {
        ReportList::Column shown;
        std::string_view sortField;  // empty: a click changes nothing
    };
    struct Mode {
        std::string_view which;
        std::string_view caption;
        QWidget* button;  // the one action button that shows
    };
    // Reads the page by this list's `Page`, `FldName` and `AscOrDesc`; nothing when there are no rows.
    using Read = std::function<std::optional<RowArray>(long Page, long& PageCount, std::string_view FldName,
                                                       std::string_view AscOrDesc)>;
    struct Parts {
        std::function<Controls()> controls;
        std::vector<Column> columns;
        std::function<std::vector<Mode>()> modes = [] { return std::vector<Mode>(); };
        std::function<DataClass&()> data;  // knows the size of a page and the count of the rows
        Read readAll;
        Read readSearched;
        std::function<std::vector<std::string>(const RowArray& rows, int row)> rowTexts;
        std::string_view notFound;
        // Asked (Yes/No) in place of `notFound` where adding is the mode and `searchedByName` holds; Yes runs `add`.
        std::string_view offerToAdd = {};
        std::function<bool()> searchedByName = [] { return false; };
        std::function<void()> add = [] {};
        // Whether the selected row stays selected when the list is filled again.
        bool keepsSelection = true;
    };
    // `which` is the mode of the screen.
    PagedList(Form& form, const std::string& which, Parts parts);

    // The common part of Form_Load: page 1, columns, first fill, the button and caption of the mode. The mark of the
    // order stands on `markColumn`, whatever the real order is.
    void load(std::string_view sortField, int markColumn = 1);
    // What an option button of the search stands for: a column, or "All".
    using SearchOption = std::pair<QRadioButton*, std::string_view>;
    // Called at each load: the button that searches `record` for what stands in the search box, by the option that is
    // chosen, and the one that shows every row again.
    template <class Record>
    void connectSearch(QAbstractButton* cmdSearch, QAbstractButton* CmdAll, Record& record,
                       const std::vector<SearchOption>& options) {
        on(form_, cmdSearch, &QAbstractButton::clicked, [this, &record, options] {
            record().SearchVal = parts_.controls().search->Text();
            for (const auto& [option, field] : options)
                if (option->isChecked()) record().SearchFld = field;
            startSearch();
        });
        on(form_, CmdAll, &QAbstractButton::clicked, [this] { showAll(); });
    }
    // Reads the current page of all rows and shows it.
    void RefreshGrid();
    // Reads the current page of what is searched for and shows it. When there is nothing, the rows stay as they are and
    // a box says so, or offers to add.
    void SearchItem();
    // The record counter: which rows of how many are shown, by full pages.
    void ShowLabel();
    // SearchItem after a search, RefreshGrid otherwise.
    void refill();
    // The common steps of cmdSearch, once the screen has set what to search for.
    void startSearch();
    // The search box, empty or as it is, ready to be typed into.
    void clearSearch();
    void enableSearch();

    bool hasRows() { return parts_.controls().list->RowCount() > 0; }
    // Key of the selected row. Failure::ObjectNotSet when no row is selected.
    std::string selectedKey();
    std::int16_t selectedKey16();
    // First visible column of the selected row.
    std::string selectedName();

    std::int16_t Page = 1;
    long PageCount = 0;

private:
    // Every row again, and the search box ready.
    void showAll();
    void showRows(const std::optional<RowArray>& rows);
    void enablePaging();
    void turn(int pages);
    void sortBy(int column);
    int selectedRow();

    Form& form_;
    const std::string& which_;
    const Parts parts_;
    QTimer idle_;  // reads ahead once the rows stand
    std::string Searched;
    std::string FldName;
    std::string AscOrDesc;
    bool ascending_ = true;  // one flag for all columns: a click on another one flips the direction as well
};

// The texts of these columns of a row, "" for Null.
std::vector<std::string> rowTexts(const RowArray& rows, int row, std::initializer_list<int> columns,
                                  const ShortDate& dates = {});

}  // namespace torvane
