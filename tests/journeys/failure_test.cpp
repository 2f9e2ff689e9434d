// Journeys that end in the run-time error box, and what the database holds then.

#include <functional>

#include "journeys/journey.h"

namespace torvane {
namespace {

class EndingTest;

struct Ending {
    const char* name;
    std::function<void(EndingTest&)> act;
    std::string ended;                // number and refused text
    const char* statement = nullptr;  // a select for what the database holds then, and its rows
    Texts rows = {};
};
void PrintTo(const Ending& row, std::ostream* out) {
    *out << row.name;
}

class EndingTest : public JourneyTest, public ::testing::WithParamInterface<Ending> {
public:
    using JourneyTest::customers;
    using JourneyTest::data;
    using JourneyTest::host;
    using JourneyTest::newEstimate;
    using JourneyTest::openEstimate;
    using JourneyTest::screens;
    using JourneyTest::whenModal;

    void setMaterialPrice(const char* price) {
        QWidget& order = newEstimate();
        pick(order, "cmbItems", "Joist");
        enter(order, "TxtMaterial", price);
        host.expectYesNo("You have changed the Material Price. Do you want to update this price in Main File?",
                         "Change master file price?", Answer::Yes);
        click(find<QWidget>(order, "TxtQty"));
    }
    void addCustomer(const char* name) {
        QWidget& list = customers("A");
        find<TextBox>(list, "txtCustName").setText(name);
        whenModal([](QWidget& form) { click(form, "cmdOk"); });
        click(list, "cmdAdd");
    }
    void saveWithNote(const char* mode, const char* note) {
        QWidget& order = openEstimate(mode, 3);
        enter(order, "txtNotes", note);
        click(order, "CmdSave");
    }
    void openAfter(const char* statements) {
        data.execute(statements);
        start();
        readEstimate("E", 3);
    }
    void importAfter(const char* statements) {
        openAfter(statements);
        click(screens->order.window(), "cmdImport");
    }
};

TEST_P(EndingTest, InTheRunTimeErrorBox) {
    const Ending& row = GetParam();
    row.act(*this);
    const std::string ended = endedWith();
    EXPECT_TRUE(ended.starts_with(row.ended)) << ended;
    EXPECT_TRUE(program.ended());
    if (row.statement) {
        EXPECT_EQ(data.rows(row.statement), row.rows);
    }
}

const char* const prices = "select Material from Item where ItemId = 1";
const char* const savedLines = "select ItemId, Qty from OrderItem where OrderNo = 3";
const char* const customerNames = "select CustName from Customer";

INSTANTIATE_TEST_SUITE_P(
    Journeys, EndingTest,
    ::testing::Values(
        Ending{"blankPrice",
               [](EndingTest& test) { test.setMaterialPrice(""); },
               "1 update Item set Material= where Itemid=1",
               prices,
               {"10.0"}},
        Ending{"unreadablePrice",
               [](EndingTest& test) { test.setMaterialPrice("1.2.3"); },
               "1 update Item set Material=1.2.3 where Itemid=1",
               prices,
               {"10.0"}},
        Ending{"addWithoutItems",
               [](EndingTest& test) {
                   test.data.execute("delete from Item");
                   QWidget& order = test.newEstimate();
                   enter(order, "TxtQty", "1");
                   click(order, "cmdAdd");
               },
               "9 "},
        Ending{"addWithoutRooms",
               [](EndingTest& test) {
                   test.data.execute("delete from Rooms");
                   click(test.newEstimate(), "cmdAdd");
               },
               "9 "},
        Ending{"applyAfterSave",
               [](EndingTest& test) {
                   QWidget& order = test.openEstimate("E", 3);
                   test.host.expectOk("Estimate Saved", "Inventory");
                   click(order, "CmdSave");
                   doubleClickRow(order, 1);
                   click(order, "cmdEditApply");
               },
               "9 ",
               savedLines,
               {"1|2.5", "3|100.0"}},
        Ending{"applyOnARowThatHasGone",
               [](EndingTest& test) {
                   QWidget& order = test.openEstimate("E", 3);
                   doubleClickRow(order, 1);
                   test.host.expectYesNo("Do you want to delete selected item from the list?", "Confirm Deletion",
                                         Answer::Yes);
                   click(order, "cmdDel");
                   click(order, "cmdEditApply");
               },
               "9 "},
        Ending{"applyOfAQuantityThatIsNoNumber",
               [](EndingTest& test) {
                   QWidget& order = test.openEstimate("E", 3);
                   doubleClickRow(order, 0);
                   enter(order, "TxtQty", "1.2.3");
                   click(order, "cmdEditApply");
               },
               "13 1.2.3",
               savedLines,
               {"1|2.5", "3|100.0"}},
        Ending{"apostropheInTheNotes",
               [](EndingTest& test) { test.saveWithNote("E", "Ann's"); },
               "1 Update OrderInfo Set CustId = 7, RepId = 2, OrderDate = #7/4/2003#, ",
               "select Notes, (select count(*) from OrderItem where OrderNo = 3) from OrderInfo where OrderNo = 3",
               {"Old note|0"}},
        Ending{"numberThatIsTaken",
               [](EndingTest& test) {
                   test.openEstimate("E", 3);
                   click(test.newEstimate(), "CmdSave");
               },
               "19 Insert into OrderInfo (Orderno,CustId,",
               savedLines,
               {"1|2.5", "3|100.0"}},
        Ending{"areaBeyondANumber",
               [](EndingTest& test) {
                   QWidget& order = test.newEstimate();
                   paste(order, "txtLength", "1e200");
                   paste(order, "txtWidth", "1e200");
               },
               "6 "},
        Ending{"taxBeyondANumber", [](EndingTest& test) { paste(test.openEstimate("E", 3), "txtTaxPer", "1e308"); },
               "6 "},
        Ending{"estimateWithoutADate",
               [](EndingTest& test) { test.openAfter("update OrderInfo set OrderDate = null"); }, "13 "},
        Ending{"estimateWithoutACustomer",
               [](EndingTest& test) { test.openAfter("update OrderInfo set CustId = null"); }, "94 "},
        Ending{"lineWithoutAQuantity", [](EndingTest& test) { test.openAfter("update OrderItem set Qty = null"); },
               "94 "},
        Ending{"notesWithoutARow", [](EndingTest& test) { test.importAfter("delete from BlankNotes"); }, "5 "},
        Ending{"notesThatAreNull", [](EndingTest& test) { test.importAfter("update BlankNotes set Notes = null"); },
               "94 "},
        Ending{"apostropheInACustomersName",
               [](EndingTest& test) { test.addCustomer("O'Hara"); },
               "1 Select * from Customer where CustName ='O'Hara' and ",
               customerNames,
               {"Ann Lee", "Bob Ray"}},
        Ending{"apostropheInASearch",
               [](EndingTest& test) {
                   QWidget& list = test.customers("E");
                   enter(list, "txtCustName", "O'");
                   click(list, "cmdSearch");
               },
               "1 SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like 'O'%'"},
        Ending{"selectFromAnEmptyList",
               [](EndingTest& test) {
                   test.data.execute("delete from Customer");
                   test.whenModal([](QWidget& list) { click(list, "CmdSelect"); });
                   click(test.newEstimate(), "CmdSelCust");
               },
               "91 "},
        Ending{"customerKeyBeyondItsType",
               [](EndingTest& test) {
                   test.data.execute("update Customer set CustId = 40000 where CustId = 7");
                   click(test.customers("E"), "CmdEdit");
               },
               "6 "}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace torvane
