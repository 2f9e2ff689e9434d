// The conversions program: one small window, no files but the help book, which F1 opens at its page.

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include "conversions/screens/conversion_window.h"
#include "help/help_book.h"
#include "help/help_page.h"
#include "values/failure.h"
#include "widgets/pictures.h"
#include "widgets/roles.h"
#include "widgets/style.h"
#include "widgets/texts.h"

namespace {

constexpr int helpContext = 41;

// The book and the window in which it is read.
class Help : public QDialog {
public:
    explicit Help(QWidget* owner)
        : QDialog(owner), book_(QCoreApplication::applicationDirPath() + "/LARKFENVERSION2.HLP") {
        setWindowTitle(QStringLiteral("Torvane Help"));
        auto* page = new torvane::HelpPage(this);
        page->setAccessibleName(QStringLiteral("Page"));
        page->setBook(&book_);
        page->document()->setDocumentMargin(14);
        page->setSource(book_.pageOf(helpContext), QTextDocument::HtmlResource);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(page);
        const int letter = fontMetrics().averageCharWidth();
        resize(QSize(104 * letter, 90 * letter).boundedTo(screen()->availableSize() * 0.9));
    }

private:
    torvane::HelpBook book_;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    torvane::applyStyle(application);
    torvane::installRoles();
    QApplication::setWindowIcon(torvane::picture(QStringLiteral("conversions")));
    torvane::ConversionWindow window;
    Help* help = nullptr;
    QObject::connect(new QShortcut(QKeySequence::HelpContents, &window), &QShortcut::activated, [&window, &help] {
        try {
            if (!help) help = new Help(&window);
            help->show();
            help->activateWindow();
        } catch (const torvane::RuntimeFailure& failure) {
            QMessageBox::warning(&window, window.windowTitle(),
                                 torvane::qstring(failure.text() + ": " + failure.refused()));
        }
    });
    window.show();
    return QApplication::exec();
}
