// Items and categories: added, copied, edited and deleted. The lists themselves are in finding_test.cpp.

#include <QMenu>

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names itemBoxes{"txtCode",  "TxtName",     "CmbCat",      "TxtQty",      "cmbUnit",
                      "txtLabor", "TxtMaterial", "txtSubLabor", "txtEquipment"};
const Names categoryParts{"CmbCat", "txtCatName", "CmdSelCat", "cmdAddCat"};
const Names newCategory{"txtCatName", "cmbParent"};
const TestHost::Box itemSaved = ok(" Item Saved"), categoryAdded = ok("Category Added ");

class CatalogueTest : public JourneyTest {
protected:
    QWidget& items(const char* mode) { return opened(&Screens::item, mode); }
    QWidget& categories(const char* mode) { return opened(&Screens::category, mode); }

    // Acts in the entry form that `open` brings up, which has gone when that is over.
    void inModal(const std::function<void()>& open, std::function<void(QWidget& form)> act) {
        whenModal(std::move(act));
        open();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    void refused(QWidget& form, std::string_view steps, const char* why, const char* title = "Item Details") {
        go(form, steps, {ok(why, title), ok("Please enter Valid Data")});
    }
    static TestHost::Box sure(const std::string& name, Answer answer = Answer::Yes) {
        return {"Are you sure you want to Delete ' " + name + " '", "Inventory", Buttons::YesNo, answer};
    }
    std::string newCategoryBoxes() {
        QWidget& window = screens->category.window();
        return texts(window, newCategory) + " " + enabled(window, newCategory) + " " + screens->category.Which;
    }
    Texts categoryTable() { return data.rows("select CatId, CatName, ParentCategory from Category order by CatId"); }

private:
    template <class List>
    QWidget& opened(List Screens::*list, const char* mode) {
        if (!screens) start();
        run([&] {
            (screens.get()->*list).Which = mode;
            (screens.get()->*list).Show();
        });
        settle();
        return (screens.get()->*list).window();
    }
};

TEST_F(CatalogueTest, AnItemIsAddedWhenNothingIsMissing) {
    QWidget& window = items("A");
    inModal([&] { go(window, "txtName=Beam; cmdAdd"); },
            [&](QWidget& form) {
                EXPECT_EQ(utf8(form.windowTitle()), "Item Master");
                EXPECT_EQ(texts(form, itemBoxes), "4|Beam|Framing|0|Bag|0|0|0|0");
                EXPECT_EQ(visible(form, categoryParts), "CmbCat");
                refused(form, "txtCode=; CmdSave", "Enter Item #");
                for (const char* nothing : {"txtCode=4; TxtMaterial=", "TxtMaterial=abc", "TxtMaterial=0"})
                    refused(form, std::string(nothing) + "; CmdSave", "Enter Material Cost");
                refused(form, "TxtMaterial=-12abc; CmdSave", "Enter Default Quantity");
                go(form, "TxtQty= -1 .5x; txtLabor=-3; txtSubLabor=abc; txtEquipment=1e2; cmbUnit=Each; CmdSave",
                   {itemSaved});
                EXPECT_EQ(enabled(form, {"cmdOk", "CmdSave", "CmdCancel"}), "cmdOk CmdCancel") << "Apply works once";
                EXPECT_EQ(text(form, "TxtName"), "Beam");
                go(form, "cmdMainHelp; cmdOk");
                EXPECT_TRUE(calls.back().starts_with("Speak Once you enter all the data, press 'Ok'"));
            });
    const char* added =
        "select Itemcode, Itemname, CategoryId, UnitId, Material, Labor, SubLabor, Equipment, Qty, TU from Item where ItemId > 3";
    EXPECT_EQ(data.rows(added), Texts{"4|Beam|1|1|-12.0|-3.0|0.0|100.0|-1.5|"});
    EXPECT_EQ(rows(window).size(), 4U);
    inModal([&] { go(window, "txtName=; cmdAdd"); },
            [&](QWidget& form) { refused(form, "cmdOk", "Enter Item Description"); });
    EXPECT_EQ(data.rows(added).size(), 1U) << "Ok loses what it refuses";
}

TEST_F(CatalogueTest, AnItemIsCopied) {
    data.execute("insert into Category values (2, 'Alloy', 1); update Item set CategoryId = 2 where ItemId = 1");
    QWidget& window = items("C");
    EXPECT_EQ(utf8(window.windowTitle()) + visible(window, {"cmdAdd", "cmdCopy"}), "Copy ItemcmdCopy");
    clickRow(list(window), 0);
    inModal([&] { go(window, "cmdCopy"); },
            [&](QWidget& form) {
                EXPECT_EQ(texts(form, itemBoxes), "1|Joist|Alloy (Framing)|2|Each|4|10|5|6");
                refused(form, "CmdSave", "Duplicate Item Data ", "Inventory");
                go(form, "CmbCat=Framing; cmdOk", {itemSaved});
            });
    EXPECT_EQ(data.cell("select Itemcode || Itemname || CategoryId from Item where ItemId = 4"), "1Joist1");
    data.execute("delete from Item");
    EXPECT_EQ(endOf([&] { go(window, "CmdAll; cmdCopy"); }).number(), 91) << "an empty list";
    go(window, "cmdExit");
    QWidget& selecting = items("S");
    EXPECT_EQ(utf8(selecting.windowTitle()) + visible(selecting, {"cmdCopy", "CmdSelect"}), "Select ItemCmdSelect");
    go(selecting, "CmdSelect");
    EXPECT_FALSE(screens->item.loaded());
}

TEST_F(CatalogueTest, AnItemIsEditedViewedAndDeleted) {
    data.execute("update Item set TU = 'old'");
    QWidget& window = items("E");
    inModal([&] { go(window, "OptName; txtName=Joi; cmdSearch; CmdEdit"); },
            [&](QWidget& form) {
                EXPECT_EQ(enabled(form, {"txtCode", "TxtName", "CmbCat"}), "txtCode TxtName CmbCat");
                go(form, "TxtName=Brick; TxtMaterial=0.5; TxtQty=100; cmdOk", {itemSaved});  // equal to another one
            });
    EXPECT_EQ(data.cell("select * from Item where ItemId = 1"), "1|1|Brick|1|1|0.5|4.0|5.0|6.0|100.0|")
        << "TU has gone";
    EXPECT_EQ(rows(window).size(), 3U) << "the button shows all";
    go(window, "txtName=Nails; cmdSearch");
    inModal([&] { key(list(window), Qt::Key_Return); }, [&](QWidget& form) { go(form, "txtCode=20; CmdCancel"); });
    EXPECT_EQ(rows(window), Texts{"2|2|Nails|Framing|2.5|0|Each"}) << "the double click leaves what was found";
    EXPECT_EQ(screens->item.Which, "EE");

    for (const std::string mode : {"A", "D"}) {
        go(screens->item.window(), "cmdExit");
        QWidget& viewed = items(mode.c_str());
        for (int row : {0, 1})
            inModal([&] { doubleClickRow(viewed, row); },
                    [&](QWidget& form) {
                        EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}), "CmdCancel");
                        EXPECT_EQ(enabled(form, itemBoxes), "");
                        closeBox(form);
                    });
        EXPECT_EQ(screens->item.Which, mode + "E");
        calls.clear();
        go(viewed, "cmdMainHelp");
        EXPECT_EQ(calls.size(), mode == "D" ? 2U : 1U);
    }
    QWidget& last = screens->item.window();
    go(last, "txtName=x; cmdDel", {sure("2", Answer::No)});
    EXPECT_EQ(text(last, "txtName"), "");
    go(last, "cmdDel", {sure("2"), ok("Deleted", std::string(defaultTitle))});
    EXPECT_EQ(data.rows("select ItemId from Item order by ItemId"), (Texts{"1", "3"}));
    EXPECT_EQ(lines(3).size(), 2U) << "the estimates that use it keep their lines";
}

