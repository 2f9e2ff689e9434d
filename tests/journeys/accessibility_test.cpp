#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <set>

#include "journeys/journey.h"
#include "shell/menu_tree.h"

namespace torvane {
namespace {

class AccessibilityTest : public JourneyTest {
protected:
    void look(QWidget& window) {
        windows.insert(utf8(window.objectName()));
        const FocusControls seen = focusControls(window);
        controls.named += seen.named;
        controls.nameless.insert(seen.nameless.begin(), seen.nameless.end());
    }
    // A modal form that the act opens.
    void lookAtModal(const std::function<void()>& act) {
        whenModal([this](QWidget& form) {
            look(form);
            closeBox(form);
        });
        act();
    }
    std::set<std::string> windows;
    FocusControls controls;
};

TEST_F(AccessibilityTest, EveryControlThatTakesTheFocusHasAName) {
    start();
    look(screens->mainMenu.window());
    const std::set<std::string_view> actsAtOnce{"mnuExport", "mnuImport", "mnuClose", "mnuExit"};
    for (const MenuEntry& one : menuTree()) {
        QAction& action = entry(one.name);
        if (action.menu() || action.isSeparator() || actsAtOnce.contains(one.name) || one.caption == "Conversions")
            continue;
        trigger(action);
        std::vector<QPointer<QWidget>> opened;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window != &screens->mainMenu.window()) opened.emplace_back(window);
        for (const auto& window : opened) look(*window);
        for (const auto& window : opened)
            if (window && window->isVisible()) closeBox(*window);
    }
    customers("A");
    lookAtModal([&] { click(screens->customer.window(), "cmdAdd"); });
    choose("SubMnuAddItem");
    lookAtModal([&] { click(screens->item.window(), "cmdAdd"); });
    choose("SubMnuEditCat");
    lookAtModal([&] { doubleClickRow(screens->category.window(), 0); });
    QWidget& order = newEstimate();
    click(order, "cmdItemList");
    look(screens->itemSheet.window());
    closeBox(screens->itemSheet.window());
    click(order, "cmdImport");
    look(order);
    EXPECT_EQ(controls.nameless, std::set<std::string>{});
    EXPECT_GT(controls.named, 500);
    for (const char* name : {"CatMast",     "CustMast",       "DataReport2",    "FrmOrderNo",     "ItemMast",
                             "frmBlank",    "frmCalculator2", "frmCalculator3", "frmCalculator4", "frmCalculators",
                             "frmCategory", "frmCustomer",    "frmItem",        "frmList",        "frmMainMenu",
                             "frmMaster",   "frmOrder",       "frmOrders",      "frmRptOrders",   "scientific"})
        EXPECT_TRUE(windows.contains(name)) << name << " was not looked at";
}

}  // namespace
}  // namespace torvane
