#include "make_database/maker.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "datastore/schema.h"
#include "make_database/data_files.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class MakeDatabase : public ::testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "torvane_maker_XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder = pattern;
        file = folder / "made.mdb";
    }
    void TearDown() override { fs::remove_all(folder); }

    // The first column of all rows, a blank between them.
    std::string ask(const std::string& statement) const {
        sqlite3* opened = nullptr;
        const int result = sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
        const std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle(opened, sqlite3_close);
        sqlite3_stmt* prepared = nullptr;
        if (result != SQLITE_OK || sqlite3_prepare_v2(opened, statement.c_str(), -1, &prepared, nullptr) != SQLITE_OK)
            return sqlite3_errmsg(opened);
        const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> holder(prepared, sqlite3_finalize);
        std::string all;
        while (sqlite3_step(prepared) == SQLITE_ROW) {
            const unsigned char* text = sqlite3_column_text(prepared, 0);
            all += (all.empty() ? "" : " ") + (text ? std::string(reinterpret_cast<const char*>(text)) : "null");
        }
        return all;
    }

    static std::string bytes(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    fs::path folder;
    fs::path file;
    const fs::path data = TORVANE_DATA;
};

struct Answer {
    const char* what;
    const char* statement;
    std::string delivered;
    std::string sample;
};

TEST_F(MakeDatabase, HoldsWhatItIsMadeFor) {
    const std::string none = "select count(*) from ";
    const std::string id = std::to_string(applicationId);
    const std::string version = std::to_string(schemaVersion);
    const std::vector<Answer> answers{
        {"whole file", "pragma integrity_check", "ok", "ok"},
        {"application", "pragma application_id", id, id},
        {"version", "pragma user_version", version, version},
        {"journal", "pragma journal_mode", "delete", "delete"},
        {"free pages", "pragma freelist_count", "0", "0"},
        {"states, DC and five territories", "select count(distinct StateName) from States", "56", "56"},
        {"one row of notes", "select count(*) from BlankNotes where Notes is not null", "1", "1"},
        {"empty notes to start with", "select count(*) from BlankNotes where Notes = ''", "1", "0"},
        {"tables that nothing fills",
         "select (select count(*) from Tax) + (select count(*) from Representatives) + "
         "(select count(*) from Ship)",
         "0", "0"},
        {"units and takeoff names", "select (select count(*) from Units) >= 20 and (select count(*) from Rooms) >= 20",
         "1", "1"},
        {"a business to look at",
         "select (select count(*) from Item) >= 110 and (select count(*) from Category) >= 30 and "
         "(select count(*) from Customer) >= 12",
         "0", "1"},
        {"estimates", "select count(*) from OrderInfo", "0", "7"},
        {"deepest category",
         "with recursive tree(id, depth) as (select CatId, 1 from Category where ParentCategory is null "
         "union all select CatId, depth + 1 from Category join tree on ParentCategory = id) "
         "select max(depth) || ' ' || (count(*) = (select count(*) from Category)) from tree",
         "null", "3 1"},
        {"lines of each estimate are 5 to 30",
         "select count(*) from (select count(*) as n from OrderItem group by OrderNo) "
         "where n not between 5 and 30",
         "0", "0"},
        {"prices of all four kinds",
         "select min(a) from (select count(*) > 9 as a from Item where Material > 0 union all "
         "select count(*) > 9 from Item where Labor > 0 union all select count(*) > 9 from Item where SubLabor > 0 "
         "union all select count(*) > 9 from Item where Equipment > 0)",
         "0", "1"},
        {"items that the item form would refuse",
         "select count(*) from Item where Material = 0 or Qty = 0 or Itemname = ''", "0", "0"},
        {"keys that name nothing",
         "select (select count(*) from Item where CategoryId not in (select CatId from Category) or UnitId not in "
         "(select Id "
         "from Units)) + (select count(*) from Customer where BState not in (select StateId from States)) + (select "
         "count(*) "
         "from OrderInfo where SState not in (select StateId from States) or CustId not in (select CustId from "
         "Customer)) + "
         "(select count(*) from OrderItem where RoomId not in (select Id from Rooms) or UnitId not in (select Id from "
         "Units) "
         "or ItemId not in (select ItemId from Item) or OrderNo not in (select OrderNo from OrderInfo))",
         "0", "0"},
        {"amounts that are not their lines",
         "select count(*) from OrderInfo o where abs(Amount - (select sum(Material + Extension + Labor + Others) from "
         "OrderItem l where l.OrderNo = o.OrderNo)) > Amount * 1e-6",
         "0", "0"},
        {"totals that are not amount and percentages",
         "select count(*) from OrderInfo where Amount <= 0 or abs(Total - Amount * (1 + Tax / 100 + Overhead / 100)) > "
         "Total * "
         "1e-6",
         "0", "0"},
        {"lines that are not quantity times price",
         "select count(*) from OrderItem l join Item using (ItemId) where abs(l.Material - l.Qty * Item.Material) > "
         "0.01",
         "0", "0"},
        {"dates not as ISO text", "select count(*) from OrderInfo where OrderDate is not date(OrderDate)", "0", "0"},
    };
    std::map<std::string, std::string> expected, found;
    for (const Contents contents : {Contents::Delivered, Contents::Sample}) {
        makeDatabase(data, file, contents);
        const bool sample = contents == Contents::Sample;
        for (const Answer& row : answers) {
            const std::string name = std::string(sample ? "sample: " : "delivered: ") + row.what;
            expected[name] = sample ? row.sample : row.delivered;
            found[name] = ask(row.statement);
        }
    }
    EXPECT_EQ(found, expected);
}

