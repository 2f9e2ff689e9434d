#include <limits>
#include <string>

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
        raw(file, "delete from Units; with recursive n(i) as (select 1 union all select i+1 from n where i < " +
                      std::to_string(count) +
                      ") insert into Units select i, 'u' || (i % 3) from n where i <= " + std::to_string(count));
    }
    // "first row-last row pages rows", "empty", or "none" with the parameters.
    std::string page(List& list, long Page, std::int16_t PageSize, std::string_view order = "Id",
                     std::string_view AscOrDesc = "A") {
        list.PageSize = PageSize;
        const auto read = list.readPage(units, Page, PageCount, order, AscOrDesc);
        return told(list, read);
    }
    std::string all(List& list) {
        const auto read = list.readPageOrAll(units, -1, PageCount, "Id", "A");
        return told(list, read);
    }
    std::string told(const List& list, const std::optional<RowArray>& read) const {
        const std::string counts = " " + std::to_string(PageCount) + "/" + std::to_string(list.RecordCount);
        if (!read) return "none" + counts;
        if (read->rows() == 0) return "empty" + counts;
        return textOf((*read)(0, 0)) + "-" + textOf((*read)(0, read->rows() - 1)) + counts;
    }

    static constexpr std::string_view units = "Select Id,Name from Units";
    long PageCount = -7;
};

TEST_F(PagingTest, PagesFollowThePageSizeOfTheReadBefore) {
    fill(40);
    List list(access);
    EXPECT_EQ(page(list, 2, 15), "11-25 3/40");  // the first read positions by 10
    EXPECT_EQ(page(list, 1, 15), "1-15 3/40");
    EXPECT_EQ(page(list, 2, 15), "16-30 3/40");
    EXPECT_EQ(page(list, 3, 15), "31-40 3/40");
    EXPECT_EQ(page(list, 4, 15), "empty 3/40");
    EXPECT_EQ(page(list, std::numeric_limits<long>::max(), 15), "empty 3/40");
    EXPECT_EQ(page(list, 2, 20), "16-35 2/40");
    EXPECT_EQ(page(list, 2, 20), "21-40 2/40");
    EXPECT_EQ(page(list, 1, 20, "Id", "D"), "40-21 2/40");
}

TEST_F(PagingTest, ReadsWithoutRowsOrWithABadPageLeaveEverything) {
    List list(access);
    fill(0);
    EXPECT_EQ(page(list, 1, 15), "none -7/-7");
    EXPECT_EQ(page(list, 0, 15), "none -7/-7");
    EXPECT_EQ(all(list), "none -7/-7");
    fill(40);
    EXPECT_EQ(failureOf([&] { page(list, 0, 15); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { page(list, -1, 15); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { page(list, 1, 0); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { page(list, 1, 15, "Nothing"); }), SQLITE_ERROR);
    EXPECT_EQ(told(list, std::nullopt), "none -7/-7");
    EXPECT_EQ(page(list, 2, 15), "11-25 3/40");  // still the first read of the instance
}

TEST_F(PagingTest, ReadingAllKeepsThePageSize) {
    fill(40);
    List list(access);
    EXPECT_EQ(all(list), "1-40 4/40");
    EXPECT_EQ(page(list, 2, 15), "11-25 3/40");
    EXPECT_EQ(all(list), "1-40 3/40");
}

TEST_F(PagingTest, TiesKeepOneOrderOverAllPages) {
    fill(40);
    raw(file, "create index UnitsByName on Units (Name)");  // read backwards, it turns the rows of a tie round
    constexpr std::int16_t PageSize = 5;
    for (const char* direction : {"A", "D"}) {
        List list(access);
        const std::string whole = dump(*list.readPageOrAll(units, -1, PageCount, "Name", direction));
        std::string joined;
        page(list, 1, PageSize);
        for (long n = 1; n <= 8; ++n) joined += dump(*list.readPage(units, n, PageCount, "Name", direction));
        EXPECT_EQ(joined, whole);
        EXPECT_TRUE(whole.starts_with(*direction == 'A' ? "3|u0;6|u0;" : "2|u2;5|u2;")) << whole;
    }
}

TEST_F(PagingTest, CountsBeyond16BitsOverflow) {
    fill(32767);
    List list(access);
    EXPECT_EQ(page(list, 2, 15), "11-25 2185/32767");
    raw(file, "insert into Units values (0, 'one more')");
    EXPECT_EQ(failureOf([&] { page(list, 1, 15); }), static_cast<int>(Failure::Overflow));
    EXPECT_EQ(failureOf([&] { all(list); }), static_cast<int>(Failure::Overflow));
}

}  // namespace
}  // namespace torvane
