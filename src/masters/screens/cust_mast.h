#pragma once

#include <memory>

#include "masters/cls_customer.h"
#include "masters/screens/entry_skeleton.h"
#include "platform/form.h"
#include "ui_cust_mast.h"

namespace torvane {

class frmCustomer;

// Entry form of one customer, shown modally over the customer list.
class CustMast : public FormOf<Ui::CustMast>, private EntrySkeleton {
public:
    CustMast(Program& program, frmCustomer& list);

    // The customer being shown; it lives from first touch until the form is closed.
    ClsCustomer& Cust();

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    Form& form() override { return *this; }
    QAbstractButton& applyButton() override { return *ui().CmdSave; }
    QAbstractButton& okButton() override { return *ui().cmdOk; }
    void copyToRecord() override;
    bool validateRecord() override { return Cust().Validate(); }
    void saveRecord() override { Cust().Save(); }
    void ClearClass() override;
    std::string_view savedText() const override { return "Customer Saved"; }
    void refreshList() override;

    void FillData();
    void FillState();

    frmCustomer& list_;
    std::unique_ptr<ClsCustomer> cust_;
};

}  // namespace torvane
