#include "reports/report_rows.h"

#include <map>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

double amountOf(const Value& cell) {
    const float* single = std::get_if<float>(&cell);
    return single ? decimalOf(*single) : toDouble(cell);
}

ReportRows::ReportRows(RowArray rows, std::span<const std::string_view> by) : rows_(std::move(rows)) {
    std::vector<int> columns;
    columns.reserve(by.size());
    for (const std::string_view name : by) columns.push_back(column(name));
    std::map<std::vector<Value>, std::size_t> known;
    for (int row = 0; row < rows_.rows(); ++row) {
        std::vector<Value> parent;
        parent.reserve(columns.size());
        for (const int column : columns) parent.push_back(rows_(column, row));
        const auto [place, added] = known.try_emplace(std::move(parent), groups_.size());
        if (added) groups_.emplace_back();
        groups_[place->second].push_back(row);
    }
}

int ReportRows::column(std::string_view name) const {
    const int number = rows_.column(name);
    if (number < 0)
        throw RuntimeFailure(static_cast<int>(Failure::InvalidCall), "the data have no such field", std::string(name));
    return number;
}

double ReportRows::sum(std::string_view column_) const {
    if (rows_.rows() == 0) return 0;
    const int index = column(column_);
    double total = 0;
    for (int row = 0; row < rows_.rows(); ++row)
        if (const Value& value = rows_(index, row); !isNull(value)) total += amountOf(value);
    return finite(total);
}

const Value& ReportRows::cell(std::string_view column_, int row) const {
    return rows_(column(column_), row);
}

}  // namespace torvane
