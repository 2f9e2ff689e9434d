#include "help/frm_help.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QTreeWidgetItemIterator>

#include "help/help_book.h"
#include "host/host.h"
#include "values/failure.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr int pageRole = Qt::UserRole;

// Runs an act for keys that come to a control and are none of its own.
class KeysOf : public QObject {
public:
    KeysOf(QWidget& control, std::function<bool(const QKeyEvent&)> pressed)
        : QObject(&control), pressed_(std::move(pressed)) {
        control.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::KeyPress && pressed_(static_cast<const QKeyEvent&>(*event));
    }

private:
    std::function<bool(const QKeyEvent&)> pressed_;
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
        program().say(failure.text() + ": " + failure.refused(), defaultTitle);
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
    for (int row = 0; row < ui().TreeContents->topLevelItemCount(); ++row)
        ui().TreeContents->topLevelItem(row)->setExpanded(true);
    search();
    const int contentsWidth = static_cast<int>(260 * fontScale(window()));
    ui().Splitter->setSizes({contentsWidth, window().width() - contentsWidth});
    ui().Splitter->setStretchFactor(1, 1);
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
    click(ui().cmdClose, "Escape", [this] { Unload(); });
    on(*this, new QShortcut(QKeySequence::Find, &window()), &QShortcut::activated, [this] { startSearch(); });

    on(*this, ui().Page, &QTextBrowser::backwardAvailable, [this](bool there) { ui().cmdBack->setEnabled(there); });
    on(*this, ui().Page, &QTextBrowser::forwardAvailable, [this](bool there) { ui().cmdForward->setEnabled(there); });
    on(*this, ui().Page, &QTextBrowser::sourceChanged, [this](const QUrl& page) { markInContents(page); });

    const auto openLine = [this](const QTreeWidgetItem* line) { turnTo(line->data(0, pageRole).toUrl()); };
    on(*this, ui().TreeContents, &QTreeWidget::itemClicked, openLine);
    on(*this, ui().TreeContents, &QTreeWidget::itemActivated, openLine);
    const auto openFound = [this](const QListWidgetItem* found) { turnTo(found->data(pageRole).toUrl()); };
    on(*this, ui().lstFound, &QListWidget::itemClicked, openFound);
    on(*this, ui().lstFound, &QListWidget::itemActivated, openFound);

    on(*this, ui().txtSearch, &QLineEdit::textChanged, [this] { search(); });
    on(*this, ui().txtSearch, &QLineEdit::returnPressed, [this, openFound] {
        if (const QListWidgetItem* found = ui().lstFound->currentItem()) openFound(found);
    });
    new KeysOf(*ui().txtSearch, [this](const QKeyEvent& key) {
        if (key.key() != Qt::Key_Down) return false;
        ui().lstFound->setFocus();
        return true;
    });
    for (QWidget* from : {static_cast<QWidget*>(ui().Page), static_cast<QWidget*>(ui().TreeContents),
                          static_cast<QWidget*>(ui().lstFound)})
        takeKeys(*from);
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
    for (const HelpTopic& topic : book_->search(ui().txtSearch->text())) {
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

// What is typed over a page or a list goes into the search.
void frmHelp::takeKeys(QWidget& from) {
    new KeysOf(from, [this, window = standingWindow()](const QKeyEvent& key) {
        const QString typed = key.text();
        if (typed.isEmpty() || !typed.front().isLetterOrNumber() || key.modifiers().testFlag(Qt::ControlModifier) ||
            key.modifiers().testFlag(Qt::AltModifier))
            return false;
        asHandler(program(), window, [&] { startSearch(typed); });
        return true;
    });
}

}  // namespace torvane
