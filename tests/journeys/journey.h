#pragma once

#include <QAction>
#include <memory>

#include "files/file_copy.h"
#include "shell/screens.h"
#include "support/data_folder.h"
#include "support/screen_test.h"

namespace torvane {

using Boxes = std::vector<TestHost::Box>;

// The whole program over a database file in a folder of its own. The small business in it:
//   items      1 "Joist" (10, labor 4, quantity 2, sub-labor 5, equipment 6), 2 "Nails" (2.5, default quantity 0),
//              3 "Brick" (0.5, labor 20, quantity 100, equipment 1.25)
//   rooms      1 Attic, 2 Deck, 3 Roof          units  1 Each, 2 Bag
//   customers  7 "Ann Lee" of Salem, Oregon; 8 "Bob Ray" of Troy, whose state is none
//   estimates  3 of Ann Lee with two lines, whose amount is not their sum; 5 of Bob Ray with one line
class JourneyTest : public ScreenTest {
protected:
    JourneyTest();

    using LoadAssistant = std::function<std::unique_ptr<Assistant>(const std::string&)>;
    // Starts the program as main() does, with an assistant that notes what it is asked for.
    void start(bool previousInstance = false, LoadAssistant loadAssistant = {});
    std::unique_ptr<Assistant> recordingAssistant();

    QAction& entry(std::string_view name) { return find<QAction>(screens->mainMenu, name); }
    void choose(std::string_view name) { trigger(entry(name)); }
    // The window that an entry of the menu opens, or brings up when it stands already; starts the program if need be.
    QWidget& opened(std::string_view entryName);
    QWidget& newEstimate() { return opened("mnuNewEstimate"); }
    // The estimate screen with a saved estimate to edit.
    QWidget& openEstimate(int number);

    // The lines of an estimate as they are saved.
    Texts lines(int number) const;

    DataFolder data;
    FileSystem files;
    Texts calls;  // of the assistant
    std::unique_ptr<Screens> screens;
};

}  // namespace torvane
