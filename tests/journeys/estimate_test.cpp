// The estimate screen: a new estimate from menu to database, its customer, its lines, its prices, its totals.

#include <QApplication>

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names address{"TxtCustomer", "TxtSstreet1", "TxtSstreet2", "TxtScity",   "cmbSState",
                    "TxtSZip",     "TxtSCountry", "TxtSPhone",   "TxtSMobile", "TxtSEmail"};
const Names panel{"cmbRooms", "TxtQty",       "cmbUnits",  "cmbItems", "TxtMaterial",
                  "txtLabor", "txtExtension", "txtOthers", "txtTotal"};
const Names totals{"TxtAmount", "txtTax", "txtOverhead", "txtFinalTotal"};
const Names modeButtons{"cmdAdd",     "cmdEditApply", "cmdEditCanc", "CmdEdit", "cmdDel",
                        "CmdSelCust", "CmdNewCust",   "cmdOk",       "CmdSave", "CmdDeleteOrder"};
const std::string annsAddress = "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-3|ann@example.com";
const TestHost::Box saved = ok("Estimate Saved");
const TestHost::Box added = ok("Item already added ");
const TestHost::Box noQuantity = ok("Please enter Quanttity");
const TestHost::Box deleteLine = yes("Do you want to delete selected item from the list?", "Confirm Deletion");

struct PriceBox {
    const char* box;
    const char* kind;
    const char* column;
    const char* updated;
    TestHost::Box question(Answer answer) const {
        return {"You have changed the " + std::string(kind) + " Price. Do you want to update this price in Main File?",
                "Change master file price?", Buttons::YesNo, answer};
    }
};
const PriceBox priceBoxes[] = {
    {"TxtMaterial", "Material", "Material", "Material price updated in master file"},
    {"txtLabor", "Labor", "Labor", "Labor price updated in master file"},
    {"txtExtension", "SubLabor", "SubLabor", "Sub-Labor price updated in master file"},
    {"txtOthers", "Equipment", "Equipment", "Equipment price updated in master file"},
};
const TestHost::Box keepMaterial = priceBoxes[0].question(Answer::No);
const TestHost::Box keepLabor = priceBoxes[1].question(Answer::No);

class EstimateTest : public JourneyTest {};

// --- A new estimate --------------------------------------------------------------------------------------------------

TEST_F(EstimateTest, FromMenuToDatabase) {
    QWidget& order = newEstimate();
    EXPECT_EQ(utf8(order.windowTitle()) + texts(order, {"TxtOrder", "txtTaxPer", "txtOHPer", "TxtAmount", "txtNotes"}),
              "Bid Estimate Screen6||||");
    EXPECT_EQ(texts(order, address), "||||Alabama|||||");
    EXPECT_EQ(texts(order, panel), "Attic|100|Bag|Brick|0.5|20|0|1.25|71.25");
    EXPECT_EQ(visible(order, modeButtons), "cmdAdd CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave");

    const TestHost::Box invalid = ok("Please enter Valid Data");
    go(order, "CmdSave", {ok("Select Customer ", "Estimate"), invalid});
    pickCustomer(order, [](QWidget& customers) { doubleClickRow(customers, 0); });
    EXPECT_EQ(texts(order, address), annsAddress);
    go(order, "CmdSave", {ok("No Items Selected", "Estimate"), invalid});
    EXPECT_EQ(texts(order, totals), "0|0|0|0");

    go(order, "cmbRooms=Deck; cmbItems=Joist; cmbUnits=Each");
    EXPECT_EQ(texts(order, panel), "Deck|2|Each|Joist|10|4|5|6|35");
    go(order, "TxtQty=3");
    EXPECT_EQ(text(order, "txtTotal"), "35") << "a quantity alone computes nothing";
    go(order, "cmdAdd; cmbItems=Brick; cmdAdd");
    EXPECT_EQ(rows(order),
              (Texts{"1|Deck|3|Each|Joist|30|4|5|6|45|2|1", "3|Deck|100|Each|Brick|50|20|0|1.25|71.25|2|1"}));
    EXPECT_EQ(list(order).SelectedRow(), 0) << "a row that is added is not selected";
    doubleClickRow(order, 0);
    EXPECT_EQ(texts(order, panel), "Deck|3|Each|Joist|10|4|5|6|45") << "the row's quantity, not the item's";
    go(order, "cmdEditCanc");
    go(order, "txtTaxPer=8; txtOHPer=10 or so; txtNotes=By the lake");
    EXPECT_EQ(texts(order, totals), "116.25|9.3|11.625|137.175");
    key(find<QWidget>(order, "TxtDate"), Qt::Key_Up);  // a month more
    go(order, "CmdSave", {saved});
    EXPECT_EQ(header(6),
              "6|7|0|2024-04-15|1 Elm|Apt 2|Salem|38|97301|USA|555-1|555-3|ann@example.com|0|116.25|8.0|"
              "137.175||By the lake|10.0");
    EXPECT_EQ(lines(6), (Texts{"1|3.0|30.0|2|1|5.0|4.0|6.0", "3|100.0|50.0|2|1|0.0|20.0|1.25"}));
    go(order, "cmbRooms=Roof; cmdAdd");
    EXPECT_EQ(enabled(order, {"CmdSave"}) + std::to_string(lines(6).size()), "2")
        << "a line after the save is not saved";

    const char* discard = "Are you sure you want to cancel this screen and discard any changes done?";
    go(order, "CmdCancel; CmdCancel", {no(discard, "Confirm Cancel"), yes(discard, "Confirm Cancel")});
    EXPECT_FALSE(screens->order.loaded());
    EXPECT_EQ(texts(newEstimate(), {"TxtOrder", "TxtCustomer"}), "7|");
    EXPECT_EQ(rows(screens->order.window()), Texts{});
}

