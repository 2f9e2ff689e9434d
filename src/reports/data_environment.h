#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "datastore/environment.h"
#include "datastore/store.h"
#include "reports/report_rows.h"

namespace torvane {

// The data side of the reports: one connection and the commands that fill them. The arithmetic of the proposal (line
// totals, tax and overhead amounts) is done by its command, unrounded. A run goes on after errors: one that can't read
// gives no rows, and no message.
class DataEnvironment1 {
public:
    explicit DataEnvironment1(const Environment& environment);

    // Every estimate whose customer is there; with dates only those from the first to the last of them.
    ReportRows estimates();
    ReportRows estimates(const Date& FDate, const Date& TDate);
    // Every customer.
    ReportRows customers();
    // The lines of one saved estimate, in one group under the columns of its header. A line whose takeoff name, unit or
    // item has gone is left out; without the customer the estimate is.
    ReportRows proposal(std::int32_t OrderNo);

private:
    // The common steps of a run: a new connection, the recordset filled from it.
    ReportRows run(Recordset& recordset, const std::string& source, const std::vector<std::string>& by);
    Environment environment_;
    Connection Connection1;
    Recordset rsCommand1;
    Recordset rsCommand2;
    Recordset rsCommand3_Grouping;
};

}  // namespace torvane
