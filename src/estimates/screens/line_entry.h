#pragma once

#include <cstdint>
#include <string>

#include "estimates/line_row.h"

class Ui_frmOrder;

namespace torvane {

class ClsItem;
class frmOrder;
struct PriceBox;

// The line panel of the estimate screen, its list of lines and its totals. Everything here touches controls, and so
// loads the screen.
class LineEntry {
public:
    explicit LineEntry(frmOrder& screen) : screen_(screen) {}

    // Called at each load.
    void connect();
    void InitListView();
    void FillItems();
    // A row for each line of the estimate.
    void loadLines();
    // Adds the line of the panel, or says in a box why not.
    void cmdAdd_Click();
    // Sums the rows of the list, into the estimate too.
    void CalTotal();

private:
    Ui_frmOrder& ui();
    LinePanel panel();
    void cmbItems_Click();
    void askMasterPrice(const PriceBox& changed);
    void CmdEdit_Click();
    void cmdEditApply_Click();
    void cmdDel_Click();
    void showEditing(bool editing);
    // An item in the room and the unit that the panel has selected.
    LineNames names(std::int32_t itemId, std::string item);
    // The row of the list that the panel stands for.
    LineRow panelRow(std::int32_t itemId);
    LineRow listedRow(int row);
    int selectedRow();
    // Reads the item and its category as every change of a line does.
    void readItem(ClsItem& item);
    // What keeps a line from being entered; says so in a box.
    bool quantityMissing();
    bool alreadyAdded(std::int32_t itemId, std::int32_t leaveOut);
    void CalTot();
    void CalFinalTotal();

    frmOrder& screen_;
    std::int32_t CurrentItemId = 0;
    std::int16_t EditRowIndex = 0;
    std::int16_t EditLineIndex = 0;
    bool FillingRow = false;
    int pricedEntry_ = -1;  // entry of cmbItems that the price boxes stand for; -1 with an empty catalogue
};

}  // namespace torvane
