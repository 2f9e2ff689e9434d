// Customers, items, categories, takeoff names and units: added, edited and deleted. The lists are in finding_test.cpp.

#include <QLabel>
#include <QMenu>

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names customerBoxes{"TxtCname",    "TxtBstreet1", "TxtBstreet2", "TxtBcity",   "CmbBState", "TxtBZip",
                          "TxtBCountry", "TxtBPhone",   "TxtBfax",     "TxtBMobile", "TxtBEmail", "TxtBUrl"};
const Names itemBoxes{"txtCode",  "TxtName",     "CmbCat",      "TxtQty",      "cmbUnit",
                      "txtLabor", "TxtMaterial", "txtSubLabor", "txtEquipment"};
const Names categoryParts{"CmbCat", "txtCatName", "CmdSelCat", "cmdAddCat"};
const TestHost::Box customerSaved = ok("Customer Saved"), itemSaved = ok(" Item Saved");
const TestHost::Box categoryAdded = ok("Category Added "), deleted = ok("Deleted", std::string(defaultTitle));

class MastersTest : public JourneyTest {
protected:
    static Boxes refused(const char* why, const char* title = "Inventory") {
        return {ok(why, title), ok("Please enter Valid Data")};
    }
    static TestHost::Box keep(const std::string& name) {
        return no("Are you sure you want to Delete ' " + name + " '", "Inventory");
    }
    static TestHost::Box remove(const std::string& name) { return yes(keep(name).text, "Inventory"); }
    // The boxes in which the list of categories adds, with those that can be used.
    const std::function<std::string()> newCategory = [this] {
        const Names boxes{"txtCatName", "cmbParent"};
        return texts(screens->category.window(), boxes) + " " + enabled(screens->category.window(), boxes);
    };
    Texts table(const std::string& which) { return data.rows("select * from " + which + " order by 1"); }

    // What the window of takeoff names or units shows.
    const std::function<std::string()> nameShown = [this] {
        return texts(screens->master.window(), {"txtName", "lblRecord"});
    };
    static Boxes savingName(const char* says) {
        return {yes("Do you want to save the record?", "Save Data"), ok(says, "Master Entry")};
    }
    static Boxes deletingName(const std::string& which) {
        return {yes("Do you want to delete '" + which + "'?", "Master Entry")};
    }
};

// --- Customers -------------------------------------------------------------------------------------------------------

TEST_F(MastersTest, ACustomerIsAddedOnceAndNotTwice) {
    QWidget& window = opened("SubMnuAddCust");
    inForm(window, "txtCustName=Cara Moe; cmdAdd", [&](QWidget& form) {
        EXPECT_EQ(utf8(form.windowTitle()) + texts(form, customerBoxes), "Customer InfoCara Moe||||Alabama|||||||");
        go(form,
           "TxtBstreet1=1; TxtBstreet2=2; TxtBcity=3; CmbBState=Nevada; TxtBZip=4; TxtBCountry=5; TxtBPhone=6; "
           "TxtBfax=7; TxtBMobile=8; TxtBEmail=9; TxtBUrl=10; CmdSave",
           {customerSaved});
        EXPECT_EQ(enabled(form, {"CmdSave", "cmdOk"}) + text(form, "TxtCname"), "cmdOkCara Moe") << "Apply works once";
        go(form, "cmdMainHelp; cmdOk");
        EXPECT_TRUE(calls.back().starts_with("Speak Once you enter all the data, press 'Ok'"));
    });
    EXPECT_EQ(table("Customer")[2], "9|Cara Moe|1|2|3|29|4|5|6|7|8|9|10|null");
    data.execute("insert into Customer values (10, 'Twin', '', '', '', 1, '', '', '', '', '', '', '', null)");
    // Ok loses what was refused, Apply does not.
    Boxes second = refused("Duplicate Customer Data");
    go(window, "txtCustName=; cmdAdd > cmdOk", refused("Enter Customer Name"));
    go(window, "txtCustName=Twin; cmdAdd > cmdOk", second);
    second.push_back(customerSaved);
    go(window, "txtCustName=Twin; cmdAdd > CmdSave; TxtBZip=1; cmdOk", second);
    EXPECT_EQ(rows(window), (Texts{"7|Ann Lee|Salem|555-1|ann@example.com", "8|Bob Ray|Troy|777-1|", "9|Cara Moe|3|6|9",
                                   "10|Twin|||", "11|Twin|||"}));
    go(window, "OptName; txtCustName=Twin; cmdSearch; cmdAdd > CmdCancel");
    EXPECT_EQ(rows(window).size(), 5U) << "the button shows all";
}