TEST_F(CatalogueTest, TheFirstItemBeforeTheFirstCategory) {
    data.execute("delete from Category");
    inModal([&] { go(items("A"), "cmdAdd"); },
            [&](QWidget& form) {
                EXPECT_EQ(visible(form, categoryParts), "txtCatName CmdSelCat cmdAddCat");
                refused(form, "TxtName=Stud; TxtMaterial=3; TxtQty=1; CmdSave", "Please select category");
                data.execute("insert into Category values (5, 'Lumber', 0)");
                whenModal([&](QWidget& tree) {
                    EXPECT_EQ(utf8(tree.windowTitle()) + visible(tree, {"cmdAdd", "CmdSelect"}),
                              "Select CategoryCmdSelect");
                    EXPECT_TRUE(text(tree, "lblExplain").starts_with("Select category by double clicking"));
                    go(tree, "CmdSelect");
                });
                go(form, "CmdSelCat");
                EXPECT_EQ(text(form, "txtCatName"), "Lumber");
                whenModal([&](QWidget& tree) { go(tree, "txtCatName=Boards; cmdAdd; cmdExit", {categoryAdded}); });
                go(form, "cmdAddCat");
                EXPECT_EQ(visible(form, categoryParts), "CmbCat");
                go(form, "CmbCat=Lumber; cmdOk", {itemSaved});
            });
    EXPECT_EQ(data.cell("select CategoryId from Item where ItemName = 'Stud'"), "5");
    data.execute("delete from Category");
    EXPECT_EQ(endOf([&] { go(categories("S"), "CmdSelect"); }).number(), 91) << "nothing to select";
}

