#include "masters/cls_category.h"
#include "masters/cls_customer.h"
#include "masters/cls_item.h"
#include "masters/cls_master.h"
#include "support/record_test.h"

namespace torvane {
namespace {

class MastersTest : public RecordTest {
protected:
    MastersTest() { folder.useEmpty(); }

    // Items under one category and one unit: code and name.
    void addItems(int count) {
        folder.execute("insert into Category (CatId, CatName) values (1, 'Lumber')");
        for (int i = 1; i <= count; ++i)
            folder.execute("insert into Item (Itemcode, Itemname, CategoryId, UnitId, Material, Qty) values ('" +
                           std::to_string(i) + "', 'Item " + std::to_string(1000 + i) + "', 1, 1, 2.5, 1)");
    }
    static std::string column(const std::optional<RowArray>& rows, int number) {
        std::string text;
        for (int row = 0; rows && row < rows->rows(); ++row) text += textOrEmpty((*rows)(number, row)) + ' ';
        return text;
    }
};

TEST_F(MastersTest, ItemStatementsWordForWord) {
    ClsItem item(access);
    item.itemid = 9;
    item.Itemcode = "A'1";
    item.Itemname = "Nail";
    item.CategoryId = 3;
    item.UnitId = 4;
    item.Material = 123456.78F;
    item.Labor = 0.5F;
    item.SubLabor = 2;
    item.Equipment = 3;
    item.qty = 10;
    item.AddEditDel = "A";
    EXPECT_EQ(
        "Insert into Item (Itemcode, Itemname, CategoryID,UnitId,Material,Labor,Qty,TU,SubLabor,Equipment) values "
        "('A'1','Nail',3,4,123456.8,0.5,10,'',2,3)",
        refusedBy([&] { item.Save(); }));
    item.AddEditDel = "E";
    EXPECT_EQ(
        "Update Item Set ItemCode='A'1', Itemname = 'Nail', CategoryID = 3, UnitId = 4, Material = 123456.8, "
        "Labor = 0.5, SubLabor = 2, Equipment= 3, Qty = 10, TU = '' where Itemid=9",
        refusedBy([&] { item.Save(); }));
    item.Itemname = "O'Nail";
    item.AddEditDel = "A";
    EXPECT_EQ("Select * from Item where Itemname ='O'Nail' and CategoryId =3 and Material =123456.8 and Qty =10",
              refusedBy([&] { item.Validate(); }));
    EXPECT_EQ("update Item set Material=1.2.3 where Itemid=9",
              refusedBy([&] { item.Updatematerialprice(9, "1.2.3"); }));
    EXPECT_EQ("update Item set SubLabor= where Itemid=9", refusedBy([&] { item.UpdateSublabourprice(9, ""); }));
}

TEST_F(MastersTest, ItemKeepsItsFieldsWhenThereIsNoRow) {
    ClsItem item(access);
    item.itemid = 99;
    item.Itemname = "kept";
    item.Material = 5;
    item.GetItem();
    EXPECT_EQ("kept", item.Itemname);
    EXPECT_EQ(5, item.Material);
}

TEST_F(MastersTest, ItemNullQuantityIsAFailureAndNullPricesAreZero) {
    addItems(2);
    folder.execute(
        "update Item set Material = null, Labor = null, TU = null where ItemId = 1;"
        "update Item set Qty = null where ItemId = 2");
    ClsItem item(access);
    item.itemid = 1;
    item.GetItem();
    EXPECT_EQ(0, item.Material);
    item.itemid = 2;
    EXPECT_EQ(94, numberOf([&] { item.GetItem(); }));
}

TEST_F(MastersTest, NextItemNumber) {
    ClsItem item(access);
    EXPECT_EQ(1, item.Maxitemno());
    addItems(3);
    folder.execute(
        "update Item set Itemcode = 'A9' where ItemId = 3; update Item set Itemcode = '100.5' where ItemId = 2");
    EXPECT_EQ(101.5, item.Maxitemno());
}

TEST_F(MastersTest, ItemPages) {
    addItems(40);
    ClsItem item(access);
    long pages = 0;
    const auto read = [&](long page) { return column(item.GetAllItemsN(page, pages, "ItemCode", "A"), 5); };
    EXPECT_EQ("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 ", read(1));
    EXPECT_EQ("16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 ", read(2));
    EXPECT_EQ("31 32 33 34 35 36 37 38 39 40 ", read(3));
    EXPECT_EQ(3, pages);
    EXPECT_EQ(40, item.RecordCount);
    // An instance positions its very first read by ten rows a page.
    ClsItem other(access);
    EXPECT_EQ("11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 ",
              column(other.GetAllItemsN(2, pages, "ItemCode", "A"), 5));
    other.SearchFld = "ItemName";
    other.SearchVal = "item 10";
    EXPECT_EQ(40, other.GetSearchItems(-1, pages, "Itemname", "A")->rows());
    other.SearchVal = "none";
    EXPECT_FALSE(other.GetSearchItems(1, pages, "Itemname", "A").has_value());
    EXPECT_EQ(40, other.RecordCount);
}

TEST_F(MastersTest, ItemCodesSortAsNumbersOnlyWhereTheyAreSaidTo) {
    addItems(3);
    folder.execute(
        "update Item set Itemcode = '10' where ItemId = 1; update Item set Itemcode = '9' where ItemId = 2;"
        "update Item set Itemcode = 'A1' where ItemId = 3");
    ClsItem item(access);
    long pages = 0;
    EXPECT_EQ("A1 9 10 ", column(item.GetAllItemsN(1, pages, "ItemCode", "A"), 5));
    EXPECT_EQ("10 9 A1 ", column(item.GetAllItemsN(1, pages, "ITEMCODE", "D"), 5));
    EXPECT_EQ("10 9 A1 ", column(item.GetAllReItemsN(1, pages, "itemcode", "A"), 5));
}

TEST_F(MastersTest, DeletingActsOnItsFlagAlone) {
    addItems(1);
    ClsItem item(access);
    item.itemid = 1;
    item.AddEditDel = "E";
    item.Delete();
    EXPECT_EQ("1", folder.cell("select count(*) from Item"));
    item.AddEditDel = "D";
    item.Delete();
    EXPECT_EQ("0", folder.cell("select count(*) from Item"));
}

TEST_F(MastersTest, CategoryParents) {
    folder.execute(
        "insert into Category (CatId, CatName, ParentCategory) values (1, 'Supplies', null), (2, 'Hardware', 1),"
        "(3, 'Nails', 2), (4, 'Brads', 3), (5, 'Tiny', 4), (6, 'Loop', 7), (7, 'Pool', 6), (8, 'Orphan', 99)");
    clsCategory category(access);
    struct Row {
        std::int16_t key;
        const char* text;
    };
    for (const Row& row :
         {Row{1, ""}, Row{2, " (Supplies)"}, Row{3, " (Hardware <- Supplies)"}, Row{5, " (Brads <- Nails <- Hardware)"},
          Row{6, " (Pool <- Loop <- Pool)"}, Row{8, ""}, Row{77, ""}}) {
        EXPECT_EQ(row.text, category.GetParentName(row.key)) << row.key;
    }
}

TEST_F(MastersTest, CategoryAndNameWithoutARow) {
    clsCategory category(access);
    category.Catname = "Nails";
    category.ParentCategory = 1;
    EXPECT_EQ("", category.GetCatg());
    EXPECT_EQ("", category.Catname);
    EXPECT_EQ(1, category.ParentCategory);
    category.Catname = "O'Nail";
    category.AddEditDel = "E";
    EXPECT_EQ("Update Category Set Catname = 'O'Nail',ParentCategory = 1 where Catid=0",
              refusedBy([&] { category.Save(); }));
    clsMaster master(access);
    master.Mastertable = "Rooms";
    master.Name = "Kitchen";
    master.Id = 99;
    EXPECT_EQ("", master.GetCatg());
    EXPECT_EQ("Kitchen", master.Name);
}

TEST_F(MastersTest, CustomerStatementsWordForWord) {
    ClsCustomer customer(access);
    customer.CustId = 3;
    customer.CustName = "O'Neil";
    customer.BStreet1 = "s1";
    customer.BStreet2 = "s2";
    customer.BCity = "c";
    customer.BState = 7;
    customer.BZip = "z";
    customer.BCountry = "l";
    customer.BPhone = "p";
    customer.BFax = "f";
    customer.BMobile = "m";
    customer.BEmail = "e";
    customer.BUrl = "u";
    EXPECT_EQ(
        "Select * from Customer where CustName ='O'Neil' and BStreet1 ='s1' and BStreet2 ='s2' and BCity ='c' and "
        "BState =7 and BZip ='z' and BCountry ='l' and BPhone ='p' and BFax ='f' and BMobile ='m' and BEmail ='e' "
        "and BUrl ='u'",
        refusedBy([&] { customer.Validate(); }));
    customer.AddEditDel = "A";
    EXPECT_EQ(
        "Insert into Customer (CustName,BStreet1,BStreet2,BCity,BState,BZip,BCountry,BPhone,BFax,BMobile,BEmail,"
        "BUrl) values ('O'Neil','s1','s2','c',7,'z','l','p','f','m','e','u')",
        refusedBy([&] { customer.Save(); }));
    customer.AddEditDel = "E";
    EXPECT_EQ(
        "Update Customer Set CustName = 'O'Neil', BStreet1 = 's1', BStreet2 = 's2', BCity = 'c', BState = 7, BZip "
        "= 'z', BCountry = 'l', BPhone = 'p', BFax = 'f', BMobile = 'm', BEmail = 'e', BUrl = 'u' where CustId=3",
        refusedBy([&] { customer.Save(); }));
}

}  // namespace
}  // namespace torvane
