#pragma once

#include <vector>

#include "values/failure.h"
#include "values/value.h"

namespace torvane {

// The result of a list read: cells by (column, row), both from 0. A read without rows gives no RowArray at all; a page
// past the end gives an empty one.
class RowArray {
public:
    RowArray(int columns, std::vector<Value> cells) : columns_(columns), cells_(std::move(cells)) {}

    int columns() const { return columns_; }
    int rows() const { return columns_ == 0 ? 0 : static_cast<int>(cells_.size()) / columns_; }
    // Failure::Subscript outside the array.
    const Value& operator()(int column, int row) const {
        if (column < 0 || column >= columns_ || row < 0 || row >= rows()) fail(Failure::Subscript);
        return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                      static_cast<std::size_t>(column)];
    }

private:
    int columns_;
    std::vector<Value> cells_;  // row by row
};

}  // namespace torvane
