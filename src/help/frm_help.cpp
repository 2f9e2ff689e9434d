#include "help/frm_help.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>
#include <QTreeWidgetItemIterator>

#include "help/help_book.h"
#include "host/host.h"
#include "values/failure.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr int pageRole = Qt::UserRole;

// Hears the characters that are typed over a control.
class TypedOver : public QObject {
public:
    TypedOver(QWidget& control, std::function<void(const QString&)> typed)
        : QObject(&control), typed_(std::move(typed)) {
        control.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const QString text = key.text();
        if (text.isEmpty() || !text.front().isLetterOrNumber() ||
            key.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
            return false;
        typed_(text);
        return true;
    }

private:
    std::function<void(const QString&)> typed_;
};

void addSections(QTreeWidgetItem& above, const std::vector<HelpSection>& sections) {
    for (const HelpSection& section : sections) {
        auto* line = new QTreeWidgetItem(&above, {section.title});
        line->setData(0, pageRole, section.page);
        addSections(*line, section.below);
    }
}

}  // namespace

frmHelp::frmHelp(Program& program) : FormOf(program, "frmHelp") {
    setHelpContext(3);
    setAuxiliary(true);
    program.setHelp([this](int context) { showPage(context); });
}

frmHelp::~frmHelp() = default;

// --- Opening ---------------------------------------------------------------------------------------------------------

bool frmHelp::open() {
    try {
        Load();
    } catch (const RuntimeFailure& failure) {
        program().say(failure.text() + ": " + failure.refused() + "\n\nInstall the program again; your data stay.",
                      defaultTitle);
        return false;
    }
    Show();
    return true;
}

void frmHelp::showContents() {
    if (!open()) return;
    turnTo(book_->contentsPage());
    ui().TabStrip1->setCurrentWidget(ui().tabContents);
    ui().TreeContents->setFocus();
}

void frmHelp::showSearch() {
    if (!open()) return;
    if (ui().Page->source().isEmpty()) turnTo(book_->contentsPage());
    startSearch();
}

void frmHelp::showPage(int context) {
    if (!open()) return;
    turnTo(book_->pageOf(context));
    ui().Page->setFocus();
}

void frmHelp::Form_Load() {
    book_ = std::make_unique<HelpBook>(qstring(program().host().programDirectory() + "/LARKFENVERSION2.HLP"));
    ui().Page->setBook(book_.get());
    constexpr int pageMargin = 14;
    ui().Page->document()->setDocumentMargin(pageMargin);
    addSections(*ui().TreeContents->invisibleRootItem(), book_->contents());
    ui().TreeContents->expandToDepth(0);
    search();
    const int contentsWidth = static_cast<int>(260 * fontScale(window()));
    ui().Splitter->setSizes({contentsWidth, window().width() - contentsWidth});
    ui().TabStrip1->tabBar()->setAccessibleName(QStringLiteral("Tabs"));  // it has no name but the tab's in front
    ui().cmdBack->setEnabled(false);
    ui().cmdForward->setEnabled(false);
    connectControls();
    program().StartUp(*this);
}

// The page lives a little longer than its screen.
void frmHelp::Form_Unload() {
    ui().Page->setBook(nullptr);
    book_.reset();
}

void frmHelp::connectControls() {
    const auto click = [this](QAbstractButton* button, const char* keys, auto handler) {
        on(*this, button, &QAbstractButton::clicked, handler);
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), &window());
        QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
    };
    click(ui().cmdBack, "Alt+Left", [this] { ui().Page->backward(); });
    click(ui().cmdForward, "Alt+Right", [this] { ui().Page->forward(); });
    click(ui().cmdContents, "Alt+Home", [this] { turnTo(book_->contentsPage()); });
    click(ui().cmdSmaller, "Ctrl+-", [this] { ui().Page->zoomOut(); });
    click(ui().cmdLarger, "Ctrl++", [this] { ui().Page->zoomIn(); });
    on(*this, ui().cmdClose, &QAbstractButton::clicked, [this] { Unload(); });
    on(*this, new QShortcut(QKeySequence::Find, &window()), &QShortcut::activated, [this] { startSearch(); });

    on(*this, ui().Page, &QTextBrowser::backwardAvailable, [this](bool there) { ui().cmdBack->setEnabled(there); });
    on(*this, ui().Page, &QTextBrowser::forwardAvailable, [this](bool there) { ui().cmdForward->setEnabled(there); });
    on(*this, ui().Page, &QTextBrowser::sourceChanged, [this](const QUrl& page) { markInContents(page); });

    const auto openLine = [this](const QModelIndex& line) {
        const QUrl page = line.data(pageRole).toUrl();
        page.isEmpty() ? showContents() : turnTo(page);
    };
    for (QAbstractItemView* lines : std::initializer_list<QAbstractItemView*>{ui().TreeContents, ui().lstFound}) {
        on(*this, lines, &QAbstractItemView::clicked, openLine);
        on(*this, lines, &QAbstractItemView::activated, openLine);
    }

    on(*this, ui().txtSearch, &QLineEdit::textChanged, [this] { search(); });
    on(*this, ui().txtSearch, &QLineEdit::returnPressed, [this, openLine] { openLine(ui().lstFound->currentIndex()); });
    auto* down = new QShortcut(Qt::Key_Down, ui().txtSearch, nullptr, nullptr, Qt::WidgetShortcut);
    on(*this, down, &QShortcut::activated, [this] { ui().lstFound->setFocus(); });
    // What is typed over a page or a list goes into the search.
    for (QWidget* control : std::initializer_list<QWidget*>{ui().Page, ui().TreeContents, ui().lstFound})
        new TypedOver(*control, [this, window = standingWindow()](const QString& typed) {
            asHandler(program(), window, [&] { startSearch(typed); });
        });
}

// --- Reading ---------------------------------------------------------------------------------------------------------

void frmHelp::turnTo(const QUrl& page) {
    ui().Page->setSource(page, QTextDocument::HtmlResource);
}

void frmHelp::markInContents(const QUrl& page) {
    const QUrl whole = page.adjusted(QUrl::RemoveFragment);
    for (QTreeWidgetItemIterator line(ui().TreeContents); *line; ++line) {
        if ((*line)->data(0, pageRole).toUrl() != whole) continue;
        ui().TreeContents->setCurrentItem(*line);
        (*line)->setExpanded(true);
        return;
    }
}

// --- Searching -------------------------------------------------------------------------------------------------------

void frmHelp::search() {
    QListWidget& list = *ui().lstFound;
    list.clear();
    const QString text = ui().txtSearch->text();
    QList<HelpTopic> topics = book_->search(text);
    if (topics.isEmpty()) {
        topics = book_->nearest(text);
        topics.prepend({QStringLiteral("Nothing found. See the contents."), {}});
    }
    for (const HelpTopic& topic : topics) {
        auto* line = new QListWidgetItem(topic.text, &list);
        line->setData(pageRole, topic.page);
    }
    list.setCurrentRow(0);
}

void frmHelp::startSearch(const QString& typed) {
    ui().TabStrip1->setCurrentWidget(ui().tabSearch);
    ui().txtSearch->setFocus();
    ui().txtSearch->selectAll();
    if (!typed.isEmpty()) ui().txtSearch->insert(typed);
}

}  // namespace torvane
