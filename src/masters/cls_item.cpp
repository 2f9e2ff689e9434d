#include "masters/cls_item.h"

#include <map>
#include <set>

#include "datastore/statement.h"
#include "values/letters.h"

namespace torvane {

bool ClsItem::Validate() {
    const auto refuse = [this](std::string_view text) {
        host_.box(text, "Item Details");
        return false;
    };
    if (Itemcode.empty()) return refuse("Enter Item #");
    if (Itemname.empty()) return refuse("Enter Item Description");
    if (CategoryId == 0) return refuse("Please select category");
    if (Material == 0) return refuse("Enter Material Cost");
    if (qty == 0) return refuse("Enter Default Quantity");
    if (AddEditDel != "A") return true;
    const bool duplicate =
        !query(joined("Select * from Item where Itemname ='", Itemname, "' and CategoryId =", CategoryId,
                      " and Material =", Material, " and Qty =", qty))
             .empty();
    if (duplicate) host_.box("Duplicate Item Data ", "Inventory");
    return !duplicate;
}

bool ClsItem::Save() {
    if (AddEditDel == "A") {
        connection_.execute(
            joined("Insert into Item (Itemcode, Itemname, CategoryID,UnitId,Material,Labor,Qty,TU,SubLabor,Equipment) "
                   "values ('",
                   Itemcode, "','", Itemname, "',", CategoryId, ",", UnitId, ",", Material, ",", Labor, ",", qty, ",'",
                   TU, "',", SubLabor, ",", Equipment, ")"));
    } else if (AddEditDel == "E") {
        connection_.execute(joined("Update Item Set ItemCode='", Itemcode, "', Itemname = '", Itemname,
                                   "', CategoryID = ", CategoryId, ", UnitId = ", UnitId, ", Material = ", Material,
                                   ", Labor = ", Labor, ", SubLabor = ", SubLabor, ", Equipment= ", Equipment,
                                   ", Qty = ", qty, ", TU = '", TU, "' where Itemid=", itemid));
    }
    return false;
}

void ClsItem::Delete() {
    if (AddEditDel == "D") connection_.execute(joined("Delete * from Item where ItemId = ", itemid));
}

void ClsItem::GetItem() {
    const RowArray rows = query(joined("Select * from Item where ItemId= ", itemid));
    if (!rows.empty()) take(rows, 0);
}

void ClsItem::GetItems(const std::vector<ClsItem*>& items) {
    std::set<std::int16_t> keys;
    for (const ClsItem* item : items) keys.insert(item->itemid);
    const RowArray rows = query(joined("Select * from Item where ItemId in (", listed(keys), ")"));
    std::map<std::int16_t, int> rowOf;
    for (int row = 0; row < rows.rows(); ++row) rowOf[toInt16(rows("ItemId", row))] = row;
    for (ClsItem* item : items)
        if (const auto found = rowOf.find(item->itemid); found != rowOf.end()) item->take(rows, found->second);
}

void ClsItem::take(const RowArray& rows, int row) {
    Itemcode = textOf(rows("Itemcode", row));
    Itemname = textOf(rows("Itemname", row));
    CategoryId = toInt16(rows("CategoryId", row));
    UnitId = toInt16(rows("UnitId", row));
    Material = singleOrZero(rows("Material", row));
    Labor = singleOrZero(rows("Labor", row));
    SubLabor = singleOrZero(rows("SubLabor", row));
    Equipment = singleOrZero(rows("Equipment", row));
    qty = toSingle(rows("Qty", row));
    TU = textOrEmpty(rows("TU", row));
}

double ClsItem::Maxitemno() {
    const Value highest = query("Select max(cdbl(itemcode)) from Item where isnumeric(itemcode)")(0, 0);
    return isNull(highest) ? 1 : finite(toDouble(highest) + 1);
}

void ClsItem::updatePrice(std::string_view column, std::string_view spoken, std::int32_t itmid, std::string_view prc) {
    connection_.execute(joined("update Item set ", column, "=", prc, " where Itemid=", itmid));
    host_.box(spoken, defaultTitle);
}

void ClsItem::Updatematerialprice(std::int32_t itmid, std::string_view prc) {
    updatePrice("Material", "Material price updated in master file", itmid, prc);
}

void ClsItem::Updatelabourprice(std::int32_t itmid, std::string_view prc) {
    updatePrice("Labor", "Labor price updated in master file", itmid, prc);
}

void ClsItem::UpdateSublabourprice(std::int32_t itmid, std::string_view prc) {
    updatePrice("SubLabor", "Sub-Labor price updated in master file", itmid, prc);
}

void ClsItem::UpdateEquipmentprice(std::int32_t itmid, std::string_view prc) {
    updatePrice("Equipment", "Equipment price updated in master file", itmid, prc);
}

ListRows ClsItem::GetAllItems(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    return readPage("Select *  from Item", Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsItem::GetAllItemsN(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    if (compareWithoutCase(FldName, "itemcode") == 0)
        FldName = AscOrDesc == "A" ? " Val(itemcode),itemcode" : " Val(itemcode) desc,itemcode";
    return readPage(
        "SELECT Item.ItemID,Item.ItemName,Category.CatName,item.Material,Item.Qty,Item.Itemcode,Units.Name FROM "
        "Item,Category,Units  where  Item.CategoryID = Category.CatId and Item.UnitId=Units.Id",
        Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsItem::GetAllReItemsN(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    return readPage(
        "SELECT Item.ItemID,Item.ItemName,Category.CatName, item.Material,Item.Qty,Item.Itemcode,Units.Name FROM "
        "Item,Category,Units  where  Item.CategoryID = Category.CatId  and Item.UnitId=Units.Id",
        Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsItem::GetSearchItems(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    const bool all = SearchFld == "All";
    const std::string condition =
        all ? joined(" (ItemName like '", SearchVal, "%' or CatName like '", SearchVal, "%') ")
            : joined(SearchFld, " like '", SearchVal, "%'");
    const std::string statement =
        joined("SELECT Item.ItemID,Item.ItemName as  ItmName,Category.CatName as CatName,", all ? " " : "",
               "item.Material,Item.Qty,Item.Itemcode,Units.Name FROM Item,Category,Units  where  Item.CategoryID = "
               "Category.CatId and Item.UnitId=Units.Id and ",
               condition);
    return readPageOrAll(statement, Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsItem::GetItemsOfCategories(std::string_view FldName, std::string_view AscOrDesc) {
    long PageCount = 0;
    return readPageOrAll(
        "SELECT Item.ItemID,Item.ItemName,Item.CategoryId FROM Item,Category,Units  where  Item.CategoryID = "
        "Category.CatId and Item.UnitId=Units.Id",
        -1, PageCount, FldName, AscOrDesc);
}

}  // namespace torvane
