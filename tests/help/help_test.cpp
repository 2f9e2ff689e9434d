#include <gtest/gtest.h>

#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <set>

#include "calculators/calculator_groups.h"
#include "help/help_book.h"
#include "support/data_folder.h"
#include "support/files.h"
#include "support/screen_test.h"
#include "widgets/texts.h"

namespace torvane {
namespace {

class HelpTest : public ::testing::Test {
protected:
    ~HelpTest() override { qunsetenv("TMPDIR"); }
    HelpTest() {
        qputenv("TMPDIR", qstring(folder.path()).toUtf8());
        folder.useHelpBook();
        book = std::make_unique<HelpBook>(qstring(folder.helpBook()));
    }

    DataFolder folder;
    std::unique_ptr<HelpBook> book;
};

using Formats = std::vector<QTextCharFormat>;

Formats formatsOf(const QByteArray& html) {
    QTextDocument page;
    page.setHtml(QString::fromUtf8(html));
    Formats all;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) all.push_back(part.fragment().charFormat());
    return all;
}

std::set<QString> anchorsOf(const QByteArray& html) {
    std::set<QString> names;
    for (const QTextCharFormat& format : formatsOf(html))
        for (const QString& name : format.anchorNames()) names.insert(name);
    return names;
}

void collect(const std::vector<HelpSection>& sections, std::multiset<QUrl>& pages) {
    for (const HelpSection& section : sections) {
        pages.insert(section.page);
        collect(section.below, pages);
    }
}

TEST_F(HelpTest, EveryPageStandsInTheContentsAndItsLinksAndPicturesAreThere) {
    ASSERT_GT(book->pages().size(), 50);
    std::multiset<QUrl> inContents;
    collect(book->contents(), inContents);
    EXPECT_EQ(inContents, std::multiset<QUrl>(book->pages().begin(), book->pages().end()));
    for (const QUrl& page : book->pages()) {
        SCOPED_TRACE(utf8(page.fileName()));
        const QByteArray html = book->data(page);
        QTextDocument read;
        read.setHtml(QString::fromUtf8(html));
        EXPECT_FALSE(read.metaInformation(QTextDocument::DocumentTitle).isEmpty());
        for (const QTextCharFormat& format : formatsOf(html)) {
            if (format.isImageFormat()) {
                const QString name = format.toImageFormat().name();
                EXPECT_FALSE(QImage::fromData(book->data(page.resolved(QUrl(name)))).isNull()) << utf8(name);
            }
            if (format.anchorHref().isEmpty()) continue;
            const QUrl target = page.resolved(QUrl(format.anchorHref()));
            const QByteArray found = book->data(target.adjusted(QUrl::RemoveFragment));
            EXPECT_FALSE(found.isEmpty()) << utf8(format.anchorHref());
            EXPECT_TRUE(!target.hasFragment() || anchorsOf(found).contains(target.fragment()))
                << utf8(target.fragment());
        }
    }
}

TEST_F(HelpTest, EachCalculatorHasAPageThatNamesIt) {
    for (const CalculatorGroup& group : calculatorGroups()) {
        EXPECT_NE(book->pageOf(group.helpContext), book->contentsPage()) << group.helpContext;
        const QString groupPage = QString::fromUtf8(book->data(book->pageOf(group.helpContext)));
        for (const CalculatorTab& tab : group.tabs) {
            EXPECT_TRUE(groupPage.contains(qstring(tab.caption))) << tab.caption;
            if (!tab.panel) continue;
            const QUrl page = book->pageOf(tab.panel()->helpContext);
            EXPECT_NE(page, book->contentsPage()) << tab.caption;
            EXPECT_TRUE(QString::fromUtf8(book->data(page)).contains(qstring(tab.caption), Qt::CaseInsensitive))
                << tab.caption;
        }
    }
}

TEST_F(HelpTest, SearchesKeywordsFirstAndThenThePages) {
    const QList<HelpTopic> keywords = book->search({});
    EXPECT_GT(keywords.size(), 100);
    for (const HelpTopic& keyword : keywords) EXPECT_FALSE(book->data(keyword.page).isEmpty()) << utf8(keyword.text);
    struct Row {
        const char* text;
        const char* firstPage;
    };
    for (const Row& row : {Row{"BACKUP", "backup.html"}, Row{"tax", "estimate-totals.html"},
                           Row{"  larkfen.mdb ", "data.html"}, Row{"2652 + 7956", "tab8.html"}}) {
        const QList<HelpTopic> found = book->search(row.text);
        ASSERT_FALSE(found.isEmpty()) << row.text;
        EXPECT_EQ(utf8(found.constFirst().page.fileName()), row.firstPage) << row.text;
    }
    EXPECT_TRUE(book->search(QStringLiteral("no such word as qwxz")).isEmpty());
    EXPECT_EQ(filesIn(folder.path()).size(), 1U) << "a temporary file that a killed process would leave";
}

}  // namespace
}  // namespace torvane
