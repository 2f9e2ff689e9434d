// The item sheet.

#include "estimates/screens/category_tree.h"
#include "journeys/journey.h"
#include "masters/category_nodes.h"

namespace torvane {
namespace {

// The tree as text: a line per node, indented by its level.
std::string outline(const QTreeWidgetItem& node, int level = 0) {
    std::string text = std::string(static_cast<std::size_t>(level), ' ') + utf8(node.data(0, Qt::UserRole).toString()) +
                       " " + utf8(node.text(0)) + "\n";
    for (int i = 0; i < node.childCount(); ++i) text += outline(*node.child(i), level + 1);
    return text;
}

class SheetTest : public JourneyTest {
protected:
    QWidget& sheet() {
        if (!screens->order.loaded()) newEstimate();
        go(screens->order.window(), "cmdItemList");
        return screens->itemSheet.window();
    }
    // Double-clicks an item of the tree.
    void take(const QWidget& in, std::string_view name) {
        auto& tree = find<CategoryTree>(in, "TreeCategory");
        const auto found = tree.findItems(qstring(name), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_FALSE(found.isEmpty()) << name;
        tree.setCurrentItem(found.constFirst());
        key(tree, Qt::Key_Return);
    }
};

TEST_F(SheetTest, TheTreeIsThreeLevelsDeepAndMatchesKeysByTheirFirstDigits) {
    data.execute(R"(delete from Category; delete from Item;
        insert into Category values (1, 'Wood', 0), (12, 'Beams', 1), (3, 'Glue', 12), (4, 'Deep', 3), (2, 'öl', null),
            (5, 'Orphan', 99);
        insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Qty) values
            (1, '1', 'Plank', 1, 1, 1, 1), (2, '2', 'Girder', 12, 1, 1, 1), (3, '3', 'Epoxy', 3, 1, 1, 1),
            (4, '4', 'Hidden', 4, 1, 1, 1), (5, '5', 'Red', 2, 1, 1, 1), (6, '6', 'No unit', 1, 99, 1, 1))");
    start();
    auto& tree = find<CategoryTree>(sheet(), "TreeCategory");
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(outline(*tree.topLevelItem(0)),
              "R Categories\n"
              " C2 öl\n"
              "  I5 Red\n"
              " C1 Wood\n"
              "  I2 Girder\n"
              "  I1 Plank\n"
              "  C1_12 Beams\n"
              "   I2 Girder\n"
              "   C2_3 Glue\n"
              "    I3 Epoxy\n");
}

TEST_F(SheetTest, OpensWithTheLastNodeInSight) {
    data.execute(
        "with recursive n(i) as (select 100 union all select i + 1 from n where i < 199)"
        "insert into Item select i, i, 'Plank ' || i, 1, 1, 1, 0, 0, 0, 1, '' from n");
    start();
    auto& tree = find<CategoryTree>(sheet(), "TreeCategory");
    const auto last = tree.findItems("Plank 199", Qt::MatchRecursive | Qt::MatchExactly);
    ASSERT_EQ(last.size(), 1);
    EXPECT_TRUE(tree.viewport()->rect().contains(tree.visualItemRect(last.constFirst()).center()));
}

TEST_F(SheetTest, CollectsAndMovesItems) {
    data.execute("update Item set CategoryId = 77 where ItemId = 3; insert into Category values (77, 'Masonry', 0)");
    QWidget& order = newEstimate();
    go(order, "cmbUnits=Bag");
    QWidget& list = sheet();
    for (const char* name : {"Categories", "Framing"}) take(list, name);
    EXPECT_TRUE(rows(list).empty()) << "only items go to the sheet";
    go(list, "cmdDelete; cmbRooms=Roof");
    for (const char* name : {"Joist", "Nails"}) take(list, name);
    go(list, "cmbRooms=Deck");
    for (const char* name : {"Brick", "Brick", "Joist"}) take(list, name);
    EXPECT_EQ(rows(list), (Texts{"1|Roof|1|Joist|Framing|2|Each|10|4|3", "2|Roof|2|Nails|Framing|0|Each|2.5|0|3",
                                 "3|Deck|3|Brick|Masonry|100|Bag|0.5|20|2", "3|Deck|3|Brick|Masonry|100|Bag|0.5|20|2",
                                 "1|Deck|1|Joist|Framing|2|Each|10|4|2"}));
    clickRow(torvane::list(list), 4);
    const char* question = "Do you want to delete item '1'?";
    go(list, "cmdDelete; cmdDelete",
       {no(question, "Delete Item from the List"), yes(question, "Delete Item from the List")});
    EXPECT_EQ(rows(list).size(), 4U);
    // Each row goes through the door of a single line; the unit is the one of the estimate screen.
    go(list, "cmdAddEstimate", {ok("Please enter Quanttity"), ok("Item already added ")});
    EXPECT_FALSE(screens->itemSheet.loaded());
    EXPECT_EQ(rows(order),
              (Texts{"1|Roof|2|Bag|Joist|20|4|5|6|35|3|2", "3|Deck|100|Bag|Brick|50|20|0|1.25|71.25|2|2"}));
    EXPECT_EQ(text(order, "TxtAmount"), "106.25");
}

TEST_F(SheetTest, WorksOnWhatTheEstimateScreenHas) {
    const std::string joist = "1|Attic|2|Bag|Joist|20|4|5|6|35|1|2";
    newEstimate();
    data.execute(
        "insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Qty) values (9, '9', 'Glue', 1, 1, 1, 1)");
    QWidget& list = sheet();
    for (const char* name : {"Joist", "Glue"}) take(list, name);
    data.execute("delete from Item where ItemId = 1");
    go(list, "cmdAddEstimate", {ok("Item already added ")});  // the glue is not there yet: the item before it again
    EXPECT_EQ(rows(screens->order.window()), Texts{joist}) << "an item that has gone since is";
    QWidget& again = sheet();
    EXPECT_EQ(rows(again), Texts{}) << "nothing of a sheet is kept";
    take(again, "Nails");
    closeBox(screens->order.window());
    go(again, "cmdAddEstimate", {ok("Please enter Quanttity")});
    EXPECT_EQ(rows(screens->order.window()), Texts{}) << "a closed estimate screen is loaded anew";
}

}  // namespace
}  // namespace torvane
