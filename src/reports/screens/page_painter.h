#pragma once

#include <QPainter>
#include <vector>

#include "reports/report_pages.h"

namespace torvane {

// Paints a page onto whatever the painter stands on. One unit of the painter has to be one twip.
void paintPage(QPainter& painter, const std::vector<Placed>& page);

}  // namespace torvane
