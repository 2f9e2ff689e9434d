#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "conversions/screens/conversion_window.h"
#include "support/screen_test.h"

namespace torvane {
namespace {

struct Conversions : testing::Test {
    Conversions() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    // Replaces the text of a box by typing.
    void type(QLineEdit& box, const char* text) {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
    void pick(QListWidget& units, const char* name) {
        const auto found = units.findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name;
        QTest::mouseClick(units.viewport(), Qt::LeftButton, {}, units.visualItemRect(found.first()).center());
    }
    ConversionWindow window;
    QLineEdit& left = find<QLineEdit>(window, "txtLeft");
    QLineEdit& right = find<QLineEdit>(window, "txtRight");
    QListWidget& leftUnits = find<QListWidget>(window, "lstLeft");
    QListWidget& rightUnits = find<QListWidget>(window, "lstRight");
};

TEST_F(Conversions, EveryControlThatTakesTheFocusHasANameAndItsTurn) {
    const FocusControls controls = focusControls(window);
    EXPECT_EQ(controls.nameless, std::set<std::string>{});
    EXPECT_GT(controls.named, 4);
    QString order;
    for (int step = 0; step < 8; ++step) {
        order += window.focusWidget()->objectName() + ' ';
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, "txtLeft lstLeft txtRight lstRight cmdCopy cmdClose cmbCategory cmbFractions ");
}

TEST_F(Conversions, OtherSideFollows) {
    EXPECT_TRUE(left.hasFocus());
    EXPECT_EQ(right.text(), "3.8227");
    type(left, "10'");
    EXPECT_EQ(right.text(), "3.048");
    pick(rightUnits, "Yards");
    EXPECT_EQ(right.text(), "3.33333333333333");
    pick(leftUnits, "Feet");
    type(left, "9");
    EXPECT_EQ(right.text(), "3");
    type(right, "4");
    EXPECT_EQ(left.text(), "12");
    pick(leftUnits, "Inches");
    EXPECT_EQ(left.text(), "144");
    EXPECT_EQ(right.text(), "4");
    type(right, "four");
    EXPECT_EQ(left.text(), "");
}

TEST_F(Conversions, FractionsCategoriesAndTheSizeOfLumber) {
    type(right, "2");
    EXPECT_EQ(left.text(), "6' 6 3/4\"");
    find<QComboBox>(window, "cmbFractions").setCurrentText("1/64 inch");
    EXPECT_EQ(left.text(), "6' 6 47/64\"");
    find<QComboBox>(window, "cmbCategory").setCurrentText("Board feet");
    EXPECT_EQ(right.text(), "14");
    type(right, "x");
    type(right, "20");
    EXPECT_EQ(left.text(), "2 x 6 x 20");
}

TEST_F(Conversions, CopyTakesTheSelectionOrElseTheResult) {
    type(left, "20'");
    QTest::keySequence(&left, QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "6.096");
    left.selectAll();
    QTest::keySequence(&left, QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "20'");
    QTest::keySequence(&leftUnits, QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "6.096");
    QTest::keyClick(&left, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace torvane
