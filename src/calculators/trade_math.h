#pragma once

namespace torvane {

// What the formulas of several panels share.

// The circle constant of the calculators: these digits, not the nearest double to pi.
constexpr double circleConstant = 3.14159265358979;
constexpr double cubicFeetInYard = 27;
constexpr double inchesInFoot = 12;

constexpr double radians(double degrees) {
    return degrees * circleConstant / 180;
}
constexpr double degrees(double radians) {
    return radians * 180 / circleConstant;
}

// In radians, by way of the arc tangent. Failure::DivisionByZero at 1 and -1, Failure::InvalidCall beyond them.
double asin(double x);

// Half to even. Failure::Overflow for an infinite or undefined value, as in the next one.
double rounded(double value, int places);

// The next whole number above the value's text, for a number without a box of its own: 28.000000000000004 is 28.
double wholeUp(double value);

}  // namespace torvane
