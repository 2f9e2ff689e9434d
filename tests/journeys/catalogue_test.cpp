// The item window with its entry form, and the category window with its own.

#include <QHeaderView>
#include <QMenu>

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names itemActions{"cmdAdd", "cmdCopy", "CmdEdit", "cmdDel", "CmdSelect"};
const Names categoryActions{"cmdAdd", "CmdEdit", "cmdDel", "CmdSelect"};
const Names itemBoxes{"txtCode",  "TxtName",     "CmbCat",      "TxtQty",      "cmbUnit",
                      "txtLabor", "TxtMaterial", "txtSubLabor", "txtEquipment"};
const Names entryButtons{"cmdOk", "CmdSave", "CmdCancel"};
using Boxes = std::vector<TestHost::Box>;
std::string sure(const std::string& name) {
    return "Are you sure you want to Delete ' " + name + " '";
}
const TestHost::Box deleted = ok("Deleted", std::string(defaultTitle));
const TestHost::Box itemSaved = ok(" Item Saved");
const TestHost::Box categoryAdded = ok("Category Added ");
const std::string joist = "1|1|Joist|Framing|10|2|Each";
const std::string nails = "2|2|Nails|Framing|2.5|0|Each";
const std::string brick = "3|3|Brick|Framing|0.5|100|Bag";

class CatalogueTest : public JourneyTest {
protected:
    QWidget& items(const char* mode) { return opened(screens_().item, mode); }
    QWidget& categories(const char* mode) { return opened(screens_().category, mode); }

