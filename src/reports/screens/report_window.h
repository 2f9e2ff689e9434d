#pragma once

#include <memory>

#include "platform/form.h"
#include "reports/report_pages.h"
#include "ui_report_window.h"

class QPrinter;

namespace torvane {

// The preview of one report: page by page, zoom, print, export to PDF. Modeless; a run on a report whose window stands
// open fills and raises that window.
class ReportWindow : public FormOf<Ui::ReportWindow> {
public:
    ReportWindow(Program& program, const char* name);

    void showReport(std::shared_ptr<const ReportPages> pages);

    // Writes the whole report as a PDF file: under a temporary name first, so that a failure leaves no half file and an
    // older one as it was. False when that failed.
    static bool writePdf(const ReportPages& pages, const std::string& fileName);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void showPage(int number);
    void print();
    void exportPdf();
    void printPages(QPrinter& printer);

    std::shared_ptr<const ReportPages> pages_;
    int page_ = 0;
};

}  // namespace torvane
