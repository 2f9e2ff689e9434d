#include <QApplication>
#include <QMenu>
#include <filesystem>
#include <map>

#include "assistant/animated_assistant.h"
#include "journeys/journey.h"
#include "shell/menu_tree.h"

namespace torvane {
namespace {

class StartTest : public JourneyTest {
protected:
    std::string visibleMenus() {
        std::string names;
        for (const MenuEntry& menu : menuTree())
            if (menu.parent.empty() && entry(menu.name).isVisible()) names += std::string(menu.name) + " ";
        return names;
    }
};

TEST_F(StartTest, GreetsAndThenShowsItsMenus) {
    start(false, [&](const std::string& file) {
        EXPECT_EQ(file, data.path() + "/Merlin.ACS");
        EXPECT_EQ(visibleMenus(), "mnuHelp mnuExit ");
        EXPECT_FALSE(standing("frmMainMenu"));
        return recordingAssistant();
    });
    EXPECT_EQ(visibleMenus(), "mnuFile mnuInventory mnuEstimates mnuCalc mnuReport mnuBlank mnuHelp mnuExit ");
    EXPECT_EQ(calls, (Texts{"Show", "MoveTo 100 100", "Play Wave", "Speak Hello", "Play Greet",
                            "Speak Welcome to Torvane Construction Estimator", "Hide"}));
    QWidget& window = screens->mainMenu.window();
    EXPECT_EQ(visible(window, {"Image1", "Image2", "Frame2"}), "Image1 Image2 Frame2");
    EXPECT_EQ(utf8(window.windowTitle()), "Main Menu");
    EXPECT_EQ(text(window, "Label1"), "TORVANE Construction Estimator Ver. 2.0");
}

struct BadStart {
    const char* during;
    bool secondCopy;
    bool withDatabase;
    const char* ended;  // the folder's path stands for %
};

class BadStartTest : public JourneyTest, public ::testing::WithParamInterface<BadStart> {};

TEST_P(BadStartTest, EndsBeforeTheMainWindow) {
    const BadStart& row = GetParam();
    if (!row.withDatabase) std::filesystem::remove(data.database());
    const RuntimeFailure failure = endOf([&] {
        start(row.secondCopy, [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
    });
    const QString ended = QString("%1 %2").arg(failure.number()).arg(qstring(failure.refused()));
    EXPECT_EQ(ended, QString(row.ended).replace('%', qstring(data.path())));
    EXPECT_EQ(failure.during(), row.during);
    EXPECT_EQ(std::filesystem::exists(data.database()), row.withDatabase);
}

INSTANTIATE_TEST_SUITE_P(
    Start, BadStartTest,
    ::testing::Values(BadStart{"starting", false, false, "14 %/Larkfen.mdb"}, BadStart{"starting", false, true, "53 "},
                      BadStart{"starting a second copy of itself on the same folder", true, true, "91 "}));

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
    calls.clear();
    for (const auto& [name, window] : opens) {
        SCOPED_TRACE(name);
        choose(name);
        ASSERT_TRUE(standing(window));
        closeBox(*standing(window));
    }
    EXPECT_EQ(calls, Texts{});
    QWidget& window = screens->mainMenu.window();
    for (const auto& [name, menu] : {std::pair{"cmd_Files", "mnuFile"},
                                     {"cmd_Masters", "mnuInventory"},
                                     {"cmd_Estimates", "mnuEstimates"},
                                     {"cmd_Calculators", "mnuCalc"},
                                     {"cmd_Reports", "mnuReport"}}) {
        const auto& button = find<QWidget>(window, name);
        click(window, name);
        QWidget* popup = QApplication::activePopupWidget();
        ASSERT_TRUE(popup) << name;
        EXPECT_EQ(utf8(popup->objectName()), menu);
        EXPECT_EQ(popup->pos(), button.mapToGlobal(QPoint(button.width(), 0)));
        popup->close();
        settle();
    }
    go(window, "cmd_Blank");
    EXPECT_TRUE(standing("frmBlank"));
    go(window, "cmd_Exit");
    EXPECT_FALSE(screens->mainMenu.loaded());
}

TEST_F(StartTest, ScreensGoOnWhenTheMainWindowHasGone) {
    data.useHelpBook();
    int ended = 0;
    program.lastWindow().onGone([&] { ++ended; });
    QWidget& order = newEstimate();
    const QPoint place = customers("A").pos();
    go(screens->customer.window(), "cmdExit");
    EXPECT_FALSE(screens->customer.loaded());
    closeBox(screens->mainMenu.window());
    EXPECT_EQ(calls.back(), "Gone");
    EXPECT_TRUE(order.isVisible());

    run([&] { screens->customer.Show(); });
    settle();
    QWidget& window = screens->customer.window();
    EXPECT_EQ(window.pos(), place);
    calls.clear();
    go(window, "cmdMainHelp");
    EXPECT_EQ(calls, Texts{}) << "the assistant has gone with the main window";
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
