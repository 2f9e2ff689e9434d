// The reports in their windows, on paper and in files.

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>
#include <filesystem>

#include "journeys/journey.h"
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
        host.style.pattern = "d MMM yyyy";
        start();
        choose("mnusalesrpt");
        return screens->reportPrompt.window();
    }
    // Prints two copies, the last page first, to a file, which the dialog asks to replace if it is there.
    void print(QWidget& report, const std::string& file, const Boxes& said = {}) {
        whenModal([=, this](QWidget& dialog) {
            EXPECT_TRUE(dynamic_cast<QPrintDialog&>(dialog).testOption(QAbstractPrintDialog::PrintCurrentPage));
            EXPECT_EQ(find<QSpinBox>(dialog, "to").maximum(), find<QSpinBox>(dialog, "to").value());
            EXPECT_EQ(find<QSpinBox>(dialog, "from").value(), 1);
            find<QLineEdit>(dialog, "filename").setText(qstring(file));
            find<QSpinBox>(dialog, "copies").setValue(2);
            find<QCheckBox>(dialog, "reverse").setChecked(true);
            if (!bytes(file).empty()) whenModal([](QWidget& question) { key(question, Qt::Key_Y, Qt::AltModifier); });
            click(*dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
        });
        go(report, "cmdPrint", said);
    }
    QWidget& customersReport() {
        start();
        choose("mnucustrpt");
        return *standing("DataReport2");
    }
    const std::string title = "Customers Report";
    const TestHost::Box overwrite = yes("File already Exists. Overwrite it?", title);
};

TEST_F(ReportsTest, EstimatesOfARangeAndAll) {
    QWidget& dates = prompt();
    EXPECT_EQ(find<DateBox>(dates, "FDate").Value(), (Date{2004, 2, 1}));
    EXPECT_EQ(find<DateBox>(dates, "TDate").Value(), (Date{2004, 2, 20}));
    const std::string head = "Estimates Report\nEstimate No.\nEstimate Date\nCustomer Name\nTotal\n";
    go(dates, "Command1");
    EXPECT_EQ(page("DataReport1"), head + "0.00\n");
    go(dates, "Command3");
    EXPECT_EQ(page("DataReport1"), head + "3\n4 Jul 2003\nAnn Lee\n236.00\n5\n31 Jan 2004\nBob Ray\n10.00\n246.00\n");
    for (const char* bound : {"FDate", "TDate"}) find<DateBox>(dates, bound).setValue({2004, 1, 31});
    go(dates, "Command1");
    EXPECT_EQ(page("DataReport1"), head + "5\n31 Jan 2004\nBob Ray\n10.00\n10.00\n");
    go(dates, "Command2");
    EXPECT_FALSE(screens->reportPrompt.loaded());
    // A run that can't read shows an empty report beside it, and no box.
    data.execute("drop table Customer");
    choose("mnucustrpt");
    EXPECT_EQ(page("DataReport2"), "Customers Report\nName\nAddress\nPhone\nFax\nEmail\n");
    EXPECT_TRUE(standing("DataReport1"));
}

TEST_F(ReportsTest, TheProposalShowsWhatIsSaved) {
    const Boxes notice{
        ok("In case you made any changes to the proposal, you will need to save your changes first so that the changes "
           "appear in the print out.",
           std::string(defaultTitle))};
    data.execute("update Customer set CustName = 'Ann/Lee' where CustId = 7; delete from OrderItem where ItemId = 3");
    QWidget& order = openEstimate(3);
    go(order, "cmbItems=Joist; cmbRooms=Attic; cmdAdd; Command1", notice);
    const std::string before = page("DataReport3");
    for (const char* part : {"Ann/Lee\n", "9 Oak\n", "7/4/2003\n", "\nDeck\n2.5\nEach\nJoist\n25.00\n", "\n236.00\n"})
        EXPECT_NE(before.find(part), std::string::npos) << part << " is not in " << before;
    EXPECT_EQ(before.find("Attic"), std::string::npos) << before;
    host.answerName(std::nullopt);
    go(*standing("DataReport3"), "cmdPdf");
    EXPECT_EQ(host.fileDialogs.back(), (TestHost::Asked{"Estimate Proposal 3 Ann-Lee.pdf", "PDF (*.pdf)"}));
    go(order, "CmdSave", {ok("Estimate Saved")});
    go(order, "Command1", notice);
    EXPECT_NE(page("DataReport3").find("Attic\n2\nEach\nJoist\n20.00\n"), std::string::npos) << page("DataReport3");
    closeBox(order);
    go(newEstimate(), "cmdAdd; Command1", notice);
    EXPECT_EQ(page("DataReport3"), "Estimates Proposal\n") << "that one is not saved";
}

