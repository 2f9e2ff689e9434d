#include <QAbstractButton>
#include <QApplication>

#include "calculators/screens/calculator_window.h"
#include "journeys/journey.h"
#include "widgets/units.h"

namespace torvane {
namespace {

class CalculatorsTest : public JourneyTest {
protected:
    static std::string open() {
        std::string names;
        for (const char* name : {"frmCalculators", "frmCalculator2", "frmCalculator3", "frmCalculator4", "scientific"})
            if (standing(name)) names += (names.empty() ? "" : " ") + std::string(name);
        return names;
    }
};

TEST_F(CalculatorsTest, TabsOfGroup1CloseGroups2And3AndTheScientificCalculator) {
    start();
    choose("mnucalc4_2");
    choose("mnucalc2_4");
    choose("mnucalc3_5");
    EXPECT_EQ(open(), "frmCalculator2 frmCalculator3 frmCalculator4");
    choose("mnucalc1_7");
    EXPECT_EQ(open(), "frmCalculators frmCalculator4 scientific");
    EXPECT_EQ(visible(*standing("frmCalculator4"), {"frmTab37", "frmTab38"}), "frmTab38");
    trigger(find<QAction>(*standing("scientific"), "habout"));
    EXPECT_EQ(texts(*standing("frmAbout"), {"lblName", "txtFolder", "lblVersions"}),
              "TORVANE Construction Estimator Ver. 2.0|" + data.path() + "|Qt " + qVersion());
    choose("mnucalc2_4");
    QWidget& group1 = *standing("frmCalculators");
    EXPECT_EQ(group1.pos(), QPoint(0, pixels(2500)));
    go(group1, "TabStrip1_3; txtTab3_1=8; txtTab3_2=100; cmdTab3");
    EXPECT_EQ(open(), "frmCalculators frmCalculator4");
    EXPECT_TRUE(find<QAbstractButton>(group1, "TabStrip1_3").isChecked());
    go(group1, "TabStrip1_6; TabStrip1_6");
    EXPECT_EQ(visible(group1, {"frmTab3"}), "");
    EXPECT_EQ(host.started.size(), 2U) << "once for each click";
    go(group1, "TabStrip1_3");
    EXPECT_EQ(text(group1, "txtTab3_4"), "9.48148") << "what stood on a panel stays";
    choose("mnucalc2_4");
    choose("mnucalc3_5");
    go(*standing("frmCalculator2"), "Command2");
    go(group1, "Command2");
    EXPECT_EQ(open(), "frmCalculator4");
    choose("mnucalc1_3");
    EXPECT_EQ(texts(*standing("frmCalculators"), {"txtTab1_BlockSize", "txtTab3_4"}), "16|") << "a new window";
}

// In place of the notes that a user would carry from one window to the other.
TEST_F(CalculatorsTest, StandBesideTheEstimateWithResultsToCopy) {
    QWidget& order = newEstimate();
    for (const auto& [entry, window, frame] : {std::tuple{"mnuCalc1", "frmCalculators", "TabStrip1"},
                                               {"mnuCalc2", "frmCalculator2", "frmTab12"},
                                               {"mnuCalc3", "frmCalculator3", "frmTab28"},
                                               {"mnuCalc4", "frmCalculator4", "frmTab37"}}) {
        go(order, "Command7");
        trigger(find<QAction>(*QApplication::activePopupWidget(), entry));
        EXPECT_EQ(visible(*standing(window), {frame}), frame);
    }
    EXPECT_EQ(text(*standing("frmCalculator4"), "cmbTab37"), "4 in 12");
    EXPECT_TRUE(find<TextBox>(*standing("frmCalculator4"), "txtTab37_3").isReadOnly());
}

}  // namespace
}  // namespace torvane
