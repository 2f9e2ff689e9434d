#pragma once

#include <QWidget>
#include <vector>

#include "reports/report_pages.h"

namespace torvane {

// Shows one page of a report as a sheet of paper.
class PageView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    void setPage(std::vector<Placed> page);
    void setZoom(int percent);
    // In percent, for a page that is as wide as that, in pixels, with a little room beside it.
    static int zoomOfWidth(int width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<Placed> page_;
};

}  // namespace torvane
