#include "reports/report_pages.h"

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr int bottom = pageHeight - pageMargin;

}  // namespace

ReportPages::ReportPages(const ReportLayout& layout, ReportRows rows, ShortDate dates)
    : layout_(&layout), rows_(std::move(rows)), dates_(std::move(dates)) {
    layOut();
}

// A band never splits: one that does not fit goes to the next page, under the page header.
void ReportPages::place(const Band& band, int row) {
    if (band.height == 0) return;
    if (top_ + band.height > bottom && !pages_.back().empty()) {
        pages_.emplace_back();
        top_ = pageMargin;
        if (&band != &layout_->pageHeader) place(layout_->pageHeader, -1);
    }
    pages_.back().push_back({&band, row, top_});
    top_ += band.height;
}

void ReportPages::layOut() {
    pages_.emplace_back();
    top_ = pageMargin;
    place(layout_->reportHeader, -1);
    place(layout_->pageHeader, -1);
    for (const ReportRows::Group& group : rows_.groups()) {
        place(layout_->groupHeader, group.rows.front());
        for (const int row : group.rows) place(layout_->detail, row);
        place(layout_->groupFooter, group.rows.front());
    }
    place(layout_->reportFooter, -1);
}

std::string ReportPages::fieldText(const ReportField& field, int row) const {
    if (field.kind == ReportControl::Label) return std::string{field.text};
    if (field.kind == ReportControl::Line) return {};
    if (field.kind == ReportControl::Text && row < 0) return {};
    const Value value = field.kind == ReportControl::Sum ? Value{rows_.sum(field.text)} : rows_.cell(field.text, row);
    if (isNull(value)) return {};
    return field.format == Format::TwoDecimals ? fixedText(toDouble(value), 2) : textOf(value, dates_);
}

std::vector<Placed> ReportPages::page(int number) const {
    if (number < 0 || number >= pageCount()) fail(Failure::Subscript);
    std::vector<Placed> placed;
    for (const PlacedBand& band : pages_[static_cast<std::size_t>(number)])
        for (const ReportField& field : band.band->fields)
            placed.push_back({field.kind, pageMargin + field.left, band.top + field.top, field.width, field.height,
                              field.align, field.face, fieldText(field, band.row)});
    return placed;
}

std::string ReportPages::dump() const {
    std::string text;
    for (int number = 0; number < pageCount(); ++number) {
        for (const Placed& placed : page(number)) {
            text += generalText(number + 1);
            for (const int measure : {placed.left, placed.top, placed.width, placed.height})
                text += ' ' + generalText(measure);
            if (placed.kind == ReportControl::Line) {
                text += " line";
            } else {
                constexpr const char* faces[] = {"plain", "bold", "title"};
                text += std::string{" "} + faces[static_cast<int>(placed.face)] +
                        (placed.align == Align::Right ? " right " : " left ") + placed.text;
            }
            text += '\n';
        }
    }
    return text;
}

}  // namespace torvane
