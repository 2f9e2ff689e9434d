#include <QApplication>
#include <QMenu>
#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "assistant/animated_assistant.h"
#include "journeys/journey.h"
#include "shell/menu_tree.h"

namespace torvane {
namespace {

class StartTest : public JourneyTest {
protected:
    Texts visibleMenus() {
        Texts names;
        for (const MenuEntry& menu : menuTree())
            if (menu.parent.empty() && find<QAction>(screens->mainMenu, menu.name).isVisible())
                names.emplace_back(menu.name);
        return names;
    }
};

TEST_F(StartTest, GreetsAndThenShowsItsMenus) {
    Texts menusBefore;
    std::string character;
    start(false, [&](const std::string& file) {
        character = file;
        menusBefore = visibleMenus();
        EXPECT_FALSE(standing("frmMainMenu"));
        return recordingAssistant();
    });
    EXPECT_EQ(character, data.path() + "/Merlin.ACS");
    EXPECT_EQ(menusBefore, (Texts{"mnuHelp", "mnuExit"}));
    EXPECT_EQ(visibleMenus(), (Texts{"mnuFile", "mnuInventory", "mnuEstimates", "mnuCalc", "mnuReport", "mnuBlank",
                                     "mnuHelp", "mnuExit"}));
    EXPECT_EQ(calls, (Texts{"Show", "MoveTo 100 100", "Play Wave", "Speak Hello", "Play Greet",
                            "Speak Welcome to Torvane Construction Estimator", "Hide"}));
    EXPECT_EQ(screens->mainMenu.caption(), "Main Menu");
    EXPECT_EQ(text(screens->mainMenu.window(), "Label1"), "TORVANE Construction Estimator Ver. 2.0");
    EXPECT_EQ(visible(screens->mainMenu.window(), {"Frame2", "cmd_Files", "cmd_Exit"}), "Frame2 cmd_Files cmd_Exit");
}

struct BadStart {
    const char* name;
    void (*prepare)(const DataFolder&);
    bool previousInstance;
    std::string ended;  // the folder's path stands for %
};
void PrintTo(const BadStart& row, std::ostream* out) {
    *out << row.name;
}

class BadStartTest : public JourneyTest, public ::testing::WithParamInterface<BadStart> {};

TEST_P(BadStartTest, EndsBeforeTheMainWindow) {
    const BadStart& row = GetParam();
    row.prepare(data);
    const RuntimeFailure failure = endOf([&] {
        start(row.previousInstance, [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
    });
    std::string ended = row.ended;
    if (const auto mark = ended.find('%'); mark != std::string::npos) ended.replace(mark, 1, data.path());
    EXPECT_EQ(std::to_string(failure.number()) + " " + failure.refused(), ended);
    EXPECT_EQ(failure.during(),
              row.previousInstance ? "starting a second copy of itself on the same folder" : "starting");
    EXPECT_EQ(std::filesystem::exists(data.database()), row.name != std::string("missing"));
}

INSTANTIATE_TEST_SUITE_P(
    Start, BadStartTest,
    ::testing::Values(BadStart{"missing", [](const DataFolder& data) { std::filesystem::remove(data.database()); },
                               false, "14 %/Larkfen.mdb"},
                      BadStart{"character", [](const DataFolder&) {}, false, "53 "},
                      BadStart{"secondCopy", [](const DataFolder&) {}, true, "91 "}),
    [](const auto& one) { return std::string(one.param.name); });

TEST_F(StartTest, ButtonsShowTheEntriesOfTheMenuBarAtTheirRightEdge) {
    start();
    struct Row {
        const char* button;
        const char* menu;
        const char* firstEntry;
    };
    for (const Row& row :
         {Row{"cmd_Files", "mnuFile", "mnuExport"}, Row{"cmd_Masters", "mnuInventory", "mnuCatg"},
          Row{"cmd_Estimates", "mnuEstimates", "mnuNewEstimate"}, Row{"cmd_Calculators", "mnuCalc", "mnucalc1"},
          Row{"cmd_Reports", "mnuReport", "mnusalesrpt"}}) {
        SCOPED_TRACE(row.button);
        auto& button = find<QAbstractButton>(screens->mainMenu, row.button);
        click(button);
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(popup);
        EXPECT_EQ(utf8(popup->objectName()), row.menu);
        EXPECT_EQ(utf8(popup->actions().constFirst()->objectName()), row.firstEntry);
        EXPECT_EQ(popup->pos(), button.mapToGlobal(QPoint(button.width(), 0)));
        popup->close();
        settle();
    }
    go(screens->mainMenu.window(), "cmd_Blank");
    EXPECT_TRUE(standing("frmBlank"));
    go(screens->mainMenu.window(), "cmd_Exit");
    EXPECT_FALSE(screens->mainMenu.loaded());
}

TEST_F(StartTest, EachEntryOpensItsScreen) {
    data.useHelpBook();
    start();
    const std::map<std::string_view, const char*> opens{
        {"SubMnuAddCust", "frmCustomer"}, {"SubMnuEditCust", "frmCustomer"}, {"SubMnuDelCust", "frmCustomer"},
        {"mnuNewEstimate", "frmOrder"},   {"mnuEditEstimate", "frmOrders"},  {"mnuDelEstimate", "FrmOrderNo"},
        {"SubMnuAddCat", "frmCategory"},  {"SubMnuEditCat", "frmCategory"},  {"SubMnuDelCat", "frmCategory"},
        {"SubMnuAddItem", "frmItem"},     {"SubMnuEditItem", "frmItem"},     {"SubMnuDelItem", "frmItem"},
        {"mnuRooms", "frmMaster"},        {"mnuUnits", "frmMaster"},         {"mnuBlank", "frmBlank"},
        {"mnusalesrpt", "frmRptOrders"},  {"mnucustrpt", "DataReport2"},     {"mnuHelpContents", "frmHelp"},
        {"mnuHelpSearch", "frmHelp"},     {"mnuHelpAbout", "frmAbout"}};
    const std::set<std::string_view> others{"mnuExport", "mnuImport", "mnuClose", "mnuExit"};
    const auto opensACalculator = [](const MenuEntry& one) { return one.name.starts_with("mnucalc"); };
    for (const MenuEntry& one : menuTree()) {
        auto& action = find<QAction>(screens->mainMenu, one.name);
        if (action.menu() || action.isSeparator() || others.contains(one.name) || opensACalculator(one)) continue;
        SCOPED_TRACE(one.name);
        calls.clear();
        trigger(action);
        QWidget* shown = standing(opens.at(one.name));
        ASSERT_TRUE(shown);
        EXPECT_TRUE(calls.empty());
        closeBox(*shown);
    }
}

TEST_F(StartTest, HelpIsAskedForByContext) {
    QWidget& order = newEstimate();
    customers("E");
    std::vector<int> contexts;
    program.setHelp([&](int context) { contexts.push_back(context); });
    for (QWidget* window : {&screens->customer.window(), &screens->mainMenu.window(), &order}) {
        window->activateWindow();
        key(*window, Qt::Key_F1);
    }
    key(find<TextBox>(order, "TxtQty"), Qt::Key_F1);
    go(order, "cmdMainHelp");
    EXPECT_EQ(contexts, (std::vector<int>{54, 1, 12, 12, 12}));
}

TEST_F(StartTest, ScreensGoOnWhenTheMainWindowHasGone) {
    data.useHelpBook();
    for (int i = 0; i < 20; ++i) data.execute("insert into Customer (CustName) values ('Many')");
    int ended = 0;
    program.lastWindow().onGone([&] { ++ended; });
    QWidget& order = newEstimate();
    const QPoint place = customers("A").pos();
    go(screens->customer.window(), "cmdExit");
    EXPECT_FALSE(screens->customer.loaded());
    closeBox(screens->mainMenu.window());
    EXPECT_FALSE(screens->mainMenu.loaded());
    EXPECT_TRUE(order.isVisible());
    EXPECT_TRUE(program.placing().mainWindowHasGone());

    run([&] { screens->customer.Show(); });
    settle();
    QWidget& window = screens->customer.window();
    EXPECT_EQ(window.pos(), place);
    EXPECT_EQ(rows(window).size(), 15U);
    calls.clear();
    go(window, "cmdMainHelp");
    EXPECT_EQ(calls, Texts{});
    key(window, Qt::Key_F1);
    ASSERT_TRUE(standing("frmHelp"));
    go(order, "TxtQty=4; cmdAdd");
    EXPECT_EQ(rows(order).size(), 1U);
    go(window, "cmdExit");
    EXPECT_EQ(ended, 0);
    closeBox(order);
    EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace torvane
