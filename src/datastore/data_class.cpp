#include "datastore/data_class.h"

#include <algorithm>
#include <span>

#include "datastore/statement.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// The first column closes the order, so that rows that tie stand in one order on all pages.
std::string inOrder(std::string_view statement, std::string_view FldName, std::string_view AscOrDesc) {
    return joined(statement, " order by ", FldName, AscOrDesc == "A" ? "" : " Desc", ", 1");
}

long pagesOf(long rows, long pageSize) {
    return (rows + pageSize - 1) / pageSize;
}

}  // namespace

DataClass::DataClass(const DataAccess& access)
    : PageSize(access.host.NoInList()), host_(access.host), connection_(access) {}

RowArray DataClass::query(std::string_view statement) {
    leftOpen_ = false;
    return connection_.query(statement);
}

ListRows DataClass::readRows(std::string_view statement) {
    RowArray rows = query(statement);
    if (rows.empty()) return std::nullopt;
    return rows;
}

bool DataClass::isKept(const std::string& ordered) {
    return kept_.ordered == ordered && kept_.writes == connection_.writes();
}

// No query of the class: its recordset stays as it is.
void DataClass::readKeys() {
    const RowArray rows = connection_.query(joined("select ", kept_.key, " from (", kept_.ordered, ")"));
    std::vector<std::string> keys;
    keys.reserve(static_cast<std::size_t>(rows.rows()));
    for (int row = 0; row < rows.rows(); ++row) keys.push_back(textOf(rows(0, row)));
    kept_.keys = std::move(keys);
}

void DataClass::readAhead() {
    try {
        if (kept_.keys.empty() && isKept(kept_.ordered)) readKeys();
    } catch (const RuntimeFailure&) {
        // The next page meets it again, and tells it.
    }
}

// SQLite leaves the order of a single ordered subquery as it is, and takes a condition on it inside.
RowArray DataClass::keptPage(std::size_t first) {
    if (kept_.keys.empty()) readKeys();
    const auto rest = std::span(kept_.keys).subspan(std::min(first, kept_.keys.size()));
    const auto wanted = rest.first(std::min(rest.size(), static_cast<std::size_t>(PageSize)));
    return query(joined("select * from (", kept_.ordered, ") where ", kept_.key, " in (", listed(wanted), ")"));
}

ListRows DataClass::readPage(std::string_view statement, long Page, long& PageCount, std::string_view FldName,
                             std::string_view AscOrDesc) {
    const long first = (std::max(Page, 1L) - 1) * positionedBy_;
    const std::string ordered = inOrder(statement, FldName, AscOrDesc);
    const bool again = isKept(ordered);
    RowArray rows = again ? keptPage(static_cast<std::size_t>(first))
                          : query(joined(ordered, " limit ", PageSize, " offset ", first));
    const double count = again ? static_cast<double>(kept_.keys.size())
                               : toDouble(query(joined("select count(*) from (", statement, ")"))(0, 0));
    if (count == 0) return std::nullopt;
    if (Page < 1 || PageSize < 1) fail(Failure::InvalidCall);
    if (!again) kept_ = {ordered, rows.keyName(), connection_.writes(), {}};
    positionedBy_ = PageSize;
    PageCount = pagesOf(static_cast<long>(count), PageSize);
    RecordCount = narrowToInt16(count);
    return rows;
}

ListRows DataClass::readPageOrAll(std::string_view statement, long Page, long& PageCount, std::string_view FldName,
                                  std::string_view AscOrDesc) {
    if (Page != -1) return readPage(statement, Page, PageCount, FldName, AscOrDesc);
    auto rows = readRows(inOrder(statement, FldName, AscOrDesc));
    if (!rows) return rows;
    PageCount = pagesOf(rows->rows(), positionedBy_);
    RecordCount = narrowToInt16(rows->rows());
    return rows;
}

}  // namespace torvane
