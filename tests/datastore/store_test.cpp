#include "datastore/store.h"

#include <sqlite3.h>

#include <map>
#include <vector>

#include "sample.h"

namespace torvane {
namespace {

TEST_F(StoreTest, RefusedStatementsChangeNothing) {
    constexpr int invalidCall = static_cast<int>(Failure::InvalidCall);
    const std::string before = bytes(file);
    const std::string secret = folder.path() + "/other";
    const struct {
        std::string statement;
        int number;
        const char* why = "";  // where it is ours
    } statements[] = {
        {"insert into Rooms (Name) values ('O'Brien')", SQLITE_ERROR},
        {"delete from Rooms where Id = ?", SQLITE_ERROR, "a parameter in the statement"},
        {"delete from Rooms where Id = $x('); delete from Rooms where Name <> '')", SQLITE_ERROR},
        {" ; ", SQLITE_ERROR, "an empty statement"},
        {"delete from Rooms; delete from Units", SQLITE_ERROR, "text behind the statement"},
        {"delete from Rooms -- all", SQLITE_ERROR, "a remark in the statement"},
        {"delete from Rooms /* all */", SQLITE_ERROR, "a remark in the statement"},
        {"delete from Rooms where Name = 'a'-- '", SQLITE_ERROR, "a remark in the statement"},
        {"delete from OrderInfo where OrderDate = #13/13/2003#", SQLITE_ERROR, "not a date"},
        {"delete from OrderInfo where OrderDate = #7/4/2003", SQLITE_ERROR, "a date has no end"},
        {std::string("delete from Rooms\0 where Id = 7", 31), SQLITE_ERROR, "a statement holds no zero byte"},
        {"update Rooms set Name = \"Kitchen2\"", SQLITE_ERROR},
        {"delete from Rooms where Name <> 'open", SQLITE_ERROR},
        {"insert into Rooms (Id, Name) values (7, 'new'), (1, 'twice')", SQLITE_CONSTRAINT},
        {"attach '" + secret + "' as other", SQLITE_AUTH},
        {"pragma user_version = 3", SQLITE_AUTH},
        {"drop table Rooms", SQLITE_AUTH},
        {"delete from sqlite_sequence", SQLITE_AUTH},
        {"update Rooms set Name = load_extension('x')", SQLITE_ERROR},
        {"update Rooms set Name = randomblob(9)", SQLITE_ERROR},
        {"select * from Rooms", invalidCall},
    };
    for (const auto& row : statements) {
        const RuntimeFailure failure = failureOf([&] { connection.execute(row.statement); });
        EXPECT_EQ(failure.number(), row.number) << row.statement << ": " << failure.text();
        EXPECT_EQ(failure.refused(), row.statement);
        EXPECT_NE(failure.text().find(row.why), std::string::npos) << failure.text();
    }
    for (const auto& [query, number] : {std::pair{"select * from pragma_database_list", SQLITE_ERROR},
                                        {"select cdbl('x')", SQLITE_ERROR},
                                        {"select lower(Name) from Rooms", SQLITE_ERROR},
                                        {"delete * from Rooms", invalidCall},
                                        {"delete from Rooms returning Id", invalidCall}})
        EXPECT_EQ(numberOf([&, refused = query] { rows(refused); }), number) << query;
    EXPECT_TRUE(bytes(file) == before);
    EXPECT_FALSE(std::filesystem::exists(secret));
}

TEST_F(StoreTest, CellsHaveTheirColumnsKinds) {
    // As a file made elsewhere may have them.
    folder.execute(
        "pragma ignore_check_constraints = on;"
        "update OrderInfo set OrderDate = 'soon', Total = 12345678.5 where OrderNo = 2");
    const RowArray cells =
        connection.query("select OrderNo, Total, Total*1, OrderDate, SCity from OrderInfo order by OrderNo");
    EXPECT_EQ(cells(0, 0), Value(std::int64_t{1}));
    EXPECT_EQ(cells("TOTAL", 0), Value(230.0F));
    EXPECT_EQ(cells(2, 0), Value(230.0));
    EXPECT_EQ(cells("orderdate", 0), Value(Date{2003, 7, 4}));
    EXPECT_EQ(cells("SCity", 0), Value(Null{}));
    EXPECT_EQ(cells("Total", 1), Value(12345678.0F));
    EXPECT_EQ(cells("OrderDate", 1), Value(std::string("soon")));
    EXPECT_EQ(numberOf([&] { cells("Totals", 0); }), static_cast<int>(Failure::InvalidCall));
    for (const auto& [column, row] : {std::pair{1, 2}, {1, -1}, {5, 0}, {-1, 0}})
        EXPECT_EQ(numberOf([&, c = column, r = row] { cells(c, r); }), static_cast<int>(Failure::Subscript));
    folder.execute("insert into OrderItem (OrderNo, ItemId) values (1, 1)");
    const RowArray shared = connection.query(
        "SELECT Orderinfo.OrderNo, OrderItem.*, 1 as item FROM orderinfo, OrderItem "
        "where orderinfo.OrderNo = OrderItem.OrderNo");
    for (const auto& [name, number] :
         {std::pair{"orderinfo.OrderNo", 0}, {"OrderItem.OrderNo", 1}, {"ItemId", 2}, {"OrderNo", -1}})
        EXPECT_EQ(shared.column(name), number) << name;
}

TEST_F(StoreTest, ColumnsRefuseWhatTheirTypeCantHold) {
    const std::string before = bytes(file);
    const std::map<std::string, std::vector<std::string>> refused{
        {"integer", {"'abc'", "x'31'", "1.5", "2147483648", "-2147483649"}},
        {"real", {"'abc'", "x'31'", "3.4028235677973366e+38", "-3.4028235677973366e+38"}},
        {"double", {"'abc'", "x'31'", "9e999", "-9e999"}},
        {"date", {"5", "x'31'", "'soon'", "'7/4/2003'", "'2003-02-30'", "'0099-12-31'"}},
        {"text", {"x'31'"}},
    };
    for (const std::string& row : folder.rows(
             "select lower(p.type), 'insert into ' || m.name || ' (' || p.name || ') values (' "
             "from sqlite_schema m, pragma_table_info(m.name) p where m.type = 'table' and m.name not like 'sqlite%'"))
        for (const std::string& value : refused.at(row.substr(0, row.find('|'))))
            failureOf([&] { connection.execute(row.substr(row.find('|') + 1) + value + ")"); });
    for (const char* beyond : {"(CustId) values (-32769)", "(BState) values (32768)"})
        EXPECT_NE(failureOf([&] { connection.execute(std::string("insert into Customer ") + beyond); })
                      .text()
                      .find(" takes whole numbers from -32768 to 32767"),
                  std::string::npos);
    EXPECT_TRUE(bytes(file) == before);
    connection.execute(
        "update Item set Material = 3.4028235677973362E+38, Labor = '1.5', Qty = null, ItemId = 32767 "
        "where ItemId = 1");
    connection.execute(
        "update OrderInfo set OrderNo = 2147483647, CustId = -2147483648, SState = -32768, OrderDate = #12/31/9999# "
        "where OrderNo = 1");
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
        connection.execute(" DELETE\t*from " + name);
        connection.execute("insert into " + name + " default values");
        EXPECT_EQ(folder.cell(newest), std::to_string(last + 1)) << table;
    }
}

TEST_F(StoreTest, WhatStatementsFind) {
    folder.execute(
        "insert into Rooms (Id, Name) values (3, 'École'), (4, 'Muñoz'), (5, 'Ärger'), (6, 'Zorn'), (7, 'ÉTAGE')");
    const std::pair<const char*, const char*> reads[] = {
        {"select OrderNo from OrderInfo where OrderDate>#13.5.03# and OrderDate <= # 4 July 2003 #", "1;"},
        {"select Id as \"#;\", Id as [x--], Id as `;`, 'it''s -- ; /* # */', 3-1/2 from Rooms where Id = 1 ; \r\n",
         "1|1|1|it's -- ; /* # */|3;"},
        {"select Id from Rooms where Name like 'école%' or Name like '%MUÑ%' or Name = 'ÄRGER'", "3;4;5;"},
        {"select Id from Rooms where Name = 'arger' or Name like 'arger'", "none"},
        {"select Name from Rooms order by Name", "Ärger;Attic;École;ÉTAGE;Kitchen;Muñoz;Zorn;"},
        {"select 'É' like '_', 'É' like '__', '' like '%', 'aéaéb' like '%É_', 'abc' like 'a%c%'", "1|0|1|1|1;"},
        {"select 'Straße' like 'STRASSE', 12 like '1_', null like '%', 'a' like null", "1|1|~|~;"},
        {"Select val(' 1 2x'), Val(null), val(3), isnumeric('1e400'), isnumeric(null), isnumeric(5), cdbl(' 5 ')",
         "12|~|3|0|0|1|5;"},
    };
    for (const auto& [statement, result] : reads) EXPECT_EQ(rows(statement), result) << statement;
    EXPECT_EQ(folder.cell("pragma integrity_check"), "ok") << "the file is everybody's";
}

}  // namespace
}  // namespace torvane
