#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "datastore/store.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/program.h"
#include "support/test_host.h"

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

// A test of screens. Derived fixtures hold their screens; all of them are new in each test. The test fails if the
// program has ended with a failure that was not taken, an expected box has not come, a modal window that was waited for
// has not come, an exception has got past the event guard, or the test hangs in a modal window.
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

    // The failure that has ended the program, if one has; it counts as expected then.
    std::optional<RuntimeFailure> takeFailure();
    // Its number alone, or nothing.
    std::optional<int> takeFailureNumber();

    QTemporaryDir directory;
    TestHost host;
    Store store;
    std::vector<int> endStatus;  // what the process would have left with; one entry once the program has ended
    Program program;

private:
    void unblock();
    std::optional<RuntimeFailure> failure_;
    QTimer watchdog_;
    bool stopped_ = false;
    QList<QTimer*> waiting_;
};

}  // namespace torvane
