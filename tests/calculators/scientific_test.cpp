#include "calculators/screens/scientific.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>

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

class ScientificTest : public ScreenTest {
protected:
    // What the display shows after these keys, and the number of the failure that they end in; a message may come.
    std::string after(const std::string& keys, const std::string& message = "") {
        Calculator calculator(store);
        if (!message.empty()) calculator.host.expect(ok(message, std::string(defaultTitle)));
        calculator.press(keys);
        calculator.host.verify();
        const std::string display = find<TextBox>(calculator.form, "Text1").Text();
        EXPECT_EQ(calculator.label("Label2"), display) << keys;
        return display + (calculator.failed ? ", fails " + std::to_string(calculator.failed) : "");
    }
};

TEST_F(ScientificTest, KeysToDisplay) {
    const std::pair<const char*, const char*> rows[] = {
        {"2,+,3,=,=,4,+,1,=", " 5"},
        {"6,/,0,=,2,=", " 3"},
        {"7,-,7,=,=,5,+,1,=", " 6"},
        {"0,0,5,00", " 500"},
        {"1.5,*,+,2.5,=", " 4"},
        {"1.5,AC,.5", " .5"},
        {"7,±,%,4,=", "-3"},
        {"'-2147483648,%,1,±,=", " 0"},
        {"2,xPOy,2.9,=", " 4"},
        {"2,xPOy,.5,=", " 1"},
        {"1,±,xPOy,2147483644,=", " 1"},
        {"5,ncr,2,=", " 10"},
        {"1,npr,.5,=", " 1"},
        {"deg,30,sin", " .499770102643102"},
        {"rad,1,sin", " .841470984807897"},
        {"rad,deg,30,sin", " .500000000059208"},
        {"grd,100,cos", "-2.05103428515331E-10"},
        {"45,tan", " .999203990105043"},
        {"1,atan", " 45.0228246533569"},
        {"1000,log", " 3"},
        {".5,ln", "-.693147180559945"},
        {"699.9,e(x]", " 9.17715113695707E+303"},
        {"2.5,1/ X", " .5"},
        {"46299.9,X ²", " 2143690000"},
        {"2.25,Sq[x]", " 1.5"},
        {"0,tan,Sq[x]", " 0"},
        {"1289,X ³", " 2141700569"},
        {"12,n !", " 479001600"},
        {"1,n !", " 1"},
        {"2,+,pi,=", " 5.141592654"},
        {"pi,1", "3.1415926541"},
        {"2,+,3,=,e,1", " 1"},
        {"g,+,h,=", " 16.485"},
        {"3,M +,5,+,MR,=", " 6"},
        {"8,M +,C,2,M /,M -,C,5,M *,MR", " 10"},
        {"8,M +,MC,MR", " 0"},
        {"8,M +,AC,MR", " 0"},
        {"View,copy", " 0"},
        {"View,3,push,4,push,5,push,View,View,View,View,copy", " 34"},
        {"3,push,View,AC,del,View", " 0"},
        {"3,push,AC,5,push,View,View,copy", " 5"},
        {"3,push,C,del,copy", " 3"},
        {"Rnd,Rnd", " .9378707"},
        {"'7é7,Back,Back", "7"},
    };
    for (const auto& [keys, display] : rows) EXPECT_EQ(after(keys), display) << keys;
}

