#pragma once

#include <optional>

#include "datastore/rows.h"

namespace torvane {

class DropList;

// Fills a list with names and their keys (key in column 0, name in column 1) and selects the first one. Without rows
// the list is empty, with nothing selected.
void fillNames(DropList& list, const std::optional<RowArray>& rows);

}  // namespace torvane
