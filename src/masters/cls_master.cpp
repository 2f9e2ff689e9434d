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
    const bool duplicate = !query(joined("Select * from ", Mastertable, " where Name ='", Name, "'")).empty();
    if (duplicate) host_.box("Duplicate Data '" + Name + "'", "Master Entry");
    return !duplicate;
}

void clsMaster::Save() {
    if (AddEditDel == "A")
        connection_.execute(joined("Insert into ", Mastertable, " (Name) values ('", Name, "')"));
    else if (AddEditDel == "E")
        connection_.execute(joined("Update ", Mastertable, " Set Name = '", Name, "' where Id=", Id));
    else
        return;
    host_.box("Record Saved", "Master Entry");
}

void clsMaster::Delete() {
    if (AddEditDel == "D") connection_.execute(joined("Delete * from ", Mastertable, " where Id = ", Id));
}

std::string clsMaster::GetCatg() {
    const RowArray row = query(joined("Select * from ", Mastertable, " where Id= ", Id));
    if (row.empty()) return {};
    Name = textOf(row("Name", 0));
    return Name;
}

std::optional<long> clsMaster::GetRecord(std::optional<long> RecNo) {
    const RowArray rows = query(joined("Select * from ", Mastertable, " order by name"));
    if (rows.empty()) return {};
    const long wanted = RecNo.value_or(1);
    const int position = wanted == 0 ? 1 : static_cast<int>(std::min<long>(wanted, rows.rows()));
    RecordCount = narrowToInt16(rows.rows());
    Id = toInt16(rows("ID", position - 1));
    Name = textOf(rows("Name", position - 1));
    return position;
}

ListRows clsMaster::GetComboCategories() {
    return readRows(joined("Select * from ", Mastertable, " order by Name"));
}

std::optional<long> clsMaster::GetCategory(std::string_view text) {
    const RowArray found =
        query(joined("select * from ", Mastertable, " where Name like '%", text, "%'  order by name"));
    if (found.empty()) {
        host_.box("No Result found.", "Search");
        return {};
    }
    Id = toInt16(found("ID", 0));
    Name = textOf(found("Name", 0));
    const RowArray all = query(joined("Select * from ", Mastertable, " order by name"));
    std::optional<long> position;
    for (int row = 0; row < all.rows(); ++row)
        if (toInt16(all("id", row)) == Id) position = row + 1;
    RecordCount = narrowToInt16(all.rows());
    return position;
}

ListRows clsMaster::GetAllCategories(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    return readPage(joined("Select * from ", Mastertable), Page, PageCount, FldName, AscOrDesc);
}

ListRows clsMaster::GetSearchCategories(long Page, long& PageCount, std::string_view FldName,
                                        std::string_view AscOrDesc) {
    auto rows = readPage(joined("select * from ", Mastertable, " where Name like '%", Name, "%' "), Page, PageCount,
                         FldName, AscOrDesc);
    if (!rows) host_.box("No Result found.", "Search");
    return rows;
}

}  // namespace torvane
