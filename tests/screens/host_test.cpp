#include <QApplication>
#include <QDate>
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

TEST_F(QtHostTest, BoxesAndTheirAnswers) {
    Probe form{program, "frmForm"};
    form.Show();
    form.first->setFocus();
    settle();
    struct Row {
        Buttons buttons;
        std::function<void(QMessageBox&)> act;
        Answer expected;
    };
    const auto press = [](Qt::Key pressed, Qt::KeyboardModifiers held = {}) {
        return [=](QMessageBox& box) { key(*box.focusWidget(), pressed, held); };
    };
    const auto close = [](QMessageBox& box) { closeBox(box); };
    const Row rows[] = {
        {Buttons::Ok, press(Qt::Key_Return), Answer::Ok},
        {Buttons::Ok, press(Qt::Key_Escape), Answer::Ok},
        {Buttons::Ok, close, Answer::Ok},
        {Buttons::YesNo, press(Qt::Key_Return), Answer::Yes},
        {Buttons::YesNo, press(Qt::Key_Escape), Answer::No},
        {Buttons::YesNo, close, Answer::No},
        {Buttons::YesNo, press(Qt::Key_N, Qt::AltModifier), Answer::No},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        whenModal([&](QWidget& top) {
            auto& box = dynamic_cast<QMessageBox&>(top);
            EXPECT_EQ(utf8(box.windowTitle()), "Title");
            EXPECT_EQ(utf8(box.text()), "5 < 6 <b>&amp;</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
            row.act(box);
        });
        EXPECT_EQ(machine.box("5 < 6 <b>&amp;</b>", "Title", row.buttons), row.expected);
        QTest::keyClick(form.window().windowHandle(), 'x');
    }
    EXPECT_EQ(form.first->Text(), std::string(std::size(rows), 'x')) << "the keys come back";
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
         {Row{true, folder + "/plain", folder + "/plain"}, Row{true, there, there},
          Row{true, "Job 12\" pipe", folder + "/Job 12\" pipe"}, Row{true, folder + "/x 12\"", folder + "/x 12\""},
          Row{true, "", folder + "/Larkfen.bak"}, Row{false, there, there},
          Row{false, folder + "/12\".bak", folder + "/12\".bak"},
          Row{false, folder + "/none.bak", folder + "/none.bak"}, Row{false, "cancel", std::nullopt}}) {
        SCOPED_TRACE(row.typed);
        whenModal([&](QWidget& top) {
            auto& dialog = dynamic_cast<QFileDialog&>(top);
            EXPECT_EQ(dialog.nameFilters(), QStringList{"Backup (*.bak)"});
            auto& name = find<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_EQ(utf8(name.text()), row.save ? "Larkfen.bak" : "");
            if (row.typed == "cancel") return dialog.reject();
            if (!row.typed.empty()) name.setText(qstring(row.typed));
            key(name, Qt::Key_Return);
        });
        EXPECT_EQ(row.save ? machine.askSaveName("Larkfen.bak", filter) : machine.askOpenName(filter), row.expected);
    }
}

TEST_F(QtHostTest, TellsOfTheMachine) {
    const QDate today = QDate::currentDate();
    EXPECT_LE((Date{today.year(), today.month(), today.day()}), machine.today());
    EXPECT_EQ(machine.NoInList(), 15);
    EXPECT_THROW(machine.startProgram(machine.programDirectory() + "/Convert.exe"), RuntimeFailure);
}

// In every locale that Qt knows. Where numbers leave a choice a statement's reader takes the month first; a typed date
// is read in the locale's order.
TEST(ShortDateOfLocales, GoesOutAndComesBack) {
    const QDate today = QDate::currentDate();
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const ShortDate style = shortDateOf(locale);
        const bool dayFirst = style.pattern.starts_with('d') && style.pattern.find("MMM") == std::string::npos;
        for (const Date date : {Date{2026, 3, 4}, Date{2030, 12, 31}, Date{today.year(), today.month(), today.day()}}) {
            const std::string text = shortDateText(date, style);
            const bool swapped = dayFirst && date.day <= 12;
            const Date back = swapped ? Date{date.year, date.day, date.month} : date;
            EXPECT_EQ(readDate(text, style), back) << utf8(locale.name()) << ": " << text;
            EXPECT_EQ(readTypedDate(text, style), date) << utf8(locale.name()) << ": " << text;
        }
    }
}

}  // namespace

}  // namespace torvane