    // What the boxes of an entry form say, then its closing.
    void inModal(const std::function<void()>& open, std::function<void(QWidget& form)> act) {
        whenModal(std::move(act));
        open();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    void refused(QWidget& form, std::string_view button, const char* why, const char* title) {
        go(form, button, {ok(why, title), ok("Please enter Valid Data")});
    }
    std::string item(int id) { return data.cell("select * from Item where ItemId = " + std::to_string(id)); }
    std::string count(const char* table) { return data.cell(std::string("select count(*) from ") + table); }
    Texts categoryTable() { return data.rows("select CatId, CatName, ParentCategory from Category order by CatId"); }

private:
    Screens& screens_() {
        if (!screens) start();
        return *screens;
    }
    template <class List>
    QWidget& opened(List& window, const char* mode) {
        run([&] {
            window.Which = mode;
            window.Show();
        });
        settle();
        return window.window();
    }
};

TEST_F(CatalogueTest, MenuEntriesOpenTheirModes) {
    struct Row {
        const char* entry;
        const char* caption;
        const char* button;
        const char* explain;  // of the category window
        std::string help;     // of the item window
    };
    start();
    for (const Row& row :
         {Row{"SubMnuAddItem", "Add Item", "cmdAdd", "",
              "This screen allows you to enter the Items in the master table. Click on 'Add' button to add a new "
              "record in "
              "the Items database. "},
          Row{"SubMnuEditItem", "Edit Item", "CmdEdit", "",
              "This screen allows you to edit the Items in the master table. Select the item record by double clicking "
              "on "
              "the item row or selecting the item and pressing 'Edit' button"},
          Row{"SubMnuDelItem", "Delete Item", "cmdDel", "", ""},
          Row{"SubMnuAddCat", "Add Category", "cmdAdd",
              "Enter the category name, select parent category and press the 'Add' button to add a new category", ""},
          Row{"SubMnuEditCat", "Edit Category", "CmdEdit",
              "Double click on the category row that you wish to edit and change the category name or parent category "
              "in the "
              "window that appears.",
              ""},
          Row{"SubMnuDelCat", "Delete Category", "cmdDel",
              "Select the category you wish to delete from the table by clicking that row and press the 'Delete' "
              "button.",
              ""}}) {
        SCOPED_TRACE(row.entry);
        choose(row.entry);
        const bool ofItems = standing("frmItem") != nullptr;
        QWidget& window = ofItems ? *standing("frmItem") : *standing("frmCategory");
        EXPECT_EQ(utf8(window.windowTitle()), row.caption);
        EXPECT_EQ(visible(window, ofItems ? itemActions : categoryActions), row.button);
        calls.clear();
        go(window, "cmdMainHelp");
        if (ofItems) {
            EXPECT_EQ(calls, row.help.empty() ? Texts{"Show"} : (Texts{"Show", "Speak " + row.help}));
        } else {
            EXPECT_EQ(text(window, "lblExplain"), row.explain);
        }
        go(window, "cmdExit");
        EXPECT_FALSE(screens->item.loaded() || screens->category.loaded());
    }
    EXPECT_EQ(utf8(items("C").windowTitle()) + visible(items("C"), itemActions), "Copy ItemcmdCopy");
    go(items("C"), "cmdExit");
    EXPECT_EQ(utf8(items("S").windowTitle()) + visible(items("S"), itemActions), "Select ItemCmdSelect");
    go(items("S"), "CmdSelect");
    EXPECT_EQ(standing("frmItem"), nullptr);
    items("");
    EXPECT_EQ(utf8(items("").windowTitle()) + visible(items(""), itemActions), "Items");
}

TEST_F(CatalogueTest, ColumnsAndSorting) {
    data.execute(
        "update Item set TU = char(98 - ItemId), Itemcode = case ItemId when 1 then '10' when 2 then '9' else 'A1' end;"
        "insert into Category values (2, 'Alloy', 1); update Item set CategoryId = 2 where ItemId = 1");
    struct Row {
        int column;
        const char* header;
        int twips;
        bool right;
        const char* descending;  // keys after one click, and after two
        const char* ascending;
    };
    const auto keys = [](const QWidget& window) {
        std::string all;
        for (const std::string& row : rows(window)) all += row.substr(0, 1);
        return all;
    };
    QWidget& window = items("E");
    auto& view = list(window);
    EXPECT_TRUE(view.isColumnHidden(0));
    EXPECT_EQ(keys(window), "321") << "numbers in their order, after what is none";
    for (const Row& row : {Row{1, "Item #", 1800, false, "123", "321"}, Row{2, "Item Name", 2400, false, "213", "312"},
                           Row{3, "Category", 1800, false, "231", "123"}, Row{4, "Material", 1200, true, "123", "321"},
                           Row{5, "Quantity", 1200, true, "312", "213"}, Row{6, "Unit", 1200, false, "123", "321"}}) {
        SCOPED_TRACE(row.header);
        EXPECT_EQ(utf8(view.headerItem()->text(row.column)), row.header);
        EXPECT_EQ(view.header()->sectionSize(row.column), row.twips / 15);
        EXPECT_EQ((view.headerItem()->textAlignment(row.column) & Qt::AlignRight) != 0, row.right);
        clickHeader(view, row.column);
        EXPECT_EQ(view.columnIcon(row.column), ReportList::Icon::Down);
        EXPECT_EQ(keys(window), row.descending);
        clickHeader(view, row.column);
        EXPECT_EQ(view.columnIcon(row.column), ReportList::Icon::Up);
        EXPECT_EQ(keys(window), row.ascending);
    }
    // One direction for all columns: another header goes on from where the last one stood.
    clickHeader(view, 4);
    clickHeader(view, 2);
    EXPECT_EQ(keys(window), "312");
    EXPECT_EQ(view.columnIcon(4), ReportList::Icon::Blank);

    QWidget& tree = categories("E");
    auto& treeView = list(tree);
    EXPECT_EQ(rows(tree), (Texts{"2|Alloy|1|Framing", "1|Framing|2|"}));
    EXPECT_EQ(treeView.columnIcon(1), ReportList::Icon::Down);
    for (const auto& [column, order] : {std::pair{2, "12"}, {1, "21"}, {3, "21"}, {2, "21"}}) {
        clickHeader(treeView, column);
        EXPECT_EQ(keys(tree), order) << column;
    }
}

TEST_F(CatalogueTest, ItemsFoundByTheChosenColumn) {
    data.execute("insert into Category values (2, 'Joinery', 0); update Item set CategoryId = 2 where ItemId = 3");
    const std::string joinedBrick = "3|3|Brick|Joinery|0.5|100|Bag";
    struct Row {
        const char* option;
        const char* text;
        Texts found;  // none: a box, and the rows before stay
    };
    QWidget& window = items("E");
    EXPECT_TRUE(find<QAbstractButton>(window, "OptAll").isChecked());
    for (const Row& row :
         {Row{"OptAll", "JOI", {joist, joinedBrick}}, Row{"OptAll", "3", {}}, Row{"OptName", "Joi", {joist}},
          Row{"OptName", "oist", {}}, Row{"OptCat", "Joi", {joinedBrick}}, Row{"OptCode", "3", {joinedBrick}},
          Row{"OptAll", "", {joist, nails, joinedBrick}}}) {
        SCOPED_TRACE(std::string(row.option) + " " + row.text);
        const Texts before = rows(window);
        const std::string label = text(window, "LblRecords");
        go(window, row.option);
        go(window, std::string("txtName=") + row.text);
        go(window, "cmdSearch", row.found.empty() ? Boxes{ok("Item Not Found", "")} : Boxes{});
        EXPECT_EQ(rows(window), row.found.empty() ? before : row.found);
        EXPECT_EQ(text(window, "LblRecords") == label, row.found.empty() || row.found.size() == before.size());
        EXPECT_EQ(utf8(find<TextBox>(window, "txtName").selectedText()), row.text);
    }
    // The double click leaves what was found, the button shows everything again.
    go(window, "OptName; txtName=Nails; cmdSearch");
    inModal([&] { doubleClickRow(list(window), 0); }, [&](QWidget& form) { go(form, "CmdCancel"); });
    EXPECT_EQ(rows(window), Texts{nails});
    inModal([&] { go(window, "CmdEdit"); }, [&](QWidget& form) { go(form, "CmdCancel"); });
    EXPECT_EQ(rows(window).size(), 3U);
    EXPECT_NE(endedBy([&] { go(window, "txtName=O'Neil; cmdSearch"); }).find("like 'O'Neil%'"), std::string::npos)
        << "an apostrophe is not escaped";
}

TEST_F(CatalogueTest, AddedAfterASearchInVain) {
    QWidget& window = items("A");
    go(window, "OptName; txtName=Beam");
    const char* offer = "Item Not Found : Would You Like To Add ? ";
    go(window, "cmdSearch", {no(offer, "Inventory")});
    host.expect(yes(offer, "Inventory"));
    inModal([&] { go(window, "cmdSearch"); },
            [&](QWidget& form) {
                EXPECT_EQ(utf8(form.windowTitle()), "Item Master");
                EXPECT_EQ(texts(form, itemBoxes), "4|Beam|Framing|0|Bag|0|0|0|0");
                EXPECT_EQ(visible(form, {"CmbCat", "txtCatName", "CmdSelCat", "cmdAddCat"}), "CmbCat");
                go(form, "txtCode=");
                refused(form, "CmdSave", "Enter Item #", "Item Details");
                go(form, "txtCode=4");
                // What a price box refuses, and what it reads.
                for (const char* nothing : {"", "abc", "0"}) {
                    go(form, std::string("TxtMaterial=") + nothing);
                    refused(form, "CmdSave", "Enter Material Cost", "Item Details");
                }
                go(form, "TxtMaterial=-12abc");
                refused(form, "CmdSave", "Enter Default Quantity", "Item Details");
                go(form, "TxtQty= -1 .5x; txtLabor=-3; txtSubLabor=abc; txtEquipment=1e2; cmbUnit=Each");
                go(form, "CmdSave", {itemSaved});
                EXPECT_EQ(enabled(form, entryButtons), "cmdOk CmdCancel") << "Apply works once";
                EXPECT_EQ(text(form, "TxtName"), "Beam");
                calls.clear();
                go(form, "cmdMainHelp");
                EXPECT_EQ(calls.back(),
                          "Speak Once you enter all the data, press 'Ok' button to save the record and close. 'Cancel' "
                          "button closes "
                          "the window without saving. 'Apply' button saves your data but does not close the window.");
                go(form, "cmdOk");
            });
    EXPECT_EQ(
        data.rows(
            "select Itemcode, Itemname, CategoryId, UnitId, Material, Labor, SubLabor, Equipment, Qty, TU from Item "
            "where ItemId > 3"),
        Texts{"4|Beam|1|1|-12.0|-3.0|0.0|100.0|-1.5|"});
    EXPECT_EQ(rows(window).size(), 4U);
    // Ok loses what it refuses.
    go(window, "txtName=");
    inModal([&] { go(window, "cmdAdd"); },
            [&](QWidget& form) { refused(form, "cmdOk", "Enter Item Description", "Item Details"); });
    EXPECT_EQ(count("Item"), "4");
    EXPECT_EQ(screens->item.Which, "A");
}

TEST_F(CatalogueTest, CopiedByTheLayoutThatCodeAsksFor) {
    data.execute(
        "update Item set TU = 'old', CategoryId = 2 where ItemId = 3; insert into Category values (2, 'Alloy', 1);"
        "update Item set CategoryId = 2 where ItemId = 1");
    QWidget& window = items("C");
    inModal([&] { go(window, "cmdCopy"); },
            [&](QWidget& form) {
                EXPECT_EQ(texts(form, itemBoxes), "1|Joist|Alloy (Framing)|2|Each|4|10|5|6");
                refused(form, "CmdSave", "Duplicate Item Data ", "Inventory");
                go(form, "CmbCat=Framing");
                go(form, "cmdOk", {itemSaved});
            });
    EXPECT_EQ(data.cell("select Itemcode || Itemname || CategoryId from Item where ItemId = 4"), "1Joist1");
    data.execute("delete from Item");
    EXPECT_EQ(endOf([&] { go(window, "CmdAll; cmdCopy"); }).number(), 91);
}

TEST_F(CatalogueTest, EditedViewedAndDeleted) {
    data.execute("update Item set TU = 'old'");
    QWidget& window = items("E");
    inModal([&] { go(window, "CmdEdit"); },
            [&](QWidget& form) {
                EXPECT_EQ(enabled(form, itemBoxes).substr(0, 22), "txtCode TxtName CmbCat");
                go(form, "TxtName=Brick; TxtMaterial=0.5; TxtQty=100");
                go(form, "cmdOk", {itemSaved});  // equal to another one: only adding looks
            });
    EXPECT_EQ(item(1), "1|1|Brick|1|1|0.5|4.0|5.0|6.0|100.0|") << "what TU held is gone";
    inModal([&] { key(list(window), Qt::Key_Return); }, [&](QWidget& form) { go(form, "txtCode=20; CmdCancel"); });
    EXPECT_EQ(screens->item.Which, "EE");
    EXPECT_EQ(data.rows("select Itemcode from Item order by ItemId"), (Texts{"1", "2", "3"}));
    go(window, "cmdExit");

    for (const auto& [mode, after] : {std::pair{"A", "AE"}, {"D", "DE"}}) {
        QWidget& shown = items(mode);
        for (int time = 0; time < 2; ++time)
            inModal([&, row = time] { doubleClickRow(list(shown), row); },
                    [&](QWidget& form) {
                        EXPECT_EQ(visible(form, entryButtons), "CmdCancel");
                        EXPECT_EQ(enabled(form, itemBoxes), "");
                        closeBox(form);
                    });
        EXPECT_EQ(screens->item.Which, after);
        calls.clear();
        go(shown, "cmdMainHelp");
        EXPECT_EQ(calls.size() - 1, std::string(after) == "DE" ? 1U : 0U);
        if (mode == std::string("A")) go(shown, "cmdExit");
    }
    go(items("D"), "txtName=x");
    go(items("D"), "cmdDel", {no(sure("2"), "Inventory")});
    EXPECT_EQ(text(items("D"), "txtName"), "");
    go(items("D"), "cmdDel", {yes(sure("2"), "Inventory"), deleted});
    EXPECT_EQ(data.rows("select ItemId from Item order by ItemId"), (Texts{"1", "3"}));
    EXPECT_EQ(lines(3).size(), 2U) << "the estimates that use it keep their lines";
}

TEST_F(CatalogueTest, ItemFormWithoutAnyCategory) {
    data.execute("delete from Category");
    QWidget& window = items("A");
    inModal(
        [&] { go(window, "cmdAdd"); },
        [&](QWidget& form) {
            EXPECT_EQ(visible(form, {"CmbCat", "txtCatName", "CmdSelCat", "cmdAddCat"}),
                      "txtCatName CmdSelCat cmdAddCat");
            go(form, "TxtName=Stud");
            refused(form, "CmdSave", "Please select category", "Item Details");
            data.execute("insert into Category values (5, 'Lumber', 0)");
            whenModal([&](QWidget& tree) {
                EXPECT_EQ(utf8(tree.windowTitle()), "Select Category");
                EXPECT_EQ(
                    text(tree, "lblExplain"),
                    "Select category by double clicking the desired category row and pressing the 'Select' button.");
                go(tree, "CmdSelect");
            });
            go(form, "CmdSelCat");
            EXPECT_EQ(text(form, "txtCatName"), "Lumber");
            go(form, "TxtMaterial=3; TxtQty=1");
            whenModal([&](QWidget& tree) {
                EXPECT_EQ(utf8(tree.windowTitle()), "Add Category");
                go(tree, "txtCatName=Boards");
                go(tree, "cmdAdd; cmdExit", {categoryAdded});
            });
            go(form, "cmdAddCat");
            EXPECT_EQ(visible(form, {"CmbCat", "txtCatName", "CmdSelCat", "cmdAddCat"}), "CmbCat");
            go(form, "CmbCat=Lumber");
            go(form, "cmdOk", {itemSaved});
        });
    EXPECT_EQ(data.cell("select CategoryId from Item where ItemName = 'Stud'"), "5");
}

TEST_F(CatalogueTest, RelatedWindowsAreNotThere) {
    QWidget& window = items("E");
    clickRow(list(window), 1, Qt::RightButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "mnuRel");
    EXPECT_EQ(utf8(find<QAction>(window, "mnuRelManf").text()), "View Related Manufacturers");
    menu->close();
    for (const char* mode : {"A", "EE"}) {
        items(mode);
        clickRow(list(window), 1, Qt::RightButton);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << mode;
    }
    clickRow(list(categories("E")), 0, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(utf8(find<QAction>(categories("E"), "mnuRelSup").text()), "View Related Suppliers");
    const RuntimeFailure failure = endOf([&] { trigger(find<QAction>(window, "mnuRelCatg")); });
    EXPECT_EQ(failure.text() + " " + failure.during(),
              "Object not set opening the window \"Categories associated with 2\"");
}

TEST_F(CatalogueTest, SelectingFromAnEmptyCategoryListFails) {
    data.execute("delete from Category");
    EXPECT_EQ(endOf([&] { go(categories("S"), "CmdSelect"); }).number(), 91);
}

// --- Categories ------------------------------------------------------------------------------------------------------

TEST_F(CatalogueTest, CategoriesAreAddedInTheirList) {
    QWidget& window = categories("A");
    EXPECT_EQ(texts(window, {"txtCatName", "cmbParent"}), "|No Parent Category");
    go(window, "txtCatName=Decks; cmbParent=Framing");
    go(window, "cmdAdd", {categoryAdded});
    EXPECT_EQ(rows(window), (Texts{"2|Decks|0|Framing", "1|Framing|3|"}));
    EXPECT_EQ(texts(window, {"txtCatName", "cmbParent"}), "|");
    EXPECT_EQ(find<DropList>(window, "cmbParent").ListCount(), 2) << "filled at load only";
    go(window, "txtCatName=Roof");  // nothing selected: no parent
    go(window, "cmdAdd", {categoryAdded});
    refused(window, "cmdAdd", "Empty Data", "Inventory");
    go(window, "txtCatName=decks");
    refused(window, "cmdAdd", "Duplicate Data", "Inventory");
    EXPECT_EQ(text(window, "txtCatName"), "");

    // The view of a double click, and the way out of it.
    doubleClickRow(list(window), 0);
    EXPECT_EQ(texts(window, {"txtCatName", "cmbParent"}), "Decks|Framing");
    EXPECT_EQ(enabled(window, {"txtCatName", "cmbParent"}) + screens->category.Which, "AE");
    go(window, "cmdAdd");
    EXPECT_EQ(enabled(window, {"txtCatName", "cmbParent"}) + screens->category.Which, "txtCatName cmbParentA");
    go(window, "txtCatName=Deck rails");
    go(window, "cmdAdd", {categoryAdded});
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|0", "2|Decks|1", "3|Roof|0", "4|Deck rails|1"}));

    go(window, "txtCatName=Tiles");
    go(window, "cmdSearch", {yes("Category Not Found : Would You Like To Add ? ", "Inventory"), categoryAdded});
    EXPECT_EQ(rows(window), Texts{"5|Tiles|0|"}) << "what was added is what is searched for";
    calls.clear();
    go(window, "cmdHelp2");
    EXPECT_EQ(calls.back(),
              "Speak Enter the name you want to search in the 'Category name' box here and press the 'Search' button.");
    go(window, "cmdMainHelp");
    EXPECT_TRUE(calls.back().starts_with("Speak To enter a category, you only need to give the category name. "));
    EXPECT_NE(calls.back().find("to appear. \n\n This screen also shows"), std::string::npos);
    go(window, "CmdAll");
    EXPECT_EQ(rows(window).size(), 5U);
}

TEST_F(CatalogueTest, FillingTheCategoryListForgetsWhatWasSearched) {
    for (int i = 11; i <= 26; ++i)
        data.execute("insert into Category values (" + std::to_string(i) + ", 'Deck " + std::to_string(i) + "', " +
                     (i == 25 ? "1)" : "0)"));
    QWidget& window = categories("E");
    for (const auto& [name, next] : {std::pair{"Deck", "17"}, {"x", ""}, {"Deck 2", "7"}}) {
        go(window, std::string("txtCatName=") + name);
        go(window, "cmdSearch", *next ? Boxes{} : Boxes{ok("Category Not Found", "")});
        if (std::string(name) != "Deck") continue;
        EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 15 of 16");
        EXPECT_EQ(rows(window).back(), "25|Deck 25|0|Framing");
        go(window, "CmdNext");  // the last row's parent is searched for now: one row, and none on this page
        EXPECT_EQ(text(window, "LblRecords"), "Record 16 - 15 of 1");
    }
    EXPECT_EQ(rows(window).size(), 7U);
}

TEST_F(CatalogueTest, CategoriesEditedIntoACycleAndFiveLevelsDeep) {
    data.execute(
        "insert into Category values (2, 'Lumber', 1), (3, 'Studs', 2), (4, 'Long', 3), (5, 'Dry', 4), (6, 'Own', 0);"
        "update Item set CategoryId = 5 where ItemId = 1; update Item set CategoryId = 6 where ItemId = 2");
    QWidget& window = categories("E");
    const auto edit = [&](const std::function<void()>& open, const char* name, const char* parent) {
        inModal(open, [&](QWidget& form) {
            EXPECT_EQ(utf8(form.windowTitle()), "Category Details");
            go(form, std::string("Txtname=") + name);
            go(form, std::string("cmbParent=") + parent);
            go(form, "CmdSave", {ok("Category Saved")});
            EXPECT_EQ(enabled(form, entryButtons), "cmdOk CmdCancel");
            go(form, "cmdOk");
        });
    };
    edit([&] { doubleClickRow(list(window), 4); }, "Studs", "Own");  // a second one of that name
    EXPECT_EQ(texts(window, {"txtCatName", "cmbParent"}), "Own|No Parent Category");
    clickRow(list(window), 1);
    edit([&] { go(window, "CmdEdit"); }, "Framing", "Framing");
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|1", "2|Lumber|1", "3|Studs|2", "4|Long|3", "5|Dry|4", "6|Studs|6"}));
    key(list(window), Qt::Key_Home);
    inModal([&] { go(window, "CmdEdit"); },
            [&](QWidget& form) {
                EXPECT_EQ(texts(form, {"Txtname", "cmbParent"}), "Dry|Long");
                go(form, "Txtname=");
                refused(form, "cmdOk", "Empty Data", "Inventory");
            });
    EXPECT_EQ(screens->category.Which, "E");

    QWidget& catalogue = items("E");
    for (const auto& [row, shown] :
         {std::pair{0, "Dry (Long <- Studs <- Lumber)"}, {1, "Studs (Studs <- Studs <- Studs)"}})
        inModal([&, index = row] { doubleClickRow(list(catalogue), index); },
                [&, expected = shown](QWidget& form) {
                    EXPECT_EQ(text(form, "CmbCat"), expected);
                    go(form, "CmdCancel");
                });
}

TEST_F(CatalogueTest, OnlyCategoriesWithoutItemsAreDeleted) {
    data.execute("insert into Category values (2, 'Attics', 0), (3, 'Lofts', 2)");
    QWidget& window = categories("D");
    doubleClickRow(list(window), 0);
    EXPECT_EQ(enabled(window, {"txtCatName", "cmbParent"}) + screens->category.Which, "DE");
    go(window, "cmdDel", {no(sure("Attics"), "Inventory")});
    EXPECT_EQ(texts(window, {"txtCatName"}) + enabled(window, {"txtCatName", "cmbParent"}), "txtCatName");
    go(window, "cmdDel", {yes(sure("Attics"), "Inventory")});
    EXPECT_EQ(rows(window), (Texts{"1|Framing|3|", "3|Lofts|0|"}));
    go(window, "cmdDel",
       {ok("Can not delete category 'Framing'. Please delete or reassign items that belong to it first.")});
    EXPECT_EQ(categoryTable(), (Texts{"1|Framing|0", "3|Lofts|2"}));
}

}  // namespace
}  // namespace torvane
