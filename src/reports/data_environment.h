#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "datastore/data_access.h"
#include "reports/report_rows.h"

namespace torvane {

// The data side of the reports: the commands that fill them. The arithmetic of the proposal (line totals, tax and
// overhead amounts) is done by its command, unrounded. A run that can't read gives no rows, and no message.
class DataEnvironment1 {
public:
    explicit DataEnvironment1(const DataAccess& access) : access_(access) {}

    // Every estimate whose customer is there; with dates only those from the first to the last of them.
    ReportRows estimates();
    ReportRows estimates(const Date& FDate, const Date& TDate);
    // Every customer.
    ReportRows customers();
    // The lines of one saved estimate, in one group under the columns of its header. A line whose takeoff name, unit or
    // item has gone is left out; without the customer the estimate is.
    ReportRows proposal(std::int32_t OrderNo);

private:
    // Over a connection of its own.
    ReportRows run(std::string_view source, std::span<const std::string_view> by = {});
    DataAccess access_;
};

}  // namespace torvane
