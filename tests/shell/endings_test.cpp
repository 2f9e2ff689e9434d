// A failure that ends the program for real, and two programs on one folder.

#include <unistd.h>

#include <QProcess>
#include <algorithm>
#include <filesystem>

#include "shell/folder_lock.h"
#include "support/child.h"
#include "support/data_folder.h"
#include "support/files.h"
#include "support/screen_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

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
