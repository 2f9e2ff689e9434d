#include "reports/data_environment.h"
#include "reports/dump.h"
#include "reports/report_html.h"
#include "support/record_test.h"

namespace torvane {
namespace {

TEST(ListReports, HtmlSaysTextsAsTheyAre) {
    const ReportField field{"", ReportControl::Text, "", 144, 0, 576, 240, Align::Right};
    const Placed placed{field, "2 < 3 & \"so\""};
    const Placed number{field, "-1,234.10", true};
    const std::string html = htmlPage({placed, number});
    EXPECT_NE(std::string::npos, html.find("<div class=\"plain right\" style=\"left:7.2pt;"));
    EXPECT_NE(std::string::npos, html.find(">2 &lt; 3 &amp; \"so\"</div>"));
    EXPECT_NE(std::string::npos, html.find("><span style=\"margin-left:2pt;transform:scaleX(0.76")) << html;
}

class ListReportsTest : public RecordTest {
protected:
    ListReportsTest() { folder.useSample(); }
    std::string estimates(const Date& from, const Date& to) {
        return dump(ReportPages(estimatesLayout, DataEnvironment1(access).estimates(from, to), host.style));
    }
};

TEST_F(ListReportsTest, OfTheSampleBusiness) {
    DataEnvironment1 data(access);
    EXPECT_EQ(kept("estimates.txt"), dump(ReportPages(estimatesLayout, data.estimates(), host.style)));
    EXPECT_EQ(kept("customers.txt"), dump(ReportPages(customersLayout, data.customers(), host.style)));
}

TEST_F(ListReportsTest, DatesBoundTheEstimatesAndTheirSum) {
    folder.execute("update OrderInfo set Total = 250000.1 where OrderDate = '2004-03-15'");
    const auto has = [](const std::string& report, const char* text) { return report.find(text) != std::string::npos; };
    const std::string march = estimates({2004, 3, 1}, {2004, 3, 15});
    EXPECT_TRUE(has(march, "left 3/15/2004\n"));
    EXPECT_TRUE(has(march, "bold right 250000.10\n"));
    EXPECT_TRUE(has(estimates({2004, 3, 16}, {2004, 3, 15}), "bold right 0.00\n"));
    // A customer that has gone takes its estimates along.
    folder.execute("delete from Customer where CustId = (select CustId from OrderInfo where OrderDate = '2004-03-15')");
    EXPECT_TRUE(has(estimates({2004, 3, 1}, {2004, 3, 15}), "bold right 0.00\n"));
}

TEST_F(ListReportsTest, TheMachinesOwnDatesReachTheStatement) {
    for (const char* pattern : {"yyyy-MM-dd", "d MMM yyyy", "M/d/yy", "dddd"}) {
        SCOPED_TRACE(pattern);
        host.style.pattern = pattern;
        DataEnvironment1 data(access);
        const bool readable = std::string_view(pattern) != "dddd";
        EXPECT_EQ(readable ? 1U : 0U, data.estimates({2004, 3, 15}, {2004, 3, 15}).groups().size());
    }
}

}  // namespace
}  // namespace torvane
