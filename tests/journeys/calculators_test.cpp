#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
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
};

TEST_F(CalculatorsTest, EachEntryOpensItsPanelAndMovesNoMark) {
    const std::set<std::string> openOnFirst{"cmbTab32", "cmbTab37", "cmbTab38_1", "cmbTab38_2"};
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
        const bool first = seen.insert(panel->frame).second;
        for (const Control* control : panel->controls()) {
            if (control->kind == ControlKind::Help) {
                go(*standing(group.name), control->name);
                EXPECT_EQ(calls.back(), "Speak " + control->label);
            } else if (control->kind == ControlKind::List && first) {
                const auto& list = find<DropList>(*standing(group.name), control->name);
                EXPECT_EQ(list.ListIndex(), openOnFirst.contains(control->name) ? 0 : -1) << control->name;
            }
        }
        go(*standing(group.name), "cmdHelpMain");
        EXPECT_TRUE(calls.back().starts_with("Speak You can transfer any of the totals you want"));
    }
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
    for (const auto& [entry, window, frame] : {std::tuple{"mnuCalc1", "frmCalculators", ""},
                                               {"mnuCalc2", "frmCalculator2", "frmTab12"},
                                               {"mnuCalc3", "frmCalculator3", "frmTab28"},
                                               {"mnuCalc4", "frmCalculator4", "frmTab37"}}) {
        go(order, "Command7");
        trigger(find<QAction>(*QApplication::activePopupWidget(), entry));
        EXPECT_EQ(frames(window), frame);
    }
    QWidget& roofing = *standing("frmCalculator4");
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
