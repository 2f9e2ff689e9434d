#pragma once

namespace torvane {

// What the program calls itself, with its version.
inline constexpr auto title = "TORVANE Construction Estimator Ver. " TORVANE_VERSION;

}  // namespace torvane
