#include "reports/screens/report_window.h"

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QScrollBar>
#include <algorithm>

#include "platform/controls.h"
#include "platform/dialogs.h"
#include "reports/screens/page_painter.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr int twipsPerInch = 1440;
constexpr int zoomSteps[] = {50, 75, 100, 125, 150, 200};

}  // namespace

ReportWindow::ReportWindow(Program& program, const char* name, int helpContext) : FormOf(program, name) {
    setHelpContext(helpContext);
}

void ReportWindow::Form_Load() {
    const auto click = [this](QAbstractButton* button, auto handler) {
        on(*this, button, &QAbstractButton::clicked, handler);
    };
    click(ui().cmdFirst, [this] { showPage(0); });
    click(ui().cmdPrevious, [this] { showPage(page_ - 1); });
    click(ui().cmdNext, [this] { showPage(page_ + 1); });
    click(ui().cmdLast, [this] { showPage(pages_->pageCount() - 1); });
    click(ui().cmdPrint, [this] { print(); });
    click(ui().cmdPdf, [this] { exportTo("PDF", ".pdf", writePdf); });
    click(ui().cmdHtml, [this] { exportTo("HTML", ".html", writeHtml); });
    click(ui().cmdClose, [this] { Unload(); });
    for (const int step : zoomSteps) ui().cmbZoom->AddItem(generalText(step) + " %", step);
    on(*this, ui().cmbZoom, &DropList::Click, [this] { ui().page->setZoom(ui().cmbZoom->ItemData()); });
    ui().cmbZoom->selectItemData(100);
    ui().scroll->setFocus();  // the arrows turn to what is below
    program().StartUp(*this);
}

void ReportWindow::Form_Unload() {
    pages_.reset();
}

void ReportWindow::showReport(std::shared_ptr<const ReportPages> pages) {
    pages_ = std::move(pages);
    Load();
    setCaption(pages_->layout().caption);
    ui().page->setPages(pages_);
    showPage(0);
    Show();
}

void ReportWindow::showPage(int number) {
    page_ = std::clamp(number, 0, pages_->pageCount() - 1);
    ui().page->setPage(page_);
    ui().scroll->verticalScrollBar()->setValue(0);
    ui().lblPage->setText(QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(pages_->pageCount()));
    ui().cmdFirst->setEnabled(page_ > 0);
    ui().cmdPrevious->setEnabled(page_ > 0);
    ui().cmdNext->setEnabled(page_ + 1 < pages_->pageCount());
    ui().cmdLast->setEnabled(page_ + 1 < pages_->pageCount());
}

void ReportWindow::exportTo(const char* kind, const char* ending, Write write) {
    const std::string title = caption();
    const auto name = program().host().askSaveName(title + ending, std::string(kind) + " (*" + ending + ")");
    program().check();
    if (!name) return;
    const std::string file = name->ends_with(ending) ? *name : *name + ending;
    if (QFile::exists(qstring(file)) && !program().confirm("File already Exists. Overwrite it?", title)) return;
    // Comes up by itself when the export takes long; the report stays as it is meanwhile.
    const auto pages = pages_;
    QProgressDialog dialog(QStringLiteral("Writing the report"), QStringLiteral("Cancel"), 0, pages->pageCount(),
                           &window());
    dialog.setObjectName(QStringLiteral("ExportProgress"));
    dialog.setWindowModality(Qt::ApplicationModal);
    const Exported result = write(*pages, file, [&dialog](int page) {
        dialog.setValue(page);
        return !dialog.wasCanceled();
    });
    dialog.reset();
    program().check();
    if (result == Exported::Done)
        program().say("The report was written to " + file, title);
    else if (result == Exported::Failed)
        program().say("The report could not be written to " + file + ". Nothing was changed there.", title);
}

void ReportWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setFullPage(true);
    printer.setDocName(qstring(caption()));
    QPrintDialog dialog(&printer, &window());
    dialog.setObjectName(QStringLiteral("PrintDialog"));
    dialog.setMinMax(1, pages_->pageCount());
    dialog.setFromTo(1, pages_->pageCount());
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    const bool accepted = runOverFront(dialog) == QDialog::Accepted;
    program().check();
    if (accepted && loaded()) printPages(printer);
}

void ReportWindow::printPages(QPrinter& printer) {
    int from = 0;
    int to = pages_->pageCount() - 1;
    if (printer.printRange() == QPrinter::PageRange) {
        from = std::max(printer.fromPage() - 1, 0);
        to = std::min(printer.toPage() - 1, to);
    } else if (printer.printRange() == QPrinter::CurrentPage) {
        from = to = page_;
    }
    QPainter painter;
    bool done = painter.begin(&printer);
    for (int number = from; done && number <= to; ++number) {
        if (number > from) done = printer.newPage();
        if (!done) break;
        painter.resetTransform();
        const double scale = static_cast<double>(printer.resolution()) / twipsPerInch;
        painter.scale(scale, scale);
        paintPage(painter, pages_->page(number));
    }
    if (painter.isActive()) done = painter.end() && done;
    if (!done || printer.printerState() == QPrinter::Error)
        program().say("The report could not be printed. Is there a printer, and is it ready?", caption());
}

}  // namespace torvane
