#pragma once

class QApplication;

namespace torvane {

// The desktop's own style with the few hints that the system needs otherwise; called once.
void applyStyle(QApplication& application);

}  // namespace torvane
