#pragma once

#include <memory>

#include "masters/cls_customer.h"
#include "masters/screens/cust_mast.h"
#include "masters/screens/customer_pick.h"
#include "masters/screens/master_list.h"
#include "platform/form.h"
#include "ui_frm_customer.h"

namespace torvane {

// The list of customers. Opened by setting `Which` and showing it: modeless from the menu, modal with "S" from the
// estimate screen, to which the picked customer is handed.
class frmCustomer : public FormOf<Ui::frmCustomer>, public MasterList {
public:
    frmCustomer(Program& program, CustomerPick& pick);

    CustMast& entryForm() { return custMast_; }

protected:
    void Form_Load() override;

private:
    Form& form() override { return *this; }
    Controls controls() override;
    std::vector<Column> columns() const override;
    std::vector<Mode> modes() override;
    std::optional<RowArray> readAllRows() override;
    std::optional<RowArray> readSearchedRows() override;
    std::vector<std::string> rowTexts(const RowArray& rows, int row) override;
    std::int16_t pageSize() override { return Cust().PageSize; }
    std::int16_t recordCount() override { return Cust().RecordCount; }
    bool searchedByName() override { return ui().OptName->isChecked(); }
    std::string_view offerToAdd() const override { return "Customer Not Found : Would You Like To Add ? "; }
    std::string_view notFound() const override { return "Customer Not Found"; }
    std::string& AddEditDel() override { return Cust().AddEditDel; }
    void deleteRecord(std::int16_t key) override;
    void showEntryForm(std::int16_t key, std::string_view flag) override;
    void cmdSearch_Click() override;
    void cmdAdd_Click() override;
    void CmdSelect_Click() override;
    void ListView1_DblClick() override;
    void cmdMainHelp_Click() override;

    ClsCustomer& Cust();

    CustomerPick& pick_;
    CustMast custMast_;
    std::unique_ptr<ClsCustomer> cust_;
};

}  // namespace torvane
