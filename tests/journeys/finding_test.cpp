// The four lists: their modes, columns, searches and pages. Estimates found, opened and deleted; the shared notes.

#include <QApplication>
#include <QHeaderView>
#include <algorithm>

#include "journeys/journey.h"
#include "widgets/text_area.h"

namespace torvane {
namespace {

const TestHost::Box notFound = ok("Estimate not found corresponding to entered Estimate Number", "Search Estimate");

class FindingTest : public JourneyTest {
protected:
    // The window that an entry of the menu opens; it may stand already.
    QWidget& opened(std::string_view entryName) {
        if (!screens) start();
        choose(entryName);
        return *QApplication::activeWindow();
    }
    // The first cells of the rows.
    static Texts keys(const QWidget& window) {
        Texts all = rows(window);
        for (std::string& row : all) row.resize(row.find('|'));
        return all;
    }
};

TEST_F(FindingTest, AnEntryOpensTheListInItsMode) {
    struct Row {
        const char* entry;
        const char* shown;  // caption and action
        const char* guide;  // the line of guidance, or the beginning of what the assistant says
    };
    for (const Row& row : {
             Row{"SubMnuAddItem", "Add Item|cmdAdd", "This screen allows you to enter the Items in the"},
             Row{"SubMnuEditItem", "Edit Item|CmdEdit", "This screen allows you to edit the Items in the"},
             Row{"SubMnuDelItem", "Delete Item|cmdDel", ""},
             Row{"SubMnuAddCust", "Add Customer|cmdAdd", "This screen allows you to enter the Customer details"},
             Row{"SubMnuEditCust", "Edit Customer|CmdEdit", "This screen allows you to edit the Customer data"},
             Row{"SubMnuDelCust", "Delete Customer|cmdDel", "This screen allows you to delete the Customer data"},
             Row{"SubMnuAddCat", "Add Category|cmdAdd", "Enter the category name, select parent"},
             Row{"SubMnuEditCat", "Edit Category|CmdEdit", "Double click on the category row that you wish to edit"},
             Row{"SubMnuDelCat", "Delete Category|cmdDel", "Select the category you wish to delete from the table"},
         }) {
        SCOPED_TRACE(row.entry);
        QWidget& window = opened(row.entry);
        EXPECT_EQ(utf8(window.windowTitle()) + "|" + visible(window, {"cmdAdd", "CmdEdit", "cmdDel", "CmdSelect"}),
                  row.shown);
        const std::string name = utf8(window.objectName());
        calls.clear();
        go(window, "cmdMainHelp");
        const auto* explain = window.findChild<QWidget*>("lblExplain");
        const std::string said = calls.back() == "Show" ? "" : calls.back().substr(6);
        EXPECT_TRUE((explain ? text(window, "lblExplain") : said).starts_with(row.guide)) << said;
        EXPECT_EQ(calls.size(), *row.guide ? 2U : 1U);
        go(window, "cmdExit");
        EXPECT_FALSE(standing(name));
    }
}

TEST_F(FindingTest, AHeaderSortsByItsColumn) {
    data.execute(
        "update Item set TU = char(98 - ItemId), Itemcode = case ItemId when 1 then '10' when 2 then '9' else 'A1' end;"
        "insert into Category values (2, 'Alloy', 3), (3, 'Zinc', 1);"
        "update Item set CategoryId = 2 where ItemId = 1; update Item set CategoryId = 3 where ItemId = 3;"
        "insert into Item (ItemId, CategoryId, UnitId) values (4, 1, 99), (5, 1, 99), (6, 2, 99);"  // in no list
        "insert into Customer (CustId, CustName, BCity, BPhone, BEmail) values (9, 'Abe', 'Zoo', '666', 'b@');"
        "insert into OrderInfo (OrderNo, CustId, OrderDate, Total) values (4, 9, '2005-01-01', 100)");
    struct Row {
        const char* entry;
        int column;
        const char* header;  // text, pixels, and R for a column of numbers
        Texts falling;       // keys after the first click; the second one turns them round
    };
    for (const Row& row : {
             Row{"SubMnuEditItem", 1, "Item # 120", {"1", "2", "3"}},  // numbers in their order, before what is none
             Row{"SubMnuEditItem", 2, "Item Name 160", {"2", "1", "3"}},
             Row{"SubMnuEditItem", 3, "Category 120", {"3", "2", "1"}},
             Row{"SubMnuEditItem", 4, "Material 80R", {"1", "2", "3"}},
             Row{"SubMnuEditItem", 5, "Quantity 80R", {"3", "1", "2"}},
             Row{"SubMnuEditItem", 6, "Unit 80", {"1", "2", "3"}},
             Row{"SubMnuEditCat", 1, "Category Name 160", {"3", "1", "2"}},
             Row{"SubMnuEditCat", 2, "No. Of Items 80R", {"1", "2", "3"}},
             Row{"SubMnuEditCat", 3, "Parent Category 240", {"2", "3", "1"}},
             Row{"SubMnuEditCust", 1, "Customer Name 120", {"8", "7", "9"}},
             Row{"SubMnuEditCust", 2, "City 80", {"9", "8", "7"}},
             Row{"SubMnuEditCust", 3, "Phone 80", {"8", "9", "7"}},
             Row{"SubMnuEditCust", 4, "E-Mail Id 160", {"9", "7", "8"}},
             Row{"mnuEditEstimate", 0, "Estimate No 80", {"5", "4", "3"}},
             Row{"mnuEditEstimate", 1, "Date 80", {"4", "5", "3"}},
             Row{"mnuEditEstimate", 2, "Customer 80", {"5", "3", "4"}},
             Row{"mnuEditEstimate", 3, "Amount 64R", {"3", "4", "5"}},
         }) {
        SCOPED_TRACE(row.header);
        QWidget& window = opened(row.entry);
        auto& view = list(window);
        const bool right = (view.headerItem()->textAlignment(row.column) & Qt::AlignRight) != 0;
        const std::string pixels = std::to_string(view.header()->sectionSize(row.column)) + (right ? "R" : "");
        EXPECT_EQ(utf8(view.headerItem()->text(row.column)) + " " + pixels, row.header);
        EXPECT_EQ(view.isColumnHidden(0), row.entry != std::string_view("mnuEditEstimate"));
        Texts order = row.falling;
        clickHeader(view, row.column);
        EXPECT_EQ(keys(window), order);
        EXPECT_EQ(view.header()->sortIndicatorSection(), row.column);
        EXPECT_EQ(view.header()->sortIndicatorOrder(), Qt::AscendingOrder);
        std::ranges::reverse(order);
        clickHeader(view, row.column);
        EXPECT_EQ(keys(window), order);
        EXPECT_EQ(view.header()->sortIndicatorOrder(), Qt::DescendingOrder);
    }
    // One direction for all columns: another header goes on from where the last one stood.
    QWidget& items = opened("SubMnuEditItem");
    clickHeader(list(items), 4);
    clickHeader(list(items), 2);
    EXPECT_EQ(keys(items), (Texts{"3", "1", "2"}));
    EXPECT_EQ(list(items).header()->sortIndicatorSection(), 2);
}

TEST_F(FindingTest, SearchesInTheChosenColumn) {
    data.execute(
        "insert into Category values (2, 'Joinery', 0); update Item set CategoryId = 2 where ItemId = 3;"
        "update Customer set BCCNo = 'Troy-9' where CustId = 7; delete from Customer where CustId = 8;"
        "insert into Customer (CustId, CustName, BCity, BPhone) values (8, 'Bob Ray', 'Troy', '777-1');"
        "insert into OrderInfo (OrderNo, CustId) values (105, 7), (112, 8), (113, 99)");
    struct Row {
        const char* entry;
        const char* steps;
        const char* missed;  // the box when nothing is found: the rows and the counter of before stay
        Texts found;
    };
    for (const Row& row : {
             Row{"SubMnuEditItem", "txtName=JOI", "", {"1", "3"}},  // in name or category
             Row{"SubMnuEditItem", "txtName=3", "Item Not Found", {"1", "3"}},
             Row{"SubMnuEditItem", "OptName; txtName=Joi", "", {"1"}},
             Row{"SubMnuEditItem", "txtName=oist", "Item Not Found", {"1"}},
             Row{"SubMnuEditItem", "OptCat; txtName=Joi", "", {"3"}},
             Row{"SubMnuEditItem", "OptCode; txtName=3", "", {"3"}},
             Row{"SubMnuEditItem", "OptAll; txtName=", "", {"1", "2", "3"}},
             Row{"SubMnuEditCust", "txtCustName=troy", "", {"7", "8"}},  // in any of the five texts
             Row{"SubMnuEditCust", "OptCity; txtCustName=Troy", "", {"8"}},
             Row{"SubMnuEditCust", "OptName; txtCustName=ann", "", {"7"}},
             Row{"SubMnuEditCust", "txtCustName=Lee", "Customer Not Found", {"7"}},
             Row{"SubMnuEditCust", "OptPhone; txtCustName=777", "", {"8"}},
             Row{"SubMnuEditCust", "OptEmail; txtCustName=ann@", "", {"7"}},
             Row{"SubMnuEditCust", "txtCustName=777", "Customer Not Found", {"7"}},
             Row{"SubMnuEditCat", "txtCatName=j", "", {"2"}},
             Row{"SubMnuEditCat", "txtCatName=oin", "Category Not Found", {"2"}},
             Row{"mnuEditEstimate", "txtName=12", "", {"112"}},
             Row{"mnuEditEstimate", "txtName=5", "", {"5", "105"}},
             Row{"mnuEditEstimate", "OptName; txtName=OB r", "", {"5", "112"}},
             Row{"mnuEditEstimate", "txtName=nobody", "Estimate Not Found", {"5", "112"}},
             Row{"mnuEditEstimate", "OptOrderNo; txtName=", "", {"3", "5", "105", "112", "113"}},
         }) {
        SCOPED_TRACE(row.steps);
        QWidget& window = opened(row.entry);
        const std::string label = text(window, "LblRecords");
        std::vector<TestHost::Box> boxes;
        if (*row.missed) boxes.push_back(ok(row.missed, ""));
        go(window, std::string(row.steps) + "; cmdSearch", boxes);
        EXPECT_EQ(keys(window), row.found);
        const std::string count = std::to_string(row.found.size());
        EXPECT_EQ(text(window, "LblRecords"), *row.missed ? label : "Record 1 - " + count + " of " + count);
        const auto* box = qobject_cast<TextBox*>(QApplication::focusWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->selectedText(), box->text());
    }
    EXPECT_EQ(rows(opened("SubMnuEditItem"))[0], "1|1|Joist|Framing|10|2|Each");
    EXPECT_EQ(rows(opened("mnuEditEstimate"))[0], "3|7/4/2003|Ann Lee|236");
    EXPECT_EQ(rows(opened("mnuEditEstimate"))[4], "113|||") << "what is Null is left empty";
    go(opened("mnuEditEstimate"), "txtName=12; cmdSearch; CmdAll");
    EXPECT_EQ(keys(opened("mnuEditEstimate")), Texts{"112"}) << "the button repeats the search";
}

TEST_F(FindingTest, NothingFoundWhileAddingOffersToAdd) {
    struct Row {
        const char* entry;
        const char* steps;
        std::string offer;
        const char* box;  // of the entry form
    };
    for (const Row& row : {Row{"SubMnuAddItem", "OptName; txtName=Beam", "Item", "TxtName"},
                           Row{"SubMnuAddCust", "OptName; txtCustName=Beam", "Customer", "TxtCname"}}) {
        QWidget& window = opened(row.entry);
        const std::string offer = row.offer + " Not Found : Would You Like To Add ? ";
        go(window, std::string(row.steps) + "; cmdSearch", {no(offer, "Inventory")});
        whenModal([&](QWidget& form) {
            EXPECT_EQ(text(form, row.box), "Beam");
            click(form, "CmdCancel");
        });
        go(window, "cmdSearch", {yes(offer, "Inventory")});
    }
    QWidget& categories = opened("SubMnuAddCat");
    const TestHost::Box offer = yes("Category Not Found : Would You Like To Add ? ", "Inventory");
    go(categories, "txtCatName=Tiles; cmdSearch", {offer, ok("Category Added ")});
    EXPECT_EQ(rows(categories), Texts{"2|Tiles|0|"}) << "what was added is what is searched for";
}

TEST_F(FindingTest, PagesOfFifteen) {
    data.execute(
        "delete from Customer; with recursive n(i) as (select 101 union all select i + 1 from n where i < 132)"
        "insert into Customer (CustId, CustName, BCity) select i, 'C' || i, iif(i % 2, 'X', 'Y') from n");
    QWidget& window = opened("SubMnuDelCust");
    struct Row {
        const char* steps;
        const char* label;
        const char* enabled;
        std::string first;
    };
    for (const Row& row : {Row{"CmdAll", "Record 1 - 15 of 32", "CmdNext", "101"},
                           Row{"CmdNext", "Record 16 - 30 of 32", "CmdPrev CmdNext", "116"},
                           Row{"CmdNext", "Record 31 - 32 of 32", "CmdPrev", "131"},
                           Row{"CmdAll", "Record 31 - 32 of 32", "CmdPrev", "131"},  // the page stays
                           Row{"CmdPrev", "Record 16 - 30 of 32", "CmdPrev CmdNext", "116"},
                           Row{"OptCity; txtCustName=x; cmdSearch", "Record 1 - 15 of 16", "CmdNext", "101"},
                           Row{"CmdNext", "Record 16 - 16 of 16", "CmdPrev", "131"}}) {
        SCOPED_TRACE(row.label);
        go(window, row.steps);
        EXPECT_EQ(text(window, "LblRecords"), row.label);
        EXPECT_EQ(enabled(window, {"CmdPrev", "CmdNext"}), row.enabled);
        EXPECT_EQ(keys(window)[0], row.first);
    }
    clickHeader(list(window), 1);
    EXPECT_EQ(keys(window), Texts{"101"}) << "what was found is sorted, and the page stays";
}

// --- Estimates -------------------------------------------------------------------------------------------------------

TEST_F(FindingTest, OpensAnEstimateForEditing) {
    QWidget& found = opened("mnuEditEstimate");
    EXPECT_EQ(utf8(found.windowTitle()), "Search Estimate");
    doubleClickRow(found, 1);
    EXPECT_FALSE(screens->orders.loaded());
    QWidget& order = screens->order.window();
    EXPECT_EQ(utf8(order.windowTitle()) + texts(order, {"TxtOrder", "TxtCustomer"}), "Edit Estimate5|Bob Ray");
    go(order, "cmbItems=Joist; cmdAdd; cmbRooms=Deck; cmdAdd", {ok("Item already added ")});
    doubleClickRow(opened("mnuEditEstimate"), 0);
    EXPECT_EQ(text(order, "TxtOrder"), "5") << "the window is only brought up, over another record";
    go(order, "CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.rows("select ItemId from OrderItem where OrderNo = 5"), (Texts{"1", "3"}));
    data.execute("delete from OrderInfo");
    QWidget& empty = opened("mnuEditEstimate");
    go(empty, "CmdSelect");
    EXPECT_EQ(text(empty, "LblRecords"), "Record 1 - 0 of 0");
}

TEST_F(FindingTest, DeletesByNumber) {
    start();
    choose("mnuDelEstimate");
    QWidget& prompt = screens->orderNo.window();
    EXPECT_EQ(utf8(prompt.windowTitle()), "Delete Order");
    go(prompt, "cmdOk; TxtGetOrderNo=4; cmdOk", {ok("Please Enter Estimate No.", "Search Estimate"), notFound});
    EXPECT_EQ(endOf([&] { go(prompt, "TxtGetOrderNo=3a; cmdOk"); }).number(), 13) << "letters";
    go(prompt, "TxtGetOrderNo=3");
    key(find<QWidget>(prompt, "TxtGetOrderNo"), Qt::Key_Return);
    EXPECT_FALSE(screens->orderNo.loaded()) << "the estimate screen closes the prompt";
    QWidget& order = screens->order.window();
    EXPECT_EQ(utf8(order.windowTitle()) + text(order, "TxtOrder"), "Delete Estimate3");
}

TEST_F(FindingTest, ACancelledDeletionLeavesItsModeBehind) {
    QWidget& order = openEstimate("E", 3);
    choose("mnuDelEstimate");
    go(screens->orderNo.window(), "CmdCancel");
    go(order, "TxtScity=Elsewhere; CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.cell("select count(*) from OrderInfo where SCity = 'Elsewhere'"), "0");
}

TEST_F(FindingTest, SharedNotes) {
    start();
    choose("mnuBlank");
    QWidget& notes = screens->blank.window();
    find<TextArea>(notes, "rtfNotes").setText("Don't walk on wet floors; it's slippery.");
    QWidget& order = newEstimate();
    go(order, "cmdImport");
    EXPECT_EQ(text(order, "rtfNotes"), "Good for 30 days.\nHalf is due on signing.") << "the text last stored";
    go(notes, "cmdOk");
    EXPECT_FALSE(screens->blank.loaded());
    choose("mnuBlank");
    find<TextArea>(screens->blank, "rtfNotes").setText("lost");
    go(screens->blank.window(), "CmdCancel");
    EXPECT_EQ(data.cell("select Notes from BlankNotes"), "Don't walk on wet floors; it's slippery.");
}

}  // namespace
}  // namespace torvane
