#pragma once

#include <QList>
#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

class QHelpContentModel;
class QHelpEngine;

namespace torvane {

// A line of the search: what it says, and the page that it leads to.
struct HelpTopic {
    QString text;
    QUrl page;
};

// The help book: a compressed Qt help file. Only read, wherever it lies; what the engine keeps besides goes into a
// temporary folder of its own, which leaves with the book.
class HelpBook : public QObject {
    Q_OBJECT
public:
    // Failure::FileNotFound when there is no such file; another failure, with its words, when it is no help book.
    HelpBook(const QString& file, QObject* parent);

    // Fills itself when the event loop runs.
    QHelpContentModel& contents() const;
    QUrl contentsPage() const;
    // The page of a help context; the contents where there is none.
    QUrl pageOf(int context) const;
    // Every page, in no order.
    QList<QUrl> pages() const;
    // A page, picture or style sheet; empty when there is none.
    QByteArray data(const QUrl& address) const;

    // The keywords that contain the text, then the pages with each of its words; every keyword for an empty text.
    // Letters of either case are the same.
    QList<HelpTopic> search(const QString& text) const;

signals:
    // The keywords are there to be searched.
    void indexed();

private:
    struct Page {
        QUrl address;
        QString title;
        QString text;
    };
    const QList<Page>& texts() const;
    void readKeywords();

    QTemporaryDir folder_;
    QHelpEngine* engine_;
    QString name_;
    QList<HelpTopic> keywords_;
    mutable QList<Page> texts_;  // read with the first search
};

}  // namespace torvane
