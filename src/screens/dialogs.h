#pragma once

#include <QDialog>
#include <QMessageBox>

#include "host/host.h"

namespace torvane {

// A message box as the system shows all of them: plain text, no icon.
void prepareBox(QMessageBox& box, const QString& text, const QString& title, Buttons buttons);

// What the run-time error box says: number and text, that the program has to end, and what was refused.
QString errorBoxText(const RuntimeFailure& failure);

// Shows a dialog over the window in front, application-modal; afterwards that window has the keys again.
int runOverFront(QDialog& dialog);

}  // namespace torvane
