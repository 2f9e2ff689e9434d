// Items and categories: added, edited and deleted. The lists themselves are in finding_test.cpp.

#include <QMenu>

#include "journeys/journey.h"

namespace torvane {
namespace {

using Boxes = std::vector<TestHost::Box>;

const Names itemBoxes{"txtCode",  "TxtName",     "CmbCat",      "TxtQty",      "cmbUnit",
                      "txtLabor", "TxtMaterial", "txtSubLabor", "txtEquipment"};
const Names categoryParts{"CmbCat", "txtCatName", "CmdSelCat", "cmdAddCat"};
const TestHost::Box itemSaved = ok(" Item Saved"), categoryAdded = ok("Category Added ");

class CatalogueTest : public JourneyTest {
protected:
    static Boxes refused(const char* why, const char* title = "Item Details") {
        return {ok(why, title), ok("Please enter Valid Data")};
    }
    static TestHost::Box sure(const std::string& name, Answer answer = Answer::Yes) {
        return {"Are you sure you want to Delete ' " + name + " '", "Inventory", Buttons::YesNo, answer};
    }
    // The boxes in which the list of categories adds, with those that can be used.
    const std::function<std::string()> newCategory = [this] {
        const Names boxes{"txtCatName", "cmbParent"};
        return texts(screens->category.window(), boxes) + " " + enabled(screens->category.window(), boxes);
    };
    Texts categoryTable() { return data.rows("select CatId, CatName, ParentCategory from Category order by CatId"); }
};

TEST_F(CatalogueTest, AnItemIsAddedWhenNothingIsMissing) {
    data.execute(
        "update Item set Itemcode = '10.5' where ItemId = 2; update Item set Itemcode = 'A20' where ItemId = 3");
    const QWidget& window = opened("SubMnuAddItem");
    inForm(window, "txtName=Beam; cmdAdd", [&](QWidget& form) {
        EXPECT_EQ(utf8(form.windowTitle()), "Item Master");
        EXPECT_EQ(texts(form, itemBoxes), "11.5|Beam|Framing|0|Bag|0|0|0|0") << "one more than the highest number";
        EXPECT_EQ(visible(form, categoryParts), "CmbCat");
        go(form, "txtCode=; CmdSave", refused("Enter Item #"));
        for (const char* nothing :
             {"txtCode=4; TxtMaterial=; CmdSave", "TxtMaterial=abc; CmdSave", "TxtMaterial=0; CmdSave"})
            go(form, nothing, refused("Enter Material Cost"));
        go(form, "TxtMaterial=-12abc; CmdSave", refused("Enter Default Quantity"));
        go(form, "TxtQty= -1 .5x; txtLabor=-3; txtSubLabor=abc; txtEquipment=1e2; cmbUnit=Each; CmdSave", {itemSaved});
        EXPECT_EQ(enabled(form, {"cmdOk", "CmdSave", "CmdCancel"}), "cmdOk CmdCancel") << "Apply works once";
        go(form, "cmdMainHelp; cmdOk");
        EXPECT_TRUE(calls.back().starts_with("Speak Once you enter all the data, press 'Ok'"));
    });
    const char* table =
        "select Itemcode, Itemname, CategoryId, UnitId, Material, Labor, SubLabor, Equipment, Qty, TU from Item";
    EXPECT_EQ(data.rows(table)[3], "4|Beam|1|1|-12.0|-3.0|0.0|100.0|-1.5|");
    EXPECT_EQ(rows(window).size(), 4U);
    go(window, "cmdAdd > TxtMaterial=-12; TxtQty=-1.5; cmdOk", refused("Duplicate Item Data ", "Inventory"));
    go(window, "txtName=; cmdAdd > cmdOk", refused("Enter Item Description"));
    EXPECT_EQ(data.rows(table).size(), 4U) << "Ok loses what it refuses";
}

TEST_F(CatalogueTest, AnItemIsEditedLookedAtAndDeleted) {
    data.execute("update Item set TU = 'old'; update Item set Labor = null where ItemId = 2");
    const QWidget& window = opened("SubMnuEditItem");
    inForm(window, "OptName; txtName=Joi; cmdSearch; CmdEdit", [&](QWidget& form) {
        EXPECT_EQ(texts(form, itemBoxes), "1|Joist|Framing|2|Each|4|10|5|6");
        EXPECT_EQ(enabled(form, {"txtCode", "TxtName", "CmbCat"}), "txtCode TxtName CmbCat");
        go(form, "TxtName=Brick; TxtMaterial=0.5; TxtQty=100; cmdOk", {itemSaved});  // equal to another one
    });
    EXPECT_EQ(data.cell("select * from Item where ItemId = 1"), "1|1|Brick|1|1|0.5|4.0|5.0|6.0|100.0|")
        << "TU has gone";
    EXPECT_EQ(rows(window).size(), 3U) << "the button shows all";
    inForm(window, "txtName=Nails; cmdSearch; row 0 twice", [&](QWidget& form) {
        EXPECT_EQ(texts(form, {"CmbCat", "txtLabor"}), "Framing|0") << "a price that is Null";
        go(form, "txtCode=20; CmdCancel");
    });
    EXPECT_EQ(rows(window), Texts{"2|2|Nails|Framing|2.5|0|Each"}) << "the double click leaves what was found";

    for (const std::string entryName : {"SubMnuAddItem", "SubMnuDelItem"}) {
        go(screens->item.window(), "cmdExit");
        for (const char* row : {"row 0 twice", "row 1 twice"})
            inForm(opened(entryName), row, [&](QWidget& form) {
                EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}) + enabled(form, itemBoxes), "CmdCancel");
                go(form, "close");
            });
    }
    const QWidget& last = screens->item.window();
    go(last, "cmdMainHelp");
    EXPECT_TRUE(calls.back().starts_with("Speak This screen allows you to delete the Item from the master table."));
    go(last, "row 1; txtName=x; cmdDel", {sure("2", Answer::No)});
    EXPECT_EQ(text(last, "txtName"), "");
    go(last, "row 1; cmdDel", {sure("2"), ok("Deleted", std::string(defaultTitle))});
    EXPECT_EQ(data.rows("select ItemId from Item order by ItemId"), (Texts{"1", "3"}));
    EXPECT_EQ(lines(3).size(), 2U) << "the estimates that use it keep their lines";
}

