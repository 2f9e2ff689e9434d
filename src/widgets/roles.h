#pragma once

#include <QAccessible>

namespace torvane {

// What assistive programs are told beyond what Qt tells them, for as long as the process lives: a screen is a window or
// a dialog, a group has its own title for a name, not that of the group around it, and a control has the role that it
// was given.
void installRoles();
// To be given before the control has a name. A checkable button of any role is selected while it is checked, and can be
// pressed.
void setRole(QWidget& control, QAccessible::Role role);

}  // namespace torvane
