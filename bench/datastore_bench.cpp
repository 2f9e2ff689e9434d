#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches.h"
#include "datastore/store.h"
#include "harness.h"
#include "values/numbers.h"

// The lists at the largest size that their 16-bit count allows, a save, and reads of single rows, each against the same
// statements through SQLite alone.

namespace torvane::bench {

namespace {

constexpr const char* tables = R"sql(
create table OrderInfo (OrderNo integer primary key, CustId integer, OrderDate date, Amount real, Tax real, Total real,
    UPSTracking text collate nocase, Overhead real);
create table OrderItem (OrderNo integer, ItemId integer, Qty real, Material real, RoomId integer, UnitId integer,
    Extension real, Labor real, Others real);
create table Item (ItemId integer primary key, Itemcode text collate nocase, Itemname text collate nocase,
    CategoryId integer, UnitId integer, Material real, Labor real, SubLabor real, Equipment real, Qty real,
    TU text collate nocase);
create table Category (CatId integer primary key, CatName text collate nocase, ParentCategory integer);
create table Units (Id integer primary key, Name text collate nocase);
create table Customer (CustId integer primary key, CustName text collate nocase, BCity text collate nocase,
    BPhone text collate nocase, BEmail text collate nocase, BCCNo text collate nocase);
create index ItemByCategory on Item (CategoryId);
create index ItemByName on Item (Itemname);
create index ItemByMaterial on Item (Material);
create index OrderItemByOrder on OrderItem (OrderNo);
create index CustomerByName on Customer (CustName);
create table Number (n integer primary key);
with recursive a(n) as (select 1 union all select n+1 from a where n < 32767) insert into Number select n from a;
insert into Category select n, 'Category ' || (n * 7919 % 400), null from Number where n <= 400;
insert into Units select n, 'Unit ' || n from Number where n <= 30;
insert into Item select n, n * 7919 % 32768, 'Item ' || (n * 104729 % 32768), n % 400 + 1, n % 30 + 1,
    (n * 31 % 10000) / 100.0, 1, 2, 3, 1, '' from Number;
insert into Customer select n, 'Customer ' || (n * 7919 % 32768), 'City ' || n % 500, '555-' || n, 'c' || n || '@b.c',
    null from Number;
insert into OrderInfo select n, n * 7919 % 32768 + 1, date('2003-01-01', (n % 3650) || ' days'), n, 5, n * 1.05, '', 10
    from Number;
drop table Number;
)sql";

struct ListCase {
    const char* name;
    std::string statement;
    std::string FldName;
};

const std::vector<ListCase>& lists() {
    static const std::string items =
        "SELECT Item.ItemID,Item.ItemName,Category.CatName,item.Material,Item.Qty,Item.Itemcode,Units.Name FROM "
        "Item,Category,Units  where  Item.CategoryID = Category.CatId and Item.UnitId=Units.Id";
    static const std::string orders =
        "SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
        "Orderinfo.upstracking,orderinfo.total,orderinfo.overhead,orderinfo.tax FROM orderinfo left join customer  on "
        "orderinfo.custid = customer.custid where  orderno like '%%'";
    static const std::vector<ListCase> cases{
        {"items by name", items, "ItemName"},
        {"items by category", items, "CatName"},
        {"items by code", items, " Val(itemcode),itemcode"},
        {"customers", "Select CustId,CustName,BCity,BPhone,BEmail,BCCNo  from Customer", "CustName"},
        {"estimates by number", orders, "orderno"},
        {"estimates by customer", orders, "CustName"},
    };
    return cases;
}

class Raw {
public:
    explicit Raw(const std::string& file) {
        if (sqlite3_open(file.c_str(), &handle_) != SQLITE_OK) throw std::runtime_error("raw open");
        const auto val = [](sqlite3_context* context, int, sqlite3_value** arguments) {
            sqlite3_result_double(context, sqlite3_value_double(arguments[0]));
        };
        sqlite3_create_function_v2(handle_, "Val", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, val, nullptr,
                                   nullptr, nullptr);
    }
    Raw(const Raw&) = delete;
    Raw& operator=(const Raw&) = delete;
    ~Raw() { sqlite3_close(handle_); }

