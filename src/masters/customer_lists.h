#pragma once

#include <string>
#include <string_view>

namespace torvane {

// The statements of the customer lists, without their order clause; the estimate record offers the same lists.
std::string_view allCustomersStatement();
// Customers whose `field` begins with `text`; under "All" any of name, city, phone, e-mail and BCCNo.
std::string searchCustomersStatement(std::string_view field, std::string_view text);

}  // namespace torvane
