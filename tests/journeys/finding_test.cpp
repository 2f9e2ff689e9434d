// The four lists: their modes, columns, searches and pages. Estimates found, opened and deleted.

#include <QApplication>
#include <QHeaderView>
#include <array>

#include "journeys/journey.h"

namespace torvane {
namespace {

class FindingTest : public JourneyTest {
protected:
    // The first cells of the rows.
    static std::string keys(const QWidget& window) {
        std::string all;
        for (const std::string& row : rows(window)) all += (all.empty() ? "" : " ") + row.substr(0, row.find('|'));
        return all;
    }
    // Searches of the list that an entry opens, each with the keys that are shown then. What was searched for is
    // selected afterwards, to be typed over.
    void search(std::string_view entryName, const std::vector<StoryStep>& story) {
        const QWidget& window = opened(entryName);
        const auto found = [&] {
            const auto* box = qobject_cast<TextBox*>(QApplication::focusWidget());
            return box && box->selectedText() == box->text() ? keys(window) : "not ready for the next search";
        };
        tell(window, found, story);
    }
};

TEST_F(FindingTest, AnEntryOpensTheListInItsMode) {
    // The entry, the window's caption with its action, and the line of guidance or what the assistant does at last.
    const std::array<const char*, 3> lists[] = {
        {"SubMnuAddItem", "Add Item|cmdAdd", "Speak This screen allows you to enter the Items in the"},
        {"SubMnuEditItem", "Edit Item|CmdEdit", "Speak This screen allows you to edit the Items in the"},
        {"SubMnuDelItem", "Delete Item|cmdDel", "Show"},
        {"SubMnuAddCust", "Add Customer|cmdAdd", "Speak This screen allows you to enter the Customer details"},
        {"SubMnuEditCust", "Edit Customer|CmdEdit", "Speak This screen allows you to edit the Customer data"},
        {"SubMnuDelCust", "Delete Customer|cmdDel", "Speak This screen allows you to delete the Customer data"},
        {"SubMnuAddCat", "Add Category|cmdAdd", "Enter the category name, select parent"},
        {"SubMnuEditCat", "Edit Category|CmdEdit", "Double click on the category row that you wish to edit"},
        {"SubMnuDelCat", "Delete Category|cmdDel", "Select the category you wish to delete from the table"},
    };
    for (const auto& [entryName, shown, guide] : lists) {
        SCOPED_TRACE(entryName);
        QWidget& window = opened(entryName);
        EXPECT_EQ(utf8(window.windowTitle()) + "|" + visible(window, {"cmdAdd", "CmdEdit", "cmdDel", "CmdSelect"}),
                  shown);
        go(window, "cmdMainHelp");
        const bool written = window.findChild<QWidget*>("lblExplain") != nullptr;
        EXPECT_EQ((written ? text(window, "lblExplain") : calls.back()).find(guide), 0U);
        go(window, "cmdExit");
    }
    EXPECT_EQ(standing("frmCategory"), nullptr);
}

TEST_F(FindingTest, AHeaderSortsByItsColumn) {
    data.execute(
        "update Item set TU = char(98 - ItemId), Itemcode = case ItemId when 1 then '10' when 2 then '9' else 'A1' end;"
        "insert into Category values (2, 'Alloy', 3), (3, 'Zinc', 1);"
        "update Item set CategoryId = 2 where ItemId = 1; update Item set CategoryId = 3 where ItemId = 3;"
        "insert into Item (ItemId, CategoryId, UnitId) values (4, 1, 99), (5, 1, 99), (6, 2, 99);"  // in no list
        "insert into Customer (CustId, CustName, BCity, BPhone, BEmail) values (9, 'Abe', 'Zoo', '666', 'b@');"
        "insert into OrderInfo (OrderNo, CustId, OrderDate, Total) values (4, 9, '2005-01-01', 100)");
    // Each column's header, and the keys after a first click there; a second one turns them round.
    const std::pair<const char*, Texts> lists[] = {
        // Item numbers in their order, before what is none.
        {"SubMnuEditItem",
         {"Item # 1 2 3", "Item Name 2 1 3", "Category 3 2 1", "Material 1 2 3", "Quantity 3 1 2", "Unit 1 2 3"}},
        {"SubMnuEditCat", {"Category Name 3 1 2", "No. Of Items 1 2 3", "Parent Category 2 3 1"}},
        {"SubMnuEditCust", {"Customer Name 8 7 9", "City 9 8 7", "Phone 8 9 7", "E-Mail Id 9 7 8"}},
        {"mnuEditEstimate", {"Estimate No 5 4 3", "Date 4 5 3", "Customer 5 3 4", "Amount 3 4 5"}},
    };
    for (const auto& [entryName, columns] : lists) {
        const QWidget& window = opened(entryName);
        auto& view = list(window);
        int column = view.columnCount() - static_cast<int>(columns.size());
        const QHeaderView& header = *view.header();
        const auto mark = [&] { return header.isSortIndicatorShown() ? header.sortIndicatorSection() : -1; };
        EXPECT_EQ(mark(), column) << "at the opening";
        for (const std::string& expected : columns) {
            clickHeader(view, column);
            const std::string falling = keys(window);
            EXPECT_EQ(utf8(view.model()->headerData(column, Qt::Horizontal).toString()) + " " + falling, expected);
            EXPECT_EQ(mark(), column);
            EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
            clickHeader(view, column++);
            EXPECT_EQ(keys(window), std::string(falling.rbegin(), falling.rend())) << expected;
            EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
        }
    }
    // One direction for all columns: another header goes on from where the last one stood.
    const QWidget& items = opened("SubMnuEditItem");
    clickHeader(list(items), 4);
    clickRow(list(items), 0);
    EXPECT_EQ(keys(items), "1 2 3");
    clickHeader(list(items), 2);
    EXPECT_EQ(keys(items), "3 1 2");
    EXPECT_EQ(list(items).SelectedRow(), 1) << "the selected row goes where it is sorted";
}

TEST_F(FindingTest, SearchesInTheChosenColumn) {
    data.execute(
        "insert into Category values (2, 'Joinery', 0); update Item set CategoryId = 2 where ItemId = 3;"
        "update Customer set BCCNo = 'Troy-9' where CustId = 7;"
        "insert into OrderInfo (OrderNo, CustId) values (105, 7), (112, 8), (113, 99)");
    search("SubMnuEditItem", {{"txtName=JOI; cmdSearch", "1 3"},  // in name or category
                              {"txtName=3; cmdSearch", "1 3", {ok("Item Not Found", "")}},
                              {"OptName; txtName=Joi; cmdSearch", "1"},
                              {"txtName=oist; cmdSearch", "1", {ok("Item Not Found", "")}},
                              {"OptCat; txtName=Joi; cmdSearch", "3"},
                              {"OptCode; txtName=3; cmdSearch", "3"},
                              {"OptAll; txtName=; cmdSearch", "1 2 3"}});
    search("SubMnuEditCust", {{"txtCustName=troy; cmdSearch", "7 8"},  // in any of the five texts
                              {"OptCity; txtCustName=Troy; cmdSearch", "8"},
                              {"OptName; txtCustName=ann; cmdSearch", "7"},
                              {"txtCustName=Lee; cmdSearch", "7", {ok("Customer Not Found", "")}},
                              {"OptPhone; txtCustName=777; cmdSearch", "8"},
                              {"OptEmail; txtCustName=ann@; cmdSearch", "7"}});
    search("SubMnuEditCat",
           {{"txtCatName=j; cmdSearch", "2"}, {"txtCatName=oin; cmdSearch", "2", {ok("Category Not Found", "")}}});
    search("mnuEditEstimate", {{"txtName=5; cmdSearch", "5 105"},
                               {"OptName; txtName=OB r; cmdSearch", "5 112"},
                               {"txtName=nobody; cmdSearch", "5 112", {ok("Estimate Not Found", "")}},
                               {"OptOrderNo; txtName=; cmdSearch", "3 5 105 112 113"}});
    EXPECT_EQ(rows(opened("SubMnuEditItem")).at(0), "1|1|Joist|Framing|10|2|Each");
    QWidget& estimates = opened("mnuEditEstimate");
    EXPECT_EQ(rows(estimates).at(0), "3|7/4/2003|Ann Lee|236");
    EXPECT_EQ(rows(estimates).at(4), "113|||") << "what is Null is left empty";
    go(estimates, "txtName=12; cmdSearch; CmdAll");
    EXPECT_EQ(keys(estimates), "112") << "the button repeats the search";
    EXPECT_EQ(find<QAbstractButton>(estimates, "CmdAll").shortcut().toString(), "Alt+A") << "of Show All";
}

TEST_F(FindingTest, NothingFoundWhileAddingOffersToAdd) {
    const auto offer = [](const char* what) { return what + std::string(" Not Found : Would You Like To Add ? "); };
    go(opened("SubMnuAddItem"), "OptName; txtName=Beam; cmdSearch", {no(offer("Item"), "Inventory")});
    host.expect(yes(offer("Item"), "Inventory"));
    inForm(opened("SubMnuAddItem"), "cmdSearch", [&](QWidget& form) {
        EXPECT_EQ(text(form, "TxtName"), "Beam");
        go(form, "CmdCancel");
    });
    go(opened("SubMnuAddCust"), "OptName; txtCustName=Cara; cmdSearch > CmdSave; cmdOk",
       {yes(offer("Customer"), "Inventory"), ok("Customer Saved")});
    EXPECT_EQ(data.cell("select CustName from Customer where CustId = 9"), "Cara");
    const QWidget& categories = opened("SubMnuAddCat");
    go(categories, "txtCatName=Tiles; cmdSearch", {yes(offer("Category"), "Inventory"), ok("Category Added ")});
    EXPECT_EQ(rows(categories), Texts{"2|Tiles|0|"}) << "what was added is what is searched for";
}

TEST_F(FindingTest, PagesOfFifteen) {
    data.execute(
        "delete from Customer; with recursive n(i) as (select 101 union all select i + 1 from n where i < 132)"
        "insert into Customer (CustId, CustName, BCity) select i, 'C' || i, iif(i % 2, 'X', 'Y') from n");
    const QWidget& window = opened("SubMnuDelCust");
    const auto page = [&] {
        return keys(window).substr(0, 3) + "|" + text(window, "LblRecords") + "|" +
               enabled(window, {"CmdPrev", "CmdNext"});
    };
    tell(window, page,
         {{"CmdAll", "101|Record 1 - 15 of 32|CmdNext"},
          {"CmdNext", "116|Record 16 - 30 of 32|CmdPrev CmdNext"},
          {"CmdNext", "131|Record 31 - 32 of 32|CmdPrev"},
          {"CmdAll", "131|Record 31 - 32 of 32|CmdPrev"},  // the page stays
          {"CmdPrev", "116|Record 16 - 30 of 32|CmdPrev CmdNext"},
          {"OptCity; txtCustName=x; cmdSearch", "101|Record 1 - 15 of 16|CmdNext"},
          {"CmdNext", "131|Record 16 - 16 of 16|CmdPrev"}});
    clickHeader(list(window), 1);
    EXPECT_EQ(keys(window), "101") << "what was found is sorted, and the page stays";
    // Those of one city keep one order over all pages, also where an index is read backwards.
    data.execute("create index ByCity on Customer (BCity)");
    go(window, "txtCustName=; cmdSearch");
    std::string inX, inY;
    for (int customer = 101; customer <= 132; ++customer) (customer % 2 ? inX : inY) += std::to_string(customer) + " ";
    for (const std::string& expected : {inX + inY, inY + inX}) {
        clickHeader(list(window), 2);
        std::string all;
        for (const char* turn : {"CmdNext", "CmdNext", "CmdPrev; CmdPrev"}) {
            all += keys(window) + " ";
            go(window, turn);
        }
        EXPECT_EQ(all, expected);
    }
}

// --- Estimates -------------------------------------------------------------------------------------------------------

TEST_F(FindingTest, AnEstimateIsOpenedToEdit) {
    go(opened("mnuEditEstimate"), "row 1 twice");
    EXPECT_EQ(standing("frmOrders"), nullptr);
    QWidget& order = *standing("frmOrder");
    EXPECT_EQ(utf8(order.windowTitle()) + texts(order, {"TxtOrder", "TxtCustomer"}), "Edit Estimate5|Bob Ray");
    go(opened("mnuEditEstimate"), "row 0 twice");
    EXPECT_EQ(text(order, "TxtOrder"), "5") << "the window is only brought up, over another record";
    go(order, "CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.rows("select ItemId from OrderItem where OrderNo = 5"), (Texts{"1", "3"}));
    data.execute("delete from OrderInfo");
    go(opened("mnuEditEstimate"), "CmdSelect");  // nothing
}

TEST_F(FindingTest, AnEstimateIsDeletedByItsNumber) {
    QWidget& prompt = opened("mnuDelEstimate");
    EXPECT_EQ(utf8(prompt.windowTitle()), "Delete Order");
    go(prompt, "TxtGetOrderNo=4; cmdOk; TxtGetOrderNo=; cmdOk",
       {ok("Estimate not found corresponding to entered Estimate Number", "Search Estimate"),
        ok("Please Enter Estimate No.", "Search Estimate")});
    type(*QApplication::focusWidget(), "3\r");  // ready for the number
    EXPECT_EQ(standing("FrmOrderNo"), nullptr) << "the estimate screen closes the prompt";
    QWidget& order = screens->order.window();
    EXPECT_EQ(utf8(order.windowTitle()) + text(order, "TxtOrder"), "Delete Estimate3");
    EXPECT_EQ(visible(order, {"cmdAdd", "cmdDel", "CmdSave", "CmdDeleteOrder"}), "CmdDeleteOrder");
    const TestHost::Box keep = no("Are you sure you want to Delete Estimate No.  3", "Estimate deletion");
    go(order, "CmdDeleteOrder", {keep});
    EXPECT_EQ(lines(3).size(), 2U);
    go(order, "CmdDeleteOrder", {yes(keep.text, keep.title), ok("Order Deleted", "")});
    EXPECT_EQ(standing("frmOrder"), nullptr);
    EXPECT_EQ(data.rows("select OrderNo from OrderInfo union all select OrderNo from OrderItem"), (Texts{"5", "5"}));
    QWidget& edited = openEstimate(5);
    go(opened("mnuDelEstimate"), "CmdCancel");
    go(edited, "TxtScity=Elsewhere; CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.cell("select SCity from OrderInfo"), "null")
        << "a deletion that was cancelled leaves its mode behind";
}

}  // namespace
}  // namespace torvane
