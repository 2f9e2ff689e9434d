#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "screens/probe.h"
#include "screens/qt_host.h"

namespace torvane {
namespace {

class FocusTest : public ProbeTest {
protected:
    FocusTest() {
        form.whenLoaded = [this] {
            watch(form.first, [this] {
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
        settle();
        form.Show();
        form.first->setFocus();
        settle();
    }
    void watch(QWidget* control, std::function<void()> lostFocus) {
        program.focusWatcher().watch(form, control, std::move(lostFocus));
    }
    // Until the watcher waits for nothing any more.
    bool atRest() {
        return waitFor([this] {
            const auto timers = program.focusWatcher().findChildren<QTimer*>();
            return std::ranges::none_of(timers, &QTimer::isActive);
        });
    }
    // As a desktop does it: the window first, then the click.
    static void clickIn(Probe& window, QWidget& control) {
        window.window().activateWindow();
        settle();
        click(control);
    }

    QtHost boxes{""};
    Probe form{program, "frmForm"};
    Probe other{program, "frmOther"};
    bool asks = true;
};

// What takes the focus, and what has run when it is over.
TEST_F(FocusTest, QuestionComesOnceAndBeforeWhatTookTheFocus) {
    struct Row {
        const char* name;
        std::function<void()> act;
        const char* expected = "LostFocus, Yes";
    };
    const Row rows[] = {
        {"Tab", [&] { key(*form.first, Qt::Key_Tab); }},
        {"click on another box", [&] { click(*form.second); }},
        {"click on a button", [&] { click(*form.button); }, "LostFocus, Yes, Click"},
        {"click on a row", [&] { clickRow(*form.list, 1); }},
        {"pick in a list", [&] { pickInList(*form.choice, "two"); }, "LostFocus, Yes, pick two"},
        {"disabled by code", [&] { form.first->setEnabled(false); }},
        {"another window", [&] { clickIn(other, *other.second); }},
        {"a button there", [&] { clickIn(other, *other.button); }, "LostFocus, Yes, other's Click"},
        {"another window, and another box on the way back",
         [&] {
             other.Show();
             waitFor([&] { return log == "LostFocus, Yes"; });
             form.second->setFocus();
             form.Show();
         }},
        {"message box",
         [&] {
             whenModal([](QWidget& box) { key(box, Qt::Key_Escape); });
             boxes.box("Item Saved", "");
         },
         ""},
        {"the help window",
         [&] {
             other.setAuxiliary(true);
             other.window().activateWindow();
             settle();
             form.Show();
             other.setAuxiliary(false);
         },
         ""},
        {"modal form",
         [&] {
             other.Unload();
             whenModal([&](QWidget& top) { closeBox(top); });
             run([&] { other.ShowModal(); });
         },
         ""},
        {"menu bar",
         [&] {
             key(*form.first, Qt::Key_F, Qt::AltModifier);
             QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
             QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
         },
         ""},
        {"focus away and back within a handler",
         [&] {
             run([&] {
                 form.first->clearFocus();
                 form.first->setFocus();
             });
         },
         ""},
        {"unloaded by the handler that moved the focus",
         [&] {
             run([&] {
                 form.second->setFocus();
                 form.Unload();
             });
         },
         ""},
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

TEST_F(FocusTest, WaitsWhileAButtonIsDownAListOpenOrAModalWindowAbove) {
    asks = false;
    QWindow* const window = form.window().windowHandle();
    const QPoint place = form.button->mapTo(&form.window(), form.button->rect().center());
    const auto lookAgain = [&] {
        int looks = 0;
        QObject scope;
        for (auto* timer : program.focusWatcher().findChildren<QTimer*>())
            QObject::connect(timer, &QTimer::timeout, &scope, [&] { ++looks; });
        EXPECT_TRUE(waitFor([&] { return looks == 3; }));
        EXPECT_EQ(log, "");
    };
    QTest::mousePress(window, Qt::LeftButton, {}, place);
    lookAgain();
    QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    EXPECT_EQ(log, "LostFocus, Click");

    form.first->setFocus();
    log.clear();
    click(*form.choice);
    lookAgain();
    form.choice->hidePopup();
    EXPECT_TRUE(waitFor([&] { return log == "LostFocus"; }));

    form.first->setFocus();
    EXPECT_TRUE(atRest());
    log.clear();
    whenModal([&](QWidget& top) {
        lookAgain();
        closeBox(top);
    });
    run([&] {
        form.second->setFocus();
        other.ShowModal();
    });
    EXPECT_TRUE(waitFor([&] { return log == "LostFocus"; }));
}

TEST_F(FocusTest, AButtonOfAWindowThatTheQuestionHasUnloadedDoesNotAct) {
    asks = false;
    whileFailureShows = [&] { EXPECT_EQ(log, ""); };
    for (const bool fails : {false, true}) {
        const RuntimeFailure ended = endOf([&] {
            watch(form.second, [&] { fails ? fail(Failure::Subscript) : form.Unload(); });
            form.second->setFocus();
            EXPECT_TRUE(atRest());
            log.clear();
            click(*form.button);
            EXPECT_EQ(log, "");
            EXPECT_FALSE(form.loaded());
        });
        EXPECT_EQ(ended.number(), fails ? 9 : wentOn);
    }
}

// Inside a handler nothing comes between its steps; the two losses come after it, in order.
TEST_F(FocusTest, WaitsForTheHandlerThatMovedTheFocus) {
    asks = false;
    watch(form.second, [&] { note("LostFocus 2"); });
    on(form, form.first, &TextBox::textChanged, [&] { note("Change"); });
    run([&] {
        form.second->setFocus();
        form.list->setFocus();
        form.first->setText("5");
        note("done");
    });
    EXPECT_TRUE(atRest());
    EXPECT_EQ(log, "Change, done, LostFocus, LostFocus 2");
}

}  // namespace
}  // namespace torvane
