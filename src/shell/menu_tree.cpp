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
    {"mnucalc1", "mnucalc1_1", "Blocks Calculator"},
    {"mnucalc1", "mnucalc1_2", "Concrete Materials Calculator"},
    {"mnucalc1", "mnucalc1_3", "Block Wall Calculator"},
    {"mnucalc1", "mnucalc1_4", "Column Calculator"},
    {"mnucalc1", "mnucalc1_5", "Bricks Calculator"},
    {"mnucalc1", "mnucalc1_6", "Conversions"},
    {"mnucalc1", "mnucalc1_7", "Scientific Calculator"},
    {"mnucalc1", "mnucalc1_8", "Foundation Concrete Calculator"},
    {"mnucalc1", "mnucalc1_9", "Wall Framing Calculator"},
    {"mnucalc1", "mnucalc1_10", "Roof Area Calculator"},
    {"mnucalc1", "mnucalc1_11", "Board Foot Calculator"},
    {"mnuCalc", "mnucalc2", "Group 2"},
    {"mnucalc2", "mnucalc2_1", "Rafter Angle Calculator"},
    {"mnucalc2", "mnucalc2_2", "Paint Coverage Calculator"},
    {"mnucalc2", "mnucalc2_3", "Concrete Calculator for Circular Volumes"},
    {"mnucalc2", "mnucalc2_4", "Insulation"},
    {"mnucalc2", "mnucalc2_5", "Deck hand railing input"},
    {"mnucalc2", "mnucalc2_6", "Deck"},
    {"mnucalc2", "mnucalc2_7", "Tile"},
    {"mnucalc2", "mnucalc2_8", "Oak floor"},
    {"mnucalc2", "mnucalc2_9", "Carpet"},
    {"mnucalc2", "mnucalc2_10", "Gutter"},
    {"mnucalc2", "mnucalc2_11", "Sofface"},
    {"mnucalc2", "mnucalc2_12", "Crown moulding calculatr"},
    {"mnucalc2", "mnucalc2_13", "Square house calculator"},
    {"mnucalc2", "mnucalc2_14", "Wall Base"},
    {"mnucalc2", "mnucalc2_15", "Shoe Mould"},
    {"mnucalc2", "mnucalc2_16", "Crown Mould"},
    {"mnuCalc", "mnucalc3", "Group 3"},
    {"mnucalc3", "mnucalc3_1", "Trenching for Tanks"},
    {"mnucalc3", "mnucalc3_2", "Utility Trenching"},
    {"mnucalc3", "mnucalc3_3", "Excavation Volume"},
    {"mnucalc3", "mnucalc3_4", "Steel Beam"},
    {"mnucalc3", "mnucalc3_5", "Ceramic Tile Calculator"},
    {"mnucalc3", "mnucalc3_6", "Carpet Calculator"},
    {"mnucalc3", "mnucalc3_7", "Wallpaper Calculator"},
    {"mnucalc3", "mnucalc3_8", "Sheet Vinyl Calculator"},
    {"mnucalc3", "mnucalc3_9", "Resilient Tile Calculator"},
    {"mnuCalc", "mnucalc4", "Group 4"},
    {"mnucalc4", "mnucalc4_1", "Roofing Calculator"},
    {"mnucalc4", "mnucalc4_2", "Lumber Calculator"},

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

// The numbers of group 2 do not follow the order of its menu.
constexpr CalculatorEntry calculators[] = {
    {"mnucalc1_1", 1, 1},   {"mnucalc1_2", 1, 2},       {"mnucalc1_3", 1, 3},   {"mnucalc1_4", 1, 4},
    {"mnucalc1_5", 1, 5},   {"mnucalc1_6", 1, 6, true}, {"mnucalc1_7", 1, 7},   {"mnucalc1_8", 1, 8},
    {"mnucalc1_9", 1, 9},   {"mnucalc1_10", 1, 10},     {"mnucalc1_11", 1, 11}, {"mnucalc2_1", 2, 1},
    {"mnucalc2_2", 2, 2},   {"mnucalc2_3", 2, 3},       {"mnucalc2_4", 2, 9},   {"mnucalc2_5", 2, 10},
    {"mnucalc2_6", 2, 11},  {"mnucalc2_7", 2, 12},      {"mnucalc2_8", 2, 13},  {"mnucalc2_9", 2, 14},
    {"mnucalc2_10", 2, 15}, {"mnucalc2_11", 2, 16},     {"mnucalc2_12", 2, 4},  {"mnucalc2_13", 2, 5},
    {"mnucalc2_14", 2, 6},  {"mnucalc2_15", 2, 7},      {"mnucalc2_16", 2, 8},  {"mnucalc3_1", 3, 1},
    {"mnucalc3_2", 3, 2},   {"mnucalc3_3", 3, 3},       {"mnucalc3_4", 3, 4},   {"mnucalc3_5", 3, 5},
    {"mnucalc3_6", 3, 6},   {"mnucalc3_7", 3, 7},       {"mnucalc3_8", 3, 8},   {"mnucalc3_9", 3, 9},
    {"mnucalc4_1", 4, 1},   {"mnucalc4_2", 4, 2},
};

}  // namespace

std::span<const MenuEntry> menuTree() {
    return entries;
}

std::span<const CalculatorEntry> calculatorEntries() {
    return calculators;
}

}  // namespace torvane
