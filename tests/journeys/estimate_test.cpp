// The estimate screen: a new estimate from menu to database, its customer, its lines, its prices, its totals.

#include <QApplication>
#include <QPushButton>
#include <QScreen>

#include "journeys/journey.h"

namespace torvane {
namespace {

const std::initializer_list<std::string_view> address{"TxtCustomer", "TxtSstreet1", "TxtSstreet2", "TxtScity",
                                                      "cmbSState",   "TxtSZip",     "TxtSCountry", "TxtSPhone",
                                                      "TxtSMobile",  "TxtSEmail"};
const std::initializer_list<std::string_view> panel{"cmbRooms", "TxtQty",       "cmbUnits",  "cmbItems", "TxtMaterial",
                                                    "txtLabor", "txtExtension", "txtOthers", "txtTotal"};
const std::initializer_list<std::string_view> totals{"TxtAmount", "txtTax", "txtOverhead", "txtFinalTotal"};
const std::initializer_list<std::string_view> modeButtons{"cmdAdd",  "cmdEditApply",  "cmdEditCanc", "CmdEdit",
                                                          "cmdDel",  "CmdSelCust",    "CmdNewCust",  "cmdOk",
                                                          "CmdSave", "CmdDeleteOrder"};
const std::string joist = "1|Attic|2|Bag|Joist|20|4|5|6|35|1|2";
constexpr const char* discard = "Are you sure you want to cancel this screen and discard any changes done?";

struct PriceBox {
    const char* box;
    const char* prompt;
    const char* column;
    const char* updated;
};
const PriceBox priceBoxes[] = {
    {"TxtMaterial", "You have changed the Material Price. Do you want to update this price in Main File?", "Material",
     "Material price updated in master file"},
    {"txtLabor", "You have changed the Labor Price. Do you want to update this price in Main File?", "Labor",
     "Labor price updated in master file"},
    {"txtExtension", "You have changed the SubLabor Price. Do you want to update this price in Main File?", "SubLabor",
     "Sub-Labor price updated in master file"},
    {"txtOthers", "You have changed the Equipment Price. Do you want to update this price in Main File?", "Equipment",
     "Equipment price updated in master file"},
};
constexpr const char* priceTitle = "Change master file price?";

class EstimateTest : public JourneyTest {
protected:
    // Picks a customer in the list's select mode, by what is done there.
    void selectCustomer(QWidget& order, const std::function<void(QWidget& list)>& act) {
        whenModal([act](QWidget& list) {
            EXPECT_EQ(utf8(list.windowTitle()), "Select Customer");
            act(list);
        });
        click(order, "CmdSelCust");
    }
    void saved(QWidget& order) {
        host.expectOk("Estimate Saved", "Inventory");
        click(order, "CmdSave");
        host.verify();
    }
};

TEST_F(EstimateTest, FromMenuToDatabase) {
    QWidget& order = newEstimate();
    EXPECT_EQ(utf8(order.windowTitle()), "Bid Estimate Screen");
    EXPECT_EQ(texts(order, {"TxtOrder", "txtTaxPer", "txtOHPer", "TxtAmount", "txtNotes"}), "6||||");
    EXPECT_EQ(texts(order, address), "||||Alabama|||||");
    EXPECT_EQ(texts(order, panel), "Attic|100|Bag|Brick|0.5|20|0|1.25|71.25");
    EXPECT_EQ(visible(order, modeButtons), "cmdAdd CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave");

    selectCustomer(order, [](QWidget& list) { doubleClickRow(list, 0); });
    EXPECT_EQ(texts(order, address), "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-3|ann@example.com");

    pick(order, "cmbRooms", "Deck");
    pick(order, "cmbItems", "Joist");
    pick(order, "cmbUnits", "Each");
    EXPECT_EQ(texts(order, panel), "Deck|2|Each|Joist|10|4|5|6|35");
    enter(order, "TxtQty", "3");
    EXPECT_EQ(text(order, "txtTotal"), "35") << "a quantity alone computes nothing";
    click(order, "cmdAdd");
    pick(order, "cmbItems", "Brick");
    click(order, "cmdAdd");
    EXPECT_EQ(rows(order),
              (Texts{"1|Deck|3|Each|Joist|30|4|5|6|45|2|1", "3|Deck|100|Each|Brick|50|20|0|1.25|71.25|2|1"}));
    enter(order, "txtTaxPer", "8");
    enter(order, "txtOHPer", "10 or so");
    EXPECT_EQ(texts(order, totals), "116.25|9.3|11.625|137.175");
    enter(order, "txtNotes", "By the lake");
    key(find<QWidget>(order, "TxtDate"), Qt::Key_Up);  // a month more
    EXPECT_EQ(data.rows("select * from OrderInfo").size(), 2U);

    saved(order);
    EXPECT_EQ(header(6),
              "6|7|0|2024-04-15|1 Elm|Apt 2|Salem|38|97301|USA|555-1|555-3|ann@example.com|0|116.25|8.0|"
              "137.175||By the lake|10.0");
    EXPECT_EQ(lines(6), (Texts{"1|3.0|30.0|2|1|5.0|4.0|6.0", "3|100.0|50.0|2|1|0.0|20.0|1.25"}));
    EXPECT_EQ(enabled(order, {"CmdSave"}), "");
    EXPECT_EQ(rows(order).size(), 2U);

    pick(order, "cmbRooms", "Roof");
    click(order, "cmdAdd");
    EXPECT_EQ(rows(order).size(), 3U);
    EXPECT_EQ(lines(6).size(), 2U) << "a line after the save stays on the screen";

    host.expectYesNo(discard, "Confirm Cancel", Answer::No);
    click(order, "CmdCancel");
    EXPECT_TRUE(screens->order.loaded());
    host.expectYesNo(discard, "Confirm Cancel", Answer::Yes);
    click(order, "CmdCancel");
    EXPECT_FALSE(screens->order.loaded());
    EXPECT_EQ(text(newEstimate(), "TxtOrder"), "7");
}

TEST_F(EstimateTest, CustomerComesFromTheListsSelectMode) {
    struct Row {
        const char* name;
        std::function<void(QWidget&)> act;
        std::string expected;
    };
    QWidget& order = newEstimate();
    const std::string ann = "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-3|ann@example.com";
    const Row steps[] = {
        {"closed with nothing picked", [](QWidget& list) { click(list, "cmdExit"); }, "||||Alabama|||||"},
        {"double click", [](QWidget& list) { doubleClickRow(list, 0); }, ann},
        // The state of the customer before stays where the new one's is none.
        {"button",
         [](QWidget& list) {
             clickRow(find<ReportList>(list, "ListView1"), 1);
             click(list, "CmdSelect");
         },
         "Bob Ray|||Troy|Oregon|||777-1||"},
        {"Enter on the row", [](QWidget& list) { key(find<ReportList>(list, "ListView1"), Qt::Key_Return); }, ann},
        {"close box: the customer's address comes again",
         [&](QWidget& list) {
             find<TextBox>(order, "TxtScity").setText("elsewhere");
             closeBox(list);
         },
         ann},
    };
    for (const Row& step : steps) {
        SCOPED_TRACE(step.name);
        selectCustomer(order, step.act);
        EXPECT_EQ(texts(order, address), step.expected);
        EXPECT_FALSE(screens->customer.loaded());
    }
    click(order, "CmdNewCust");
    EXPECT_EQ(screens->customer.caption(), "Add Customer");
    EXPECT_FALSE(QApplication::activeModalWidget());

    // The list that stands open is the one that is asked, as it stands.
    QWidget& list = screens->customer.window();
    order.activateWindow();
    whenModal([&](QWidget& top) {
        EXPECT_EQ(&top, &list);
        EXPECT_EQ(visible(list, {"cmdAdd", "CmdSelect"}), "cmdAdd");
        doubleClickRow(list, 1);
    });
    click(order, "CmdSelCust");
    EXPECT_EQ(text(order, "TxtCustomer"), "Bob Ray");
    EXPECT_FALSE(screens->customer.loaded());
}

TEST_F(EstimateTest, LinesAreRefusedOrTaken) {
    struct Row {
        const char* quantity;
        const char* room;
        const char* unit;
        const char* item;
        const char* refused;  // the box, or null
        std::size_t rows;     // afterwards
    };
    QWidget& order = newEstimate();
    for (const Row& step :
         {Row{"", "Attic", "Bag", "Joist", "Please enter Quanttity", 0},
          Row{"0", "Attic", "Bag", "Joist", "Please enter Quanttity", 0},
          Row{".", "Attic", "Bag", "Joist", "Please enter Quanttity", 0},
          Row{"1.", "Attic", "Bag", "Joist", nullptr, 1}, Row{"9", "Attic", "Bag", "Joist", "Item already added ", 1},
          Row{"1", "Deck", "Bag", "Joist", nullptr, 2}, Row{"1", "Attic", "Each", "Joist", nullptr, 3},
          Row{nullptr, "Attic", "Bag", "Nails", "Please enter Quanttity", 3},
          Row{"1.2.3", "Attic", "Bag", "Nails", nullptr, 4}}) {
        SCOPED_TRACE(std::string(step.item) + " " + (step.quantity ? step.quantity : "as it is"));
        pick(order, "cmbItems", step.item);
        pick(order, "cmbRooms", step.room);
        pick(order, "cmbUnits", step.unit);
        if (step.quantity) enter(order, "TxtQty", step.quantity);
        if (step.refused) host.expectOk(step.refused, "Inventory");
        click(order, "cmdAdd");
        host.verify();
        EXPECT_EQ(rows(order).size(), step.rows);
    }
    EXPECT_EQ(rows(order)[0], "1|Attic|1|Bag|Joist|10|4|5|6|25|1|2");
    EXPECT_EQ(rows(order)[3], "2|Attic|1.2|Bag|Nails|3|0|0|0|3|1|2");
    EXPECT_EQ(find<ReportList>(order, "ListView1").SelectedRow(), 0) << "a row that is added is not selected";
}

TEST_F(EstimateTest, BoxesTakeWhatMayBeTypedAndAllThatIsPasted) {
    QWidget& order = newEstimate();
    for (const char* box : {"TxtQty", "TxtMaterial", "txtLabor", "txtExtension", "txtOthers"}) {
        SCOPED_TRACE(box);
        enter(order, box, "-1a2. ,5.x0");
        EXPECT_EQ(text(order, box), "12.5.0");
        paste(order, box, "-1e2 $");
        EXPECT_EQ(text(order, box), "-1e2 $");
        for (const PriceBox& one : priceBoxes)
            if (one.box == std::string_view(box)) host.expectYesNo(one.prompt, priceTitle, Answer::No);
        click(find<QWidget>(order, "TxtSZip"));
        host.verify();
    }
}

TEST_F(EstimateTest, ChangedPriceIsAskedForBeforeWhatTookTheFocus) {
    QWidget& order = newEstimate();
    pick(order, "cmbItems", "Joist");
    for (const PriceBox& one : priceBoxes) {
        SCOPED_TRACE(one.box);
        const std::string master = std::string("select ") + one.column + " from Item where ItemId = 1";
        const std::string before = data.cell(master);
        const std::size_t count = rows(order).size();
        enter(order, one.box, "77.50");
        // The button's own action comes behind the question, once.
        host.expect(
            {one.prompt, priceTitle, Buttons::YesNo, Answer::No, [&] { EXPECT_EQ(rows(order).size(), count); }});
        click(order, "cmdAdd");
        host.verify();
        EXPECT_EQ(rows(order).size(), count + 1);
        EXPECT_EQ(data.cell(master), before);

        click(find<QWidget>(order, one.box));
        host.expectYesNo(one.prompt, priceTitle, Answer::Yes);
        host.expectOk(one.updated, std::string(defaultTitle));
        key(find<QWidget>(order, one.box), Qt::Key_Tab);
        host.verify();
        EXPECT_EQ(data.cell(master), "77.5");

        click(find<QWidget>(order, one.box));  // the list of prices is as old as the window
        host.expectYesNo(one.prompt, priceTitle, Answer::No);
        click(find<QWidget>(order, "TxtQty"));
        host.verify();
        find<TextBox>(order, one.box).setText(before.substr(0, before.find(".0")));
        pick(order, "cmbRooms", rows(order).size() % 2 ? "Deck" : "Attic");
        pick(order, "cmbUnits", rows(order).size() > 1 ? "Each" : "Bag");
    }
    EXPECT_EQ(rows(order).size(), 4U);
}

// The list of items has moved on by the time the question can be asked.
TEST_F(EstimateTest, TheQuestionIsAboutTheItemThatThePriceWasChangedFor) {
    QWidget& order = newEstimate();
    pick(order, "cmbItems", "Joist");
    enter(order, "TxtMaterial", "77");
    host.expectYesNo(priceBoxes[0].prompt, priceTitle, Answer::Yes);
    host.expectOk(priceBoxes[0].updated, std::string(defaultTitle));
    pick(order, "cmbItems", "Brick");
    host.verify();
    EXPECT_EQ(data.rows("select ItemId, Material from Item order by ItemId"), (Texts{"1|77.0", "2|2.5", "3|0.5"}));
    EXPECT_EQ(texts(order, {"cmbItems", "TxtMaterial"}), "Brick|0.5");

    enter(order, "TxtMaterial", "10");  // as a joist costs
    host.expectYesNo(priceBoxes[0].prompt, priceTitle, Answer::No);
    pick(order, "cmbItems", "Joist");
    host.verify();
    enter(order, "TxtMaterial", "3");
    closeBox(order);  // asks nothing
}

TEST_F(EstimateTest, PricesAreComparedAsTexts) {
    QWidget& order = newEstimate();
    pick(order, "cmbItems", "Nails");
    struct Row {
        const char* price;
        bool asked;
    };
    for (const Row& row : {Row{"2.5", false}, Row{"2.50", true}, Row{"02.5", true}, Row{"", true}, Row{"2.5", false}}) {
        SCOPED_TRACE(row.price);
        enter(order, "TxtMaterial", row.price);
        if (row.asked) host.expectYesNo(priceBoxes[0].prompt, priceTitle, Answer::No);
        click(find<QWidget>(order, "TxtQty"));
        host.verify();
    }
}

TEST_F(EstimateTest, SavingNeedsACustomerAndALine) {
    QWidget& order = newEstimate();
    const auto refused = [&](const char* why) {
        host.expectOk(why, "Estimate");
        host.expectOk("Please enter Valid Data", "Inventory");
        click(order, "CmdSave");
        host.verify();
        EXPECT_EQ(enabled(order, {"CmdSave"}), "CmdSave");
    };
    refused("Select Customer ");
    selectCustomer(order, [](QWidget& list) { doubleClickRow(list, 0); });
    refused("No Items Selected");
    EXPECT_EQ(texts(order, totals), "0|0|0|0");
    click(order, "cmdAdd");
    saved(order);
    EXPECT_EQ(lines(6).size(), 1U);
}

TEST_F(EstimateTest, FirstUseWithEmptyLists) {
    data.execute("delete from Item; delete from Rooms; delete from Units; delete from OrderInfo; delete from Customer");
    QWidget& order = newEstimate();
    EXPECT_EQ(texts(order, panel), "||||||||");
    EXPECT_EQ(text(order, "TxtOrder"), "1");
    enter(order, "TxtMaterial", "5");
    click(find<QWidget>(order, "TxtQty"));  // there is no master price to compare with
    host.expectOk("Please enter Quanttity", "Inventory");
    click(order, "cmdAdd");
    host.expectOk("No item to Edit", "Inventory");
    click(order, "CmdEdit");
    host.expectOk("No item to Delete", "Inventory");
    click(order, "cmdDel");
}

// --- Saved estimates -------------------------------------------------------------------------------------------------

TEST_F(EstimateTest, OpenedToEdit) {
    QWidget& order = openEstimate("E", 3);
    EXPECT_EQ(utf8(order.windowTitle()), "Edit Estimate");
    EXPECT_EQ(texts(order, {"TxtOrder", "txtTaxPer", "txtOHPer", "txtNotes"}), "3|8|10|Old note");
    EXPECT_EQ(enabled(order, {"TxtOrder", "CmdSave"}), "CmdSave");
    EXPECT_EQ(texts(order, address), "Ann Lee|9 Oak|||Oregon|||||");
    EXPECT_EQ(find<DateBox>(order, "TxtDate").Value(), (Date{2003, 7, 4}));
    EXPECT_EQ(texts(order, totals), "200|16|20|236") << "as saved, not as the lines add up";
    EXPECT_EQ(text(order, "txtTotal"), "236");
    EXPECT_EQ(rows(order),
              (Texts{"1|Deck|2|Each|Joist|25|4|5|0|34|2|1", "3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2"}));
    EXPECT_EQ(find<ReportList>(order, "ListView1").SelectedRow(), 0);
    EXPECT_EQ(texts(order, {"cmbRooms", "cmbUnits", "cmbItems"}), "Roof|Bag|Brick");

    saved(order);
    EXPECT_EQ(header(3), "3|7|2|2003-07-04|9 Oak|||38||||||4|105.25|8.0|124.195||Old note|10.0");
    EXPECT_EQ(lines(3), (Texts{"1|2.5|25.0|2|1|5.0|4.0|0.0", "3|100.0|50.0|3|2|0.0|20.0|1.25"}))
        << "a line that was not touched keeps its fraction";
}

TEST_F(EstimateTest, AnEditedLineIsAppliedOrDropped) {
    QWidget& order = openEstimate("E", 3);
    doubleClickRow(order, 0);
    EXPECT_EQ(texts(order, panel), "Deck|2|Each|Joist|12.5|4|5|0|34");
    EXPECT_EQ(visible(order, modeButtons), "cmdEditApply cmdEditCanc CmdEdit cmdDel CmdSelCust CmdNewCust CmdSave");

    // The unit price that was computed back is compared with the master price of the item.
    click(find<QWidget>(order, "TxtMaterial"));
    host.expectYesNo(priceBoxes[0].prompt, priceTitle, Answer::No);
    click(find<QWidget>(order, "TxtQty"));
    host.verify();

    enter(order, "txtLabor", "9");
    host.expectYesNo(priceBoxes[1].prompt, priceTitle, Answer::No);
    click(order, "cmdEditCanc");
    EXPECT_EQ(visible(order, {"cmdAdd", "cmdEditApply", "cmdEditCanc"}), "cmdAdd");
    EXPECT_EQ(texts(order, panel), "Deck|2|Each|Joist|12.5|9|5|0|39");
    EXPECT_EQ(rows(order)[0], "1|Deck|2|Each|Joist|25|4|5|0|34|2|1");

    click(order, "CmdEdit");
    EXPECT_EQ(text(order, "txtLabor"), "4");
    enter(order, "TxtQty", "0");
    host.expectOk("Please enter Quanttity", "Inventory");
    click(order, "cmdEditApply");
    enter(order, "TxtQty", "2");
    pick(order, "cmbRooms", "Attic");
    click(order, "cmdEditApply");
    EXPECT_EQ(visible(order, {"cmdAdd", "cmdEditApply", "cmdEditCanc"}), "cmdAdd");
    EXPECT_EQ(rows(order)[0], "1|Attic|2|Each|Joist|25|4|5|0|34|1|1");
    EXPECT_EQ(texts(order, totals), "105.25|8.42|10.525|124.195");

    host.expectYesNo("Do you want to delete selected item from the list?", "Confirm Deletion", Answer::No);
    click(order, "cmdDel");
    EXPECT_EQ(rows(order).size(), 2U);
    clickRow(find<ReportList>(order, "ListView1"), 1);
    host.expectYesNo("Do you want to delete selected item from the list?", "Confirm Deletion", Answer::Yes);
    click(order, "cmdDel");
    EXPECT_EQ(rows(order).size(), 1U);
    EXPECT_EQ(text(order, "TxtAmount"), "34");
    saved(order);
    EXPECT_EQ(lines(3), Texts{"1|2.0|25.0|1|1|5.0|4.0|0.0"});
}

// Adding looks at the item that is chosen, applying at the item that the row had; and a line never changes its item.
TEST_F(EstimateTest, ApplyingKeepsTheLinesItem) {
    QWidget& order = openEstimate("E", 3);
    doubleClickRow(order, 0);
    pick(order, "cmbItems", "Brick");
    pick(order, "cmbRooms", "Roof");
    pick(order, "cmbUnits", "Bag");  // a brick on the roof in bags is there already, but the row was a joist
    click(order, "cmdEditApply");
    EXPECT_EQ(rows(order),
              (Texts{"3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2", "3|Roof|100|Bag|Brick|50|20|0|1.25|71.25|3|2"}));
    host.expectOk("Item already added ", "Inventory");
    click(order, "cmdAdd");
    host.verify();
    saved(order);
    EXPECT_EQ(lines(3)[0], "1|100.0|50.0|3|2|0.0|20.0|1.25");
}

TEST_F(EstimateTest, ApplyingRefusesTheRowsOldItemTwice) {
    QWidget& order = openEstimate("E", 3);
    pick(order, "cmbItems", "Joist");
    pick(order, "cmbRooms", "Attic");
    click(order, "cmdAdd");
    doubleClickRow(order, 0);
    pick(order, "cmbItems", "Nails");
    enter(order, "TxtQty", "1");
    pick(order, "cmbRooms", "Attic");
    pick(order, "cmbUnits", "Bag");
    host.expectOk("Item already added ", "Inventory");
    click(order, "cmdEditApply");
    host.verify();
    EXPECT_EQ(visible(order, {"cmdAdd", "cmdEditApply"}), "cmdEditApply");
    EXPECT_EQ(rows(order)[2], joist);
}

TEST_F(EstimateTest, DeletingTheRowUnderEditLeavesTheEditOnTheNextOne) {
    QWidget& order = openEstimate("E", 3);
    doubleClickRow(order, 0);
    host.expectYesNo("Do you want to delete selected item from the list?", "Confirm Deletion", Answer::Yes);
    click(order, "cmdDel");
    enter(order, "TxtQty", "4");
    click(order, "cmdEditApply");
    EXPECT_EQ(rows(order), Texts{"1|Deck|4|Each|Joist|50|4|5|0|59|2|1"});
    saved(order);
    EXPECT_EQ(lines(3), Texts{"3|4.0|50.0|2|1|5.0|4.0|0.0"});
}

TEST_F(EstimateTest, AStateThatIsNoneBecomesTheFirstOne) {
    QWidget& order = openEstimate("E", 5);
    EXPECT_EQ(text(order, "cmbSState"), "Alabama");
    saved(order);
    EXPECT_EQ(data.cell("select SState from OrderInfo where OrderNo = 5"), "1");
}

TEST_F(EstimateTest, OpenedToDelete) {
    QWidget& order = openEstimate("D", 3);
    EXPECT_EQ(utf8(order.windowTitle()), "Delete Estimate");
    EXPECT_EQ(visible(order, modeButtons), "CmdDeleteOrder");
    doubleClickRow(order, 1);
    EXPECT_EQ(visible(order, modeButtons), "cmdEditApply cmdEditCanc CmdDeleteOrder");
    enter(order, "txtLabor", "30");
    host.expectYesNo(priceBoxes[1].prompt, priceTitle, Answer::No);
    enter(order, "TxtQty", "50");
    host.verify();
    click(order, "cmdEditApply");
    EXPECT_EQ(visible(order, modeButtons), "cmdAdd CmdDeleteOrder");
    EXPECT_EQ(text(order, "TxtAmount"), "90.25");

    const char* question = "Are you sure you want to Delete Estimate No.  3";
    host.expectYesNo(question, "Estimate deletion", Answer::No);
    click(order, "CmdDeleteOrder");
    EXPECT_EQ(lines(3).size(), 2U);
    EXPECT_TRUE(screens->order.loaded());
    host.expectYesNo(question, "Estimate deletion", Answer::Yes);
    host.expectOk("Order Deleted", "");
    click(order, "CmdDeleteOrder");
    EXPECT_FALSE(screens->order.loaded());
    EXPECT_EQ(data.rows("select OrderNo from OrderInfo"), Texts{"5"});
    EXPECT_EQ(data.rows("select distinct OrderNo from OrderItem"), Texts{"5"});
}

TEST_F(EstimateTest, AnotherRecordUnderTheOpenScreen) {
    QWidget& order = openEstimate("E", 3);
    const Texts before = rows(order);
    host.expectOk("Estimate not found corresponding to entered Estimate Number", "Search Estimate");
    readEstimate("E", 99);
    EXPECT_EQ(rows(order), before);
    host.expectOk("Select Customer ", "Estimate");
    host.expectOk("Please enter Valid Data", "Inventory");
    click(order, "CmdSave");
    EXPECT_EQ(lines(3).size(), 2U);

    readEstimate("E", 5);
    EXPECT_EQ(&screens->order.window(), &order);
    EXPECT_EQ(rows(order), before);
    saved(order);
    EXPECT_EQ(lines(3), lines(5)) << "the lines of the record go under the number on the screen";
    EXPECT_EQ(data.cell("select CustId || ' ' || SStreet1 || ' ' || Amount from OrderInfo where OrderNo = 3"),
              "8 9 Oak 105.25");
}

TEST_F(EstimateTest, ModeDeleteOverTheOpenScreenSavesNothingAndSaysSo) {
    QWidget& order = openEstimate("E", 3);
    enter(order, "txtNotes", "changed");
    const std::string before = header(3);
    screens->order.AddOrDelete = "D";
    saved(order);
    EXPECT_EQ(header(3), before);
    EXPECT_EQ(lines(3).size(), 2U);
}

TEST_F(EstimateTest, NewEstimateOverTheOpenScreenOnlySetsTheMode) {
    QWidget& order = openEstimate("E", 3);
    const Texts before = rows(order);
    EXPECT_EQ(&newEstimate(), &order);
    EXPECT_EQ(screens->order.AddOrDelete, "A");
    EXPECT_EQ(utf8(order.windowTitle()), "Edit Estimate");
    EXPECT_EQ(text(order, "TxtOrder"), "3");
    EXPECT_EQ(rows(order), before);
    data.execute("delete from OrderInfo where OrderNo = 3");
    saved(order);
    EXPECT_TRUE(header(3).starts_with("3|7|2|2003-07-04|9 Oak|")) << "an insert";
    EXPECT_EQ(lines(3).size(), 4U);
}

TEST_F(EstimateTest, TheCloseBoxAsksNothingAndTheScreenStartsAnew) {
    QWidget& order = openEstimate("E", 3);
    closeBox(order);
    EXPECT_FALSE(screens->order.loaded());
    EXPECT_EQ(screens->order.Order().CustId, 0);
    QWidget& again = newEstimate();
    EXPECT_EQ(texts(again, address), "||||Alabama|||||");
    EXPECT_EQ(rows(again), Texts{});
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
    // No line has the room and unit of the second row: the edit stays on the line of the edit before.
    QWidget& order = openEstimate("E", 3);
    doubleClickRow(order, 0);
    click(order, "cmdEditCanc");
    doubleClickRow(order, 1);
    EXPECT_EQ(text(order, "cmbItems"), "Joist");
    enter(order, "txtLabor", "21");
    host.expectYesNo(priceBoxes[1].prompt, priceTitle, Answer::No);
    click(order, "cmdEditApply");
    saved(order);
    EXPECT_EQ(lines(3), (Texts{"1|100.0|50.0|2|1|0.0|21.0|1.25", "3|100.0|50.0|3|2|0.0|20.0|1.25"}));
}

TEST_F(EstimateTest, ADeletedCustomerLeavesTheNameOfTheOneBefore) {
    data.execute("delete from Customer where CustId = 8");
    closeBox(openEstimate("E", 3));
    QWidget& order = openEstimate("E", 5);
    EXPECT_EQ(text(order, "TxtCustomer"), "Ann Lee");
    saved(order);
    EXPECT_EQ(data.cell("select CustId from OrderInfo where OrderNo = 5"), "8");
}

// --- What stands beside the estimate ---------------------------------------------------------------------------------

TEST_F(EstimateTest, AreaPanelMovesAQuantity) {
    QWidget& order = newEstimate();
    enter(order, "txtLength", "10");
    enter(order, "txtWidth", "12 feet");
    const std::initializer_list<std::string_view> results{"txtPerimeter", "txtWalls",       "txtCeiling",
                                                          "txtConcrete",  "txtFloorCeil",   "txtTotArea",
                                                          "txtPlywood",   "txtDrywall4x12", "txtDrywall4x8"};
    EXPECT_EQ(texts(order, results), "44|0|120|0|120|120|3.75|2.5|3.75");
    enter(order, "txtHeight", "8");
    EXPECT_EQ(texts(order, results), "44|352|472|2.75|120|472|3.75|2.5|3.75");
    click(order, "cmdMove");
    EXPECT_EQ(texts(order, {"TxtQty", "txtTotal"}), "472|71.25");
    int option = 0;
    for (const std::string_view box : results) {
        SCOPED_TRACE(box);
        click(order, "chkarea" + std::to_string(++option));
        find<TextBox>(order, "TxtQty").setText("");
        click(order, "cmdMove");
        EXPECT_EQ(text(order, "TxtQty"), text(order, box));
    }
    enter(order, "txtLength", "20");
    click(order, "cmdMove");
    EXPECT_EQ(text(order, "TxtQty"), "7.5") << "the option stays";

    calls.clear();
    click(order, "Command7");
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    EXPECT_EQ(utf8(menu->objectName()), "mnuCalc");
    auto& button = find<QAbstractButton>(order, "Command7");
    const QPoint corner = button.mapToGlobal(QPoint(button.width(), 0));
    const int onScreen = order.screen()->availableGeometry().right() + 1 - menu->width();
    EXPECT_EQ(menu->pos(), QPoint(std::min(corner.x(), onScreen), corner.y()));
    trigger(find<QAction>(*menu, "mnuCalc3"));
    EXPECT_EQ(calls, (Texts{"Show", "Speak The calculators are not there yet."}));
    menu->close();
}

TEST_F(EstimateTest, NotesAreImportedAndCopied) {
    QWidget& order = openEstimate("E", 3);
    const std::string whole = "Good for 30 days.\nHalf is due on signing.";
    EXPECT_EQ(visible(order, {"frmNotes"}), "");
    click(order, "cmdImport");
    EXPECT_EQ(visible(order, {"frmNotes"}), "frmNotes");
    EXPECT_EQ(texts(order, {"rtfNotes", "txtNotes"}), whole + "|Old note");
    click(order, "cmdCopy");
    EXPECT_EQ(text(order, "txtNotes"), whole);
    auto& notes = find<QWidget>(order, "rtfNotes");
    click(notes);
    key(notes, Qt::Key_Home, Qt::ControlModifier);
    for (int sign = 0; sign < 21; ++sign) key(notes, Qt::Key_Right, Qt::ShiftModifier);
    click(order, "cmdCopy");
    EXPECT_EQ(text(order, "txtNotes"), "Good for 30 days.\nHal") << "a selection over two lines";
    enter(order, "rtfNotes", "Only here");
    click(order, "cmdCopy");
    EXPECT_EQ(text(order, "txtNotes"), "Only here");
    EXPECT_EQ(visible(order, {"frmNotes"}), "frmNotes");
    click(order, "Command2");
    EXPECT_EQ(visible(order, {"frmNotes"}), "");
    click(order, "cmdImport");
    EXPECT_EQ(text(order, "rtfNotes"), whole) << "read afresh";
    saved(order);
    EXPECT_EQ(data.cell("select Notes from OrderInfo where OrderNo = 3"), "Only here");
    EXPECT_EQ(data.cell("select Notes from BlankNotes"), whole);
}

TEST_F(EstimateTest, TabsInOrderAndKeysThatPressNothing) {
    QWidget& order = newEstimate();
    auto& first = find<QWidget>(order, "TxtCustomer");
    first.setFocus();
    std::string way;
    int stops = 0;
    do {
        if (++stops <= 10) way += utf8(QApplication::focusWidget()->objectName()) + " ";
        QWidget& here = *QApplication::focusWidget();
        if (!qobject_cast<QAbstractButton*>(&here) || qobject_cast<QPushButton*>(&here)) {
            key(here, Qt::Key_Return);
            key(here, Qt::Key_Escape);
        }
        key(here, Qt::Key_Tab);
    } while (QApplication::focusWidget() != &first && stops < 100);
    EXPECT_EQ(
        way,
        "TxtCustomer TxtSstreet1 TxtSstreet2 TxtScity cmbSState TxtSZip TxtSPhone TxtSMobile TxtSEmail TxtSCountry ");
    EXPECT_LT(stops, 60);
    EXPECT_TRUE(order.isVisible());
    EXPECT_EQ(rows(order), Texts{});
    EXPECT_FALSE(QApplication::activePopupWidget());
}

}  // namespace
}  // namespace torvane
