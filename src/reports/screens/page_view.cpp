#include "reports/screens/page_view.h"

#include <QPainter>
#include <algorithm>

#include "reports/screens/page_painter.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

void PageView::setPage(std::vector<Placed> page) {
    page_ = std::move(page);
    QString words;
    for (const Placed& placed : page_)
        if (!placed.text.empty()) words += qstring(placed.text) + QLatin1Char('\n');
    setAccessibleDescription(words);
    update();
}

void PageView::setZoom(int percent) {
    setFixedSize(pixels(pageWidth * percent / 100.0), pixels(pageHeight * percent / 100.0));
}

int PageView::zoomOfWidth(int width) {
    constexpr int beside = 24;
    return std::max(10, 100 * (width - beside) / pixels(pageWidth));
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(Qt::gray);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(static_cast<double>(width()) / pageWidth, static_cast<double>(height()) / pageHeight);
    paintPage(painter, page_);
}

}  // namespace torvane
