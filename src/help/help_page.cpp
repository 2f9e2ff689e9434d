#include "help/help_page.h"

#include <QEvent>

#include "help/help_book.h"

namespace torvane {

QVariant HelpPage::loadResource(int, const QUrl& name) {
    return book_ ? book_->data(source().resolved(name)) : QVariant();
}

void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    // The colours of links and tables are taken when a page is read.
    if (event->type() == QEvent::PaletteChange && book_) reload();
}

}  // namespace torvane
