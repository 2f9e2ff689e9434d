#pragma once

#include <QIcon>
#include <QString>

namespace torvane {

// The drawing art/<name>.svg from the program's own resources; an empty icon when there is none.
QIcon picture(const QString& name);

}  // namespace torvane
