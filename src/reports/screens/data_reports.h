#pragma once

#include <cstdint>

#include "reports/data_environment.h"
#include "reports/screens/report_window.h"
#include "screens/program.h"

namespace torvane {

// The reports as the other screens ask for them, each in its own preview window.
class DataReports {
public:
    explicit DataReports(Program& program);

    // The estimates of a range of days, or all of them.
    void showEstimates(const Date& FDate, const Date& TDate);
    void showEstimates();
    void showCustomers();
    // The proposal of a saved estimate, as the database holds it.
    void showProposal(std::int32_t OrderNo);

private:
    Program& program_;
    DataEnvironment1 data_;
    void show(ReportWindow& window, const ReportLayout& layout, ReportRows rows, std::string of = {});
    ReportWindow DataReport1_;
    ReportWindow DataReport2_;
    ReportWindow DataReport3_;
};

}  // namespace torvane
