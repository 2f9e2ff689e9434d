#include "datastore/schema.h"

#include <vector>

#include "datastore/statement.h"

namespace torvane {

namespace {

// How a column is declared, and what it takes; Null is always taken. The declared types are read back: real is a
// float32 column, double a computed number, date an ISO text. In a condition @ stands for the column.
struct Type {
    std::string_view declared;
    std::string_view takes;  // what a refusal tells
    std::string_view condition;
};

constexpr Type int16{"integer", "whole numbers from -32768 to 32767",
                     "@ between -32768 and 32767 and @ = cast(@ as integer)"};
constexpr Type int32{"integer", "whole numbers from -2147483648 to 2147483647",
                     "@ between -2147483648 and 2147483647 and @ = cast(@ as integer)"};
// Up to the last double whose nearest single is finite.
constexpr Type float32{"real", "numbers up to 3.402823E+38",
                       "@ between -3.4028235677973362e+38 and 3.4028235677973362e+38"};
constexpr Type number{"double", "numbers", "@ > -9e999 and @ < 9e999"};
// Told to add no day, SQLite looks whether the month has it.
constexpr Type date{"date", "dates as yyyy-mm-dd",
                    "@ between '0100-01-01' and '9999-12-31' and @ is date(@, '+0 days')"};
constexpr Type text{"text collate nocase", "texts", "typeof(@) <> 'blob'"};

// Keys that the program gives, and those that the engine numbers: never one that was there before, for a deleted row
// stays named by others.
constexpr Type key16{"integer primary key", int16.takes, int16.condition};
constexpr Type key32{"integer primary key", int32.takes, int32.condition};
constexpr Type numbered16{"integer primary key autoincrement", int16.takes, int16.condition};

struct Column {
    std::string_view name;
    const Type& type;
};

struct Table {
    std::string_view name;
    std::vector<Column> columns;
};

// Nothing is unique or not null besides the keys, and no table refers to another: an item, a customer or a category may
// be deleted while rows still name it.
const std::vector<Table>& tables() {
    static const std::vector<Table> all{
        {"OrderInfo",
         {{"OrderNo", key32}, {"CustId", int32},  {"RepId", int32},      {"OrderDate", date}, {"SStreet1", text},
          {"SStreet2", text}, {"SCity", text},    {"SState", int16},     {"SZip", text},      {"SCountry", text},
          {"SPhone", text},   {"SMobile", text},  {"SEmail", text},      {"ShipId", int32},   {"Amount", float32},
          {"Tax", float32},   {"Total", float32}, {"UPSTracking", text}, {"Notes", text},     {"Overhead", float32}}},
        {"OrderItem",
         {{"OrderNo", int32},
          {"ItemId", int16},
          {"Qty", float32},
          {"Material", float32},
          {"RoomId", int16},
          {"UnitId", int16},
          {"Extension", float32},
          {"Labor", float32},
          {"Others", float32}}},
        {"Item",
         {{"ItemId", numbered16},
          {"Itemcode", text},
          {"Itemname", text},
          {"CategoryId", int16},
          {"UnitId", int16},
          {"Material", float32},
          {"Labor", float32},
          {"SubLabor", float32},
          {"Equipment", float32},
          {"Qty", float32},
          {"TU", text}}},
        {"Category", {{"CatId", numbered16}, {"CatName", text}, {"ParentCategory", int16}}},
        {"Customer",
         {{"CustId", numbered16},
          {"CustName", text},
          {"BStreet1", text},
          {"BStreet2", text},
          {"BCity", text},
          {"BState", int16},
          {"BZip", text},
          {"BCountry", text},
          {"BPhone", text},
          {"BFax", text},
          {"BMobile", text},
          {"BEmail", text},
          {"BUrl", text},
          {"BCCNo", text}}},
        {"Units", {{"Id", numbered16}, {"Name", text}}},
        {"Rooms", {{"Id", numbered16}, {"Name", text}}},
        {"States", {{"StateId", key16}, {"StateName", text}}},
        {"Tax", {{"StateId", int16}, {"TaxRate", number}}},
        {"Representatives", {{"RepId", key32}, {"RepName", text}}},
        {"Ship", {{"ShipId", key32}, {"ShippingMedia", text}}},
        {"BlankNotes", {{"Notes", text}}},
    };
    return all;
}

// Counted by the index on Item(CategoryId); a join with a group would sort all items each time. No index is by a text:
// the program orders texts in a way of its own (see functions.h).
constexpr std::string_view viewAndIndexes = R"sql(
create view Categories as
    select CatId, CatName,
           (select count(*) from Item where Item.CategoryId = Category.CatId) as totitm,
           ParentCategory
    from Category;

create index ItemByCategory on Item (CategoryId);
create index ItemByMaterial on Item (Material);
create index OrderItemByOrder on OrderItem (OrderNo);
create index OrderInfoByDate on OrderInfo (OrderDate);
create index OrderInfoByTotal on OrderInfo (Total);
)sql";

std::string columnText(const Column& column) {
    std::string condition;
    for (const char sign : column.type.condition)
        sign == '@' ? condition.append(column.name) : condition.append(1, sign);
    // The constraint's name is what SQLite tells when it refuses a value.
    return joined(column.name, " ", column.type.declared, "\n        constraint \"", column.name, " takes ",
                  column.type.takes, "\" check (", condition, ")");
}

}  // namespace

std::string schemaText() {
    std::string sql;
    for (const Table& table : tables()) {
        sql += joined("create table ", table.name, " (");
        for (const Column& column : table.columns)
            sql += joined(&column == &table.columns.front() ? "\n    " : ",\n    ", columnText(column));
        sql.append("\n);\n");
    }
    return sql.append(viewAndIndexes);
}

}  // namespace torvane
