#pragma once

#include <string>
#include <vector>

#include "reports/report_layout.h"
#include "reports/report_rows.h"
#include "values/dates.h"

namespace torvane {

// A text or a line in its place on a page; twips from the page's top left corner.
struct Placed {
    ReportField field;      // with its place on the page
    std::string text = {};  // one line
    // A number or a date, which is made narrower where its box is too narrow: cut, it would read as another one. Every
    // other text is cut at its box.
    bool squeeze = false;
    // How wide the text may be. Beside a number some room stays, so that two of them do not read as one.
    int room() const { return squeeze ? field.width - 40 : field.width; }
};

// The pages of a filled report. Breaks are found at once, what stands on a page when it is asked for. One list serves
// the preview, the printer, the PDF and the tests.
class ReportPages {
public:
    // `dates`: how the machine writes a date.
    ReportPages(const ReportLayout& layout, ReportRows rows, ShortDate dates);

    const ReportLayout& layout() const { return *layout_; }
    int pageCount() const { return static_cast<int>(pages_.size()); }
    // What stands on a page, from 0, in the order of the layout. A field that can't be filled, such as one that the
    // data lack, is left empty; `problem`, when given, names the first of them and says why.
    std::vector<Placed> page(int number, std::string* problem = nullptr) const;

private:
    struct PlacedBand {
        const Band* band;
        int row;  // -1: a band without a row, and so without data of one
        int top;
    };
    void place(const Band& band, int row = -1);
    void fill(Placed& placed, int row) const;

    const ReportLayout* layout_;
    ReportRows rows_;
    ShortDate dates_;
    std::vector<std::vector<PlacedBand>> pages_;
    int top_ = pageMargin;  // where the next band goes
};

}  // namespace torvane
