// What statements do to the database, on one of its own. What the engine itself reads and writes goes past the store,
// by `folder`.

#include <sqlite3.h>

#include "datastore/data_class.h"
#include "datastore/store.h"
#include "support/files.h"
#include "support/record_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class StoreTest : public RecordTest {
protected:
    StoreTest() {
        folder.execute(R"sql(
delete from Units; delete from Rooms; delete from sqlite_sequence;
insert into Rooms values (1, 'Kitchen'), (2, 'Attic');
insert into OrderInfo (OrderNo, CustId, OrderDate, Total) values (1, 1, '2003-07-04', 230), (2, 9, '2003-08-01', 1);
)sql");
    }
    // The cells of a query, "~" for Null, "|" between cells, ";" behind rows.
    static std::string dump(const RowArray& rows) {
        std::string text;
        for (int row = 0; row < rows.rows(); ++row)
            for (int column = 0; column < rows.columns(); ++column)
                text += (isNull(rows(column, row)) ? "~" : textOf(rows(column, row))) +
                        (column + 1 < rows.columns() ? "|" : ";");
        return rows.empty() ? "none" : text;
    }
    std::string rows(std::string_view statement) { return dump(connection.query(statement)); }
    std::string rooms() const { return folder.cell("select count(*) from Rooms"); }
    void addRoom() { connection.execute("insert into Rooms (Name) values ('Hall')"); }

    const std::string file = folder.useEmpty();
    Connection connection{access};
};

// --- Statements ------------------------------------------------------------------------------------------------------

TEST_F(StoreTest, RefusedStatementsChangeNothing) {
    const std::string before = bytes(file);
    const std::string secret = folder.path() + "/other";
    const std::tuple<std::string, int, const char*> statements[] = {
        {"insert into Rooms (Name) values ('O'Brien')", SQLITE_ERROR, "syntax error"},
        {"delete from Rooms where Id = ?", SQLITE_ERROR, "a parameter in the statement"},
        {" ; ", SQLITE_ERROR, "an empty statement"},
        {"delete from Rooms;x", SQLITE_ERROR, "text behind the statement"},
        {"delete from Rooms where Name = 'a'-- '", SQLITE_ERROR, "a remark in the statement"},
        {"delete from Rooms /* all */", SQLITE_ERROR, "a remark in the statement"},
        {"delete from OrderInfo where OrderDate = ##", SQLITE_ERROR, "not a date"},
        {"delete from OrderInfo where OrderDate = #7/4/2003", SQLITE_ERROR, "a date has no end"},
        {std::string("delete from Rooms\0 where Id = 7", 31), SQLITE_ERROR, "a statement holds no zero byte"},
        {"update Rooms set Name = \"Kitchen2\"", SQLITE_ERROR, "no such column"},
        {"delete from Rooms where Name <> 'open", SQLITE_ERROR, "unrecognized token"},
        {"insert into Rooms (Id, Name) values (7, 'new'), (1, 'twice')", SQLITE_CONSTRAINT, "UNIQUE"},
        {"attach '" + secret + "' as other", SQLITE_AUTH, "not authorized"},
        {"drop table Rooms", SQLITE_AUTH, "not authorized"},
        {"delete from sqlite_sequence", SQLITE_AUTH, "not authorized"},
        {"update Rooms set Name = randomblob(9)", SQLITE_ERROR, "not authorized"},
        {"select * from Rooms", 5, ""},
    };
    for (const auto& [statement, number, why] : statements) {
        const RuntimeFailure failure = failureOf([&, &refused = statement] { connection.execute(refused); });
        EXPECT_EQ(failure.number(), number) << statement;
        EXPECT_EQ(failure.refused(), statement);
        EXPECT_NE(failure.text().find(why), std::string::npos) << failure.text();
    }
    for (const auto& [query, number] : {std::pair{"select * from pragma_database_list", SQLITE_ERROR},
                                        {"select cdbl('x')", SQLITE_ERROR},
                                        {"delete * from Rooms", 5},
                                        {"delete from Rooms returning Id", 5}})
        EXPECT_EQ(numberOf([&, refused = query] { rows(refused); }), number) << query;
    EXPECT_TRUE(bytes(file) == before);
    EXPECT_FALSE(fs::exists(secret));
}

TEST_F(StoreTest, CellsHaveTheirColumnsKindsAndNames) {
    // As a file made elsewhere may have them. A float32 has 7 digits, a computed number 15, a date that is written
    // otherwise is a text.
    folder.execute(
        "pragma ignore_check_constraints = on; insert into OrderItem (OrderNo, ItemId) values (1, 1);"
        "update OrderInfo set OrderDate = '4 July 2003', Total = 12345678.5 where OrderNo = 2");
    EXPECT_EQ(rows("select OrderNo, Total, Total*1, OrderDate, SCity from OrderInfo order by OrderNo"),
              "1|230|230|7/4/2003|~;2|1.234568E+07|12345678.5|4 July 2003|~;");
    const RowArray shared = connection.query(
        "SELECT Orderinfo.OrderNo, OrderItem.* FROM orderinfo, OrderItem where orderinfo.OrderNo = OrderItem.OrderNo");
    for (const auto& [name, number] :
         {std::pair{"orderinfo.ORDERNO", 0}, {"OrderItem.OrderNo", 1}, {"ItemId", 2}, {"OrderNo", -1}})
        EXPECT_EQ(shared.column(name), number) << name;
}

