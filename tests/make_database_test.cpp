#include "make_database/maker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "datastore/schema.h"
#include "make_database/data_files.h"
#include "support/data_folder.h"
#include "support/files.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class MakeDatabase : public ::testing::Test {
protected:
    DataFolder folder;
    const fs::path file = folder.database();
    const fs::path data = TORVANE_DATA;
};

TEST_F(MakeDatabase, HoldsWhatItIsMadeFor) {
    const std::string id = std::to_string(applicationId), version = std::to_string(schemaVersion);
    const struct {
        const char* what;
        const char* statement;
        std::string delivered, sample;
    } answers[] = {
        {"whole file", "pragma integrity_check", "ok", "ok"},
        {"application", "pragma application_id", id, id},
        {"version", "pragma user_version", version, version},
        {"journal", "pragma journal_mode", "delete", "delete"},
        {"free pages", "pragma freelist_count", "0", "0"},
        {"states, DC and five territories", "select count(distinct StateName) from States", "56", "56"},
        {"one row of notes, empty to start with", "select count(*), max(Notes) = '' from BlankNotes", "1|1", "1|0"},
        {"tables that nothing fills",
         "select (select count(*) from Tax) + (select count(*) from Representatives) + (select count(*) from Ship)",
         "0", "0"},
        {"units and takeoff names", "select (select count(*) from Units) >= 20 and (select count(*) from Rooms) >= 20",
         "1", "1"},
        {"a business to look at",
         "select (select count(*) from Item) >= 110, (select count(*) from Customer) >= 12, (select count(*) from OrderInfo)",
         "0|0|0", "1|1|7"},
        {"categories are three deep, and count their items by the index",
         "select (select count(*) from Category a join Category b on a.ParentCategory = b.CatId join Category c on b.ParentCategory = c.CatId) > 0, "
         "(select totitm from Categories where CatName = 'Shingles')",
         "0|null", "1|5"},
        {"keys that name nothing",
         "select (select count(*) from Item where CategoryId not in (select CatId from Category) or UnitId not in (select Id from Units)) + "
         "(select count(*) from Customer where BState not in (select StateId from States)) + (select count(*) from OrderInfo where "
         "SState not in (select StateId from States) or CustId not in (select CustId from Customer)) + (select count(*) from OrderItem where "
         "RoomId not in (select Id from Rooms) or UnitId not in (select Id from Units) or ItemId not in (select ItemId from Item))",
         "0", "0"},
        {"amounts that are not their lines, totals that are not amount and percentages",
         "select count(*) from OrderInfo o where abs(Amount - (select sum(Material + Extension + Labor + Others) from OrderItem l where l.OrderNo = o.OrderNo)) > "
         "Amount * 1e-6 or Amount <= 0 or abs(Total - Amount * (1 + Tax / 100 + Overhead / 100)) > Total * 1e-6",
         "0", "0"},
        {"lines that are not quantity times price, or without the item's unit",
         "select count(*) from OrderItem l join Item using (ItemId) where abs(l.Material - l.Qty * Item.Material) > 0.01 or l.UnitId <> Item.UnitId",
         "0", "0"},
    };
    for (const bool sample : {false, true}) {
        makeDatabase(data, file, sample ? Contents::Sample : Contents::Delivered);
        for (const auto& row : answers)
            EXPECT_EQ(folder.cell(row.statement), sample ? row.sample : row.delivered) << row.what;
    }
    const std::string once = bytes(file);
    makeDatabase(data, file, Contents::Sample);
    EXPECT_TRUE(bytes(file) == once) << "the same data give the same bytes";
    const auto plan = folder.rows("explain query plan select * from Categories");
    EXPECT_TRUE(std::ranges::any_of(plan, [](const std::string& step) { return step.find("ItemByCategory") + 1 > 0; }));
}

TEST_F(MakeDatabase, RefusesBadDataWithFileAndLineAndLeavesTheOldFile) {
    const struct {
        const char* file;
        std::string extra;    // appended to the good file
        std::string message;  // behind "<file>:<line>: "
    } faults[] = {
        {"states.tsv", "90", "has 1 columns, not 2"},
        {"states.tsv", "0\tNowhere", "\"0\" is no whole number from 1"},
        {"states.tsv", "1\tNowhere", "the state key \"1\" is given twice"},
        {"states.tsv", "90\tOhio", "the state \"Ohio\" is given twice"},
        {"units.tsv", "Each", "the unit \"Each\" is given twice"},
        {"rooms.tsv", "\t", "has 2 columns, not 1"},
        {"rooms.tsv", "Mother's Room", "has an apostrophe"},
        {"sample/categories.tsv", "Nothing / Below", "there is no category \"Nothing\""},
        {"sample/items.tsv", "1\tA\tRoofing\tFurlong\t1\t0\t0\t0\t1", "there is no unit \"Furlong\""},
        {"sample/items.tsv", "1\t\tRoofing\tEach\t1\t0\t0\t0\t1", "column 2 is empty"},
        {"sample/items.tsv", "1\tA\tRoofing\tEach\t1,5\t0\t0\t0\t1", "\"1,5\" is no number"},
        {"sample/items.tsv", "1\tA\tRoofing\tEach\t\t0\t0\t0\t1", "\"\" is no number"},
        {"sample/items.tsv", "1\tA\tRoofing\tEach\t0\t9\t0\t0\t1", "the material price is 0"},
        {"sample/items.tsv", "1\tA\tRoofing\tEach\t1\t0\t0\t0\t0", "the default quantity is 0"},
        {"sample/items.tsv", "100\tA\tRoofing\tEach\t1\t0\t0\t0\t1", "the item \"100\" is given twice"},
        {"sample/estimates.tsv", "estimate\t90\t2003-02-29\tTran, Linh", "\"2003-02-29\" is no date"},
        {"sample/estimates.tsv", "estimate\t90\t2003-2--28\tTran, Linh", "\"2003-2--28\" is no date"},
        {"sample/estimates.tsv", "estimate\t90\t2003-02-28\tNobody", "there is no customer \"Nobody\""},
        {"sample/estimates.tsv", "estimate\t90\t2003-02-28\tTran, Linh", "the estimate has no site"},
        {"sample/estimates.tsv", "line\tRoof\t100\t1\t5", "give all three costs or none"},
        {"sample/estimates.tsv", "lines\tRoof", "\"lines\" is no kind of line"},
    };
    for (const auto& fault : faults) {
        const fs::path bad = fs::path(folder.path()) / "data";
        fs::remove_all(bad);
        fs::copy(data, bad, fs::copy_options::recursive);
        const std::string good = bytes(bad / fault.file);
        write(bad / fault.file, good + fault.extra + "\n");
        write(file, "old");
        const auto line = std::ranges::count(good, '\n') + 1;
        try {
            makeDatabase(bad, file, Contents::Sample);
            ADD_FAILURE() << "accepted: " << fault.message;
        } catch (const DataFault& refused) {
            EXPECT_EQ(refused.what(), (bad / fault.file).string() + ":" + std::to_string(line) + ": " + fault.message);
        }
        EXPECT_EQ(bytes(file), "old");
        EXPECT_EQ(filesIn(folder.path()).size(), 2U) << "nothing is left behind";
    }
    EXPECT_THROW(makeDatabase("nowhere", file, Contents::Delivered), std::runtime_error);
}

}  // namespace
}  // namespace torvane
