#include "calculators/panel.h"

#include <cmath>

#include "values/numbers.h"

namespace torvane {

double PanelTexts::value(std::string_view box) const {
    return lenientNumber(text(box));
}

void PanelTexts::write(std::string_view box, double value) {
    setText(box, generalText(finite(value)));
}

void PanelTexts::writeRounded(std::string_view box, double value, int places) {
    setText(box, generalText(roundHalfEven(finite(value), places)));
}

void PanelTexts::raise(std::string_view box, int parts) {
    const double x = value(box);
    const double whole = std::floor(x);
    if (whole < x) write(box, whole + std::ceil((x - whole) * parts) / parts);
}

}  // namespace torvane
