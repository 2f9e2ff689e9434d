#include <QApplication>
#include <QListWidget>
#include <QTextBrowser>
#include <filesystem>

#include "journeys/journey.h"
#include "support/files.h"

namespace torvane {
namespace {

class HelpJourneyTest : public JourneyTest {
protected:
    void open() {
        data.useHelpBook();
        start();
    }
    static std::string page() {
        const QWidget* help = standing("frmHelp");
        return help ? utf8(find<QTextBrowser>(*help, "Page").source().fileName()) : "no help";
    }
    static std::string helpOn(QWidget& window) {
        window.activateWindow();
        key(window, Qt::Key_F1);
        return page();
    }
};

TEST_F(HelpJourneyTest, ContentsAndSearchLeadToPages) {
    open();
    // The book is only read, and nothing is left beside it.
    std::filesystem::permissions(data.helpBook(), std::filesystem::perms::owner_read);
    const Texts before = filesIn(data.path());
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
    EXPECT_EQ(enabled(help, {"cmdBack", "cmdForward"}), "cmdBack");
    EXPECT_EQ(find<QTreeWidget>(help, "TreeContents").currentItem()->text(0), "Backup and restore");
    key(find<QWidget>(help, "Page"), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "index.html");
    EXPECT_EQ(enabled(help, {"cmdBack", "cmdForward"}), "cmdForward");

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
    EXPECT_EQ(enabled(*standing("frmHelp"), {"cmdBack", "cmdForward"}), "");
    EXPECT_EQ(filesIn(data.path()), before);
}

TEST_F(HelpJourneyTest, EachWindowHasItsPage) {
    open();
    EXPECT_EQ(helpOn(screens->mainMenu.window()), "main-window.html");
    EXPECT_EQ(helpOn(*standing("frmHelp")), "help.html");
    for (const auto& [entry, page] : {std::pair{"SubMnuAddCust", "customers.html"},
                                      {"SubMnuAddItem", "items.html"},
                                      {"SubMnuAddCat", "categories.html"},
                                      {"mnuUnits", "names.html"},
                                      {"mnuNewEstimate", "estimate.html"},
                                      {"mnuEditEstimate", "search-estimate.html"},
                                      {"mnuDelEstimate", "delete-estimate.html"},
                                      {"mnuBlank", "notes-area.html"},
                                      {"mnusalesrpt", "report-prompt.html"},
                                      {"mnucustrpt", "customers-report.html"},
                                      {"mnuHelpAbout", "about.html"},
                                      {"mnucalc1_7", "scientific.html"},
                                      {"mnucalc2_8", "tab22.html"}}) {
        choose(entry);
        EXPECT_EQ(helpOn(*QApplication::activeWindow()), page) << entry;
        closeBox(*standing("frmHelp"));
    }
    EXPECT_EQ(helpOn(screens->scientific.window()), "scientific.html");
    go(screens->order.window(), "cmdMainHelp; cmdItemList");
    EXPECT_EQ(page(), "estimate.html");
    EXPECT_EQ(helpOn(screens->itemSheet.window()), "item-sheet.html");
    go(screens->reportPrompt.window(), "Command3");
    EXPECT_EQ(helpOn(*standing("DataReport1")), "estimates-report.html");
}

// The help is usable over the form that stands modally, also when it stood open before, and both go on afterwards.
TEST_F(HelpJourneyTest, StandsOverAModalForm) {
    open();
    choose("mnuHelpContents");
    for (const auto& [entry, list, page] : {std::tuple{"SubMnuEditItem", "frmItem", "item-form.html"},
                                            {"SubMnuEditCust", "frmCustomer", "customer-form.html"},
                                            {"SubMnuEditCat", "frmCategory", "category-form.html"}}) {
        SCOPED_TRACE(entry);
        choose(entry);
        whenModal([&, page = page](QWidget& form) {
            EXPECT_EQ(helpOn(form), page);
            go(*standing("frmHelp"), "cmdContents");
            EXPECT_EQ(HelpJourneyTest::page(), "index.html");
            go(form, "CmdCancel");
        });
        go(*standing(list), "CmdEdit");
        go(*standing("frmHelp"), "cmdBack");
        EXPECT_EQ(HelpJourneyTest::page(), page);
    }
}

TEST_F(HelpJourneyTest, AMissingOrDamagedBookIsSaid) {
    start();
    const std::string name = data.helpBook();
    for (const std::string why : {"File not found: ", "The help book is damaged: "}) {
        for (int times = 0; times < 3; ++times) host.expectOk(why + name, "Torvane Construction Estimator");
        choose("mnuHelpContents");
        choose("mnuHelpSearch");
        key(screens->mainMenu.window(), Qt::Key_F1);
        host.verify();
        EXPECT_FALSE(standing("frmHelp"));
        write(name, std::string(5000, 'x'));
    }
    std::filesystem::remove(name);
    data.useHelpBook();
    choose("mnuHelpContents");
    EXPECT_EQ(page(), "index.html");
}

TEST_F(HelpJourneyTest, TheAboutWindowSaysWhatTheProgramIs) {
    start();
    choose("mnucalc1_7");
    for (const char* entry : {"mnuHelpAbout", "habout"}) {
        QWidget& window = entry[0] == 'h' ? screens->scientific.window() : screens->mainMenu.window();
        trigger(find<QAction>(window, entry));
        QWidget* about = standing("frmAbout");
        ASSERT_TRUE(about);
        EXPECT_EQ(text(*about, "lblName"), "TORVANE Construction Estimator Ver. 2.0");
        EXPECT_EQ(text(*about, "txtFolder"), data.path());
        EXPECT_EQ(text(*about, "lblVersions"), "Qt " + std::string(qVersion()));
        go(*about, "cmdClose");
        EXPECT_FALSE(screens->about.loaded());
    }
}

}  // namespace
}  // namespace torvane
