#include <array>
#include <iterator>
#include <sstream>

#include "reports/data_environment.h"
#include "reports/dump.h"
#include "support/record_test.h"

namespace torvane {
namespace {

ReportRows lines(int count) {
    std::istringstream columns(
        "orderinfo.OrderNo CustName OrderDate SStreet1 SStreet2 SCity SState SZip SCountry Room Qty Unit Item Material "
        "Labor Extension Others totitem Amount Tax taxtot Overhead ohtot Total");
    const std::vector<std::string> names{std::istream_iterator<std::string>(columns), {}};
    std::vector<Value> cells;
    for (int row = 0; row < count; ++row)
        for (std::size_t column = 0; column < names.size(); ++column)
            cells.emplace_back(column == 0 ? std::int64_t{1} : std::int64_t{7});
    return ReportRows(RowArray(names, cells), std::array{std::string_view("ORDERINFO.orderno")});
}

TEST(ProposalPages, BandsNeverSplit) {
    struct Row {
        int lines;
        int pages;
        int onLastPage;  // placed things
    };
    constexpr int header = 1 + 22;
    constexpr int perLine = 9;
    constexpr int footer = 14;
    for (const Row& row : {Row{0, 1, 1}, Row{25, 1, header + 25 * perLine + footer}, Row{26, 2, footer},
                           Row{32, 2, perLine + footer}, Row{70, 3, footer}}) {
        SCOPED_TRACE(row.lines);
        const ReportPages pages(proposalLayout, lines(row.lines), {});
        EXPECT_EQ(row.pages, pages.pageCount());
        EXPECT_EQ(row.onLastPage, static_cast<int>(pages.page(pages.pageCount() - 1).size()));
    }
}

TEST(ProposalPages, OneGroupPerDistinctParentInOrderOfAppearance) {
    const ReportRows rows(RowArray({"no", "line"}, {std::int64_t{2}, std::string{"a"}, std::int64_t{1},
                                                    std::string{"b"}, std::int64_t{2}, std::string{"c"}}),
                          std::array{std::string_view("NO")});
    ASSERT_EQ(2U, rows.groups().size());
    EXPECT_EQ((std::vector<int>{0, 2}), rows.groups()[0]);
    EXPECT_EQ((std::vector<int>{1}), rows.groups()[1]);
    EXPECT_THROW(rows.cell("nothing", 0), RuntimeFailure);
}

class ProposalTest : public RecordTest {
protected:
    ProposalTest() { folder.useSample(); }
    ReportPages proposal(std::int32_t OrderNo) {
        DataEnvironment1 data(access);
        return {proposalLayout, data.proposal(OrderNo), host.style};
    }
};

TEST_F(ProposalTest, ShowsWhatTheDatabaseHolds) {
    EXPECT_EQ(kept("proposal.txt"), dump(proposal(3)));
    folder.execute(
        "update OrderInfo set Amount = 333.33, Tax = 8.25, OrderDate = '2003-07-04', SStreet1 = 'a' || "
        "char(13) || char(10) || 'b' || char(9) || 'c' where OrderNo = 3;"
        "update OrderItem set Labor = 2.675, Qty = 2.5 where rowid = (select min(rowid) from OrderItem where OrderNo = 3)");
    host.style.pattern = "dd.MM.yyyy";
    const std::string text = dump(proposal(3));
    for (const char* part : {"right 333.33\n", "right 27.49972", "left 04.07.2003\n", "left 2.5\n", "left a b c\n"})
        EXPECT_NE(std::string::npos, text.find(part)) << part;
    // A line goes with its item, the estimate with its customer.
    folder.execute("delete from Item where ItemId = (select min(ItemId) from OrderItem where OrderNo = 3)");
    const std::string less = dump(proposal(3));
    EXPECT_LT(less.size(), text.size());
    EXPECT_NE(std::string::npos, less.find("right 333.33\n"));
    folder.execute("delete from Customer");
    EXPECT_EQ(1U, proposal(3).page(0).size());
}

}  // namespace
}  // namespace torvane
