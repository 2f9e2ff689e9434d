#include "widgets/texts.h"

#include <QRegularExpression>

namespace torvane {

std::string utf8(const QString& text) {
    return text.toStdString();
}

QString qstring(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString oneLine(QString text) {
    static const QRegularExpression notOfALine(QStringLiteral("\\r\\n|[\\t\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]"));
    return text.replace(notOfALine, QStringLiteral(" "));
}

}  // namespace torvane
