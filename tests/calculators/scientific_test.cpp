#include "calculators/screens/scientific.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTest>
#include <cmath>

#include "support/screen_test.h"
#include "widgets/text_box.h"

namespace torvane {

namespace {

using Texts = std::vector<std::string>;

// A calculator in a program of its own.
struct Calculator {
    explicit Calculator(Store& store) : program(DataAccess{host, store}, [](int) {}) {
        host.onRuntimeError = [this](const RuntimeFailure& failure) { failed = failure.number(); };
        program.guarded([this] { form.Load(); });
        window = form.standingWindow();
    }
    std::string display() { return find<TextBox>(*window, "Text1").Text(); }
    std::string label(const char* name) { return utf8(find<QLabel>(*window, name).text()); }
    QAbstractButton* button(const QString& caption) {
        for (auto* one : window->findChildren<QAbstractButton*>())
            if (one->text() == caption) return one;
        return nullptr;
    }
    // Keys by their captions, separated by commas; a number is a key for each of its characters, and what follows a
    // quote is written into the display.
    void press(const std::string& keys) {
        for (const QString& one : qstring(keys).split(',')) {
            if (one.startsWith('\''))
                program.guarded([&] { find<TextBox>(*window, "Text1").setText(one.mid(1)); });
            else if (auto* single = button(one))
                single->click();
            else
                for (const QChar sign : one) button(sign)->click();
        }
    }
    TestHost host;
    int failed = 0;
    Program program;
    bool aboutShown = false;
    scientific form{program, [this] { aboutShown = true; }};
    QWidget* window = nullptr;  // its texts are read also when EXIT has let it go
};

class ScientificTest : public ScreenTest {
protected:
    void SetUp() override { QApplication::clipboard()->setText("from elsewhere"); }
    static std::string clipboard() { return utf8(QApplication::clipboard()->text()); }
};

constexpr const char* noFactorial = "ILLEGAL  NEAGETIVE  FACTORIAL";
constexpr const char* tooLarge = "VALUE TOO LARGE";
constexpr const char* badPoint = "ILLEGAL VELMOR";
constexpr const char* byZero = " ILLEGAL  DIVIDE  0 ";

std::string pushes(int count) {
    std::string keys;
    while (count-- > 0) keys += ",push";
    return keys;
}

struct Row {
    std::string keys;
    const char* display;
    Texts messages = {};
    int failure = 0;
    const char* label1 = "";
};

TEST_F(ScientificTest, KeysToDisplay) {
    const Row rows[] = {
        {"2,+,3,=,4,+,1,=", " 5"},
        {"2,+,=", " 4"},
        {"2,+,3,=,=,=", " 5"},
        {"2,+,*,3,=", " 6"},
        {"6,/,0,=,2,=", " 3"},
        {"7,-,7,=,=,5,+,1,=", " 6"},
        {"1,/,3,=", " .333333333333333"},
        {".,.", " .", {badPoint}},
        {"0,0,5,00", " 500"},
        {"7,±,%,4,=", "-3"},
        {"'-2147483648,%,1,±,=", " 0"},
        {"5,%,.4,=", " .4", {}, 11},
        {"2,xPOy,2.9,=", " 4"},
        {"2,xPOy,1,±,=", " 0", {"ILLEGAL. POWER LESTHAN 0."}},
        {"7,-,7,=,pi,xPOy,2,=", " 0", {"ILLEGAL.  INVALIED ENTRIES"}},
        {"1,±,xPOy,2147483647,=", "-1"},
        {"1,±,xPOy,2147483646,=", " 1"},
        {"10,xPOy,309,=", " 309", {}, 6},
        {"5,ncr,2,=", " 10"},
        {"5,npr,2,=", " 20"},
        {"2,ncr,5,=", " 2", {"ILLEGAL  ENTRIES  of  N ,R "}},
        {"13,npr,2,=", " 3.25677409010742E-07", {tooLarge}},
        {"5,npr,5,=", " 5", {noFactorial}, 11},
        {"5,ncr,.5,=", " .5", {noFactorial}, 11},
        {"deg,30,sin", " .499770102643102"},
        {"rad,deg,30,sin", " .500000000059208"},
        {"grd,100,cos", "-2.05103428515331E-10"},
        {"1,atan", " 45.0228246533569"},
        {"30,sin,7", " .4997701026431027"},
        {"5,asin,acos,AND,OR,NOT", " 5"},
        {"1000,log", " 3"},
        {"0,ln", " 0", {" ILLEGAL.  LOG  NON  POSITIVE "}},
        {"1,±,log", "-1", {" ILLEGAL. LOG  NON  POSITIVE "}},
        {"699.9,e(x]", " 9.17715113695707E+303"},
        {"700,e(x]", " 700", {" OVERFLOW. VALUE TOO BIG "}},
        {"2.5,1/ X", " .5"},
        {".5,1/ X", " .5", {byZero}},
        {"2.5,X ²", " 4"},
        {"46299.9,X ²", " 2143690000"},
        {"46300,X ²", " 46300", {byZero}},
        {"2.25,Sq[x]", " 1.5"},
        {"1,±,Sq[x]", "-1", {" ILLEGAL  ATTEMPTING  NEGETIVE  ROOT"}},
        {".3,±,Sq[x]", "-.3", {}, 5},
        {"1289,X ³", " 2141700569"},
        {"1290,±,X ³", "-1290", {"OVERFLOW. VALUE TOO LARGE "}},
        {"2147483647.5,X ³", " 2147483647.5", {}, 6},
        {"12,n !", " 479001600"},
        {"13,n !", " 13", {tooLarge}},
        {"0,n !", " 0", {noFactorial}},
        {"4.5,n !", " 24"},
        {"2,+,pi,=", " 5.141592654"},
        {"2,+,3,=,e,1", " 1"},
        {"3,M +,5,+,MR,=", " 6"},
        {"8,M +,C,2,M /,M -,C,5,M *,MR", " 10"},
        {"6,M +,C,M /,MR", " 6", {"ILLEGAL. DIVIDE 0 ERROR "}},
        {"6,M +,MC,MR", " 0"},
        {"'1e308,M +,M *", "1e308", {}, 6},
        {"'1e308,*,10,=", " 10", {}, 6},
        {"View", "", {}, 0, " 0"},
        {"3,push,4,push,5,push,View,View,View,copy", " 3", {}, 0, " 3"},
        {"3,push,4,push,del,View", " 34", {}, 0, " 34"},
        {"3,push,View,AC,del,View", " 0", {}, 0, " 3"},
        {"del,copy", ""},
        {"1" + pushes(26), " 1"},
        {"1" + pushes(27), " 1", {}, 9},
        {"Rnd,Rnd", " .9378707"},
        {"1.5,C,.", " 0", {badPoint}},
        {"1.,Back,.", " 1", {badPoint}},
        {"'7é,Back", "7"},
        {"'1 2abc,=", " 12"},
        {"'-.00002,=", "-2E-05"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.keys);
        Calculator calculator(store);
        EXPECT_EQ(calculator.label("Label2"), "0.");
        for (const std::string& message : row.messages) calculator.host.expectOk(message, std::string(defaultTitle));
        calculator.press(row.keys);
        calculator.host.verify();
        EXPECT_EQ(calculator.display(), row.display);
        EXPECT_EQ(calculator.label("Label1"), row.label1);
        if (*row.display) {
            EXPECT_EQ(calculator.label("Label2"), row.display);
        }
        EXPECT_EQ(calculator.failed, row.failure);
    }
}

TEST_F(ScientificTest, EachKeyPressCountsOnceAndStillReachesTheFocus) {
    Calculator calculator(store);
    EXPECT_EQ(clipboard(), "");
    calculator.program.guarded([&] { calculator.form.Show(); });
    settle();
    QWidget& equals = find<QWidget>(*calculator.window, "Command2_4");
    auto& text1 = find<TextBox>(*calculator.window, "Text1");
    EXPECT_EQ(QApplication::focusWidget(), &equals);
    struct Step {
        QWidget& focus;
        const char* typed;
        const char* display;
        int beeps;
    };
    const Step steps[] = {
        {equals, "12.5", " 12.5", 4},
        {equals, "*2x,%", " 2", 2},
        {equals, "\r", " 25", 0},  // the focused key
        {equals, " ", " 25", 0},
        {find<QWidget>(*calculator.window, "Command1_7"), "3 ", " 37", 1},
        {find<QWidget>(*calculator.window, "Option2_0"), "4", " 374", 1},
        {equals, "D", " 0", 1},
        {equals, "5+3c=", " 0", 6},
        {text1, "7", " 77", 1},
        {text1, "x", " 77x", 0},
        {text1, "c", " 0c", 2},
        {text1, "/", " 0c/", 1},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.typed);
        calculator.host.beeps = 0;
        type(step.focus, step.typed);
        EXPECT_EQ(text1.Text(), step.display);
        EXPECT_EQ(calculator.label("Label2"), step.display);
        EXPECT_EQ(calculator.host.beeps, step.beeps);
    }
    key(equals, Qt::Key_Left);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Command2_6");
    key(equals, Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Command1_10");
    text1.setFocus();
    QTest::keyClick(calculator.window->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
    EXPECT_EQ(std::string(QApplication::focusWidget()->metaObject()->className()), "QMenuBar");
    calculator.press("EXIT");
    EXPECT_FALSE(calculator.form.loaded());
}

TEST_F(ScientificTest, EditEntriesAnswerTheirShortcutsInTheDisplay) {
    Calculator calculator(store);
    calculator.form.Show();
    auto& text1 = find<TextBox>(*calculator.window, "Text1");
    calculator.press("'12345");
    text1.setFocus();
    key(text1, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "12345");
    EXPECT_FALSE(text1.hasSelectedText());
    text1.setSelection(1, 2);
    key(text1, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "23");
    key(text1, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text1.Text(), "23");
    text1.setSelection(0, 1);
    find<QWidget>(*calculator.window, "Command1_1").setFocus();
    key(find<QWidget>(*calculator.window, "Command1_1"), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "2");
    EXPECT_EQ(calculator.label("Label2"), "3");
    EXPECT_EQ(calculator.host.beeps, 0);
    calculator.press("'9,push,AC");
    EXPECT_EQ(clipboard(), "");
    trigger(find<QAction>(*calculator.window, "tscientific"));
    EXPECT_EQ(calculator.failed, 91);
}

}  // namespace

}  // namespace torvane
