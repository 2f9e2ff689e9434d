#include "shell/menu_tree.h"

namespace torvane {

namespace {

constexpr MenuEntry entries[] = {
    {"", "mnuFile", "File"},
    {"mnuFile", "mnuExport", "Backup"},
    {"mnuFile", "mnuImport", "Restore from Backup"},
    {"mnuFile", "mnuClose", "Exit"},

    {"", "mnuInventory", "Mater Tables"},
    {"mnuInventory", "mnuCatg", "Categories"},
    {"mnuCatg", "SubMnuAddCat", "Add"},
    {"mnuCatg", "SubMnuEditCat", "Edit"},
    {"mnuCatg", "SubMnuDelCat", "Delete"},
    {"mnuInventory", "mnuRooms", "Takeoff Names"},
    {"mnuInventory", "mnuUnits", "Units"},
    {"mnuInventory", "MnuItem", "Item"},
    {"MnuItem", "SubMnuAddItem", "Add"},
    {"MnuItem", "SubMnuEditItem", "Edit"},
    {"MnuItem", "SubMnuDelItem", "Delete"},
    {"mnuInventory", "mnuCustomer", "Customers"},
    {"mnuCustomer", "SubMnuAddCust", "Add"},
    {"mnuCustomer", "SubMnuEditCust", "Edit"},
    {"mnuCustomer", "SubMnuDelCust", "Delete"},

    {"", "mnuEstimates", "Estimates"},
    {"mnuEstimates", "mnuNewEstimate", "New Estimate"},
    {"mnuEstimates", "mnuEditEstimate", "Search/Edit Estimate"},
    {"mnuEstimates", "mnuDelEstimate", "Delete Estimate"},

    {"", "mnuCalc", "Calculators"},
    {"mnuCalc", "mnucalc1", "Group 1"},
    {"mnucalc1", "mnucalc1_1", "Blocks Calculator", 1, 1},
    {"mnucalc1", "mnucalc1_2", "Concrete Materials Calculator", 1, 2},
    {"mnucalc1", "mnucalc1_3", "Block Wall Calculator", 1, 3},
    {"mnucalc1", "mnucalc1_4", "Column Calculator", 1, 4},
    {"mnucalc1", "mnucalc1_5", "Bricks Calculator", 1, 5},
    {"mnucalc1", "mnucalc1_6", "Conversions", 1, 6},
    {"mnucalc1", "mnucalc1_7", "Scientific Calculator", 1, 7},
    {"mnucalc1", "mnucalc1_8", "Foundation Concrete Calculator", 1, 8},
    {"mnucalc1", "mnucalc1_9", "Wall Framing Calculator", 1, 9},
    {"mnucalc1", "mnucalc1_10", "Roof Area Calculator", 1, 10},
    {"mnucalc1", "mnucalc1_11", "Board Foot Calculator", 1, 11},
    // The tabs of group 2 stand in another order than its entries.
    {"mnuCalc", "mnucalc2", "Group 2"},
    {"mnucalc2", "mnucalc2_1", "Rafter Angle Calculator", 2, 1},
    {"mnucalc2", "mnucalc2_2", "Paint Coverage Calculator", 2, 2},
    {"mnucalc2", "mnucalc2_3", "Concrete Calculator for Circular Volumes", 2, 3},
    {"mnucalc2", "mnucalc2_4", "Insulation", 2, 9},
    {"mnucalc2", "mnucalc2_5", "Deck hand railing input", 2, 10},
    {"mnucalc2", "mnucalc2_6", "Deck", 2, 11},
    {"mnucalc2", "mnucalc2_7", "Tile", 2, 12},
    {"mnucalc2", "mnucalc2_8", "Oak floor", 2, 13},
    {"mnucalc2", "mnucalc2_9", "Carpet", 2, 14},
    {"mnucalc2", "mnucalc2_10", "Gutter", 2, 15},
    {"mnucalc2", "mnucalc2_11", "Sofface", 2, 16},
    {"mnucalc2", "mnucalc2_12", "Crown moulding calculatr", 2, 4},
    {"mnucalc2", "mnucalc2_13", "Square house calculator", 2, 5},
    {"mnucalc2", "mnucalc2_14", "Wall Base", 2, 6},
    {"mnucalc2", "mnucalc2_15", "Shoe Mould", 2, 7},
    {"mnucalc2", "mnucalc2_16", "Crown Mould", 2, 8},
    {"mnuCalc", "mnucalc3", "Group 3"},
    {"mnucalc3", "mnucalc3_1", "Trenching for Tanks", 3, 1},
    {"mnucalc3", "mnucalc3_2", "Utility Trenching", 3, 2},
    {"mnucalc3", "mnucalc3_3", "Excavation Volume", 3, 3},
    {"mnucalc3", "mnucalc3_4", "Steel Beam", 3, 4},
    {"mnucalc3", "mnucalc3_5", "Ceramic Tile Calculator", 3, 5},
    {"mnucalc3", "mnucalc3_6", "Carpet Calculator", 3, 6},
    {"mnucalc3", "mnucalc3_7", "Wallpaper Calculator", 3, 7},
    {"mnucalc3", "mnucalc3_8", "Sheet Vinyl Calculator", 3, 8},
    {"mnucalc3", "mnucalc3_9", "Resilient Tile Calculator", 3, 9},
    {"mnuCalc", "mnucalc4", "Group 4"},
    {"mnucalc4", "mnucalc4_1", "Roofing Calculator", 4, 1},
    {"mnucalc4", "mnucalc4_2", "Lumber Calculator", 4, 2},

    {"", "mnuReport", "Reports"},
    {"mnuReport", "mnusalesrpt", "Estimates Report"},
    {"mnuReport", "mnucustrpt", "Customers Report"},

    {"", "mnuBlank", "Notes Area"},

    {"", "mnuHelp", "Help"},
    {"mnuHelp", "mnuHelpContents", "Contents"},
    {"mnuHelp", "mnuHelpSearch", "Search for help on..."},
    {"mnuHelp", "mnuHelpBar1", ""},
    {"mnuHelp", "mnuHelpAbout", "About"},

    {"", "mnuExit", "Exit"},
};

}  // namespace

std::span<const MenuEntry> menuTree() {
    return entries;
}

}  // namespace torvane
