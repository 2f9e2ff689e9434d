// The item sheet.

#include "estimates/screens/category_tree.h"
#include "journeys/journey.h"

namespace torvane {
namespace {

// The tree as text: a line per node, indented by its level.
std::string outline(const QTreeWidgetItem& node, std::size_t level = 0) {
    std::string text =
        std::string(level, ' ') + utf8(node.data(0, Qt::UserRole).toString() + " " + node.text(0)) + "\n";
    for (int i = 0; i < node.childCount(); ++i) text += outline(*node.child(i), level + 1);
    return text;
}

class SheetTest : public JourneyTest {
protected:
    QWidget& sheet() {
        go(newEstimate(), "cmdItemList");
        return screens->itemSheet.window();
    }
    // Takes items of the tree, one after the other.
    void take(const QWidget& in, const Names& items) {
        auto& tree = find<CategoryTree>(in, "TreeCategory");
        for (const std::string_view name : items) {
            tree.setCurrentItem(tree.findItems(qstring(name), Qt::MatchExactly | Qt::MatchRecursive).value(0));
            key(tree, Qt::Key_Return);
        }
    }
};

TEST_F(SheetTest, TheTreeIsThreeLevelsDeepAndMatchesKeysByTheirFirstDigits) {
    data.execute(R"(delete from Category; delete from Item;
        insert into Category values (1, 'Wood', 0), (12, 'Beams', 1), (3, 'Glue', 12), (4, 'Deep', 3), (2, 'öl', null),
            (5, 'Orphan', 99);
        insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Qty) values
            (1, '1', 'Plank', 1, 1, 1, 1), (2, '2', 'Girder', 12, 1, 1, 1), (3, '3', 'Epoxy', 3, 1, 1, 1),
            (4, '4', 'Hidden', 4, 1, 1, 1), (5, '5', 'Red', 2, 1, 1, 1), (6, '6', 'No unit', 1, 99, 1, 1))");
    auto& tree = find<CategoryTree>(sheet(), "TreeCategory");
    EXPECT_EQ(outline(*tree.topLevelItem(0)),
              "R Categories\n C2 öl\n  I5 Red\n C1 Wood\n  I2 Girder\n  I1 Plank\n"
              "  C1_12 Beams\n   I2 Girder\n   C2_3 Glue\n    I3 Epoxy\n");
    const QTreeWidgetItem* last = tree.findItems("Epoxy", Qt::MatchRecursive).value(0);
    EXPECT_TRUE(tree.viewport()->rect().contains(tree.visualItemRect(last).center())) << "opens with the end in sight";
}

TEST_F(SheetTest, CollectsItemsAndMovesThemToTheEstimate) {
    data.execute("update Item set CategoryId = 77 where ItemId = 3; insert into Category values (77, 'Masonry', 0)");
    QWidget& sheetWindow = sheet();
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
    go(sheetWindow, "row 4; cmdDelete; cmdDelete", {keep, yes(keep.text, keep.title)});
    // Each row goes through the door of a single line; the unit is the one of the estimate screen.
    go(sheetWindow, "cmdAddEstimate", {ok("Please enter Quanttity"), ok("Item already added ")});
    EXPECT_FALSE(standing("frmList"));
    EXPECT_EQ(rows(order),
              (Texts{"1|Roof|2|Bag|Joist|20|4|5|6|35|3|2", "3|Deck|100|Bag|Brick|50|20|0|1.25|71.25|2|2"}));
    EXPECT_EQ(text(order, "TxtAmount"), "106.25");
}

// The sheet works on what the estimate screen has read when it was opened.
TEST_F(SheetTest, ItemsThatCameOrWentMeanwhile) {
    QWidget& order = newEstimate();
    data.execute(
        "insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Qty) values "
        "(9, '9', 'Glue', 1, 1, 1, 1)");
    take(sheet(), {"Joist", "Glue"});
    data.execute("delete from Item where ItemId = 1");
    // The glue is not there yet: the item before it again. An item that has gone since is.
    go(*standing("frmList"), "cmdAddEstimate", {ok("Item already added ")});
    EXPECT_EQ(rows(order), Texts{"1|Attic|2|Bag|Joist|20|4|5|6|35|1|2"});
    take(sheet(), {"Nails"});
    go(order, "close");
    go(*standing("frmList"), "cmdAddEstimate", {ok("Please enter Quanttity")});
    EXPECT_EQ(rows(*standing("frmOrder")), Texts{}) << "a closed estimate screen is loaded anew";
}

}  // namespace
}  // namespace torvane
