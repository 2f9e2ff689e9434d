// Endings of every kind: a process that is killed, a failure that ends the program for real, and copies that break off.

#include <sys/wait.h>
#include <unistd.h>

#include <QProcess>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "datastore/file_copy.h"
#include "estimates/cls_order.h"
#include "shell/backup.h"
#include "shell/folder_lock.h"
#include "support/data_folder.h"
#include "support/record_test.h"
#include "support/screen_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;
using std::chrono::microseconds;

std::string bytes(const std::string& file) {
    std::ostringstream all;
    all << std::ifstream(file, std::ios::binary).rdbuf();
    return all.str();
}

void write(const std::string& file, std::string_view content) {
    std::ofstream(file, std::ios::binary) << content;
}

Texts filesIn(const std::string& folder) {
    Texts names;
    for (const auto& one : fs::directory_iterator(folder)) names.push_back(one.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// A process that has this one's memory; it tells by signs how far it is, and is killed with the object.
class Child {
public:
    // `work` may call say() with signs; it must use neither windows nor the test's own files. The process waits for its
    // end afterwards.
    template <class Work>
    explicit Child(Work work) {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        id_ = fork();
        if (id_ == 0) {
            const auto say = [&](char sign) {
                if (::write(ends[1], &sign, 1) != 1) _exit(2);
            };
            try {
                work(say);
            } catch (const std::exception& failure) {
                std::fprintf(stderr, "the child met: %s\n", failure.what());
                _exit(1);
            }
            for (;;) pause();
        }
        ::close(ends[1]);
        output_ = ends[0];
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        if (id_ > 0) kill();
        ::close(output_);
    }
    // The next sign; 0 when the process has ended without one.
    char heard() const {
        char sign = 0;
        return ::read(output_, &sign, 1) == 1 ? sign : '\0';
    }
    void kill() {
        ::kill(id_, SIGKILL);
        int status = 0;
        EXPECT_EQ(waitpid(id_, &status, 0), id_);
        EXPECT_TRUE(WIFSIGNALED(status)) << "ended before it was killed";
        id_ = -1;
    }

private:
    pid_t id_ = -1;
    int output_ = -1;
};

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

    // Saves 1,000 lines in a process that is killed `time` after it has begun, or once it is done.
    void killedAfter(std::optional<microseconds> time) {
        Child child([&](auto say) {
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
                order.ColnOrderItems().Add(std::int64_t{line}, line * 0.5, line * 1.25, std::int64_t{1},
                                           std::int64_t{2}, 0.5, 1.5, 2.5);
            say('b');
            order.Save();
            say('e');
        });
        ASSERT_EQ(child.heard(), 'b');
        if (time)
            std::this_thread::sleep_for(*time);
        else
            ASSERT_EQ(child.heard(), 'e');
        child.kill();
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
    const auto start = std::chrono::steady_clock::now();
    killedAfter(std::nullopt);
    const auto whole = std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now() - start);
    EXPECT_EQ(content(), after);

    constexpr int points = 60;
    int asBefore = 0;
    for (int point = 0; point < points; ++point) {
        putBack();
        killedAfter(whole * point / points);
        const std::string now = content();
        EXPECT_TRUE(now == before || now == after) << "killed at point " << point << ": " << now;
        asBefore += now == before;
    }
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
        Ending{"apostropheInASearch", "search", [](const DataFolder&) {}, "1 Run-time error 1||",
               "||Refused: SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like 'O'%'"},
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

// --- Copies that break off -------------------------------------------------------------------------------------------

// Fails at one call, or at that one and all that follow, as a disk that has gone. A write that fails has written half.
class BreakingFiles : public FileSystem {
public:
    BreakingFiles(int failing, bool forGood) : failing_(failing), forGood_(forGood) {}

    int openToRead(const std::string& name) override { return breaks() ? -1 : FileSystem::openToRead(name); }
    int openToWrite(const std::string& name) override { return breaks() ? -1 : FileSystem::openToWrite(name); }
    long read(int file, char* into, std::size_t count) override {
        return breaks() ? -1 : FileSystem::read(file, into, count);
    }
    bool write(int file, const char* from, std::size_t count) override {
        if (!breaks()) return FileSystem::write(file, from, count);
        FileSystem::write(file, from, count / 2);
        return false;
    }
    bool sync(int file) override { return !breaks() && FileSystem::sync(file); }
    bool rename(const std::string& from, const std::string& to) override {
        return !breaks() && FileSystem::rename(from, to);
    }
    bool syncFolder(const std::string& name) override {
        flushingFolder_ = true;
        return !breaks() && FileSystem::syncFolder(name);
    }
    bool remove(const std::string& name) override { return !breaks() && FileSystem::remove(name); }

    bool broke() const { return calls_ >= failing_; }
    // The target has its new content already when only the flush of the folder fails.
    bool renamed() const { return flushingFolder_; }

private:
    bool breaks() {
        ++calls_;
        return calls_ == failing_ || (forGood_ && calls_ > failing_);
    }
    int failing_;
    bool forGood_;
    int calls_ = 0;
    bool flushingFolder_ = false;
};

// Runs `copy` with a failure at each call in turn, until one run meets none. `look` is told whether the target must be
// new, and whether all went well.
template <class Copy, class Look>
void breakEverywhere(Copy copy, Look look) {
    for (const bool forGood : {false, true}) {
        int failing = 0;
        for (bool broke = true; broke;) {
            BreakingFiles files(++failing, forGood);
            copy(files);
            broke = files.broke();
            SCOPED_TRACE("call " + std::to_string(failing) + (forGood ? " and all that follow" : ""));
            look(files.renamed(), !broke, forGood);
            ASSERT_LT(failing, 100);
        }
        EXPECT_GT(failing, 8) << "open, open, read, write, read, sync, rename, sync of the folder";
    }
}

TEST(FileCopyTest, LeavesTheOldOrTheWholeNewFile) {
    const DataFolder data;
    const std::string from = data.path() + "/from";
    const std::string to = data.path() + "/to";
    std::string content;
    for (int i = 0; i < 30000; ++i) content += std::to_string(i);  // more than one piece
    write(from, content);
    const struct {
        const char* name;
        std::optional<std::string> before;
    } cases[] = {{"over a file", "old"}, {"over a longer file", content + content}, {"to a new file", std::nullopt}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        bool done = false;
        const auto copy = [&](FileSystem& files) {
            fs::remove(to);
            fs::remove(to + ".new");
            if (row.before) write(to, *row.before);
            done = copyFile(files, from, to);
        };
        breakEverywhere(copy, [&](bool renamed, bool well, bool forGood) {
            EXPECT_EQ(done, well);
            EXPECT_EQ(bytes(from), content);
            EXPECT_EQ(fs::exists(to), renamed || row.before.has_value());
            EXPECT_EQ(bytes(to), renamed ? content : row.before.value_or(""));
            // Only a disk that has gone can keep the half file.
            if (!forGood) {
                EXPECT_FALSE(fs::exists(to + ".new"));
            }
        });
    }
}

// Answers every box, and notes it.
class NotingHost : public TestHost {
public:
    using TestHost::TestHost;
    Answer box(std::string_view, std::string_view title, Buttons buttons) override {
        said.emplace_back(title);
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    Texts said;
};

class BreakingBackupTest : public ::testing::Test {
protected:
    BreakingBackupTest() {
        folder.useEmpty();
        fs::copy_file(folder.database(), other);
        folder.useSample();
        fs::copy_file(folder.database(), own);
        connection.open(connectionText(folder.path()));
    }
    // Customers in the database by a connection that has stood all the time, and by the engine itself.
    std::string byConnection() {
        Recordset rows;
        rows.open("select count(*) from Customer", connection);
        return textOf(rows.field(0));
    }
    std::string byEngine() const {
        EXPECT_EQ(folder.cell("pragma integrity_check"), "ok");
        return folder.cell("select count(*) from Customer");
    }

    DataFolder folder;
    std::string backup = folder.path() + "/mine.bak";
    std::string other = folder.path() + "/other.bak";
    std::string own = folder.path() + "/own.bak";
    NotingHost host{folder.path()};
    Store store;
    Environment environment{host, store};
    Connection connection{store};
};

TEST_F(BreakingBackupTest, BackupKeepsTheOlderOneAndSaysNothing) {
    const auto copy = [&](FileSystem& files) {
        fs::remove(backup + ".new");
        write(backup, "older");
        host.said.clear();
        host.answerSaveName(backup);
        takeBackup(environment, files);
    };
    breakEverywhere(copy, [&](bool renamed, bool well, bool) {
        EXPECT_EQ(host.said, well ? (Texts{"Take Backup", "Success"}) : Texts{"Take Backup"});
        EXPECT_TRUE(bytes(backup) == (renamed ? bytes(own) : "older"));
        EXPECT_TRUE(bytes(folder.database()) == bytes(own));
        EXPECT_EQ(byConnection(), byEngine());
    });
}

TEST_F(BreakingBackupTest, RestoreKeepsTheDatabaseAndSaysNothing) {
    const auto copy = [&](FileSystem& files) {
        fs::remove(folder.database() + ".new");
        fs::copy_file(own, folder.database(), fs::copy_options::overwrite_existing);
        EXPECT_NE(byConnection(), "0");
        host.said.clear();
        host.answerOpenName(other);
        restoreBackup(environment, files);
    };
    breakEverywhere(copy, [&](bool renamed, bool well, bool) {
        EXPECT_EQ(host.said, well ? Texts{"Success"} : Texts{});
        EXPECT_TRUE(bytes(folder.database()) == bytes(renamed ? other : own));
        EXPECT_EQ(byConnection(), byEngine());
        EXPECT_EQ(byEngine() == "0", renamed);
    });
}

}  // namespace
}  // namespace torvane
