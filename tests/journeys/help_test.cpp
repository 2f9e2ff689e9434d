#include <QListWidget>
#include <QTextBrowser>
#include <filesystem>

#include "journeys/journey.h"
#include "support/files.h"

namespace torvane {
namespace {

class HelpJourneyTest : public JourneyTest {
protected:
    static std::string page() {
        const QWidget* help = standing("frmHelp");
        if (!help) return "no help";
        const auto& page = find<QTextBrowser>(*help, "Page");
        return page.toPlainText().isEmpty() ? "an empty page" : utf8(page.source().fileName());
    }
};

TEST_F(HelpJourneyTest, ContentsAndSearchLeadToPages) {
    data.useHelpBook();
    start();
    // The book is only read, and nothing is left beside it.
    std::filesystem::permissions(data.helpBook(), std::filesystem::perms::owner_read);
    const Texts before = filesIn(data.path());
    choose("mnuHelpContents");
    EXPECT_EQ(page(), "index.html");
    choose("mnuHelpSearch");
    QWidget& help = *standing("frmHelp");
    EXPECT_EQ(badControls(help), std::set<std::string>{});
    auto& box = find<TextBox>(help, "txtSearch");
    auto& found = find<QListWidget>(help, "lstFound");
    EXPECT_TRUE(box.hasFocus());
    EXPECT_GT(found.count(), 100);
    type(box, "restore");
    key(box, Qt::Key_Return);
    EXPECT_EQ(page(), "backup.html");
    EXPECT_EQ(enabled(help, {"cmdBack", "cmdForward"}), "cmdBack");
    const auto& contents = find<QTreeWidget>(help, "TreeContents");
    EXPECT_EQ(contents.currentItem()->text(0), "Backup and restore");
    key(find<QWidget>(help, "Page"), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "index.html");
    EXPECT_EQ(enabled(help, {"cmdBack", "cmdForward"}), "cmdForward");

    // What is typed over the page is searched for.
    type(find<QWidget>(help, "Page"), "group 2\r");
    EXPECT_EQ(page(), "group2.html");
    EXPECT_TRUE(contents.currentItem()->isExpanded());
    type(find<QWidget>(help, "Page"), "gutter");
    EXPECT_EQ(box.Text(), "gutter");
    key(box, Qt::Key_Down);
    EXPECT_TRUE(found.hasFocus());
    key(found, Qt::Key_Return);
    EXPECT_EQ(page(), "tab26.html");
    go(help, "cmdContents");
    EXPECT_EQ(page(), "index.html");
    QTest::mouseClick(found.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(page(), "tab26.html") << "by a click";
    type(box, "qwxz gutter");
    EXPECT_EQ(utf8(found.item(0)->text()), "Nothing found. See the contents.");
    EXPECT_EQ(utf8(found.item(1)->text()), "gutter") << "the nearest";
    EXPECT_TRUE(found.item(found.count() - 1)->text().contains("gutter")) << "and nothing else";
    key(box, Qt::Key_Return);
    EXPECT_TRUE(find<QTreeWidget>(help, "TreeContents").hasFocus());
    key(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(find<QWidget>(help, "Page").hasFocus());
    key(help, Qt::Key_Escape);
    EXPECT_FALSE(standing("frmHelp"));
    choose("mnuHelpSearch");
    EXPECT_EQ(page(), "index.html");
    EXPECT_EQ(enabled(*standing("frmHelp"), {"cmdBack", "cmdForward"}), "") << "a new reading";
    choose("mnuHelpContents");
    EXPECT_TRUE(find<QTreeWidget>(*standing("frmHelp"), "TreeContents").hasFocus());
    EXPECT_EQ(filesIn(data.path()), before);
}

TEST_F(HelpJourneyTest, AMissingOrDamagedBookIsSaid) {
    start();
    for (const std::string why : {"File not found: ", "The help book is damaged: "}) {
        for (int times = 0; times < 3; ++times)
            host.expect(ok(why + data.helpBook() + "\n\nInstall the program again; your data stay.",
                           "Torvane Construction Estimator"));
        choose("mnuHelpContents");
        choose("mnuHelpSearch");
        key(screens->mainMenu.window(), Qt::Key_F1);
        host.verify();
        EXPECT_FALSE(standing("frmHelp"));
        write(data.helpBook(), std::string(5000, 'x'));
    }
}

}  // namespace
}  // namespace torvane
