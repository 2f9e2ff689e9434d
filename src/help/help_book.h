#pragma once

#include <QHelpEngineCore>
#include <QList>
#include <QTemporaryDir>
#include <QUrl>
#include <vector>

namespace torvane {

// A line of the search: what it says, and the page that it leads to.
struct HelpTopic {
    QString text;
    QUrl page;
};

// A line of the contents, with the lines below it.
struct HelpSection {
    QString title;
    QUrl page;
    std::vector<HelpSection> below;
};

// The help book: a compressed Qt help file, opened for reading only. What the engine keeps besides goes into a
// temporary folder of its own, which goes as soon as the book is open.
class HelpBook {
public:
    // Failure::FileNotFound when there is no such file; another failure, with its words, when it is no help book.
    explicit HelpBook(const QString& file);

    // As the book's project file has it, which is a part of the book.
    const std::vector<HelpSection>& contents() const { return contents_; }
    QUrl contentsPage() const;
    // The page of a help context; the contents where there is none.
    QUrl pageOf(int context) const;
    // Every page, in no order.
    const QList<QUrl>& pages() const { return pages_; }
    // A page, picture or style sheet; empty when there is none.
    QByteArray data(const QUrl& address) const;

    // The keywords in which each word of the text begins a word, the nearest first; then the pages of whose title that
    // is true; then those in whose text or keywords it is, the one with most such words first. Every keyword for an
    // empty text. Letters of either case are the same, the endings -s, -ed and -ing count for nothing, nor do words
    // such as "how".
    QList<HelpTopic> search(const QString& text) const;
    // For a text that finds nothing: up to ten keywords with some of its words. The rarer a word is, the more it
    // counts; one that stands there as it was typed counts twice.
    QList<HelpTopic> nearest(const QString& text) const;

private:
    struct Page {
        QUrl address;
        QString title;
        QStringList words;
    };
    QUrl address(const QString& name) const;
    void readProject();
    const QList<Page>& texts() const;

    QTemporaryDir folder_;
    QHelpEngineCore engine_;
    QString name_;
    std::vector<HelpSection> contents_;
    QList<HelpTopic> keywords_;
    QList<QUrl> pages_;
    mutable QList<Page> texts_;  // read with the first search
};

}  // namespace torvane