TEST_F(CatalogueTest, TheFirstItemBeforeTheFirstCategory) {
    data.execute("delete from Category; delete from Item");
    inForm(opened("SubMnuAddItem"), "cmdAdd", [&](QWidget& form) {
        EXPECT_EQ(text(form, "txtCode") + visible(form, categoryParts), "1txtCatName CmdSelCat cmdAddCat");
        go(form, "TxtName=Stud; TxtMaterial=3; TxtQty=1; CmdSave", refused("Please select category"));
        data.execute("insert into Category values (5, 'Lumber', 0)");
        inForm(form, "CmdSelCat", [&](QWidget& tree) {
            EXPECT_EQ(utf8(tree.windowTitle()) + visible(tree, {"cmdAdd", "CmdSelect"}), "Select CategoryCmdSelect");
            EXPECT_TRUE(text(tree, "lblExplain").starts_with("Select category by double clicking"));
            go(tree, "CmdSelect");
        });
        EXPECT_EQ(text(form, "txtCatName"), "Lumber");
        go(form, "cmdAddCat > txtCatName=Boards; cmdAdd; cmdExit", {categoryAdded});
        EXPECT_EQ(visible(form, categoryParts), "CmbCat");
        go(form, "CmbCat=Lumber; cmdOk", {itemSaved});
    });
    EXPECT_EQ(data.rows("select Itemname, CategoryId from Item"), Texts{"Stud|5"});
}

// The menu of a row names windows that the program has not got.
TEST_F(CatalogueTest, ARelatedWindowEndsTheProgram) {
    QWidget& window = opened("SubMnuEditItem");
    clickRow(list(window), 1, Qt::RightButton);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu && menu->objectName() == "mnuRel");
    menu->close();
    const RuntimeFailure failure = endOf([&] { trigger(find<QAction>(window, "mnuRelCatg")); });
    EXPECT_EQ(failure.text() + " " + failure.during(),
              "Object not set opening the window \"Categories associated with 2\"");
    go(window, "cmdExit");
    clickRow(list(opened("SubMnuAddItem")), 1, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "in no other mode";
}

