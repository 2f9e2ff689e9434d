#pragma once

#include <string>

namespace torvane {

// What the estimate record needs of the one estimate screen.
class EstimateScreen {
public:
    virtual ~EstimateScreen() = default;
    // Its field AddOrDelete: "A" new estimate, "E" existing one, "D" shown for deletion.
    virtual const std::string& estimateMode() const = 0;
    // Shows the screen, modeless.
    virtual void showEstimate() = 0;
};

}  // namespace torvane
