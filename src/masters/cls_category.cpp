#include "masters/cls_category.h"

#include "datastore/statement.h"

namespace torvane {

bool clsCategory::Validate() {
    if (Catname.empty()) {
        host_.box("Empty Data", "Inventory");
        return false;
    }
    if (AddEditDel != "A") return true;
    const bool duplicate = !query(joined("Select * from Category where Catname ='", Catname, "'")).empty();
    if (duplicate) host_.box("Duplicate Data", "Inventory");
    return !duplicate;
}

void clsCategory::Save() {
    if (AddEditDel == "A") {
        connection_.execute(
            joined("Insert into Category (Catname,ParentCategory) values ('", Catname, "',", ParentCategory, ")"));
    } else if (AddEditDel == "E") {
        connection_.execute(joined("Update Category Set Catname = '", Catname, "',ParentCategory = ", ParentCategory,
                                   " where Catid=", Catid));
    }
}

void clsCategory::Delete() {
    if (AddEditDel == "D") connection_.execute(joined("Delete * from Category where CatId = ", Catid));
}

std::string clsCategory::GetCatg() {
    const RowArray row = query(joined("Select * from Category where CatId= ", Catid));
    if (row.empty()) {
        Catname.clear();
    } else {
        Catname = textOf(row("CatName", 0));
        ParentCategory = int16OrZero(row("ParentCategory", 0));
    }
    return Catname;
}

std::string clsCategory::GetParentName(std::int16_t cid) {
    constexpr int levels = 3;
    std::string text;
    std::int16_t key = cid;
    for (int level = 0; level <= levels; ++level) {
        const RowArray row = query(joined("Select * from Category where CatId= ", key));
        if (row.empty()) break;
        if (level > 0) text += (level > 1 ? " <- " : "") + textOf(row("CatName", 0));
        key = int16OrZero(row("ParentCategory", 0));
        if (key == 0) break;
    }
    return text.empty() ? text : " (" + text + ")";
}

ListRows clsCategory::GetAllCategories(long Page, long& PageCount, std::string_view FldName,
                                       std::string_view AscOrDesc) {
    return readPageOrAll("Select * from Categories ", Page, PageCount, FldName, AscOrDesc);
}

ListRows clsCategory::GetSearchCategories(long Page, long& PageCount, std::string_view FldName,
                                          std::string_view AscOrDesc) {
    return readPageOrAll(joined("select * from Categories where Catname like '", Catname, "%' "), Page, PageCount,
                         FldName, AscOrDesc);
}

ListRows clsCategory::GetComboCategories() {
    return readRows("Select * from Category order by CatName");
}

std::int32_t clsCategory::GetTotalItems() {
    return toInt32(query(joined("Select count(ItemId) from Item where CategoryId= ", Catid))(0, 0));
}

}  // namespace torvane
