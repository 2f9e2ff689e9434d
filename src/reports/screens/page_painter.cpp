#include "reports/screens/page_painter.h"

#include <QFontMetricsF>
#include <array>

#include "widgets/texts.h"

namespace torvane {

namespace {

constexpr double twipsPerPoint = 20;
constexpr int lineWidth = 15;  // twips

QFont faceFont(Face face) {
    QFont font(QStringLiteral("Arial"));
    // The painter's unit is a twip, so the font is measured in twips and not in the device's own dots.
    font.setPixelSize(static_cast<int>(twipsPerPoint * (face == Face::Title ? titlePoints : textPoints)));
    font.setBold(face != Face::Plain);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

void paintPage(QPainter& painter, const std::vector<Placed>& page) {
    const std::array<QFont, 3> fonts{faceFont(Face::Plain), faceFont(Face::Bold), faceFont(Face::Title)};
    const std::array<QFontMetricsF, 3> metrics{QFontMetricsF(fonts[0]), QFontMetricsF(fonts[1]),
                                               QFontMetricsF(fonts[2])};
    painter.setPen(QPen(Qt::black, lineWidth));
    for (const Placed& placed : page) {
        if (placed.field.kind == ReportControl::Line) {
            painter.drawLine(placed.field.left, placed.field.top, placed.field.left + placed.field.width,
                             placed.field.top + placed.field.height);
            continue;
        }
        const QString text = qstring(placed.text);
        if (text.isEmpty()) continue;
        const auto face = static_cast<std::size_t>(placed.field.face);
        const double advance = metrics[face].horizontalAdvance(text);
        const bool tooWide = advance > placed.room();
        const bool squeezed = tooWide && placed.whole;
        painter.save();
        painter.setFont(fonts[face]);
        if (tooWide && !squeezed)
            painter.setClipRect(placed.field.left, placed.field.top, placed.field.width, placed.field.height);
        // A text that is cut loses its end and never its beginning.
        const double indent = placed.field.width - (squeezed ? placed.room() : advance);
        const bool right = placed.field.align == Align::Right && (squeezed || !tooWide);
        painter.translate(placed.field.left + (right ? indent : 0), placed.field.top + metrics[face].ascent());
        if (squeezed) painter.scale(placed.room() / advance, 1);
        painter.drawText(QPointF(), text);
        painter.restore();
    }
}

}  // namespace torvane