TEST_F(MastersTest, ACustomerIsEditedByButtonAndByDoubleClick) {
    QWidget& window = opened("SubMnuEditCust");
    inForm(window, "OptName; txtCustName=Ann; cmdSearch; CmdEdit", [&](QWidget& form) {
        EXPECT_EQ(texts(form, customerBoxes),
                  "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-2|555-3|ann@example.com|www");
        go(form, "TxtBcity=Bend; CmdCancel");
    });
    EXPECT_EQ(rows(window).size(), 2U) << "the button shows all";
    go(window, "CmdEdit > cmdOk", {customerSaved});  // equal to itself
    EXPECT_TRUE(table("Customer")[0].ends_with("|ann@example.com|www|A7")) << "what the form does not show stays";
    go(window, "row 1 twice > TxtCname=Bob Roy; TxtBUrl=bob.example.com; cmdOk", {customerSaved});
    EXPECT_EQ(table("Customer")[1], "8|Bob Roy|||Troy|1|||777-1||||bob.example.com|null")
        << "a state that is none is saved as the first one";
    go(window, "txtCustName=Ann; cmdSearch; row 0 twice > TxtCname=Ann Moe; CmdSave; close", {customerSaved});
    EXPECT_EQ(rows(window), Texts{"7|Ann Moe|Salem|555-1|ann@example.com"}) << "the double click leaves what was found";
}

TEST_F(MastersTest, ACustomerIsLookedAtByADoubleClickAndDeletedAfterAQuestion) {
    QWidget& window = opened("SubMnuDelCust");
    inForm(window, "row 0 twice", [&](QWidget& form) {
        EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}) + enabled(form, customerBoxes), "CmdCancel");
        go(form, "CmdCancel");
    });
    calls.clear();
    go(window, "cmdMainHelp; row 1; txtCustName=x; cmdDel", {keep("Bob Ray")});
    EXPECT_EQ(calls, Texts{"Show"}) << "there is nothing to say in this mode";
    EXPECT_EQ(text(window, "txtCustName") + std::to_string(rows(window).size()), "2");
    EXPECT_TRUE(find<QWidget>(window, "txtCustName").hasFocus());
    go(window, "row 1; cmdDel; cmdDel; cmdDel", {remove("Bob Ray"), deleted, remove("Ann Lee"), deleted});
    EXPECT_EQ(rows(window), Texts{});
    EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 0 of 1") << "a read without rows leaves the count as it was";
    EXPECT_EQ(lines(5).size(), 1U) << "the estimates of a customer stay";
}

// --- Items -----------------------------------------------------------------------------------------------------------

TEST_F(MastersTest, AnItemIsAddedWhenNothingIsMissing) {
    data.execute("update Item set Itemcode = iif(ItemId = 2, '10.5', 'A20') where ItemId > 1");
    const QWidget& window = opened("SubMnuAddItem");
    inForm(window, "txtName=Beam; cmdAdd", [&](QWidget& form) {
        EXPECT_EQ(utf8(form.windowTitle()) + visible(form, categoryParts), "Item MasterCmbCat");
        EXPECT_EQ(texts(form, itemBoxes), "11.5|Beam|Framing|0|Bag|0|0|0|0") << "one more than the highest number";
        go(form, "txtCode=; CmdSave", refused("Enter Item #", "Item Details"));
        for (const char* nothing : {"", "abc", "0"})
            go(form, std::string("txtCode=4; TxtMaterial=") + nothing + "; CmdSave",
               refused("Enter Material Cost", "Item Details"));
        go(form, "TxtMaterial=-12abc; CmdSave", refused("Enter Default Quantity", "Item Details"));
        go(form, "TxtQty= -1 .5x; txtLabor=-3; txtSubLabor=abc; txtEquipment=1e2; cmbUnit=Each; cmdOk", {itemSaved});
    });
    EXPECT_EQ(table("Item")[3], "4|4|Beam|1|1|-12.0|-3.0|0.0|100.0|-1.5|");
    go(window, "cmdAdd > TxtMaterial=-12; TxtQty=-1.5; cmdOk", refused("Duplicate Item Data "));
    go(window, "txtName=; cmdAdd > cmdOk", refused("Enter Item Description", "Item Details"));
    EXPECT_EQ(rows(window).size(), 4U) << "Ok loses what it refuses";
}

