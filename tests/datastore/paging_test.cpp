#include <limits>

#include "datastore/data_class.h"
#include "sample.h"

namespace torvane {
namespace {

struct List : DataClass {
    explicit List(const DataAccess& access) : DataClass(access) { RecordCount = -7; }
    using DataClass::readPage;
    using DataClass::readPageOrAll;
};

class PagingTest : public StoreTest {
protected:
    void fill(int count) {
        const std::string upTo = std::to_string(count);
        folder.execute("delete from Units; with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
                       upTo + ") insert into Units select i, 'u' || (i % 3) from n where i <= " + upTo);
    }
    // "first row-last row pages/rows", or "none" with what was left untouched; -1 is every row.
    std::string page(long Page, std::int16_t PageSize = 15, std::string_view AscOrDesc = "A") {
        list.PageSize = PageSize;
        const auto read = list.readPageOrAll(units, Page, PageCount, "Id", AscOrDesc);
        const std::string counts = " " + std::to_string(PageCount) + "/" + std::to_string(list.RecordCount);
        if (!read || read->empty()) return "none" + counts;
        return textOf((*read)(0, 0)) + "-" + textOf((*read)(0, read->rows() - 1)) + counts;
    }

    static constexpr std::string_view units = "Select Id,Name from Units";
    List list{access};
    long PageCount = -7;
};

TEST_F(PagingTest, PagesFollowThePageSizeOfTheReadBefore) {
    fill(0);
    for (long none : {1, 0, -1}) EXPECT_EQ(page(none), "none -7/-7");
    fill(40);
    for (const auto& [bad, size] : {std::pair{0, 15}, {-2, 15}, {1, 0}})
        EXPECT_EQ(numberOf([&, at = bad, rows = size] { page(at, static_cast<std::int16_t>(rows)); }), 5);
    const std::pair<std::string, const char*> reads[] = {
        {page(-1), "1-40 4/40"},
        {page(2), "11-25 3/40"},  // the first read of an instance positions by 10
        {page(2), "16-30 3/40"},
        {page(-1), "1-40 3/40"},
        {page(3), "31-40 3/40"},
        {page(4), "none 3/40"},
        {page(std::numeric_limits<long>::max()), "none 3/40"},
        {page(2, 20), "16-35 2/40"},
        {page(2, 20, "D"), "20-1 2/40"},
    };
    for (const auto& [found, expected] : reads) EXPECT_EQ(found, expected);
}

TEST_F(PagingTest, TiesKeepOneOrderOverAllPages) {
    fill(40);
    folder.execute("create index UnitsByName on Units (Name)");  // read backwards, it turns the rows of a tie round
    for (const auto& [direction, first] : {std::pair{"A", "3|u0;6|u0;"}, {"D", "2|u2;5|u2;"}}) {
        const std::string whole = dump(*list.readPageOrAll(units, -1, PageCount, "Name", direction));
        std::string pages;
        page(1, 5);
        for (long n = 1; n <= 8; ++n) pages += dump(*list.readPage(units, n, PageCount, "Name", direction));
        EXPECT_EQ(pages, whole);
        EXPECT_TRUE(whole.starts_with(first)) << whole;
    }
}

TEST_F(PagingTest, CountsBeyond16BitsOverflow) {
    fill(32767);
    EXPECT_EQ(page(1), "1-15 2185/32767");
    folder.execute("insert into Units values (0, 'one more')");
    for (long n : {1, -1}) EXPECT_EQ(numberOf([&] { page(n); }), 6);
}

}  // namespace
}  // namespace torvane
