#include "calculators/screens/scientific_key.h"

#include <QStyleOptionButton>
#include <QTimer>
#include <algorithm>

namespace torvane {

ScientificKey::ScientificKey(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(this, &QAbstractButton::clicked, this, &ScientificKey::light);
}

void ScientificKey::light() {
    constexpr int shownForMs = 120;
    lit_ = true;
    update();
    QTimer::singleShot(shownForMs, this, [this] {
        lit_ = false;
        update();
    });
}

QSize ScientificKey::sizeHint() const {
    constexpr int sides = 6;
    constexpr int edges = 8;
    const QFontMetrics metrics = fontMetrics();
    int width = metrics.horizontalAdvance(text());
    for (const char* wide : {"xPOy", "Sq[x]", "View"})
        width = std::max(width, metrics.horizontalAdvance(QLatin1String(wide)));
    return {width + sides, metrics.height() + edges};
}

void ScientificKey::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (!lit_) return;
    option->state &= ~QStyle::State_Raised;
    option->state |= QStyle::State_Sunken;
}

}  // namespace torvane