TEST_F(MastersTest, AnItemIsEditedLookedAtAndDeleted) {
    data.execute("update Item set TU = 'old'; update Item set Labor = null where ItemId = 2");
    const QWidget& window = opened("SubMnuEditItem");
    inForm(window, "OptName; txtName=Joi; cmdSearch; CmdEdit", [&](QWidget& form) {
        EXPECT_EQ(texts(form, itemBoxes), "1|Joist|Framing|2|Each|4|10|5|6");
        go(form, "txtCode=7; TxtName=Brick; TxtMaterial=0.5; TxtQty=100; cmdOk", {itemSaved});  // equal to another one
    });
    EXPECT_EQ(table("Item")[0], "1|7|Brick|1|1|0.5|4.0|5.0|6.0|100.0|") << "TU has gone";
    inForm(window, "txtName=Nails; cmdSearch; row 0 twice", [&](QWidget& form) {
        EXPECT_EQ(text(form, "txtLabor"), "0") << "a price that is Null";
        go(form, "txtCode=20; CmdCancel");
    });
    go(window, "cmdExit");
    const QWidget& deleting = opened("SubMnuDelItem");
    // Each look leaves the list in another mode behind, in which the next one is the same.
    for (const char* entryName : {"SubMnuDelItem", "SubMnuAddItem", "SubMnuDelItem"})
        inForm(opened(entryName), "row 1 twice", [&](QWidget& form) {
            EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}) + enabled(form, itemBoxes), "CmdCancel");
            go(form, "close");
        });
    go(deleting, "cmdMainHelp; row 0; cmdDel", {remove("2"), deleted});
    EXPECT_TRUE(calls.back().starts_with("Speak This screen allows you to delete the Item from the master table."));
    EXPECT_EQ(rows(deleting).size(), 2U);
    EXPECT_EQ(lines(3).size(), 2U) << "the estimates that use it keep their lines";
}

TEST_F(MastersTest, TheFirstItemBeforeTheFirstCategory) {
    data.execute("delete from Category; delete from Item");
    inForm(opened("SubMnuAddItem"), "cmdAdd", [&](QWidget& form) {
        EXPECT_EQ(text(form, "txtCode") + visible(form, categoryParts), "1txtCatName CmdSelCat cmdAddCat");
        go(form, "TxtName=Stud; TxtMaterial=3; TxtQty=1; CmdSave", refused("Please select category", "Item Details"));
        data.execute("insert into Category values (5, 'Lumber', 0)");
        inForm(form, "CmdSelCat", [&](QWidget& tree) {
            EXPECT_EQ(utf8(tree.windowTitle()) + visible(tree, {"cmdAdd", "CmdSelect"}), "Select CategoryCmdSelect");
            EXPECT_TRUE(text(tree, "lblExplain").starts_with("Select category by double clicking"));
            go(tree, "CmdSelect");
        });
        EXPECT_EQ(text(form, "txtCatName"), "Lumber");
        go(form, "cmdAddCat > txtCatName=Boards; cmdAdd; cmdExit", {categoryAdded});
        EXPECT_EQ(visible(form, categoryParts), "CmbCat");
        EXPECT_EQ(find<QLabel>(form, "Label3").buddy(), &find<QWidget>(form, "CmbCat"))
            << "as a screen reader finds it";
        go(form, "CmbCat=Lumber; cmdOk", {itemSaved});
    });
    EXPECT_EQ(data.rows("select Itemname, CategoryId from Item"), Texts{"Stud|5"});
}

TEST_F(MastersTest, NothingToEditOrToDelete) {
    data.execute("delete from Category; delete from Item; delete from Customer");
    for (const char* what : {"Cat", "Item", "Cust"}) {
        go(opened(std::string("SubMnuEdit") + what), "CmdEdit; cmdExit");
        go(opened(std::string("SubMnuDel") + what), "cmdDel; cmdExit");
    }
}

// The menu of a row names windows that the program has not got.
TEST_F(MastersTest, ARelatedWindowEndsTheProgram) {
    QWidget& window = opened("SubMnuEditItem");
    clickRow(list(window), 1, Qt::RightButton);
    EXPECT_TRUE(find<QMenu>(window, "mnuRel").isVisible());
    QApplication::activePopupWidget()->close();
    const RuntimeFailure failure = endOf([&] { trigger(find<QAction>(window, "mnuRelCatg")); });
    EXPECT_EQ(failure.text() + failure.during(), "Object not setopening the window \"Categories associated with 2\"");
}

