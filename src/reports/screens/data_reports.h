#pragma once

#include <cstdint>

#include "platform/program.h"
#include "reports/data_environment.h"
#include "reports/screens/report_window.h"

namespace torvane {

// The reports as the other screens ask for them, each in its own preview window.
class DataReports {
public:
    explicit DataReports(Program& program);

    // The proposal of a saved estimate, as the database holds it.
    void showProposal(std::int32_t OrderNo);

private:
    Program& program_;
    DataEnvironment1 data_;
    ReportWindow DataReport3_;
};

}  // namespace torvane
