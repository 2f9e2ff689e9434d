#pragma once

#include "screens/form.h"
#include "ui_frm_rpt_orders.h"

namespace torvane {

class DataReports;

// The prompt in front of the estimates report: a range of days, or all estimates. It stays open while reports are
// shown.
class frmRptOrders : public FormOf<Ui::frmRptOrders> {
public:
    frmRptOrders(Program& program, DataReports& reports);

protected:
    void Form_Load() override;

private:
    DataReports& reports_;
};

}  // namespace torvane
