#pragma once

#include <memory>

#include "estimates/cls_order.h"
#include "masters/screens/list_skeleton.h"
#include "platform/form.h"
#include "ui_frm_orders.h"

namespace torvane {

class frmOrder;

// The list of estimates: finds one by number or customer name and opens it for editing.
class frmOrders : public FormOf<Ui::frmOrders>, public ListSkeleton {
public:
    frmOrders(Program& program, frmOrder& order);

protected:
    void Form_Load() override;

private:
    Form& form() override { return *this; }
    Controls controls() override;
    std::vector<Column> columns() const override;
    std::vector<Mode> modes() override { return {}; }
    std::optional<RowArray> readAllRows() override;
    std::optional<RowArray> readSearchedRows() override { return readAllRows(); }
    std::vector<std::string> rowTexts(const RowArray& rows, int row) override;
    std::int16_t pageSize() override { return Order().PageSize; }
    std::int16_t recordCount() override { return Order().RecordCount; }
    bool keepsSelection() const override { return false; }
    std::string_view notFound() const override { return "Estimate Not Found"; }

    // The list's own record, not the one of the estimate screen.
    ClsOrder& Order();
    void cmdSearch_Click();
    void CmdSelect_Click();

    frmOrder& orderScreen_;
    std::unique_ptr<ClsOrder> order_;
};

}  // namespace torvane
