#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "values/failure.h"
#include "values/value.h"

namespace torvane {

// The rows that a statement gave, and the names of their columns: cells by (column, row), both from 0.
class RowArray {
public:
    RowArray() = default;
    RowArray(std::vector<std::string> names, std::vector<Value> cells)
        : names_(std::move(names)), cells_(std::move(cells)) {}

    int columns() const { return static_cast<int>(names_.size()); }
    int rows() const { return names_.empty() ? 0 : static_cast<int>(cells_.size() / names_.size()); }
    bool empty() const { return cells_.empty(); }

    // Failure::Subscript outside the array.
    const Value& operator()(int column, int row) const {
        if (column < 0 || column >= columns() || row < 0 || row >= rows()) fail(Failure::Subscript);
        return cells_[static_cast<std::size_t>(row) * names_.size() + static_cast<std::size_t>(column)];
    }
    // By the column's name, without regard to case; Failure::InvalidCall when no column bears it. A name that several
    // columns of the statement bear is qualified as table.column.
    const Value& operator()(std::string_view column, int row) const;
    // The name of the first column, which the rows of a list are known by.
    const std::string& keyName() const { return names_.front(); }
    // The number of the column of that name, or -1.
    int column(std::string_view name) const;

private:
    std::vector<std::string> names_;
    std::vector<Value> cells_;  // row by row
};

// What a list is given: nothing when there are no rows at all.
using ListRows = std::optional<RowArray>;

}  // namespace torvane
