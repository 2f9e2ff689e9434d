#include "reports/screens/report_window.h"

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "screens/dialogs.h"
#include "values/numbers.h"
#include "widgets/drop_list.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

constexpr int zoomSteps[] = {50, 75, 100, 125, 150, 200};
constexpr int fitToWidth = 0;  // in the place of a percentage

std::string notWritten(const std::string& file) {
    return "The report could not be written to " + file + ". Nothing was changed there. Choose another folder.";
}

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
    click(ui().cmdPdf, [this] { exportTo("PDF", {".pdf"}, writePdf); });
    click(ui().cmdHtml, [this] { exportTo("HTML", {".html", ".htm"}, writeHtml); });
    click(ui().cmdClose, [this] { Unload(); });
    std::vector<DropList::Entry> zooms;
    for (const int step : zoomSteps) zooms.push_back({generalText(step) + " %", step});
    zooms.push_back({"Fit to width", fitToWidth});
    ui().cmbZoom->fill(std::move(zooms));
    on(*this, ui().cmbZoom, &DropList::Click, [this] { zoom(); });
    ui().cmbZoom->selectItemData(100);
    on(*this, ui().scroll, &PageScroll::Turn, [this](int pages) { turn(pages); });
    on(*this, ui().scroll, &PageScroll::TurnToEnd, [this](bool last) { showPage(last ? pages_->pageCount() - 1 : 0); });
    on(*this, ui().scroll, &PageScroll::Resized, [this] { zoom(); });
    on(*this, ui().scroll, &PageScroll::Zoom, [this](int steps) {
        const int last = static_cast<int>(std::size(zoomSteps)) - 1;
        ui().cmbZoom->select(std::clamp(ui().cmbZoom->ListIndex() + steps, 0, last));
    });
    on(*this, new QShortcut(QKeySequence::Print, &window()), &QShortcut::activated, [this] { print(); });
    ui().scroll->setFocus();  // the arrows turn to what is below
    program().StartUp(*this);
}

void ReportWindow::Form_Unload() {
    pages_.reset();
}

void ReportWindow::showReport(std::shared_ptr<const ReportPages> pages, std::string of) {
    pages_ = std::move(pages);
    of_ = std::move(of);
    setCaption(pages_->layout().caption);
    told_.clear();
    Show();
    showPage(0);
}

void ReportWindow::showPage(int number) {
    page_ = number;
    std::string problem;
    ui().page->setPage(pages_->page(page_, &problem));
    ui().scroll->verticalScrollBar()->setValue(0);
    ui().lblPage->setText(QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(pages_->pageCount()));
    ui().cmdFirst->setEnabled(page_ > 0);
    ui().cmdPrevious->setEnabled(page_ > 0);
    ui().cmdNext->setEnabled(page_ + 1 < pages_->pageCount());
    ui().cmdLast->setEnabled(page_ + 1 < pages_->pageCount());
    if (problem.empty() || problem == told_) return;
    told_ = problem;
    // The box is this window's, whoever had the report shown.
    const RunningHandler showing(standingWindow());
    program().say("A part of the report is left empty. " + problem, caption());
}

void ReportWindow::turn(int pages) {
    const int wanted = page_ + pages;
    if (wanted < 0 || wanted >= pages_->pageCount()) return;
    showPage(wanted);
    // Turned back, the page is read on from its end.
    if (pages < 0) ui().scroll->verticalScrollBar()->setValue(ui().scroll->verticalScrollBar()->maximum());
}

void ReportWindow::zoom() {
    const int chosen = ui().cmbZoom->ItemData();
    ui().page->setZoom(chosen == fitToWidth ? PageView::zoomOfWidth(ui().scroll->viewport()->width()) : chosen);
}

std::string ReportWindow::proposedName() {
    std::string proposed = of_.empty() ? caption() : caption() + " " + of_;
    std::ranges::replace(proposed, '/', '-');
    return proposed;
}

void ReportWindow::exportTo(const char* kind, const QStringList& endings, Write write) {
    const std::string title = caption();
    const auto name = program().host().askSaveName(proposedName() + utf8(endings.front()),
                                                   std::string(kind) + " (*" + utf8(endings.join(" *")) + ")");
    if (!name) return;
    const bool ended = std::ranges::any_of(
        endings, [&](const QString& ending) { return qstring(*name).endsWith(ending, Qt::CaseInsensitive); });
    const std::string file = ended ? *name : *name + utf8(endings.front());
    if (QFile::exists(qstring(file)) && !program().confirm("File already Exists. Overwrite it?", title)) return;
    const Exported result = [&, pages = pages_] {  // the report stays as it is meanwhile
        // Comes up by itself when the export takes long.
        QProgressDialog dialog(QStringLiteral("Writing the report"), QStringLiteral("Cancel"), 0, pages->pageCount(),
                               &window());
        dialog.setWindowModality(Qt::ApplicationModal);
        return write(*pages, file, [&dialog](int page) {
            dialog.setValue(page);
            return !dialog.wasCanceled();
        });
    }();
    if (result == Exported::Done) program().say("The report was written to " + file, title);
    if (result == Exported::Failed) program().say(notWritten(file), title);
}

void ReportWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setFullPage(true);
    printer.setDocName(qstring(proposedName()));  // a file to print to is offered under it
    QPrintDialog dialog(&printer, &window());
    dialog.setMinMax(1, pages_->pageCount());
    dialog.setFromTo(1, pages_->pageCount());
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    const bool accepted = runOverFront(dialog) == QDialog::Accepted;
    if (!accepted || !loaded() || printReport(*pages_, printer, page_) == Exported::Done) return;
    const std::string file = utf8(printer.outputFileName());
    program().say(
        file.empty() ? "The report could not be printed. Is there a printer, and is it ready?" : notWritten(file),
        caption());
}

}  // namespace torvane
