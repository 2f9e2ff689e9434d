#include "screens/dialogs.h"

#include <QGridLayout>
#include <QPointer>
#include <QScreen>

#include "screens/form_window.h"
#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

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
    if (buttons == Buttons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
    } else {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
    }
}

QString errorBoxText(const RuntimeFailure& failure) {
    QString text = QStringLiteral("Run-time error %1\n\n").arg(failure.number());
    text += qstring(failure.text());
    const QString during = failure.during().empty() ? QString() : QStringLiteral(" while ") + qstring(failure.during());
    text += QStringLiteral(
                "\n\nThe program met something that it cannot work with%1, and has to end now; what was saved before "
                "stays.")
                .arg(during);
    constexpr qsizetype longestRefused = 400;
    QString refused = qstring(failure.refused());
    if (refused.isEmpty()) return text;
    if (refused.size() > longestRefused) refused = refused.left(longestRefused) + QChar(0x2026);
    return text + QStringLiteral("\n\nRefused: ") + refused;
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
