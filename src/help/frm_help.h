#pragma once

#include <QString>
#include <QUrl>
#include <memory>

#include "screens/form.h"
#include "ui_frm_help.h"

namespace torvane {

class HelpBook;

// The window of the help: the contents, a search by keywords and words, and the page. It opens the book and closes it
// again; nothing is remembered. Over a modal window it stands as one that can be used.
//
// A book that is missing or damaged is said in a message box, and the program goes on.
class frmHelp : public FormOf<Ui::frmHelp> {
public:
    // From now on F1 in each window comes here.
    explicit frmHelp(Program& program);
    ~frmHelp() override;

    void showContents();
    // The keywords, ready for typing.
    void showSearch();
    // The page of a window's help context; the contents for 0 or a context without a page.
    void showPage(int context);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    bool open();
    void connectControls();
    void turnTo(const QUrl& page);
    void search();
    void startSearch(const QString& typed = {});
    void markInContents(const QUrl& page);

    std::unique_ptr<HelpBook> book_;
};

}  // namespace torvane
