#include <algorithm>
#include <limits>
#include <utility>

#include "datastore/store.h"
#include "datastore/store_file.h"
#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// The first column closes the order, so that rows that tie stand in one order on all pages.
std::string inOrder(std::string_view statement, std::string_view FldName, std::string_view AscOrDesc) {
    return std::string(statement)
        .append(" order by ")
        .append(FldName)
        .append(AscOrDesc == "A" ? "" : " Desc")
        .append(", 1");
}

long countOf(std::string_view statement, StoreFile& file) {
    const QueryResult count = file.query(std::string("select count(*) from (").append(statement).append(")"));
    return static_cast<long>(std::get<std::int64_t>(count.cells.front()));
}

long pagesOf(long rows, long pageSize) {
    return (rows + pageSize - 1) / pageSize;
}

std::int16_t narrowedCount(long rows) {
    return narrowToInt16(static_cast<double>(rows));
}

RowArray arrayOf(QueryResult&& rows) {
    return {static_cast<int>(rows.names.size()), std::move(rows.cells)};
}

}  // namespace

void Recordset::require(bool condition) const {
    if (!condition) fail(Failure::InvalidCall);
}

void Recordset::open(std::string_view statement, Connection& connection) {
    require(!open_);
    QueryResult result = connection.file().query(statement);
    names_ = std::move(result.names);
    cells_ = std::move(result.cells);
    rowCount_ = result.rows;
    row_ = 0;
    open_ = true;
}

void Recordset::close() {
    names_.clear();
    cells_ = {};
    rowCount_ = 0;
    row_ = 0;
    open_ = false;
}

void Recordset::moveNext() {
    require(row_ < rowCount_);
    ++row_;
}

void Recordset::setAbsolutePosition(long position) {
    require(position >= 1 && position <= rowCount_);
    row_ = position - 1;
}

const Value& Recordset::field(std::string_view name) const {
    const auto found =
        std::find_if(names_.begin(), names_.end(), [&](const auto& own) { return compareWithoutCase(own, name) == 0; });
    if (found == names_.end()) fail(Failure::InvalidCall, name);
    return field(static_cast<int>(found - names_.begin()));
}

const Value& Recordset::field(int index) const {
    require(row_ < rowCount_ && index >= 0 && index < static_cast<int>(names_.size()));
    return cells_[static_cast<std::size_t>(row_) * names_.size() + static_cast<std::size_t>(index)];
}

std::optional<RowArray> Recordset::getRows() {
    require(open_);
    if (eof()) return std::nullopt;
    const auto first = cells_.begin() + row_ * static_cast<long>(names_.size());
    row_ = rowCount_;
    return RowArray(static_cast<int>(names_.size()), std::vector<Value>(first, cells_.end()));
}

std::optional<RowArray> Recordset::readPage(std::string_view statement, std::string_view FldName,
                                            std::string_view AscOrDesc, Connection& connection, long Page,
                                            std::int16_t PageSize, long& PageCount, std::int16_t& RecordCount) {
    require(!open_);
    StoreFile& file = connection.file();
    constexpr long farthest = std::numeric_limits<long>::max() / std::numeric_limits<std::int16_t>::max();
    const long first = (std::clamp(Page, 1L, farthest) - 1) * pageSize_;
    const long wanted = std::max<long>(PageSize, 0);
    QueryResult rows = file.query(inOrder(statement, FldName, AscOrDesc) + " limit " + std::to_string(wanted) +
                                  " offset " + std::to_string(first));
    const long count = countOf(statement, file);
    if (count == 0) return std::nullopt;
    require(Page >= 1 && PageSize >= 1);
    pageSize_ = PageSize;
    PageCount = pagesOf(count, pageSize_);
    RecordCount = narrowedCount(count);
    return arrayOf(std::move(rows));
}

std::optional<RowArray> Recordset::readAll(std::string_view statement, std::string_view FldName,
                                           std::string_view AscOrDesc, Connection& connection, long& PageCount,
                                           std::int16_t& RecordCount) {
    require(!open_);
    QueryResult rows = connection.file().query(inOrder(statement, FldName, AscOrDesc));
    if (rows.rows == 0) return std::nullopt;
    PageCount = pagesOf(rows.rows, pageSize_);
    RecordCount = narrowedCount(rows.rows);
    return arrayOf(std::move(rows));
}

}  // namespace torvane
