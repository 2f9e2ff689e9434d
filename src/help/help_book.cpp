#include "help/help_book.h"

#include <QFileInfo>
#include <QHelpLink>
#include <QRegularExpression>
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

// The words of a text, small letters. What ties letters together within a word goes: "e-mail" is "email".
QStringList wordsOf(const QString& text) {
    static const QRegularExpression tie(QStringLiteral("(?<=\\p{L})['’-](?=\\p{L})"));
    static const QRegularExpression between(QStringLiteral("[^\\p{L}\\p{N}]+"));
    return text.toLower().remove(tie).split(between, Qt::SkipEmptyParts);
}

// What is looked for: words without those of which questions are made, each as the beginnings that will do.
class Sought {
public:
    explicit Sought(const QString& text) {
        static const QStringList idle = wordsOf(QStringLiteral(
            "a an and are at be can cant did do does doesnt dont for from get has have how i if in into is it make "
            "many me much my need of on or put set the there this to want was we what when where which why will with "
            "wont would you your"));
        const QStringList all = wordsOf(text);
        for (const QString& word : all)
            if (!idle.contains(word)) words_.append(word);
        if (words_.isEmpty()) words_ = all;
    }

    bool empty() const { return words_.isEmpty(); }
    const QStringList& words() const { return words_; }

    // How often the words stand in a text; 0 when one of them does not.
    qsizetype hits(const QStringList& words) const {
        qsizetype hits = 0;
        for (const QString& sought : words_) {
            const qsizetype here =
                std::ranges::count_if(words, [&](const QString& word) { return begins(word, sought); });
            if (here == 0) return 0;
            hits += here;
        }
        return hits;
    }

    // A text of a few words; "dry wall" finds "drywall", too.
    bool in(const QString& line) const {
        const QStringList words = wordsOf(line);
        return hits(words) > 0 || (!empty() && words.join(QString()).startsWith(words_.join(QString())));
    }

    bool wholeIn(const QString& line) const {
        const QStringList words = wordsOf(line);
        return std::ranges::all_of(words_, [&](const QString& word) { return words.contains(word); });
    }

private:
    static bool begins(const QString& word, const QString& sought) {
        static const QRegularExpression ending(QStringLiteral("(?<=...)(?:s|es|ed|ing)$"));
        return word.startsWith(sought) || word.startsWith(QString(sought).remove(ending));
    }

    QStringList words_;
};

}  // namespace

HelpBook::HelpBook(const QString& file) : engine_(folder_.filePath(QStringLiteral("collection"))) {
    if (!QFileInfo(file).isFile()) fail(Failure::FileNotFound, utf8(file));
    engine_.setReadOnly(false);  // the collection in the temporary folder; a book is never written
    name_ = QHelpEngineCore::namespaceName(file);
    if (engine_.setupData() && engine_.registerDocumentation(file)) readProject();
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
    std::ranges::stable_sort(keywords_, {}, [](const HelpTopic& topic) { return topic.text.toLower(); });
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
        const QString title = page.metaInformation(QTextDocument::DocumentTitle);
        QString names = title;
        for (const HelpTopic& keyword : keywords_)
            if (keyword.page.matches(address, QUrl::RemoveFragment)) names += QLatin1Char('\n') + keyword.text;
        constexpr int nameCounts = 5;
        names = (names + QLatin1Char('\n')).repeated(nameCounts);
        texts_.append({address, title, wordsOf(names + page.toPlainText())});
    }
    std::ranges::sort(texts_, {}, &Page::title);
    return texts_;
}

QList<HelpTopic> HelpBook::search(const QString& text) const {
    if (text.simplified().isEmpty()) return keywords_;
    const Sought sought(text);
    QList<HelpTopic> found;
    for (const HelpTopic& keyword : keywords_)
        if (sought.in(keyword.text)) found.append(keyword);
    // A keyword is nearer when it has the very words, and when it has less besides.
    std::ranges::stable_sort(
        found, {}, [&](const HelpTopic& topic) { return std::pair(!sought.wholeIn(topic.text), topic.text.size()); });

    const auto listed = [&](const Page& page) {
        return std::ranges::any_of(
            found, [&](const HelpTopic& one) { return one.page.matches(page.address, QUrl::RemoveFragment); });
    };
    std::vector<std::pair<qsizetype, HelpTopic>> pages;
    for (const Page& page : texts()) {
        if (listed(page)) continue;
        if (sought.in(page.title))
            found.append({page.title, page.address});
        else if (const qsizetype hits = sought.hits(page.words); hits > 0)
            pages.push_back({hits, {page.title, page.address}});
    }
    std::ranges::stable_sort(pages, std::ranges::greater(), &std::pair<qsizetype, HelpTopic>::first);
    for (const auto& page : pages) found.append(page.second);
    return found;
}

QList<HelpTopic> HelpBook::nearest(const QString& text) const {
    std::vector<std::pair<double, HelpTopic>> near;
    for (const HelpTopic& keyword : keywords_) near.push_back({0, keyword});
    const Sought all(text);
    for (const QString& word : all.words()) {
        const Sought sought(word);
        const auto has = [&](const auto& one) { return sought.in(one.second.text); };
        const auto those = std::ranges::count_if(near, has);
        for (auto& one : near)
            if (has(one)) one.first += (sought.wholeIn(one.second.text) ? 2.0 : 1.0) / static_cast<double>(those);
    }
    std::ranges::stable_sort(near, std::ranges::greater(), &std::pair<double, HelpTopic>::first);
    QList<HelpTopic> found;
    for (const auto& [weight, keyword] : near)
        if (weight > 0 && found.size() < 10) found.append(keyword);
    return found;
}

}  // namespace torvane
