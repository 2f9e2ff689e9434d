#include <QApplication>
#include <QListWidget>
#include <QTextBrowser>
#include <filesystem>
#include <fstream>
#include <set>

#include "journeys/journey.h"
#include "shell/menu_tree.h"

namespace torvane {
namespace {

class HelpJourneyTest : public JourneyTest {
protected:
    void open() {
        data.useHelpBook();
        start();
    }
    std::string page() {
        const QWidget* help = standing("frmHelp");
        return help ? utf8(find<QTextBrowser>(*help, "Page").source().fileName()) : "no help";
    }
    std::string helpOn(QWidget& window) {
        window.activateWindow();
        key(window, Qt::Key_F1);
        return page();
    }
};

TEST_F(HelpJourneyTest, ContentsAndSearchLeadToPages) {
    open();
    choose("mnuHelpContents");
    EXPECT_EQ(page(), "index.html");
    choose("mnuHelpSearch");
    QWidget& help = *standing("frmHelp");
    auto& box = find<TextBox>(help, "txtSearch");
    auto& found = find<QListWidget>(help, "lstFound");
    EXPECT_TRUE(box.hasFocus());
    EXPECT_GT(found.count(), 100);
    type(box, "restore");
    key(box, Qt::Key_Return);
    EXPECT_EQ(page(), "backup.html");
    key(find<QWidget>(help, "Page"), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "index.html");

    // What is typed over the page is searched for.
    type(find<QWidget>(help, "Page"), "gutter");
    EXPECT_EQ(box.Text(), "gutter");
    key(box, Qt::Key_Down);
    EXPECT_TRUE(found.hasFocus());
    key(found, Qt::Key_Return);
    EXPECT_EQ(page(), "tab26.html");
    key(found, Qt::Key_Escape);
    EXPECT_FALSE(standing("frmHelp"));
    choose("mnuHelpContents");
    EXPECT_EQ(page(), "index.html");
    EXPECT_FALSE(find<QAbstractButton>(*standing("frmHelp"), "cmdBack").isEnabled());
}

TEST_F(HelpJourneyTest, EachWindowHasItsPage) {
    open();
    EXPECT_EQ(helpOn(screens->mainMenu.window()), "main-window.html");
    EXPECT_EQ(helpOn(*standing("frmHelp")), "help.html");
    std::set<std::string> pages;
    for (const char* entry : {"SubMnuAddCust", "SubMnuAddItem", "SubMnuAddCat", "mnuUnits", "mnuNewEstimate",
                              "mnuEditEstimate", "mnuDelEstimate", "mnuBlank", "mnusalesrpt", "mnucustrpt",
                              "mnuHelpAbout", "mnucalc1_7", "mnucalc2_1", "mnucalc4_2"}) {
        choose(entry);
        EXPECT_TRUE(pages.insert(helpOn(*QApplication::activeWindow())).second) << entry << " " << page();
        closeBox(*standing("frmHelp"));
    }
    EXPECT_FALSE(pages.contains("index.html"));
    screens->scientific.Unload();
    choose("mnucalc1_6");
    EXPECT_EQ(helpOn(screens->calculators1.window()), "group1.html");
    choose("mnucalc2_8");
    EXPECT_EQ(helpOn(screens->calculators2.window()), "tab22.html");

    QWidget& order = newEstimate();
    go(order, "cmdMainHelp");
    EXPECT_EQ(page(), "estimate.html");
    go(order, "cmdItemList");
    EXPECT_EQ(helpOn(screens->itemSheet.window()), "item-sheet.html");
    go(screens->reportPrompt.window(), "Command3");
    EXPECT_EQ(helpOn(*standing("DataReport1")), "estimates-report.html");
}

// The help is usable over the form that stands modally, also when it stood open before, and both go on afterwards.
TEST_F(HelpJourneyTest, StandsOverAModalForm) {
    open();
    choose("mnuHelpContents");
    struct Row {
        const char* entry;
        const char* list;
        const char* page;
    };
    for (const Row& row : {Row{"SubMnuAddItem", "frmItem", "item-form.html"},
                           Row{"SubMnuAddCust", "frmCustomer", "customer-form.html"}}) {
        SCOPED_TRACE(row.entry);
        choose(row.entry);
        whenModal([&](QWidget& form) {
            EXPECT_EQ(helpOn(form), row.page);
            QWidget& help = *standing("frmHelp");
            go(help, "cmdContents");
            EXPECT_EQ(page(), "index.html");
            go(form, "CmdCancel");
        });
        go(*standing(row.list), "cmdAdd");
        ASSERT_TRUE(standing("frmHelp"));
        go(*standing("frmHelp"), "cmdBack");
        EXPECT_EQ(page(), row.page);
        go(*standing(row.list), "cmdExit");
    }
    choose("SubMnuEditCat");
    whenModal([&](QWidget& form) {
        closeBox(*standing("frmHelp"));
        EXPECT_EQ(helpOn(form), "category-form.html");
        key(*standing("frmHelp"), Qt::Key_Escape);
        go(form, "CmdCancel");
    });
    go(*standing("frmCategory"), "CmdEdit");
    EXPECT_FALSE(standing("frmHelp"));
}

TEST_F(HelpJourneyTest, AMissingOrDamagedBookIsSaid) {
    start();
    const std::string name = data.helpBook();
    const auto refused = [&](const std::string& why) {
        for (const char* entry : {"mnuHelpContents", "mnuHelpSearch"}) {
            host.expectOk(why + name, "Torvane Construction Estimator");
            choose(entry);
        }
        host.expectOk(why + name, "Torvane Construction Estimator");
        key(screens->mainMenu.window(), Qt::Key_F1);
        host.verify();
        EXPECT_FALSE(standing("frmHelp"));
    };
    refused("File not found: ");
    std::ofstream(name) << std::string(5000, 'x');
    refused("The help book is damaged: ");
    std::filesystem::remove(name);
    data.useHelpBook();
    choose("mnuHelpContents");
    EXPECT_EQ(page(), "index.html");
}

TEST_F(HelpJourneyTest, TheBookIsOnlyRead) {
    data.useHelpBook();
    std::filesystem::permissions(data.helpBook(), std::filesystem::perms::owner_read);
    start();
    const auto filesInFolder = [&] {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(data.path())) names.insert(entry.path());
        return names;
    };
    const auto before = filesInFolder();
    choose("mnuHelpSearch");
    ASSERT_TRUE(standing("frmHelp"));
    EXPECT_EQ(filesInFolder(), before);
}

TEST_F(HelpJourneyTest, TheAboutWindowSaysWhatTheProgramIs) {
    start();
    const auto check = [&] {
        QWidget* about = standing("frmAbout");
        ASSERT_TRUE(about);
        EXPECT_EQ(text(*about, "lblName"), "TORVANE Construction Estimator Ver. 2.0");
        EXPECT_EQ(text(*about, "txtFolder"), data.path());
        go(*about, "cmdClose");
        EXPECT_FALSE(screens->about.loaded());
    };
    choose("mnuHelpAbout");
    check();
    choose("mnucalc1_7");
    trigger(find<QAction>(screens->scientific, "habout"));
    check();
}

}  // namespace
}  // namespace torvane
