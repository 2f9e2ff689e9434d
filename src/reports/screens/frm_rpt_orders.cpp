#include "reports/screens/frm_rpt_orders.h"

#include "reports/screens/data_reports.h"

namespace torvane {

frmRptOrders::frmRptOrders(Program& program, DataReports& reports)
    : FormOf(program, "frmRptOrders"), reports_(reports) {
    setHelpContext(60);
}

void frmRptOrders::Form_Load() {
    on(*this, ui().Command1, &QAbstractButton::clicked,
       [this] { reports_.showEstimates(ui().FDate->Value(), ui().TDate->Value()); });
    on(*this, ui().Command3, &QAbstractButton::clicked, [this] { reports_.showEstimates(); });
    on(*this, ui().Command2, &QAbstractButton::clicked, [this] { Unload(); });
    program().StartUp(*this);
    for (DateBox* box : {ui().FDate, ui().TDate}) box->setDateStyle(program().host().shortDate());
    const Date today = program().host().today();
    ui().FDate->setValue({today.year, today.month, 1});
    ui().TDate->setValue(today);
}

}  // namespace torvane
