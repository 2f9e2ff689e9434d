#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
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

// A control, menu or entry of a window by its objectName. The test fails with the names that there are when there is no
// such one (by an exception: nothing after it runs).
[[noreturn]] void failNotFound(const QObject& in, std::string_view name, const QObjectList& candidates);
template <class T>
T& find(const QObject& in, std::string_view name) {
    if (T* found = in.findChild<T*>(qstring(name))) return *found;
    QObjectList candidates;
    for (T* one : in.findChildren<T*>()) candidates.append(one);
    failNotFound(in, name, candidates);
}
template <class T>
T& find(Form& form, std::string_view name) {
    return find<T>(form.window(), name);
}

// What a user does, by way of the window system: a control that is hidden, disabled or blocked by a modal window is not
// reached, as it would be. Clicking a hidden or disabled one fails the test. All handlers have run when these return.
void click(QWidget& control, Qt::MouseButton button = Qt::LeftButton);
void clickRow(ReportList& list, int row, Qt::MouseButton button = Qt::LeftButton);
void doubleClickRow(ReportList& list, int row);
void clickHeader(ReportList& list, int column);
// Opens the list and takes the entry with this text, or with this index.
void pickInList(DropList& list, std::string_view text);
void pickInList(DropList& list, int index);
// Gives the control the focus if it has not got it, then types.
void type(QWidget& control, std::string_view text);
void key(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// Runs a menu entry; a hidden or disabled one fails the test.
void trigger(QAction& entry);
// The close box of a window.
void closeBox(QWidget& window);

// What takes the focus in a window, as an assistive program finds it.
struct FocusControls {
    int named = 0;
    std::set<std::string> nameless;  // by their place in the window
};
FocusControls focusControls(QWidget& window);

// Lets everything run that waits, deletions too.
void settle();
// Runs events until the condition holds; false when it does not in time.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);

// A test of screens. Derived fixtures hold their screens; all of them are new in each test. The test fails if an
// expected box has not come, or a modal window that was waited for. It fails at once, and nothing runs after it, if the
// program ends, an exception gets past the event guard, or a modal window is never left.
class ScreenTest : public ::testing::Test {
protected:
    ScreenTest();
    ~ScreenTest() override;
    void TearDown() override;

    // Runs as a handler would: inside the event guard.
    void run(const std::function<void()>& body) { program.guarded(body); }

    // Acts while a modal window stands: runs once, inside its event loop, when a modal window other than the present
    // one has come. To act on one that opens from there, call it again inside.
    void whenModal(std::function<void(QWidget& top)> act);

    // What ends the program when this is done, in a process of its own that begins with all that there is now; what it
    // writes to the disk is all that is left of it. A failure with the number `wentOn` when nothing does.
    RuntimeFailure endOf(const std::function<void()>& act);
    static constexpr int wentOn = -1;
    // Runs there while the failure is shown.
    std::function<void()> whileFailureShows = [] {};

    QTemporaryDir directory;
    TestHost host;
    Store store;
    Program program;

private:
    [[noreturn]] void leave(int status);
    [[noreturn]] void stop(const std::string& why);
    RuntimeFailure failure_{wentOn, ""};
    int report_ = -1;  // in the process of endOf: where it tells the failure
    QTimer watchdog_;
    QList<QTimer*> waiting_;
};

}  // namespace torvane
