#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/data_class.h"

namespace torvane {

// The catalogue of priced items: one item in public fields, its storage, and the lists of items. Prices are whole
// currency units; `Material` is a price per unit, the other three are amounts per line. Texts go into statements as
// they stand, so an apostrophe in one is a refused statement.
class ClsItem : public DataClass {
public:
    explicit ClsItem(const DataAccess& access) : DataClass(access) {}

    std::int16_t itemid = 0;
    std::string Itemcode;  // the item number that the user sees; free text, numeric by convention, not unique
    std::string Itemname;
    std::int16_t CategoryId = 0;
    std::int16_t UnitId = 0;
    std::int16_t SupplierId = 0;  // not used
    float Material = 0;
    float Labor = 0;
    float SubLabor = 0;
    float Equipment = 0;
    std::int32_t Discount = 0;    // not used
    float qty = 0;                // default quantity
    std::int32_t ReorderLev = 0;  // not used
    std::string TU;
    std::string SearchFld;  // "All", "ItemName", "CatName", "ItemCode"
    std::string SearchVal;
    std::string AddEditDel;  // "A", "E", "D"

    // Whether the item may be saved; says why not in a box of its own. Code, name, category, material cost and quantity
    // must be there. Only adding ("A") looks for an item equal in name, category, material cost and quantity.
    bool Validate();
    // Inserts ("A") or updates ("E"); any other flag does nothing. The result is always false.
    bool Save();
    // Does nothing; always false.
    bool UpdateStock() { return false; }
    // With the flag "D": removes the row of `itemid`, also when estimates use it.
    void Delete();
    // Loads the row of `itemid`. Without such a row every field stays as it is.
    void GetItem();
    // The same for many items at once, by one statement.
    void GetItems(const std::vector<ClsItem*>& items);
    // A proposal for a new item number: the highest numeric one plus 1, or 1.
    double Maxitemno();

    // Write a changed price back, and say so in a box. `prc` goes into the statement as it stands: a text that is no
    // number is a refused statement.
    void Updatematerialprice(std::int32_t itmid, std::string_view prc);
    void Updatelabourprice(std::int32_t itmid, std::string_view prc);
    void UpdateSublabourprice(std::int32_t itmid, std::string_view prc);
    void UpdateEquipmentprice(std::int32_t itmid, std::string_view prc);

    // Pages of items; nothing when there are none. The last three drop items whose category or unit has gone; their
    // columns are key, name, category name, material, quantity, item number, unit name.
    ListRows GetAllItems(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // Sorted by "ItemCode", numbers come in their numeric order.
    ListRows GetAllItemsN(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    ListRows GetAllReItemsN(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // Items whose SearchFld begins with SearchVal ("All": name or category name). Page -1 gives every row.
    ListRows GetSearchItems(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);

    // Key, name and category key of every item that the lists show, sorted by a column; what GetSearchItems with
    // SearchFld "Categoryid" gives for all categories at once.
    ListRows GetItemsOfCategories(std::string_view FldName, std::string_view AscOrDesc);

private:
    void take(const RowArray& rows, int row);
    void updatePrice(std::string_view column, std::string_view spoken, std::int32_t itmid, std::string_view prc);
};

}  // namespace torvane
