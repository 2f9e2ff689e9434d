#include "calculators/trade_math.h"

#include <cmath>
#include <string>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

double radians(double degrees) {
    return degrees * circleConstant / 180;
}

double degrees(double radians) {
    return radians * 180 / circleConstant;
}

double asin(double x) {
    const double square = -x * x + 1;
    if (square < 0) fail(Failure::InvalidCall);
    if (square == 0) fail(Failure::DivisionByZero);
    return std::atan(x / std::sqrt(square));
}

double wholeUp(double value) {
    return std::ceil(lenientNumber(generalText(value)));
}

void writeRaised(PanelTexts& panel, std::string_view box, double value) {
    panel.write(box, value);
    panel.raise(box);
}

double sumOfBoxes(const PanelTexts& panel, std::string_view name, int first, int last) {
    double sum = 0;
    for (int number = first; number <= last; ++number) sum += panel.value(std::string(name) + std::to_string(number));
    return sum;
}

}  // namespace torvane
