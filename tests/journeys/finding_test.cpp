// Finding, opening and deleting saved estimates; the shared notes.

#include <QRadioButton>

#include "journeys/journey.h"
#include "widgets/text_area.h"

namespace torvane {
namespace {

class FindingTest : public JourneyTest {
protected:
    QWidget& search() {
        if (!screens) start();
        choose("mnuEditEstimate");
        return screens->orders.window();
    }
    QWidget& numberPrompt() {
        if (!screens) start();
        choose("mnuDelEstimate");
        return screens->orderNo.window();
    }
    // Estimates 101 and up of Ann Lee, one a day, each with its number as total.
    void addEstimates(int count) {
        for (int number = 101; number <= 100 + count; ++number)
            data.execute("insert into OrderInfo (OrderNo, CustId, OrderDate, Amount, Total) values (" +
                         std::to_string(number) + ", 7, date('2010-01-01', '+" + std::to_string(number) +
                         " days'), 1, " + std::to_string(number) + ")");
    }
    Texts numbers(const QWidget& list) {
        Texts all;
        for (const std::string& row : rows(list)) all.push_back(row.substr(0, row.find('|')));
        return all;
    }
};

TEST_F(FindingTest, ListsEveryEstimate) {
    data.execute("delete from Customer where CustId = 8; update OrderInfo set Total = null where OrderNo = 5");
    QWidget& list = search();
    EXPECT_EQ(utf8(list.windowTitle()), "Search Estimate");
    EXPECT_EQ(rows(list), (Texts{"3|7/4/2003|Ann Lee|236", "5|1/31/2004||"}));
    EXPECT_EQ(text(list, "LblRecords"), "Record 1 - 2 of 2");
    EXPECT_EQ(visible(list, {"CmdSelect"}), "CmdSelect");
    EXPECT_EQ(torvane::list(list).columnIcon(0), ReportList::Icon::Down);
}

TEST_F(FindingTest, Searches) {
    addEstimates(12);
    data.execute("update OrderInfo set CustId = 8 where OrderNo = 112");
    QWidget& list = search();
    struct Row {
        const char* option;
        const char* text;
        Texts numbers;
    };
    for (const Row& row :
         {Row{"OptOrderNo", "12", {"112"}}, Row{"OptOrderNo", "5", {"5", "105"}}, Row{"OptName", "OB r", {"5", "112"}},
          Row{"OptName", "Lee", {"3", "101", "102", "103", "104", "105", "106", "107", "108", "109", "110", "111"}}}) {
        SCOPED_TRACE(row.text);
        find<QRadioButton>(list, row.option).setChecked(true);
        go(list, std::string("txtName=") + row.text);
        go(list, "cmdSearch");
        EXPECT_EQ(numbers(list), row.numbers);
        EXPECT_EQ(find<TextBox>(list, "txtName").selectedText(), row.text);
        // Shows the same rows again: the condition stays.
        go(list, "CmdAll");
        EXPECT_EQ(numbers(list), row.numbers);
    }
    go(list, "txtName=nobody; cmdSearch", {ok("Estimate Not Found", "")});
    EXPECT_EQ(numbers(list).size(), 12U) << "the old rows stay";
    EXPECT_EQ(text(list, "LblRecords"), "Record 1 - 12 of 12");
}

TEST_F(FindingTest, PagesAndSorts) {
    addEstimates(38);
    QWidget& list = search();
    go(list, "CmdNext");
    go(list, "CmdNext");
    EXPECT_EQ(numbers(list), (Texts{"129", "130", "131", "132", "133", "134", "135", "136", "137", "138"}));
    EXPECT_EQ(text(list, "LblRecords"), "Record 31 - 40 of 40");
    EXPECT_EQ(enabled(list, {"CmdPrev", "CmdNext"}), "CmdPrev");
    // One flag for all columns: down, up, down; the page stays.
    auto& report = torvane::list(list);
    struct Row {
        int column;
        const char* first;
        ReportList::Icon icon;
    };
    for (const Row& row : {Row{3, "109", ReportList::Icon::Down}, Row{0, "129", ReportList::Icon::Up},
                           Row{1, "108", ReportList::Icon::Down}, Row{2, "130", ReportList::Icon::Up}}) {
        SCOPED_TRACE(row.column);
        clickHeader(report, row.column);
        EXPECT_EQ(numbers(list).front(), row.first);
        EXPECT_EQ(report.columnIcon(row.column), row.icon);
    }
}

TEST_F(FindingTest, OpensAnEstimateForEditing) {
    QWidget& list = search();
    doubleClickRow(torvane::list(list), 1);
    EXPECT_FALSE(screens->orders.loaded());
    QWidget& order = screens->order.window();
    EXPECT_EQ(utf8(order.windowTitle()), "Edit Estimate");
    EXPECT_EQ(texts(order, {"TxtOrder", "TxtCustomer"}), "5|Bob Ray");
    go(order, "TxtQty=4");
    go(order, "cmbItems=Joist");
    host.expectOk("Item already added ", "Inventory");
    go(order, "cmdAdd");
    for (const char* room : {"Deck", "Roof"}) {
        go(order, std::string("cmbRooms=") + room);
        go(order, "cmdAdd");
    }
    host.expectOk("Estimate Saved", "Inventory");
    go(order, "CmdSave");
    EXPECT_EQ(data.cell("select count(*) from OrderItem where OrderNo = 5"), "3");
}

TEST_F(FindingTest, AnotherEstimateIsReadIntoTheRecordUnderTheOpenScreen) {
    QWidget& order = openEstimate("E", 5);
    QWidget& list = search();
    doubleClickRow(torvane::list(list), 0);
    EXPECT_EQ(text(order, "TxtOrder"), "5") << "the window is only brought up";
    host.expectOk("Estimate Saved", "Inventory");
    go(order, "CmdSave");
    EXPECT_EQ(data.rows("select ItemId from OrderItem where OrderNo = 5"), (Texts{"1", "3"}));
}

TEST_F(FindingTest, AnEmptyListOpensNothing) {
    data.execute("delete from OrderInfo");
    QWidget& list = search();
    go(list, "CmdSelect");
    EXPECT_TRUE(screens->orders.loaded());
    EXPECT_FALSE(screens->order.loaded());
    EXPECT_EQ(text(list, "LblRecords"), "Record 1 - 0 of 0");
}

TEST_F(FindingTest, DeletesByNumber) {
    QWidget& prompt = numberPrompt();
    EXPECT_EQ(utf8(prompt.windowTitle()), "Delete Order");
    host.expectOk("Please Enter Estimate No.", "Search Estimate");
    go(prompt, "cmdOk");
    go(prompt, "TxtGetOrderNo=4");
    host.expectOk("Estimate not found corresponding to entered Estimate Number", "Search Estimate");
    key(find<QWidget>(prompt, "TxtGetOrderNo"), Qt::Key_Return);
    EXPECT_TRUE(screens->orderNo.loaded());
    go(prompt, "TxtGetOrderNo=3");
    go(prompt, "cmdOk");
    EXPECT_FALSE(screens->orderNo.loaded()) << "the estimate screen closes the prompt";
    QWidget& order = screens->order.window();
    EXPECT_EQ(utf8(order.windowTitle()), "Delete Estimate");
    EXPECT_EQ(text(order, "TxtOrder"), "3");
}

TEST_F(FindingTest, ACancelledDeletionLeavesItsModeBehind) {
    QWidget& order = openEstimate("E", 3);
    go(numberPrompt(), "CmdCancel");
    EXPECT_EQ(screens->order.AddOrDelete, "D");
    go(order, "TxtScity=Elsewhere; CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.cell("select count(*) from OrderInfo where SCity = 'Elsewhere'"), "0");
}

TEST_F(FindingTest, LettersInTheNumberEndTheProgram) {
    EXPECT_EQ(endOf([&] { go(numberPrompt(), "TxtGetOrderNo=3a; cmdOk"); }).number(), 13);
}

TEST_F(FindingTest, AnApostropheInTheSearchEndsTheProgram) {
    QWidget& list = search();
    EXPECT_NE(endedBy([&] { go(list, "txtName=O'Hara; cmdSearch"); }).find("like '%O'Hara%'"), std::string::npos);
}

TEST_F(FindingTest, SharedNotes) {
    start();
    choose("mnuBlank");
    QWidget& notes = screens->blank.window();
    EXPECT_EQ(utf8(notes.windowTitle()), "Blank Area for Customer Notes");
    EXPECT_EQ(text(notes, "rtfNotes"), "Good for 30 days.\nHalf is due on signing.");
    find<TextArea>(notes, "rtfNotes").setText("Don't walk on wet floors; it's slippery.");
    QWidget& order = newEstimate();
    go(order, "cmdImport");
    EXPECT_EQ(text(order, "rtfNotes"), "Good for 30 days.\nHalf is due on signing.") << "the text last stored";
    go(notes, "cmdOk");
    EXPECT_FALSE(screens->blank.loaded());
    EXPECT_EQ(data.cell("select Notes from BlankNotes"), "Don't walk on wet floors; it's slippery.");
    choose("mnuBlank");
    find<TextArea>(screens->blank, "rtfNotes").setText("lost");
    go(screens->blank.window(), "CmdCancel");
    EXPECT_FALSE(screens->blank.loaded());
    EXPECT_EQ(data.cell("select Notes from BlankNotes"), "Don't walk on wet floors; it's slippery.");
}

}  // namespace
}  // namespace torvane
