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
    // Takes a backup to the file that is named, or does with it what another entry does.
    void backUp(std::optional<std::string> name, const Boxes& boxes, const char* entryName = "mnuExport") {
        host.answerName(std::move(name));
        for (const TestHost::Box& box : boxes) host.expect(box);
        choose(entryName);
        host.verify();
    }
    void restore(std::optional<std::string> name, const Boxes& boxes) { backUp(std::move(name), boxes, "mnuImport"); }
    const TestHost::Box exported = ok("Data File Exported", "Success");
    const TestHost::Box imported = ok("Data File Imported", "Success");
    const TestHost::Box keep = no("File already Exists. Overwrite it?", "Take Backup");
    const TestHost::Box overwrite = yes("File already Exists. Overwrite it?", "Take Backup");
};

TEST_F(FilesTest, BackupIsAskedForAndWritten) {
    start();
    write(file("old.bak"), "old");
    fs::create_directory(file("folder.bak"));
    const std::string database = bytes(data.database());
    struct Row {
        std::optional<std::string> name;
        Boxes boxes;
        const char* written = nullptr;
    };
    const std::size_t open = filesIn("/proc/self/fd").size();
    for (const Row& row :
         {Row{std::nullopt, {}}, Row{file("old.bak"), {keep}}, Row{file("nowhere/x.bak"), {}},
          Row{file("folder.bak"), {}}, Row{file("mine"), {exported}, "mine.bak"},
          Row{file("upper.BAK"), {exported}, "upper.BAK.bak"}, Row{file("mine"), {overwrite, exported}, "mine.bak"}}) {
        SCOPED_TRACE(row.name.value_or("Cancel"));
        backUp(row.name, row.boxes);
        EXPECT_TRUE(!row.written || bytes(file(row.written)) == database);
        EXPECT_EQ(bytes(file("old.bak")), "old");
    }
    EXPECT_LE(filesIn("/proc/self/fd").size(), open + 1) << "none but the database is left open";
    EXPECT_EQ(filesIn(data.path()), (Texts{"Larkfen.mdb", "folder.bak", "mine.bak", "old.bak", "upper.BAK.bak"}));
    fs::remove(data.database());
    backUp(file("old"), {overwrite});
    EXPECT_EQ(bytes(file("old.bak")), "old") << "there was nothing to copy";
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"Larkfen.bak", "Backup (*.bak)"}));
}

TEST_F(FilesTest, RestoreUnderOpenScreens) {
    data.execute("pragma journal_mode = wal");  // which would leave files beside the one
    QWidget& order = openEstimate(3);
    choose("mnuBlank");
    QWidget& list = opened("SubMnuEditCust");
    backUp(file("then.bak"), {exported});
    data.execute("update Customer set CustName = 'Ann Now' where CustId = 7");
    go(list, "CmdAll");
    const Texts now = rows(list);

    restore(file("then.bak"), {imported});
    EXPECT_EQ(rows(list), now) << "what has been read stays";
    clickRow(torvane::list(list), 1);
    go(list, "CmdAll");
    EXPECT_NE(rows(list), now);
    EXPECT_EQ(torvane::list(list).SelectedRow(), 1) << "and the customer that was selected";
    go(order, "txtNotes=in the restored file; CmdSave", {ok("Estimate Saved")});
    find<TextArea>(screens->blank, "rtfNotes").setText("there, too");
    go(screens->blank.window(), "cmdOk");
    EXPECT_EQ(
        data.rows("select CustName, Notes, (select count(*) from OrderItem where OrderNo = 3), (select Notes from "
                  "BlankNotes) from OrderInfo natural join Customer where OrderNo = 3"),
        Texts{"Ann Lee|in the restored file|2|there, too"});
    EXPECT_EQ(filesIn(data.path()), (Texts{"Larkfen.mdb", "then.bak"}));
}

// What a file named .bak may hold, and how the next query of an open list ends over it.
TEST_F(FilesTest, WhatIsRestoredIsWhatTheNextQueryMeets) {
    const std::string good = bytes(data.database());
    data.execute("drop table Customer");
    const std::string other = bytes(data.database());
    struct Row {
        const char* name;
        std::string content;
        TestHost::Box box;
        const char* ended = nullptr;  // by the next query
    };
    write(data.database(), good);
    QWidget& window = opened("SubMnuEditCust");
    for (const Row& row :
         {Row{"data.BAK", "x", ok("Not a Backup of database file", "Error while importing")},
          Row{"none.bak", "", ok("File not found.", "File Import")},
          Row{"text.bak", std::string(5000, 'j'), imported, "26 "}, Row{"other.bak", other, imported, "1 Select"}}) {
        SCOPED_TRACE(row.name);
        if (!row.content.empty()) write(file(row.name), row.content);
        write(data.database(), good);
        restore(file(row.name), {row.box});
        EXPECT_TRUE(bytes(data.database()) == (row.ended ? row.content : good));
        if (!row.ended) continue;
        EXPECT_TRUE(endedBy([&] { go(window, "CmdAll"); }).starts_with(row.ended));
        EXPECT_TRUE(bytes(data.database()) == row.content) << "what can't be read is left alone";
    }
    restore(std::nullopt, {});
    EXPECT_EQ(host.fileDialogs[0], (TestHost::Asked{"", "Backup (*.bak)"}));
}

}  // namespace
}  // namespace torvane
