#pragma once

#include <QAction>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/file_copy.h"
#include "shell/screens.h"
#include "support/data_folder.h"
#include "support/screen_test.h"

namespace torvane {

using Texts = std::vector<std::string>;
using Names = std::vector<std::string_view>;

// What a box, a label or a button shows, or a list's selected entry; of several controls joined by '|'.
std::string text(const QWidget& in, std::string_view control);
std::string texts(const QWidget& in, const Names& controls);
// Those of the named controls that are visible and those that are enabled, joined by ' '.
std::string visible(const QWidget& in, const Names& controls);
std::string enabled(const QWidget& in, const Names& controls);
// The report list "ListView1", and its rows, hidden keys too, cells joined by '|'.
ReportList& list(const QWidget& in);
Texts rows(const QWidget& in);
void pasteInto(QWidget& box, std::string_view text);
// Single steps of a user, by the names of controls: a click, a double click on a row of "ListView1", a box's text
// replaced by typing or by pasting, an entry picked in a list.
void click(const QWidget& in, std::string_view control);
void doubleClickRow(const QWidget& in, int row);
void enter(const QWidget& in, std::string_view box, std::string_view text);
void paste(const QWidget& in, std::string_view box, std::string_view text);
void pick(const QWidget& in, std::string_view list, std::string_view entry);
// A visible top-level window with this name; null when there is none.
QWidget* standing(std::string_view window);

// Boxes that a test expects, with their answers.
TestHost::Box ok(std::string text, std::string title = "Inventory");
TestHost::Box yes(std::string text, std::string title);
TestHost::Box no(std::string text, std::string title);

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

    // A user's way through a window, steps separated by "; ". "name" clicks a control, "name=value" replaces the text
    // of a box by typing, or picks an entry of a list. Just these boxes come on the way.
    void go(const QWidget& in, std::string_view steps, const std::vector<TestHost::Box>& boxes = {});

    // The estimate screen, opened for a new estimate, or with a saved one in mode "E" or "D".
    QWidget& newEstimate();
    QWidget& openEstimate(const char* mode, std::int32_t number);
    // Reads an estimate into the record, as the lists of estimates do.
    void readEstimate(const char* mode, std::int32_t number);
    // The customer list, opened by an entry of the menu ("A", "E", "D") or by the estimate screen to pick one.
    QWidget& customers(std::string_view mode);
    void pickCustomer(QWidget& order, const std::function<void(QWidget& customers)>& act);

    std::string header(int number) const;
    Texts lines(int number) const;
    // "<number> <refused text>" of the failure by which this ends the program.
    std::string endedBy(const std::function<void()>& act);

    DataFolder data;
    FileSystem files;
    Texts calls;  // of the assistant
    std::unique_ptr<Screens> screens;
};

}  // namespace torvane
