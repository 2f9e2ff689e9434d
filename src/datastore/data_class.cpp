#include "datastore/data_class.h"

#include <algorithm>
#include <limits>

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

ListRows DataClass::readPage(std::string_view statement, long Page, long& PageCount, std::string_view FldName,
                             std::string_view AscOrDesc) {
    constexpr long farthest = std::numeric_limits<long>::max() / std::numeric_limits<std::int16_t>::max();
    const std::int64_t first = (std::clamp(Page, 1L, farthest) - 1) * positionedBy_;
    RowArray rows =
        query(joined(inOrder(statement, FldName, AscOrDesc), " limit ", std::max<int>(PageSize, 0), " offset ", first));
    const double count = toDouble(query(joined("select count(*) from (", statement, ")"))(0, 0));
    if (count == 0) return std::nullopt;
    if (Page < 1 || PageSize < 1) fail(Failure::InvalidCall);
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
