// Backup and restore over open screens, and the printed proposal.

#include <QProcess>
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
    void backUp(std::optional<std::string> name) {
        host.answerSaveName(std::move(name));
        choose("mnuExport");
        host.verify();
    }
    void restore(std::optional<std::string> name) {
        host.answerOpenName(std::move(name));
        choose("mnuImport");
        host.verify();
    }
};

TEST_F(FilesTest, BackupIsAskedForAndWritten) {
    start();
    const std::string database = bytes(data.database());
    backUp(std::nullopt);
    EXPECT_EQ(host.fileDialogs, (std::vector<TestHost::Asked>{{"Larkfen.bak", "Backup (*.bak)"}}));
    EXPECT_EQ(filesThere(), Texts{"Larkfen.mdb"});

    host.expectOk("Data File Exported", "Success");
    backUp(file("mine"));
    EXPECT_EQ(bytes(file("mine.bak")), database);
    host.expectYesNo("File already Exists. Overwrite it?", "Take Backup", Answer::No);
    backUp(file("mine"));

    write(file("old.bak"), "old");
    host.expectYesNo("File already Exists. Overwrite it?", "Take Backup", Answer::No);
    backUp(file("old.bak"));
    EXPECT_EQ(bytes(file("old.bak")), "old");
    host.expectYesNo("File already Exists. Overwrite it?", "Take Backup", Answer::Yes);
    host.expectOk("Data File Exported", "Success");
    backUp(file("old.bak"));
    EXPECT_EQ(bytes(file("old.bak")), database);

    backUp(file("nowhere/x.bak"));  // silent
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "mine.bak", "old.bak"}));
}

TEST_F(FilesTest, RestoreTakesOnlyABackupThatIsThere) {
    start();
    write(file("data.BAK"), "x");
    write(file("x.txt"), "x");
    const std::string database = bytes(data.database());
    struct Row {
        std::optional<std::string> name;
        const char* text;  // null: no box
        const char* title;
    };
    for (const Row& row : {Row{std::nullopt, nullptr, nullptr},
                           Row{file("data.BAK"), "Not a Backup of database file", "Error while importing"},
                           Row{file("x.txt"), "Not a Backup of database file", "Error while importing"},
                           Row{file("none.bak"), "File not found.", "File Import"}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        if (row.text) host.expectOk(row.text, row.title);
        restore(row.name);
        EXPECT_EQ(bytes(data.database()), database);
    }
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"", "Backup (*.bak)"}));
}

TEST_F(FilesTest, RestoreUnderOpenScreens) {
    QWidget& order = openEstimate("E", 3);
    QWidget& list = customers("E");
    host.expectOk("Data File Exported", "Success");
    backUp(file("then.bak"));
    const std::string then = bytes(data.database());
    enter(order, "txtNotes", "later");
    host.expectOk("Estimate Saved", "Inventory");
    click(order, "CmdSave");
    data.execute("update Customer set CustName = 'Ann Now' where CustId = 7");
    click(list, "CmdAll");
    const Texts shown = rows(list);
    EXPECT_TRUE(shown[0].starts_with("7|Ann Now"));
    readEstimate("E", 5);

    host.expectOk("Data File Imported", "Success");
    restore(file("then.bak"));
    EXPECT_EQ(bytes(data.database()), then);
    EXPECT_EQ(rows(list), shown);  // what has been read stays
    EXPECT_EQ(text(order, "txtNotes"), "later");
    click(list, "CmdAll");
    EXPECT_TRUE(rows(list)[0].starts_with("7|Ann Lee"));
    closeBox(order);
    QWidget& again = openEstimate("E", 3);
    EXPECT_EQ(text(again, "txtNotes"), "Old note");
    enter(again, "txtNotes", "in the restored file");
    host.expectOk("Estimate Saved", "Inventory");
    click(again, "CmdSave");
    EXPECT_EQ(data.cell("select Notes from OrderInfo where OrderNo = 3"), "in the restored file");
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "then.bak"}));
}

TEST_F(FilesTest, AnythingNamedBakIsRestoredAndTheNextQueryFails) {
    QWidget& list = customers("E");
    write(file("junk.bak"), std::string(5000, 'j'));
    host.expectOk("Data File Imported", "Success");
    restore(file("junk.bak"));
    EXPECT_EQ(bytes(data.database()), std::string(5000, 'j'));
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(rows(list).size(), 2U);
    click(list, "CmdAll");
    EXPECT_EQ(takeFailureNumber(), 26);
    EXPECT_EQ(endStatus, std::vector<int>{1});
    EXPECT_EQ(bytes(data.database()), std::string(5000, 'j'));
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
    host.expectYesNo("File already Exists. Overwrite it?", "Take Backup", Answer::Yes);
    backUp(file("other.bak"));
    restore(file("other.bak"));
    EXPECT_EQ(bytes(file("other.bak")), "other");
    EXPECT_EQ(bytes(data.database()), database);
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "other.bak"}));
    EXPECT_EQ(rows(customers("E")).size(), 2U);
}

