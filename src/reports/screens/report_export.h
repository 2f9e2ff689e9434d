#pragma once

#include <functional>
#include <string>

#include "reports/report_pages.h"

namespace torvane {

enum class Exported { Done, Failed, Cancelled };
// Told before each page, from 0; false cancels.
using ExportProgress = std::function<bool(int page)>;

// Write a whole report to a file: under a temporary name first, so that a failure or a cancelled export leaves no half
// file, and an older one as it was.
Exported writePdf(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress);
Exported writeHtml(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress);

}  // namespace torvane
