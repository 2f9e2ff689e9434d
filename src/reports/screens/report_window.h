#pragma once

#include <memory>

#include "platform/form.h"
#include "reports/report_pages.h"
#include "reports/screens/report_export.h"
#include "ui_report_window.h"

class QPrinter;

namespace torvane {

// The preview of one report: page by page, zoom, print, export to PDF and HTML. Modeless; a run on a report whose
// window stands open fills and raises that window.
class ReportWindow : public FormOf<Ui::ReportWindow> {
public:
    ReportWindow(Program& program, const char* name, int helpContext);

    void showReport(std::shared_ptr<const ReportPages> pages);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void showPage(int number);
    void print();
    using Write = Exported (*)(const ReportPages&, const std::string&, const ExportProgress&);
    void exportTo(const char* kind, const char* ending, Write write);
    void printPages(QPrinter& printer);

    std::shared_ptr<const ReportPages> pages_;
    int page_ = 0;
};

}  // namespace torvane
