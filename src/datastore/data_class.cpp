#include "datastore/data_class.h"

namespace torvane {

DataClass::DataClass(const Environment& environment)
    : PageSize(environment.host.NoInList()), host_(environment.host), connection_(environment.store) {
    connection_.open(connectionText(host_.programDirectory()));
}

Recordset& DataClass::read(std::string_view statement) {
    if (recordset_.state() == 1) recordset_.close();
    recordset_.open(statement, connection_);
    return recordset_;
}

std::optional<RowArray> DataClass::readRows(std::string_view statement) {
    auto rows = read(statement).getRows();
    recordset_.close();
    return rows;
}

bool DataClass::anyRow(std::string_view statement) {
    const bool found = !read(statement).eof();
    recordset_.close();
    return found;
}

std::optional<RowArray> DataClass::readPage(std::string_view statement, long Page, long& PageCount,
                                            std::string_view FldName, std::string_view AscOrDesc) {
    if (recordset_.state() == 1) recordset_.close();
    return recordset_.readPage(statement, FldName, AscOrDesc, connection_, Page, PageSize, PageCount, RecordCount);
}

std::optional<RowArray> DataClass::readPageOrAll(std::string_view statement, long Page, long& PageCount,
                                                 std::string_view FldName, std::string_view AscOrDesc) {
    if (Page != -1) return readPage(statement, Page, PageCount, FldName, AscOrDesc);
    if (recordset_.state() == 1) recordset_.close();
    return recordset_.readAll(statement, FldName, AscOrDesc, connection_, PageCount, RecordCount);
}

}  // namespace torvane
