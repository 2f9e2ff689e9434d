#include "reports/screens/data_reports.h"

#include "values/numbers.h"

namespace torvane {

DataReports::DataReports(Program& program)
    : program_(program),
      data_(program.dataAccess()),
      DataReport1_(program, "DataReport1", 61),
      DataReport2_(program, "DataReport2", 62),
      DataReport3_(program, "DataReport3", 63) {}

void DataReports::show(ReportWindow& window, const ReportLayout& layout, ReportRows rows, std::string of) {
    const Program::Doing doing(program_, "showing the report");
    window.showReport(std::make_shared<const ReportPages>(layout, std::move(rows), program_.host().shortDate()),
                      std::move(of));
}

void DataReports::showEstimates(const Date& FDate, const Date& TDate) {
    show(DataReport1_, estimatesLayout, data_.estimates(FDate, TDate));
}

void DataReports::showEstimates() {
    show(DataReport1_, estimatesLayout, data_.estimates());
}

void DataReports::showCustomers() {
    show(DataReport2_, customersLayout, data_.customers());
}

void DataReports::showProposal(std::int32_t OrderNo) {
    ReportRows rows = data_.proposal(OrderNo);
    std::string of;
    if (!rows.groups().empty()) of = generalText(OrderNo) + " " + textOrEmpty(rows.cell("CustName", 0));
    show(DataReport3_, proposalLayout, std::move(rows), std::move(of));
}

}  // namespace torvane