// Each way out of the preview into a file: what a full disk has cut short would be taken for the whole report.
TEST_F(ReportsTest, AFileIsWrittenWhollyOrTheOlderStays) {
    QWidget& report = customersReport();
    for (const auto& [button, name, ending, beginsWith] : {std::tuple{"cmdPdf", "customers", ".pdf", "%PDF"},
                                                           {"cmdPdf", "UPPER.PDF", "", "%PDF"},
                                                           {"cmdHtml", "customers", ".html", "<!DOCTYPE html>"},
                                                           {"cmdHtml", "short.htm", "", "<!DOCTYPE html>"},
                                                           {"cmdPrint", "printed.pdf", "", "%PDF"}}) {
        SCOPED_TRACE(name);
        const std::string typed = data.path() + "/" + name;
        const std::string file = typed + ending;
        const bool exports = std::string_view(button) != "cmdPrint";
        const auto exportTo = [&, pressed = button](std::optional<std::string> to, const Boxes& boxes) {
            host.answerName(std::move(to));
            go(report, pressed, boxes);
        };
        if (exports) {
            exportTo(std::nullopt, {});
            exportTo(typed, {ok("The report was written to " + file, title)});
        } else {
            print(report, file);
        }
        EXPECT_TRUE(bytes(file).starts_with(beginsWith));
        const auto size = bytes(file).size();
        write(file, "older");
        if (exports) exportTo(file, {no(overwrite.text, title)});
        for (const auto room : {std::size_t{100}, size - 1}) {
            const FullDisk disk(room);
            const auto lost =
                ok("The report could not be written to " + file + ". Nothing was changed there. Choose another folder.",
                   title);
            exports ? exportTo(file, {overwrite, lost}) : print(report, file, {lost});
        }
        EXPECT_EQ(bytes(file), "older");
        std::filesystem::remove(file);
        EXPECT_EQ(filesIn(data.path()), Texts{"Larkfen.mdb"}) << "no part of it is left";
    }
}

TEST_F(ReportsTest, ACancelledExportLeavesTheOlder) {
    const ReportPages pages(customersLayout, DataEnvironment1(program.dataAccess()).customers(), {});
    const auto cancel = [](int) { return false; };
    EXPECT_EQ(writePdf(pages, data.database(), cancel), Exported::Cancelled);
    EXPECT_EQ(writeHtml(pages, data.database(), cancel), Exported::Cancelled);
    EXPECT_EQ(data.cell("pragma integrity_check"), "ok");
}

TEST_F(ReportsTest, PrintsThePagesThatAreAskedFor) {
    // Three copies of four pages, from page 2 to 3; the third is in the preview.
    const std::tuple<QPrinter::PrintRange, QPrinter::PageOrder, bool, std::vector<int>> rows[] = {
        {QPrinter::PageRange, QPrinter::FirstPageFirst, true, {1, 2, 1, 2, 1, 2}},
        {QPrinter::PageRange, QPrinter::LastPageFirst, false, {2, 2, 2, 1, 1, 1}},
        {QPrinter::CurrentPage, QPrinter::LastPageFirst, true, {2, 2, 2}},
        {QPrinter::AllPages, QPrinter::LastPageFirst, true, {3, 2, 1, 0, 3, 2, 1, 0, 3, 2, 1, 0}}};
    for (const auto& [range, order, collate, pages] : rows) {
        QPrinter printer;
        printer.setOutputFileName(QStringLiteral("x.pdf"));
        printer.setCopyCount(3);
        printer.setCollateCopies(collate);
        printer.setPageOrder(order);
        printer.setFromTo(2, 3);
        printer.setPrintRange(range);
        EXPECT_EQ(pagesToPrint(printer, 4, 2), pages);
    }
}

