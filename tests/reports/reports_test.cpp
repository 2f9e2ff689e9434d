// The reports as text, a line per placed thing: page, left, top, width, height, face, alignment, text.

#include <array>
#include <sstream>

#include "reports/data_environment.h"
#include "reports/report_html.h"
#include "reports/report_pages.h"
#include "support/files.h"
#include "support/record_test.h"

namespace torvane {
namespace {

std::string dump(const ReportPages& pages) {
    constexpr const char* faces[] = {" plain", " bold", " title"};
    std::ostringstream text;
    for (int number = 0; number < pages.pageCount(); ++number) {
        for (const auto& [field, words, whole] : pages.page(number)) {
            text << number + 1 << ' ' << field.left << ' ' << field.top << ' ' << field.width << ' ' << field.height;
            if (field.kind == ReportControl::Line)
                text << " line\n";
            else
                text << faces[static_cast<int>(field.face)] << (field.align == Align::Right ? " right " : " left ")
                     << words << '\n';
        }
    }
    return text.str();
}

// A dump that is kept. It is renewed by taking over what its test prints.
std::string kept(const char* name) {
    return bytes(std::string(TORVANE_KEPT "/") + name);
}

class ReportsTest : public RecordTest {
protected:
    ReportsTest() { folder.useSample(); }
    std::string proposal(std::int32_t OrderNo) {
        return dump(ReportPages(proposalLayout, DataEnvironment1(access).proposal(OrderNo), host.style));
    }
};

TEST_F(ReportsTest, OfTheSampleBusiness) {
    DataEnvironment1 data(access);
    EXPECT_EQ(kept("estimates.txt"), dump(ReportPages(estimatesLayout, data.estimates(), host.style)));
    EXPECT_EQ(kept("customers.txt"), dump(ReportPages(customersLayout, data.customers(), host.style)));
    EXPECT_EQ(kept("proposal.txt"), proposal(3));
}

TEST_F(ReportsTest, TheProposalWritesNumbersDatesAndTextsOut) {
    folder.execute(
        "update OrderInfo set Amount = 333.33, Tax = 8.25, OrderDate = '2003-07-04', SStreet1 = 'a' || "
        "char(13) || char(10) || 'b' || char(9) || 'c' where OrderNo = 3;"
        "update OrderItem set Qty = 2.5 where rowid = (select min(rowid) from OrderItem where OrderNo = 3)");
    host.style.pattern = "dd.MM.yyyy";
    const std::string text = proposal(3);
    for (const char* part : {"right 333.33\n", "right 27.49972", "left 04.07.2003\n", "left 2.5\n", "left a b c\n"})
        EXPECT_NE(std::string::npos, text.find(part)) << part << " is not in\n" << text;
    folder.execute("delete from Item where ItemId = (select min(ItemId) from OrderItem where OrderNo = 3)");
    EXPECT_LT(proposal(3).size(), text.size()) << "a line goes with its item";
}

// A line of the estimate that stood half on one page and half on the next could not be read.
TEST_F(ReportsTest, BandsOfTheProposalNeverSplit) {
    for (const auto& [lines, pages, last] :
         {std::array{25, 1, 1 + 22 + 25 * 9 + 14}, {26, 2, 14}, {32, 2, 9 + 14}, {70, 3, 14}}) {
        SCOPED_TRACE(lines);
        folder.execute(
            "delete from OrderItem; with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
            std::to_string(lines) +
            ") insert into OrderItem select 3, ItemId, 1, 1, Rooms.Id, Units.Id, 1, 1, 1 from n, "
            "(select min(ItemId) ItemId from Item), (select min(Id) Id from Rooms) Rooms, "
            "(select min(Id) Id from Units) Units");
        const ReportPages report(proposalLayout, DataEnvironment1(access).proposal(3), {});
        EXPECT_EQ(report.pageCount(), pages);
        EXPECT_EQ(report.page(pages - 1).size(), static_cast<std::size_t>(last)) << "placed things on the last page";
    }
}

TEST(ReportHtml, SaysTextsAsTheyAreAndMakesLongNumbersNarrower) {
    const ReportField field{"", ReportControl::Text, "", 144, 0, 576, 240, Align::Right};
    const std::string html = htmlPage({{field, "2 < 3 & \"so\""}, {field, "-1,234.10", true}});
    for (const char* part : {"<div class=\"plain right\" style=\"left:7.2pt;", ">2 &lt; 3 &amp; \"so\"</div>",
                             "><span style=\"margin-left:2pt;transform:scaleX(0.76"})
        EXPECT_NE(std::string::npos, html.find(part)) << part << " is not in " << html;
}

}  // namespace
}  // namespace torvane
