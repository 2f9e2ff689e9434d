// Backup and restore over open screens, and the printed proposal.

#include <QProcess>
#include <algorithm>
#include <filesystem>

#include "journeys/journey.h"
#include "support/files.h"
#include "widgets/text_area.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class FilesTest : public JourneyTest {
protected:
    std::string file(std::string_view name) const { return data.path() + "/" + std::string(name); }
    Texts filesThere() const { return filesIn(data.path()); }
    void backUp(std::optional<std::string> name, const std::vector<TestHost::Box>& boxes = {}) {
        host.answerSaveName(std::move(name));
        for (const TestHost::Box& box : boxes) host.expect(box);
        choose("mnuExport");
        host.verify();
    }
    void restore(std::optional<std::string> name, const std::vector<TestHost::Box>& boxes = {}) {
        host.answerOpenName(std::move(name));
        for (const TestHost::Box& box : boxes) host.expect(box);
        choose("mnuImport");
        host.verify();
    }
    const TestHost::Box exported = ok("Data File Exported", "Success");
    const TestHost::Box imported = ok("Data File Imported", "Success");
    const TestHost::Box keepFile = no("File already Exists. Overwrite it?", "Take Backup");
    const TestHost::Box overwrite = yes("File already Exists. Overwrite it?", "Take Backup");
};

TEST_F(FilesTest, BackupIsAskedForAndWritten) {
    start();
    write(file("old.bak"), "old");
    fs::create_directory(file("folder.bak"));
    write(file("elsewhere"), "old");
    fs::create_symlink("elsewhere", file("link.bak"));
    write(file("mine.bak.new"), "the user's own");
    const std::string database = bytes(data.database());
    struct Row {
        std::optional<std::string> name;
        std::vector<TestHost::Box> boxes;
        bool written;
    };
    for (const Row& row : {Row{std::nullopt, {}, false}, Row{file("old.bak"), {keepFile}, false},
                           Row{file("nowhere/x.bak"), {}, false}, Row{file("folder.bak"), {}, false},
                           Row{file("old"), {keepFile}, false}, Row{file("old"), {overwrite, exported}, true}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        backUp(row.name, row.boxes);
        EXPECT_EQ(bytes(file("old.bak")), row.written ? database : "old");
    }
    backUp(file("mine"), {exported});
    backUp(file("upper.BAK"), {exported});
    backUp(data.database(), {exported});
    backUp(file("link.bak"), {overwrite, exported});
    for (const char* name : {"mine.bak", "upper.BAK.bak", "Larkfen.mdb.bak", "elsewhere", "Larkfen.mdb"})
        EXPECT_TRUE(bytes(file(name)) == database) << name;
    EXPECT_EQ(bytes(file("mine.bak.new")), "the user's own");
    EXPECT_TRUE(fs::is_symlink(file("link.bak")));
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "Larkfen.mdb.bak", "elsewhere", "folder.bak", "link.bak", "mine.bak",
                                   "mine.bak.new", "old.bak", "upper.BAK.bak"}));
    fs::remove(data.database());
    backUp(file("mine"), {overwrite});
    EXPECT_TRUE(bytes(file("mine.bak")) == database) << "there was nothing to copy";
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"Larkfen.bak", "Backup (*.bak)"}));
}

TEST_F(FilesTest, RestoreTakesOnlyABackupThatIsThere) {
    start();
    write(file("data.BAK"), "x");
    fs::create_directory(file("folder.bak"));
    const std::string database = bytes(data.database());
    const TestHost::Box noBackup = ok("Not a Backup of database file", "Error while importing");
    const TestHost::Box notFound = ok("File not found.", "File Import");
    struct Row {
        std::optional<std::string> name;
        std::vector<TestHost::Box> boxes;
    };
    for (const Row& row : {Row{std::nullopt, {}}, Row{file("data.BAK"), {noBackup}}, Row{file("x.txt"), {noBackup}},
                           Row{file("none.bak"), {notFound}}, Row{file("folder.bak"), {notFound}}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        restore(row.name, row.boxes);
        EXPECT_EQ(bytes(data.database()), database);
    }
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"", "Backup (*.bak)"}));
}

TEST_F(FilesTest, RestoreUnderOpenScreens) {
    QWidget& order = openEstimate("E", 3);
    choose("SubMnuEditItem");
    choose("mnuEditEstimate");
    choose("mnuBlank");
    QWidget* const lists[] = {&customers("E"), &screens->item.window(), &screens->orders.window()};
    QWidget& notes = screens->blank.window();
    // How many of the lists show what was changed after the backup.
    const auto showNow = [&] {
        return std::ranges::count_if(lists, [](QWidget* window) {
            return std::ranges::any_of(rows(*window), [](const std::string& row) { return row.find("Now") + 1 > 0; });
        });
    };
    const auto readAgain = [&] {
        for (QWidget* window : lists) go(*window, "CmdAll");
    };
    backUp(file("then.bak"), {exported});
    const std::string then = bytes(data.database());
    data.execute("update Customer set CustName = 'Ann Now' where CustId = 7; update Item set Itemname = 'Now'");
    readAgain();
    EXPECT_EQ(showNow(), 3);

    restore(file("then.bak"), {imported});
    EXPECT_TRUE(bytes(data.database()) == then);
    EXPECT_EQ(showNow(), 3) << "what has been read stays";
    readAgain();
    EXPECT_EQ(showNow(), 0);
    go(order, "txtNotes=in the restored file; CmdSave", {ok("Estimate Saved")});
    find<TextArea>(notes, "rtfNotes").setText("there, too");
    go(notes, "cmdOk");
    EXPECT_EQ(
        data.rows("select CustName, Notes, (select count(*) from OrderItem where OrderNo = 3), (select Notes from "
                  "BlankNotes) from OrderInfo natural join Customer where OrderNo = 3"),
        Texts{"Ann Lee|in the restored file|2|there, too"});
    EXPECT_EQ(data.cell("pragma integrity_check"), "ok");
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "then.bak"}));
}