TEST_F(CatalogueTest, RelatedWindowsAreNotThere) {
    QWidget& window = items("E");
    clickRow(list(window), 1, Qt::RightButton);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu && menu->objectName() == "mnuRel");
    menu->close();
    const RuntimeFailure failure = endOf([&] { trigger(find<QAction>(window, "mnuRelCatg")); });
    EXPECT_EQ(failure.text() + " " + failure.during(),
              "Object not set opening the window \"Categories associated with 2\"");
    clickRow(list(items("A")), 1, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "in no other mode";
}

// --- Categories ------------------------------------------------------------------------------------------------------

TEST_F(CatalogueTest, CategoriesAreAddedInTheirList) {
    QWidget& window = categories("A");
    EXPECT_EQ(texts(window, newCategory), "|No Parent Category");
    go(window, "txtCatName=Decks; cmbParent=Framing; cmdAdd", {categoryAdded});
    EXPECT_EQ(rows(window), (Texts{"2|Decks|0|Framing", "1|Framing|3|"}));
    EXPECT_EQ(newCategoryBoxes(), "| txtCatName cmbParent A");
    go(window, "txtCatName=Roof; cmdAdd", {categoryAdded});  // nothing selected: no parent
    refused(window, "cmdAdd", "Empty Data", "Inventory");
    refused(window, "txtCatName=decks; cmdAdd", "Duplicate Data", "Inventory");
    // The view of a double click, and the way out of it.
    doubleClickRow(window, 0);
    EXPECT_EQ(newCategoryBoxes(), "Decks|Framing  AE");
    go(window, "cmdAdd");
    EXPECT_EQ(newCategoryBoxes(), "Decks|Framing txtCatName cmbParent A");
    go(window, "txtCatName=Deck rails; cmdAdd", {categoryAdded});
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|0", "2|Decks|1", "3|Roof|0", "4|Deck rails|1"}));
    go(window, "txtCatName=Ro; cmdSearch; cmdHelp2; CmdAll");
    EXPECT_TRUE(calls.back().starts_with("Speak Enter the name you want to search"));
    EXPECT_EQ(rows(window).size(), 4U);
}

TEST_F(CatalogueTest, CategoriesEditedIntoACycleAndFiveLevelsDeep) {
    data.execute(
        "insert into Category values (2, 'Lumber', 1), (3, 'Studs', 2), (4, 'Long', 3), (5, 'Dry', 4), (6, 'Own', 0);"
        "update Item set CategoryId = 5 where ItemId = 1; update Item set CategoryId = 6 where ItemId = 2");
    QWidget& window = categories("E");
    const auto edit = [&](const std::function<void()>& open, const char* steps) {
        inModal(open,
                [&](QWidget& form) { go(form, std::string(steps) + "; CmdSave; cmdOk", {ok("Category Saved")}); });
    };
    edit([&] { doubleClickRow(window, 4); }, "Txtname=Studs; cmbParent=Own");  // a second one of that name
    EXPECT_EQ(texts(window, newCategory), "Own|No Parent Category");
    clickRow(list(window), 1);
    edit([&] { go(window, "CmdEdit"); }, "cmbParent=Framing");
    clickRow(list(window), 0);
    inModal([&] { go(window, "CmdEdit"); },
            [&](QWidget& form) {
                EXPECT_EQ(utf8(form.windowTitle()) + texts(form, {"Txtname", "cmbParent"}), "Category DetailsDry|Long");
                refused(form, "Txtname=; cmdOk", "Empty Data", "Inventory");
            });
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|1", "2|Lumber|1", "3|Studs|2", "4|Long|3", "5|Dry|4", "6|Studs|6"}));
    EXPECT_EQ(screens->category.Which, "E");
    for (const auto& [row, shown] :
         {std::pair{0, "Dry (Long <- Studs <- Lumber)"}, {1, "Studs (Studs <- Studs <- Studs)"}})
        inModal([&, index = row] { doubleClickRow(items("E"), index); },
                [&, expected = shown](QWidget& form) {
                    EXPECT_EQ(text(form, "CmbCat"), expected);
                    go(form, "CmdCancel");
                });
}

TEST_F(CatalogueTest, OnlyCategoriesWithoutItemsAreDeleted) {
    data.execute("insert into Category values (2, 'Attics', 0), (3, 'Lofts', 2)");
    QWidget& window = categories("D");
    doubleClickRow(window, 0);
    EXPECT_EQ(newCategoryBoxes(), "Attics|No Parent Category  DE");
    go(window, "cmdDel", {sure("Attics", Answer::No)});
    EXPECT_EQ(newCategoryBoxes(), "|No Parent Category txtCatName DE");
    go(window, "cmdDel; cmdDel",
       {sure("Attics"),
        ok("Can not delete category 'Framing'. Please delete or reassign items that belong to it first.")});
    EXPECT_EQ(rows(window), (Texts{"1|Framing|3|", "3|Lofts|0|"})) << "what stood under it shows no parent";
}

}  // namespace
}  // namespace torvane
