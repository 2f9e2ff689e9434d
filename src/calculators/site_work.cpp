#include "calculators/panel.h"

namespace torvane {

std::span<const Panel> siteWorkPanels() {
    return {};
}

}  // namespace torvane
