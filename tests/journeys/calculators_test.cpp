#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>
#include <set>

#include "calculators/screens/calculator_window.h"
#include "journeys/journey.h"
#include "shell/menu_tree.h"
#include "widgets/units.h"

namespace torvane {
namespace {

class CalculatorsTest : public JourneyTest {
protected:
    // The frames of a window that are seen, joined by ' '.
    static std::string frames(std::string_view window) {
        std::string seen;
        for (const QGroupBox* frame : standing(window)->findChildren<QGroupBox*>())
            if (frame->isVisible() && frame->objectName().startsWith(QLatin1String("frmTab")))
                seen += (seen.empty() ? "" : " ") + utf8(frame->objectName());
        return seen;
    }
    static std::string marked(std::string_view window) {
        for (const auto* tab : find<QWidget>(*standing(window), "TabStrip1").findChildren<QAbstractButton*>())
            if (tab->isChecked()) return utf8(tab->objectName());
        return "";
    }
    static std::string open() {
        std::string names;
        for (const char* name : {"frmCalculators", "frmCalculator2", "frmCalculator3", "frmCalculator4", "scientific"})
            if (standing(name)) names += (names.empty() ? "" : " ") + std::string(name);
        return names;
    }
    // Labels, buttons and boxes that are smaller than their text wants, or that lie on one another.
    static std::set<std::string> cut(const QWidget& window) {
        std::vector<const QWidget*> withText;
        for (const QWidget* control : window.findChildren<QWidget*>())
            if (control->isVisible() &&
                (qobject_cast<const QLabel*>(control) || qobject_cast<const TextBox*>(control) ||
                 qobject_cast<const QAbstractButton*>(control)))
                withText.push_back(control);
        std::set<std::string> names;
        for (const QWidget* control : withText) {
            const auto covers = [control](const QWidget* other) {
                return other != control && other->parent() == control->parent() &&
                       other->geometry().intersects(control->geometry());
            };
            if (control->size().expandedTo(control->minimumSizeHint()) != control->size() ||
                std::ranges::any_of(withText, covers))
                names.insert(utf8(control->objectName()));
        }
        return names;
    }
};

TEST_F(CalculatorsTest, EachEntryOpensItsPanelUncutAndMovesNoMark) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.6);
    QApplication::setFont(large);
    start();
    std::set<std::string> seen;
    for (const MenuEntry& entry : menuTree()) {
        if (entry.group == 0) continue;
        SCOPED_TRACE(entry.name);
        choose(entry.name);
        const CalculatorGroup& group = calculatorGroups()[entry.group - 1];
        const CalculatorTab& tab = group.tabs[static_cast<std::size_t>(entry.Which - 1)];
        const auto panel = tab.panel ? tab.panel() : std::make_unique<Panel>("", "", 0);
        ASSERT_TRUE(standing(group.name));
        EXPECT_EQ(frames(group.name), panel->frame);
        EXPECT_EQ(marked(group.name), "TabStrip1_1");
        EXPECT_EQ(cut(*standing(group.name)), std::set<std::string>{});
        const bool first = seen.insert(panel->frame).second;
        for (const Control* control : panel->controls()) {
            if (control->kind == ControlKind::Help) {
                go(*standing(group.name), control->name);
                EXPECT_EQ(calls.back(), "Speak " + control->label);
            } else if (control->kind == ControlKind::List && first) {
                auto& list = find<DropList>(*standing(group.name), control->name);
                const bool opensOnFirst =
                    std::set<std::string>{"cmbTab32", "cmbTab37", "cmbTab38_1", "cmbTab38_2"}.contains(control->name);
                EXPECT_EQ(list.ListIndex(), opensOnFirst ? 0 : -1) << control->name;
                pickInList(list, 1);
                choose(entry.name);
                EXPECT_EQ(list.ListIndex(), opensOnFirst ? 0 : 1) << control->name;
            }
        }
        go(*standing(group.name), "cmdHelpMain");
        EXPECT_TRUE(calls.back().starts_with("Speak You can transfer any of the totals you want"));
    }
    QApplication::setFont(usual);
    EXPECT_EQ(seen.size(), 30U) << "29 panels, and none";
    EXPECT_EQ(host.started, Texts{data.path() + "/Convert.exe"});
}

TEST_F(CalculatorsTest, TabsOfGroup1CloseGroups2And3AndTheScientificCalculator) {
    start();
    choose("mnucalc4_2");
    choose("mnucalc2_4");
    choose("mnucalc3_5");
    EXPECT_EQ(open(), "frmCalculator2 frmCalculator3 frmCalculator4");
    choose("mnucalc1_7");
    EXPECT_EQ(open(), "frmCalculators frmCalculator4 scientific");
    EXPECT_EQ(frames("frmCalculator4"), "frmTab38");
    run([&] {
        screens->calculators4.Which = 3;
        screens->calculators4.Showframe();
    });
    EXPECT_EQ(frames("frmCalculator4"), "") << "there is no such tab";
    choose("mnucalc2_4");
    QWidget& group1 = *standing("frmCalculators");
    EXPECT_EQ(group1.pos(), QPoint(0, pixels(2500)));
    go(group1, "TabStrip1_3; txtTab3_1=8; txtTab3_2=100; cmdTab3");
    EXPECT_EQ(open(), "frmCalculators frmCalculator4");
    EXPECT_EQ(marked("frmCalculators"), "TabStrip1_3");
    go(group1, "TabStrip1_6; TabStrip1_6");
    EXPECT_EQ(frames("frmCalculators"), "");
    EXPECT_EQ(host.started.size(), 2U) << "once for each click";
    go(group1, "TabStrip1_3");
    EXPECT_EQ(text(group1, "txtTab3_4"), "9.48148") << "what stood on a panel stays";
    EXPECT_FALSE(find<TextBox>(group1, "txtTab3_4").isReadOnly());
    choose("mnucalc2_4");
    choose("mnucalc3_5");
    go(*standing("frmCalculator2"), "Command2");
    go(group1, "Command2");
    EXPECT_EQ(open(), "frmCalculator4");
    choose("mnucalc1_3");
    EXPECT_EQ(text(*standing("frmCalculators"), "txtTab3_4"), "") << "a new window is empty";
}

TEST_F(CalculatorsTest, AResultGoesIntoTheEstimateByCopyAndPaste) {
    start();
    QWidget& order = newEstimate();
    const std::pair<const char*, const char*> groups[] = {{"frmCalculators", ""},
                                                          {"frmCalculator2", "frmTab12"},
                                                          {"frmCalculator3", "frmTab28"},
                                                          {"frmCalculator4", "frmTab37"}};
    for (int number = 1; const auto& [window, frame] : groups) {
        go(order, "Command7");
        trigger(find<QAction>(*QApplication::activePopupWidget(), "mnuCalc" + std::to_string(number++)));
        EXPECT_EQ(frames(window), frame);
    }
    QWidget& roofing = *standing("frmCalculator4");
    EXPECT_EQ(text(roofing, "cmbTab37"), "4 in 12");
    go(order, "TxtQty=");
    go(roofing, "txtTab37_1=1000; cmdTab37");
    auto& result = find<TextBox>(roofing, "txtTab37_3");
    EXPECT_TRUE(result.isReadOnly());
    click(result);
    key(result, Qt::Key_A, Qt::ControlModifier);
    key(result, Qt::Key_C, Qt::ControlModifier);
    auto& quantity = find<QWidget>(order, "TxtQty");
    order.activateWindow();
    click(quantity);
    key(quantity, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(order, "TxtQty"), "11");
}

}  // namespace
}  // namespace torvane
