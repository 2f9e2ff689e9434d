#include "screens/fill_names.h"

#include "widgets/drop_list.h"

namespace torvane {

void fillNames(DropList& list, const std::optional<RowArray>& rows) {
    if (!rows) return;
    std::vector<DropList::Entry> entries;
    entries.reserve(static_cast<std::size_t>(rows->rows()));
    for (int row = 0; row < rows->rows(); ++row)
        entries.push_back({textOrEmpty((*rows)(1, row)), toInt32((*rows)(0, row))});
    list.fill(std::move(entries));
    list.select(0);
}

}  // namespace torvane
