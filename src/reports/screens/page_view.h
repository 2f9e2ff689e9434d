#pragma once

#include <QWidget>
#include <memory>

#include "reports/report_pages.h"

namespace torvane {

// Shows one page of a report as a sheet of paper. Only the page in view is laid out and painted.
class PageView : public QWidget {
    Q_OBJECT
public:
    explicit PageView(QWidget* parent = nullptr);
    void setPages(std::shared_ptr<const ReportPages> pages);
    void setPage(int number);  // from 0
    void setZoom(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void resizeToZoom();
    std::shared_ptr<const ReportPages> pages_;
    std::vector<Placed> placed_;
    int zoom_ = 100;
};

}  // namespace torvane
