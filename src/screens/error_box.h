#pragma once

#include <QString>

#include "values/failure.h"

namespace torvane {

// What the run-time error box says: number and text, that the program has to end, and what was refused.
QString errorBoxText(const RuntimeFailure& failure);

}  // namespace torvane
