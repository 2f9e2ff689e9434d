#include "screens/error_box.h"

#include "values/failure.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

constexpr qsizetype longestRefused = 400;

}  // namespace

QString errorBoxText(const RuntimeFailure& failure) {
    QString text = QStringLiteral("Run-time error %1\n\n").arg(failure.number());
    text += qstring(failure.text());
    const QString during = failure.during().empty() ? QString() : QStringLiteral(" while ") + qstring(failure.during());
    text += QStringLiteral(
                "\n\nThe program met something that it cannot work with%1, and has to end now; what was saved before "
                "stays.")
                .arg(during);
    QString refused = qstring(failure.refused());
    if (refused.isEmpty()) return text;
    if (refused.size() > longestRefused) refused = refused.left(longestRefused) + QChar(0x2026);
    return text + QStringLiteral("\n\nRefused: ") + refused;
}

}  // namespace torvane
