#include "help/help_book.h"

#include <QFileInfo>
#include <QHelpContentModel>
#include <QHelpEngine>
#include <QHelpIndexModel>
#include <QHelpLink>
#include <QTextDocument>
#include <algorithm>

#include "platform/controls.h"
#include "values/failure.h"

namespace torvane {

namespace {

constexpr auto frontPage = "qthelp://%1/book/index.html";

bool holdsAll(const QString& text, const QStringList& words) {
    return std::ranges::all_of(words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

HelpBook::HelpBook(const QString& file, QObject* parent)
    : QObject(parent), engine_(new QHelpEngine(folder_.filePath(QStringLiteral("collection")), this)) {
    if (!QFileInfo(file).isFile()) fail(Failure::FileNotFound, utf8(file));
    name_ = QHelpEngineCore::namespaceName(file);
    engine_->setReadOnly(false);  // the collection in the temporary folder; a book is never written
    connect(engine_->indexModel(), &QHelpIndexModel::indexCreated, this, &HelpBook::readKeywords);
    if (name_.isEmpty() || !engine_->setupData() || !engine_->registerDocumentation(file))
        throw RuntimeFailure(static_cast<int>(Failure::InvalidCall), "The help book is damaged", utf8(file));
    engine_->contentModel()->createContents({});
    engine_->indexModel()->createIndex({});
}

QHelpContentModel& HelpBook::contents() const {
    return *engine_->contentModel();
}

QUrl HelpBook::contentsPage() const {
    return QUrl(QString::fromLatin1(frontPage).arg(name_));
}

QUrl HelpBook::pageOf(int context) const {
    const QList<QHelpLink> found = engine_->documentsForIdentifier(QString::number(context));
    return found.isEmpty() ? contentsPage() : found.constFirst().url;
}

QList<QUrl> HelpBook::pages() const {
    return engine_->files(name_, QString(), QStringLiteral("html"));
}

QByteArray HelpBook::data(const QUrl& address) const {
    return engine_->fileData(address);
}

void HelpBook::readKeywords() {
    keywords_.clear();
    for (const QString& keyword : engine_->indexModel()->stringList()) {
        const QList<QHelpLink> pages = engine_->documentsForKeyword(keyword);
        for (const QHelpLink& page : pages)
            keywords_.append({pages.size() == 1 ? keyword : keyword + QStringLiteral(": ") + page.title, page.url});
    }
    emit indexed();
}

const QList<HelpBook::Page>& HelpBook::texts() const {
    if (!texts_.isEmpty()) return texts_;
    for (const QUrl& address : pages()) {
        QTextDocument page;
        page.setHtml(QString::fromUtf8(data(address)));
        texts_.append({address, page.metaInformation(QTextDocument::DocumentTitle), page.toPlainText()});
    }
    std::ranges::sort(texts_, {}, &Page::title);
    return texts_;
}

QList<HelpTopic> HelpBook::search(const QString& text) const {
    const QString sought = text.simplified();
    if (sought.isEmpty()) return keywords_;
    QList<HelpTopic> found;
    for (const HelpTopic& keyword : keywords_)
        if (keyword.text.contains(sought, Qt::CaseInsensitive)) found.append(keyword);
    const QStringList words = sought.split(QLatin1Char(' '));
    for (const Page& page : texts()) {
        const bool listed = std::ranges::any_of(found, [&](const HelpTopic& one) { return one.page == page.address; });
        if (!listed && holdsAll(page.text, words)) found.append({page.title, page.address});
    }
    return found;
}

}  // namespace torvane