// --- Categories ------------------------------------------------------------------------------------------------------

TEST_F(MastersTest, CategoriesAreAddedInTheirList) {
    const QWidget& window = opened("SubMnuAddCat");
    EXPECT_EQ(newCategory(), "|No Parent Category txtCatName cmbParent");
    const std::string empty = "| txtCatName cmbParent";
    tell(window, newCategory,
         {{"txtCatName=Decks; cmbParent=Framing; cmdAdd", empty, {categoryAdded}},
          {"txtCatName=Roof; cmdAdd", empty, {categoryAdded}},  // nothing selected: no parent
          {"cmdAdd", empty, refused("Empty Data")},
          {"txtCatName=decks; cmdAdd", empty, refused("Duplicate Data")},
          // The view of a double click, and the way out of it.
          {"row 0 twice", "Decks|Framing "},
          {"cmdAdd", "Decks|Framing txtCatName cmbParent"},
          {"txtCatName=Deck rails; cmdAdd", empty, {categoryAdded}}});
    EXPECT_TRUE(find<QWidget>(window, "txtCatName").hasFocus()) << "ready for the next one";
    EXPECT_EQ(table("Category"), (Texts{"1|Framing|0", "2|Decks|1", "3|Roof|0", "4|Deck rails|1"}));
    go(window, "txtCatName=Ro; cmdSearch; cmdHelp2; CmdAll");
    EXPECT_TRUE(calls.back().starts_with("Speak Enter the name you want to search"));
    EXPECT_EQ(rows(window), (Texts{"4|Deck rails|0|Framing", "2|Decks|0|Framing", "1|Framing|3|", "3|Roof|0|"}));
}

TEST_F(MastersTest, CategoriesEditedIntoACycleAndFiveLevelsDeep) {
    data.execute(
        "insert into Category values (2, 'Lumber', 1), (3, 'Studs', 2), (4, 'Long', 3), (5, 'Dry', 4), (6, 'Own', 0);"
        "update Item set CategoryId = 5 where ItemId = 1; update Item set CategoryId = 6 where ItemId = 2");
    const QWidget& window = opened("SubMnuEditCat");
    const TestHost::Box saved = ok("Category Saved");
    go(window, "row 4 twice > Txtname=Studs; cmbParent=Own; CmdSave; cmdOk", {saved});  // a second one of that name
    go(window, "row 1; CmdEdit > cmbParent=Framing; CmdSave; close", {saved});
    EXPECT_EQ(rows(window).at(1), "1|Framing|1|Framing");
    inForm(window, "txtCatName=Dry; cmdSearch; row 0 twice", [&](QWidget& form) {
        EXPECT_EQ(utf8(form.windowTitle()) + texts(form, {"Txtname", "cmbParent"}), "Category DetailsDry|Long");
        go(form, "Txtname=; cmdOk", refused("Empty Data"));
    });
    EXPECT_EQ(table("Category"), (Texts{"1|Framing|1", "2|Lumber|1", "3|Studs|2", "4|Long|3", "5|Dry|4", "6|Studs|6"}));
    EXPECT_EQ(rows(window).size(), 6U) << "all are shown again";
    std::string shown;
    for (const char* row : {"row 0 twice", "row 1 twice", "row 2 twice"})
        inForm(opened("SubMnuEditItem"), row, [&](QWidget& form) {
            shown += text(form, "CmbCat");
            go(form, "CmdCancel");
        });
    EXPECT_EQ(shown,
              "Dry (Long <- Studs <- Lumber)Studs (Studs <- Studs <- Studs)Framing (Framing <- Framing <- Framing)");
}

TEST_F(MastersTest, OnlyCategoriesWithoutItemsAreDeleted) {
    data.execute("insert into Category values (2, 'Attics', 0), (3, 'Lofts', 2); delete from Item where ItemId > 1");
    const QWidget& window = opened("SubMnuDelCat");
    const char* inUse = "Can not delete category 'Framing'. Please delete or reassign items that belong to it first.";
    tell(window, newCategory,
         {{"row 0 twice", "Attics|No Parent Category "},
          {"cmdDel", "|No Parent Category txtCatName", {keep("Attics")}},
          {"cmdDel; cmdDel", "|No Parent Category txtCatName", {remove("Attics"), ok(inUse)}}});
    EXPECT_EQ(rows(window), (Texts{"1|Framing|1|", "3|Lofts|0|"})) << "what stood under it shows no parent";
}

