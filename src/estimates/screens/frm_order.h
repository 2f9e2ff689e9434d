#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "datastore/at_first_use.h"
#include "estimates/cls_order.h"
#include "estimates/screens/line_entry.h"
#include "masters/cls_customer.h"
#include "screens/form.h"

class Ui_frmOrder;

namespace torvane {

// The estimate screen: customer and job site, the line panel, the list of lines, the totals, the area panel and the
// notes of one estimate. What is saved are the lines of `Order`; what is summed are the rows of the list. The fields
// below live as long as the program, also while the window is closed.
class frmOrder : public FormOf<Ui_frmOrder>, public EstimateScreen {
public:
    // What the screen does with other ones, which are made after it.
    struct Others {
        std::function<void(std::int32_t OrderNo)> showProposal = {};  // of the estimate as saved
        std::function<void()> closeNumberPrompt = {};                 // which may have led here
        std::function<void()> selectCustomer = {};                    // comes back by takeCustomer
        std::function<void()> addCustomer = {};
        std::function<void()> showItemSheet = {};
        std::function<void(int group)> showCalculators = {};  // group 1 to 4
    };
    frmOrder(Program& program, Others others);
    ~frmOrder() override;

    // The mode, set before the screen is shown: "A" new estimate, "E" existing one, "D" shown for deletion.
    std::string AddOrDelete;
    // The estimate being worked on.
    AtFirstUse<ClsOrder, EstimateScreen> Order{program().dataAccess(), *this};

    // Adds the line of the panel; the item sheet calls it, too.
    void cmdAdd_Click() { lines_.cmdAdd_Click(); }
    // The customer that was picked.
    void takeCustomer(std::int32_t CustId, const std::string& name);

    const std::string& estimateMode() const override { return AddOrDelete; }
    void showEstimate() override { Show(); }

protected:
    void Form_Load() override;
    void Form_Unload() override { Order().ClearData(); }

private:
    void connectControls();
    void FillState();
    void FillData();
    void ClearClass();
    void CmdSelCust_Click();
    void CmdSave_Click();
    void CmdCancel_Click();
    void CmdDeleteOrder_Click();
    void Command1_Click();
    void cmdImport_Click();
    void cmdCopy_Click();
    void Command7_Click();

    const Others others_;
    AtFirstUse<ClsCustomer> Customer{program().dataAccess()};
    LineEntry lines_{*this};
};

}  // namespace torvane
