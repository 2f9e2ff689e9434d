// The tour: the real windows through the road of a new estimate, on the sample business, leaving a picture of each
// window and the proposal as PDF.
//
//   tour [--dark] [--large] <program folder> <folder for the pictures>
//
// With --dark the windows wear the colours of a dark desktop, with --large they are in type half as large again.
// It ends with status 0 when every step was reached, and says where it stopped otherwise.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "assistant/animated_assistant.h"
#include "screens/guarded_application.h"
#include "screens/qt_host.h"
#include "shell/pictures_init.h"
#include "shell/screens.h"
#include "widgets/drop_list.h"
#include "widgets/report_list.h"
#include "widgets/text_box.h"
#include "widgets/texts.h"

namespace torvane {
namespace {

[[noreturn]] void stop(const QString& why) {
    std::fprintf(stderr, "The tour stopped: %s\n", qPrintable(why));
    std::fflush(stderr);
    std::_Exit(1);
}

template <class T>
T& find(QObject& in, const char* name) {
    auto* found = in.findChild<T*>(QLatin1String(name));
    if (!found) stop(QStringLiteral("%1 has no %2").arg(in.objectName(), QLatin1String(name)));
    return *found;
}

QPalette darkColours() {
    QPalette colours(QColor("#353535"), QColor("#2d2d2d"));
    colours.setColor(QPalette::Base, QColor("#1e1e1e"));
    colours.setColor(QPalette::AlternateBase, QColor("#292929"));
    colours.setColor(QPalette::Highlight, QColor("#2a6fb5"));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Link, QColor("#6cb2f5"));
    return colours;
}

class Tour {
public:
    Tour(Screens& screens, QString folder) : screens_(screens), folder_(std::move(folder)) {}

    void walk() {
        mainWindow();
        restore();
        catalogue();
        addCustomer();
        newEstimate();
        changePrice();
        saveAndPrint();
        openAgain();
        itemSheet();
        notesArea();
        reports();
        calculators();
        help();
    }

private:
    // Lets the windows settle and paint.
    static void pause(int milliseconds = 60) { QTest::qWait(milliseconds); }

    static void wait(const char* what, const std::function<bool()>& condition) {
        constexpr int patience = 20000;
        QElapsedTimer clock;
        clock.start();
        while (!condition()) {
            if (clock.elapsed() > patience) stop(QStringLiteral("waiting for %1").arg(QLatin1String(what)));
            QTest::qWait(10);
        }
    }

    void picture(QWidget& window, const char* name, const QRect& part = {}) {
        pause();
        const QString file = QStringLiteral("%1/%2-%3.png")
                                 .arg(folder_)
                                 .arg(++number_, 2, 10, QLatin1Char('0'))
                                 .arg(QLatin1String(name));
        if (!window.grab(part.isNull() ? window.rect() : part).save(file))
            stop(QStringLiteral("%1 can't be written").arg(file));
        std::printf("%s\n", qPrintable(file));
    }

    // Acts on the modal window that comes next; `act` closes it.
    void onModal(const char* what, std::function<void(QWidget&)> act) {
        // A guarded pointer: the next window may stand at the address of this one.
        const QPointer<QWidget> present = QApplication::activeModalWidget();
        auto* timer = new QTimer(qApp);
        auto* clock = new QElapsedTimer;
        clock->start();
        QObject::connect(timer, &QTimer::timeout, timer, [=, act = std::move(act)] {
            QWidget* top = QApplication::activeModalWidget();
            if (!top || top == present || !top->isVisible()) {
                if (clock->elapsed() > 20000) stop(QStringLiteral("%1 did not come").arg(QLatin1String(what)));
                return;
            }
            timer->stop();
            timer->deleteLater();
            delete clock;
            act(*top);
        });
        timer->start(20);
    }

