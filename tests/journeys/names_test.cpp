// Takeoff names and units, one record at a time.

#include "journeys/journey.h"

namespace torvane {
namespace {

using Boxes = std::vector<TestHost::Box>;

class NamesTest : public JourneyTest {
protected:
    QWidget& names(const char* entryName) {
        if (!screens) start();
        choose(entryName);
        return screens->master.window();
    }
    static std::string shown(QWidget& window) { return texts(window, {"txtName", "lblRecord"}); }
    Texts rooms() { return data.rows("select Id, Name from Rooms order by Id"); }
    static Boxes saving(const char* says) {
        return {yes("Do you want to save the record?", "Save Data"), ok(says, "Master Entry")};
    }
};

TEST_F(NamesTest, MovesAndSearchesInTheWholeTable) {
    QWidget& window = names("mnuRooms");
    names("mnuUnits");  // stands already: it stays what it was
    EXPECT_EQ(utf8(window.windowTitle()) + "|" + text(window, "Label1"),
              "Takeoff Name  Master Entry Screen|Takeoff Name :");
    struct Row {
        const char* steps;
        const char* shown;
    };
    for (const Row& row : {Row{"cmdPrevious", "Attic|Record : 1 of 3"}, Row{"cmdNext", "Deck|Record : 2 of 3"},
                           Row{"cmdNext; cmdNext", "Roof|Record : 3 of 3"}, Row{"cmdPrevious", "Deck|Record : 2 of 3"},
                           Row{"txtSearch=OF; cmdSearch", "Roof|Record : 3 of 3"},
                           Row{"txtSearch=zz; cmdSearch", "Attic|Record : 1 of 3"}}) {
        go(window, row.steps, Boxes(std::string(row.steps).find("zz") + 1 > 0, ok("No Result found.", "Search")));
        EXPECT_EQ(shown(window), row.shown) << row.steps;
    }
    go(window, "cmdMainHelp; cmdExit");
    EXPECT_TRUE(calls.back().starts_with("Speak This screen allows you to enter the data which will"));
    QWidget& units = names("mnuUnits");
    EXPECT_EQ(utf8(units.windowTitle()) + "|" + text(units, "Label1"), "Units Master Entry Screen|Unit Name :");
    EXPECT_EQ(shown(units), "Bag|Record : 1 of 2");
}

TEST_F(NamesTest, AddedChangedAndRefused) {
    QWidget& window = names("mnuRooms");
    go(window, "cmdAdd");
    EXPECT_EQ(shown(window), "|Record : 1 of 3");
    EXPECT_TRUE(find<QWidget>(window, "txtName").hasFocus());
    go(window, "CmdSave", saving("Empty Data"));
    go(window, "cmdAdd; txtName=deck; CmdSave", saving("Duplicate Data 'deck'"));
    go(window, "CmdSave", saving("Record Saved"));  // what stands is changed: only adding looks for a second one
    EXPECT_EQ(rooms(), (Texts{"1|deck", "2|Deck", "3|Roof"}));
    go(window, "cmdAdd; txtName=Bath; CmdSave", saving("Record Saved"));
    EXPECT_EQ(shown(window), "Bath|Record : 1 of 3") << "it shows after a move only";
    go(window, "cmdPrevious");
    EXPECT_EQ(shown(window), "Bath|Record : 1 of 4");

    // Moving on from a name that was not saved.
    const char* question = "You have not saved the data you added. Do you want to save it first?";
    go(window, "cmdAdd; txtName=Yard; cmdNext", {no(question, "Master Entry")});
    Boxes boxes = saving("Record Saved");
    boxes.insert(boxes.begin(), yes(question, "Master Entry"));
    go(window, "cmdAdd; txtName=Yard; cmdNext", boxes);
    go(window, "cmdAdd; txtName=Lost; cmdExit");  // asks nothing
    EXPECT_EQ(rooms(), (Texts{"1|deck", "2|Deck", "3|Roof", "4|Bath", "5|Yard"}));
}

TEST_F(NamesTest, DeletingMovesOnInTheShortenedTable) {
    data.execute("insert into Rooms values (4, 'Cellar'), (5, 'Yard')");
    QWidget& window = names("mnuRooms");
    go(window, "cmdNext; cmdDelete", {no("Do you want to delete 'Cellar'?", "Master Entry")});
    struct Row {
        std::string name;
        const char* shown;
    };
    for (const Row& row : {Row{"Cellar", "Roof|Record : 3 of 4"}, Row{"Roof", "Yard|Record : 3 of 3"},
                           Row{"Yard", "Deck|Record : 2 of 2"}, Row{"Deck", "Attic|Record : 1 of 1"},
                           Row{"Attic", "Attic|Record : 1 of 1"}}) {  // an empty table leaves what is shown
        go(window, "cmdDelete", {yes("Do you want to delete '" + row.name + "'?", "Master Entry")});
        EXPECT_EQ(shown(window), row.shown);
    }
    go(window, "cmdNext; cmdPrevious; cmdAdd; txtName=Den; CmdSave", saving("Record Saved"));
    go(window, "cmdNext");
    EXPECT_EQ(shown(window), "Den|Record : 1 of 1");
    EXPECT_EQ(rooms(), Texts{"6|Den"}) << "no key is given twice";
}

}  // namespace
}  // namespace torvane
