#include "calculators/screens/scientific.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTest>
#include <cmath>

#include "support/screen_test.h"
#include "widgets/text_box.h"

namespace torvane {
namespace {

// A calculator in a program of its own.
struct Calculator {
    explicit Calculator(Store& store) : program(DataAccess{host, store}, [](int) {}) {
        host.onRuntimeError = [this](const RuntimeFailure& failure) { failed = failure.number(); };
        program.guarded([this] { form.Show(); });
        settle();
    }
    std::string label(const char* name) { return utf8(find<QLabel>(form, name).text()); }
    QAbstractButton* button(const QString& caption) {
        for (auto* one : form.window().findChildren<QAbstractButton*>())
            if (one->text() == caption) return one;
        return nullptr;
    }
    // Keys by their captions, separated by commas; a number is a key for each of its characters, and what follows a
    // quote is written into the display.
    void press(const std::string& keys) {
        for (const QString& one : qstring(keys).split(',')) {
            if (one.startsWith('\''))
                program.guarded([&] { find<TextBox>(form, "Text1").setText(one.mid(1)); });
            else if (auto* single = button(one))
                single->click();
            else
                for (const QChar sign : one) button(sign)->click();
        }
    }
    TestHost host;
    int failed = 0;
    Program program;
    scientific form{program, [] {}};
};

using ScientificTest = ScreenTest;

std::string pushes(int count) {
    std::string keys = "1";
    while (count-- > 0) keys += ",push";
    return keys;
}

TEST_F(ScientificTest, KeysToDisplay) {
    const struct {
        std::string keys;
        const char* display;
        std::vector<std::string> messages = {};
        int failure = 0;
        const char* saved = "";
    } rows[] = {
        {"2,+,3,=,=,4,+,1,=", " 5"},
        {"2,+,=", " 4"},
        {"6,/,0,=,2,=", " 3"},
        {"7,-,7,=,=,5,+,1,=", " 6"},
        {"0,0,5,00", " 500"},
        {"7,±,%,4,=", "-3"},
        {"'-2147483648,%,1,±,=", " 0"},
        {"2,xPOy,2.9,=", " 4"},
        {"2,xPOy,1,±,=", " 0", {"ILLEGAL. POWER LESTHAN 0."}},
        {"7,-,7,=,pi,xPOy,2,=", " 0", {"ILLEGAL.  INVALIED ENTRIES"}},
        {"1,±,xPOy,2147483646,=", " 1"},
        {"10,xPOy,309,=", " 309", {}, 6},
        {"5,ncr,2,=", " 10"},
        {"5,npr,2,=", " 20"},
        {"2,ncr,5,=", " 2", {"ILLEGAL  ENTRIES  of  N ,R "}},
        {"13,npr,2,=", " 3.25677409010742E-07", {"VALUE TOO LARGE"}},
        {"deg,30,sin", " .499770102643102"},
        {"rad,deg,30,sin", " .500000000059208"},
        {"grd,100,cos", "-2.05103428515331E-10"},
        {"45,tan", " .999203990105043"},
        {"1,atan", " 45.0228246533569"},
        {"1000,log", " 3"},
        {"0,ln", " 0", {" ILLEGAL.  LOG  NON  POSITIVE "}},
        {"1,±,log", "-1", {" ILLEGAL. LOG  NON  POSITIVE "}},
        {"699.9,e(x]", " 9.17715113695707E+303"},
        {"700,e(x]", " 700", {" OVERFLOW. VALUE TOO BIG "}},
        {"2.5,1/ X", " .5"},
        {".5,1/ X", " .5", {" ILLEGAL  DIVIDE  0 "}},
        {"2.5,X ²", " 4"},
        {"46299.9,X ²", " 2143690000"},
        {"46300,X ²", " 46300", {" ILLEGAL  DIVIDE  0 "}},
        {"2.25,Sq[x]", " 1.5"},
        {"1,±,Sq[x]", "-1", {" ILLEGAL  ATTEMPTING  NEGETIVE  ROOT"}},
        {".3,±,Sq[x]", "-.3", {}, 5},
        {"1289,X ³", " 2141700569"},
        {"1290,±,X ³", "-1290", {"OVERFLOW. VALUE TOO LARGE "}},
        {"12,n !", " 479001600"},
        {"13,n !", " 13", {"VALUE TOO LARGE"}},
        {"0,n !", " 0", {"ILLEGAL  NEAGETIVE  FACTORIAL"}},
        {"4.5,n !", " 24"},
        {"2,+,pi,=", " 5.141592654"},
        {"2,+,3,=,e,1", " 1"},
        {"3,M +,5,+,MR,=", " 6"},
        {"8,M +,C,2,M /,M -,C,5,M *,MR", " 10"},
        {"6,M +,C,M /,MR", " 6", {"ILLEGAL. DIVIDE 0 ERROR "}},
        {"'1e308,*,10,=", " 10", {}, 6},
        {"View", "", {}, 0, " 0"},
        {"3,push,4,push,5,push,View,View,View,View,copy", " 34", {}, 0, " 34"},
        {"3,push,View,AC,del,View", " 0", {}, 0, " 3"},
        {pushes(26), " 1"},
        {pushes(27), " 1", {}, 9},
        {"Rnd,Rnd", " .9378707"},
        {"1.5,C,.", " 0", {"ILLEGAL VELMOR"}},
        {"'7é,Back", "7"},
        {"'1 2abc,=", " 12"},
        {"g,+,h,=", " 16.485"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.keys);
        Calculator calculator(store);
        for (const std::string& message : row.messages) calculator.host.expectOk(message, std::string(defaultTitle));
        calculator.press(row.keys);
        calculator.host.verify();
        EXPECT_EQ(find<TextBox>(calculator.form, "Text1").Text(), row.display);
        EXPECT_EQ(calculator.label("Label1"), row.saved);
        EXPECT_EQ(calculator.label("Label2"), *row.display ? row.display : "0.");
        EXPECT_EQ(calculator.failed, row.failure);
    }
}

TEST_F(ScientificTest, EachKeyPressCountsOnceAndStillReachesTheFocus) {
    Calculator calculator(store);
    QWidget& window = calculator.form.window();
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Command2_4");
    const struct {
        const char* focus;
        const char* typed;
        const char* display;
        int beeps;
    } steps[] = {
        {"Command2_4", "12.5", " 12.5", 4}, {"Command2_4", "*2x,%", " 2", 2}, {"Command2_4", "\r", " 25", 0},
        {"Command1_7", "3 ", " 37", 1},     {"Option2_0", "4", " 374", 1},    {"Command2_4", "D", " 0", 1},
        {"Command2_4", "5+3c=", " 0", 6},   {"Text1", "7", " 77", 1},         {"Text1", "c", " 0c", 2},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.typed);
        calculator.host.beeps = 0;
        type(find<QWidget>(window, step.focus), step.typed);
        EXPECT_EQ(calculator.label("Label2"), step.display);
        EXPECT_EQ(find<TextBox>(window, "Text1").Text(), step.display);
        EXPECT_EQ(calculator.host.beeps, step.beeps);
    }
    calculator.press("EXIT");
    EXPECT_FALSE(calculator.form.loaded());
}

TEST_F(ScientificTest, EditEntriesAnswerTheirShortcutsInTheDisplay) {
    const auto clipboard = [] { return utf8(QApplication::clipboard()->text()); };
    QApplication::clipboard()->setText("from elsewhere");
    Calculator calculator(store);
    EXPECT_EQ(clipboard(), "");
    auto& display = find<TextBox>(calculator.form, "Text1");
    calculator.press("'12345");
    key(display, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "12345");
    display.setSelection(1, 2);
    key(display, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "23");
    key(display, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(display.Text(), "23") << "in place of all";
    display.setSelection(0, 1);
    key(find<QWidget>(calculator.form, "Command1_1"), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(clipboard() + calculator.label("Label2"), "23") << "2 is cut, 3 stays";
    EXPECT_EQ(calculator.host.beeps, 0);
    calculator.press("AC");
    EXPECT_EQ(clipboard(), "");
}

}  // namespace
}  // namespace torvane