    void onBox(const char* pictureName, QMessageBox::StandardButton answer, std::function<void()> then = {}) {
        onModal("a message box", [this, pictureName, answer, then = std::move(then)](QWidget& top) {
            auto* box = qobject_cast<QMessageBox*>(&top);
            if (!box) stop(QStringLiteral("a message box was due, not %1").arg(top.objectName()));
            if (pictureName) picture(*box, pictureName);
            if (then) then();
            if (!box->button(answer)) stop(QStringLiteral("no such button on: %1").arg(box->text()));
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
        });
    }

    static void click(QWidget& in, const char* button) {
        auto& control = find<QAbstractButton>(in, button);
        if (!control.isVisible() || !control.isEnabled())
            stop(QStringLiteral("%1 can't be pressed").arg(QLatin1String(button)));
        QTest::mouseClick(&control, Qt::LeftButton);
        pause(20);
    }

    static void entry(QWidget& mainWindow, const char* name) { find<QAction>(mainWindow, name).trigger(); }

    static void type(QWidget& in, const char* box, const QString& text) {
        auto& control = find<TextBox>(in, box);
        control.setFocus();
        control.selectAll();
        QTest::keyClicks(&control, text);
    }

    static void pick(QWidget& in, const char* list, const char* text) {
        auto& control = find<DropList>(in, list);
        for (int i = 0; i < control.ListCount(); ++i) {
            if (control.List(i) != text) continue;
            control.setFocus();
            control.select(i);
            pause(20);
            return;
        }
        stop(QStringLiteral("%1 has no entry %2").arg(QLatin1String(list), QLatin1String(text)));
    }

