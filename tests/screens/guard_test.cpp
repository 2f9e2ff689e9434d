#include <sqlite3.h>

#include <QTimer>
#include <filesystem>
#include <stdexcept>

#include "screens/error_box.h"
#include "screens/focus_watcher.h"
#include "screens/probe.h"
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

TEST_F(GuardTest, NothingRunsWhileTheFailureIsShown) {
    QTimer ticks;
    outer.whenLoaded = [&] {
        on(outer, &ticks, &QTimer::timeout, [&] { note("tick"); });
        on(outer, outer.first, &TextBox::textChanged, [&] { note("Change"); });
        on(outer, outer.button, &QPushButton::clicked, [&] { fail(Failure::TypeMismatch, "12a"); });
        program.focusWatcher().watch(outer, outer.second, [&] { note("LostFocus"); });
    };
    outer.Show();
    outer.second->setFocus();
    ticks.start(1);
    ASSERT_TRUE(waitFor([&] { return !log.empty(); }));
    bool shown = false;
    whileFailureShows = [&] {
        EXPECT_FALSE(std::exchange(shown, true));
        log.clear();
        outer.first->setText("x");
        outer.first->setFocus();
        click(*outer.button);
        settle();
        program.guard().end(RuntimeFailure{2, "second box"});
        EXPECT_TRUE(log.empty());
    };
    endOf([&] { outer.button->click(); });
}

// What was executed stays: the group that the handler has open is on the disk when the process leaves.
TEST_F(GuardTest, OpenGroupIsCommittedBetweenTheBoxAndTheEnd) {
    const std::string file = host.folder + "/Larkfen.mdb";
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &raw), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(raw, "create table Units (Id integer, Name text)", nullptr, nullptr, nullptr), SQLITE_OK);
    whileFailureShows = [&] { EXPECT_TRUE(std::filesystem::exists(file + "-journal")); };
    endOf([&] {
        Connection connection({host, store});
        run([&] {
            grouped(connection, [&] {
                connection.execute("insert into Units values (3, 'yard')");
                program.guarded([] { fail(Failure::TypeMismatch); });
            });
        });
    });
    EXPECT_FALSE(std::filesystem::exists(file + "-journal"));
    EXPECT_EQ(sqlite3_exec(raw, "insert into Units select * from Units", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_changes(raw), 1);
    sqlite3_close(raw);
}

TEST_F(GuardTest, AnyExceptionEndsTheProgram) {
    run([&] {
        try {
            const Program::Doing doing(program, "opening the help");
            fail(Failure::FileNotFound);
        } catch (const RuntimeFailure&) {
            // Said in a box, and over.
        }
    });
    const RuntimeFailure failure = endOf([&] { run([] { throw std::runtime_error("out of paper"); }); });
    EXPECT_EQ(failure.during(), "");
    EXPECT_EQ(failure.number(), 0);
    EXPECT_EQ(failure.text(), "out of paper");
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
