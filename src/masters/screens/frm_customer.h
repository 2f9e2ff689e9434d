#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "masters/cls_customer.h"
#include "masters/screens/cust_mast.h"
#include "masters/screens/record_buttons.h"
#include "screens/form.h"
#include "screens/paged_list.h"

class Ui_frmCustomer;

namespace torvane {

// The list of customers. Opened by setting `Which` and showing it: modeless from the menu, modal with "S" from the
// estimate screen, to which the picked customer is handed.
class frmCustomer : public FormOf<Ui_frmCustomer> {
public:
    // `takeCustomer` is given the key and the name of the picked row.
    frmCustomer(Program& program, std::function<void(std::int32_t CustId, const std::string& name)> takeCustomer);
    ~frmCustomer() override;

    std::string Which;  // the mode, as that of the items' list
    void RefreshGrid() { list_.RefreshGrid(); }
    void ShowLabel() { list_.ShowLabel(); }
    void SearchCust() { list_.SearchItem(); }

protected:
    void Form_Load() override;

private:
    void cmdAdd_Click();
    void CmdSelect_Click();
    void cmdMainHelp_Click();
    void ListView1_DblClick();
    PagedList::Parts listParts();

    std::function<void(std::int32_t, const std::string&)> takeCustomer_;
    AtFirstUse<ClsCustomer> Cust{program().dataAccess()};
    CustMast custMast_;
    PagedList list_{*this, Which, listParts()};
    RecordButtons record_{
        *this, Which, list_, Cust, custMast_, custMast_.Cust, &ClsCustomer::CustId, &ClsCustomer::GetCustomer};
};

}  // namespace torvane
