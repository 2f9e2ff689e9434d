#pragma once

#include <QTextBrowser>

namespace torvane {

class HelpBook;

// The page that is read. Pages and pictures come from the book alone.
class HelpPage : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpPage(QWidget* parent = nullptr) : QTextBrowser(parent) {}
    void setBook(const HelpBook* book) { book_ = book; }

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    const HelpBook* book_ = nullptr;
};

}  // namespace torvane
