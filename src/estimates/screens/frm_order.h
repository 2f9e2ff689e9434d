#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "estimates/cls_order.h"
#include "estimates/line_row.h"
#include "masters/cls_category.h"
#include "masters/cls_customer.h"
#include "masters/screens/customer_pick.h"
#include "screens/form.h"
#include "ui_frm_order.h"

namespace torvane {

class frmCustomer;
struct PriceBox;

// The estimate screen: customer and job site, the line panel, the list of lines, the totals, the area panel and the
// notes of one estimate. What is saved are the lines of `Order`; what is summed are the rows of the list. The fields
// below live as long as the program, also while the window is closed.
class frmOrder : public FormOf<Ui::frmOrder>, public EstimateScreen, public CustomerPick {
public:
    // `showProposal` prints the saved estimate with a number.
    frmOrder(Program& program, std::function<void(std::int32_t OrderNo)> showProposal);
    ~frmOrder() override;
    // The customer list in its select mode hands its pick back to this screen, so it is given after both are made.
    void setCustomerList(frmCustomer& list) { customerList_ = &list; }
    // The prompt that may have led here, closed when this screen loads, and the screens that open from here: the item
    // sheet and the four calculator windows.
    void setCompanions(Form& numberPrompt, Form& itemSheet, std::array<Form*, 4> calculators) {
        numberPrompt_ = &numberPrompt;
        itemSheet_ = &itemSheet;
        calculators_ = calculators;
    }

    // The mode, set before the screen is shown: "A" new estimate, "E" existing one, "D" shown for deletion.
    std::string AddOrDelete;
    // The estimate being worked on, and its customer; made at first use.
    ClsOrder& Order();
    ClsCustomer& Customer();

    // Adds the line of the panel; the item sheet calls it, too.
    void cmdAdd_Click();

    const std::string& estimateMode() const override { return AddOrDelete; }
    void showEstimate() override { Show(); }
    void takeCustomer(std::int32_t CustId, const std::string& name) override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    // --- Opening and saving
    void connectControls();
    void InitListView();
    void FillRooms();
    void FillUnits();
    void FillState();
    void FillData();
    void ClearClass();
    void CmdSelCust_Click();
    void CmdNewCust_Click();
    void CmdSave_Click();
    void cmdOk_Click();
    void CmdCancel_Click();
    void CmdDeleteOrder_Click();
    void Command1_Click();
    void cmdMainHelp_Click();

    // --- The line panel
    void connectPanel();
    void FillItems();
    void loadLines();
    LinePanel panel();
    void cmbItems_Click();
    void askMasterPrice(const PriceBox& changed);
    void CmdEdit_Click();
    void cmdEditApply_Click();
    void cmdEditCanc_Click();
    void cmdDel_Click();
    void showEditing(bool editing);
    // An item in the room and the unit that the panel has selected.
    LineNames names(std::int32_t itemId, std::string item);
    std::vector<std::string> panelRow(std::int32_t itemId);
    LineRow listedRow(int row);
    // Reads the item and its category as every change of a line does.
    void readItem(ClsItem& item);
    // What keeps a line from being entered; says so in a box.
    bool quantityMissing();
    bool alreadyAdded(std::int32_t itemId, std::int32_t leaveOut);
    int selectedRow();

    // --- Totals
    void CalTotal();
    void CalTot();
    void CalFinalTotal();

    // --- Area panel, notes, calculators
    void placeNotes();
    void CalTotalArea();
    void cmdMove_Click();
    void cmdImport_Click();
    void cmdCopy_Click();
    void Command2_Click();
    void Command7_Click();
    void cmdItemList_Click();

    std::function<void(std::int32_t)> showProposal_;
    frmCustomer* customerList_ = nullptr;
    Form* numberPrompt_ = nullptr;
    Form* itemSheet_ = nullptr;
    std::array<Form*, 4> calculators_{};
    std::unique_ptr<ClsOrder> order_;
    std::unique_ptr<ClsCustomer> customer_;
    std::unique_ptr<clsCategory> category_;
    std::int32_t CurrentItemId = 0;
    std::int16_t EditRowIndex = 0;
    std::int16_t EditLineIndex = 0;
    bool FillingRow = false;
    int pricedEntry_ = -1;  // entry of cmbItems that the price boxes stand for; -1 with an empty catalogue
};

}  // namespace torvane
