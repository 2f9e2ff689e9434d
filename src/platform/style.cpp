#include "platform/style.h"

#include <QApplication>
#include <QHeaderView>
#include <QProxyStyle>

namespace torvane {

namespace {

class Style : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        // As a pop-up menu a drop-down list measures every entry before it opens and fills the whole screen.
        if (hint == SH_ComboBox_Popup) return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int size = QProxyStyle::pixelMetric(metric, option, widget);
        // The mark of the order in a header leaves the room to the caption.
        return metric == PM_SmallIconSize && qobject_cast<const QHeaderView*>(widget) ? size * 9 / 16 : size;
    }
};

}  // namespace

void applyStyle(QApplication& application) {
    application.setStyle(new Style);
}

}  // namespace torvane
