// The estimate screen: a new estimate from menu to database, its customer, its lines, its prices, its totals.

#include <array>

#include "estimates/screens/category_tree.h"
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
const TestHost::Box saved = ok("Estimate Saved"), invalid = ok("Please enter Valid Data");
const TestHost::Box added = ok("Item already added "), noQuantity = ok("Please enter Quanttity");
const TestHost::Box keepLine = no("Do you want to delete selected item from the list?", "Confirm Deletion");
const TestHost::Box deleteLine = yes(keepLine.text, keepLine.title);

// The question after a price was changed.
TestHost::Box keepPrice(const std::string& kind) {
    return no("You have changed the " + kind + " Price. Do you want to update this price in Main File?",
              "Change master file price?");
}

// The tree from this node on as text: a line per node, indented by its level.
std::string outline(CategoryTree& tree, const QModelIndex& node, std::size_t level = 0) {
    tree.setCurrentIndex(node);
    std::string text = std::string(level, ' ') + tree.selectedKey() + " " + utf8(node.data().toString()) + "\n";
    for (int i = 0; i < node.model()->rowCount(node); ++i)
        text += outline(tree, node.model()->index(i, 0, node), level + 1);
    return text;
}

QModelIndex nodeOf(const CategoryTree& tree, std::string_view text) {
    const QAbstractItemModel& nodes = *tree.model();
    return nodes.match(nodes.index(0, 0), Qt::DisplayRole, qstring(text), 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

class EstimateTest : public JourneyTest {
protected:
    std::string shown(const Names& boxes) { return texts(screens->order.window(), boxes); }
    std::function<std::string()> watch(Names boxes) {
        return [this, boxes] { return shown(boxes); };
    }
    // The item sheet.
    QWidget& sheet() {
        go(newEstimate(), "cmdItemList");
        return screens->itemSheet.window();
    }
    // Takes items of the tree, one after the other.
    void take(const QWidget& in, const Names& items) {
        auto& tree = find<CategoryTree>(in, "TreeCategory");
        for (const std::string_view name : items) {
            tree.setCurrentIndex(nodeOf(tree, name));
            const QPoint middle = tree.viewport()->mapTo(&in, tree.visualRect(tree.currentIndex()).center());
            if (name == "Nails")
                QTest::mouseDClick(in.windowHandle(), Qt::LeftButton, {}, middle);
            else
                key(tree, name == "Brick" ? Qt::Key_Enter : Qt::Key_Return);
        }
    }
    std::string firstRow() { return rows(screens->order.window()).at(0); }
};

// --- A new estimate --------------------------------------------------------------------------------------------------

TEST_F(EstimateTest, FromMenuToDatabase) {
    QWidget& order = newEstimate();
    EXPECT_EQ(utf8(order.windowTitle()) + shown({"TxtOrder", "txtTaxPer", "txtOHPer", "TxtAmount", "txtNotes"}),
              "Bid Estimate Screen6||||");
    EXPECT_EQ(shown(panel), "Attic|100|Bag|Brick|0.5|20|0|1.25|71.25");
    EXPECT_EQ(visible(order, modeButtons), "cmdAdd CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave");
    const std::string ann = "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-3|ann@example.com";
    tell(order, watch(address),
         {{"CmdSave", "||||Alabama|||||", {ok("Select Customer ", "Estimate"), invalid}},
          {"CmdSelCust > close", "||||Alabama|||||"},
          {"CmdSelCust > row 0 twice", ann},
          // Where the new customer's state is none, that of the one before stays.
          {"CmdSelCust > row 1; CmdSelect", "Bob Ray|||Troy|Oregon|||777-1||"},
          {"CmdSelCust > row 0 twice", ann},
          {"CmdSave", ann, {ok("No Items Selected", "Estimate"), invalid}}});
    tell(order, watch(panel),
         {{"cmbRooms=Deck; cmbItems=Joist; cmbUnits=Each", "Deck|2|Each|Joist|10|4|5|6|35"},
          {"TxtQty=3", "Deck|3|Each|Joist|10|4|5|6|35"},  // a quantity alone computes nothing
          {"cmdAdd; CmdEdit", "Deck|3|Each|Joist|10|4|5|6|45"},
          {"cmdEditCanc; cmbItems=Brick; cmdAdd", "Deck|100|Each|Brick|0.5|20|0|1.25|71.25"},
          // The selected row's quantity, not the item's; a row that is added is not selected.
          {"CmdEdit", "Deck|3|Each|Joist|10|4|5|6|45"}});
    EXPECT_EQ(rows(order),
              (Texts{"1|Deck|3|Each|Joist|30|4|5|6|45|2|1", "3|Deck|100|Each|Brick|50|20|0|1.25|71.25|2|1"}));
    go(order, "cmdEditCanc; txtTaxPer=8; txtOHPer=10 or so; txtNotes=By the lake; txtFinalTotal=1");
    EXPECT_EQ(shown(totals), "116.25|9.3|11.625|137.175");
    key(find<QWidget>(order, "TxtDate"), Qt::Key_Up);  // a month more
    go(order, "CmdSave", {saved});
    EXPECT_EQ(data.cell("select * from OrderInfo where OrderNo = 6"),
              "6|7|0|2024-04-15|1 Elm|Apt 2|Salem|38|97301|USA|555-1|555-3|ann@example.com|0|116.25|8.0|"
              "137.175||By the lake|10.0");
    EXPECT_EQ(lines(6), (Texts{"1|3.0|30.0|2|1|5.0|4.0|6.0", "3|100.0|50.0|2|1|0.0|20.0|1.25"}));
    go(order, "cmbRooms=Roof; cmdAdd; CmdNewCust");
    EXPECT_EQ(enabled(order, {"CmdSave"}), "") << "a line after the save is not saved";
    EXPECT_EQ(screens->customer.caption(), "Add Customer");
    go(screens->customer.window(), "cmdExit");

    const TestHost::Box stay =
        no("Are you sure you want to cancel this screen and discard any changes done?", "Confirm Cancel");
    go(order, "CmdCancel; CmdCancel", {stay, yes(stay.text, stay.title)});
    EXPECT_EQ(standing("frmOrder"), nullptr);
    EXPECT_TRUE(rows(newEstimate()).empty());
    EXPECT_EQ(shown({"TxtOrder", "TxtCustomer"}), "7|");
}

TEST_F(EstimateTest, LinesAreRefusedOrTaken) {
    QWidget& order = newEstimate();
    tell(order, [&] { return std::to_string(rows(order).size()); },
         {{"cmbItems=Joist; TxtQty=; cmdAdd", "0", {noQuantity}},
          {"TxtQty=0; cmdAdd", "0", {noQuantity}},
          {"TxtQty=.; cmdAdd", "0", {noQuantity}},
          {"TxtQty=-1x.; cmdAdd", "1"},
          {"TxtQty=9; cmdAdd", "1", {added}},
          {"cmbRooms=Deck; cmdAdd", "2"},
          {"cmbUnits=Each; cmdAdd", "3"},
          {"cmbItems=Nails; cmdAdd", "3", {noQuantity}},
          {"TxtQty=1.2.3; cmdAdd", "4"}});
    EXPECT_EQ(firstRow(), "1|Attic|1|Bag|Joist|10|4|5|6|25|1|2");
    EXPECT_EQ(rows(order).at(3), "2|Deck|1.2|Each|Nails|3|0|0|0|3|2|1");
}

TEST_F(EstimateTest, ChangedPriceIsAskedForBeforeWhatTookTheFocus) {
    QWidget& order = newEstimate();
    go(order, "cmbItems=Joist");
    // The box, what it is called in the question and in the answer, and where the next line goes.
    const std::array<std::string, 4> prices[] = {{"TxtMaterial", "Material", "Material", "cmbRooms=Deck"},
                                                 {"txtLabor", "Labor", "Labor", "cmbRooms=Roof"},
                                                 {"txtExtension", "SubLabor", "Sub-Labor", "cmbUnits=Each"},
                                                 {"txtOthers", "Equipment", "Equipment", "cmbRooms=Attic"}};
    const auto updated = [](const std::string& kind) {
        return ok(kind + " price updated in master file", std::string(defaultTitle));
    };
    for (const auto& [box, kind, called, place] : prices) {
        SCOPED_TRACE(box);
        const std::string same = box + "=" + text(order, box),
                          master = "select " + kind + " from Item where ItemId = 1";
        const std::string before = data.cell(master);
        const std::size_t lines = rows(order).size();
        TestHost::Box question = keepPrice(kind);
        question.meanwhile = [&] { EXPECT_EQ(rows(order).size(), lines); };  // the button's own action comes behind it
        go(order, box + "=-7a7,.5 0; cmdAdd", {question});  // what is no digit and no point can't be typed
        EXPECT_EQ(rows(order).size(), lines + 1);
        EXPECT_EQ(data.cell(master), before);
        go(order, box + "; TxtQty", {yes(question.text, question.title), updated(called)});
        EXPECT_EQ(data.cell(master), "77.5");
        // The list of prices is as old as the window, and compared as text.
        go(order, same + ".0; TxtQty; " + same + "; TxtQty; " + place, {keepPrice(kind)});
    }
    // By the time the question can be asked the list of items has moved on, to one that has this price.
    go(order, "cmbItems=Joist; TxtMaterial=0.5; cmbItems=Brick",
       {yes(keepPrice("Material").text, keepPrice("Material").title), updated("Material")});
    EXPECT_EQ(data.rows("select ItemId, Material from Item order by ItemId"), (Texts{"1|0.5", "2|2.5", "3|0.5"}));
    EXPECT_EQ(shown({"cmbItems", "TxtMaterial"}), "Brick|0.5");
    // The first of the list asks as well; closing asks nothing.
    go(order, "TxtMaterial=3; TxtQty; TxtMaterial=4; close", {keepPrice("Material")});
    go(newEstimate(), "cmbItems=Joist");
    EXPECT_EQ(shown({"TxtMaterial"}), "0.5") << "the list of a new window has what was written";
}

TEST_F(EstimateTest, FirstUseWithEmptyLists) {
    data.execute("delete from Item; delete from Rooms; delete from Units; delete from OrderInfo; delete from Customer");
    QWidget& order = newEstimate();
    EXPECT_EQ(shown(panel) + text(order, "TxtOrder"), "||||||||1");
    go(order, "TxtMaterial=5; TxtQty; cmdAdd; CmdEdit; cmdDel",
       {noQuantity, ok("No item to Edit"), ok("No item to Delete")});  // and no master price to compare with
}

// --- Saved estimates -------------------------------------------------------------------------------------------------

TEST_F(EstimateTest, OpenedToEdit) {
    data.execute("update OrderInfo set Notes = 'Old\u00a0' || char(13, 10) || 'note' where OrderNo = 3");
    QWidget& order = openEstimate(3);
    EXPECT_EQ(shown({"TxtOrder", "txtTaxPer", "txtOHPer", "txtNotes"}), "3|8|10|Old\u00a0\r\nnote");
    EXPECT_EQ(enabled(order, {"TxtOrder", "CmdSave"}), "CmdSave");
    EXPECT_EQ(shown(address), "Ann Lee|9 Oak|||Oregon|||||");
    EXPECT_EQ(shown(totals) + "|" + text(order, "txtTotal"), "200|16|20|236|236") << "as saved, not as summed";
    EXPECT_EQ(rows(order),
              (Texts{"1|Deck|2|Each|Joist|25|4|5|0|34|2|1", "3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2"}));
    go(order, "CmdSave", {saved});
    EXPECT_EQ(data.cell("select * from OrderInfo where OrderNo = 3"),
              "3|7|2|2003-07-04|9 Oak|||38||||||4|105.25|8.0|124.195||Old\u00a0\r\nnote|10.0");
    EXPECT_EQ(lines(3), (Texts{"1|2.5|25.0|2|1|5.0|4.0|0.0", "3|100.0|50.0|3|2|0.0|20.0|1.25"}))
        << "a line that was not touched keeps its fraction";
}

TEST_F(EstimateTest, AnEditedLineIsAppliedOrDropped) {
    QWidget& order = openEstimate(3);
    const std::string editing = "cmdEditApply cmdEditCanc CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave";
    const std::string adding = "cmdAdd CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave";
    const auto look = [&] { return shown(panel) + "\n" + visible(order, modeButtons) + "\n" + firstRow(); };
    const std::string asSaved = "\n1|Deck|2|Each|Joist|25|4|5|0|34|2|1";
    tell(order, look,
         {{"row 0 twice", "Deck|2|Each|Joist|12.5|4|5|0|34\n" + editing + asSaved},
          // The unit price that was computed back is compared with the master price of the item.
          {"TxtMaterial; TxtQty; txtLabor=9; cmdEditCanc",
           "Deck|2|Each|Joist|12.5|9|5|0|39\n" + adding + asSaved,
           {keepPrice("Material"), keepPrice("Labor")}},
          {"CmdEdit; TxtQty=0; cmdEditApply", "Deck|0|Each|Joist|12.5|4|5|0|34\n" + editing + asSaved, {noQuantity}},
          {"TxtQty=2; cmbRooms=Attic; row 1; cmdEditApply",
           "Attic|2|Each|Joist|12.5|4|5|0|34\n" + adding + "\n1|Attic|2|Each|Joist|25|4|5|0|34|1|1"}});
    tell(order, watch(totals),
         {{"cmdDel", "105.25|8.42|10.525|124.195", {keepLine}}, {"row 1; cmdDel", "34|2.72|3.4|40.12", {deleteLine}}});
    go(order, "CmdSave", {saved});
    EXPECT_EQ(lines(3), Texts{"1|2.0|25.0|1|1|5.0|4.0|0.0"});
}

// Adding looks at the item that is chosen, applying at the item that the row had; and a line never changes its item.
TEST_F(EstimateTest, WhatApplyingChecksAndKeeps) {
    // From the edit of the first row on: the first row then, and as it is saved.
    const auto edit = [&](const char* steps, const TestHost::Box& box, const char* row, const char* line) {
        SCOPED_TRACE(steps);
        data.execute(
            "delete from OrderItem where OrderNo = 3; insert into OrderItem values (3,1,2.5,25,2,1,5,4,0),"
            "(3,3,100,50,3,2,0,20,1.25),(3,1,1,1,1,2,0,0,0)");
        QWidget& order = openEstimate(3);
        go(order, std::string("row 0 twice; ") + steps, {box});
        EXPECT_EQ(firstRow(), row);
        go(order, "CmdSave; close", {saved});
        EXPECT_EQ(lines(3).at(0), line);
    };
    edit("cmbItems=Brick; cmbRooms=Roof; cmbUnits=Bag; cmdEditApply; cmdAdd", added,
         "3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2", "1|100.0|50.0|3|2|0.0|20.0|1.25");
    edit("cmbItems=Nails; TxtQty=1; cmbRooms=Attic; cmbUnits=Bag; cmdEditApply", added,
         "1|Deck|2|Each|Joist|25|4|5|0|34|2|1", "1|2.5|25.0|2|1|5.0|4.0|0.0");
    // The row is deleted meanwhile: the next one is overwritten.
    edit("cmdDel; TxtQty=4; cmdEditApply", deleteLine, "1|Deck|4|Each|Joist|50|4|5|0|59|2|1",
         "3|4.0|50.0|2|1|5.0|4.0|0.0");
}

TEST_F(EstimateTest, WhatIsGoneOrNullInASavedEstimate) {
    // The room, the unit, the item of the second line, and the line as it opens then.
    const std::pair<const char*, const char*> gone[] = {
        {"delete from Rooms where Id = 3", "3|Deck|100|Bag|Brick|50|20|0|1.25|71.25|2|2"},
        {"delete from Units where Id = 2", "3|Deck|100|Each|Brick|50|20|0|1.25|71.25|2|1"},
        {"delete from Item where ItemId = 3", "3|Deck|100|Each||50|20|0|1.25|71.25|2|1"}};
    for (const auto& [statement, second] : gone) {
        data.execute(statement);
        EXPECT_EQ(rows(openEstimate(3)).at(1), second);
        closeBox(*standing("frmOrder"));
    }
    QWidget& fresh = newEstimate();
    go(fresh, "CmdSave; close", {ok("Select Customer ", "Estimate"), invalid});  // closing has emptied the record
    data.execute(
        "delete from Customer where CustId = 8; update OrderInfo set Tax = null, Notes = null where OrderNo = 5");
    QWidget& order = openEstimate(5);
    EXPECT_EQ(shown({"TxtCustomer", "cmbSState", "txtTaxPer"}), "Ann Lee|Alabama|0")
        << "the customer before, the first state";
    go(order, "CmdSave; close", {saved});
    EXPECT_EQ(data.cell("select CustId, SState from OrderInfo where OrderNo = 5"), "8|1");
    for (const auto& [column, ended] : {std::pair{"OrderDate", "13 "}, {"CustId", "94 "}}) {
        data.execute(std::string("update OrderInfo set ") + column + " = null");
        EXPECT_EQ(endedBy([&] { openEstimate(3); }), ended) << column;
    }
}

// --- What stands beside the estimate ---------------------------------------------------------------------------------

TEST_F(EstimateTest, AreaPanelMovesAQuantity) {
    QWidget& order = newEstimate();
    const Names results{"txtPerimeter", "txtWalls",   "txtCeiling",     "txtConcrete",  "txtFloorCeil",
                        "txtTotArea",   "txtPlywood", "txtDrywall4x12", "txtDrywall4x8"};
    tell(order, watch(results),
         {{"txtLength=10; txtWidth=12 feet", "44|0|120|0|120|120|3.75|2.5|3.75"},
          {"txtHeight=0.5", "44|22|142|44|120|142|3.75|2.5|3.75"},
          {"txtHeight=8; cmdMove", "44|352|472|2.75|120|472|3.75|2.5|3.75"}});
    EXPECT_EQ(shown({"TxtQty", "txtTotal"}), "472|71.25");
    for (std::size_t option = 0; option < results.size(); ++option) {
        go(order, "TxtQty=; chkarea" + std::to_string(option + 1) + "; cmdMove");
        EXPECT_EQ(text(order, "TxtQty"), text(order, results[option])) << results[option];
    }
    go(order, "txtLength=20; cmdMove");
    EXPECT_EQ(text(order, "TxtQty"), "7.5") << "the option stays";
}

TEST_F(EstimateTest, SharedNotesAreWrittenImportedAndCopied) {
    QWidget& notes = opened("mnuBlank");
    go(notes, "rtfNotes=It's wet.");
    QWidget& order = openEstimate(3);
    const auto look = [&] { return visible(order, {"frmNotes"}) + "|" + texts(order, {"rtfNotes", "txtNotes"}); };
    EXPECT_EQ(look(), "||Old note");
    const std::string stored = "Good for 30 days.\nHalf is due on signing.";
    tell(order, look,
         {{"cmdImport; cmdCopy", "frmNotes|" + stored + "|" + stored},  // not yet what is being written
          {"rtfNotes=Only here; cmdCopy; CmdSave", "frmNotes|Only here|Only here", {saved}},
          {"Command2", "|Only here|Only here"},
          {"cmdImport", "frmNotes|" + stored + "|Only here"}});  // read afresh
    auto& area = find<QWidget>(order, "rtfNotes");
    key(area, Qt::Key_Home, Qt::ControlModifier);
    key(area, Qt::Key_End, Qt::ShiftModifier);
    go(order, "cmdCopy");
    EXPECT_EQ(text(order, "txtNotes"), "Good for 30 days.") << "what is selected";
    EXPECT_EQ(data.cell("select Notes from OrderInfo where OrderNo = 3"), "Only here");
    go(notes, "cmdOk");
    EXPECT_EQ(standing("frmBlank"), nullptr);
    go(opened("mnuBlank"), "rtfNotes=lost; CmdCancel");
    EXPECT_EQ(data.cell("select Notes from BlankNotes"), "It's wet.");
}

TEST_F(EstimateTest, TheTreeOfTheSheetIsThreeLevelsDeepAndMatchesKeysByTheirFirstDigits) {
    data.execute(R"(delete from Category; delete from Item;
        insert into Category values (1, 'Wood', 0), (12, 'Beams', 1), (3, 'Glue', 12), (4, 'Deep', 3), (2, 'öl', null),
            (5, 'Orphan', 99), (6, 'wood', 0);
        insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Qty) values
            (1, '1', 'Plank', 1, 1, 1, 1), (2, '2', 'Girder', 12, 1, 1, 1), (3, '3', 'Epoxy', 3, 1, 1, 1),
            (4, '4', 'Hidden', 4, 1, 1, 1), (5, '5', 'Red', 2, 1, 1, 1), (6, '6', 'No unit', 1, 99, 1, 1))");
    auto& tree = find<CategoryTree>(sheet(), "TreeCategory");
    EXPECT_EQ(outline(tree, tree.model()->index(0, 0)),
              "R Categories\n C2 öl\n  I5 Red\n C1 Wood\n  I2 Girder\n  I1 Plank\n"
              "  C1_12 Beams\n   I2 Girder\n   C2_3 Glue\n    I3 Epoxy\n C6 wood\n");
}

TEST_F(EstimateTest, TheSheetCollectsItemsAndMovesThemToTheEstimate) {
    data.execute(
        "update Item set CategoryId = 77 where ItemId = 3; insert into Category values (77, 'Masonry', 0);"
        "with recursive n(i) as (select 100 union all select i + 1 from n where i < 199)"
        "insert into Item select i, i, 'Plank ' || i, 1, 1, 1, 0, 0, 0, 1, '' from n");
    QWidget& sheetWindow = sheet();
    auto& tree = find<CategoryTree>(sheetWindow, "TreeCategory");
    EXPECT_TRUE(tree.viewport()->rect().contains(tree.visualRect(nodeOf(tree, "Brick")).center()))
        << "opens with the end in sight";
    EXPECT_EQ(tree.selectedKey(), "R");
    QWidget& order = screens->order.window();
    go(order, "cmbUnits=Bag");
    take(sheetWindow, {"Categories", "Framing"});
    go(sheetWindow, "cmdDelete; cmbRooms=Roof");  // there is nothing yet: only items go to the sheet
    take(sheetWindow, {"Joist", "Nails"});
    go(sheetWindow, "cmbRooms=Deck");
    take(sheetWindow, {"Brick", "Brick", "Joist"});
    EXPECT_EQ(rows(sheetWindow),
              (Texts{"1|Roof|1|Joist|Framing|2|Each|10|4|3", "2|Roof|2|Nails|Framing|0|Each|2.5|0|3",
                     "3|Deck|3|Brick|Masonry|100|Bag|0.5|20|2", "3|Deck|3|Brick|Masonry|100|Bag|0.5|20|2",
                     "1|Deck|1|Joist|Framing|2|Each|10|4|2"}));
    const TestHost::Box keep = no("Do you want to delete item '1'?", "Delete Item from the List");
    go(sheetWindow, "row 0; cmdDelete; row 4; cmdDelete", {keep, yes(keep.text, keep.title)});
    // Each row goes through the door of a single line; the unit is the one of the estimate screen.
    go(sheetWindow, "cmdAddEstimate", {noQuantity, added});
    EXPECT_FALSE(standing("frmList"));
    EXPECT_EQ(rows(order),
              (Texts{"1|Roof|2|Bag|Joist|20|4|5|6|35|3|2", "3|Deck|100|Bag|Brick|50|20|0|1.25|71.25|2|2"}));
    EXPECT_EQ(text(order, "TxtAmount"), "106.25");
    QWidget& second = sheet();
    take(second, {"Nails"});
    go(order, "close");
    go(second, "cmdAddEstimate", {noQuantity});
    EXPECT_TRUE(rows(*standing("frmOrder")).empty()) << "a closed estimate screen is loaded anew";
}

}  // namespace
}  // namespace torvane