TEST_F(EstimateTest, CustomerComesFromTheListsSelectMode) {
    struct Row {
        std::function<void(QWidget&)> act;
        std::string expected;
    };
    QWidget& order = newEstimate();
    for (const Row& row : {
             Row{[](QWidget& customers) { closeBox(customers); }, "||||Alabama|||||"},
             Row{[](QWidget& customers) { key(list(customers), Qt::Key_Return); }, annsAddress},
             // Where the new customer's state is none, that of the one before stays.
             Row{[this](QWidget& customers) { clickRow(list(customers), 1), go(customers, "CmdSelect"); },
                 "Bob Ray|||Troy|Oregon|||777-1||"},
         }) {
        pickCustomer(order, row.act);
        EXPECT_EQ(texts(order, address), row.expected);
    }
    go(order, "CmdNewCust");
    EXPECT_EQ(screens->customer.caption(), "Add Customer");
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(EstimateTest, LinesAreRefusedOrTaken) {
    struct Row {
        const char* steps;
        std::vector<TestHost::Box> refused;
        std::size_t rows;  // afterwards
    };
    QWidget& order = newEstimate();
    for (const Row& row : {Row{"cmbItems=Joist; TxtQty=", {noQuantity}, 0}, Row{"TxtQty=0", {noQuantity}, 0},
                           Row{"TxtQty=.", {noQuantity}, 0}, Row{"TxtQty=-1x.", {}, 1}, Row{"TxtQty=9", {added}, 1},
                           Row{"cmbRooms=Deck", {}, 2}, Row{"cmbUnits=Each", {}, 3},
                           Row{"cmbItems=Nails", {noQuantity}, 3}, Row{"TxtQty=1.2.3", {}, 4}}) {
        SCOPED_TRACE(row.steps);
        go(order, std::string(row.steps) + "; cmdAdd", row.refused);
        EXPECT_EQ(rows(order).size(), row.rows);
    }
    EXPECT_EQ(rows(order)[0], "1|Attic|1|Bag|Joist|10|4|5|6|25|1|2");
    EXPECT_EQ(rows(order)[3], "2|Deck|1.2|Each|Nails|3|0|0|0|3|2|1");
}

TEST_F(EstimateTest, ChangedPriceIsAskedForBeforeWhatTookTheFocus) {
    QWidget& order = newEstimate();
    go(order, "cmbItems=Joist");
    const char* places[] = {"cmbRooms=Deck", "cmbRooms=Roof", "cmbUnits=Each", "cmbRooms=Attic"};
    for (std::size_t count = 0; count < 4; ++count) {
        const PriceBox& one = priceBoxes[count];
        SCOPED_TRACE(one.box);
        const std::string name = one.box, sameText = text(order, name);
        const std::string master = std::string("select ") + one.column + " from Item where ItemId = 1";
        const std::string before = data.cell(master);
        TestHost::Box question = one.question(Answer::No);
        question.meanwhile = [&] { EXPECT_EQ(rows(order).size(), count); };  // the button's own action comes behind it
        go(order, name + "=-7a7,.5 0; cmdAdd", {question});  // what is no digit and no point can't be typed
        EXPECT_EQ(std::to_string(rows(order).size()) + data.cell(master), std::to_string(count + 1) + before);
        go(order, name + "; TxtQty", {one.question(Answer::Yes), ok(one.updated, std::string(defaultTitle))});
        EXPECT_EQ(data.cell(master), "77.5");
        // The list of prices is as old as the window, and compared as text.
        go(order, name + "=" + sameText + ".0; TxtQty; " + name + "=" + sameText + "; TxtQty",
           {one.question(Answer::No)});
        go(order, places[count]);
    }
}

// The list of items has moved on by the time the question can be asked.
TEST_F(EstimateTest, TheQuestionIsAboutTheItemThatThePriceWasChangedFor) {
    QWidget& order = newEstimate();
    go(order, "cmbItems=Joist; TxtMaterial=77; cmbItems=Brick",
       {priceBoxes[0].question(Answer::Yes), ok(priceBoxes[0].updated, std::string(defaultTitle))});
    EXPECT_EQ(data.rows("select ItemId, Material from Item order by ItemId"), (Texts{"1|77.0", "2|2.5", "3|0.5"}));
    EXPECT_EQ(texts(order, {"cmbItems", "TxtMaterial"}), "Brick|0.5");
    go(order, "TxtMaterial=3");
    closeBox(order);  // asks nothing
}

TEST_F(EstimateTest, FirstUseWithEmptyLists) {
    closeBox(newEstimate());
    data.execute("delete from Item; delete from Rooms; delete from Units; delete from OrderInfo; delete from Customer");
    QWidget& order = newEstimate();
    EXPECT_EQ(texts(order, panel) + text(order, "TxtOrder"), "||||||||1");
    go(order, "TxtMaterial=5; TxtQty; cmdAdd; CmdEdit; cmdDel",
       {noQuantity, ok("No item to Edit"), ok("No item to Delete")});  // and no master price to compare with
}

// --- Saved estimates -------------------------------------------------------------------------------------------------

TEST_F(EstimateTest, OpenedToEdit) {
    data.execute("update OrderInfo set Notes = 'Old\u00a0' || char(13, 10) || 'note' where OrderNo = 3");
    QWidget& order = openEstimate("E", 3);
    EXPECT_EQ(utf8(order.windowTitle()) + texts(order, {"TxtOrder", "txtTaxPer", "txtOHPer", "txtNotes"}),
              "Edit Estimate3|8|10|Old\u00a0\r\nnote");
    EXPECT_EQ(enabled(order, {"TxtOrder", "CmdSave"}), "CmdSave");
    EXPECT_EQ(texts(order, address), "Ann Lee|9 Oak|||Oregon|||||");
    EXPECT_EQ(texts(order, totals) + "|" + text(order, "txtTotal"), "200|16|20|236|236") << "as saved, not as summed";
    EXPECT_EQ(rows(order),
              (Texts{"1|Deck|2|Each|Joist|25|4|5|0|34|2|1", "3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2"}));
    go(order, "CmdSave", {saved});
    EXPECT_EQ(header(3), "3|7|2|2003-07-04|9 Oak|||38||||||4|105.25|8.0|124.195||Old\u00a0\r\nnote|10.0");
    EXPECT_EQ(lines(3), (Texts{"1|2.5|25.0|2|1|5.0|4.0|0.0", "3|100.0|50.0|3|2|0.0|20.0|1.25"}))
        << "a line that was not touched keeps its fraction";
}

TEST_F(EstimateTest, AnEditedLineIsAppliedOrDropped) {
    const Names adding{"cmdAdd", "cmdEditApply", "cmdEditCanc"};
    QWidget& order = openEstimate("E", 3);
    doubleClickRow(order, 0);
    EXPECT_EQ(texts(order, panel), "Deck|2|Each|Joist|12.5|4|5|0|34");
    EXPECT_EQ(visible(order, modeButtons), "cmdEditApply cmdEditCanc CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave");
    // The unit price that was computed back is compared with the master price of the item.
    go(order, "TxtMaterial; TxtQty; txtLabor=9; cmdEditCanc", {keepMaterial, keepLabor});
    EXPECT_EQ(visible(order, adding), "cmdAdd");
    EXPECT_EQ(texts(order, panel), "Deck|2|Each|Joist|12.5|9|5|0|39");
    EXPECT_EQ(rows(order)[0], "1|Deck|2|Each|Joist|25|4|5|0|34|2|1");

    go(order, "CmdEdit; TxtQty=0; cmdEditApply", {noQuantity});
    EXPECT_EQ(text(order, "txtLabor") + " " + visible(order, adding), "4 cmdEditApply cmdEditCanc");
    go(order, "TxtQty=2; cmbRooms=Attic; cmdEditApply");
    EXPECT_EQ(visible(order, adding), "cmdAdd");
    EXPECT_EQ(rows(order)[0], "1|Attic|2|Each|Joist|25|4|5|0|34|1|1");
    EXPECT_EQ(texts(order, totals), "105.25|8.42|10.525|124.195");

    go(order, "cmdDel", {no(deleteLine.text, deleteLine.title)});
    EXPECT_EQ(rows(order).size(), 2U);
    clickRow(list(order), 1);
    go(order, "cmdDel", {deleteLine});
    EXPECT_EQ(texts(order, totals), "34|2.72|3.4|40.12");
    go(order, "CmdSave", {saved});
    EXPECT_EQ(lines(3), Texts{"1|2.0|25.0|1|1|5.0|4.0|0.0"});
}

// Adding looks at the item that is chosen, applying at the item that the row had; and a line never changes its item.
TEST_F(EstimateTest, WhatApplyingChecksAndKeeps) {
    struct Row {
        const char* name;
        const char* steps;  // from the edit of the first row on
        const TestHost::Box& box;
        std::string firstRow;
        std::string firstLine;  // as saved afterwards
    };
    for (const Row& row : {
             Row{"another row's item", "cmbItems=Brick; cmbRooms=Roof; cmbUnits=Bag; cmdEditApply; cmdAdd", added,
                 "3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2", "1|100.0|50.0|3|2|0.0|20.0|1.25"},
             Row{"the old item where another row has it",
                 "cmbItems=Nails; TxtQty=1; cmbRooms=Attic; cmbUnits=Bag; cmdEditApply", added,
                 "1|Deck|2|Each|Joist|25|4|5|0|34|2|1", "1|2.5|25.0|2|1|5.0|4.0|0.0"},
             Row{"the row deleted meanwhile: the next one is overwritten", "cmdDel; TxtQty=4; cmdEditApply", deleteLine,
                 "1|Deck|4|Each|Joist|50|4|5|0|59|2|1", "3|4.0|50.0|2|1|5.0|4.0|0.0"},
         }) {
        SCOPED_TRACE(row.name);
        data.execute(
            "delete from OrderItem where OrderNo = 3; insert into OrderItem values (3,1,2.5,25,2,1,5,4,0),"
            "(3,3,100,50,3,2,0,20,1.25),(3,1,1,1,1,2,0,0,0)");
        QWidget& order = openEstimate("E", 3);
        doubleClickRow(order, 0);
        go(order, row.steps, {row.box});
        EXPECT_EQ(rows(order)[0], row.firstRow);
        go(order, "CmdSave", {saved});
        EXPECT_EQ(lines(3)[0], row.firstLine);
        closeBox(order);
    }
}

TEST_F(EstimateTest, OpenedToDelete) {
    QWidget& order = openEstimate("D", 3);
    EXPECT_EQ(utf8(order.windowTitle()) + " " + visible(order, modeButtons), "Delete Estimate CmdDeleteOrder");
    const char* question = "Are you sure you want to Delete Estimate No.  3";
    go(order, "CmdDeleteOrder", {no(question, "Estimate deletion")});
    EXPECT_EQ(lines(3).size(), 2U);
    go(order, "CmdDeleteOrder", {yes(question, "Estimate deletion"), ok("Order Deleted", "")});
    EXPECT_FALSE(screens->order.loaded());
    EXPECT_EQ(data.rows("select OrderNo from OrderInfo union all select OrderNo from OrderItem"), (Texts{"5", "5"}));
}

// --- Masters that have gone ------------------------------------------------------------------------------------------

TEST_F(EstimateTest, ALineShowsWhatItsMastersLeave) {
    struct Row {
        const char* gone;
        std::string second;  // row of the second line, as it opens
    };
    for (const Row& row : {Row{"delete from Rooms where Id = 3", "3|Deck|100|Bag|Brick|50|20|0|1.25|71.25|2|2"},
                           Row{"delete from Units where Id = 2", "3|Deck|100|Each|Brick|50|20|0|1.25|71.25|2|1"},
                           Row{"delete from Item where ItemId = 3", "3|Deck|100|Each||50|20|0|1.25|71.25|2|1"}}) {
        SCOPED_TRACE(row.gone);
        data.execute(row.gone);
        QWidget& order = openEstimate("E", 3);
        EXPECT_EQ(rows(order)[1], row.second);
        closeBox(order);
    }
}

// Closing empties the record, and leaves the customer.
TEST_F(EstimateTest, ACustomerAndAStateThatHaveGone) {
    data.execute("delete from Customer where CustId = 8");
    closeBox(openEstimate("E", 3));
    QWidget& fresh = newEstimate();
    go(fresh, "CmdSave", {ok("Select Customer ", "Estimate"), ok("Please enter Valid Data")});
    closeBox(fresh);
    QWidget& order = openEstimate("E", 5);
    EXPECT_EQ(texts(order, {"TxtCustomer", "cmbSState"}), "Ann Lee|Alabama") << "the customer before, the first state";
    go(order, "CmdSave", {saved});
    EXPECT_EQ(data.cell("select CustId, SState from OrderInfo where OrderNo = 5"), "8|1");
}

// --- What stands beside the estimate ---------------------------------------------------------------------------------

TEST_F(EstimateTest, AreaPanelMovesAQuantity) {
    QWidget& order = newEstimate();
    go(order, "txtLength=10; txtWidth=12 feet");
    const Names results{"txtPerimeter", "txtWalls",   "txtCeiling",     "txtConcrete",  "txtFloorCeil",
                        "txtTotArea",   "txtPlywood", "txtDrywall4x12", "txtDrywall4x8"};
    EXPECT_EQ(texts(order, results), "44|0|120|0|120|120|3.75|2.5|3.75");
    go(order, "txtHeight=8");
    EXPECT_EQ(texts(order, results), "44|352|472|2.75|120|472|3.75|2.5|3.75");
    go(order, "cmdMove");
    EXPECT_EQ(texts(order, {"TxtQty", "txtTotal"}), "472|71.25");
    for (std::size_t option = 0; option < results.size(); ++option) {
        SCOPED_TRACE(results[option]);
        go(order, "TxtQty=; chkarea" + std::to_string(option + 1) + "; cmdMove");
        EXPECT_EQ(text(order, "TxtQty"), text(order, results[option]));
    }
    go(order, "txtLength=20; cmdMove");
    EXPECT_EQ(text(order, "TxtQty"), "7.5") << "the option stays";
    go(order, "Command7");
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(QApplication::activePopupWidget()->actions().size(), 4) << "the groups of calculators";
    QApplication::activePopupWidget()->close();
}

TEST_F(EstimateTest, NotesAreImportedAndCopied) {
    QWidget& order = openEstimate("E", 3);
    const std::string whole = "Good for 30 days.\nHalf is due on signing.";
    EXPECT_EQ(visible(order, {"frmNotes"}) + text(order, "txtNotes"), "Old note");
    go(order, "cmdImport; cmdCopy");
    EXPECT_EQ(text(order, "txtNotes"), whole);
    auto& notes = find<QWidget>(order, "rtfNotes");
    key(notes, Qt::Key_Home, Qt::ControlModifier);
    key(notes, Qt::Key_End, Qt::ShiftModifier);
    go(order, "cmdCopy");
    EXPECT_EQ(text(order, "txtNotes"), "Good for 30 days.") << "what is selected";
    go(order, "rtfNotes=Only here; cmdCopy; CmdSave", {saved});
    EXPECT_EQ(visible(order, {"frmNotes"}) + data.cell("select Notes from OrderInfo where OrderNo = 3"),
              "frmNotesOnly here");
    go(order, "Command2");
    EXPECT_EQ(visible(order, {"frmNotes"}), "");
    go(order, "cmdImport");
    EXPECT_EQ(text(order, "rtfNotes"), whole) << "read afresh";
}

}  // namespace
}  // namespace torvane
