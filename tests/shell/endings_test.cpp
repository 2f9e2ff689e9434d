// A failure that ends the program for real, and two programs on one folder.

#include <unistd.h>

#include <QProcess>
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

TEST(EndedProgram, ShowsTheBoxAndIsGoneWithStatus1) {
    const struct {
        const char* act;
        const char* lost;  // a file that is missing
        std::string box;   // the modal windows below it, and how it begins and ends; the folder's path stands for $
        std::string ends;
    } rows[] = {
        {"start", "Larkfen.mdb", "0 Run-time error 14||unable to open database file||", "||Refused: $/Larkfen.mdb\n"},
        {"customer", "Sample.bak", "1 Run-time error 1||near \"Hara\": syntax error||", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.lost);
        DataFolder data;
        data.useSample();
        fs::copy_file(TORVANE_CHARACTER, data.path() + "/Merlin.ACS");
        fs::copy_file(TORVANE_ENDING_PROGRAM, data.path() + "/torvane");
        fs::remove(data.path() + "/" + row.lost);
        const Texts left = filesIn(data.path());
        QProcess program;
        program.start(qstring(data.path() + "/torvane"), {row.act});
        ASSERT_TRUE(program.waitForFinished(60000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 1) << program.readAllStandardError().toStdString();
        const QString report = QString::fromUtf8(program.readAllStandardOutput());
        EXPECT_TRUE(report.startsWith(qstring("RuntimeErrorBox " + row.box))) << qPrintable(report);
        EXPECT_TRUE(report.endsWith(qstring(row.ends).replace('$', qstring(data.path())))) << qPrintable(report);
        EXPECT_EQ(report.count('\n'), 1) << "one box";
        EXPECT_EQ(filesIn(data.path()), left) << "neither a new file nor a journal";
    }
}

TEST(FolderLockTest, SeesAnotherCopyOnTheSameFolderAsLongAsItLives) {
    const DataFolder data;
    const DataFolder other;
    const auto taken = [](const std::string& folder) { return FolderLock(folder).previousInstance(); };
    {
        const FolderLock first(data.path());
        EXPECT_FALSE(first.previousInstance());
        EXPECT_TRUE(taken(data.path() + "/../" + fs::path(data.path()).filename().string()));
        EXPECT_FALSE(taken(other.path()));
    }
    EXPECT_FALSE(taken(data.path())) << "after the first has gone";
    Child holder([&](auto say) {
        const FolderLock lock(data.path());
        say(lock.previousInstance() ? 'y' : 'n');
        for (;;) pause();
    });
    ASSERT_EQ(holder.heard(), 'n');
    EXPECT_TRUE(taken(data.path()));
    holder.kill();
    EXPECT_FALSE(taken(data.path())) << "after the first was killed";
    EXPECT_EQ(filesIn(data.path()), Texts{});
    EXPECT_FALSE(taken(data.path() + "/nowhere"));
}

}  // namespace
}  // namespace torvane