// --- Categories ------------------------------------------------------------------------------------------------------

TEST_F(CatalogueTest, CategoriesAreAddedInTheirList) {
    const QWidget& window = opened("SubMnuAddCat");
    EXPECT_EQ(newCategory(), "|No Parent Category txtCatName cmbParent");
    const std::string empty = "| txtCatName cmbParent";
    tell(window, newCategory,
         {
             {"txtCatName=Decks; cmbParent=Framing; cmdAdd", empty, {categoryAdded}},
             {"txtCatName=Roof; cmdAdd", empty, {categoryAdded}},  // nothing selected: no parent
             {"cmdAdd", empty, refused("Empty Data", "Inventory")},
             {"txtCatName=decks; cmdAdd", empty, refused("Duplicate Data", "Inventory")},
             // The view of a double click, and the way out of it.
             {"row 0 twice", "Decks|Framing "},
             {"cmdAdd", "Decks|Framing txtCatName cmbParent"},
             {"txtCatName=Deck rails; cmdAdd", empty, {categoryAdded}},
         });
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|0", "2|Decks|1", "3|Roof|0", "4|Deck rails|1"}));
    go(window, "txtCatName=Ro; cmdSearch; cmdHelp2; CmdAll");
    EXPECT_TRUE(calls.back().starts_with("Speak Enter the name you want to search"));
    EXPECT_EQ(rows(window), (Texts{"4|Deck rails|0|Framing", "2|Decks|0|Framing", "1|Framing|3|", "3|Roof|0|"}));
}

TEST_F(CatalogueTest, CategoriesEditedIntoACycleAndFiveLevelsDeep) {
    data.execute(
        "insert into Category values (2, 'Lumber', 1), (3, 'Studs', 2), (4, 'Long', 3), (5, 'Dry', 4), (6, 'Own', 0);"
        "update Item set CategoryId = 5 where ItemId = 1; update Item set CategoryId = 6 where ItemId = 2");
    const QWidget& window = opened("SubMnuEditCat");
    const TestHost::Box saved = ok("Category Saved");
    go(window, "row 4 twice > Txtname=Studs; cmbParent=Own; CmdSave; cmdOk", {saved});  // a second one of that name
    go(window, "row 1; CmdEdit > cmbParent=Framing; CmdSave; cmdOk", {saved});
    inForm(window, "row 0; CmdEdit", [&](QWidget& form) {
        EXPECT_EQ(utf8(form.windowTitle()) + texts(form, {"Txtname", "cmbParent"}), "Category DetailsDry|Long");
        go(form, "Txtname=; cmdOk", refused("Empty Data", "Inventory"));
    });
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|1", "2|Lumber|1", "3|Studs|2", "4|Long|3", "5|Dry|4", "6|Studs|6"}));
    for (const auto& [row, shown] : {std::pair{"row 0 twice", "Dry (Long <- Studs <- Lumber)"},
                                     {"row 1 twice", "Studs (Studs <- Studs <- Studs)"}})
        inForm(opened("SubMnuEditItem"), row, [expected = shown, this](QWidget& form) {
            EXPECT_EQ(text(form, "CmbCat"), expected);
            go(form, "CmdCancel");
        });
}

TEST_F(CatalogueTest, OnlyCategoriesWithoutItemsAreDeleted) {
    data.execute("insert into Category values (2, 'Attics', 0), (3, 'Lofts', 2)");
    const QWidget& window = opened("SubMnuDelCat");
    const char* inUse = "Can not delete category 'Framing'. Please delete or reassign items that belong to it first.";
    tell(window, newCategory,
         {
             {"row 0 twice", "Attics|No Parent Category "},
             {"cmdDel", "|No Parent Category txtCatName", {sure("Attics", Answer::No)}},
             {"cmdDel; cmdDel", "|No Parent Category txtCatName", {sure("Attics"), ok(inUse)}},
         });
    EXPECT_EQ(rows(window), (Texts{"1|Framing|3|", "3|Lofts|0|"})) << "what stood under it shows no parent";
}

}  // namespace
}  // namespace torvane
