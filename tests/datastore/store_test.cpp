#include "datastore/store.h"

#include <sqlite3.h>

#include <map>
#include <set>
#include <vector>

#include "sample.h"

namespace torvane {
namespace {

TEST_F(StoreTest, WhatIsNoDatabaseIsRefused) {
    const std::string whole = bytes(file);
    const struct {
        std::string content;
        int number;
    } files[] = {{"", SQLITE_NOTADB},
                 {"x", SQLITE_NOTADB},
                 {std::string(5000, 'x'), SQLITE_NOTADB},
                 {whole.substr(0, 3000), SQLITE_CORRUPT},
                 {"missing", SQLITE_CANTOPEN}};
    for (const auto& each : files) {
        write(file, each.content);
        if (each.number == SQLITE_CANTOPEN) std::filesystem::remove(file);
        const RuntimeFailure failure = failureOf([&] { Connection another(access); });
        EXPECT_EQ(numberOf([&] { rows("select * from Rooms"); }), each.number) << "by the connection that stands";
        EXPECT_EQ(std::to_string(failure.number()) + failure.text() + failure.refused(),
                  std::to_string(each.number) + sqlite3_errstr(each.number) + file);
    }
    EXPECT_FALSE(std::filesystem::exists(file));
    write(file, whole);
    EXPECT_EQ(rows("select count(*) from Rooms"), "2;") << "only the next statement fails";
}

TEST_F(StoreTest, RefusedStatementsChangeNothing) {
    const std::string before = bytes(file);
    const std::string secret = folder.path() + "/other";
    const struct {
        std::string statement;
        int number;
        const char* why = "";  // where it is ours
    } statements[] = {
        {"insert into Rooms (Name) values ('O'Brien')", SQLITE_ERROR},
        {"insert into Rooms (Name) values ('a'); delete from Rooms", SQLITE_ERROR},
        {"delete from Rooms where Id = ?", SQLITE_ERROR, "a parameter in the statement"},
        {"delete from Rooms where Id = $x('); delete from Rooms where Name <> '')", SQLITE_ERROR},
        {" ; ", SQLITE_ERROR, "an empty statement"},
        {"update Rooms set Name = \"Kitchen2\"", SQLITE_ERROR},
        {"insert into Rooms (Id, Name) values (7, 'new'), (1, 'twice')", SQLITE_CONSTRAINT},
        {"attach '" + secret + "' as other", SQLITE_AUTH},
        {"pragma user_version = 3", SQLITE_AUTH},
        {"vacuum into '" + secret + "'", SQLITE_AUTH},
        {"drop table Rooms", SQLITE_AUTH},
        {"create temp table T (a)", SQLITE_AUTH},
        {"begin", SQLITE_AUTH},
        {"savepoint a", SQLITE_AUTH},
        {"delete from sqlite_sequence", SQLITE_AUTH},
        {"update Rooms set Name = load_extension('x')", SQLITE_ERROR},
        {"update Rooms set Name = randomblob(9)", SQLITE_ERROR},
        {"with recursive a(n) as (select 1 union all select n+1 from a) insert into Rooms (Id) select n from a",
         SQLITE_AUTH},
        {"select * from Rooms", static_cast<int>(Failure::InvalidCall)},
    };
    for (const auto& row : statements) {
        const RuntimeFailure failure = failureOf([&] { connection.execute(row.statement); });
        EXPECT_EQ(failure.number(), row.number) << row.statement << ": " << failure.text();
        EXPECT_EQ(failure.refused(), row.statement);
        EXPECT_NE(failure.text().find(row.why), std::string::npos) << failure.text();
    }
    for (const char* query : {"select * from pragma_database_list", "select cdbl('x')", "select cdbl('1e400')",
                              "select lower(Name) from Rooms"})
        EXPECT_EQ(numberOf([&] { rows(query); }), SQLITE_ERROR) << query;
    for (const char* query : {"delete * from Rooms", "delete from Rooms returning Id"})
        EXPECT_EQ(numberOf([&] { rows(query); }), static_cast<int>(Failure::InvalidCall)) << query;
    EXPECT_TRUE(bytes(file) == before);
    EXPECT_FALSE(std::filesystem::exists(secret));
}

TEST_F(StoreTest, CellsHaveTheirColumnsKinds) {
    // As a file made elsewhere may have them.
    const std::string unchecked = "pragma ignore_check_constraints = on; update OrderInfo set ";
    folder.execute(unchecked + "OrderDate = 'soon', Total = 12345678.5 where OrderNo = 2");
    const RowArray cells =
        connection.query("select OrderNo, Total, Total*1, OrderDate, SCity, Tax from OrderInfo order by OrderNo");
    EXPECT_EQ(cells(0, 0), Value(std::int64_t{1}));
    EXPECT_EQ(cells("TOTAL", 0), Value(230.0F));
    EXPECT_EQ(cells(2, 0), Value(230.0));
    EXPECT_EQ(cells("orderdate", 0), Value(Date{2003, 7, 4}));
    EXPECT_EQ(cells("SCity", 0), Value(Null{}));
    EXPECT_EQ(cells("Total", 1), Value(12345678.0F));
    EXPECT_EQ(cells("OrderDate", 1), Value(std::string("soon")));
    EXPECT_EQ(numberOf([&] { cells("Totals", 0); }), static_cast<int>(Failure::InvalidCall));
    for (const auto& [column, row] : {std::pair{1, 2}, {1, -1}, {6, 0}, {-1, 0}})
        EXPECT_EQ(numberOf([&, c = column, r = row] { cells(c, r); }), static_cast<int>(Failure::Subscript));
    folder.execute(unchecked + "Total = 1e39 where OrderNo = 2");
    EXPECT_EQ(numberOf([&] { rows("select Total from OrderInfo"); }), static_cast<int>(Failure::Overflow));
    const RowArray shared = connection.query(
        "SELECT Orderinfo.OrderNo, OrderItem.*, 1 as item FROM orderinfo, OrderItem where orderinfo.OrderNo = OrderItem.OrderNo");
    for (const auto& [name, number] :
         {std::pair{"orderinfo.OrderNo", 0}, {"OrderItem.OrderNo", 1}, {"ItemId", 2}, {"OrderNo", -1}})
        EXPECT_EQ(shared.column(name), number) << name;
}

TEST_F(StoreTest, ColumnsRefuseWhatTheirTypeCantHold) {
    const std::string before = bytes(file);
    const std::map<std::string, std::vector<std::string>> refused{
        {"integer", {"'abc'", "x'31'", "1.5", "2147483648", "-2147483649"}},
        {"real", {"'abc'", "x'31'", "3.4028235677973366e+38", "-3.4028235677973366e+38", "9e999"}},
        {"double", {"'abc'", "x'31'", "9e999", "-9e999"}},
        {"date", {"5", "x'31'", "'soon'", "'7/4/2003'", "'2003-02-30'", "'0099-12-31'"}},
        {"text", {"x'31'"}},
    };
    const std::set<std::string> int32{"OrderInfo.OrderNo", "OrderInfo.CustId",  "OrderInfo.RepId",
                                      "OrderInfo.ShipId",  "OrderItem.OrderNo", "Representatives.RepId",
                                      "Ship.ShipId"};
    const auto columns = folder.rows(
        "select m.name || '.' || p.name, lower(p.type) from sqlite_schema m, pragma_table_info(m.name) p "
        "where m.type = 'table' and m.name not like 'sqlite%'");
    EXPECT_GT(columns.size(), 60U);
    for (const std::string& row : columns) {
        const std::string column = row.substr(0, row.find('|')), type = row.substr(row.find('|') + 1);
        const auto dot = column.find('.');
        const std::string insert =
            "insert into " + column.substr(0, dot) + " (" + column.substr(dot + 1) + ") values (";
        std::vector<std::string> values = refused.at(type);
        if (type == "integer" && !int32.contains(column)) values.insert(values.end(), {"-32769", "32768"});
        std::string said;
        for (const std::string& value : values)
            said = failureOf([&] { connection.execute(insert + value + ")"); }).text();
        const std::string takes = "BState takes whole numbers from -32768 to 32767";
        EXPECT_EQ(said == "CHECK constraint failed: " + takes, column == "Customer.BState") << said;
    }
    EXPECT_TRUE(bytes(file) == before);
    connection.execute(
        "update Item set Material = 3.4028235677973362E+38, Labor = '1.5', Qty = null, ItemId = 32767 where ItemId = 1");
    connection.execute(
        "update OrderInfo set OrderNo = 2147483647, CustId = -2147483648, SState = -32768, OrderDate = #12/31/9999# where OrderNo = 1");
    EXPECT_EQ(rows("select Material, Labor, Qty from Item where ItemId = 32767"), "3.402823E+38|1.5|~;");
    EXPECT_EQ(rows("select CustId, SState, OrderDate from OrderInfo where OrderNo = 2147483647"),
              "-2147483648|-32768|12/31/9999;");
}

TEST_F(StoreTest, KeysAreNeverGivenTwice) {
    for (const auto& [table, key] :
         {std::pair{"Item", "ItemId"}, {"Category", "CatId"}, {"Customer", "CustId"}, {"Units", "Id"}}) {
        const std::string name(table), newest = "select max(" + std::string(key) + ") from " + name;
        connection.execute("insert into " + name + " default values");
        const int last = std::stoi(folder.cell(newest));
        connection.execute("Delete * from " + name);
        connection.execute("insert into " + name + " default values");
        EXPECT_EQ(folder.cell(newest), std::to_string(last + 1)) << table;
    }
}

TEST_F(StoreTest, LettersOfAllScriptsHaveNoCase) {
    folder.execute(
        "insert into Rooms (Id, Name) values (3, 'École'), (4, 'Muñoz'), (5, 'Ärger'), (6, 'Zorn'), (7, 'ÉTAGE'), (8, 'm²')");
    const struct {
        const char* statement;
        const char* result;
    } reads[] = {
        {"select Id from Rooms where Name like 'école%' or Name like '%MUÑ%' or Name = 'ÄRGER'", "3;4;5;"},
        {"select Id from Rooms where Name = 'arger' or Name like 'arger' or Name = 'm2'", "none"},
        {"select Name from Rooms order by Name", "Ärger;Attic;École;ÉTAGE;Kitchen;m²;Muñoz;Zorn;"},
        {"select 'É' like '_', 'É' like '__', '' like '%', '' like '_', 'aéaéb' like '%É_', 'abc' like 'a%c%'",
         "1|0|1|0|1|1;"},
        {"select 'Straße' like 'STRASSE', 'СЛОН' like '%лон', 12 like '1_', null like '%', 'a' like null",
         "1|1|1|~|~;"},
        {"Select val(' 1 2x'), Val(null), val(3), isnumeric('1e400'), isnumeric(null), isnumeric(5), cdbl(' 5 ')",
         "12|~|3|0|0|1|5;"},
    };
    for (const auto& row : reads) EXPECT_EQ(rows(row.statement), row.result) << row.statement;
    EXPECT_EQ(folder.cell("pragma integrity_check"), "ok") << "the file is everybody's";
}

}  // namespace
}  // namespace torvane
