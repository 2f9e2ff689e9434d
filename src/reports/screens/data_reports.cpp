#include "reports/screens/data_reports.h"

namespace torvane {

DataReports::DataReports(Program& program)
    : program_(program), data_(program.environment()), DataReport3_(program, "DataReport3") {}

void DataReports::showProposal(std::int32_t OrderNo) {
    DataReport3_.showReport(std::make_shared<const ReportPages>(proposalLayout(), data_.proposal(OrderNo),
                                                                program_.host().shortDate()));
}

}  // namespace torvane
