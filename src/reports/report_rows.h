#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "datastore/rows.h"

namespace torvane {

// A cell as a number; a float32 counts as its text says. Failures as of toDouble.
double amountOf(const Value& cell);

// The rows that a report is filled with, and how they fall into groups.
class ReportRows {
public:
    // The rows that share one parent row.
    using Group = std::vector<int>;

    // No rows, and no groups.
    ReportRows() = default;
    // One group per distinct combination of the columns `by`, in the order of their first row; with no such columns one
    // group of all rows. Failure::InvalidCall when a column is missing.
    explicit ReportRows(RowArray rows, std::span<const std::string_view> by = {});

    const std::vector<Group>& groups() const { return groups_; }
    // The sum of the amounts of a column over all rows; Null counts as 0. Failures as of cell, and of arithmetic.
    double sum(std::string_view column) const;
    // A cell, by the column's name without regard to case. Failure::InvalidCall when there is no such column.
    const Value& cell(std::string_view column, int row) const;

private:
    int column(std::string_view name) const;
    RowArray rows_;
    std::vector<Group> groups_;
};

}  // namespace torvane