    // Compiles and runs the text; the number of cells that are not Null.
    long run(const std::string& sql) {
        long cells = 0;
        const auto count = [](void* sum, int columns, char** texts, char**) {
            for (int i = 0; i < columns; ++i) *static_cast<long*>(sum) += texts[i] == nullptr ? 0 : 1;
            return 0;
        };
        if (sqlite3_exec(handle_, sql.c_str(), count, &cells, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(handle_));
        }
        return cells;
    }

private:
    sqlite3* handle_ = nullptr;
};

void pages(Connection& connection, Raw& raw) {
    for (const ListCase& list : lists()) {
        Recordset recordset;
        long PageCount = 0;
        std::int16_t RecordCount = 0;
        const auto read = [&](long page) {
            recordset.readPage(list.statement, list.FldName, "A", connection, page, 15, PageCount, RecordCount);
        };
        read(1);
        const struct {
            const char* name;
            long page;
        } places[] = {{"page 1", 1}, {"middle", PageCount / 2}, {"last", PageCount}};
        for (const auto& place : places) {
            const std::string page = list.statement + " order by " + list.FldName + ", 1 limit 15 offset " +
                                     std::to_string((place.page - 1) * 15);
            const std::string count = "select count(*) from (" + list.statement + ")";
            compare((std::string(list.name) + ", " + place.name).c_str(), 1.3, 15, [&] { read(place.page); },
                    [&] {
                        raw.run(page);
                        raw.run(count);
                    });
        }
    }
}

std::vector<std::string> saveOf(int lines) {
    std::vector<std::string> statements{"delete from OrderItem where OrderNo = 7"};
    for (int i = 0; i < lines; ++i) {
        statements.push_back(
            "Insert into OrderItem (OrderNo,ItemId,Qty,Material,RoomId,UnitId,Extension,Labor,Others) values (7," +
            std::to_string(i + 1) + ",2.5," + generalText(1.25F * static_cast<float>(i)) + ",1,2,3.75,4.5,0.125)");
    }
    return statements;
}

}  // namespace

void datastore(const std::string& folder) {
    const std::string ours = folder + "/ours";
    std::filesystem::create_directory(ours);
    const std::string file = ours + "/Larkfen.mdb";
    const std::string rawFile = folder + "/raw.db";
    Raw(file).run(tables);
    std::filesystem::copy_file(file, rawFile);

    Store store;
    Connection connection{store};
    connection.open(connectionText(ours));
    Raw raw(rawFile);
    pages(connection, raw);

    const auto save = saveOf(1000);
    compare(
        "save of 1,000 lines", 2, 15,
        [&] {
            grouped(connection, [&] {
                for (const auto& statement : save) connection.execute(statement);
            });
        },
        [&] {
            raw.run("begin immediate");
            for (const auto& statement : save) raw.run(statement);
            raw.run("commit");
        });

    const auto single = [](auto read) {
        return [read] {
            for (int i = 1; i <= 1000; ++i) read("Select * from Item where ItemId= " + std::to_string(i));
        };
    };
    compare("1,000 reads of one item", 2, 15, single([&](const std::string& statement) {
                Recordset recordset;
                recordset.open(statement, connection);
            }),
            single([&](const std::string& statement) { raw.run(statement); }));
    compare(
        "1,000 reads of the same item", 2, 15,
        [&] {
            for (int i = 0; i < 1000; ++i) {
                Recordset recordset;
                recordset.open("Select * from Item where ItemId= 7", connection);
            }
        },
        [&] {
            for (int i = 0; i < 1000; ++i) raw.run("Select * from Item where ItemId= 7");
        });
}

}  // namespace torvane::bench
