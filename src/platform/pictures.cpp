#include "platform/pictures.h"

#include <QFile>

namespace torvane {

QIcon picture(const QString& name) {
    const QString file = QStringLiteral(":/art/%1.svg").arg(name);
    return QFile::exists(file) ? QIcon(file) : QIcon();
}

}  // namespace torvane
