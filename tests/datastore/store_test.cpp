#include "datastore/store.h"

#include <chrono>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "sample.h"

namespace torvane {
namespace {

TEST_F(StoreTest, OpeningRefusesWhatIsNoDatabase) {
    const struct {
        const char* name;
        std::function<void(const std::string&)> prepare;
        int number;
    } rows[] = {
        {"missing", [](const auto&) {}, SQLITE_CANTOPEN},
        {"empty", [](const auto& name) { write(name, ""); }, SQLITE_NOTADB},
        {"text", [](const auto& name) { write(name, std::string(5000, 'x')); }, SQLITE_NOTADB},
        {"short", [](const auto& name) { write(name, "x"); }, SQLITE_NOTADB},
        {"cut", [this](const auto& name) { write(name, contents(file).substr(0, 3000)); }, SQLITE_CORRUPT},
    };
    for (const auto& row : rows) {
        TestHost elsewhere(folder + "/" + row.name);
        const std::string other = elsewhere.folder + "/Larkfen.mdb";
        std::filesystem::create_directory(elsewhere.folder);
        row.prepare(other);
        try {
            Connection another({elsewhere, store});
            ADD_FAILURE() << "opened: " << row.name;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), row.number) << row.name;
            EXPECT_EQ(failure.text(), sqlite3_errstr(row.number));
            EXPECT_EQ(failure.refused(), other);
        }
    }
    EXPECT_FALSE(std::filesystem::exists(folder + "/missing/Larkfen.mdb"));
}

TEST_F(StoreTest, AFileKeptWithAWriteAheadLogBecomesOneFile) {
    raw(file, "pragma journal_mode = wal; insert into Rooms values (3, 'Hall')");
    Store another;  // as at the next start
    Connection fresh({host, another});
    EXPECT_EQ(rows("select Name from Rooms where Id = 3", fresh), "Hall;");
    EXPECT_EQ(contents(file)[18], '\1');
}

TEST_F(StoreTest, ManyConnectionsShareOneHandle) {
    std::vector<std::unique_ptr<Connection>> lines;
    for (int i = 0; i < 3000; ++i) lines.push_back(std::make_unique<Connection>(access));
    lines.front()->execute("insert into Rooms (Name) values ('Hall')");
    EXPECT_EQ(rows("select count(*) from Rooms", *lines.back()), "3;");
}

TEST_F(StoreTest, StatementsOfTheSystemRun) {
    const struct {
        const char* statement;
        const char* result;
    } reads[] = {
        {"Select * from Item where ItemId= 2", "2|9|nail|2|2|0.125|~|~|~|100|~;"},
        {"Select * from Item where Itemname ='NAIL' and CategoryId =2 and Material =0.125 and Qty =100",
         "2|9|nail|2|2|0.125|~|~|~|100|~;"},
        {"Select max(cdbl(itemcode)) from Item where isnumeric(itemcode)", "10;"},
        {"SELECT Item.ItemID,Item.ItemName as  ItmName,Category.CatName as CatName,item.Material FROM "
         "Item,Category,Units  where  Item.CategoryID = Category.CatId and Item.UnitId=Units.Id and  (ItemName like "
         "'N%' or CatName like 'N%') ",
         "2|nail|Nails|0.125;"},
        {"SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like '55%' or BCity like "
         "'55%'  or BPhone like '55%' or BEmail like '55%'  or BCCNo like '55%' ",
         "1|Stone|Boston|555-1|~|~;"},
        {"Select * from Customer order by CustName",
         "2|abel|~|~|Austin|~|~|~|777|~|~|a@b|~|9;1|Stone|~|~|Boston|~|~|~|555-1|~|~|~|~|~;"},
        {"select * from Rooms where Name like '%tt%'  order by name", "2|Attic;"},
        {"SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
         "Orderinfo.upstracking,orderinfo.total,orderinfo.overhead,orderinfo.tax FROM orderinfo left join customer  on "
         "orderinfo.custid = customer.custid where  orderno like '%2%' order by orderno",
         "2|8/1/2003|~|~|1|0|0;12|~|abel|~|2|0|0;"},
        {"SELECT Orderinfo.orderno, Orderinfo.Orderdate FROM orderinfo,customer where  orderinfo.custid = "
         "customer.custid and orderdate>=#7/4/2003# and orderdate <= #4-Jul-2003#",
         "1|7/4/2003;"},
        {"Select val(' 1 2x'), Val(null), val(3), isnumeric('1e400'), isnumeric(null), isnumeric(5), cdbl(' 5 ');",
         "12|~|3|0|0|1|5;"},
        {"Select * from Item where ItemId= 0", "none"},
    };
    for (const auto& row : reads) EXPECT_EQ(rows(row.statement), row.result) << row.statement;

    const struct {
        const char* statement;
        const char* check;
        const char* result;
    } writes[] = {
        {"Insert into Item (Itemcode, Itemname, CategoryID,UnitId,Material,Labor,Qty,TU,SubLabor,Equipment) values "
         "('11','Bolt;--',2,1,1.234568E+07,0.5,1,'',-2,2.5E-05)",
         "select ItemId,Itemname,Material,SubLabor,Equipment from Item where ItemId=4",
         "4|Bolt;--|1.234568E+07|-2|2.5E-05;"},
        {"update Item set Material=3.5 where Itemid=1", "select Material from Item where ItemId=1", "3.5;"},
        {"Delete * from Item where ItemId = 4", "select count(*) from Item", "3;"},
        {"update Item set Material=3.4028235677973362E+38, Labor='1.5', Qty=null where Itemid=1",
         "select Material, Labor, Qty from Item where ItemId=1", "3.402823E+38|1.5|~;"},
        {"Insert into OrderInfo (Orderno,CustId,SState,OrderDate,SZip) values (2147483647,-2147483648,-32768,"
         "#12/31/9999#,97301)",
         "select CustId,SState,OrderDate,SZip from OrderInfo where OrderNo=2147483647",
         "-2147483648|-32768|12/31/9999|97301;"},
        {"Update BlankNotes set Notes='it''s'", "Select * from BlankNotes", "it's;"},
        {"Update OrderInfo Set CustId = 1, OrderDate = #12/31/1999#, UPSTracking='x' where OrderNo=12",
         "select OrderDate,UPSTracking from OrderInfo where OrderNo=12", "12/31/1999|x;"},
        {"Delete * from Orderitem where OrderNo = 1", "select count(*) from OrderItem", "0;"},
    };
    for (const auto& row : writes) {
        connection.execute(row.statement);
        EXPECT_EQ(rows(row.check), row.result) << row.statement;
    }
}

