#pragma once

#include <QAction>
#include <QList>

class QWidget;

namespace torvane {

// Gives each of these entries of one menu, or each push button of a window, a letter to be pressed with Alt: of its own
// caption, the first letter of a word where that is still free. Captions stay as they read; one that has a letter
// already, or none left, keeps what it has.
void giveMnemonics(const QList<QAction*>& entries);
void giveMnemonics(const QWidget& window);

}  // namespace torvane
