#include "help/help_page.h"

#include <QEvent>

#include "help/help_book.h"

namespace torvane {

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    if (!book_) return {};
    const QByteArray found = book_->data(source().resolved(name));
    if (type == QTextDocument::ImageResource) return found;
    return QString::fromUtf8(found);
}

void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    // The colours of links and tables are taken when a page is read.
    if (event->type() == QEvent::PaletteChange && book_) reload();
}

}  // namespace torvane
