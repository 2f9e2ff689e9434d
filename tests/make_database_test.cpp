#include "make_database/maker.h"

#include <gtest/gtest.h>

#include <string>

#include "datastore/schema.h"
#include "support/data_folder.h"

namespace torvane {
namespace {

TEST(MakeDatabase, HoldsWhatItIsMadeFor) {
    const std::string whole = "ok|" + std::to_string(applicationId) + "|" + std::to_string(schemaVersion);
    const struct {
        const char* what;
        const char* statement;
        std::string delivered, sample;
    } answers[] = {
        {"a whole file of ours", "select * from pragma_integrity_check, pragma_application_id, pragma_user_version",
         whole, whole},
        {"states with DC and five territories; one row of notes, empty to start with; units and takeoff names",
         "select (select count(distinct StateName) from States), (select count(*) from BlankNotes), "
         "(select max(Notes) = '' from BlankNotes), (select count(*) from Units) >= 20, "
         "(select count(*) from Rooms) >= 20",
         "56|1|1|1|1", "56|1|0|1|1"},
        {"a business to look at, its categories three deep and counting their items",
         "select (select count(*) from Item) >= 110, (select count(*) from Customer) >= 12, "
         "(select count(*) from OrderInfo), (select count(*) from Category a join Category b "
         "on a.ParentCategory = b.CatId join Category c on b.ParentCategory = c.CatId) > 0, "
         "(select totitm from Categories where CatName = 'Shingles')",
         "0|0|0|0|null", "1|1|7|1|5"},
    };
    const DataFolder folder;
    for (const bool sample : {false, true}) {
        makeDatabase(TORVANE_DATA, folder.database(), sample ? Contents::Sample : Contents::Delivered);
        for (const auto& row : answers)
            EXPECT_EQ(folder.cell(row.statement), sample ? row.sample : row.delivered) << row.what;
    }
}

}  // namespace
}  // namespace torvane
