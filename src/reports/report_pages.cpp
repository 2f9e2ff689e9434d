#include "reports/report_pages.h"

#include <algorithm>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr int bottom = pageHeight - pageMargin;

// A line break or a tab inside a text stands as a blank.
std::string oneLine(std::string text) {
    for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at)) text.erase(at, 1);
    std::ranges::replace_if(
        text, [](unsigned char sign) { return sign < ' '; }, ' ');
    return text;
}

}  // namespace

ReportPages::ReportPages(const ReportLayout& layout, ReportRows rows, ShortDate dates)
    : layout_(&layout), rows_(std::move(rows)), dates_(std::move(dates)) {
    pages_.emplace_back();
    place(layout_->reportHeader);
    place(layout_->pageHeader);
    for (const ReportRows::Group& group : rows_.groups()) {
        place(layout_->groupHeader, group.front());
        for (const int row : group) place(layout_->detail, row);
        place(layout_->groupFooter, group.front());
    }
    place(layout_->reportFooter);
}

// A band never splits: one that does not fit goes to the next page, under the page header.
void ReportPages::place(const Band& band, int row) {
    if (band.height == 0) return;
    if (top_ + band.height > bottom && !pages_.back().empty()) {
        pages_.emplace_back();
        top_ = pageMargin;
        place(layout_->pageHeader);
    }
    pages_.back().push_back({&band, row, top_});
    top_ += band.height;
}

void ReportPages::fill(Placed& placed, int row) const {
    const ReportField& field = placed.field;
    if (field.kind == ReportControl::Label) placed.text = field.text;
    if (field.kind == ReportControl::Label || field.kind == ReportControl::Line) return;
    const Value value = field.kind == ReportControl::Sum ? Value{rows_.sum(field.text)} : rows_.cell(field.text, row);
    if (isNull(value)) return;
    placed.squeeze = !std::holds_alternative<std::string>(value);
    placed.text = oneLine(field.format == Format::TwoDecimals ? fixedText(amountOf(value), 2) : textOf(value, dates_));
}

std::vector<Placed> ReportPages::page(int number, std::string* problem) const {
    std::vector<Placed> placed;
    for (const PlacedBand& band : pages_.at(static_cast<std::size_t>(number))) {
        for (const ReportField& field : band.band->fields) {
            placed.push_back({field});
            placed.back().field.left += pageMargin;
            placed.back().field.top += band.top;
            try {
                fill(placed.back(), band.row);
            } catch (const RuntimeFailure& failure) {
                if (problem && problem->empty()) *problem = std::string(field.text) + ": " + failure.text();
            }
        }
    }
    return placed;
}

}  // namespace torvane
