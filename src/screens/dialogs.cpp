#include "screens/dialogs.h"

#include <QGridLayout>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <string_view>

#include "screens/form_window.h"
#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

constexpr std::string_view wayBack =
    "Without its data the program does not start. To come back, look into its folder: rename Larkfen.mdb, if it is "
    "there, and copy your newest backup (.bak) to the name Larkfen.mdb.";

constexpr std::string_view apostrophe =
    "Often the reason is an apostrophe or a feet mark (') in what was typed, or a number left empty. See Help, What "
    "you should not type.";

// What the user can do about a failure, by words of its text or of what was going on.
struct Advice {
    std::string_view words;
    std::string_view whatToDo;
};
constexpr Advice advices[] = {
    {"a second time", "The program runs on this folder already: look for its window."},
    {"Type mismatch", "A number was wanted: type digits only, and a decimal point where there are decimals."},
    {"Subscript", "Often a drop-down list had nothing chosen in it: choose an entry first."},
    {"UNIQUE constraint",
     "A record with this number is there already. Save and close what is open before you begin another one."},
    {"character can't be read",
     "A file of the program is damaged or missing. Install the program again; your data stay."},
    {"Overflow", "A number was larger than the program can hold: type a smaller one."},
    {"syntax error", apostrophe},
    {"unrecognized token", apostrophe},
    {"unable to open database file", wayBack},
    {"file is not a database", wayBack},
    {"no such table", wayBack},
    {"malformed", wayBack},
    {"readonly", "Larkfen.mdb, or the folder in which it lies, is write-protected."},
    {"disk is full", "Make room on the disk first."},
    {"File not found", "A file of the program is missing. Install the program again; your data stay."},
};

}  // namespace

void prepareBox(QMessageBox& box, const QString& text, const QString& title, Buttons buttons) {
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    box.setIcon(QMessageBox::NoIcon);
    box.setWindowTitle(title);
    box.setText(text);
    // So wide that the frame shows the title beside its buttons.
    constexpr int frameButtons = 110;
    const int wide = box.fontMetrics().horizontalAdvance(title) + frameButtons;
    auto* grid = static_cast<QGridLayout*>(box.layout());
    grid->addItem(new QSpacerItem(wide, 0), grid->rowCount(), 0, 1, grid->columnCount());
    if (buttons == Buttons::Ok) return;  // which a box has of itself
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
}

QString errorBoxText(const RuntimeFailure& failure) {
    QString text = QStringLiteral("Run-time error %1\n\n%2").arg(failure.number()).arg(qstring(failure.text()));
    constexpr qsizetype longestRefused = 400;
    QString refused = qstring(failure.refused());
    if (refused.size() > longestRefused) refused = refused.left(longestRefused) + QChar(0x2026);
    if (!refused.isEmpty()) text += QStringLiteral("\n\nRefused: ") + refused;
    const QString during = failure.during().empty() ? QString() : QStringLiteral(" while ") + qstring(failure.during());
    text += QStringLiteral("\n\nThe program met something that it cannot work with%1, and has to end now.").arg(during);
    const std::string told = failure.text() + '\n' + failure.during();
    const auto* const advice = std::ranges::find_if(
        advices, [&told](const Advice& each) { return told.find(each.words) != std::string::npos; });
    if (advice != std::end(advices)) text += QStringLiteral("\n\n") + qstring(advice->whatToDo);
    return text + QStringLiteral("\n\nWhat was not saved is lost. Start the program again.");
}

int runOverFront(QDialog& dialog) {
    const QPointer<QWidget> before = frontWindow(&dialog);
    // A message box wraps its text, and so gets its size, when it is shown.
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.show();
    dialog.hide();
    dialog.setAttribute(Qt::WA_DontShowOnScreen, false);
    dialog.setWindowModality(Qt::ApplicationModal);
    if (before) {
        standOver(dialog, before);
        QRect place(QPoint(), dialog.size());
        place.moveCenter(before->frameGeometry().center());
        dialog.move(whollyOn(before->screen()->availableGeometry(), place).topLeft());
    }
    const int result = dialog.exec();
    const auto* form = qobject_cast<const FormWindow*>(before);
    const QPointer<QWidget> after = form && form->keysAfterBox ? form->keysAfterBox : before;
    // Without a window manager nobody gives the keys back.
    if (after && after->isVisible()) after->activateWindow();
    return result;
}

}  // namespace torvane
