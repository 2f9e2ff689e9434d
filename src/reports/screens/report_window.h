#pragma once

#include <QStringList>
#include <memory>
#include <string>

#include "reports/report_pages.h"
#include "reports/screens/report_export.h"
#include "screens/form.h"
#include "ui_report_window.h"

namespace torvane {

// The preview of one report: page by page, zoom, print, export to PDF and HTML. Modeless; a run on a report whose
// window stands open fills and raises that window.
class ReportWindow : public FormOf<Ui::ReportWindow> {
public:
    ReportWindow(Program& program, const char* name, int helpContext);

    // `of`: what the report is about, for the names of its files.
    void showReport(std::shared_ptr<const ReportPages> pages, std::string of);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void showPage(int number);
    void turn(int pages);
    void zoom();
    void print();
    using Write = Exported (*)(const ReportPages&, const std::string&, const ExportProgress&);
    // The name that a file with the report is offered under, without an ending.
    std::string proposedName();
    // The first of the endings is given to a name that has none of them.
    void exportTo(const char* kind, const QStringList& endings, Write write);

    std::shared_ptr<const ReportPages> pages_;
    std::string of_;
    int page_ = 0;
    std::string told_;  // what is left empty, as the user has been told
};

}  // namespace torvane
