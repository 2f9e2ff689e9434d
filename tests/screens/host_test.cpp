#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

#include "screens/error_box.h"
#include "screens/probe.h"
#include "screens/qt_host.h"
#include "support/screen_test.h"

namespace torvane {

namespace {

class QtHostTest : public ScreenTest {
protected:
    QtHostTest() {
        form.Show();
        form.first->setFocus();
        settle();
    }
    QtHost machine{"/opt/program"};
    Probe form{program, "frmForm"};
};

TEST_F(QtHostTest, BoxesAndTheirAnswers) {
    struct Row {
        const char* name;
        Buttons buttons;
        std::function<void(QMessageBox&)> act;
        Answer expected;
    };
    const auto press = [](Qt::Key pressed) {
        return [pressed](QMessageBox& box) { key(*box.focusWidget(), pressed); };
    };
    const auto close = [](QMessageBox& box) { closeBox(box); };
    const Row rows[] = {
        {"Ok, Enter", Buttons::Ok, press(Qt::Key_Return), Answer::Ok},
        {"Ok, Escape", Buttons::Ok, press(Qt::Key_Escape), Answer::Ok},
        {"Ok, close box", Buttons::Ok, close, Answer::Ok},
        {"Yes/No, Enter", Buttons::YesNo, press(Qt::Key_Return), Answer::Yes},
        {"Yes/No, Escape", Buttons::YesNo, press(Qt::Key_Escape), Answer::No},
        {"Yes/No, close box", Buttons::YesNo, close, Answer::No},
        {"Yes/No, No", Buttons::YesNo, [](QMessageBox& box) { click(*box.button(QMessageBox::No)); }, Answer::No},
        {"Yes/No, letter", Buttons::YesNo, [](QMessageBox& box) { key(box, Qt::Key_N, Qt::AltModifier); }, Answer::No},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        whenModal([&](QWidget& top) {
            auto& box = dynamic_cast<QMessageBox&>(top);
            EXPECT_EQ(utf8(box.windowTitle()), "");
            EXPECT_EQ(utf8(box.text()), "5 < 6 <b>&amp;</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
            EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
            EXPECT_EQ(box.windowHandle()->transientParent(), form.window().windowHandle());
            row.act(box);
        });
        EXPECT_EQ(machine.box("5 < 6 <b>&amp;</b>", "", row.buttons), row.expected);
        settle();
        EXPECT_EQ(QApplication::activeWindow(), &form.window());
        EXPECT_TRUE(form.first->hasFocus());
        QTest::keyClick(form.window().windowHandle(), 'x');
    }
    EXPECT_EQ(form.first->Text().size(), std::size(rows));
}

TEST_F(QtHostTest, RuntimeErrorBoxComesAlsoWithoutAnyWindow) {
    form.Unload();
    settle();
    whenModal([&](QWidget& top) {
        EXPECT_EQ(utf8(top.objectName()), "RuntimeErrorBox");
        EXPECT_EQ(utf8(top.windowTitle()), defaultTitle);
        key(top, Qt::Key_Escape);
    });
    showErrorBox(RuntimeFailure{9, "Subscript out of range"});
}

TEST_F(QtHostTest, FileDialogsAskNothingOfTheirOwn) {
    const std::string folder = utf8(directory.path());
    const std::string there = folder + "/old.bak";
    QFile(qstring(there)).open(QIODevice::WriteOnly);
    constexpr std::string_view filter = "Backup (*.bak)";
    struct Row {
        const char* name;
        bool save;
        std::string typed;
        std::optional<std::string> expected;
    };
    const Row rows[] = {
        {"save a new file", true, folder + "/new.bak", folder + "/new.bak"},
        {"save over a file", true, there, there},
        {"the name stays as it was typed", true, folder + "/plain", folder + "/plain"},
        {"an inch mark", true, "Job 12\" pipe", folder + "/Job 12\" pipe"},
        {"an inch mark at the end", true, folder + "/x 12\"", folder + "/x 12\""},
        {"proposed name", true, "", folder + "/Larkfen.bak"},
        {"open a file", false, there, there},
        {"open an inch mark", false, folder + "/12\" pipe.bak", folder + "/12\" pipe.bak"},
        {"open what is not there", false, folder + "/none.bak", folder + "/none.bak"},
        {"cancel", false, "cancel", std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
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

TEST_F(QtHostTest, ClockAndFormsOfTheMachine) {
    const QDate before = QDate::currentDate();
    const Date today = machine.today();
    EXPECT_TRUE(isValid(today));
    EXPECT_LE((Date{before.year(), before.month(), before.day()}), today);
    EXPECT_EQ(machine.shortDate().pattern, shortDateOf(QLocale::system()).pattern);
    EXPECT_EQ(machine.programDirectory(), "/opt/program");
    EXPECT_EQ(machine.NoInList(), 15);
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
