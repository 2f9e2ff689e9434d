#include <gtest/gtest.h>

#include <QRegularExpression>
#include <algorithm>
#include <set>

#include "help/help_book.h"
#include "support/data_folder.h"
#include "widgets/texts.h"

namespace torvane {
namespace {

class HelpTest : public ::testing::Test {
protected:
    QString delivered() {
        folder.useHelpBook();
        return qstring(folder.helpBook());
    }
    void collect(const std::vector<HelpSection>& sections) {
        for (const HelpSection& section : sections) {
            inContents.insert(section.page);
            collect(section.below);
        }
    }

    DataFolder folder;
    HelpBook book{delivered()};
    std::multiset<QUrl> inContents;
};

TEST_F(HelpTest, EveryPageStandsInTheContentsAndWhatItLeadsToIsThere) {
    ASSERT_GT(book.contents().size(), 5U) << "a tree, and its roots";
    collect(book.contents());
    EXPECT_EQ(inContents, std::multiset<QUrl>(book.pages().begin(), book.pages().end()));
    static const QRegularExpression link(QStringLiteral("(?:href|src)=\"([^\"]+)\""));
    for (const QUrl& page : book.pages()) {
        for (const QRegularExpressionMatch& each : link.globalMatch(QString::fromUtf8(book.data(page)))) {
            const QUrl there = page.resolved(QUrl(each.captured(1)));
            EXPECT_FALSE(book.data(there).isEmpty()) << qPrintable(page.fileName() + " leads to " + there.fileName());
        }
    }
}

TEST_F(HelpTest, SearchesKeywordsFirstAndThenThePages) {
    const QList<HelpTopic> keywords = book.search({});
    EXPECT_GT(keywords.size(), 100);
    EXPECT_TRUE(std::ranges::is_sorted(keywords, {}, [](const HelpTopic& topic) { return topic.text.toLower(); }));
    for (const HelpTopic& keyword : keywords) EXPECT_FALSE(book.data(keyword.page).isEmpty()) << utf8(keyword.text);
    for (const auto& [text, page] : {std::pair{"BACKUP", "backup.html"},
                                     {"  larkfen.mdb ", "data.html"},
                                     {"how do I save an estimate?", "estimate.html"},  // and not "saved estimates"
                                     {"deleting customers", "customers.html"},
                                     {"dry wall", "area-calculator.html"},
                                     {"take-off", "names.html"},
                                     {"E-mail", "limits.html"},
                                     {"does not do", "limits.html"},
                                     {"hip rafters", "tab12.html"},
                                     {"something wrong", "trouble.html"},
                                     {"2652 + 7956", "tab8.html"}}) {
        const QList<HelpTopic> found = book.search(text);
        ASSERT_FALSE(found.isEmpty()) << text;
        EXPECT_EQ(utf8(found.constFirst().page.fileName()), page) << text;
    }
    EXPECT_TRUE(book.search(QStringLiteral("backup qwxz")).isEmpty()) << "all words count";
    EXPECT_TRUE(book.search(QStringLiteral("ackup")).isEmpty()) << "a word is found by its beginning";
}

}  // namespace
}  // namespace torvane
