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

    // The lines of one saved estimate, in one group under the columns of its header. A line whose takeoff name, unit or
    // item has gone is left out; without the customer the estimate is.
    ReportRows proposal(std::int32_t OrderNo);

private:
    // The common steps of a run: a new connection, the recordset filled from it.
    void run(Recordset& recordset, const std::string& source);
    Environment environment_;
    Connection Connection1;
    Recordset rsCommand3_Grouping;
};

}  // namespace torvane
