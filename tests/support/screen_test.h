#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/store.h"
#include "screens/form.h"
#include "screens/program.h"
#include "support/test_host.h"
#include "widgets/drop_list.h"
#include "widgets/report_list.h"
#include "widgets/texts.h"

class QAction;

namespace torvane {

using Texts = std::vector<std::string>;
using Names = std::vector<std::string_view>;

// --- What a user sees. All is found by its objectName; the test ends where there is no such thing. ---

[[noreturn]] void failNotFound(const QObject& in, std::string_view name);
template <class T>
T& find(const QObject& in, std::string_view name) {
    if (T* found = in.findChild<T*>(qstring(name))) return *found;
    failNotFound(in, name);
}
template <class T>
T& find(Form& form, std::string_view name) {
    return find<T>(form.window(), name);
}
// A visible top-level window; null when there is none.
QWidget* standing(std::string_view window);
// What a box or a label shows, or a list's selected entry; of several controls joined by '|'.
std::string text(const QWidget& in, std::string_view control);
std::string texts(const QWidget& in, const Names& controls);
// Those of the controls that are visible and those that are enabled, joined by ' '.
std::string visible(const QWidget& in, const Names& controls);
std::string enabled(const QWidget& in, const Names& controls);
// The report list "ListView1", and its rows, hidden keys too, cells joined by '|'.
ReportList& list(const QWidget& in);
Texts rows(const QWidget& in);
// What lies upon something else or partly outside, and is not seen whole or not clicked; and what takes the focus and has
// for an assistive program no name or that of another control, by its place.
std::set<std::string> badControls(QWidget& window);

// --- What a user does, by way of the window system. What is hidden or disabled fails the test; what a modal window
//     blocks is not reached. All handlers have run when these return. ---

void click(QWidget& control, Qt::MouseButton button = Qt::LeftButton);
void click(const QWidget& in, std::string_view control);
void clickRow(ReportList& list, int row, Qt::MouseButton button = Qt::LeftButton);
void doubleClickRow(ReportList& list, int row);
void clickHeader(ReportList& list, int column);
// Opens the list and takes the entry with this text, or with this index.
void pickInList(DropList& list, std::string_view text);
void pickInList(DropList& list, int index);
// These give the control the focus if it has not got it.
void type(QWidget& control, std::string_view text);
void key(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// Runs a menu entry.
void trigger(QAction& entry);
void closeBox(QWidget& window);

// Lets everything run that waits, deletions too.
void settle();

// A test of screens. Derived fixtures hold their screens; all of them are new in each test. The test fails if an
// expected box has not come, or a modal window that was waited for. It fails at once, and nothing runs after it, if the
// program ends, an exception gets past the event guard, or a modal window is never left.
class ScreenTest : public ::testing::Test {
protected:
    ScreenTest();
    ~ScreenTest() override;
    void TearDown() override;

    // A user's way through a window, steps separated by "; ":
    //   name          clicks the control
    //   name=value    replaces the text of a box by typing, or picks an entry of a list
    //   row 2         clicks that row of "ListView1", "row 2 twice" double-clicks it
    //   close         uses the close box
    // Steps behind " > " go on in the modal window that the step before it opens. Just these boxes come on the way.
    void go(const QWidget& in, std::string_view steps, const std::vector<TestHost::Box>& boxes = {});
    // A story told step by step: the boxes that come on the way, and what `look` gives afterwards.
    struct StoryStep {
        std::string steps;
        std::string shows;
        std::vector<TestHost::Box> boxes = {};
    };
    void tell(const QWidget& in, const std::function<std::string()>& look, const std::vector<StoryStep>& story);
    // The same as go, and acts in the modal window that the last step opens.
    void inForm(const QWidget& in, std::string_view steps, std::function<void(QWidget& form)> act) {
        takeSteps(in, steps, std::move(act));
    }
    // Acts once, when a modal window other than the present one has come.
    void whenModal(std::function<void(QWidget& top)> act);

    // Runs as a handler would: inside the event guard.
    void run(const std::function<void()>& body) { program.guarded(body); }
    // What ends the program when this is done, in a process of its own that begins with all that there is now; what it
    // writes to the disk is all that is left of it. A failure with the number `wentOn` when nothing does.
    RuntimeFailure endOf(const std::function<void()>& act);
    static constexpr int wentOn = -1;
    // The same as "<number> <refused text>".
    std::string endedBy(const std::function<void()>& act);
    // Runs there while the failure is shown.
    std::function<void()> whileFailureShows = [] {};

    QTemporaryDir directory;
    TestHost host;
    Store store;
    Program program;

private:
    void takeSteps(const QWidget& in, std::string_view steps, std::function<void(QWidget& form)> inModal);
    [[noreturn]] void leave(int status);
    [[noreturn]] static void stop(const char* why, const RuntimeFailure& failure);
    std::string endFile() const { return utf8(directory.filePath("end")); }
    RuntimeFailure failure_{wentOn, ""};
    bool mayEnd_ = false;  // in the process of endOf
    QObject waiting_;      // for modal windows
};

}  // namespace torvane