TEST_F(ReportsTest, TurnsAndPrintsPages) {
    for (int number = 100; number < 160; ++number)
        data.execute("insert into OrderInfo (OrderNo, CustId, OrderDate, Total) values (" + std::to_string(number) +
                     ", 7, '2010-01-01', 1)");
    go(prompt(), "Command3");
    QWidget& report = *standing("DataReport1");
    const auto look = [&] {
        return text(report, "lblPage") + " " + enabled(report, {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"});
    };
    tell(report, look,
         {{"cmdLast", "Page 2 of 2 cmdFirst cmdPrevious"},
          {"cmdPrevious", "Page 1 of 2 cmdNext cmdLast"},
          {"cmdNext", "Page 2 of 2 cmdFirst cmdPrevious"},
          {"cmdFirst", "Page 1 of 2 cmdNext cmdLast"}});
    // At the ends of a page the keys turn it; there is none before the first.
    auto& scroll = find<QScrollArea>(report, "scroll");
    QScrollBar& bar = *scroll.verticalScrollBar();
    const auto press = [&](Qt::Key pressed, int from) {
        bar.setValue(from);
        key(scroll, pressed);
        return text(report, "lblPage") + (bar.value() == 0 ? " top" : bar.value() == bar.maximum() ? " end" : "");
    };
    EXPECT_EQ(press(Qt::Key_Up, 0), "Page 1 of 2 top");
    EXPECT_EQ(press(Qt::Key_Down, 0), "Page 1 of 2");
    EXPECT_EQ(press(Qt::Key_PageDown, bar.maximum()), "Page 2 of 2 top");
    EXPECT_EQ(press(Qt::Key_PageDown, bar.maximum()), "Page 2 of 2 end");
    EXPECT_EQ(press(Qt::Key_Home, bar.maximum()), "Page 1 of 2 top");
    EXPECT_EQ(press(Qt::Key_End, 0), "Page 2 of 2 top");
    EXPECT_EQ(press(Qt::Key_Up, 0), "Page 1 of 2 end");
    const QPointF centre = scroll.rect().center();
    const QWidget& paper = find<QWidget>(report, "page");
    const int before = paper.width();
    const auto wheel = [&](int turned, Qt::KeyboardModifiers held = {}) {
        QWheelEvent turn(centre, centre, {}, {0, turned}, Qt::NoButton, held, Qt::NoScrollPhase, false);
        QApplication::sendEvent(scroll.viewport(), &turn);
        return text(report, "lblPage") + ", " + text(report, "cmbZoom");
    };
    EXPECT_EQ(wheel(-60), "Page 1 of 2, 100 %") << "half a step";
    EXPECT_EQ(wheel(-60), "Page 2 of 2, 100 %");
    EXPECT_EQ(wheel(120), "Page 1 of 2, 100 %");
    go(report, "cmbZoom=200 %");
    EXPECT_EQ(wheel(120, Qt::ControlModifier), "Page 1 of 2, 200 %");
    EXPECT_EQ(paper.width(), 2 * before);
    EXPECT_EQ(wheel(-120, Qt::ControlModifier), "Page 1 of 2, 150 %");
    go(report, "cmbZoom=Fit to width");
    EXPECT_NEAR(paper.width(), scroll.viewport()->width() - 24, 9);

    const std::string file = data.path() + "/printed.pdf";
    print(report, file);
    QProcess reader;
    reader.start("pdftotext", {"-x", "450", "-y", "0", "-W", "100", "-H", "500", qstring(file), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    std::string totals;  // which of the pages have the total in its column, and which are empty
    for (const QString& page : QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f')))
        totals += page.isEmpty() ? "0" : page.contains("306.00") ? "1" : "2";
    EXPECT_EQ(totals, "12120") << "and nothing behind them";
}

TEST_F(ReportsTest, AFieldThatTheDataLackIsSaidAndLeftEmpty) {
    for (const char* field : {"BFax", "BEmail"}) data.execute(std::string("alter table Customer drop column ") + field);
    for (int more = 0; more < 10; ++more) data.execute("insert into Customer (CustName) values ('More')");
    host.expect(ok("A part of the report is left empty. BFax: the data have no such field", title));
    go(customersReport(), "cmdNext");
    EXPECT_TRUE(page("DataReport2").find("More") != std::string::npos);
}

}  // namespace
}  // namespace torvane
