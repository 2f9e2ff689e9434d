// What the records do that no screen asks of them, or that a screen shows in no way.

#include "masters/cls_category.h"
#include "masters/cls_customer.h"
#include "masters/cls_item.h"
#include "masters/cls_master.h"
#include "support/record_test.h"

namespace torvane {
namespace {

class MastersTest : public RecordTest {
protected:
    static std::string column(const std::optional<RowArray>& rows, int number) {
        std::string text;
        for (int row = 0; rows && row < rows->rows(); ++row) text += textOrEmpty((*rows)(number, row)) + ' ';
        return text;
    }
    const std::string file = folder.useEmpty();
    ClsItem item{access};
    long pages = 0;
};

TEST_F(MastersTest, Items) {
    EXPECT_EQ(item.Maxitemno(), 1);
    folder.execute(
        "insert into Category (CatId, CatName) values (1, 'Lumber'); insert into Item (Itemcode, Itemname, CategoryId, UnitId, Qty) values "
        "('10', 'Stud', 1, 1, 1), ('9', 'Nail', 1, 1, null), ('A1', 'Beam', 1, 1, 1), ('100.5', 'Board', 1, 999, 1)");
    EXPECT_EQ(item.Maxitemno(), 101.5) << "of the codes that are numbers";
    EXPECT_EQ(column(item.GetAllReItemsN(1, pages, "itemcode", "A"), 5), "10 9 A1 ") << "as texts";
    EXPECT_EQ(column(item.GetAllItems(1, pages, "ItemId", "D"), 1), "100.5 A1 9 10 ");
    item.SearchFld = "All";
    EXPECT_EQ(column(item.GetSearchItems(-1, pages, "Itemname", "A"), 1), "Beam Nail Stud ");
    item.itemid = 1;
    item.Material = 5;
    item.GetItem();
    EXPECT_EQ(item.Itemname + std::to_string(item.Material), "Stud0.000000") << "a price that is Null is 0";
    item.itemid = 2;
    EXPECT_EQ(numberOf([&] { item.GetItem(); }), 94) << "a quantity is not";
    EXPECT_FALSE(item.UpdateStock());
}

TEST_F(MastersTest, ParentsOfACategory) {
    folder.execute(
        "insert into Category (CatId, CatName, ParentCategory) values (1, 'Supplies', null), (2, 'Hardware', 1), (3, 'Orphan', 99)");
    clsCategory category(access);
    for (const auto& [key, text] : {std::pair{1, ""}, {2, " (Supplies)"}, {3, ""}, {77, ""}})
        EXPECT_EQ(category.GetParentName(static_cast<std::int16_t>(key)), text) << key;
    category.Catid = 77;
    category.Catname = "before";
    category.ParentCategory = 1;
    EXPECT_EQ(category.GetCatg() + category.Catname + std::to_string(category.ParentCategory), "1");
}

TEST_F(MastersTest, NamesAndCustomers) {
    folder.execute(
        "delete from Rooms; insert into Rooms values (1, 'Roof'), (2, 'Attic'); insert into Customer (CustName) values ('Zoe'), ('Abe')");
    clsMaster master(access);
    master.Mastertable = "Rooms";
    master.Id = 2;
    EXPECT_EQ(master.GetCatg() + master.Name, "AtticAttic");
    master.Id = 99;
    EXPECT_EQ(master.GetCatg() + master.Name, "Attic");
    EXPECT_EQ(column(master.GetAllCategories(1, pages, "Name", "D"), 1), "Roof Attic ");
    master.Name = "oo";
    EXPECT_EQ(column(master.GetSearchCategories(1, pages, "Name", "A"), 1), "Roof ");
    master.Name = "none";
    host.expectOk("No Result found.", "Search");
    EXPECT_FALSE(master.GetSearchCategories(1, pages, "Name", "A").has_value());
    EXPECT_EQ(column(ClsCustomer(access).GetComboCustomers(), 1), "Abe Zoe ");
}

}  // namespace
}  // namespace torvane
