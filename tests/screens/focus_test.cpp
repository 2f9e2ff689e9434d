#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

#include "screens/focus_watcher.h"
#include "screens/probe.h"
#include "screens/qt_host.h"
#include "support/screen_test.h"

namespace torvane {

namespace {

using Log = std::vector<std::string>;

class FocusTest : public ScreenTest {
protected:
    FocusTest() {
        form.whenLoaded = [this] {
            program.focusWatcher().watch(form, form.first, [this] {
                note("LostFocus");
                if (!asks) return;
                whenModal([](QWidget& box) { click(*static_cast<QMessageBox&>(box).button(QMessageBox::Yes)); });
                if (boxes.box("Change the price?", "", Buttons::YesNo) == Answer::Yes) note("Yes");
            });
            on(form, form.button, &QPushButton::clicked, [this] { note("Click"); });
            on(form, form.choice, &DropList::Click, [this] { note("pick " + form.choice->Text()); });
        };
        other.whenLoaded = [this] {
            on(other, other.button, &QPushButton::clicked, [this] { note("other's Click"); });
        };
        other.Show();
        EXPECT_TRUE(waitFor([this] { return other.window().isActiveWindow(); }));
        form.Show();
        form.first->setFocus();
        EXPECT_TRUE(waitFor([this] { return form.first->hasFocus(); }));
    }
    void note(std::string text) { log.push_back(std::move(text)); }

