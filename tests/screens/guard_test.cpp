#include <sqlite3.h>

#include <QTimer>
#include <filesystem>

#include "screens/dialogs.h"
#include "screens/probe.h"

namespace torvane {
namespace {

class GuardTest : public ProbeTest {
protected:
    Probe form{program, "frmForm"};
};

TEST_F(GuardTest, NothingRunsWhileTheFailureIsShown) {
    QTimer ticks;
    form.whenLoaded = [&] {
        on(form, &ticks, &QTimer::timeout, [&] { note("tick"); });
        on(form, form.first, &TextBox::textChanged, [&] { note("Change"); });
        on(form, form.button, &QPushButton::clicked, [&] { fail(Failure::TypeMismatch, "12a"); });
        program.focusWatcher().watch(form, form.second, [&] { note("LostFocus"); });
    };
    form.Show();
    form.second->setFocus();
    ticks.start(1);
    ASSERT_TRUE(waitFor([&] { return !log.empty(); }));
    whileFailureShows = [&] {
        log.clear();
        form.first->setText("x");
        form.first->setFocus();
        click(*form.button);
        program.guard().end(RuntimeFailure{2, "second box"});
        EXPECT_EQ(log, "");
    };
    EXPECT_EQ(endOf([&] { form.button->click(); }).refused(), "12a");
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
    EXPECT_EQ(sqlite3_exec(raw, "insert into Units select * from Units", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_changes(raw), 1);
    sqlite3_close(raw);
}

TEST_F(GuardTest, TheBoxTellsOfThisFailureAndOfNoneThatWasCaughtBefore) {
    run([&] {
        try {
            const Program::Doing doing(program, "opening the help");
            fail(Failure::FileNotFound);
        } catch (const RuntimeFailure&) {
            // Said in a box, and over.
        }
    });
    const RuntimeFailure failure = endOf([&] { run([] { throw std::runtime_error("out of <b>paper"); }); });
    EXPECT_EQ(
        utf8(errorBoxText(failure)),
        "Run-time error 0\n\nout of <b>paper\n\nThe program met something that it cannot work with, and has to end "
        "now; what was saved before stays.");
    EXPECT_LT(errorBoxText({1, "too long", std::string(100000, 'x')}).size(), 1000);
}

}  // namespace
}  // namespace torvane
