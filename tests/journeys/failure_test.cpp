// Journeys that end in the run-time error box, and what the database holds then.

#include "journeys/journey.h"

namespace torvane {
namespace {

struct Ending {
    const char* name;
    const char* before;  // statements that prepare the database
    const char* opened;  // "new", "edit", "again" (new over edit), or a mode of the customer list
    const char* steps;
    std::vector<TestHost::Box> boxes;
    std::string ended;  // number, and the beginning of the refused text
    const char* select = "select ItemId, Qty from OrderItem where OrderNo = 3";
    Texts stored = {"1|2.5", "3|100.0"};
};
void PrintTo(const Ending& row, std::ostream* out) {
    *out << row.name;
}

class EndingTest : public JourneyTest, public ::testing::WithParamInterface<Ending> {};

TEST_P(EndingTest, InTheRunTimeErrorBox) {
    const Ending& row = GetParam();
    data.execute(row.before);
    const std::string_view opened = row.opened;
    if (opened == "add") {
        whenModal([](QWidget& form) { click(find<QWidget>(form, "cmdOk")); });
        go(customers("A"), row.steps);
    } else if (opened == "select") {
        whenModal([](QWidget& top) { click(find<QWidget>(top, "CmdSelect")); });
        go(newEstimate(), row.steps);
    } else if (opened == "find") {
        go(customers("E"), row.steps);
    } else if (opened == "new") {
        go(newEstimate(), row.steps, row.boxes);
    } else {
        QWidget& order = openEstimate("E", 3);
        if (opened == "again") newEstimate();
        go(order, row.steps, row.boxes);
    }
    const std::string ended = endedWith();
    EXPECT_TRUE(ended.starts_with(row.ended)) << ended;
    EXPECT_EQ(data.rows(row.select), row.stored);
}

const TestHost::Box updatePrice = yes(
    "You have changed the Material Price. Do you want to update this price in Main File?", "Change master file price?");
const char* const prices = "select Material from Item where ItemId = 1";
const char* const noteAndLines =
    "select Notes, (select count(*) from OrderItem where OrderNo = 3) from OrderInfo where OrderNo = 3";
const char* const customerNames = "select CustName from Customer";

INSTANTIATE_TEST_SUITE_P(
    Journeys, EndingTest,
    ::testing::Values(
        Ending{"blankPrice",
               "",
               "new",
               "cmbItems=Joist; TxtMaterial=; TxtQty",
               {updatePrice},
               "1 update Item set Material= where Itemid=1",
               prices,
               {"10.0"}},
        Ending{"unreadablePrice",
               "",
               "new",
               "cmbItems=Joist; TxtMaterial=1.2.3; TxtQty",
               {updatePrice},
               "1 update Item set Material=1.2.3 where Itemid=1",
               prices,
               {"10.0"}},
        Ending{"addWithoutItems", "delete from Item", "new", "TxtQty=1; cmdAdd", {}, "9 "},
        Ending{"addWithoutRooms", "delete from Rooms", "new", "cmdAdd", {}, "9 "},
        Ending{"applyAfterSave", "", "edit", "CmdSave; CmdEdit; cmdEditApply", {ok("Estimate Saved")}, "9 "},
        Ending{"applyOnARowThatHasGone",
               "delete from OrderItem where ItemId = 1",
               "edit",
               "CmdEdit; cmdDel; cmdEditApply",
               {yes("Do you want to delete selected item from the list?", "Confirm Deletion")},
               "9 ",
               "select ItemId from OrderItem",
               {"3"}},
        Ending{"applyOfNoNumber", "", "edit", "CmdEdit; TxtQty=1.2.3; cmdEditApply", {}, "13 1.2.3"},
        Ending{"apostropheInTheNotes",
               "",
               "edit",
               "txtNotes=Ann's; CmdSave",
               {},
               "1 Update OrderInfo Set CustId = 7, RepId = 2, OrderDate = #7/4/2003#, ",
               noteAndLines,
               {"Old note|0"}},
        Ending{"numberThatIsTaken", "", "again", "CmdSave", {}, "19 Insert into OrderInfo (Orderno,CustId,"},
        Ending{"taxBeyondANumber", "update OrderInfo set Amount = 1e38", "edit", "txtTaxPer=1e308", {}, "6 "},
        Ending{"notesWithoutARow", "delete from BlankNotes", "edit", "cmdImport", {}, "5 "},
        Ending{"notesThatAreNull", "update BlankNotes set Notes = null", "edit", "cmdImport", {}, "94 "},
        Ending{"apostropheInACustomersName",
               "",
               "add",
               "txtCustName=O'Hara; cmdAdd",
               {},
               "1 Select * from Customer where CustName ='O'Hara' and ",
               customerNames,
               {"Ann Lee", "Bob Ray"}},
        Ending{"apostropheInASearch",
               "",
               "find",
               "txtCustName=O'; cmdSearch",
               {},
               "1 SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like 'O'%'"},
        Ending{"selectFromAnEmptyList", "delete from Customer", "select", "CmdSelCust", {}, "91 "},
        Ending{"customerKeyBeyondItsType",
               "update Customer set CustId = 40000 where CustId = 7",
               "find",
               "CmdEdit",
               {},
               "6 "}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace torvane
