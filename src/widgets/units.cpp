#include "widgets/units.h"

#include <QWidget>
#include <algorithm>

namespace torvane {

double fontScale(const QWidget& control) {
    constexpr double usualHeight = 14;
    return std::max(1.0, QFontMetricsF(control.font()).height() / usualHeight);
}

}  // namespace torvane
