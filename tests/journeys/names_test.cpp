// Takeoff names and units, one record at a time.

#include "journeys/journey.h"

namespace torvane {
namespace {

class NamesTest : public JourneyTest {
protected:
    using Boxes = std::vector<TestHost::Box>;
    const std::function<std::string()> shown = [this] {
        return texts(screens->master.window(), {"txtName", "lblRecord"});
    };
    static Boxes saving(const char* says) {
        return {yes("Do you want to save the record?", "Save Data"), ok(says, "Master Entry")};
    }
    static Boxes deleting(const std::string& name) {
        return {yes("Do you want to delete '" + name + "'?", "Master Entry")};
    }
    Texts rooms() { return data.rows("select Id, Name from Rooms order by Id"); }
};

TEST_F(NamesTest, MovedThroughSearchedAddedAndChanged) {
    QWidget& window = opened("mnuRooms");
    opened("mnuUnits");  // stands already: it stays what it was
    EXPECT_EQ(utf8(window.windowTitle()) + text(window, "Label1"), "Takeoff Name  Master Entry ScreenTakeoff Name :");
    const TestHost::Box notSaved =
        no("You have not saved the data you added. Do you want to save it first?", "Master Entry");
    Boxes savedFirst = saving("Record Saved");
    savedFirst.insert(savedFirst.begin(), yes(notSaved.text, notSaved.title));
    tell(window, shown,
         {
             {"cmdPrevious", "Attic|Record : 1 of 3"},
             {"cmdNext", "Deck|Record : 2 of 3"},
             {"cmdNext; cmdNext", "Roof|Record : 3 of 3"},
             {"cmdPrevious", "Deck|Record : 2 of 3"},
             {"txtSearch=OF; cmdSearch", "Roof|Record : 3 of 3"},
             {"txtSearch=zz; cmdSearch", "Attic|Record : 1 of 3", {ok("No Result found.", "Search")}},
             {"cmdAdd", "|Record : 1 of 3"},
             {"CmdSave", "|Record : 1 of 3", saving("Empty Data")},
             {"cmdAdd; txtName=deck; CmdSave", "deck|Record : 1 of 3", saving("Duplicate Data 'deck'")},
             // What stands is changed then: only adding looks for a second one.
             {"CmdSave", "deck|Record : 1 of 3", saving("Record Saved")},
             {"cmdAdd; txtName=Bath; CmdSave", "Bath|Record : 1 of 3", saving("Record Saved")},
             {"cmdPrevious", "Bath|Record : 1 of 4"},
             {"cmdAdd; txtName=Yard; cmdNext", "deck|Record : 2 of 4", {notSaved}},
             {"cmdAdd; txtName=Yard; cmdNext", "Deck|Record : 3 of 5", savedFirst},
         });
    go(window, "cmdAdd; txtName=Lost; cmdMainHelp; cmdExit");  // asks nothing
    EXPECT_TRUE(calls.back().starts_with("Speak This screen allows you to enter the data which will"));
    EXPECT_EQ(rooms(), (Texts{"1|deck", "2|Deck", "3|Roof", "4|Bath", "5|Yard"}));
    QWidget& units = opened("mnuUnits");
    EXPECT_EQ(utf8(units.windowTitle()) + text(units, "Label1"), "Units Master Entry ScreenUnit Name :");
    EXPECT_EQ(shown(), "Bag|Record : 1 of 2");
}

TEST_F(NamesTest, DeletingMovesOnInTheShortenedTable) {
    data.execute("insert into Rooms values (4, 'Cellar'), (5, 'Yard')");
    tell(opened("mnuRooms"), shown,
         {
             {"cmdNext; cmdDelete", "Cellar|Record : 2 of 5", {no("Do you want to delete 'Cellar'?", "Master Entry")}},
             {"cmdDelete", "Roof|Record : 3 of 4", deleting("Cellar")},
             {"cmdDelete", "Yard|Record : 3 of 3", deleting("Roof")},
             {"cmdDelete", "Deck|Record : 2 of 2", deleting("Yard")},
             {"cmdDelete", "Attic|Record : 1 of 1", deleting("Deck")},
             {"cmdDelete", "Attic|Record : 1 of 1", deleting("Attic")},  // an empty table leaves what is shown
             {"cmdNext; cmdPrevious; cmdAdd; txtName=Den; CmdSave", "Den|Record : 1 of 1", saving("Record Saved")},
             {"cmdNext", "Den|Record : 1 of 1"},
         });
    EXPECT_EQ(rooms(), Texts{"6|Den"}) << "no key is given twice";
}

}  // namespace
}  // namespace torvane
