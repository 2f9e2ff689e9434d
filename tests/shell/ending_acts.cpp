// Linked to the program, this acts as a user whose act fails, reports the run-time error box and answers it.
//
//   <program> start|customer
//
// It writes a line for each box: its name, the modal windows below it, and its text, with '|' for the line breaks.

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

struct Step {
    const char* window;  // to wait for
    std::function<void(QWidget&)> act;
};

const Step badCustomer[] = {
    {"frmMainMenu", [](QWidget& menus) { menus.findChild<QAction*>("SubMnuAddCust")->trigger(); }},
    {"frmCustomer",
     [](QWidget& list) {
         list.findChild<QLineEdit*>("txtCustName")->setText("O'Hara");
         list.findChild<QAbstractButton*>("cmdAdd")->click();
     }},
    {"CustMast", [](QWidget& form) { form.findChild<QAbstractButton*>("cmdOk")->click(); }},
};
const Step* nextStep = badCustomer;
const QMessageBox* answered = nullptr;

void answer(QMessageBox& box) {
    if (&box == answered) return;
    answered = &box;
    int below = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
        below += window != &box && window->isVisible() && window->isModal();
    std::printf("%s %d %s\n", qPrintable(box.objectName()), below, qPrintable(box.text().replace('\n', '|')));
    std::fflush(stdout);
    if (box.objectName() != QLatin1String("RuntimeErrorBox")) std::_Exit(3);  // the act has not failed
    box.button(QMessageBox::Ok)->click();
}

// Each step may stand in a modal loop of its own, so the next look is arranged before it is taken.
void look() {
    QTimer::singleShot(5, qApp, look);
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box && box->isVisible()) return answer(*box);
    if (QCoreApplication::arguments().value(1) != "customer" || nextStep == std::end(badCustomer)) return;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == QLatin1String(nextStep->window))
            return (nextStep++)->act(*window);
}

void bringUser() {
    QTimer::singleShot(0, qApp, look);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(bringUser)
