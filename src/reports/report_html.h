#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/report_pages.h"

namespace torvane {

// A report as one HTML file: its head, a sheet per page with every text in its place, its end. UTF-8.
std::string htmlHead(std::string_view title);
std::string htmlPage(const std::vector<Placed>& page);
std::string htmlEnd();

}  // namespace torvane
