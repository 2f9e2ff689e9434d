// Backup and restore over open screens, and the printed proposal.

#include <QProcess>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "journeys/journey.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

std::string bytes(const std::string& file) {
    std::ostringstream all;
    all << std::ifstream(file, std::ios::binary).rdbuf();
    return all.str();
}

void write(const std::string& file, std::string_view content) {
    std::ofstream(file, std::ios::binary) << content;
}

class FilesTest : public JourneyTest {
protected:
    std::string file(std::string_view name) const { return data.path() + "/" + std::string(name); }
    Texts filesThere() const {
        Texts names;
        for (const auto& one : fs::directory_iterator(data.path())) names.push_back(one.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
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
    const std::string database = bytes(data.database());
    struct Row {
        std::optional<std::string> name;
        std::vector<TestHost::Box> boxes;
        bool written;
    };
    for (const Row& row :
         {Row{std::nullopt, {}, false}, Row{file("old.bak"), {keepFile}, false}, Row{file("nowhere/x.bak"), {}, false},
          Row{file("old"), {keepFile}, false}, Row{file("old"), {overwrite, exported}, true}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        backUp(row.name, row.boxes);
        EXPECT_EQ(bytes(file("old.bak")), row.written ? database : "old");
    }
    backUp(file("mine"), {exported});
    EXPECT_EQ(bytes(file("mine.bak")), database);
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "mine.bak", "old.bak"}));
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"Larkfen.bak", "Backup (*.bak)"}));
}

TEST_F(FilesTest, RestoreTakesOnlyABackupThatIsThere) {
    start();
    write(file("data.BAK"), "x");
    const std::string database = bytes(data.database());
    const TestHost::Box noBackup = ok("Not a Backup of database file", "Error while importing");
    struct Row {
        std::optional<std::string> name;
        std::vector<TestHost::Box> boxes;
    };
    for (const Row& row : {Row{std::nullopt, {}}, Row{file("data.BAK"), {noBackup}}, Row{file("x.txt"), {noBackup}},
                           Row{file("none.bak"), {ok("File not found.", "File Import")}}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        restore(row.name, row.boxes);
        EXPECT_EQ(bytes(data.database()), database);
    }
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"", "Backup (*.bak)"}));
}

// A copy that the system refuses at its last step.
struct FullDisk : FileSystem {
    bool sync(int) override { return false; }
};

TEST_F(FilesTest, ACopyThatIsRefusedIsSilentAndHarmsNothing) {
    FullDisk full;
    screens = std::make_unique<Application>(program, full, false,
                                            [this](const std::string&) { return recordingAssistant(); });
    run([&] { screens->mainMenu.Show(); });
    write(file("other.bak"), "other");
    const std::string database = bytes(data.database());
    backUp(file("other.bak"), {overwrite});
    restore(file("other.bak"));
    EXPECT_EQ(bytes(file("other.bak")), "other");
    EXPECT_EQ(bytes(data.database()), database);
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "other.bak"}));
    EXPECT_EQ(rows(customers("E")).size(), 2U);
}

TEST_F(FilesTest, RestoreUnderOpenScreens) {
    QWidget& order = openEstimate("E", 3);
    QWidget& window = customers("E");
    backUp(file("then.bak"), {exported});
    const std::string then = bytes(data.database());
    go(order, "txtNotes=later; CmdSave", {ok("Estimate Saved")});
    data.execute("update Customer set CustName = 'Ann Now' where CustId = 7");
    go(window, "CmdAll");
    EXPECT_EQ(list(window).Cell(0, 1), "Ann Now");

    restore(file("then.bak"), {imported});
    EXPECT_EQ(bytes(data.database()), then);
    EXPECT_EQ(list(window).Cell(0, 1) + text(order, "txtNotes"), "Ann Nowlater");  // what has been read stays
    go(window, "CmdAll");
    EXPECT_EQ(list(window).Cell(0, 1), "Ann Lee");
    closeBox(order);
    QWidget& again = openEstimate("E", 3);
    EXPECT_EQ(text(again, "txtNotes"), "Old note");
    go(again, "txtNotes=in the restored file; CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.cell("select Notes from OrderInfo where OrderNo = 3"), "in the restored file");
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "then.bak"}));
}

TEST_F(FilesTest, AnythingNamedBakIsRestoredAndTheNextQueryFails) {
    QWidget& window = customers("E");
    const std::string junk(5000, 'j');
    write(file("junk.bak"), junk);
    restore(file("junk.bak"), {imported});
    EXPECT_EQ(bytes(data.database()), junk);
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(rows(window).size(), 2U);
    go(window, "CmdAll");
    EXPECT_EQ(endedWith().substr(0, 3), "26 ");
    EXPECT_EQ(bytes(data.database()), junk);
}

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

TEST_F(ProposalJourney, AFailingExportLeavesNoHalfFile) {
    QWidget& report = print(openEstimate("E", 3));
    const std::string nowhere = file("nowhere/p.pdf");
    write(file("kept.pdf"), "kept");
    host.answerSaveName(nowhere);
    go(report, "cmdPdf",
       {ok("The report could not be written to " + nowhere + ". Nothing was changed there.", "Estimate Proposal")});
    host.answerSaveName(std::nullopt);
    go(report, "cmdPdf");
    host.answerSaveName(file("kept.pdf"));
    go(report, "cmdPdf", {no("File already Exists. Overwrite it?", "Estimate Proposal")});
    EXPECT_EQ(bytes(file("kept.pdf")), "kept");
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "kept.pdf"}));
}

}  // namespace
}  // namespace torvane
