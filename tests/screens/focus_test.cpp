#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "screens/probe.h"
#include "screens/qt_host.h"

namespace torvane {
namespace {

// A box of the form asks a question when the focus has left it, as the price boxes do.
class FocusTest : public ProbeTest {
protected:
    FocusTest() {
        form.whenLoaded = [this] {
            program.focusWatcher().watch(form, form.first, [this] { note("LostFocus"), ask(); });
            on(form, form.first, &TextBox::textChanged, [this] { note("Change"); });
            on(form, form.button, &QPushButton::clicked, [this] { note("Click"); });
            on(form, form.choice, &DropList::Click, [this] { note("pick " + form.choice->Text()); });
        };
        other.whenLoaded = [this] {
            on(other, other.button, &QPushButton::clicked, [this] { note("other's Click"); });
        };
        other.Show();
        settle();
        form.Show();
        form.first->setFocus();
        settle();
    }
    // Until the watcher waits for nothing any more: whatever time it would wait has passed.
    bool atRest() {
        for (int times = 0; times < 20; ++times) {
            settle();
            auto timers = program.focusWatcher().findChildren<QTimer*>();
            timers.removeIf([](const QTimer* timer) { return !timer->isActive(); });
            if (timers.isEmpty()) return true;
            for (QTimer* timer : timers) timer->start(0);
        }
        return false;
    }

    QtHost boxes{""};
    Probe form{program, "frmForm"};
    Probe other{program, "frmOther"};
    std::function<void()> ask = [this] {
        whenModal([](QWidget& box) { click(*static_cast<QMessageBox&>(box).button(QMessageBox::Yes)); });
        if (boxes.box("Change the price?", "", Buttons::YesNo) == Answer::Yes) note("Yes");
    };
};

// What takes the focus, and what has run when it is over.
TEST_F(FocusTest, QuestionComesOnceAndBeforeWhatTookTheFocus) {
    struct Row {
        const char* name;
        std::function<void()> act;
        const char* expected = "LostFocus, Yes";
    };
    const auto escape = [](QWidget& box) { key(box, Qt::Key_Escape); };
    const auto escapeMenus = [] {
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    };
    const auto use = [&](Mouse act) { mouse(act, *form.button, {5, 5}); };
    const Row rows[] = {
        {"Tab", [&] { key(*form.first, Qt::Key_Tab); }},
        {"a button", [&] { click(*form.button); }, "LostFocus, Yes, Click"},
        {"a pick in a list", [&] { pickInList(*form.choice, "two"); }, "LostFocus, Yes, pick two"},
        {"disabled by code", [&] { form.first->setEnabled(false); }},
        {"a button of another window", [&] { other.Show(), settle(), click(*other.button); },
         "LostFocus, Yes, other's Click"},
        {"another window, and another box on the way back",
         [&] { other.Show(), atRest(), form.second->setFocus(), form.Show(); }},
        {"a handler that goes on, with handlers in it",
         [&] { run([&] { form.second->setFocus(), form.first->setText(log + "5"), note("done"); }); },
         "Change, done, LostFocus, Yes"},
        {"a button, not before it is let go",
         [&] { use(QTest::mousePress), settle(), note("held"), use(QTest::mouseRelease); },
         "held, LostFocus, Yes, Click"},
        {"a list, not before it is closed",
         [&] { click(*form.choice), settle(), note("open"), form.choice->hidePopup(); }, "open, LostFocus, Yes"},
        {"another box, not while a modal window stands above",
         [&] {
             whenModal([&](QWidget& top) { settle(), note("modal"), closeBox(top); });
             run([&] { form.second->setFocus(), other.ShowModal(); });
         },
         "modal, LostFocus, Yes"},
        {"not by a message box", [&] { whenModal(escape), boxes.box("Item Saved", ""); }, ""},
        {"not by a modal form", [&] { other.Unload(), whenModal(closeBox), run([&] { other.ShowModal(); }); }, ""},
        {"not by the help window", [&] { other.setAuxiliary(true), other.Show(), settle(), form.Show(); }, ""},
        {"not by the menu bar", [&] { key(*form.first, Qt::Key_F, Qt::AltModifier), escapeMenus(); }, ""},
        {"not when it is back within the handler",
         [&] { run([&] { form.first->clearFocus(), form.first->setFocus(); }); }, ""},
        {"not when the handler unloads the window", [&] { run([&] { form.second->setFocus(), form.Unload(); }); }, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        form.first->setEnabled(true);
        form.Show();
        form.first->setFocus();
        settle();
        EXPECT_TRUE(atRest());
        log.clear();
        row.act();
        EXPECT_TRUE(atRest());
        EXPECT_EQ(log, row.expected);
    }
    ask = [&] { form.Unload(); };
    form.Show();
    form.first->setFocus();
    log.clear();
    click(*form.button);
    EXPECT_EQ(log, "LostFocus") << "a button of a window that the question has unloaded does not act";
}

}  // namespace
}  // namespace torvane
