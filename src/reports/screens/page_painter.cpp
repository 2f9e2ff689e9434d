#include "reports/screens/page_painter.h"

#include <QTextLayout>
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
    QTextOption oneLine;
    oneLine.setWrapMode(QTextOption::NoWrap);
    painter.setPen(QPen(Qt::black, lineWidth));
    for (const Placed& placed : page) {
        const QRect box(placed.field.left, placed.field.top, placed.field.width, placed.field.height);
        if (placed.field.kind == ReportControl::Line) {
            painter.drawLine(box.x(), box.y(), box.x() + box.width(), box.y() + box.height());
            continue;
        }
        if (placed.text.empty()) continue;
        // Measured and painted from one shaping of the text, which is what costs the time.
        QTextLayout text(qstring(placed.text), fonts[static_cast<std::size_t>(placed.field.face)]);
        text.setTextOption(oneLine);
        text.setCacheEnabled(true);
        text.beginLayout();
        QTextLine line = text.createLine();
        line.setLineWidth(pageWidth);
        text.endLayout();
        const double wanted = line.naturalTextWidth();
        const bool tooWide = wanted > placed.room();
        const bool squeezed = tooWide && placed.squeeze;
        // A text that is cut loses its end and never its beginning.
        const bool right = placed.field.align == Align::Right && (squeezed || !tooWide);
        const double indent = right ? box.width() - (squeezed ? placed.room() : wanted) : 0;
        const QPointF start(box.x() + indent, box.y());
        if (!tooWide) {
            text.draw(&painter, start);
            continue;
        }
        painter.save();
        if (squeezed) {
            painter.translate(start);
            painter.scale(placed.room() / wanted, 1);
            text.draw(&painter, {});
        } else {
            painter.setClipRect(box);
            text.draw(&painter, start);
        }
        painter.restore();
    }
}

}  // namespace torvane
