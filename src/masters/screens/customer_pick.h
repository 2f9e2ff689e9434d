#pragma once

#include <cstdint>
#include <string>

namespace torvane {

// Who takes the customer that is picked in the customer list: the estimate screen.
class CustomerPick {
public:
    virtual ~CustomerPick() = default;
    // Key and name of the picked row.
    virtual void takeCustomer(std::int32_t CustId, const std::string& name) = 0;
};

}  // namespace torvane
