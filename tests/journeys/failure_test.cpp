// Journeys that end in the run-time error box: what it says that was going on, and what the database holds then.

#include <QApplication>

#include "journeys/journey.h"

namespace torvane {
namespace {

struct Ending {
    const char* during;
    const char* opened;  // an entry of the menu, "edit" (estimate 3), or "again" (a new estimate over that)
    const char* window;  // where the steps go; "" when the opening itself meets the broken database
    const char* broken;  // statements
    const char* steps = "";
    const char* ended = "1 ";  // number, and the beginning of the refused text
    std::vector<TestHost::Box> boxes = {};
    const char* select = "select ItemId, Qty from OrderItem where OrderNo = 3";
    const char* stored = "1|2.5;3|100.0;";  // its rows afterwards
};

void PrintTo(const Ending& row, std::ostream* out) {
    *out << row.during << ": " << row.steps;
}

class EndingTest : public JourneyTest, public ::testing::WithParamInterface<Ending> {
protected:
    void open(std::string_view opened) {
        if (opened == "edit" || opened == "again") openEstimate("E", 3);
        if (opened == "again") newEstimate();
        if (opened.starts_with("mnu") || opened.starts_with("Sub")) choose(opened);
    }
    void takeSteps(QWidget& window, const Ending& row) {
        if (std::string_view(row.steps) == "TreeCategory") {
            auto& tree = find<QTreeWidget>(window, row.steps);
            tree.setCurrentItem(tree.findItems("Joist", Qt::MatchExactly | Qt::MatchRecursive).value(0));
            key(tree, Qt::Key_Return);
        } else if (auto* entry = window.findChild<QAction*>(row.steps)) {
            trigger(*entry);
        } else {
            go(window, row.steps, row.boxes);
        }
    }
};

TEST_P(EndingTest, InTheRunTimeErrorBox) {
    const Ending& row = GetParam();
    const std::string_view window = row.window;
    start();
    host.missingPrograms = true;
    const RuntimeFailure failure = endOf([&] {
        if (window.empty()) data.execute(row.broken);
        open(row.opened);
        if (window == "frmList") click(*standing("frmOrder"), "cmdItemList");
        data.execute(row.broken);
        if (window == "CustMast") whenModal([](QWidget& form) { click(form, "cmdOk"); });
        if (window == "frmSelect") whenModal([](QWidget& list) { click(list, "CmdSelect"); });
        QWidget* named = standing(window);
        if (!window.empty()) takeSteps(named ? *named : *QApplication::activeWindow(), row);
    });
    const std::string ended = std::to_string(failure.number()) + " " + failure.refused();
    EXPECT_TRUE(ended.starts_with(row.ended)) << ended;
    EXPECT_EQ(failure.during(), row.during);
    std::string stored;
    for (const std::string& one : data.rows(row.select)) stored += one + ";";
    EXPECT_EQ(stored, row.stored);
}

const std::vector<TestHost::Box> updatePrice{
    yes("You have changed the Material Price. Do you want to update this price in Main File?",
        "Change master file price?")};
constexpr auto writing = "writing the price to the catalogue";
constexpr auto price = "select Material from Item where ItemId = 1";

INSTANTIATE_TEST_SUITE_P(
    Estimates, EndingTest,
    ::testing::Values(
        Ending{writing, "mnuNewEstimate", "frmOrder", "", "cmbItems=Joist; TxtMaterial=; TxtQty",
               "1 update Item set Material= where Itemid=1", updatePrice, price, "10.0;"},
        Ending{writing, "mnuNewEstimate", "frmOrder", "",
               "cmbItems=Joist; TxtMaterial=9999999999999999999999999999999999999999; TxtQty",
               "19 update Item set Material=9999999999999999999999999999999999999999 where Itemid=1", updatePrice,
               price, "10.0;"},
        Ending{"adding the line", "mnuNewEstimate", "frmOrder", "drop table Item", "TxtQty=1; cmdAdd"},
        Ending{"changing the line",
               "edit",
               "frmOrder",
               "",
               "CmdSave; CmdEdit; cmdEditApply",
               "9 ",
               {ok("Estimate Saved")}},
        Ending{"changing the line", "edit", "frmOrder", "", "CmdEdit; TxtQty=1.2.3; cmdEditApply", "13 1.2.3"},
        Ending{"saving the estimate",
               "edit",
               "frmOrder",
               "",
               "txtNotes=Ann's; CmdSave",
               "1 Update OrderInfo Set CustId = 7, RepId = 2, OrderDate = #7/4/2003#, ",
               {},
               "select Notes, (select count(*) from OrderItem where OrderNo = 3) from OrderInfo where OrderNo = 3",
               "Old note|0;"},
        Ending{"saving the estimate", "again", "frmOrder", "", "CmdSave", "19 Insert into OrderInfo (Orderno,CustId,"},
        Ending{"computing the totals", "edit", "frmOrder", "", "txtTaxPer=1e308; txtOHPer=1e308", "6 "},
        Ending{"reading the notes", "edit", "frmOrder", "delete from BlankNotes", "cmdImport", "5 "},
        Ending{"reading the notes", "edit", "frmOrder", "update BlankNotes set Notes = null", "cmdImport", "94 "},
        Ending{"opening the estimate screen", "mnuNewEstimate", "", "drop table Rooms"},
        Ending{"opening the item sheet", "mnuNewEstimate", "frmOrder", "drop table Category", "cmdItemList"},
        Ending{"copying the item to the sheet", "mnuNewEstimate", "frmList", "drop table Units", "TreeCategory"},
        Ending{"opening the estimate",
               "mnuEditEstimate",
               "frmOrders",
               "alter table OrderItem rename Qty to Lost",
               "CmdSelect",
               "5 ",
               {},
               "select count(*) from OrderItem",
               "3;"},
        Ending{"looking for the estimate", "mnuDelEstimate", "FrmOrderNo", "", "TxtGetOrderNo=3a; cmdOk", "13 3a"}));

INSTANTIATE_TEST_SUITE_P(
    Masters, EndingTest,
    ::testing::Values(
        Ending{"saving the record",
               "SubMnuAddCust",
               "CustMast",
               "",
               "txtCustName=O'Hara; cmdAdd",
               "1 Select * from Customer where CustName ='O'Hara' and ",
               {},
               "select CustName from Customer",
               "Ann Lee;Bob Ray;"},
        Ending{"searching", "SubMnuEditCust", "frmCustomer", "", "txtCustName=O'; cmdSearch",
               "1 SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like 'O'%'"},
        Ending{"taking the selected customer", "mnuNewEstimate", "frmSelect", "delete from Customer", "CmdSelCust",
               "91 "},
        Ending{R"(working in the window "Edit Customer")", "SubMnuEditCust", "frmCustomer",
               "pragma ignore_check_constraints = on; update Customer set CustId = 40000 where CustId = 7",
               "CmdAll; CmdEdit", "6 "},
        Ending{"reading the list", "SubMnuEditItem", "", "drop table Item"},
        Ending{"opening the item form", "SubMnuEditItem", "frmItem", "drop table Units", "CmdEdit"},
        Ending{"saving the category", "SubMnuAddCat", "frmCategory", "drop table Category", "txtCatName=Wood; cmdAdd"},
        Ending{"showing a name", "mnuRooms", "", "drop table Rooms"},
        Ending{"saving the name",
               "mnuUnits",
               "frmMaster",
               "drop table Units",
               "CmdSave",
               "1 ",
               {yes("Do you want to save the record?", "Save Data")}},
        Ending{"deleting the name",
               "mnuUnits",
               "frmMaster",
               "drop table Units",
               "cmdDelete",
               "1 ",
               {yes("Do you want to delete 'Bag'?", "Master Entry")}},
        Ending{"reading the notes", "mnuBlank", "", "delete from BlankNotes", "", "5 "},
        Ending{"saving the notes", "mnuBlank", "frmBlank", "drop table BlankNotes", "cmdOk"},
        Ending{"starting the conversions program", "mnucalc1_6", "", "", "", "53 "},
        Ending{"computing the Resilient Tile Calculator", "mnucalc3_9", "frmCalculator3", "", "cmdTab36", "9 "},
        Ending{"opening the calculator of this type", "mnucalc1_7", "scientific", "", "tstandard", "91 "}));

}  // namespace
}  // namespace torvane
