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
    static TestHost::Box sure(const std::string& name, Answer answer = Answer::Yes) {
        return {"Do you want to delete '" + name + "'?", "Master Entry", Buttons::YesNo, answer};
    }
};

TEST_F(NamesTest, CaptionsOfBothTables) {
    QWidget& window = names("mnuRooms");
    EXPECT_EQ(utf8(window.windowTitle()) + "|" + text(window, "Label1"),
              "Takeoff Name  Master Entry Screen|Takeoff Name :");
    EXPECT_EQ(shown(window), "Attic|Record : 1 of 3");
    names("mnuUnits");  // stands already: it stays what it was
    EXPECT_EQ(shown(window), "Attic|Record : 1 of 3");
    calls.clear();
    go(window, "cmdMainHelp");
    EXPECT_EQ(calls.at(1).substr(0, 70), "Speak This screen allows you to enter the data which will later be use");
    go(window, "cmdExit");
    EXPECT_EQ(standing("frmMaster"), nullptr);
    QWidget& units = names("mnuUnits");
    EXPECT_EQ(utf8(units.windowTitle()) + "|" + text(units, "Label1"), "Units Master Entry Screen|Unit Name :");
    EXPECT_EQ(shown(units), "Bag|Record : 1 of 2");
}

TEST_F(NamesTest, MovesAndSearchesInTheWholeTable) {
    QWidget& window = names("mnuRooms");
    struct Row {
        const char* button;
        const char* search;
        const char* shown;
    };
    for (const Row& row :
         {Row{"cmdPrevious", "", "Attic|Record : 1 of 3"}, Row{"cmdNext", "", "Deck|Record : 2 of 3"},
          Row{"cmdNext", "", "Roof|Record : 3 of 3"}, Row{"cmdNext", "", "Roof|Record : 3 of 3"},
          Row{"cmdPrevious", "", "Deck|Record : 2 of 3"}, Row{"cmdSearch", "OF", "Roof|Record : 3 of 3"},
          Row{"cmdSearch", "zz", "Attic|Record : 1 of 3"}, Row{"cmdSearch", "ec", "Deck|Record : 2 of 3"}}) {
        SCOPED_TRACE(std::string(row.button) + row.search);
        if (*row.search) go(window, std::string("txtSearch=") + row.search);
        go(window, row.button, Boxes(std::string(row.search) == "zz", ok("No Result found.", "Search")));
        EXPECT_EQ(shown(window), row.shown);
    }
    EXPECT_NE(endedBy([&] { go(window, "txtSearch=it's; cmdSearch"); }).find("it's"), std::string::npos);
}

TEST_F(NamesTest, AddedChangedAndRefused) {
    QWidget& window = names("mnuRooms");
    go(window, "cmdAdd");
    EXPECT_EQ(shown(window), "|Record : 1 of 3");
    EXPECT_TRUE(find<QWidget>(window, "txtName").hasFocus());
    go(window, "CmdSave", saving("Empty Data"));
    go(window, "cmdAdd; txtName=deck");
    go(window, "CmdSave", saving("Duplicate Data 'deck'"));
    EXPECT_EQ(text(window, "txtName"), "deck") << "a refused name stays in the box";
    go(window, "CmdSave",
       saving("Record Saved"));  // and changes the record that stands: only adding looks for a second one
    EXPECT_EQ(rooms(), (Texts{"1|deck", "2|Deck", "3|Roof"}));

    go(window, "cmdAdd; txtName=Bath");
    go(window, "CmdSave", saving("Record Saved"));
    EXPECT_EQ(shown(window), "Bath|Record : 1 of 3") << "it shows after a move only";
    go(window, "cmdPrevious");
    EXPECT_EQ(shown(window), "Bath|Record : 1 of 4");

    // Moving on from a name that was not saved.
    const char* question = "You have not saved the data you added. Do you want to save it first?";
    go(window, "cmdAdd; txtName=Yard; cmdNext", {no(question, "Master Entry")});
    Boxes boxes = saving("Record Saved");
    boxes.insert(boxes.begin(), yes(question, "Master Entry"));
    go(window, "cmdAdd; txtName=Yard; cmdNext", boxes);
    EXPECT_EQ(rooms(), (Texts{"1|deck", "2|Deck", "3|Roof", "4|Bath", "5|Yard"}));
    go(window, "cmdAdd; txtName=Lost; cmdExit");
    EXPECT_EQ(rooms().size(), 5U) << "closing asks nothing";
}

TEST_F(NamesTest, DeletingMovesOnInTheShortenedTable) {
    data.execute("insert into Rooms values (4, 'Cellar'), (5, 'Yard')");
    QWidget& window = names("mnuRooms");
    go(window, "cmdNext");
    go(window, "cmdDelete", {sure("Cellar", Answer::No)});
    EXPECT_EQ(shown(window), "Cellar|Record : 2 of 5");
    go(window, "cmdDelete", {sure("Cellar")});
    EXPECT_EQ(shown(window), "Roof|Record : 3 of 4");
    go(window, "cmdNext");
    go(window, "cmdDelete", {sure("Yard")});
    EXPECT_EQ(shown(window), "Roof|Record : 3 of 3");
    for (const char* name : {"Roof", "Deck", "Attic"}) go(window, "cmdDelete", {sure(name)});
    EXPECT_EQ(rooms(), Texts{});
    EXPECT_EQ(shown(window), "Attic|Record : 1 of 1") << "an empty table leaves what is shown";
    for (const char* button : {"cmdNext", "cmdPrevious"}) go(window, button);
    go(window, "cmdAdd; txtName=Den");
    go(window, "CmdSave", saving("Record Saved"));
    go(window, "cmdNext");
    EXPECT_EQ(shown(window), "Den|Record : 1 of 1");
    EXPECT_EQ(rooms(), Texts{"6|Den"}) << "no key is given twice";
}

}  // namespace
}  // namespace torvane
