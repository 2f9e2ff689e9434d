#pragma once

#include <memory>

#include "estimates/cls_order.h"
#include "screens/form.h"
#include "screens/paged_list.h"
#include "ui_frm_orders.h"

namespace torvane {

class frmOrder;

// The list of estimates: finds one by number or customer name and opens it for editing.
class frmOrders : public FormOf<Ui::frmOrders> {
public:
    frmOrders(Program& program, frmOrder& order);

protected:
    void Form_Load() override;

private:
    PagedList::Parts listParts();

    // The list's own record, not the one of the estimate screen.
    ClsOrder& Order();
    void cmdSearch_Click();
    void CmdAll_Click() { list_.showAll(); }
    void CmdSelect_Click();
    void cmdExit_Click() { Unload(); }

    frmOrder& orderScreen_;
    std::unique_ptr<ClsOrder> order_;
    const std::string mode_;  // there is but one
    PagedList list_{*this, mode_, listParts()};
};

}  // namespace torvane