// --- The proposal ----------------------------------------------------------------------------------------------------

constexpr const char* notice =
    "In case you made any changes to the proposal, you will need to save your changes first so that the changes appear "
    "in the print out.";

class ProposalJourney : public FilesTest {
protected:
    QWidget& print(QWidget& order) {
        host.expectOk(notice, std::string(defaultTitle));
        click(order, "Command1");
        host.verify();
        QWidget* report = standing("DataReport3");
        if (!report) throw std::runtime_error("no DataReport3");
        return *report;
    }
    // The words of the report, by way of its PDF.
    std::string words(QWidget& report) {
        const std::string name = file("out.pdf");
        fs::remove(name);
        host.answerSaveName(file("out"));
        host.expectOk("The report was written to " + name, "Estimate Proposal");
        click(report, "cmdPdf");
        host.verify();
        QProcess reader;
        reader.start("pdftotext", {"-layout", qstring(name), "-"});
        EXPECT_TRUE(reader.waitForFinished());
        EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
        return reader.readAllStandardOutput().simplified().toStdString();
    }
};

TEST_F(ProposalJourney, ShowsWhatIsSaved) {
    QWidget& order = openEstimate("E", 3);
    pick(order, "cmbItems", "Joist");
    pick(order, "cmbRooms", "Attic");
    click(order, "cmdAdd");
    enter(order, "txtTaxPer", "9");
    QWidget& report = print(order);
    EXPECT_EQ(utf8(report.windowTitle()), "Estimate Proposal");
    EXPECT_EQ(text(report, "lblPage"), "Page 1 of 1");
    const std::string before = words(report);
    for (const char* part : {"Estimates Proposal", "Ann Lee", "9 Oak", "7/4/2003", "Deck 2.5 Each Joist 25.00",
                             "Roof 100 Bag Brick 50.00 20.00", "71.25", "200.00", "236.00"})
        EXPECT_NE(before.find(part), std::string::npos) << part << " is not in " << before;
    EXPECT_EQ(before.find("Attic"), std::string::npos) << before;

    host.expectOk("Estimate Saved", "Inventory");
    click(order, "CmdSave");
    EXPECT_EQ(&print(order), &report) << "the window that stands is used again";
    const std::string after = words(report);
    EXPECT_NE(after.find("Attic 2 Bag Joist 20.00"), std::string::npos) << after;
    EXPECT_NE(after.find("140.25"), std::string::npos) << after;
    click(report, "cmdClose");
    EXPECT_FALSE(standing("DataReport3"));
}

TEST_F(ProposalJourney, ANewEstimateHasNothingToPrintBeforeItIsSaved) {
    QWidget& order = newEstimate();
    click(order, "cmdAdd");
    EXPECT_EQ(words(print(order)), "Estimates Proposal");
}

TEST_F(ProposalJourney, AFailingExportLeavesNoHalfFile) {
    QWidget& report = print(openEstimate("E", 3));
    const std::string nowhere = file("nowhere/p.pdf");
    const Texts before = filesThere();
    host.answerSaveName(nowhere);
    host.expectOk("The report could not be written to " + nowhere + ". Nothing was changed there.",
                  "Estimate Proposal");
    click(report, "cmdPdf");
    host.verify();
    host.answerSaveName(std::nullopt);
    click(report, "cmdPdf");
    EXPECT_EQ(filesThere(), before);

    write(file("kept.pdf"), "kept");
    host.answerSaveName(file("kept.pdf"));
    host.expectYesNo("File already Exists. Overwrite it?", "Estimate Proposal", Answer::No);
    click(report, "cmdPdf");
    EXPECT_EQ(bytes(file("kept.pdf")), "kept");
}

TEST_F(ProposalJourney, ManyPagesAreTurned) {
    std::string many = "insert into OrderItem values (3,1,1,1,1,1,0,0,0)";
    for (int i = 0; i < 98; ++i) many += ",(3,1,1,1,1,1,0,0,0)";
    data.execute(many);
    QWidget& report = print(openEstimate("E", 3));
    struct Row {
        const char* button;
        const char* page;
        const char* enabled;
    };
    for (const Row& row : {Row{"cmdFirst", "Page 1 of 3", "cmdNext cmdLast"},
                           Row{"cmdNext", "Page 2 of 3", "cmdFirst cmdPrevious cmdNext cmdLast"},
                           Row{"cmdLast", "Page 3 of 3", "cmdFirst cmdPrevious"},
                           Row{"cmdPrevious", "Page 2 of 3", "cmdFirst cmdPrevious cmdNext cmdLast"}}) {
        SCOPED_TRACE(row.button);
        if (row.button != std::string("cmdFirst")) click(report, row.button);
        EXPECT_EQ(text(report, "lblPage"), row.page);
        EXPECT_EQ(enabled(report, {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"}), row.enabled);
    }
}

}  // namespace
}  // namespace torvane
