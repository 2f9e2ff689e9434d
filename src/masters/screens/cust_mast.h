#pragma once

#include "datastore/at_first_use.h"
#include "masters/cls_customer.h"
#include "screens/entry_buttons.h"
#include "screens/form.h"

class Ui_CustMast;

namespace torvane {

class frmCustomer;

// Entry form of one customer, shown modally over the customer list.
class CustMast : public FormOf<Ui_CustMast> {
public:
    CustMast(Program& program, frmCustomer& list);
    ~CustMast() override;

    // The customer being shown; it lives from first touch until the form is closed.
    AtFirstUse<ClsCustomer> Cust{program().dataAccess()};

protected:
    void Form_Load() override;
    void Form_Unload() override { Cust.reset(); }

private:
    EntryButtons::Parts entryParts();
    void FillData();
    void copyToRecord();

    frmCustomer& list_;
    EntryButtons buttons_;
};

}  // namespace torvane
