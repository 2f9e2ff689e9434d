// Endings of every kind: a process that is killed, and a failure that ends the program for real.

#include <unistd.h>

#include <QProcess>
#include <algorithm>
#include <filesystem>

#include "estimates/cls_order.h"
#include "shell/folder_lock.h"
#include "support/child.h"
#include "support/data_folder.h"
#include "support/files.h"
#include "support/record_test.h"
#include "support/screen_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// --- Killed while saving ---------------------------------------------------------------------------------------------

struct Mode : EstimateScreen {
    std::string mode;
    const std::string& estimateMode() const override { return mode; }
    void showEstimate() override {}
};

class KilledSaveTest : public RecordTest, public ::testing::WithParamInterface<const char*> {
protected:
    static constexpr int number = 77;

    KilledSaveTest() {
        folder.useEmpty();
        folder.execute(
            "insert into OrderInfo (OrderNo, CustId, OrderDate, Amount, Notes) values (76, 1, '2003-07-04', 1, "
            "'other');"
            "insert into OrderItem (OrderNo, ItemId, Qty) values (76, 1, 1)");
        if (std::string_view(GetParam()) == "E")
            folder.execute(
                "insert into OrderInfo (OrderNo, CustId, OrderDate, Amount, Notes) values (77, 1, '2003-07-04', 2, "
                "'before');"
                "insert into OrderItem (OrderNo, ItemId, Qty) values (77, 1, 2), (77, 2, 3)");
        fs::copy_file(folder.database(), before_);
    }
    ~KilledSaveTest() override { fs::remove(before_); }

    // Saves 1,000 lines by a store of its own.
    template <class Begun>
    void save(Begun begun) {
        Store own;
        Mode screen;
        screen.mode = GetParam();
        ClsOrder order(Environment{host, own}, screen);
        order.OrderNo = number;
        order.CustId = 9;
        order.Amount = 1000;
        order.OrderDate = {2024, 3, 15};
        order.Notes = "after";
        for (int line = 1; line <= 1000; ++line)
            order.ColnOrderItems().Add(std::int64_t{line}, line * 0.5, line * 1.25, std::int64_t{1}, std::int64_t{2},
                                       0.5, 1.5, 2.5);
        begun();
        order.Save();
    }
    void putBack() const {
        fs::remove(folder.database() + "-journal");
        fs::copy_file(before_, folder.database(), fs::copy_options::overwrite_existing);
    }
    // Both estimates, by the engine itself, which plays an interrupted write back.
    std::string content() const {
        std::string all;
        for (const auto& row : folder.rows(
                 "select OrderNo, CustId, Amount, Notes, (select count(*) || '/' || sum(Qty) || '/' || count(distinct "
                 "ItemId) from OrderItem where OrderItem.OrderNo = OrderInfo.OrderNo) from OrderInfo"))
            all += row + ";";
        return all + folder.cell("select count(*) from OrderItem") + ";" + folder.cell("pragma integrity_check");
    }

private:
    std::string before_ = folder.path() + ".before";
};

TEST_P(KilledSaveTest, LeavesTheEstimateAsItWasOrAsItIsToBe) {
    const bool adding = std::string_view(GetParam()) == "A";
    const std::string other = "76|1|1.0|other|1/1.0/1;";
    const std::string before = other + (adding ? "1;ok" : "77|1|2.0|before|2/5.0/2;3;ok");
    const std::string after = other + "77|9|1000.0|after|1000/250250.0/1000;1001;ok";
    ASSERT_EQ(content(), before);

    constexpr int points = 60;
    int asBefore = 0;
    killAtPoints(
        points, [&] { putBack(); }, [&](auto begun) { save(begun); },
        [&](int point) {
            const std::string now = content();
            EXPECT_TRUE(now == after || (now == before && point < points))
                << "killed at point " << point << ": " << now;
            asBefore += now == before;
        });
    EXPECT_GT(asBefore, 0) << "none was killed before its end";
}

INSTANTIATE_TEST_SUITE_P(Modes, KilledSaveTest, ::testing::Values("A", "E"),
                         [](const auto& mode) { return std::string(mode.param); });

// --- Ended by a failure ----------------------------------------------------------------------------------------------

struct Ending {
    const char* name;
    const char* act;
    void (*prepare)(const DataFolder&);
    std::string box;  // what the report of the box begins with; the folder's path stands for $
    std::string mentions;
    const char* statement = "pragma integrity_check";  // a select for what the database holds then, and its cell
    const char* cell = "ok";
};
void PrintTo(const Ending& row, std::ostream* out) {
    *out << row.name;
}