TEST_F(MakeDatabase, CategoriesCountTheirItemsByTheIndex) {
    makeDatabase(data, file, Contents::Sample);
    EXPECT_EQ(ask("select totitm from Categories where CatName in ('Roofing', 'Shingles') order by CatName"), "0 5");
    sqlite3* opened = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle(opened, sqlite3_close);
    std::string plan;
    const auto collect = [](void* all, int, char** cells, char**) {
        *static_cast<std::string*>(all) += std::string(cells[3]) + "\n";
        return 0;
    };
    ASSERT_EQ(sqlite3_exec(opened, "explain query plan select * from Categories", collect, &plan, nullptr), SQLITE_OK);
    EXPECT_NE(plan.find("ItemByCategory"), std::string::npos) << plan;
}

TEST_F(MakeDatabase, SameDataGiveTheSameBytes) {
    makeDatabase(data, file, Contents::Sample);
    makeDatabase(data, folder / "again.bak", Contents::Sample);
    EXPECT_GT(fs::file_size(file), 0U);
    EXPECT_TRUE(bytes(file) == bytes(folder / "again.bak"));
}

struct Fault {
    const char* what;
    const char* file;
    const char* extra;    // appended to the good file
    const char* message;  // behind "<file>:<line>: "
};

TEST_F(MakeDatabase, RefusesBadDataWithFileAndLineAndLeavesTheOldFile) {
    const std::vector<Fault> faults{
        {"column missing", "states.tsv", "90", "has 1 columns, not 2"},
        {"key of a state", "states.tsv", "0\tNowhere", "\"0\" is no whole number from 1"},
        {"state key twice", "states.tsv", "1\tNowhere", "the state key \"1\" is given twice"},
        {"state twice", "states.tsv", "90\tOhio", "the state \"Ohio\" is given twice"},
        {"unit twice", "units.tsv", "Each", "the unit \"Each\" is given twice"},
        {"name empty", "rooms.tsv", "\t", "has 2 columns, not 1"},
        {"apostrophe", "rooms.tsv", "Mother's Room", "has an apostrophe"},
        {"parent missing", "sample/categories.tsv", "Nothing / Below", "there is no category \"Nothing\""},
        {"item category", "sample/items.tsv", "1\tA\tB\tEach\t1\t0\t0\t0\t1", "there is no category \"B\""},
        {"item unit", "sample/items.tsv", "1\tA\tRoofing\tFurlong\t1\t0\t0\t0\t1", "there is no unit \"Furlong\""},
        {"item without a name", "sample/items.tsv", "1\t\tRoofing\tEach\t1\t0\t0\t0\t1", "column 2 is empty"},
        {"item price", "sample/items.tsv", "1\tA\tRoofing\tEach\t1,5\t0\t0\t0\t1", "\"1,5\" is no number"},
        {"item price missing", "sample/items.tsv", "1\tA\tRoofing\tEach\t\t0\t0\t0\t1", "\"\" is no number"},
        {"free item", "sample/items.tsv", "1\tA\tRoofing\tEach\t0\t9\t0\t0\t1", "the material price is 0"},
        {"item for nothing", "sample/items.tsv", "1\tA\tRoofing\tEach\t1\t0\t0\t0\t0", "the default quantity is 0"},
        {"item twice", "sample/items.tsv", "100\tA\tRoofing\tEach\t1\t0\t0\t0\t1", "the item \"100\" is given twice"},
        {"customer state", "sample/customers.tsv", "A\t\t\t\tOz\t\t\t\t\t\t\t\t", "there is no state \"Oz\""},
        {"no such day", "sample/estimates.tsv", "estimate\t90\t2003-02-29\tTran, Linh", "\"2003-02-29\" is no date"},
        {"not a day", "sample/estimates.tsv", "estimate\t90\t2003-2--28\tTran, Linh", "\"2003-2--28\" is no date"},
        {"estimate twice", "sample/estimates.tsv", "estimate\t1\t2003-02-28\tTran, Linh",
         "the estimate \"1\" is given twice"},
        {"nobody", "sample/estimates.tsv", "estimate\t90\t2003-02-28\tNobody", "there is no customer \"Nobody\""},
        {"estimate without a site", "sample/estimates.tsv", "estimate\t90\t2003-02-28\tTran, Linh",
         "the estimate has no site"},
        {"line in no room", "sample/estimates.tsv", "line\tCastle\t100\t1", "there is no takeoff name \"Castle\""},
        {"line of no item", "sample/estimates.tsv", "line\tRoof\t99999\t1", "there is no item \"99999\""},
        {"line of nothing", "sample/estimates.tsv", "line\tRoof\t100\t0", "the quantity is 0"},
        {"line with one cost", "sample/estimates.tsv", "line\tRoof\t100\t1\t5", "give all three costs or none"},
        {"unknown kind", "sample/estimates.tsv", "lines\tRoof", "\"lines\" is no kind of line"},
    };
    std::map<std::string, std::string> expected, found;
    for (const Fault& fault : faults) {
        const fs::path bad = folder / "data";
        fs::remove_all(bad);
        fs::copy(data, bad, fs::copy_options::recursive);
        const std::string good = bytes(bad / fault.file);
        std::ofstream(bad / fault.file, std::ios::binary) << good << fault.extra << '\n';
        std::ofstream(file) << "old";
        const auto line = std::count(good.begin(), good.end(), '\n') + 1;
        expected[fault.what] = (bad / fault.file).string() + ":" + std::to_string(line) + ": " + fault.message + " old";
        try {
            makeDatabase(bad, file, Contents::Sample);
            found[fault.what] = "accepted";
        } catch (const DataFault& refused) {
            found[fault.what] = std::string(refused.what()) + " " + bytes(file);
        }
        EXPECT_FALSE(fs::exists(file.string() + ".new")) << fault.what;
    }
    EXPECT_EQ(found, expected);
    EXPECT_THROW(makeDatabase(folder / "nowhere", file, Contents::Delivered), std::runtime_error);
}

}  // namespace
}  // namespace torvane
