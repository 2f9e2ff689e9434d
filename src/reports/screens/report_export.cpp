#include "reports/screens/report_export.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "platform/controls.h"
#include "reports/report_html.h"
#include "reports/screens/page_painter.h"

namespace torvane {

namespace {

constexpr int twipsPerInch = 1440;

}  // namespace

Exported writePdf(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress) {
    QSaveFile file(qstring(fileName));
    if (!file.open(QIODevice::WriteOnly)) return Exported::Failed;
    {
        QPdfWriter writer(&file);
        writer.setResolution(twipsPerInch);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()));
        writer.setTitle(qstring(pages.layout().caption));
        QPainter painter;
        if (!painter.begin(&writer)) return Exported::Failed;
        for (int number = 0; number < pages.pageCount(); ++number) {
            if (!progress(number)) return Exported::Cancelled;
            if (number > 0 && !writer.newPage()) return Exported::Failed;
            paintPage(painter, pages.page(number));
        }
        if (!painter.end()) return Exported::Failed;
    }
    return file.commit() ? Exported::Done : Exported::Failed;
}

Exported writeHtml(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress) {
    QSaveFile file(qstring(fileName));
    if (!file.open(QIODevice::WriteOnly)) return Exported::Failed;
    const auto write = [&file](const std::string& text) {
        return file.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size());
    };
    bool whole = write(htmlHead(pages.layout().caption));
    for (int number = 0; whole && number < pages.pageCount(); ++number) {
        if (!progress(number)) return Exported::Cancelled;
        whole = write(htmlPage(pages.page(number)));
    }
    return whole && write(htmlEnd()) && file.commit() ? Exported::Done : Exported::Failed;
}

}  // namespace torvane
