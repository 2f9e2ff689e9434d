// The reports in their windows, on paper and in files.

#include <QAbstractPrintDialog>
#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>

#include "journeys/journey.h"
#include "reports/screens/page_painter.h"
#include "reports/screens/report_export.h"
#include "support/files.h"
#include "support/full_disk.h"

namespace torvane {
namespace {

class ReportsTest : public JourneyTest {
protected:
    // What stands on the page that a report window shows.
    static std::string page(std::string_view window) {
        QWidget* shown = standing(window);
        return shown ? utf8(find<QWidget>(*shown, "page").accessibleDescription()) : "no window";
    }
    QWidget& prompt() {
        host.now = {2004, 2, 20};
        start();
        choose("mnusalesrpt");
        return screens->reportPrompt.window();
    }
};

TEST_F(ReportsTest, EstimatesOfARangeAndAll) {
    QWidget& dates = prompt();
    EXPECT_EQ(find<DateBox>(dates, "FDate").Value(), (Date{2004, 2, 1}));
    EXPECT_EQ(find<DateBox>(dates, "TDate").Value(), (Date{2004, 2, 20}));
    const std::string head = "Estimates Report\nEstimate No.\nEstimate Date\nCustomer Name\nTotal\n";
    go(dates, "Command1");
    EXPECT_EQ(page("DataReport1"), head + "0.00\n");
    go(dates, "Command3");
    EXPECT_EQ(page("DataReport1"), head + "3\n7/4/2003\nAnn Lee\n236.00\n5\n1/31/2004\nBob Ray\n10.00\n246.00\n");
    find<DateBox>(dates, "FDate").setValue({2004, 1, 31});
    go(dates, "Command1");
    EXPECT_EQ(page("DataReport1"), head + "5\n1/31/2004\nBob Ray\n10.00\n10.00\n");
    go(dates, "Command2");
    EXPECT_FALSE(screens->reportPrompt.loaded());
    // A run that can't read shows an empty report beside it, and no box.
    data.execute("drop table Customer");
    choose("mnucustrpt");
    EXPECT_EQ(page("DataReport2"), "Customers Report\nName\nAddress\nPhone\nFax\nEmail\n");
    EXPECT_TRUE(standing("DataReport1"));
}

TEST_F(ReportsTest, TheProposalShowsWhatIsSaved) {
    const std::vector<TestHost::Box> notice{
        ok("In case you made any changes to the proposal, you will need to save your changes first so that the changes "
           "appear in the print out.",
           std::string(defaultTitle))};
    QWidget& order = openEstimate("E", 3);
    go(order, "cmbItems=Joist; cmbRooms=Attic; cmdAdd; txtTaxPer=9; Command1", notice);
    const std::string before = page("DataReport3");
    for (const char* part : {"Ann Lee\n", "9 Oak\n", "7/4/2003\n", "\nDeck\n2.5\nEach\nJoist\n25.00\n", "\n236.00\n"})
        EXPECT_NE(before.find(part), std::string::npos) << part << " is not in " << before;
    EXPECT_EQ(before.find("Attic"), std::string::npos) << before;
    go(order, "CmdSave", {ok("Estimate Saved")});
    go(order, "Command1", notice);
    EXPECT_NE(page("DataReport3").find("Attic\n2\nBag\nJoist\n20.00\n"), std::string::npos) << page("DataReport3");
    closeBox(order);
    go(newEstimate(), "cmdAdd; Command1", notice);
    EXPECT_EQ(page("DataReport3"), "Estimates Proposal\n") << "that one is not saved";
}

TEST_F(ReportsTest, ExportsWholeFilesOrNone) {
    start();
    choose("mnucustrpt");
    QWidget& report = *standing("DataReport2");
    struct Row {
        const char* button;
        const char* name;
        const char* ended;  // as it is written
        const char* beginsWith;
    };
    const auto exportTo = [&](const char* button, std::optional<std::string> name, std::vector<TestHost::Box> boxes) {
        host.answerSaveName(std::move(name));
        go(report, button, boxes);
    };
    for (const Row& row :
         {Row{"cmdPdf", "customers", "customers.pdf", "%PDF"}, Row{"cmdPdf", "UPPER.PDF", "UPPER.PDF", "%PDF"},
          Row{"cmdHtml", "customers", "customers.html", "<!DOCTYPE html>"},
          Row{"cmdHtml", "short.htm", "short.htm", "<!DOCTYPE html>"}}) {
        SCOPED_TRACE(row.name);
        const std::string name = data.path() + "/" + row.ended;
        const std::string nowhere = data.path() + "/no such folder/" + row.ended;
        exportTo(row.button, data.path() + "/" + row.name,
                 {ok("The report was written to " + name, "Customers Report")});
        EXPECT_TRUE(bytes(name).starts_with(row.beginsWith));
        exportTo(row.button, name, {no("File already Exists. Overwrite it?", "Customers Report")});
        exportTo(row.button, std::nullopt, {});
        exportTo(
            row.button, nowhere,
            {ok("The report could not be written to " + nowhere + ". Nothing was changed there.", "Customers Report")});
    }
}

TEST_F(ReportsTest, AFileThatCannotBeWrittenWhollyLeavesTheOlder) {
    const ReportPages pages(customersLayout, DataEnvironment1(program.dataAccess()).customers(), {});
    const std::string name = data.path() + "/older";
    const auto print = [](const ReportPages& report, const std::string& file, const ExportProgress&) {
        QPrinter printer;
        printer.setOutputFileName(qstring(file));
        return printReport(report, printer, 0);
    };
    using Write = Exported (*)(const ReportPages&, const std::string&, const ExportProgress&);
    for (const Write write : {Write{writePdf}, Write{writeHtml}})
        EXPECT_EQ(write(pages, data.database(), [](int) { return false; }), Exported::Cancelled);
    EXPECT_EQ(data.cell("pragma integrity_check"), "ok") << "was overwritten";
    const auto goOn = [](int) { return true; };
    for (const Write write : {Write{writePdf}, Write{writeHtml}, Write{print}}) {
        EXPECT_EQ(write(pages, name, goOn), Exported::Done);
        const auto size = bytes(name).size();
        torvane::write(name, "older");
        for (const auto room : {std::size_t{100}, size - 1}) {
            const FullDisk disk(room);
            EXPECT_EQ(write(pages, name, goOn), Exported::Failed) << room << " of " << size;
        }
        EXPECT_EQ(bytes(name), "older");
        EXPECT_EQ(filesIn(data.path()), (Texts{"Larkfen.mdb", "older"}));
    }
}

TEST_F(ReportsTest, PrintsThePagesThatAreAskedFor) {
    struct Row {
        std::pair<int, int> range;  // 0 all, -1 the current one
        bool reverse;
        bool collate;
        std::vector<int> pages;  // of four, three copies
    };
    for (const Row& row :
         {Row{{2, 3}, false, true, {1, 2, 1, 2, 1, 2}}, Row{{2, 9}, true, false, {3, 3, 3, 2, 2, 2, 1, 1, 1}},
          Row{{-1, 0}, true, true, {2, 2, 2}}, Row{{0, 0}, true, true, {3, 2, 1, 0, 3, 2, 1, 0, 3, 2, 1, 0}}}) {
        QPrinter printer;
        printer.setOutputFileName(QStringLiteral("x.pdf"));
        printer.setCopyCount(3);
        printer.setCollateCopies(row.collate);
        printer.setPageOrder(row.reverse ? QPrinter::LastPageFirst : QPrinter::FirstPageFirst);
        printer.setPrintRange(row.range.first < 0   ? QPrinter::CurrentPage
                              : row.range.first > 0 ? QPrinter::PageRange
                                                    : QPrinter::AllPages);
        if (row.range.first > 0) printer.setFromTo(row.range.first, row.range.second);
        EXPECT_EQ(pagesToPrint(printer, 4, 2), row.pages);
    }
}

TEST_F(ReportsTest, TurnsAndPrintsPages) {
    for (int number = 100; number < 160; ++number)
        data.execute("insert into OrderInfo (OrderNo, CustId, OrderDate, Total) values (" + std::to_string(number) +
                     ", 7, '2010-01-01', 1)");
    go(prompt(), "Command3");
    QWidget& report = *standing("DataReport1");
    const Names turns{"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"};
    for (const auto& [button, label, usable] : {std::tuple{"cmdLast", "Page 2 of 2", "cmdFirst cmdPrevious"},
                                                {"cmdPrevious", "Page 1 of 2", "cmdNext cmdLast"},
                                                {"cmdNext", "Page 2 of 2", "cmdFirst cmdPrevious"},
                                                {"cmdFirst", "Page 1 of 2", "cmdNext cmdLast"}}) {
        go(report, button);
        EXPECT_EQ(text(report, "lblPage"), label);
        EXPECT_EQ(enabled(report, turns), usable);
    }
    const int before = find<QWidget>(report, "page").width();
    go(report, "cmbZoom=200 %");
    EXPECT_EQ(find<QWidget>(report, "page").width(), 2 * before);

    const QString name = qstring(data.path() + "/printed.pdf");
    whenModal([&](QWidget& top) {
        find<QLineEdit>(top, "filename").setText(name);
        find<QSpinBox>(top, "copies").setValue(2);
        find<QCheckBox>(top, "reverse").setChecked(true);
        auto& dialog = dynamic_cast<QAbstractPrintDialog&>(top);
        EXPECT_EQ(std::pair(dialog.minPage(), dialog.maxPage()), std::pair(1, 2));
        dialog.accept();
    });
    go(report, "cmdPrint");
    QProcess reader;
    reader.start("pdftotext", {name, "-"});
    ASSERT_TRUE(reader.waitForFinished());
    std::string titles;  // which of the pages have the title
    for (const QString& page : QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f')))
        titles += page.isEmpty() ? "" : page.contains("Estimates Report") ? "1" : "2";
    EXPECT_EQ(titles, "2121");
}

// A number that is cut reads as another one.
TEST_F(ReportsTest, SqueezesNumbersAndCutsTexts) {
    const auto painted = [](const char* text, bool whole) {
        QImage paper(800, 400, QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        const ReportField field{"", ReportControl::Text, "", 50, 50, 300, 240, Align::Right};
        paintPage(painter, {{field, text, whole}});
        return paper;
    };
    EXPECT_NE(painted("1234567.10", true), painted("1234567.19", true));
    EXPECT_EQ(painted("Street and 0", false), painted("Street and 9", false));
    const QImage number = painted("1234567.10", true);
    EXPECT_EQ(number.copy(350, 0, 450, 400), painted("", true).copy(350, 0, 450, 400)) << "beyond its box";
}

TEST_F(ReportsTest, AFieldThatTheDataLackIsSaidAndLeftEmpty) {
    data.execute("alter table Customer drop column BFax");
    for (int more = 0; more < 10; ++more) data.execute("insert into Customer (CustName) values ('More')");
    start();
    host.expectOk("A part of the report is left empty. BFax: the data have no such field", "Customers Report");
    choose("mnucustrpt");
    go(*standing("DataReport2"), "cmdNext");
    EXPECT_TRUE(page("DataReport2").find("More") != std::string::npos);
}

}  // namespace
}  // namespace torvane
