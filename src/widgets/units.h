#pragma once

class QWidget;

namespace torvane {

// Coordinates of the system are twips: 15 to the pixel at 96 dots per inch.
constexpr int pixels(double twips) {
    return static_cast<int>(twips / 15.0 + (twips < 0 ? -0.5 : 0.5));
}

// Given sizes hold for the usual type; this is how much larger the control's own type is. At least 1.
double fontScale(const QWidget& control);

}  // namespace torvane
