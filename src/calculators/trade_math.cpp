#include "calculators/trade_math.h"

#include <cmath>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

double asin(double x) {
    const double square = -x * x + 1;
    if (square < 0) fail(Failure::InvalidCall);
    if (square == 0) fail(Failure::DivisionByZero);
    return std::atan(x / std::sqrt(square));
}

double rounded(double value, int places) {
    return roundHalfEven(finite(value), places);
}

double wholeUp(double value) {
    return std::ceil(lenientNumber(generalText(value)));
}

}  // namespace torvane
