#include "reports/screens/report_export.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>
#include <numeric>

#include "files/file_copy.h"
#include "reports/report_html.h"
#include "reports/screens/page_painter.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

constexpr int twipsPerInch = 1440;

Exported written(const std::string& fileName, std::string_view content) {
    FileSystem files;
    return writeFile(files, fileName, content) ? Exported::Done : Exported::Failed;
}

Exported paint(QPagedPaintDevice& paper, const ReportPages& pages, const std::vector<int>& order,
               const ExportProgress& progress) {
    QPainter painter;
    if (!painter.begin(&paper)) return Exported::Failed;
    const double scale = static_cast<double>(paper.logicalDpiX()) / twipsPerInch;
    painter.scale(scale, scale);
    int sheet = 0;
    for (const int number : order) {
        if (!progress(sheet)) return Exported::Cancelled;
        if (sheet++ > 0 && !paper.newPage()) return Exported::Failed;
        paintPage(painter, pages.page(number));
    }
    return painter.end() ? Exported::Done : Exported::Failed;
}

Exported writePdf(const ReportPages& pages, const std::vector<int>& order, const QPageLayout& paper,
                  const std::string& fileName, const ExportProgress& progress) {
    // Into memory, since the writer does not tell of a disk that is full.
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&content);
        writer.setResolution(twipsPerInch);
        writer.setPageLayout(QPageLayout(paper.pageSize(), paper.orientation(), QMarginsF()));
        writer.setTitle(qstring(pages.layout().caption));
        if (const Exported result = paint(writer, pages, order, progress); result != Exported::Done) return result;
    }
    return written(fileName, {content.data().constData(), static_cast<std::size_t>(content.data().size())});
}

std::vector<int> allOf(int pageCount) {
    std::vector<int> order(static_cast<std::size_t>(pageCount));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

}  // namespace

Exported writePdf(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress) {
    const QPageLayout letter(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF());
    return writePdf(pages, allOf(pages.pageCount()), letter, fileName, progress);
}

Exported writeHtml(const ReportPages& pages, const std::string& fileName, const ExportProgress& progress) {
    std::string content = htmlHead(pages.layout().caption);
    for (const int number : allOf(pages.pageCount())) {
        if (!progress(number)) return Exported::Cancelled;
        content += htmlPage(pages.page(number));
    }
    return written(fileName, content + htmlEnd());
}

Exported printReport(const ReportPages& pages, QPrinter& printer, int currentPage) {
    const std::vector<int> order = pagesToPrint(printer, pages.pageCount(), currentPage);
    const auto goOn = [](int) { return true; };
    if (!printer.outputFileName().isEmpty())
        return writePdf(pages, order, printer.pageLayout(), utf8(printer.outputFileName()), goOn);
    const Exported result = paint(printer, pages, order, goOn);
    return printer.printerState() == QPrinter::Error ? Exported::Failed : result;
}

std::vector<int> pagesToPrint(const QPrinter& printer, int pageCount, int currentPage) {
    std::vector<int> once = allOf(pageCount);
    if (printer.printRange() == QPrinter::CurrentPage)
        once = {currentPage};
    else if (printer.printRange() == QPrinter::PageRange)
        std::erase_if(once, [&](int page) { return page + 1 < printer.fromPage() || page + 1 > printer.toPage(); });
    if (printer.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(once);

    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    std::vector<int> order;
    if (printer.collateCopies()) {
        for (int copy = 0; copy < copies; ++copy) order.insert(order.end(), once.begin(), once.end());
    } else {
        for (const int page : once) order.insert(order.end(), static_cast<std::size_t>(copies), page);
    }
    return order;
}

}  // namespace torvane
