#include "help/frm_help.h"

#include <QHelpContentItem>
#include <QHelpContentModel>
#include <QKeyEvent>
#include <QShortcut>

#include "help/help_book.h"
#include "host/host.h"
#include "platform/help_contexts.h"

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

QModelIndex lineOf(const QHelpContentModel& contents, const QUrl& page, const QModelIndex& in = {}) {
    for (int row = 0; row < contents.rowCount(in); ++row) {
        const QModelIndex line = contents.index(row, 0, in);
        if (contents.contentItemAt(line)->url() == page) return line;
        if (const QModelIndex below = lineOf(contents, page, line); below.isValid()) return below;
    }
    return {};
}

}  // namespace

frmHelp::frmHelp(Program& program) : FormOf(program, "frmHelp") {
    setHelpContext(HelpContext::help);
}

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
    book_ = new HelpBook(helpFile_, &window());
    ui().Page->setBook(book_);
    ui().TreeContents->setModel(&book_->contents());
    constexpr int contentsWidth = 260;
    ui().Splitter->setSizes({contentsWidth, window().width() - contentsWidth});
    ui().Splitter->setStretchFactor(1, 1);
    ui().cmdBack->setEnabled(false);
    ui().cmdForward->setEnabled(false);
    connectControls();
    program().StartUp(*this);
}

void frmHelp::dropControls() {
    book_ = nullptr;
    FormOf::dropControls();
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
    on(*this, &book_->contents(), &QHelpContentModel::contentsCreated, [this] { markInContents(ui().Page->source()); });
    on(*this, book_, &HelpBook::indexed, [this] { search(); });

    const auto open = [this](const QModelIndex& line) { turnTo(book_->contents().contentItemAt(line)->url()); };
    on(*this, ui().TreeContents, &QTreeView::clicked, open);
    on(*this, ui().TreeContents, &QTreeView::activated, open);
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
    const QModelIndex line = lineOf(book_->contents(), page.adjusted(QUrl::RemoveFragment));
    if (!line.isValid()) return;
    ui().TreeContents->setCurrentIndex(line);
    ui().TreeContents->expand(line);
    ui().TreeContents->scrollTo(line);
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
    new KeysOf(from, [this](const QKeyEvent& key) {
        const QString typed = key.text();
        if (typed.isEmpty() || !typed.front().isLetterOrNumber() || key.modifiers().testFlag(Qt::ControlModifier) ||
            key.modifiers().testFlag(Qt::AltModifier))
            return false;
        asHandler(program(), standingWindow(), [&] { startSearch(typed); });
        return true;
    });
}

}  // namespace torvane
