#pragma once

#include <memory>

#include "masters/cls_customer.h"
#include "masters/screens/cust_mast.h"
#include "masters/screens/customer_pick.h"
#include "masters/screens/record_buttons.h"
#include "screens/form.h"
#include "ui_frm_customer.h"

namespace torvane {

// The list of customers. Opened by setting `Which` and showing it: modeless from the menu, modal with "S" from the
// estimate screen, to which the picked customer is handed.
class frmCustomer : public FormOf<Ui::frmCustomer> {
public:
    frmCustomer(Program& program, CustomerPick& pick);

    std::string Which;  // the mode, as that of the items' list
    void RefreshGrid() { list_.RefreshGrid(); }
    void ShowLabel() { list_.ShowLabel(); }
    void SearchCust() { list_.SearchItem(); }

    CustMast& entryForm() { return custMast_; }

protected:
    void Form_Load() override;

private:
    void cmdSearch_Click();
    void CmdAll_Click() { list_.showAll(); }
    void cmdAdd_Click();
    void cmdCopy_Click() { record_.copy(); }
    void CmdEdit_Click() { record_.edit(); }
    void cmdDel_Click() { record_.remove(); }
    void CmdSelect_Click();
    void cmdExit_Click() { Unload(); }
    void cmdMainHelp_Click();
    void ListView1_DblClick();
    void showEntryForm(std::int16_t key, std::string_view flag);
    void deleteRecord(std::int16_t key);
    PagedList::Parts listParts();

    ClsCustomer& Cust();

    CustomerPick& pick_;
    CustMast custMast_;
    std::unique_ptr<ClsCustomer> cust_;
    PagedList list_{*this, Which, listParts()};
    RecordButtons record_{
        *this,
        Which,
        list_,
        {[this]() -> std::string& { return Cust().AddEditDel; }, [this](std::int16_t key) { deleteRecord(key); },
         [this](std::int16_t key, std::string_view flag) { showEntryForm(key, flag); }}};
};

}  // namespace torvane
