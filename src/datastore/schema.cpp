#include "datastore/schema.h"

namespace torvane {

namespace {

// The declared types are read back: real is a float32 column, double a computed number, date an ISO text.
// Nothing is declared unique or not null besides the keys, and no table refers to another: an item, a customer or a
// category may be deleted while rows still name it.
constexpr std::string_view schema = R"sql(
create table OrderInfo (
    OrderNo integer primary key,
    CustId integer,
    RepId integer,
    OrderDate date,
    SStreet1 text collate nocase,
    SStreet2 text collate nocase,
    SCity text collate nocase,
    SState integer,
    SZip text collate nocase,
    SCountry text collate nocase,
    SPhone text collate nocase,
    SMobile text collate nocase,
    SEmail text collate nocase,
    ShipId integer,
    Amount real,
    Tax real,
    Total real,
    UPSTracking text collate nocase,
    Notes text collate nocase,
    Overhead real
);
create table OrderItem (
    OrderNo integer,
    ItemId integer,
    Qty real,
    Material real,
    RoomId integer,
    UnitId integer,
    Extension real,
    Labor real,
    Others real
);
create table Item (
    ItemId integer primary key,
    Itemcode text collate nocase,
    Itemname text collate nocase,
    CategoryId integer,
    UnitId integer,
    Material real,
    Labor real,
    SubLabor real,
    Equipment real,
    Qty real,
    TU text collate nocase
);
create table Category (
    CatId integer primary key,
    CatName text collate nocase,
    ParentCategory integer
);
create table Customer (
    CustId integer primary key,
    CustName text collate nocase,
    BStreet1 text collate nocase,
    BStreet2 text collate nocase,
    BCity text collate nocase,
    BState integer,
    BZip text collate nocase,
    BCountry text collate nocase,
    BPhone text collate nocase,
    BFax text collate nocase,
    BMobile text collate nocase,
    BEmail text collate nocase,
    BUrl text collate nocase,
    BCCNo text collate nocase
);
create table Units (
    Id integer primary key,
    Name text collate nocase
);
create table Rooms (
    Id integer primary key,
    Name text collate nocase
);
create table States (
    StateId integer primary key,
    StateName text collate nocase
);
create table Tax (
    StateId integer,
    TaxRate double
);
create table Representatives (
    RepId integer primary key,
    RepName text collate nocase
);
create table Ship (
    ShipId integer primary key,
    ShippingMedia text collate nocase
);
create table BlankNotes (
    Notes text collate nocase
);

-- Counted by the index on Item(CategoryId); a join with a group would sort all items each time.
create view Categories as
    select CatId, CatName,
           (select count(*) from Item where Item.CategoryId = Category.CatId) as totitm,
           ParentCategory
    from Category;

create index ItemByCategory on Item (CategoryId);
create index ItemByName on Item (Itemname);
create index ItemByMaterial on Item (Material);
create index OrderItemByOrder on OrderItem (OrderNo);
create index OrderInfoByDate on OrderInfo (OrderDate);
create index OrderInfoByTotal on OrderInfo (Total);
create index CustomerByName on Customer (CustName);
create index CustomerByCity on Customer (BCity);
create index CustomerByPhone on Customer (BPhone);
create index CustomerByEmail on Customer (BEmail);
)sql";

}  // namespace

std::string_view schemaText() {
    return schema;
}

}  // namespace torvane
