#pragma once

#include <QHash>
#include <array>
#include <functional>
#include <memory>
#include <string_view>

#include "datastore/store.h"
#include "platform/form.h"

class QAction;
class QLabel;
class QMenu;
class QMenuBar;

namespace torvane {

struct CalculatorEntry;
class FileSystem;
class CalculatorWindow;
class frmBlank;
class frmCategory;
class frmCustomer;
class frmItem;
class frmMaster;
class frmOrder;
class FrmOrderNo;
class frmOrders;
class frmRptOrders;
class DataReports;
class frmAbout;
class frmHelp;

// The screens that the main window opens.
struct Screens {
    frmOrder& order;
    frmOrders& orders;
    FrmOrderNo& orderNo;
    frmBlank& blank;
    frmCustomer& customer;
    frmCategory& category;
    frmItem& item;
    frmMaster& master;
    frmRptOrders& reportPrompt;
    DataReports& reports;
    frmHelp& help;
    frmAbout& about;
    std::array<CalculatorWindow*, 4> calculators;
};

// The main window: a menu bar, a title, two pictures and a column of picture buttons. It is the start of the program
// and holds what other objects take from it: the assistant, and the place of windows.
class frmMainMenu : public Form {
public:
    // `previousInstance`: another copy of the program runs on the same folder. `loadAssistant` brings the assistant to
    // life from a character file; it fails when the file is missing or damaged.
    frmMainMenu(Program& program, Screens screens, FileSystem& files, bool previousInstance,
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
    void connectEntries();
    void onEntry(std::string_view name, std::function<void()> handler);
    void openCalculator(const CalculatorEntry& calculator);
    void setWorkingMenusVisible(bool visible);
    void ActivateMerlin();
    void popUp(QWidget& button, std::string_view menu);
    void runEntry(std::string_view name);

    Screens screens_;
    FileSystem& files_;
    bool previousInstance_;
    std::function<std::unique_ptr<Assistant>(const std::string&)> loadAssistant_;
    std::unique_ptr<Connection> connection_;
    std::unique_ptr<Assistant> assistant_;

    QHash<QString, QAction*> entries_;
    QHash<QString, QMenu*> menus_;
    QWidget* Frame2_ = nullptr;
};

}  // namespace torvane
