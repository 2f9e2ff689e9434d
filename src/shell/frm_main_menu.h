#pragma once

#include <QHash>
#include <functional>
#include <memory>
#include <string_view>

#include "datastore/store.h"
#include "screens/form.h"
#include "shell/menu_actions.h"

class QAction;
class QMenuBar;

namespace torvane {

// The main window: a menu bar, a title, two pictures and a column of picture buttons. It is the start of the program
// and holds what other objects take from it: the assistant, and the place of windows.
class frmMainMenu : public Form {
public:
    // `actions` is what the entries of its menus do. `previousInstance`: another copy of the program runs on the same
    // folder. `loadAssistant` brings the assistant to life from a character file; it fails when the file is missing or
    // damaged.
    frmMainMenu(Program& program, std::vector<MenuAction> actions, bool previousInstance,
                std::function<std::unique_ptr<Assistant>(const std::string& characterFile)> loadAssistant);
    ~frmMainMenu() override;

protected:
    void build(QWidget& window) override;
    void dropControls() override;
    void Form_Load() override;
    void Form_Unload() override;

private:
    void buildMenus(QMenuBar& bar);
    void buildButtons(QWidget& area, double scale);
    void setWorkingMenusVisible(bool visible);
    void ActivateMerlin();

    std::vector<MenuAction> actions_;
    bool previousInstance_;
    std::function<std::unique_ptr<Assistant>(const std::string&)> loadAssistant_;
    std::unique_ptr<Connection> connection_;

    QHash<QString, QAction*> entries_;
    QWidget* Frame2_ = nullptr;
};

}  // namespace torvane
