#pragma once

#include <functional>
#include <string>
#include <vector>

#include "reports/report_pages.h"

class QPrinter;

namespace torvane {

enum class Exported { Done, Failed, Cancelled };
// Told before each page, by its place in what is written; false cancels.
using ExportProgress = std::function<bool(int page)>;

// Write a whole report to a file, wholly or not at all: after a failure or a cancelled export an older file is as it
// was.
Exported writePdf(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress);
Exported writeHtml(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress);

// Prints what the printer is set to: range, order, and copies; onto paper, or to the file that it names, as above. It
// is told which page stands in the preview.
Exported printReport(const ReportPages& pages, QPrinter& printer, int currentPage);

// The pages that a printer is set to print, from 0, in the order in which they are sent. Copies that the printer makes
// by itself are sent once.
std::vector<int> pagesToPrint(const QPrinter& printer, int pageCount, int currentPage);

}  // namespace torvane
