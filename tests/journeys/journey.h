#pragma once

#include <QAction>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/file_copy.h"
#include "shell/application.h"
#include "support/data_folder.h"
#include "support/screen_test.h"

namespace torvane {

using Texts = std::vector<std::string>;

// What a control shows: of a box, a list's selected entry, a label or a button.
std::string text(const QWidget& in, std::string_view control);
// The same of several controls, joined by '|'.
std::string texts(const QWidget& in, std::initializer_list<std::string_view> controls);
// The rows of the report list "ListView1", hidden keys too, cells joined by '|'.
Texts rows(const QWidget& in);
// Those of the named controls that are visible and those that are enabled, joined by ' '.
std::string visible(const QWidget& in, std::initializer_list<std::string_view> controls);
std::string enabled(const QWidget& in, std::initializer_list<std::string_view> controls);

void click(const QWidget& in, std::string_view button);
void doubleClickRow(const QWidget& in, int row);
// Replaces the text of a box by typing, or by pasting.
void enter(const QWidget& in, std::string_view box, std::string_view text);
void paste(const QWidget& in, std::string_view box, std::string_view text);
void pick(const QWidget& in, std::string_view list, std::string_view entry);

// A visible top-level window with this name; null when there is none.
QWidget* standing(std::string_view window);

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
    void choose(std::string_view entryName) { trigger(entry(entryName)); }

    // The estimate screen, opened for a new estimate, or with a saved one in mode "E" or "D".
    QWidget& newEstimate();
    QWidget& openEstimate(const char* mode, std::int32_t number);
    // Reads an estimate into the record, as the lists of estimates do.
    void readEstimate(const char* mode, std::int32_t number);
    // The customer list in a mode of the menu.
    QWidget& customers(const char* mode);

    std::string header(int number) const;
    Texts lines(int number) const;
    std::string endedWith();  // "<number> <refused text>" of the failure that ended the program, or ""

    DataFolder data;
    FileSystem files;
    Texts calls;  // of the assistant
    std::unique_ptr<Application> screens;
};

}  // namespace torvane
