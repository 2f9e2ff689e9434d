#include "screens/qt_host.h"

#include <QApplication>
#include <QDate>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

#include "screens/dialogs.h"
#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

// Takes a name with inch marks as it was typed. The toolkit's own dialog reads them as marks around several names.
class NameDialog : public QFileDialog {
public:
    // Any name will do, also when opening: the asker says what a missing file means.
    explicit NameDialog(AcceptMode mode) {
        setAcceptMode(mode);
        setOptions(DontUseNativeDialog | DontConfirmOverwrite);
        name_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        button_ = findChild<QDialogButtonBox*>()->button(mode == AcceptSave ? QDialogButtonBox::Save
                                                                            : QDialogButtonBox::Open);
        connect(name_, &QLineEdit::textChanged, this, [this] {
            if (hasInchMarks()) button_->setEnabled(true);
        });
    }
    QString chosen() const {
        if (hasInchMarks()) return QDir::cleanPath(directory().absoluteFilePath(name_->text()));
        return selectedFiles().value(0);
    }
    void accept() override {
        if (hasInchMarks() && !QFileInfo(chosen()).isDir())
            QDialog::accept();  // NOLINT(bugprone-parent-virtual-call): past what reads the marks
        else
            QFileDialog::accept();
    }

private:
    bool hasInchMarks() const { return name_->text().contains(QLatin1Char('"')); }
    QLineEdit* name_;
    QPushButton* button_;
};

std::optional<std::string> chosenName(NameDialog& dialog, const QString& proposed, std::string_view filter,
                                      QString& folder) {
    dialog.setObjectName("FileDialog");
    dialog.setNameFilter(qstring(filter));
    if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir(folder).exists()) folder = QDir::homePath();
    dialog.setDirectory(folder);
    if (!proposed.isEmpty()) dialog.selectFile(proposed);
    if (runOverFront(dialog) != QDialog::Accepted) return std::nullopt;
    const QString name = dialog.chosen();
    folder = QFileInfo(name).absolutePath();
    return utf8(name);
}

}  // namespace

ShortDate shortDateOf(const QLocale& locale) {
    // A year of two digits would be read back as one of another century.
    static const QRegularExpression year(QStringLiteral("y+"));
    QString pattern = locale.dateFormat(QLocale::ShortFormat).replace(year, QStringLiteral("yyyy"));
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

void QtHost::runtimeErrorBox(const RuntimeFailure& failure) {
    QMessageBox box;
    prepareBox(box, errorBoxText(failure), qstring(defaultTitle), Buttons::Ok);
    box.setObjectName("RuntimeErrorBox");
    runOverFront(box);
}

void QtHost::beep() {
    QApplication::beep();
}

std::optional<std::string> QtHost::askSaveName(std::string_view proposed, std::string_view filter) {
    NameDialog dialog(QFileDialog::AcceptSave);
    return chosenName(dialog, qstring(proposed), filter, lastFolder_);
}

std::optional<std::string> QtHost::askOpenName(std::string_view filter) {
    NameDialog dialog(QFileDialog::AcceptOpen);
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