// --- Takeoff names and units, one record at a time -------------------------------------------------------------------

TEST_F(MastersTest, NamesAreMovedThroughSearchedAddedAndChanged) {
    QWidget& window = opened("mnuRooms");
    opened("mnuUnits");  // stands already: it stays what it was
    EXPECT_EQ(utf8(window.windowTitle()) + text(window, "Label1"), "Takeoff Name  Master Entry ScreenTakeoff Name :");
    const TestHost::Box notSaved =
        no("You have not saved the data you added. Do you want to save it first?", "Master Entry");
    Boxes savedFirst = savingName("Record Saved");
    savedFirst.insert(savedFirst.begin(), yes(notSaved.text, notSaved.title));
    tell(window, nameShown,
         {{"cmdPrevious", "Attic|Record : 1 of 3"},
          {"cmdNext", "Deck|Record : 2 of 3"},
          {"cmdNext; cmdNext", "Roof|Record : 3 of 3"},
          {"cmdPrevious", "Deck|Record : 2 of 3"},
          {"txtSearch=OF; cmdSearch", "Roof|Record : 3 of 3"},
          {"txtSearch=at; cmdSearch", "Attic|Record : 1 of 3"},
          {"txtSearch=zz; cmdSearch", "Attic|Record : 1 of 3", {ok("No Result found.", "Search")}},
          {"cmdAdd", "|Record : 1 of 3"},
          {"CmdSave", "|Record : 1 of 3", savingName("Empty Data")},
          {"cmdAdd; txtName=deck; CmdSave", "deck|Record : 1 of 3", savingName("Duplicate Data 'deck'")},
          // What stands is changed then: only adding looks for a second one.
          {"CmdSave", "deck|Record : 1 of 3", savingName("Record Saved")},
          {"cmdAdd; txtName=Bath; CmdSave", "Bath|Record : 1 of 3", savingName("Record Saved")},
          {"cmdPrevious", "Bath|Record : 1 of 4"},
          {"cmdAdd; txtName=Yard; cmdNext", "deck|Record : 2 of 4", {notSaved}},
          {"cmdAdd; txtName=Yard; cmdNext", "Deck|Record : 3 of 5", savedFirst}});
    go(window, "cmdAdd");
    EXPECT_TRUE(find<QWidget>(window, "txtName").hasFocus());
    go(window, "txtName=Lost; cmdMainHelp; cmdExit");  // asks nothing
    EXPECT_TRUE(calls.back().starts_with("Speak This screen allows you to enter the data which will"));
    EXPECT_EQ(table("Rooms"), (Texts{"1|deck", "2|Deck", "3|Roof", "4|Bath", "5|Yard"}));
    QWidget& units = opened("mnuUnits");
    EXPECT_EQ(utf8(units.windowTitle()) + text(units, "Label1") + nameShown(),
              "Units Master Entry ScreenUnit Name :Bag|Record : 1 of 2");
}

TEST_F(MastersTest, DeletingANameMovesOnInTheShortenedTable) {
    data.execute("insert into Rooms values (4, 'Cellar'), (5, 'Yard')");
    tell(opened("mnuRooms"), nameShown,
         {{"cmdNext; cmdDelete", "Cellar|Record : 2 of 5", {no("Do you want to delete 'Cellar'?", "Master Entry")}},
          {"cmdDelete", "Roof|Record : 3 of 4", deletingName("Cellar")},
          {"cmdDelete", "Yard|Record : 3 of 3", deletingName("Roof")},
          {"cmdDelete", "Deck|Record : 2 of 2", deletingName("Yard")},
          {"cmdDelete", "Attic|Record : 1 of 1", deletingName("Deck")},
          {"cmdDelete", "Attic|Record : 1 of 1", deletingName("Attic")},  // an empty table leaves what is shown
          {"cmdNext; cmdPrevious; cmdAdd; txtName=Den; CmdSave", "Den|Record : 1 of 1", savingName("Record Saved")},
          {"cmdNext", "Den|Record : 1 of 1"}});
    EXPECT_EQ(table("Rooms"), Texts{"6|Den"}) << "no key is given twice";
}

}  // namespace
}  // namespace torvane
