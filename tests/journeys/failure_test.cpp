// Journeys that end in the run-time error box, and what the database holds then.

#include "journeys/journey.h"

namespace torvane {
namespace {

struct Ending {
    const char* name;
    const char* before;  // statements that prepare the database
    const char* opened;  // "new", "edit", "again" (new over edit), or a mode of the customer list
    const char* steps;
    std::string ended;                   // number, and the beginning of the refused text
    const char* during;                  // what the box says that was going on
    const TestHost::Box* box = nullptr;  // that comes on the way
    const char* select = "select ItemId, Qty from OrderItem where OrderNo = 3";
    std::string stored = "1|2.5;3|100.0";  // its rows afterwards
};
void PrintTo(const Ending& row, std::ostream* out) {
    *out << row.name;
}

class EndingTest : public JourneyTest, public ::testing::WithParamInterface<Ending> {};

TEST_P(EndingTest, InTheRunTimeErrorBox) {
    const Ending& row = GetParam();
    data.execute(row.before);
    const std::string_view opened = row.opened;
    const std::vector<TestHost::Box> boxes(row.box ? 1 : 0, row.box ? *row.box : TestHost::Box());
    start();
    const RuntimeFailure failure = endOf([&] {
        if (opened == "add") {
            whenModal([](QWidget& form) { click(form, "cmdOk"); });
            go(customers("A"), row.steps);
        } else if (opened == "select") {
            whenModal([](QWidget& top) { click(top, "CmdSelect"); });
            go(newEstimate(), row.steps);
        } else if (opened == "find") {
            go(customers("E"), row.steps);
        } else if (opened == "new") {
            go(newEstimate(), row.steps, boxes);
        } else {
            QWidget& order = openEstimate("E", 3);
            if (opened == "again") newEstimate();
            go(order, row.steps, boxes);
        }
    });
    const std::string ended = std::to_string(failure.number()) + " " + failure.refused();
    EXPECT_TRUE(ended.starts_with(row.ended)) << ended;
    EXPECT_EQ(failure.during(), row.during);
    std::string stored;
    for (const std::string& one : data.rows(row.select)) stored += (stored.empty() ? "" : ";") + one;
    EXPECT_EQ(stored, row.stored);
}

const TestHost::Box updatePrice = yes(
    "You have changed the Material Price. Do you want to update this price in Main File?", "Change master file price?");
const TestHost::Box saved = ok("Estimate Saved");
const TestHost::Box deleteLine = yes("Do you want to delete selected item from the list?", "Confirm Deletion");
const char* const prices = "select Material from Item where ItemId = 1";
const char* const noteAndLines =
    "select Notes, (select count(*) from OrderItem where OrderNo = 3) from OrderInfo where OrderNo = 3";
const char* const writing = "writing the price to the catalogue";

INSTANTIATE_TEST_SUITE_P(
    Journeys, EndingTest,
    ::testing::Values(
        Ending{"blankPrice", "", "new", "cmbItems=Joist; TxtMaterial=; TxtQty",
               "1 update Item set Material= where Itemid=1", writing, &updatePrice, prices, "10.0"},
        Ending{"unreadablePrice", "", "new", "cmbItems=Joist; TxtMaterial=1.2.3; TxtQty",
               "1 update Item set Material=1.2.3 where Itemid=1", writing, &updatePrice, prices, "10.0"},
        Ending{"priceBeyondItsColumn", "", "new",
               "cmbItems=Joist; TxtMaterial=9999999999999999999999999999999999999999; TxtQty",
               "19 update Item set Material=9999999999999999999999999999999999999999 where Itemid=1", writing,
               &updatePrice, prices, "10.0"},
        Ending{"addWithoutItems", "delete from Item", "new", "TxtQty=1; cmdAdd", "9 ", "adding the line"},
        Ending{"addWithoutRooms", "delete from Rooms", "new", "cmdAdd", "9 ", "adding the line"},
        Ending{"applyAfterSave", "", "edit", "CmdSave; CmdEdit; cmdEditApply", "9 ", "changing the line", &saved},
        Ending{"applyOnARowThatHasGone", "delete from OrderItem where ItemId = 1", "edit",
               "CmdEdit; cmdDel; cmdEditApply", "9 ", "changing the line", &deleteLine, "select ItemId from OrderItem",
               "3"},
        Ending{"applyOfNoNumber", "", "edit", "CmdEdit; TxtQty=1.2.3; cmdEditApply", "13 1.2.3", "changing the line"},
        Ending{"apostropheInTheNotes", "", "edit", "txtNotes=Ann's; CmdSave",
               "1 Update OrderInfo Set CustId = 7, RepId = 2, OrderDate = #7/4/2003#, ", "saving the estimate", nullptr,
               noteAndLines, "Old note|0"},
        Ending{"numberThatIsTaken", "", "again", "CmdSave", "19 Insert into OrderInfo (Orderno,CustId,",
               "saving the estimate"},
        Ending{"taxBeyondANumber", "update OrderInfo set Amount = 1e38", "edit", "txtTaxPer=1e308", "6 ",
               "computing the totals"},
        Ending{"notesWithoutARow", "delete from BlankNotes", "edit", "cmdImport", "5 ", "reading the notes"},
        Ending{"notesThatAreNull", "update BlankNotes set Notes = null", "edit", "cmdImport", "94 ",
               "reading the notes"},
        Ending{"apostropheInACustomersName", "", "add", "txtCustName=O'Hara; cmdAdd",
               "1 Select * from Customer where CustName ='O'Hara' and ", "saving the record", nullptr,
               "select CustName from Customer", "Ann Lee;Bob Ray"},
        Ending{"apostropheInASearch", "", "find", "txtCustName=O'; cmdSearch",
               "1 SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like 'O'%'",
               "searching"},
        Ending{"selectFromAnEmptyList", "delete from Customer", "select", "CmdSelCust", "91 ",
               "taking the selected customer"},
        Ending{"customerKeyBeyondItsType",
               "pragma ignore_check_constraints = on; update Customer set CustId = 40000 where CustId = 7", "find",
               "CmdEdit", "6 ", R"(working in the window "Edit Customer")"}),
    [](const auto& one) { return std::string(one.param.name); });

// What the box says that was going on: a menu entry opens a window, the database breaks, and a step of the user fails.
struct While {
    const char* during;
    const char* entry;
    const char* window;  // where the steps go; "" when the entry itself meets the broken database
    const char* broken;
    const char* steps = "";
    std::vector<TestHost::Box> boxes = {};
};
void PrintTo(const While& row, std::ostream* out) {
    *out << row.during;
}

class WhileTest : public JourneyTest, public ::testing::WithParamInterface<While> {};

TEST_P(WhileTest, SomethingWasGoingOn) {
    const While& row = GetParam();
    start();
    host.missingPrograms = true;
    const RuntimeFailure failure = endOf([&] {
        if (!*row.window) data.execute(row.broken);
        choose(row.entry);
        if (std::string_view(row.window) == "frmList") click(*standing("frmOrder"), "cmdItemList");
        if (*row.window) data.execute(row.broken);
        if (std::string_view(row.steps) == "TreeCategory") {
            auto& tree = find<QTreeWidget>(*standing(row.window), "TreeCategory");
            tree.setCurrentItem(tree.findItems("Joist", Qt::MatchExactly | Qt::MatchRecursive).value(0));
            key(tree, Qt::Key_Return);
        } else if (auto* other = *row.window ? standing(row.window)->findChild<QAction*>(row.steps) : nullptr) {
            trigger(*other);
        } else if (*row.window) {
            go(*standing(row.window), row.steps, row.boxes);
        }
    });
    EXPECT_EQ(failure.during(), row.during);
}

INSTANTIATE_TEST_SUITE_P(
    Journeys, WhileTest,
    ::testing::Values(
        While{"reading the list", "SubMnuEditItem", "", "drop table Item"},
        While{"opening the item form", "SubMnuEditItem", "frmItem", "drop table Units", "CmdEdit"},
        While{"saving the category", "SubMnuAddCat", "frmCategory", "drop table Category", "txtCatName=Wood; cmdAdd"},
        While{"showing a name", "mnuRooms", "", "drop table Rooms"},
        While{"saving the name",
              "mnuUnits",
              "frmMaster",
              "drop table Units",
              "CmdSave",
              {yes("Do you want to save the record?", "Save Data")}},
        While{"deleting the name",
              "mnuUnits",
              "frmMaster",
              "drop table Units",
              "cmdDelete",
              {yes("Do you want to delete 'Bag'?", "Master Entry")}},
        While{"opening the estimate screen", "mnuNewEstimate", "", "drop table Rooms"},
        While{"opening the item sheet", "mnuNewEstimate", "frmOrder", "drop table Category", "cmdItemList"},
        While{"copying the item to the sheet", "mnuNewEstimate", "frmList", "drop table Units", "TreeCategory"},
        While{"opening the estimate", "mnuEditEstimate", "frmOrders", "drop table OrderItem", "CmdSelect"},
        While{"looking for the estimate", "mnuDelEstimate", "FrmOrderNo", "", "TxtGetOrderNo=3a; cmdOk"},
        While{"starting the conversions program", "mnucalc1_6", "", ""},
        While{"computing the Resilient Tile Calculator", "mnucalc3_9", "frmCalculator3", "", "cmdTab36"},
        While{"opening the calculator of this type", "mnucalc1_7", "scientific", "", "tstandard"},
        While{"reading the notes", "mnuBlank", "", "delete from BlankNotes"},
        While{"saving the notes", "mnuBlank", "frmBlank", "drop table BlankNotes", "cmdOk"}),
    [](const auto& one) {
        std::string name = one.param.during;
        std::erase(name, ' ');
        return name;
    });

}  // namespace
}  // namespace torvane
