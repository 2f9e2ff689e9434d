#pragma once

namespace torvane {

// What the formulas of several panels share.

// The circle constant of the calculators: these digits, not the nearest double to pi.
constexpr double circleConstant = 3.14159265358979;
constexpr double cubicFeetInYard = 27;
constexpr double inchesInFoot = 12;
constexpr double squareInchesInFoot = 144;

double radians(double degrees);
double degrees(double radians);

// In radians, by way of the arc tangent. Failure::DivisionByZero at 1 and -1, Failure::InvalidCall beyond them.
double asin(double x);

// Rounded half to even. Failure::Overflow for an infinite or undefined value.
double rounded(double value, int places);

// The next whole number above the value's text, for a number without a box of its own: 28.000000000000004 is 28.
// Failure::Overflow as `rounded`.
double wholeUp(double value);

}  // namespace torvane
