#include "widgets/style.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionButton>
#include <QStyleOptionHeader>
#include <QStyleOptionViewItem>

namespace torvane {

namespace {

constexpr int figuresKeepOff = 8;  // pixels between a figure and the words of the next column

bool isFigure(const QStyleOption* option) {
    const auto* cell = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    return (cell && cell->displayAlignment & Qt::AlignRight) || (header && header->textAlignment & Qt::AlignRight);
}

class Style : public QProxyStyle {
public:
    // A desktop's colours may leave out those of hints and of what is locked, which has to be read all the same.
    void polish(QPalette& palette) override {
        QProxyStyle::polish(palette);
        const auto between = [&palette](QPalette::ColorRole text, QPalette::ColorRole ground) {
            const QColor ink = palette.color(QPalette::Active, text);
            const QColor paper = palette.color(QPalette::Active, ground);
            const auto mixed = [](int a, int b) { return (3 * a + 2 * b) / 5; };
            return QColor(mixed(ink.red(), paper.red()), mixed(ink.green(), paper.green()),
                          mixed(ink.blue(), paper.blue()));
        };
        palette.setColor(QPalette::PlaceholderText, between(QPalette::Text, QPalette::Base));
        palette.setColor(QPalette::Disabled, QPalette::Text, between(QPalette::Text, QPalette::Base));
        palette.setColor(QPalette::Disabled, QPalette::WindowText, between(QPalette::WindowText, QPalette::Window));
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, between(QPalette::ButtonText, QPalette::Button));
    }
    using QProxyStyle::polish;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        // As a pop-up menu a drop-down list measures every entry before it opens and fills the whole screen.
        if (hint == SH_ComboBox_Popup) return 0;
        // Pictures on buttons are our own.
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override {
        const QRect rect = QProxyStyle::subElementRect(element, option, widget);
        return element == SE_ItemViewItemText && isFigure(option) ? rect.adjusted(0, 0, -figuresKeepOff, 0) : rect;
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (element != CE_HeaderLabel || !isFigure(header))
            return QProxyStyle::drawControl(element, option, painter, widget);
        QStyleOptionHeader moved(*header);
        moved.rect.adjust(0, 0, -figuresKeepOff, 0);
        QProxyStyle::drawControl(element, &moved, painter, widget);
    }
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        // A header that is measured does not tell on which side its text will stand.
        return type == CT_HeaderSection || isFigure(option) ? size.grownBy({0, 0, figuresKeepOff, 0}) : size;
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
