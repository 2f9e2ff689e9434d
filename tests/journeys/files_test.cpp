// Backup and restore over open screens.

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
    void backUp(std::optional<std::string> name, const std::vector<TestHost::Box>& boxes) {
        host.answerSaveName(std::move(name));
        for (const TestHost::Box& box : boxes) host.expect(box);
        choose("mnuExport");
        host.verify();
    }
    void restore(std::optional<std::string> name, const TestHost::Box& box) {
        host.answerOpenName(std::move(name));
        host.expect(box);
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
    fs::create_symlink("elsewhere", file("link.bak"));
    write(file("elsewhere"), "old");
    const std::string database = bytes(data.database());
    struct Row {
        std::optional<std::string> name;
        std::vector<TestHost::Box> boxes = {};
        const char* written = nullptr;
    };
    for (const Row& row :
         {Row{std::nullopt}, Row{file("old.bak"), {keepFile}}, Row{file("nowhere/x.bak")}, Row{file("folder.bak")},
          Row{file("mine"), {exported}, "mine.bak"}, Row{file("upper.BAK"), {exported}, "upper.BAK.bak"},
          Row{data.database(), {exported}, "Larkfen.mdb.bak"},
          Row{file("link.bak"), {overwrite, exported}, "elsewhere"}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        backUp(row.name, row.boxes);
        EXPECT_TRUE(!row.written || bytes(file(row.written)) == database);
        EXPECT_EQ(bytes(file("old.bak")), "old");
    }
    EXPECT_TRUE(fs::is_symlink(file("link.bak")));
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "Larkfen.mdb.bak", "elsewhere", "folder.bak", "link.bak", "mine.bak",
                                   "old.bak", "upper.BAK.bak"}));
    fs::remove(data.database());
    backUp(file("old"), {overwrite});
    EXPECT_EQ(bytes(file("old.bak")), "old") << "there was nothing to copy";
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"Larkfen.bak", "Backup (*.bak)"}));
}

TEST_F(FilesTest, RestoreUnderOpenScreens) {
    QWidget& order = openEstimate("E", 3);
    choose("mnuBlank");
    QWidget& list = customers("E");
    backUp(file("then.bak"), {exported});
    const std::string then = bytes(data.database());
    data.execute("update Customer set CustName = 'Ann Now' where CustId = 7");
    go(list, "CmdAll");
    const Texts now = rows(list);

    restore(file("then.bak"), imported);
    EXPECT_TRUE(bytes(data.database()) == then);
    EXPECT_EQ(rows(list), now) << "what has been read stays";
    go(list, "CmdAll");
    EXPECT_NE(rows(list), now);
    go(order, "txtNotes=in the restored file; CmdSave", {ok("Estimate Saved")});
    find<TextArea>(screens->blank, "rtfNotes").setText("there, too");
    go(screens->blank.window(), "cmdOk");
    EXPECT_EQ(
        data.rows("select CustName, Notes, (select count(*) from OrderItem where OrderNo = 3), (select Notes from "
                  "BlankNotes) from OrderInfo natural join Customer where OrderNo = 3"),
        Texts{"Ann Lee|in the restored file|2|there, too"});
    EXPECT_EQ(data.cell("pragma integrity_check"), "ok");
    EXPECT_EQ(filesThere(), (Texts{"Larkfen.mdb", "then.bak"}));
}

// What a file named .bak may hold, and how the next query of an open list ends over it.
struct Restored {
    std::string name;
    const char* statements;  // carried out on an empty database; "" for one that is not replaced, or for other bytes
    TestHost::Box box;
    const char* ended = "";  // "": the list is read
};

TEST_F(FilesTest, WhatIsRestoredIsWhatTheNextQueryMeets) {
    QWidget& window = customers("E");
    const std::string before = bytes(data.database());
    const TestHost::Box noBackup = ok("Not a Backup of database file", "Error while importing");
    const TestHost::Box notFound = ok("File not found.", "File Import");
    fs::create_directory(file("folder.bak"));
    write(file("data.BAK"), "x");
    write(file("text.bak"), std::string(5000, 'j'));
    write(file("nothing.bak"), "");
    for (const Restored& row :
         {Restored{"data.BAK", "", noBackup}, Restored{"none.bak", "", notFound}, Restored{"folder.bak", "", notFound},
          Restored{"text.bak", "", imported, "26 "}, Restored{"nothing.bak", "", imported, "26 "},
          Restored{"other.bak", "drop table Customer; pragma application_id = 7", imported, "1 Select"},
          Restored{"unmarked.bak", "pragma application_id = 0; pragma user_version = 0", imported},
          Restored{"log.bak", "pragma journal_mode = wal", imported}}) {
        SCOPED_TRACE(row.name);
        if (*row.statements) {
            DataFolder other;
            other.useEmpty();
            other.execute("insert into Customer (CustName) values ('Z')");
            other.execute(row.statements);
            fs::copy_file(other.database(), file(row.name));
        }
        write(data.database(), before);
        restore(file(row.name), row.box);
        const bool replaced = row.box.text == imported.text;
        EXPECT_TRUE(bytes(data.database()) == (replaced ? bytes(file(row.name)) : before));
        if (*row.ended) {
            EXPECT_EQ(endedBy([&] { go(window, "CmdAll"); }).substr(0, std::string_view(row.ended).size()), row.ended);
            EXPECT_TRUE(bytes(data.database()) == bytes(file(row.name))) << "what can't be read is left alone";
        } else {
            go(window, "CmdAll");
            EXPECT_EQ(rows(window).size(), replaced ? 1U : 2U);
        }
    }
    host.answerOpenName(std::nullopt);
    choose("mnuImport");
    EXPECT_EQ(data.cell("pragma journal_mode"), "delete");
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"", "Backup (*.bak)"}));
}

}  // namespace
}  // namespace torvane
