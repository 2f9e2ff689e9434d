#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datastore/data_class.h"

namespace torvane {

// The item categories, a tree by parent key: one category in public fields, its storage, and the lists.
class clsCategory : public DataClass {
public:
    explicit clsCategory(const DataAccess& access) : DataClass(access) {}

    std::int16_t Catid = 0;
    std::string Catname;
    std::int16_t ParentCategory = 0;  // 0: none
    std::string AddEditDel;           // "A", "E", "D"

    // Whether the category may be saved; says why not in a box. Adding refuses a name that stands anywhere in the tree.
    bool Validate();
    // Inserts ("A") or updates ("E"); nothing guards against a cycle. The result is always false.
    void Save();
    // With the flag "D": removes the row of `Catid`; its children keep their parent key.
    void Delete();
    // The name of category `Catid`, also into `Catname`, with `ParentCategory`. Without a row the name is empty and
    // `ParentCategory` stays.
    std::string GetCatg();
    // The names of at most three parents of a category, nearest first, as " (Hardware <- Supplies)"; empty without one.
    std::string GetParentName(std::int16_t cid);
    // Pages of the view Categories: key, name, number of items, parent key. Page -1 gives every row.
    ListRows GetAllCategories(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // The same for names that begin with `Catname`.
    ListRows GetSearchCategories(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // Every category by name: key, name, parent key.
    ListRows GetComboCategories();
    // Number of items in category `Catid`.
    std::int32_t GetTotalItems();
};

}  // namespace torvane
