#include "widgets/style.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionButton>

namespace torvane {

namespace {

class Style : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        // As a pop-up menu a drop-down list measures every entry before it opens and fills the whole screen.
        if (hint == SH_ComboBox_Popup) return 0;
        // Pictures on buttons are our own.
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    // The title of a group stands out from the labels in it.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        if (control != CC_GroupBox || !group) return QProxyStyle::drawComplexControl(control, option, painter, widget);
        painter->save();
        QFont bold = painter->font();
        bold.setBold(true);
        painter->setFont(bold);
        QStyleOptionGroupBox titled(*group);
        titled.fontMetrics = QFontMetrics(bold);
        QProxyStyle::drawComplexControl(control, &titled, painter, widget);
        painter->restore();
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool ring = element == PE_IndicatorRadioButton || element == PE_IndicatorCheckBox;
        const QColor ground = option->palette.color(QPalette::Window);
        if (!button || !ring || ground.lightness() > 127)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        // The ring is drawn darker than the window, and so can't be seen on a dark one.
        QStyleOptionButton seen(*button);
        seen.palette.setColor(QPalette::Window, option->palette.color(QPalette::WindowText));
        QProxyStyle::drawPrimitive(element, &seen, painter, widget);
    }
};

}  // namespace

void applyStyle(QApplication& application) {
    application.setStyle(new Style);
}

}  // namespace torvane
