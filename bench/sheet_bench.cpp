#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QEvent>
#include <QPainter>
#include <QPdfWriter>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches.h"
#include "estimates/screens/frm_list.h"
#include "estimates/screens/frm_order.h"
#include "harness.h"
#include "reports/screens/data_reports.h"
#include "reports/screens/page_painter.h"
#include "reports/screens/report_export.h"
#include "sample.h"
#include "ui_frm_list.h"
#include "ui_frm_order.h"
#include "widgets/texts.h"

// The item sheet on the largest catalogue, and the reports on every estimate.

namespace torvane::bench {

namespace {

constexpr int rounds = 7;
constexpr double frame = 1000.0 / 60;
constexpr int sheetRows = 200;

class Screens {
public:
    explicit Screens(Sample& sample) : program_({sample.host, sample.store}, leaveProcess) {}
    void act(const std::function<void()>& handler) {
        program_.guarded(handler);
        QApplication::processEvents();
    }

private:
    Program program_;

public:
    frmOrder order{program_, {.closeNumberPrompt = [] {}}};
    frmList sheet{program_, order};
    DataReports reports{program_};
};

double medianOf(const std::function<void()>& work, const std::function<void()>& after) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(timed(work));
        after();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return median(times);
}

void itemSheet(Sample& sample, Screens& screens) {
    const auto tables = [&] {
        sample.raw.read("Select * from Categories order by ParentCategory, Catname, 1");
        sample.raw.read(
            "SELECT Item.ItemID,Item.ItemName,Item.CategoryId FROM Item,Category,Units where Item.CategoryID = "
            "Category.CatId and Item.UnitId=Units.Id order by ItemName, 1");
    };
    const double read = medianOf(tables, [] {});
    const double opened = medianOf([&] { screens.act([&] { screens.sheet.Show(); }); },
                                   [&] { screens.act([&] { screens.sheet.Unload(); }); });
    print("item sheet opened", {.least = read + frame}, opened, read);

    screens.order.AddOrDelete = "A";
    screens.act([&] { screens.order.Show(); });
    const auto fill = [&] {
        screens.act([&] {
            screens.sheet.Show();
            for (int row = 0; row < sheetRows; ++row)
                screens.sheet.ui().ListView1->AddRow({std::to_string(Sample::itemOfLine(row)), "", "", "", "", "", "",
                                                      "", "", std::to_string(row % 30 + 1)});
        });
    };
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        fill();
        auto move = [&] { screens.act([&] { screens.sheet.ui().cmdAddEstimate->click(); }); };
        times.push_back(timed(move));
        const int moved = screens.order.ui().ListView1->RowCount();
        if (moved != sheetRows) throw std::runtime_error("rows of the sheet were lost: " + std::to_string(moved));
        screens.act([&] { screens.order.Unload(); });
        screens.act([&] { screens.order.Show(); });
    }
    print("200 rows moved into an estimate", {.least = frame}, median(times), 0);
    screens.act([&] { screens.order.Unload(); });
}

// The same texts at the same places, by a painter alone.
void barePdf(const std::vector<std::vector<Placed>>& pages) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(1440);
    QPainter painter(&writer);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(165);
    painter.setFont(font);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0) writer.newPage();
        for (const Placed& placed : pages[page])
            if (!placed.text.empty())
                painter.drawText(QPoint(placed.field.left, placed.field.top + 150), qstring(placed.text));
    }
}

double residentMiB() {
    std::ifstream file("/proc/self/statm");
    double whole = 0;
    double resident = 0;
    file >> whole >> resident;
    constexpr double pagesPerMiB = 256;
    return resident / pagesPerMiB;
}

void pageThrough(const char* report, Screens& screens) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != QLatin1String(report) || !window->isVisible()) continue;
        auto* next = window->findChild<QAbstractButton*>(QStringLiteral("cmdNext"));
        int turned = 0;
        for (; next->isEnabled(); ++turned) screens.act([&] { next->click(); });
        if (turned < Sample::most / 400) throw std::runtime_error("the report has too few pages");
        return;
    }
    throw std::runtime_error("the report does not stand");
}

void reports(Sample& sample, Screens& screens) {
    const std::string query =
        "SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
        "Orderinfo.upstracking,orderinfo.total FROM orderinfo,customer where orderinfo.custid = customer.custid order "
        "by "
        "orderinfo.orderno";
    auto raw = [&] { sample.raw.read(query); };
    auto shown = [&] { screens.act([&] { screens.reports.showEstimates(); }); };
    const double rawTime = medianOf(raw, [] {});
    const double opened = medianOf(shown, [&] { screens.act(QApplication::closeAllWindows); });
    print("estimates report, first page", {.least = rawTime + frame}, opened, rawTime);
    shown();
    constexpr double pagingLimit = 20;
    const double before = residentMiB();
    pageThrough("DataReport1", screens);
    print("memory after paging through all of it", {.least = pagingLimit}, residentMiB() - before, 0, "MiB");
    auto proposal = [&] { screens.act([&] { screens.reports.showProposal(Sample::largeOrder); }); };
    print("proposal of 1,000 lines, first page", {.least = frame}, medianOf(proposal, [] {}), 0);

    const ReportPages pages(estimatesLayout, DataEnvironment1(sample.access).estimates(), sample.host.shortDate());
    std::vector<std::vector<Placed>> placed;
    for (int number = 0; number < pages.pageCount(); ++number) placed.push_back(pages.page(number));
    const std::string file = sample.folder() + "/report.pdf";
    const double ours = medianOf([&] { writePdf(pages, file, [](int) { return true; }); }, [] {});
    const double bare = medianOf([&] { barePdf(placed); }, [] {});
    print("every estimate as PDF", {.ratio = 1.15}, ours, bare);
}

}  // namespace

void sheetAndReports(Sample& sample) {
    Screens screens(sample);
    itemSheet(sample, screens);
    reports(sample, screens);
}

}  // namespace torvane::bench
