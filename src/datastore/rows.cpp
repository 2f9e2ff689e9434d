#include "datastore/rows.h"

#include <algorithm>

#include "values/letters.h"

namespace torvane {

int RowArray::column(std::string_view name) const {
    const auto found = std::ranges::find_if(
        names_, [&](const auto& known) { return known.size() == name.size() && beginsWith(known, name); });
    return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

const Value& RowArray::operator()(std::string_view name, int row) const {
    const int number = column(name);
    if (number < 0) fail(Failure::InvalidCall, name);
    return (*this)(number, row);
}

}  // namespace torvane