    static void doubleClick(ReportList& list, int row) {
        const QRect place = list.visualItemRect(list.topLevelItem(row));
        const QPoint point(30, place.center().y());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, point);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, point);
    }

    QWidget& mainMenu() { return screens_.mainMenu.window(); }

    void mainWindow() {
        wait("the greeting", [] { return balloon().startsWith(QLatin1String("Welcome")); });
        picture(mainMenu(), "main-window");
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->findChild<QWidget*>(QStringLiteral("Balloon")))
                picture(*window, "assistant");
        auto& button = find<QAbstractButton>(mainMenu(), "cmd_Estimates");
        QTest::mouseClick(&button, Qt::LeftButton);
        wait("the pop-up", [] { return QApplication::activePopupWidget() != nullptr; });
        picture(*QApplication::activePopupWidget(), "estimates-menu");
        QApplication::activePopupWidget()->close();
    }

    static QString balloon() {
        for (QWidget* window : QApplication::topLevelWidgets())
            for (QLabel* label : window->findChildren<QLabel*>(QStringLiteral("Balloon")))
                if (label->isVisible()) return label->text();
        return {};
    }

    void restore() {
        const QString backup =
            QDir(qstring(screens_.mainMenu.program().host().programDirectory())).filePath(QStringLiteral("Sample.bak"));
        onModal("the file dialog", [this, backup](QWidget& top) {
            find<QLineEdit>(top, "fileNameEdit").setText(backup);
            picture(top, "restore");
            onBox("restored", QMessageBox::Ok);
            QTest::keyClick(&find<QLineEdit>(top, "fileNameEdit"), Qt::Key_Return);
        });
        entry(mainMenu(), "mnuImport");
    }

    void catalogue() {
        entry(mainMenu(), "SubMnuAddCat");
        pause();
        QWidget& categories = screens_.category.window();
        type(categories, "txtCatName", QStringLiteral("Deck screws"));
        pick(categories, "cmbParent", "Decks");
        picture(categories, "categories");
        onBox("category-added", QMessageBox::Ok);
        click(categories, "cmdAdd");
        click(categories, "cmdExit");

        entry(mainMenu(), "SubMnuEditCat");
        pause();
        onModal("the category form", [this](QWidget& form) {
            picture(form, "category");
            click(form, "CmdCancel");
        });
        doubleClick(find<ReportList>(screens_.category.window(), "ListView1"), 1);
        click(screens_.category.window(), "cmdExit");

        entry(mainMenu(), "SubMnuAddItem");
        pause();
        QWidget& items = screens_.item.window();
        type(items, "txtName", QStringLiteral("Deck screws, 3 in, 5 lb box"));
        picture(items, "items");
        onModal("the item form", [this](QWidget& form) {
            pick(form, "CmbCat", "Deck screws (Decks <- Exterior)");
            pick(form, "cmbUnit", "Each");
            type(form, "TxtQty", QStringLiteral("1"));
            type(form, "TxtMaterial", QStringLiteral("31.5"));
            picture(form, "item");
            onBox("item-saved", QMessageBox::Ok);
            click(form, "cmdOk");
        });
        click(items, "cmdAdd");
        click(items, "cmdExit");

        entry(mainMenu(), "mnuUnits");
        pause();
        QWidget& names = screens_.master.window();
        click(names, "cmdNext");
        picture(names, "units");
        click(names, "cmdExit");
    }

    void addCustomer() {
        entry(mainMenu(), "SubMnuAddCust");
        pause();
        QWidget& list = screens_.customer.window();
        type(list, "txtCustName", QStringLiteral("Dana Whitfield"));
        picture(list, "customers");
        onModal("the customer form", [this](QWidget& form) {
            type(form, "TxtBstreet1", QStringLiteral("14 Mill Lane"));
            type(form, "TxtBcity", QStringLiteral("Salem"));
            pick(form, "CmbBState", "Oregon");
            type(form, "TxtBZip", QStringLiteral("97301"));
            type(form, "TxtBCountry", QStringLiteral("USA"));
            type(form, "TxtBPhone", QStringLiteral("503-555-0142"));
            type(form, "TxtBEmail", QStringLiteral("dana@example.com"));
            picture(form, "customer");
            onBox("customer-saved", QMessageBox::Ok);
            click(form, "cmdOk");
        });
        click(list, "cmdAdd");
        click(list, "cmdExit");
    }

    void newEstimate() {
        entry(mainMenu(), "mnuNewEstimate");
        pause();
        QWidget& order = screens_.order.window();
        onModal("the customer list", [this](QWidget& list) {
            type(list, "txtCustName", QStringLiteral("Dana"));
            click(list, "cmdSearch");
            picture(list, "select-customer");
            doubleClick(find<ReportList>(list, "ListView1"), 0);
        });
        click(order, "CmdSelCust");
        pick(order, "cmbRooms", "Deck");
        struct Line {
            const char* item;
            const char* quantity;
        };
        for (const Line& line : {Line{"Deck boards, 5/4 x 6 treated", "520"}, Line{"Joist 2x10, 16 ft", "16"},
                                 Line{"Deck railing, treated", "44"}, Line{"Ready-mix concrete, 3000 psi", "1.5"}}) {
            pick(order, "cmbItems", line.item);
            type(order, "TxtQty", QLatin1String(line.quantity));
            click(order, "cmdAdd");
        }
        type(order, "txtTaxPer", QStringLiteral("8"));
        type(order, "txtOHPer", QStringLiteral("10"));
        type(order, "txtLength", QStringLiteral("12"));
        type(order, "txtWidth", QStringLiteral("20"));
        type(order, "txtHeight", QStringLiteral("8"));
        picture(order, "estimate");
    }

    void changePrice() {
        QWidget& order = screens_.order.window();
        pick(order, "cmbItems", "Joist hanger, 2x10");
        type(order, "TxtMaterial", QStringLiteral("1.65"));
        bool updated = false;
        onBox("price-question", QMessageBox::Yes,
              [&] { onBox("price-updated", QMessageBox::Ok, [&updated] { updated = true; }); });
        QTest::keyClick(&find<TextBox>(order, "TxtMaterial"), Qt::Key_Tab);
        wait("the price update", [&] { return updated && !QApplication::activeModalWidget(); });
        type(order, "TxtQty", QStringLiteral("32"));
        click(order, "cmdAdd");
        click(order, "cmdImport");
        picture(order, "notes-to-import");
        click(order, "cmdCopy");
        click(order, "Command2");
    }

    void saveAndPrint() {
        QWidget& order = screens_.order.window();
        onBox("estimate-saved", QMessageBox::Ok);
        click(order, "CmdSave");
        orderNo_ = find<TextBox>(order, "TxtOrder").Text();
        onBox("print-notice", QMessageBox::Ok);
        click(order, "Command1");
        QWidget* report = nullptr;
        wait("the proposal", [&report] {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->objectName() == QLatin1String("DataReport3") && window->isVisible()) report = window;
            return report != nullptr;
        });
        picture(*report, "proposal");
        const QString file = QDir(folder_).absoluteFilePath(QStringLiteral("proposal.pdf"));
        onModal("the file dialog", [this, file](QWidget& top) {
            find<QLineEdit>(top, "fileNameEdit").setText(file);
            onBox(nullptr, QMessageBox::Ok);
            QTest::keyClick(&find<QLineEdit>(top, "fileNameEdit"), Qt::Key_Return);
        });
        click(*report, "cmdPdf");
        if (!QFile::exists(file)) stop(QStringLiteral("there is no %1").arg(file));
        std::printf("%s\n", qPrintable(file));
        click(*report, "cmdClose");
        onBox(nullptr, QMessageBox::Yes);
        click(order, "CmdCancel");
    }

    void openAgain() {
        entry(mainMenu(), "mnuEditEstimate");
        pause();
        QWidget& list = screens_.orders.window();
        picture(list, "search-estimate");
        type(list, "txtName", qstring(orderNo_));
        click(list, "cmdSearch");
        doubleClick(find<ReportList>(list, "ListView1"), 0);
        pause();
        QWidget& order = screens_.order.window();
        doubleClick(find<ReportList>(order, "ListView1"), 1);
        picture(order, "estimate-opened-again");
        onBox(nullptr, QMessageBox::Yes);
        click(order, "CmdCancel");
    }

    void itemSheet() {
        entry(mainMenu(), "mnuNewEstimate");
        pause();
        QWidget& order = screens_.order.window();
        click(order, "cmdItemList");
        QWidget& sheet = screens_.itemSheet.window();
        auto& tree = find<QTreeWidget>(sheet, "TreeCategory");
        for (const char* name : {"Joist 2x10, 16 ft", "Post base, 4x4", "Deck railing, treated"}) {
            const auto found = tree.findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive);
            if (found.isEmpty()) stop(QStringLiteral("the tree has no %1").arg(QLatin1String(name)));
            tree.setCurrentItem(found.constFirst());
            tree.setFocus();
            QTest::keyClick(&tree, Qt::Key_Return);
        }
        picture(sheet, "item-sheet");
        click(sheet, "cmdAddEstimate");
        onBox(nullptr, QMessageBox::Yes);
        click(order, "CmdCancel");
    }

    void notesArea() {
        entry(mainMenu(), "mnuBlank");
        pause();
        picture(screens_.blank.window(), "notes-area");
        click(screens_.blank.window(), "CmdCancel");
        entry(mainMenu(), "mnuDelEstimate");
        pause();
        picture(screens_.orderNo.window(), "delete-estimate");
        click(screens_.orderNo.window(), "CmdCancel");
    }

    void reports() {
        entry(mainMenu(), "mnusalesrpt");
        pause();
        QWidget& prompt = screens_.reportPrompt.window();
        picture(prompt, "estimates-report-prompt");
        click(prompt, "Command3");
        click(prompt, "Command2");
        entry(mainMenu(), "mnucustrpt");
        pause();
        for (const char* name : {"DataReport1", "DataReport2"}) {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window->objectName() != QLatin1String(name) || !window->isVisible()) continue;
                picture(*window, name);
                click(*window, "cmdClose");
                break;
            }
        }
    }

    static void computeFoundation(QWidget& window) {
        const struct {
            const char* box;
            const char* text;
        } inputs[] = {{"txtTab8_1", "160"}, {"txtTab8_2", "16"}, {"txtTab8_3", "8"},
                      {"txtTab8_4", "4"},   {"txtTab8_5", "8"},  {"txtTab8_8", "110.50"}};
        for (const auto& input : inputs) type(window, input.box, QLatin1String(input.text));
        click(window, "cmdTab8_1");
        click(window, "cmdTab8_2");
    }

    // Every tab but the one that starts another program.
    void calculators() {
        for (CalculatorWindow* group : {static_cast<CalculatorWindow*>(&screens_.calculators1), &screens_.calculators2,
                                        &screens_.calculators3, &screens_.calculators4}) {
            group->Show();
            QWidget& window = group->window();
            for (auto* tab : find<QWidget>(window, "TabStrip1").findChildren<QAbstractButton*>()) {
                if (tab->text() == QLatin1String("Conversions")) continue;
                click(window, qPrintable(tab->objectName()));
                if (tab->text() == QLatin1String("Foundation Concrete Calculator")) computeFoundation(window);
                QWidget& shown = screens_.scientific.loaded() ? screens_.scientific.window() : window;
                picture(shown, qPrintable(tab->text().toLower().replace(QLatin1Char(' '), QLatin1Char('-'))));
                panel(window);
            }
            click(window, "Command2");
        }
    }

    // The controls of the panel that shows, by the name of its frame: what the help book has of it.
    void panel(QWidget& window) {
        constexpr int margin = 8;
        for (QWidget* frame : window.findChildren<QWidget*>(QRegularExpression(QStringLiteral("^frmTab"))))
            if (frame->isVisible())
                picture(*frame, qPrintable(frame->objectName()),
                        frame->childrenRect().adjusted(-margin, -margin, margin, margin) & frame->rect());
    }

    void help() {
        entry(mainMenu(), "mnuHelpAbout");
        pause();
        picture(screens_.about.window(), "about");
        click(screens_.about.window(), "cmdClose");
        screens_.help.showPage(screens_.order.helpContext());
        picture(screens_.help.window(), "help");
        screens_.help.showSearch();
        type(screens_.help.window(), "txtSearch", QStringLiteral("concrete"));
        picture(screens_.help.window(), "help-search");
        click(screens_.help.window(), "cmdClose");
    }

    Screens& screens_;
    QString folder_;
    std::string orderNo_;
    int number_ = 0;
};

}  // namespace
}  // namespace torvane

int main(int argc, char** argv) {
    using namespace torvane;
    GuardedApplication application(argc, argv);
    QStringList words = QCoreApplication::arguments();
    if (words.removeAll(QStringLiteral("--dark")) > 0) QApplication::setPalette(darkColours());
    if (words.removeAll(QStringLiteral("--large")) > 0) {
        QFont large = QApplication::font();
        large.setPointSizeF(large.pointSizeF() * 1.5);
        QApplication::setFont(large);
    }
    if (words.size() != 3) stop(QStringLiteral("it needs the program's folder and a folder for the pictures"));
    initPictures();
    QtHost host(utf8(QDir(words.at(1)).absolutePath()));
    Store store(host.shortDate());
    FileSystem files;
    Program program({host, store}, leaveProcess);
    application.setLastNet([&program](const RuntimeFailure& failure) { program.guard().end(failure); });
    Screens screens(program, files, false,
                    [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
    program.guarded([&screens] { screens.mainMenu.Show(); });
    QTimer::singleShot(0, &application, [&] {
        program.guarded([&] { Tour(screens, words.at(2)).walk(); });
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}
