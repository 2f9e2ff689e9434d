#pragma once

#include <memory>

#include "masters/cls_customer.h"
#include "screens/entry_buttons.h"
#include "screens/form.h"
#include "ui_cust_mast.h"

namespace torvane {

class frmCustomer;

// Entry form of one customer, shown modally over the customer list.
class CustMast : public FormOf<Ui::CustMast> {
public:
    CustMast(Program& program, frmCustomer& list);

    // The customer being shown; it lives from first touch until the form is closed.
    ClsCustomer& Cust();

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void copyToRecord();
    void ClearClass();
    void FillData();
    void FillState();

    frmCustomer& list_;
    std::unique_ptr<ClsCustomer> cust_;
    EntryButtons buttons_;
};

}  // namespace torvane
