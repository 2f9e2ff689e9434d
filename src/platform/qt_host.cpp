#include "platform/qt_host.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "platform/controls.h"
#include "platform/dialogs.h"
#include "values/failure.h"

namespace torvane {

namespace {

std::optional<std::string> chosenName(QFileDialog& dialog, const QString& proposed, std::string_view filter,
                                      QString& folder) {
    dialog.setObjectName("FileDialog");
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setFileMode(QFileDialog::AnyFile);  // also when opening: the asker says what a missing file means
    dialog.setNameFilter(qstring(filter));
    if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir(folder).exists()) folder = QDir::homePath();
    dialog.setDirectory(folder);
    if (!proposed.isEmpty()) dialog.selectFile(proposed);
    if (runOverFront(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString name = dialog.selectedFiles().constFirst();
    folder = QFileInfo(name).absolutePath();
    return utf8(name);
}

}  // namespace

ShortDate shortDateOf(const QLocale& locale) {
    // A year of two digits would be read back as one of another century. What stands between quotes is no year.
    static const QRegularExpression year(QStringLiteral("y+"));
    QStringList pieces = locale.dateFormat(QLocale::ShortFormat).split(QLatin1Char('\''));
    for (qsizetype piece = 0; piece < pieces.size(); piece += 2) pieces[piece].replace(year, QStringLiteral("yyyy"));
    QString pattern = pieces.join(QLatin1Char('\''));
    pattern.removeIf([](QChar sign) { return sign.category() == QChar::Other_Format; });

    ShortDate style;
    style.pattern = utf8(pattern);
    for (int month = 1; month <= 12; ++month) {
        const auto index = static_cast<std::size_t>(month - 1);
        style.monthNames[index] = utf8(locale.monthName(month, QLocale::LongFormat));
        style.shortMonthNames[index] = utf8(locale.monthName(month, QLocale::ShortFormat));
    }
    return style;
}

QtHost::QtHost(std::string programDirectory)
    : programDirectory_(std::move(programDirectory)), shortDate_(shortDateOf(QLocale::system())) {}

Answer QtHost::box(std::string_view text, std::string_view title, Buttons buttons) {
    QMessageBox box;
    prepareBox(box, qstring(text), qstring(title), buttons);
    const int pressed = runOverFront(box);
    if (buttons == Buttons::Ok) return Answer::Ok;
    return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::optional<std::string> QtHost::askSaveName(std::string_view proposed, std::string_view filter) {
    QFileDialog dialog;
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setWindowTitle("Save As");
    return chosenName(dialog, qstring(proposed), filter, lastFolder_);
}

std::optional<std::string> QtHost::askOpenName(std::string_view filter) {
    QFileDialog dialog;
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setWindowTitle("Open");
    // The sample business lies beside the program, so a first restore looks there.
    if (lastFolder_.isEmpty()) lastFolder_ = qstring(programDirectory_);
    return chosenName(dialog, {}, filter, lastFolder_);
}

void QtHost::startProgram(const std::string& path) {
    if (!QProcess::startDetached(qstring(path), {})) fail(Failure::FileNotFound, path);
}

Date QtHost::today() const {
    const QDate day = QDate::currentDate();
    return {day.year(), day.month(), day.day()};
}

}  // namespace torvane
