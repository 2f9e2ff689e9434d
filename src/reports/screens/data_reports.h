#pragma once
#include <cstdint>
#include "platform/program.h"
namespace torvane {
class DataReports {
public:
    explicit DataReports(Program& program);
    void showProposal(std::int32_t OrderNo);
};
}  // namespace torvane
