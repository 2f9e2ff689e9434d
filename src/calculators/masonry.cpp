#include "calculators/panel.h"

namespace torvane {

std::span<const Panel> masonryPanels() {
    return {};
}

}  // namespace torvane