    QtHost boxes{""};
    Probe form{program, "frmForm"};
    Probe other{program, "frmOther"};
    Log log;
    bool asks = true;
};

// What takes the focus, and what has run when it is over. The same once more: no event comes twice.
TEST_F(FocusTest, QuestionComesOnceAndBeforeWhatTookTheFocus) {
    struct Row {
        const char* name;
        std::function<void()> act;
        Log expected;
    };
    const Log asked{"LostFocus", "Yes"};
    // As a desktop does it: the window first, then the click.
    const auto clickIn = [&](Probe& window, QWidget& control) {
        window.window().activateWindow();
        settle();
        click(control);
    };
    const Row rows[] = {
        {"Tab", [&] { key(*form.first, Qt::Key_Tab); }, asked},
        {"click on another box", [&] { click(*form.second); }, asked},
        {"click on a button", [&] { click(*form.button); }, {"LostFocus", "Yes", "Click"}},
        {"click on a row", [&] { clickRow(*form.list, 1); }, asked},
        {"pick in a list", [&] { pickInList(*form.choice, "two"); }, {"LostFocus", "Yes", "pick two"}},
        {"code", [&] { form.second->setFocus(); }, asked},
        {"disabled by code", [&] { form.first->setEnabled(false); }, asked},
        {"click in another window", [&] { clickIn(other, *other.second); }, asked},
        {"click on a button in another window",
         [&] { clickIn(other, *other.button); },
         {"LostFocus", "Yes", "other's Click"}},
        {"another window, and another box on the way back",
         [&] {
             other.Show();
             waitFor([&] { return log.size() == 2; }, 1000);
             settle();
             EXPECT_TRUE(other.window().isActiveWindow());
             form.second->setFocus();
             form.Show();
         },
         asked},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        form.first->setEnabled(true);
        form.Show();
        form.first->setFocus();
        settle();
        log.clear();
        // After a question about a change of windows the desktop has half a second to come to rest.
        if (std::string_view(row.name).find("window") != std::string_view::npos) waitFor([] { return false; }, 550);
        row.act();
        EXPECT_TRUE(waitFor([&] { return log.size() >= row.expected.size(); }, 1000));
        waitFor([] { return false; }, 40);
        EXPECT_EQ(log, row.expected);
        EXPECT_FALSE(form.button->isDown());
    }
}

TEST_F(FocusTest, NothingElseTakesTheFocusFromAControl) {
    struct Row {
        const char* name;
        std::function<void()> act;
    };
    const Row rows[] = {
        {"message box",
         [&] {
             whenModal([](QWidget& box) { key(box, Qt::Key_Escape); });
             boxes.box("Item Saved", "");
         }},
        {"the help window",
         [&] {
             other.setAuxiliary(true);
             other.window().activateWindow();
             settle();
             form.Show();
             other.setAuxiliary(false);
         }},
        {"modal form",
         [&] {
             whenModal([&](QWidget& top) { closeBox(top); });
             run([&] { other.ShowModal(); });
         }},
        {"menu bar",
         [&] {
             key(*form.first, Qt::Key_F, Qt::AltModifier);
             ASSERT_TRUE(QApplication::activePopupWidget());
             QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
             QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
         }},
        {"pop-up menu",
         [&] {
             QMenu menu;
             menu.addAction("Entry");
             menu.popup(form.window().mapToGlobal(QPoint(5, 5)));
             settle();
             menu.close();
         }},
        {"focus away and back within a handler",
         [&] {
             run([&] {
                 form.first->clearFocus();
                 form.first->setFocus();
             });
         }},
        {"unloading", [&] { form.Unload(); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        row.act();
        waitFor([] { return false; }, 150);
        EXPECT_EQ(log, Log{});
    }
}

// Each box stands over the window whose handler shows it, whatever window the desktop has made active meanwhile.
TEST_F(FocusTest, BoxesBelongToTheWindowWhoseHandlerShowsThem) {
    asks = false;
    on(other, other.button, &QPushButton::clicked, [&] {
        for (int box = 0; box < 3; ++box) {
            whenModal([&](QWidget& top) {
                EXPECT_EQ(top.windowHandle()->transientParent(), other.window().windowHandle());
                key(top, Qt::Key_Escape);
            });
            form.window().activateWindow();
            settle();
            boxes.box("Item Saved", "");
            settle();
            EXPECT_TRUE(other.window().isActiveWindow());
        }
    });
    click(*other.button);
    EXPECT_TRUE(other.button->hasFocus());
}

TEST_F(FocusTest, UnloadingDropsWhatWaits) {
    run([&] {
        form.second->setFocus();
        form.Unload();
    });
    waitFor([] { return false; }, 40);
    EXPECT_EQ(log, Log{});
}

TEST_F(FocusTest, WaitsWhileAMouseButtonIsDown) {
    asks = false;
    QWindow* const window = form.window().windowHandle();
    const QPoint place = form.button->mapTo(&form.window(), form.button->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, place);
    waitFor([] { return false; }, 60);
    EXPECT_EQ(log, Log{});
    QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    EXPECT_EQ(log, (Log{"LostFocus", "Click"}));
}

TEST_F(FocusTest, WaitsWhileAListIsOpen) {
    asks = false;
    click(*form.choice);
    ASSERT_TRUE(QApplication::activePopupWidget());
    waitFor([] { return false; }, 60);
    EXPECT_EQ(log, Log{});
    form.choice->hidePopup();
    EXPECT_TRUE(waitFor([&] { return !log.empty(); }));
    EXPECT_EQ(log, Log{"LostFocus"});
}

TEST_F(FocusTest, WaitsWhileAModalWindowStandsAbove) {
    asks = false;
    whenModal([&](QWidget& top) {
        waitFor([] { return false; }, 60);
        type(*other.first, "1");
        EXPECT_EQ(log, Log{});
        closeBox(top);
    });
    run([&] {
        form.second->setFocus();
        other.ShowModal();
    });
    EXPECT_TRUE(waitFor([&] { return !log.empty(); }));
    EXPECT_EQ(log, Log{"LostFocus"});
}

TEST_F(FocusTest, ButtonOfAWindowThatTheQuestionHasUnloadedDoesNotAct) {
    program.focusWatcher().watch(form, form.second, [&] { form.Unload(); });
    form.second->setFocus();
    settle();
    log.clear();
    asks = false;
    click(*form.button);
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(form.loaded());
}

TEST_F(FocusTest, FailureInTheHandlerEndsTheProgramBeforeTheButtonActs) {
    program.focusWatcher().watch(form, form.second, [] { fail(Failure::Subscript); });
    form.second->setFocus();
    settle();
    log.clear();
    whileFailureShows = [&] { EXPECT_EQ(log, Log{}); };
    endOf([&] { click(*form.button); });
}

// Inside a handler nothing comes between its steps; the two losses come after it, in order.
TEST_F(FocusTest, WaitsForTheHandlerThatMovedTheFocus) {
    asks = false;
    program.focusWatcher().watch(form, form.second, [&] { note("LostFocus 2"); });
    on(form, form.first, &TextBox::textChanged, [&] { note("Change"); });
    run([&] {
        form.second->setFocus();
        form.list->setFocus();
        form.first->setText("5");
        note("done");
    });
    EXPECT_TRUE(waitFor([&] { return log.size() == 4; }));
    EXPECT_EQ(log, (Log{"Change", "done", "LostFocus", "LostFocus 2"}));
}

}  // namespace

}  // namespace torvane
