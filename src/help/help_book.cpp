#include "help/help_book.h"

#include <QFileInfo>
#include <QHelpLink>
#include <QTextDocument>
#include <QXmlStreamReader>
#include <algorithm>

#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

QString attribute(const QXmlStreamReader& xml, const char* name) {
    return xml.attributes().value(QLatin1String(name)).toString();
}

bool holdsAll(const QString& text, const QStringList& words) {
    return std::ranges::all_of(words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

HelpBook::HelpBook(const QString& file) : engine_(folder_.filePath(QStringLiteral("collection"))) {
    if (!QFileInfo(file).isFile()) fail(Failure::FileNotFound, utf8(file));
    engine_.setReadOnly(false);  // the collection in the temporary folder; a book is never written
    name_ = QHelpEngineCore::namespaceName(file);
    if (!name_.isEmpty() && engine_.setupData() && engine_.registerDocumentation(file)) readProject();
    // The engine holds its collection open; without a name it goes with the process, however that ends.
    folder_.remove();
    if (contents_.empty())
        throw RuntimeFailure(static_cast<int>(Failure::InvalidCall), "The help book is damaged", utf8(file));
}

QUrl HelpBook::address(const QString& name) const {
    return QUrl(QStringLiteral("qthelp://%1/book/%2").arg(name_, name));
}

void HelpBook::readProject() {
    pages_ = engine_.files(name_, QString(), QStringLiteral("html"));
    QXmlStreamReader xml(data(address(QStringLiteral("torvane.qhp"))));
    std::vector<std::vector<HelpSection>*> open{&contents_};
    while (!xml.atEnd()) {
        xml.readNext();
        const bool section = xml.name() == QLatin1String("section");
        if (xml.isStartElement() && section) {
            open.back()->push_back({attribute(xml, "title"), address(attribute(xml, "ref")), {}});
            open.push_back(&open.back()->back().below);
        } else if (xml.isEndElement() && section) {
            open.pop_back();
        } else if (xml.isStartElement() && xml.name() == QLatin1String("keyword")) {
            keywords_.append({attribute(xml, "name"), address(attribute(xml, "ref"))});
        }
    }
    std::ranges::stable_sort(keywords_, [](const HelpTopic& one, const HelpTopic& other) {
        return one.text.compare(other.text, Qt::CaseInsensitive) < 0;
    });
}

QUrl HelpBook::contentsPage() const {
    return address(QStringLiteral("index.html"));
}

QUrl HelpBook::pageOf(int context) const {
    const QList<QHelpLink> found = engine_.documentsForIdentifier(QString::number(context));
    return found.isEmpty() ? contentsPage() : found.constFirst().url;
}

QByteArray HelpBook::data(const QUrl& address) const {
    return engine_.fileData(address);
}

const QList<HelpBook::Page>& HelpBook::texts() const {
    if (!texts_.isEmpty()) return texts_;
    for (const QUrl& address : pages_) {
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
