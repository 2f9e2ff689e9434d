#pragma once

#include <string_view>

#include "calculators/panel.h"

namespace torvane {

// What the formulas of several panels share.

// The circle constant of the calculators: these digits, not the nearest double to pi.
constexpr double circleConstant = 3.14159265358979;

double radians(double degrees);
double degrees(double radians);

// In radians, by way of the arc tangent. Failure::DivisionByZero at 1 and -1, Failure::InvalidCall beyond them.
double asin(double x);

// The next whole number above the value's text, for a number without a box of its own: 28.000000000000004 is 28.
double wholeUp(double value);

// Writes the value and raises the box. Failure::Overflow as PanelTexts::write, the box then unchanged.
void writeRaised(PanelTexts& panel, std::string_view box, double value);

// Sum of the boxes name1, name2 ... from `first` to `last`, read one after the other.
double sumOfBoxes(const PanelTexts& panel, std::string_view name, int first, int last);

}  // namespace torvane
