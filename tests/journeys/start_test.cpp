#include <QApplication>
#include <QMenu>
#include <filesystem>

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
            if (menu.parent.empty() && entry(menu.name).isVisible()) names += utf8(entry(menu.name).text()) + " ";
        return names;
    }
};

TEST_F(StartTest, GreetsAndThenShowsItsMenus) {
    start(false, [&](const std::string& file) {
        EXPECT_EQ(file, data.path() + "/Merlin.ACS");
        EXPECT_EQ(visibleMenus(), "&Help E&xit ");
        return recordingAssistant();
    });
    EXPECT_EQ(visibleMenus(), "&File &Mater Tables &Estimates &Calculators &Reports &Notes Area &Help E&xit ");
    EXPECT_EQ(calls, (Texts{"Show", "MoveTo 100 100", "Play Wave", "Speak Hello", "Play Greet",
                            "Speak Welcome to Torvane Construction Estimator", "Hide"}));
    QWidget& window = screens->mainMenu.window();
    EXPECT_EQ(utf8(window.windowTitle()) + ", " + visible(window, {"Frame2"}) + ", " + text(window, "Label1"),
              "Main Menu, Frame2, TORVANE Construction Estimator Ver. 2.0");
    std::string menus;
    for (const char* button : {"cmd_Files", "cmd_Masters", "cmd_Estimates", "cmd_Calculators", "cmd_Reports"}) {
        click(window, button);
        ASSERT_TRUE(QApplication::activePopupWidget()) << button;
        menus += utf8(QApplication::activePopupWidget()->objectName()) + " ";
        QApplication::activePopupWidget()->close();
    }
    EXPECT_EQ(menus, "mnuFile mnuInventory mnuEstimates mnuCalc mnuReport ");
    for (const char* image : {"Image1", "Image2"})
        EXPECT_TRUE(QTest::qWaitFor([&] { return !find<QLabel>(window, image).pixmap().isNull(); })) << image;
    key(window, Qt::Key_N, Qt::ControlModifier);
    go(window, "cmd_Blank");
    EXPECT_TRUE(standing("frmOrder") && standing("frmBlank"));
    go(window, "cmd_Exit");
    EXPECT_FALSE(screens->mainMenu.loaded());
}

TEST_F(StartTest, ABadStartEndsBeforeTheMainWindow) {
    // What is going on, whether a copy runs already, whether there is a database, and how it ends.
    const std::tuple<const char*, bool, bool, std::string> rows[] = {
        {"starting", false, true, "53 "},
        {"starting a second time on this folder (it is already running: look for its window)", true, true, "91 "},
        {"starting", false, false, "14 " + data.database()}};
    for (const auto& [during, secondCopy, withDatabase, ended] : rows) {
        if (!withDatabase) std::filesystem::remove(data.database());
        const RuntimeFailure failure = endOf([&, second = secondCopy] {
            start(second, [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
        });
        EXPECT_EQ(std::to_string(failure.number()) + " " + failure.refused(), ended);
        EXPECT_EQ(failure.during(), during);
        EXPECT_EQ(std::filesystem::exists(data.database()), withDatabase);
    }
}

TEST_F(StartTest, ScreensGoOnWhenTheMainWindowHasGone) {
    data.useHelpBook();
    int ended = 0;
    program.lastWindow().onGone([&] { ++ended; });
    const QPoint place = opened("SubMnuAddCust").pos();
    choose("mnuEditEstimate");
    go(screens->customer.window(), "cmdExit");
    closeBox(screens->mainMenu.window());
    EXPECT_EQ(calls.back(), "Gone");
    calls.clear();

    run([&] { screens->customer.Show(); });
    settle();
    QWidget& window = screens->customer.window();
    EXPECT_EQ(window.pos(), place);
    go(window, "cmdMainHelp");
    EXPECT_EQ(calls, Texts{}) << "the assistant has gone with the main window";
    key(window, Qt::Key_F1);
    ASSERT_TRUE(standing("frmHelp"));
    go(window, "cmdExit");
    doubleClickRow(list(*standing("frmOrders")), 0);
    ASSERT_TRUE(standing("frmOrder")) << "opened by the last window, which closes itself";
    EXPECT_EQ(ended, 0);
    closeBox(*standing("frmOrder"));
    EXPECT_EQ(ended, 1) << "the help alone is no work to stay for";
}

}  // namespace
}  // namespace torvane
