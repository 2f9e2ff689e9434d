#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "datastore/data_class.h"

namespace torvane {

// The two tables of bare names, Rooms (takeoff names) and Units: one row in public fields, its storage, and the lists.
class clsMaster : public DataClass {
public:
    explicit clsMaster(const DataAccess& access) : DataClass(access) {}

    std::string Mastertable;  // "Rooms" or "Units"; goes into every statement
    std::int16_t Id = 0;
    std::string Name;
    std::string AddEditDel;  // "A", "E", "D"

    // Whether the name may be saved; says why not in a box. Adding refuses a name that is there already.
    bool Validate();
    // Inserts ("A") or updates ("E") and says so in a box; any other flag does nothing. The result is always false.
    void Save();
    // With the flag "D": removes the row of `Id`, also when items or estimates use it.
    void Delete();
    // The name of the row `Id`, also into `Name`; empty without such a row, and `Name` stays then.
    std::string GetCatg();
    // Loads the row at a position in name order, from 1: beyond the last the last, 0 and none the first. Gives the
    // position; nothing on an empty table, with no field changed.
    std::optional<long> GetRecord(std::optional<long> RecNo);
    // Every row by name: key, name.
    ListRows GetComboCategories();
    // Loads the first row, in name order, whose name has `text` anywhere, and gives its position in the whole table.
    // Nothing, after a box, when there is none.
    std::optional<long> GetCategory(std::string_view text);
    ListRows GetAllCategories(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // Rows whose name has `Name` anywhere; a box when there are none.
    ListRows GetSearchCategories(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
};

}  // namespace torvane