TEST_F(StoreTest, RefusedStatementsChangeNothing) {
    const std::string before = contents(file);
    const std::string secret = folder + "/other";
    const struct {
        std::string statement;
        int number;
        const char* why = "";  // where it is ours
    } statements[] = {
        {"insert into Rooms (Name) values ('O'Brien')", SQLITE_ERROR},
        {"insert into Rooms (Name) values ('a'); delete from Rooms", SQLITE_ERROR},
        {"delete from Rooms; -- '", SQLITE_ERROR},
        {"delete from Rooms --", SQLITE_ERROR},
        {"delete /* all */ from Rooms", SQLITE_ERROR},
        {std::string("delete from Rooms\0 where Id = 1", 31), SQLITE_ERROR},
        {"delete from Rooms where Id = ?", SQLITE_ERROR, "a parameter in the statement"},
        {"delete from Rooms where Id = $x('); delete from Rooms where Name <> '')", SQLITE_ERROR},
        {"", SQLITE_ERROR, "an empty statement"},
        {" ; ", SQLITE_ERROR, "an empty statement"},
        {"delete from Nowhere", SQLITE_ERROR},
        {"update OrderInfo set OrderDate = #30.2.2003#", SQLITE_ERROR},
        {"update Rooms set Name = \"Kitchen2\"", SQLITE_ERROR},
        {"insert into Rooms (Id) select cdbl(Name) from Rooms", SQLITE_ERROR},
        {"insert into Rooms (Id, Name) values (7, 'new'), (1, 'twice')", SQLITE_CONSTRAINT},
        {"attach '" + secret + "' as other", SQLITE_AUTH},
        {"pragma user_version = 3", SQLITE_AUTH},
        {"vacuum", SQLITE_AUTH},
        {"vacuum into '" + secret + "'", SQLITE_AUTH},
        {"drop table Rooms", SQLITE_AUTH},
        {"create table T (a)", SQLITE_AUTH},
        {"create temp table T (a)", SQLITE_AUTH},
        {"create view V as select 1", SQLITE_AUTH},
        {"alter table Rooms add column x", SQLITE_AUTH},
        {"begin", SQLITE_AUTH},
        {"commit", SQLITE_AUTH},
        {"savepoint a", SQLITE_AUTH},
        {"reindex", SQLITE_AUTH},
        {"analyze", SQLITE_AUTH},
        {"delete from sqlite_schema", SQLITE_ERROR},
        {"update Rooms set Name = load_extension('x')", SQLITE_ERROR},
        {"update Rooms set Name = hex(fts3_tokenizer('simple'))", SQLITE_ERROR},
        {"update Rooms set Name = randomblob(9)", SQLITE_ERROR},
        {"with recursive a(n) as (select 1 union all select n+1 from a) insert into Rooms (Id) select n from a",
         SQLITE_AUTH},
    };
    for (const auto& row : statements) {
        try {
            connection.execute(row.statement);
            ADD_FAILURE() << "accepted: " << row.statement;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), row.number) << row.statement << ": " << failure.text();
            EXPECT_EQ(failure.refused(), row.statement);
            EXPECT_NE(failure.text(), "");
            EXPECT_NE(failure.text().find(row.why), std::string::npos) << failure.text();
        }
    }

    const struct {
        std::string statement;
        int number;
    } queries[] = {
        {"select * from Rooms where Name = 'O'Brien'", SQLITE_ERROR},
        {"select load_extension('x')", SQLITE_ERROR},
        {"select fts3_tokenizer('simple')", SQLITE_ERROR},
        {"select * from pragma_database_list", SQLITE_ERROR},
        {"select cdbl('x')", SQLITE_ERROR},
        {"select cdbl('')", SQLITE_ERROR},
        {"select cdbl('1e400')", SQLITE_ERROR},
        {"delete * from Rooms", static_cast<int>(Failure::InvalidCall)},
        {"delete from Rooms returning Id", static_cast<int>(Failure::InvalidCall)},
        {"select 1e39 as x from Rooms union all select Material*1e39 from Item", 0},
    };
    for (const auto& row : queries) {
        EXPECT_EQ(failureOf([&] { connection.query(row.statement); }), row.number) << row.statement;
    }
    EXPECT_EQ(failureOf([&] { connection.execute("select * from Rooms"); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(contents(file), before);
    EXPECT_FALSE(std::filesystem::exists(secret));
}

TEST_F(StoreTest, CellsHaveTheirColumnsKinds) {
    // As a file made elsewhere may have them.
    const std::string unchecked = "pragma ignore_check_constraints = on; ";
    raw(file, unchecked + "update OrderInfo set OrderDate = 'soon', Total = 12345678.5 where OrderNo = 2");
    const RowArray cells =
        connection.query("select OrderNo, Total, Total*1, OrderDate, SCity, Tax from OrderInfo order by OrderNo");
    EXPECT_EQ(cells(0, 0), Value(std::int64_t{1}));
    EXPECT_EQ(cells("TOTAL", 0), Value(230.0F));
    EXPECT_EQ(cells(2, 0), Value(230.0));
    EXPECT_EQ(cells("orderdate", 0), Value(Date{2003, 7, 4}));
    EXPECT_EQ(cells("SCity", 0), Value(Null{}));
    EXPECT_EQ(cells("Total", 1), Value(12345678.0F));
    EXPECT_EQ(cells("OrderDate", 1), Value(std::string("soon")));
    EXPECT_EQ(failureOf([&] { cells("Totals", 0); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { cells("Total", 3); }), static_cast<int>(Failure::Subscript));

    raw(file, unchecked + "update OrderInfo set Total = 1e39 where OrderNo = 2");
    EXPECT_EQ(failureOf([&] { rows("select Total from OrderInfo"); }), static_cast<int>(Failure::Overflow));
    connection.execute("update OrderInfo set Total = 1 where OrderNo = 2");
    EXPECT_EQ(rows("select Total from OrderInfo where OrderNo = 2"), "1;");
}

TEST_F(StoreTest, ColumnsRefuseWhatTheirTypeCantHold) {
    const std::string before = contents(file);
    const std::map<std::string, std::vector<std::string>> refused{
        {"integer", {"'abc'", "x'31'", "1.5", "2147483648", "-2147483649", "9e999"}},
        {"real", {"'abc'", "x'31'", "1e40", "3.4028235677973366e+38", "-3.4028235677973366e+38", "9e999"}},
        {"double", {"'abc'", "x'31'", "9e999"}},
        {"date", {"5", "x'31'", "'soon'", "'7/4/2003'", "'2003-02-30'", "'0099-12-31'"}},
        {"text", {"x'31'"}},
    };
    const std::set<std::string> int32{"OrderInfo.OrderNo", "OrderInfo.CustId",  "OrderInfo.RepId",
                                      "OrderInfo.ShipId",  "OrderItem.OrderNo", "Representatives.RepId",
                                      "Ship.ShipId"};
    std::istringstream columns(
        raw(file,
            "select m.name, p.name, lower(p.type) from sqlite_schema m, pragma_table_info(m.name) "
            "p where m.type = 'table' and m.name not like 'sqlite%'"));
    int count = 0;
    for (std::string table, column, type;
         std::getline(columns, table, '|') && std::getline(columns, column, '|') && std::getline(columns, type, ';');
         ++count) {
        std::vector<std::string> values = refused.at(type);
        if (type == "integer" && !int32.contains(table + "." + column))
            values.insert(values.end(), {"-32769", "32768"});
        for (const std::string& value : values) {
            const std::string statement = "insert into " + table + " (" + column + ") values (" + value + ")";
            EXPECT_NE(failureOf([&] { connection.execute(statement); }), 0) << statement;
        }
        if (column == "BState") {
            EXPECT_EQ(said, "CHECK constraint failed: BState takes whole numbers from -32768 to 32767");
        }
    }
    EXPECT_GT(count, 60);
    EXPECT_TRUE(contents(file) == before);
}

TEST_F(StoreTest, KeysAreNeverGivenTwice) {
    for (const auto& [table, key] : {std::pair{"Item", "ItemId"},
                                     {"Category", "CatId"},
                                     {"Customer", "CustId"},
                                     {"Units", "Id"},
                                     {"Rooms", "Id"}}) {
        const std::string name(table);
        const auto run = [&](const std::string& statement) {
            Store another;  // as after a restart
            Connection({host, another}).execute(statement);
        };
        const std::string newest = "select max(" + std::string(key) + ") from " + name;
        const int last = std::stoi(raw(file, newest));
        run("Delete * from " + name);
        run("insert into " + name + " default values");
        EXPECT_EQ(raw(file, newest), std::to_string(last + 1) + ";") << table;
    }
}

TEST_F(StoreTest, LettersOfAllScriptsHaveNoCase) {
    connection.execute("insert into Rooms (Id, Name) values (3, 'École'), (4, 'Muñoz'), (5, 'Ärger'), (6, 'Zorn')");
    raw(file, "insert into Rooms (Name) values ('ÉTAGE'), ('m²')");
    const struct {
        const char* statement;
        const char* result;
    } reads[] = {
        {"select Id from Rooms where Name like 'école%'", "3;"},
        {"select Id from Rooms where Name like '%MUÑ%'", "4;"},
        {"select Id from Rooms where Name = 'ÄRGER'", "5;"},
        {"select Id from Rooms where Name = 'arger' or Name like 'arger' or Name = 'm2'", "none"},
        {"select Name from Rooms order by Name", "Ärger;Attic;École;ÉTAGE;Kitchen;m²;Muñoz;Zorn;"},
        {"select max(Name), count(distinct Name) from Rooms", "Zorn|8;"},
        // Wildcards as anywhere.
        {"select 'É' like '_', 'É' like '__', '' like '%', '' like '_', 'aéaéb' like '%É_', 'abc' like 'a%c%'",
         "1|0|1|0|1|1;"},
        {"select 'éab' like '%A_', 'ébb' like '%A_', 'Straße' like 'STRASSE', 'СЛОН' like '%лон', 12 like '1_'",
         "1|0|1|1|1;"},
        {"select null like '%', 'a' like null", "~|~;"},
    };
    for (const auto& row : reads) EXPECT_EQ(rows(row.statement), row.result) << row.statement;
    EXPECT_EQ(failureOf([&] { rows("select lower(Name) from Rooms"); }), SQLITE_ERROR) << "of ASCII alone";
    EXPECT_EQ(raw(file, "pragma integrity_check"), "ok;") << "the file is everybody's";
}

TEST_F(StoreTest, SharedColumnNamesAreQualified) {
    const RowArray cells = connection.query(
        "SELECT Orderinfo.OrderNo, OrderItem.*, Rooms.Name as Room, 1 as room FROM orderinfo, OrderItem, Rooms "
        "where orderinfo.OrderNo = OrderItem.OrderNo and roomid = rooms.id order by Rooms.Id");
    for (const auto& [name, number] :
         {std::pair{"orderinfo.OrderNo", 0}, {"OrderItem.OrderNo", 1}, {"ItemId", 2}, {"OrderNo", -1}})
        EXPECT_EQ(cells.column(name), number) << name;
}

TEST_F(StoreTest, KeptStatementsAreBoundedAndStayRight) {
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 100; ++i) {
            EXPECT_EQ(rows("select " + std::to_string(i) + " + Id from Rooms where Id = 1"),
                      std::to_string(i + 1) + ";");
        }
    }
    raw(file, "alter table Rooms add column Floor integer default 7");
    // Within one tick of the clock the write would bear the time of the one before.
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_EQ(rows("select * from Rooms where Id = 1"), "1|Kitchen|7;");
}

}  // namespace
}  // namespace torvane
