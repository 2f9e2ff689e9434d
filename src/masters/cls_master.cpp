#include "masters/cls_master.h"

#include <algorithm>

#include "datastore/statement.h"
#include "values/numbers.h"

namespace torvane {

bool clsMaster::Validate() {
    if (Name.empty()) {
        host_.box("Empty Data", "Master Entry");
        return false;
    }
    if (AddEditDel != "A") return true;
    const bool duplicate = anyRow(joined("Select * from ", Mastertable, " where Name ='", Name, "'"));
    if (duplicate) host_.box("Duplicate Data '" + Name + "'", "Master Entry");
    return !duplicate;
}

bool clsMaster::Save() {
    if (AddEditDel == "A")
        connection_.execute(joined("Insert into ", Mastertable, " (Name) values ('", Name, "')"));
    else if (AddEditDel == "E")
        connection_.execute(joined("Update ", Mastertable, " Set Name = '", Name, "' where Id=", Id));
    else
        return false;
    host_.box("Record Saved", "Master Entry");
    return false;
}

void clsMaster::Delete() {
    if (AddEditDel == "D") connection_.execute(joined("Delete * from ", Mastertable, " where Id = ", Id));
}

std::string clsMaster::GetCatg() {
    const Recordset& row = read(joined("Select * from ", Mastertable, " where Id= ", Id));
    std::string name;
    if (!row.eof()) Name = name = textOf(row.field("Name"));
    recordset_.close();
    return name;
}

std::optional<long> clsMaster::GetRecord(std::optional<long> RecNo) {
    Recordset& rows = read(joined("Select * from ", Mastertable, " order by name"));
    std::optional<long> position;
    if (!rows.eof()) {
        const long wanted = RecNo.value_or(1);
        rows.setAbsolutePosition(wanted == 0 ? 1 : std::min(wanted, rows.recordCount()));
        position = rows.absolutePosition();
        RecordCount = narrowToInt16(static_cast<double>(rows.recordCount()));
        Id = toInt16(rows.field("ID"));
        Name = textOf(rows.field("Name"));
    }
    rows.close();
    return position;
}

std::optional<RowArray> clsMaster::GetComboCategories() {
    return readRows(joined("Select * from ", Mastertable, " order by Name"));
}

std::optional<long> clsMaster::GetCategory(std::string_view text) {
    Recordset& rows = read(joined("select * from ", Mastertable, " where Name like '%", text, "%'  order by name"));
    if (rows.eof()) {
        rows.close();
        host_.box("No Result found.", "Search");
        return {};
    }
    Id = toInt16(rows.field("ID"));
    Name = textOf(rows.field("Name"));
    read(joined("Select * from ", Mastertable, " order by name"));
    std::optional<long> position;
    for (; !rows.eof(); rows.moveNext())
        if (toInt16(rows.field("id")) == Id) position = rows.absolutePosition();
    RecordCount = narrowToInt16(static_cast<double>(rows.recordCount()));
    rows.close();
    return position;
}

std::optional<RowArray> clsMaster::GetAllCategories(long Page, long& PageCount, std::string_view FldName,
                                                    std::string_view AscOrDesc) {
    return readPage(joined("Select * from ", Mastertable), Page, PageCount, FldName, AscOrDesc);
}

std::optional<RowArray> clsMaster::GetSearchCategories(long Page, long& PageCount, std::string_view FldName,
                                                       std::string_view AscOrDesc) {
    auto rows = readPage(joined("select * from ", Mastertable, " where Name like '%", Name, "%' "), Page, PageCount,
                         FldName, AscOrDesc);
    if (!rows) host_.box("No Result found.", "Search");
    return rows;
}

}  // namespace torvane