// What a file named .bak may hold, and how the next query of an open list ends over it.
struct Restored {
    const char* name;
    std::optional<std::string> bytes;  // nothing: the delivered database
    const char* statements;            // carried out on it
    std::string ended;                 // "" when the list is read
};
void PrintTo(const Restored& row, std::ostream* out) {
    *out << row.name;
}

class RestoredTest : public FilesTest, public ::testing::WithParamInterface<Restored> {};

TEST_P(RestoredTest, IsWhatTheNextQueryMeets) {
    const Restored& row = GetParam();
    DataFolder other;
    other.useEmpty();
    if (row.bytes) write(other.database(), *row.bytes);
    if (*row.statements) other.execute(row.statements);
    QWidget& window = customers("E");
    fs::copy_file(other.database(), file("x.bak"));
    const std::string backup = bytes(file("x.bak"));

    restore(file("x.bak"), {imported});
    EXPECT_TRUE(bytes(data.database()) == backup);
    EXPECT_EQ(rows(window).size(), 2U) << "what has been read stays";
    if (row.ended.empty())
        go(window, "CmdAll");
    else
        EXPECT_EQ(endedBy([&] { go(window, "CmdAll"); }).substr(0, row.ended.size()), row.ended);
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "x.bak"}));
    EXPECT_TRUE(bytes(file("x.bak")) == backup);
    if (row.ended.empty()) {
        EXPECT_EQ(rows(window).size(), 1U);
        EXPECT_EQ(data.cell("pragma journal_mode"), "delete");
    } else {
        EXPECT_TRUE(bytes(data.database()) == backup) << "what can't be read is left alone";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, RestoredTest,
    ::testing::Values(
        Restored{"text", std::string(5000, 'j'), "", "26 "}, Restored{"nothing", "", "", "26 "},
        Restored{"aLetter", "j", "", "26 "},
        Restored{"aDatabaseOfAnotherProgram", "",
                 "pragma application_id = 7; pragma user_version = 900; create table Bookmark (Id)", "1 Select"},
        Restored{"anUnmarkedDatabase", std::nullopt,
                 "pragma application_id = 0; pragma user_version = 0; insert into Customer (CustName) values ('Z')",
                 ""},
        Restored{"aLogKeptDatabase", std::nullopt,
                 "pragma journal_mode = wal; insert into Customer (CustName) values ('Z')", ""}),
    [](const auto& one) { return std::string(one.param.name); });

// --- The proposal ----------------------------------------------------------------------------------------------------

class ProposalJourney : public FilesTest {
protected:
    QWidget& print(QWidget& order) {
        go(order, "Command1",
           {ok("In case you made any changes to the proposal, you will need to save your changes first so that the "
               "changes "
               "appear in the print out.",
               std::string(defaultTitle))});
        QWidget* report = standing("DataReport3");
        if (!report) throw std::runtime_error("no DataReport3");
        return *report;
    }
    // The words of the report, by way of its PDF.
    std::string words(QWidget& report) {
        const std::string name = file("out.pdf");
        fs::remove(name);
        host.answerSaveName(file("out"));
        go(report, "cmdPdf", {ok("The report was written to " + name, "Estimate Proposal")});
        QProcess reader;
        reader.start("pdftotext", {"-layout", qstring(name), "-"});
        EXPECT_TRUE(reader.waitForFinished());
        EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
        return reader.readAllStandardOutput().simplified().toStdString();
    }
};

TEST_F(ProposalJourney, ShowsWhatIsSaved) {
    QWidget& order = openEstimate("E", 3);
    go(order, "cmbItems=Joist; cmbRooms=Attic; cmdAdd; txtTaxPer=9");
    QWidget& report = print(order);
    EXPECT_EQ(utf8(report.windowTitle()), "Estimate Proposal");
    EXPECT_EQ(text(report, "lblPage"), "Page 1 of 1");
    const std::string before = words(report);
    for (const char* part : {"Estimates Proposal", "Ann Lee", "9 Oak", "7/4/2003", "Deck 2.5 Each Joist 25.00",
                             "Roof 100 Bag Brick 50.00 20.00", "71.25", "200.00", "236.00"})
        EXPECT_NE(before.find(part), std::string::npos) << part << " is not in " << before;
    EXPECT_EQ(before.find("Attic"), std::string::npos) << before;

    go(order, "CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(&print(order), &report) << "the window that stands is used again";
    const std::string after = words(report);
    EXPECT_NE(after.find("Attic 2 Bag Joist 20.00"), std::string::npos) << after;
    EXPECT_NE(after.find("140.25"), std::string::npos) << after;
    go(report, "cmdClose");
    EXPECT_FALSE(standing("DataReport3"));

    closeBox(order);
    QWidget& unsaved = newEstimate();
    go(unsaved, "cmdAdd");
    EXPECT_EQ(words(print(unsaved)), "Estimates Proposal");
}

}  // namespace
}  // namespace torvane