class EndedProgramTest : public ::testing::TestWithParam<Ending> {};

TEST_P(EndedProgramTest, ShowsTheBoxAndIsGoneWithStatus1) {
    const Ending& row = GetParam();
    DataFolder data;
    data.useSample();
    fs::copy_file(TORVANE_CHARACTER, data.path() + "/Merlin.ACS");
    fs::copy_file(TORVANE_ENDING_PROGRAM, data.path() + "/torvane");
    row.prepare(data);
    const Texts left = filesIn(data.path());

    QProcess program;
    program.setProcessChannelMode(QProcess::SeparateChannels);
    program.start(qstring(data.path() + "/torvane"), {row.act});
    ASSERT_TRUE(program.waitForFinished(60000)) << program.readAllStandardError().toStdString();
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1) << program.readAllStandardError().toStdString();
    const std::string report = program.readAllStandardOutput().toStdString();
    const auto inFolder = [&](std::string text) {
        if (const auto mark = text.find('$'); mark != std::string::npos) text.replace(mark, 1, data.path());
        return text;
    };
    EXPECT_TRUE(report.starts_with("RuntimeErrorBox " + inFolder(row.box))) << report;
    EXPECT_NE(report.find(inFolder(row.mentions)), std::string::npos) << report;
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 1) << "one box: " << report;
    EXPECT_EQ(filesIn(data.path()), left) << "neither a new file nor a journal";
    if (!fs::exists(data.database())) return;
    EXPECT_EQ(data.cell("pragma integrity_check"), "ok");
    EXPECT_EQ(data.cell(row.statement), row.cell);
}

INSTANTIATE_TEST_SUITE_P(
    Program, EndedProgramTest,
    ::testing::Values(
        Ending{"missingDatabase", "start", [](const DataFolder& data) { fs::remove(data.database()); },
               "0 Run-time error 14||unable to open database file||", "||Refused: $/Larkfen.mdb"},
        Ending{"missingCharacter", "start", [](const DataFolder& data) { fs::remove(data.path() + "/Merlin.ACS"); },
               "0 Run-time error 53||", "$/Merlin.ACS"},
        Ending{"apostropheInACustomersName", "customer", [](const DataFolder&) {},
               "1 Run-time error 1||near \"Hara\": syntax error||",
               "||Refused: Select * from Customer where CustName ='O'Hara'",
               "select count(*) from Customer where CustName like 'O%Hara'", "0"},
        // The lines were deleted by the statement before the one that failed.
        Ending{"apostropheInTheNotes", "estimate",
               [](const DataFolder& data) { data.execute("delete from OrderInfo where OrderNo <> 2"); },
               "0 Run-time error 1||near \"s\": syntax error||", "||Refused: Update OrderInfo Set CustId = ",
               "select (select count(*) from OrderItem where OrderNo = 2) || ' ' || (select count(*) from OrderInfo "
               "where Notes like '%Ann%')",
               "0 0"}),
    [](const auto& one) { return std::string(one.param.name); });

// --- Two copies on one folder ----------------------------------------------------------------------------------------

TEST(FolderLockTest, SeesAnotherCopyOnTheSameFolderAsLongAsItLives) {
    const DataFolder data;
    const DataFolder other;
    {
        const FolderLock first(data.path());
        EXPECT_FALSE(first.previousInstance());
        EXPECT_TRUE(FolderLock(data.path()).previousInstance());
        EXPECT_TRUE(FolderLock(data.path() + "/../" + fs::path(data.path()).filename().string()).previousInstance());
        EXPECT_FALSE(FolderLock(other.path()).previousInstance());
        Child child([&](auto say) { say(FolderLock(data.path()).previousInstance() ? 'y' : 'n'); });
        EXPECT_EQ(child.heard(), 'y') << "from another process";
    }
    EXPECT_FALSE(FolderLock(data.path()).previousInstance()) << "after the first has gone";

    Child holder([&](auto say) {
        const FolderLock lock(data.path());
        say(lock.previousInstance() ? 'y' : 'n');
        for (;;) pause();
    });
    ASSERT_EQ(holder.heard(), 'n');
    EXPECT_TRUE(FolderLock(data.path()).previousInstance());
    EXPECT_FALSE(FolderLock(other.path()).previousInstance());
    holder.kill();
    EXPECT_FALSE(FolderLock(data.path()).previousInstance()) << "after the first was killed";
    EXPECT_EQ(filesIn(data.path()), Texts{});
    EXPECT_FALSE(FolderLock(data.path() + "/nowhere").previousInstance());
}

}  // namespace
}  // namespace torvane
