// The list reports in their windows.

#include <QDir>
#include <QFile>

#include "journeys/journey.h"
#include "reports/screens/report_export.h"

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
    EXPECT_EQ(utf8(dates.windowTitle()), "Estimates Report");
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
    // The customers report stands beside it, and the prompt may go.
    choose("mnucustrpt");
    EXPECT_TRUE(
        page("DataReport2").starts_with("Customers Report\nName\nAddress\nPhone\nFax\nEmail\nAnn Lee\n1 Elm\n"));
    go(dates, "Command2");
    EXPECT_FALSE(screens->reportPrompt.loaded());
    EXPECT_TRUE(standing("DataReport1") && standing("DataReport2"));
}

TEST_F(ReportsTest, ExportsWholeFilesOrNone) {
    start();
    choose("mnucustrpt");
    QWidget& report = *standing("DataReport2");
    struct Row {
        const char* button;
        const char* ending;
        const char* beginsWith;
    };
    for (const Row& row : {Row{"cmdPdf", ".pdf", "%PDF"}, Row{"cmdHtml", ".html", "<!DOCTYPE html>"}}) {
        SCOPED_TRACE(row.ending);
        const std::string name = data.path() + "/customers" + row.ending;
        host.answerSaveName(data.path() + "/customers");
        host.expectOk("The report was written to " + name, "Customers Report");
        go(report, row.button);
        QFile file(qstring(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(file.readAll().startsWith(row.beginsWith));
        host.answerSaveName(name);
        host.expectYesNo("File already Exists. Overwrite it?", "Customers Report", Answer::No);
        go(report, row.button);
        host.answerSaveName(std::nullopt);
        go(report, row.button);
        const std::string nowhere = data.path() + "/no such folder/x" + row.ending;
        host.answerSaveName(nowhere);
        host.expectOk("The report could not be written to " + nowhere + ". Nothing was changed there.",
                      "Customers Report");
        go(report, row.button);
    }
}

TEST_F(ReportsTest, ACancelledExportLeavesTheOlderFile) {
    const ReportPages pages(customersLayout(), DataEnvironment1(program.environment()).customers(), {});
    const std::string name = data.path() + "/older";
    for (const auto write : {writePdf, writeHtml}) {
        QFile older(qstring(name));
        ASSERT_TRUE(older.open(QIODevice::WriteOnly));
        older.write("older");
        older.close();
        EXPECT_EQ(write(pages, name, [](int) { return false; }), Exported::Cancelled);
        ASSERT_TRUE(older.open(QIODevice::ReadOnly));
        EXPECT_EQ(older.readAll(), "older");
        EXPECT_EQ(QDir(qstring(data.path())).entryList({"older*"}, QDir::Files).size(), 1);
    }
}

TEST_F(ReportsTest, TurnsPages) {
    for (int number = 100; number < 160; ++number)
        data.execute("insert into OrderInfo (OrderNo, CustId, OrderDate, Total) values (" + std::to_string(number) +
                     ", 7, '2010-01-01', 1)");
    QWidget& dates = prompt();
    go(dates, "Command3");
    QWidget& report = *standing("DataReport1");
    EXPECT_EQ(texts(report, {"lblPage"}), "Page 1 of 2");
    EXPECT_EQ(enabled(report, {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"}), "cmdNext cmdLast");
    go(report, "cmdLast");
    EXPECT_EQ(texts(report, {"lblPage"}), "Page 2 of 2");
    EXPECT_TRUE(page("DataReport1").ends_with("\n159\n1/1/2010\nAnn Lee\n1.00\n306.00\n"));
    EXPECT_EQ(enabled(report, {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"}), "cmdFirst cmdPrevious");
    const int before = find<QWidget>(report, "page").width();
    go(report, "cmbZoom=200 %");
    EXPECT_EQ(find<QWidget>(report, "page").width(), 2 * before);
}

TEST_F(ReportsTest, ARunWithoutADatabaseShowsAnEmptyReport) {
    start();
    data.execute("drop table Customer");
    choose("mnucustrpt");
    EXPECT_EQ(page("DataReport2"), "Customers Report\nName\nAddress\nPhone\nFax\nEmail\n");
}

}  // namespace
}  // namespace torvane
