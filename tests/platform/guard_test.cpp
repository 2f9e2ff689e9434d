#include <sqlite3.h>

#include <QTimer>
#include <filesystem>
#include <stdexcept>

#include "platform/error_box.h"
#include "platform/focus_watcher.h"
#include "platform/probe.h"
#include "support/screen_test.h"

namespace torvane {

namespace {

class GuardTest : public ScreenTest {
protected:
    Probe outer{program, "frmOuter"};
    Probe inner{program, "frmInner"};
    std::vector<std::string> log;
    void note(std::string text) { log.push_back(std::move(text)); }
};

TEST_F(GuardTest, HandlersTakeWhatTheyWantOfASignal) {
    outer.whenLoaded = [&] {
        on(outer, outer.first, &TextBox::textChanged, [&] { note("none"); });
        on(outer, outer.first, &TextBox::textChanged, [&](const QString& text) { note(utf8(text)); });
        on(outer, outer.list, &QTreeWidget::itemClicked, [&](QTreeWidgetItem* item) { note(utf8(item->text(1))); });
        on(outer, outer.button, &QPushButton::clicked, &Form::Unload);
    };
    outer.Show();
    outer.first->setText("x");
    clickRow(*outer.list, 2);
    click(*outer.button);
    EXPECT_EQ(log, (std::vector<std::string>{"none", "x", "Sand"}));
    EXPECT_FALSE(outer.loaded());
}

// A handler writes a box whose Change fails: it comes to a stop at the write. So does each operation that may have run
// handlers, once the program has ended.
TEST_F(GuardTest, OuterHandlerStopsAtEveryDoor) {
    struct Row {
        const char* name;
        std::function<void(Program&, Probe&)> door;
    };
    const Row rows[] = {
        {"TextBox::setText", [](Program&, Probe& form) { form.first->setText("b"); }},
        {"DropList::select", [](Program&, Probe& form) { form.choice->select(1); }},
        {"DropList::selectItemData", [](Program&, Probe& form) { form.choice->selectItemData(3); }},
        {"DropList::fill", [](Program&, Probe& form) { form.choice->fill({}); }},
        {"DropList::Clear", [](Program&, Probe& form) { form.choice->Clear(); }},
        {"DropList::AddItem", [](Program&, Probe& form) { form.choice->AddItem("four", 4); }},
        {"DateBox::setValue",
         [](Program&, Probe& form) {
             form.date->setValue({2020, 2, 29});
         }},
        {"ReportList::ClearRows", [](Program&, Probe& form) { form.list->ClearRows(); }},
        {"ReportList::AddRow", [](Program&, Probe& form) { form.list->AddRow({"1"}); }},
        {"ReportList::RemoveRow", [](Program&, Probe& form) { form.list->RemoveRow(0); }},
        {"ReportList::selectRow", [](Program&, Probe& form) { form.list->selectRow(2); }},
        {"Load", [](Program&, Probe& form) { form.Load(); }},
        {"Show", [](Program&, Probe& form) { form.Show(); }},
        {"ShowModal", [](Program&, Probe& form) { form.ShowModal(); }},
        {"Unload", [](Program&, Probe& form) { form.Unload(); }},
        {"say", [](Program& own, Probe&) { own.say("never asked", ""); }},
        {"confirm", [](Program& own, Probe&) { own.confirm("never asked", ""); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        TestHost quiet;
        Program own(Environment{quiet, store}, [](int) {});
        own.setErrorBox([](const RuntimeFailure&) {});
        Probe form(own, "frmProbe");
        form.whenLoaded = [&] { on(form, form.second, &TextBox::textChanged, [] { fail(Failure::TypeMismatch); }); };
        form.Load();
        std::vector<std::string> reached;
        own.guarded([&] {
            try {
                form.second->setText("a");
            } catch (const Ended&) {
                reached.push_back("stopped at the write");
            }
            row.door(own, form);
            reached.push_back("ran on");
        });
        EXPECT_TRUE(own.ended());
        EXPECT_EQ(reached, std::vector<std::string>{"stopped at the write"});
    }
}

TEST_F(GuardTest, FailureTwoModalFormsDeepLeavesThemAll) {
    outer.whenLoaded = [&] {
        on(outer, outer.button, &QPushButton::clicked, [&] {
            inner.ShowModal();
            note("after the inner form");
        });
    };
    inner.whenLoaded = [&] { on(inner, inner.button, &QPushButton::clicked, [&] { inner.list->Cell(-1, 0); }); };
    whenModal([&](QWidget&) {
        whenModal([&](QWidget&) { click(*inner.button); });
        click(*outer.button);
    });
    run([&] {
        outer.ShowModal();
        note("after the outer form");
    });
    EXPECT_EQ(takeFailureNumber(), 9);
    EXPECT_EQ(endStatus, std::vector{1});
    EXPECT_TRUE(log.empty());
    closeBox(outer.window());  // nothing of the screen runs any more
    EXPECT_EQ(outer.unloads, 0);
    EXPECT_FALSE(outer.window().isVisible());
}

TEST_F(GuardTest, NothingRunsWhileTheFailureIsShown) {
    QTimer ticks;
    outer.whenLoaded = [&] {
        on(outer, &ticks, &QTimer::timeout, [&] { note("tick"); });
        on(outer, outer.first, &TextBox::textChanged, [&] { note("Change"); });
        on(outer, outer.button, &QPushButton::clicked, [&] {
            program.guarded([] { throw RuntimeFailure(1, "near \"'\": syntax error", "insert into Item"); });
            note("ran on");  // no door was passed
        });
        program.focusWatcher().watch(outer, outer.second, [&] { note("LostFocus"); });
    };
    program.setErrorBox([&](const RuntimeFailure& failure) {
        note(std::to_string(failure.number()) + " " + failure.text() + " " + failure.refused());
        outer.first->QLineEdit::setText("x");
        outer.first->setFocus();
        click(*outer.button);
        waitFor([] { return false; }, 30);
        program.end(RuntimeFailure{2, "second box"});
    });
    outer.Show();
    outer.second->setFocus();
    ticks.start(1);
    ASSERT_TRUE(waitFor([&] { return !log.empty(); }));
    ticks.stop();
    settle();
    log.clear();
    ticks.start(1);
    outer.button->click();
    EXPECT_EQ(log, (std::vector<std::string>{"1 near \"'\": syntax error insert into Item", "ran on"}));
    EXPECT_EQ(endStatus, std::vector{1});
}

// What was executed stays: the group that the handler has open is on the disk when the process leaves.
TEST_F(GuardTest, OpenGroupIsCommittedBetweenTheBoxAndTheEnd) {
    const std::string file = host.folder + "/Larkfen.mdb";
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &raw), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(raw, "create table Units (Id integer, Name text)", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(raw);
    const auto group = [&] { return std::filesystem::exists(file + "-journal") ? "group open" : "group committed"; };
    Program own(Environment{host, store}, [&](int) { note(std::string("end, ") + group()); });
    own.setErrorBox([&](const RuntimeFailure&) { note(std::string("box, ") + group()); });
    Connection connection({host, store});
    own.guarded([&] {
        grouped(connection, [&] {
            connection.execute("insert into Units values (3, 'yard')");
            own.guarded([] { fail(Failure::TypeMismatch); });
            own.check();
        });
    });
    EXPECT_EQ(log, (std::vector<std::string>{"box, group open", "end, group committed"}));
}

TEST_F(GuardTest, AnyExceptionEndsTheProgram) {
    run([] { throw std::runtime_error("out of paper"); });
    const auto failure = takeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 0);
    EXPECT_EQ(failure->text(), "out of paper");
}

TEST_F(GuardTest, FailureOfFormUnloadKeepsTheWindow) {
    outer.whenUnloaded = [] { fail(Failure::Overflow); };
    outer.Show();
    closeBox(outer.window());
    EXPECT_EQ(takeFailureNumber(), 6);
    EXPECT_TRUE(outer.loaded());
}

TEST(ErrorBox, SaysNumberTextAndWhatWasRefused) {
    const QString plain = errorBoxText(RuntimeFailure{94, "Null where a value is needed"});
    EXPECT_TRUE(plain.startsWith("Run-time error 94\n\nNull where a value is needed\n\n")) << utf8(plain);
    EXPECT_FALSE(plain.contains("Refused"));
    EXPECT_TRUE(errorBoxText({13, "Type mismatch", "12 <b>x"}).endsWith("\n\nRefused: 12 <b>x"));
    EXPECT_LT(errorBoxText({1, "too long", std::string(100000, 'x')}).size(), 1000);
}

}  // namespace

}  // namespace torvane
