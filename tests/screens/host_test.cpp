#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QTest>

#include "screens/probe.h"
#include "screens/qt_host.h"

namespace torvane {
namespace {

class QtHostTest : public ScreenTest {
protected:
    QtHost machine{utf8(directory.path())};
};

TEST_F(QtHostTest, BoxesAndTheirAnswersAndAMissingProgram) {
    Probe form{program, "frmForm"};
    form.Show();
    form.first->setFocus();
    settle();
    // The buttons, the key that is pressed (N: with Alt), and the answer.
    const std::tuple<Buttons, Qt::Key, Answer> rows[] = {{Buttons::Ok, Qt::Key_Escape, Answer::Ok},
                                                         {Buttons::YesNo, Qt::Key_Return, Answer::Yes},
                                                         {Buttons::YesNo, Qt::Key_Escape, Answer::No},
                                                         {Buttons::YesNo, Qt::Key_N, Answer::No}};
    for (const auto& [buttons, pressed, answer] : rows) {
        SCOPED_TRACE(pressed);
        whenModal([&form, key = pressed](QWidget& top) {
            auto& box = dynamic_cast<QMessageBox&>(top);
            EXPECT_EQ(utf8(box.windowTitle() + box.text()), "Title5 < 6 <b>&amp;</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowHandle()->transientParent(), form.window().windowHandle());
            EXPECT_EQ(QRect(box.pos(), box.size()).center(), form.window().frameGeometry().center());
            torvane::key(box, key, key == Qt::Key_N ? Qt::AltModifier : Qt::NoModifier);
        });
        EXPECT_EQ(machine.box("5 < 6 <b>&amp;</b>", "Title", buttons), answer);
        QTest::keyClick(form.window().windowHandle(), 'x');
    }
    EXPECT_EQ(form.first->Text(), "xxxx") << "the keys come back";
    EXPECT_THROW(machine.startProgram("/nowhere/Convert.exe"), RuntimeFailure) << "which tells of it in such a box";
}

TEST_F(QtHostTest, ARunTimeErrorIsToldInOneBoxOfAScreensSize) {
    whenModal([](QWidget& top) {
        auto& box = dynamic_cast<QMessageBox&>(top);
        EXPECT_EQ(
            utf8(box.text()),
            "Run-time error 1\n\nnear \"Hara\": syntax error\n\nRefused: " + std::string(400, 'x') +
                "\u2026\n\nThe program met something that it cannot work with while searching, and has to end "
                "now.\n\nOften the reason is an apostrophe or a feet mark (') in what was typed, or a number left empty. "
                "See Help, What you should not type.\n\nWhat was not saved is lost. Start the program again.");
        key(box, Qt::Key_Return);
    });
    RuntimeFailure failure(1, "near \"Hara\": syntax error", std::string(100000, 'x'));
    failure.setDuring("searching");
    machine.runtimeErrorBox(failure);
}

TEST_F(QtHostTest, FileDialogsAskNothingOfTheirOwn) {
    const std::string folder = utf8(directory.path());
    const std::string there = folder + "/old.bak";
    QFile(qstring(there)).open(QIODevice::WriteOnly);
    constexpr std::string_view filter = "Backup (*.bak)";
    struct Row {
        bool save;
        std::string typed;
        std::optional<std::string> expected;
    };
    for (const Row& row :
         {Row{true, there, there}, Row{true, "Job 12\" pipe", folder + "/Job 12\" pipe"},
          Row{true, "", folder + "/Larkfen.bak"}, Row{false, folder + "/12\".bak", folder + "/12\".bak"},
          Row{false, folder + "/none.bak", folder + "/none.bak"}, Row{false, "cancel", std::nullopt}}) {
        SCOPED_TRACE(row.typed);
        whenModal([&](QWidget& top) {
            auto& dialog = dynamic_cast<QFileDialog&>(top);
            EXPECT_EQ(dialog.nameFilters(), QStringList{"Backup (*.bak)"});
            auto& name = find<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_EQ(utf8(name.text()), row.save ? "Larkfen.bak" : "");
            if (row.typed == "cancel") return dialog.reject();
            if (!row.typed.empty()) name.setText(qstring(row.typed));
            click(*dialog.findChild<QPushButton*>());
        });
        EXPECT_EQ(row.save ? machine.askSaveName("Larkfen.bak", filter) : machine.askOpenName(filter), row.expected);
    }
}

// In every locale that Qt knows. Where numbers leave a choice a statement's reader takes the month first; a typed date
// is read in the locale's order.
TEST(ShortDateOfLocales, GoesOutAndComesBack) {
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const ShortDate style = shortDateOf(locale);
        const bool dayFirst = style.pattern.starts_with('d') && style.pattern.find("MMM") == std::string::npos;
        for (const Date date : {Date{2026, 3, 4}, Date{2030, 12, 31}}) {
            const std::string text = shortDateText(date, style);
            const Date back = dayFirst && date.day <= 12 ? Date{date.year, date.day, date.month} : date;
            EXPECT_EQ(readDate(text, style), back) << utf8(locale.name()) << ": " << text;
            EXPECT_EQ(readTypedDate(text, style), date) << utf8(locale.name()) << ": " << text;
        }
    }
    EXPECT_EQ(shortDateOf(QLocale("de_DE")).monthNames.front(), "Januar");
}

}  // namespace
}  // namespace torvane