TEST_F(ScientificTest, RefusesWhatItCantCompute) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"2,xPOy,1,±,=", "ILLEGAL. POWER LESTHAN 0.", " 0"},
        {"7,-,7,=,pi,xPOy,2,=", "ILLEGAL.  INVALIED ENTRIES", " 0"},
        {"2,ncr,5,=", "ILLEGAL  ENTRIES  of  N ,R ", " 2"},
        {".5,ncr,.5,=", "ILLEGAL  ENTRIES  of  N ,R ", " .5"},
        {"5,npr,1,±,=", "ILLEGAL  ENTRIES  of  N ,R ", " 5"},
        {"13,npr,2,=", "VALUE TOO LARGE", " 3.25677409010742E-07"},
        {"5,ncr,.5,=", "ILLEGAL  NEAGETIVE  FACTORIAL", " .5, fails 11"},
        {"5,npr,5,=", "ILLEGAL  NEAGETIVE  FACTORIAL", " 5, fails 11"},
        {"0,ln", " ILLEGAL.  LOG  NON  POSITIVE ", " 0"},
        {"1,±,log", " ILLEGAL. LOG  NON  POSITIVE ", "-1"},
        {"700,e(x]", " OVERFLOW. VALUE TOO BIG ", " 700"},
        {".5,1/ X", " ILLEGAL  DIVIDE  0 ", " .5"},
        {"46300,X ²", " ILLEGAL  DIVIDE  0 ", " 46300"},
        {"1,±,Sq[x]", " ILLEGAL  ATTEMPTING  NEGETIVE  ROOT", "-1"},
        {"1290,±,X ³", "OVERFLOW. VALUE TOO LARGE ", "-1290"},
        {"13,n !", "VALUE TOO LARGE", " 13"},
        {"0,n !", "ILLEGAL  NEAGETIVE  FACTORIAL", " 0"},
        {"6,M +,C,M /,MR", "ILLEGAL. DIVIDE 0 ERROR ", " 6"},
        {"1.5,C,.", "ILLEGAL VELMOR", " 0"},
        {".3,±,Sq[x]", "", "-.3, fails 5"},
        {"10,xPOy,309,=", "", " 309, fails 6"},
        {"'1e308,*,10,=", "", " 10, fails 6"},
        {"5,%,.4,=", "", " .4, fails 11"},
    };
    for (const auto& [keys, message, display] : rows) EXPECT_EQ(after(keys, message), display) << keys;
    std::string pushes = "1";
    for (int i = 0; i < 26; ++i) pushes += ",push";
    EXPECT_EQ(after(pushes), " 1");
    EXPECT_EQ(after(pushes + ",push"), " 1, fails 9");
}

TEST_F(ScientificTest, EachKeyPressCountsOnceAndStillReachesTheFocus) {
    Calculator calculator(store);
    QWidget& window = calculator.form.window();
    EXPECT_EQ(utf8(window.windowTitle() + QApplication::focusWidget()->objectName()) + calculator.label("Label2"),
              "# Scientific Calc #Command2_40.");
    // What has the focus, what is typed, and then the display and the beeps.
    const std::tuple<const char*, const char*, const char*, int> steps[] = {
        {"Command2_4", "12.5", " 12.5", 4}, {"Command2_4", "*2x,%", " 2", 2}, {"Command2_4", "\r", " 25", 0},
        {"Command1_7", "3 ", " 37", 1},     {"Option2_0", "4", " 374", 1},    {"Command2_4", "D", " 0", 1},
        {"Command2_4", "5+c4+3=", " 7", 8}, {"Text1", "7", " 77", 1},         {"Text1", "c", " 0c", 2},
    };
    for (const auto& [focus, typed, display, beeps] : steps) {
        SCOPED_TRACE(typed);
        calculator.host.beeps = 0;
        type(find<QWidget>(window, focus), typed);
        EXPECT_EQ(calculator.label("Label2"), display);
        EXPECT_EQ(find<TextBox>(window, "Text1").Text(), display);
        EXPECT_EQ(calculator.host.beeps, beeps);
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
    key(find<QWidget>(calculator.form, "Command1_1"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "") << "nothing is selected any more";
    key(find<QWidget>(calculator.form, "Command1_1"), Qt::Key_7, Qt::AltModifier);
    EXPECT_EQ(calculator.host.beeps, 0);
    calculator.press("push,View");
    EXPECT_EQ(calculator.label("Label1"), " 3");
    calculator.press("AC");
    EXPECT_EQ(clipboard(), "");
    key(display, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(calculator.failed, 91) << "there is no other calculator";
}

}  // namespace
}  // namespace torvane
