// Linked to the program, this acts as a user whose act fails, reports the run-time error box and answers it.
//
//   <program> start|customer|estimate
//
// It writes a line for each box: its name, the modal windows below it, and its text, with '|' for the line breaks.

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

QWidget* standing(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == QLatin1String(name)) return window;
    return nullptr;
}

template <class T>
T& find(QWidget& window, const char* name) {
    T* found = window.findChild<T*>(QLatin1String(name));
    if (!found) qFatal("no %s", name);
    return *found;
}

struct Step {
    const char* window;  // to wait for
    std::function<void(QWidget&)> act;
};

std::function<void(QWidget&)> choose(const char* entry) {
    return [entry](QWidget& window) { find<QAction>(window, entry).trigger(); };
}
std::function<void(QWidget&)> click(const char* button) {
    return [button](QWidget& window) { find<QAbstractButton>(window, button).click(); };
}
std::function<void(QWidget&)> enterAndClick(const char* box, const char* text, const char* button) {
    return [=](QWidget& window) {
        auto& control = find<QWidget>(window, box);
        const bool manyLines = control.metaObject()->indexOfProperty("plainText") >= 0;
        control.setProperty(manyLines ? "plainText" : "text", QLatin1String(text));
        find<QAbstractButton>(window, button).click();
    };
}

std::vector<Step> stepsOf(const QString& act) {
    if (act == "customer")
        return {{"frmMainMenu", choose("SubMnuAddCust")},
                {"frmCustomer", enterAndClick("txtCustName", "O'Hara", "cmdAdd")},
                {"CustMast", click("cmdOk")}};
    if (act == "estimate")
        return {{"frmMainMenu", choose("mnuEditEstimate")},
                {"frmOrders", click("CmdSelect")},
                {"frmOrder", enterAndClick("txtNotes", "Ann's", "CmdSave")}};
    return {};
}

class User : public QObject {
public:
    using QObject::QObject;

    // Each step may stand in a modal loop of its own, so the next look is arranged before it is taken.
    void look() {
        QTimer::singleShot(5, this, &User::look);
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); box && box->isVisible()) {
            if (box == answered_) return;
            answered_ = box;
            report(*box);
            if (box->objectName() != QLatin1String("RuntimeErrorBox")) std::_Exit(3);  // the act has not failed
            box->button(QMessageBox::Ok)->click();
        } else if (next_ < steps_.size()) {
            if (QWidget* window = standing(steps_[next_].window)) steps_[next_++].act(*window);
        }
    }

private:
    static void report(const QMessageBox& box) {
        int below = 0;
        for (const QWidget* window : QApplication::topLevelWidgets())
            below += window != &box && window->isVisible() && window->isModal();
        std::printf("%s %d %s\n", qPrintable(box.objectName()), below, qPrintable(box.text().replace('\n', '|')));
        std::fflush(stdout);
    }

    const std::vector<Step> steps_ = stepsOf(QCoreApplication::arguments().value(1));
    std::size_t next_ = 0;
    const QMessageBox* answered_ = nullptr;
};

void bringUser() {
    auto* user = new User(qApp);
    QMetaObject::invokeMethod(user, &User::look, Qt::QueuedConnection);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(bringUser)
