#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "conversions/screens/conversion_window.h"
#include "support/screen_test.h"

namespace torvane {
namespace {

// What a user does in the window, one step after the other, and what then stands in the two boxes.
TEST(Conversions, TheOtherSideFollowsAndIsCopied) {
    ConversionWindow window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(badControls(window), std::set<std::string>{});
    auto& left = find<QLineEdit>(window, "txtLeft");
    auto& right = find<QLineEdit>(window, "txtRight");
    EXPECT_EQ(utf8(window.windowTitle()), "Conversions");
    EXPECT_EQ(find<QComboBox>(window, "cmbFractions").currentText(), "1/16 inch");
    EXPECT_TRUE(left.hasFocus());
    EXPECT_EQ(utf8(left.selectedText()), "12' 6 1/2\"") << "what is typed takes its place";
    // A control, the text that is typed or the entry that is picked, the texts of both boxes, and the word over them.
    const std::tuple<const char*, const char*, const char*, const char*, const char*> steps[] = {
        {"txtLeft", "10'", "10'", "3.048", ""},
        {"lstRight", "Yards", "10'", "3.33333333333333", ""},
        {"lstLeft", "Feet", "10'", "3.33333333333333", ""},
        {"txtRight", "4", "12", "4", ""},
        {"lstLeft", "Inches", "144", "4", ""},
        {"lstLeft", "Feet and inches", "12' 0\"", "4", ""},
        {"lstRight", "Meters", "13' 1 1/2\"", "4", ""},
        {"cmbFractions", "1/64 inch", "13' 1 31/64\"", "4", ""},
        {"cmbFractions", "1/2 inch", "13' 1 1/2\"", "4", ""},
        {"txtRight", "1/0", "", "1/0", "Not understood"},
        {"cmbCategory", "Board feet", "2 x 6 x 14", "14", ""},
        {"txtLeft", "2 x 4 x 12", "2 x 4 x 12", "8", ""},
        {"txtRight", "x", "", "x", "Not understood"},
        {"txtRight", "20", "2 x 4 x 30", "20", ""},
        {"cmbCategory", "Slope", "1", "4.76364169072618", ""},
        {"lstRight", "Ratio, rise to run", "1", "1:12", ""},
        {"txtLeft", "0", "0", "", "No such amount"},
        {"txtLeft", " ", " ", "", ""},
        {"cmbCategory", "Length", "12' 6 1/2\"", "3.8227", ""},
    };
    for (const auto& [name, text, leftText, rightText, word] : steps) {
        SCOPED_TRACE(std::string(name) + " " + text);
        auto& control = find<QWidget>(window, name);
        if (auto* units = qobject_cast<QListWidget*>(&control)) {
            const QRect entry = units->visualItemRect(units->findItems(text, Qt::MatchExactly).constFirst());
            QTest::mouseClick(units->viewport(), Qt::LeftButton, {}, entry.center());
        } else if (auto* list = qobject_cast<QComboBox*>(&control)) {
            list->setCurrentText(text);
        } else {
            static_cast<QLineEdit&>(control).selectAll();
            type(control, text);
        }
        EXPECT_EQ(utf8(left.text()), leftText);
        EXPECT_EQ(utf8(right.text()), rightText);
        EXPECT_EQ(utf8(find<QLabel>(window, "lblLeft").text() + find<QLabel>(window, "lblRight").text()), word);
        const bool inFeet = find<QListWidget>(window, "lstLeft").currentItem()->text() == "Feet and inches";
        EXPECT_EQ(find<QComboBox>(window, "cmbFractions").isEnabled(), inFeet);
        EXPECT_EQ(left.placeholderText() == "12' 6 1/2\"", inFeet) << "what is asked for";
    }
    EXPECT_EQ(right.cursorPosition(), 0) << "a long result shows its beginning";
    for (const char* fraction : {"1/2 inch", "1/4 inch", "1/8 inch", "1/32 inch", "1/64 inch"})
        EXPECT_GE(find<QComboBox>(window, "cmbFractions").findText(fraction), 0) << fraction;

    const auto copied = [](QWidget& from) {
        QTest::keySequence(&from, QKeySequence::Copy);
        return utf8(QGuiApplication::clipboard()->text());
    };
    left.deselect();
    EXPECT_EQ(copied(left), "3.8227");
    left.selectAll();
    EXPECT_EQ(copied(left), "12' 6 1/2\"") << "what is selected";
    click(window, "cmdCopy");
    EXPECT_EQ(utf8(QGuiApplication::clipboard()->text()), "3.8227");
    type(left, "x");
    EXPECT_EQ(copied(find<QListWidget>(window, "lstLeft")), "3.8227") << "there is no result";
    right.selectAll();
    type(right, "2");
    EXPECT_EQ(copied(find<QListWidget>(window, "lstLeft")), utf8(left.text())) << "the result is on the left then";
    QTest::keyClick(&left, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.show();
    click(window, "cmdClose");
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace torvane
