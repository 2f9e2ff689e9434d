#include "shell/menu_actions.h"

#include "shell/backup.h"
#include "shell/menu_tree.h"
#include "shell/screens.h"

namespace torvane {

namespace {

// A list in a mode: "A" add, "E" edit, "D" delete.
template <class List>
std::function<void()> open(List& list, const char* which) {
    return [&list, which] {
        list.Which = which;
        list.Show();
    };
}

std::function<void()> openNames(frmMaster& master, const char* table) {
    return [&master, table] {
        master.MastertableName = table;
        master.Show();
    };
}

void openCalculator(Screens& screens, const MenuEntry& entry) {
    CalculatorWindow& window = screens.calculators(entry.group);
    const TabOpens opens = calculatorGroups()[entry.group - 1].tabs[static_cast<std::size_t>(entry.Which) - 1].opens;
    // The empty window comes first then, so that it stands behind the program that is started.
    if (opens == TabOpens::Conversions) window.Show();
    window.Which = entry.Which;
    window.Showframe();
    if (opens != TabOpens::Conversions) window.Show();
}

}  // namespace

std::vector<MenuAction> menuActions(Screens& screens, FileSystem& files) {
    const auto leave = [&screens] { screens.mainMenu.Unload(); };
    std::vector<MenuAction> actions{
        {"mnuExport", [&screens, &files] { takeBackup(screens.mainMenu.program().dataAccess(), files); }},
        {"mnuImport", [&screens, &files] { restoreBackup(screens.mainMenu.program().dataAccess(), files); }},
        {"mnuClose", leave},
        {"mnuExit", leave},
        {"SubMnuAddCat", open(screens.category, "A")},
        {"SubMnuEditCat", open(screens.category, "E")},
        {"SubMnuDelCat", open(screens.category, "D")},
        {"SubMnuAddItem", open(screens.item, "A")},
        {"SubMnuEditItem", open(screens.item, "E")},
        {"SubMnuDelItem", open(screens.item, "D")},
        {"SubMnuAddCust", open(screens.customer, "A")},
        {"SubMnuEditCust", open(screens.customer, "E")},
        {"SubMnuDelCust", open(screens.customer, "D")},
        {"mnuRooms", openNames(screens.master, "Rooms")},
        {"mnuUnits", openNames(screens.master, "Units")},
        {"mnuNewEstimate",
         [&screens] {
             screens.order.AddOrDelete = "A";
             screens.order.Show();
         }},
        {"mnuEditEstimate", [&screens] { screens.orders.Show(); }},
        {"mnuDelEstimate",
         [&screens] {
             screens.order.AddOrDelete = "D";
             screens.orderNo.setCaption("Delete Order");
             screens.orderNo.Show();
         }},
        {"mnuBlank", [&screens] { screens.blank.Show(); }},
        {"mnusalesrpt", [&screens] { screens.reportPrompt.Show(); }},
        {"mnucustrpt", [&screens] { screens.reports.showCustomers(); }},
        {"mnuHelpContents", [&screens] { screens.help.showContents(); }},
        {"mnuHelpSearch", [&screens] { screens.help.showSearch(); }},
        {"mnuHelpAbout", [&screens] { screens.about.Show(); }},
    };
    for (const MenuEntry& entry : menuTree())
        if (entry.group != 0) actions.push_back({entry.name, [&screens, &entry] { openCalculator(screens, entry); }});
    return actions;
}

}  // namespace torvane