TEST_F(StoreTest, ColumnsRefuseWhatTheirTypeCantHold) {
    const std::string before = bytes(file);
    const std::tuple<const char*, std::vector<const char*>, std::string> refused[] = {
        {"Customer (BState", {"'abc'", "x'31'", "1.5", "32768", "-32769"}, "whole numbers from -32768 to 32767"},
        {"OrderInfo (CustId", {"2147483648", "-2147483649"}, "whole numbers from -2147483648 to 2147483647"},
        {"Item (Material", {"'abc'", "3.4028235677973366e+38", "-9e999"}, "numbers up to 3.402823E+38"},
        {"Tax (TaxRate", {"'abc'", "x'31'", "9e999", "-9e999"}, "numbers"},
        {"OrderInfo (OrderDate", {"5", "'soon'", "'7/4/2003'", "'2003-02-30'", "'0099-12-31'"}, "dates as yyyy-mm-dd"},
        {"Rooms (Name", {"x'31'"}, "texts"},
    };
    for (const auto& [column, values, takes] : refused)
        for (const std::string value : values) {
            const std::string insert = std::string("insert into ") + column + ") values (" + value + ")";
            EXPECT_TRUE(failureOf([&] { connection.execute(insert); }).text().ends_with(takes)) << insert;
        }
    EXPECT_TRUE(bytes(file) == before);
    connection.execute(
        "update OrderInfo set OrderNo = 2147483647, CustId = -2147483648, SState = -32768, OrderDate = #12/31/9999#, "
        "Total = 3.4028235677973362E+38, Tax = '1.5', Amount = null where OrderNo = 1");
    EXPECT_EQ(rows("select CustId, SState, OrderDate, Total, Tax, Amount from OrderInfo where OrderNo = 2147483647"),
              "-2147483648|-32768|12/31/9999|3.402823E+38|1.5|~;");
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
        {"select OrderNo from OrderInfo where '' <> '''' and OrderDate>#13.5.03# and OrderDate <= # 4 July 2003 #",
         "1;"},
        {"select Id as \"#;\", Id as [x--], Id as `;`, 'it''s -- ; /* # */', 3-'1'/2 from Rooms where Id = 1 ; \r\n",
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

// --- Write groups ----------------------------------------------------------------------------------------------------

TEST_F(StoreTest, AGroupIsSeenAtOnceAndKeptWhateverEndsIt) {
    Connection another{access};
    const auto fail = [&] { connection.execute("insert into Rooms values (1, 'twice')"); };
    EXPECT_EQ(numberOf([&] { grouped(connection, [&] { addRoom(), grouped(another, fail); }); }), SQLITE_CONSTRAINT);
    EXPECT_EQ(rooms(), "3");
    grouped(connection, [&] {
        grouped(another, [&] { addRoom(); });
        EXPECT_EQ(dump(another.query("select count(*) from Rooms")), "4;");
        EXPECT_EQ(rooms(), "3") << "as other programs see it";
        EXPECT_EQ(numberOf([&] { store.settle(file); }), SQLITE_BUSY);
    });
}

TEST_F(StoreTest, AFilePutInItsPlaceIsMetByAllConnectionsAndNotReachedByAnOpenGroup) {
    Connection another{access};
    const auto putOther = [&] {
        fs::copy_file(file, file + ".bak");
        connection.execute("delete from Rooms");
        fs::rename(file + ".bak", file);
    };
    putOther();
    grouped(connection, [&] { addRoom(); });
    EXPECT_EQ(rooms() + dump(another.query("select count(*) from Rooms")), "33;");
    EXPECT_EQ(numberOf([&] { grouped(connection, putOther); }), SQLITE_READONLY);
    EXPECT_EQ(rooms() + folder.cell("pragma integrity_check"), "3ok");
}

// --- Before a copy ---------------------------------------------------------------------------------------------------

TEST_F(StoreTest, SettlingTakesAwayLogsThatHaveNoDatabase) {
    for (const std::string what : {"an empty file", "another file", "no file"}) {
        write(file, what == "another file" ? std::string(9000, 'x') : "");
        if (what == "no file") fs::remove(file);
        for (const char* end : {"-journal", "-wal", "-shm"}) write(file + end, "left behind");
        store.settle(file);
        EXPECT_EQ(filesIn(folder.path()).size(), what == "no file" ? 0U : 1U) << what;
    }
    fs::create_directory(file + "-journal");
    EXPECT_EQ(failureOf([&] { store.settle(file); }).text(), "a journal can't be removed");
}

TEST_F(StoreTest, SettlingLetsADamagedDatabaseBeReplaced) {
    std::string damaged = bytes(file);
    damaged.replace(100, 8, 8, 'x');  // where the list of tables begins
    write(file, damaged);
    EXPECT_EQ(numberOf([&] { rows("select * from Rooms"); }), SQLITE_CORRUPT);
    store.settle(file);
    EXPECT_TRUE(bytes(file) == damaged);
}

// --- Pages -----------------------------------------------------------------------------------------------------------

struct List : DataClass {
    explicit List(const DataAccess& access) : DataClass(access) {}
    using DataClass::readPageOrAll;
};

TEST_F(StoreTest, APageShowsWhatWasWrittenSinceItWasReadLast) {
    List list(access);
    long all = 0;
    const auto page = [&](long n = 1) { return dump(*list.readPageOrAll("select * from Rooms", n, all, "Name", "A")); };
    for (int reading = 0; reading < 3; ++reading) EXPECT_EQ(page(), "2|Attic;1|Kitchen;");
    connection.execute("update Rooms set Name = 'Loft' where Id = 2");
    EXPECT_EQ(page(), "1|Kitchen;2|Loft;");
    grouped(connection, [&] {
        addRoom();
        EXPECT_EQ(page(), "3|Hall;1|Kitchen;2|Loft;");
    });
    EXPECT_EQ(numberOf([&] { page(0); }), 5);
    list.PageSize = 1;
    EXPECT_EQ(page(), "3|Hall;");
    list.readAhead();
    EXPECT_EQ(page(2), "1|Kitchen;");
}

}  // namespace
}  // namespace torvane
