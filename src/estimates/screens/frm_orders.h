#pragma once

#include <string>

#include "datastore/at_first_use.h"
#include "estimates/cls_order.h"
#include "screens/form.h"
#include "screens/paged_list.h"

class Ui_frmOrders;

namespace torvane {

class frmOrder;

// The list of estimates: finds one by number or customer name and opens it for editing.
class frmOrders : public FormOf<Ui_frmOrders> {
public:
    frmOrders(Program& program, frmOrder& order);
    ~frmOrders() override;

protected:
    void Form_Load() override;

private:
    PagedList::Parts listParts();
    void CmdSelect_Click();

    frmOrder& orderScreen_;
    // The list's own record, not the one of the estimate screen.
    AtFirstUse<ClsOrder, EstimateScreen> Order;
    const std::string mode_;  // there is but one
    PagedList list_{*this, mode_, listParts()};
};

}  // namespace torvane
