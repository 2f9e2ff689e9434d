#pragma once

#include <QString>

#include "values/failure.h"

namespace torvane {

// What the run-time error box says: number and text, that the program has to end, and what was refused.
QString errorBoxText(const RuntimeFailure& failure);

// The run-time error box; returns when it has been closed.
void showErrorBox(const RuntimeFailure& failure);

}  // namespace torvane
