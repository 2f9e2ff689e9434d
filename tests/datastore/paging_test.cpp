#include <string>

#include "sample.h"

namespace torvane {
namespace {

class PagingTest : public StoreTest {
protected:
    void fill(int count) {
        raw(file, "delete from Units; with recursive n(i) as (select 1 union all select i+1 from n where i < " +
                      std::to_string(count) +
                      ") insert into Units select i, 'u' || (i % 3) from n where i <= " + std::to_string(count));
    }
    // "first row-last row pages rows", "empty", or "none" with the parameters.
    std::string page(Recordset& recordset, long Page, std::int16_t PageSize, std::string_view order = "Id",
                     std::string_view AscOrDesc = "A") {
        const auto read = recordset.readPage("Select Id,Name from Units", order, AscOrDesc, connection, Page, PageSize,
                                             PageCount, RecordCount);
        return told(read);
    }
    std::string all(Recordset& recordset) {
        return told(recordset.readAll("Select Id,Name from Units", "Id", "A", connection, PageCount, RecordCount));
    }
    std::string told(const std::optional<RowArray>& read) const {
        const std::string counts = " " + std::to_string(PageCount) + "/" + std::to_string(RecordCount);
        if (!read) return "none" + counts;
        if (read->rows() == 0) return "empty" + counts;
        return textOf((*read)(0, 0)) + "-" + textOf((*read)(0, read->rows() - 1)) + counts;
    }

    long PageCount = -7;
    std::int16_t RecordCount = -7;
};

TEST_F(PagingTest, PagesFollowThePageSizeOfTheReadBefore) {
    fill(40);
    Recordset recordset;
    EXPECT_EQ(page(recordset, 2, 15), "11-25 3/40");  // the first read positions by 10
    EXPECT_EQ(page(recordset, 1, 15), "1-15 3/40");
    EXPECT_EQ(page(recordset, 2, 15), "16-30 3/40");
    EXPECT_EQ(page(recordset, 3, 15), "31-40 3/40");
    EXPECT_EQ(page(recordset, 4, 15), "empty 3/40");
    EXPECT_EQ(page(recordset, std::numeric_limits<long>::max(), 15), "empty 3/40");
    EXPECT_EQ(page(recordset, 2, 20), "16-35 2/40");
    EXPECT_EQ(page(recordset, 2, 20), "21-40 2/40");
    EXPECT_EQ(page(recordset, 1, 20, "Id", "D"), "40-21 2/40");
    EXPECT_EQ(recordset.state(), 0);
    recordset.open("Select * from Units", connection);
    EXPECT_THROW(page(recordset, 1, 20), RuntimeFailure);
    recordset.close();
    EXPECT_EQ(page(recordset, 2, 20), "21-40 2/40");
}

TEST_F(PagingTest, ReadsWithoutRowsOrWithABadPageLeaveEverything) {
    Recordset recordset;
    fill(0);
    EXPECT_EQ(page(recordset, 1, 15), "none -7/-7");
    EXPECT_EQ(page(recordset, 0, 15), "none -7/-7");
    EXPECT_EQ(all(recordset), "none -7/-7");
    fill(40);
    EXPECT_EQ(failureOf([&] { page(recordset, 0, 15); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { page(recordset, -1, 15); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { page(recordset, 1, 0); }), static_cast<int>(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { page(recordset, 1, 15, "Nothing"); }), SQLITE_ERROR);
    EXPECT_EQ(told(std::nullopt), "none -7/-7");
    EXPECT_EQ(page(recordset, 2, 15), "11-25 3/40");  // still the first read of the instance
}

TEST_F(PagingTest, ReadingAllKeepsThePageSize) {
    fill(40);
    Recordset recordset;
    EXPECT_EQ(all(recordset), "1-40 4/40");
    EXPECT_EQ(page(recordset, 2, 15), "11-25 3/40");
    EXPECT_EQ(all(recordset), "1-40 3/40");
}

TEST_F(PagingTest, TiesKeepOneOrderOverAllPages) {
    fill(40);
    raw(file, "create index UnitsByName on Units (Name)");  // read backwards, it turns the rows of a tie round
    constexpr std::int16_t PageSize = 5;
    for (const char* direction : {"A", "D"}) {
        const auto whole = [&] {
            Recordset recordset;
            return dump(
                recordset.readAll("Select Id,Name from Units", "Name", direction, connection, PageCount, RecordCount));
        }();
        std::string joined;
        Recordset recordset;
        page(recordset, 1, PageSize);
        for (long n = 1; n <= 8; ++n) {
            const auto read = recordset.readPage("Select Id,Name from Units", "Name", direction, connection, n,
                                                 PageSize, PageCount, RecordCount);
            joined += dump(read);
        }
        EXPECT_EQ(joined, whole);
        EXPECT_TRUE(whole.starts_with(*direction == 'A' ? "3|u0;6|u0;" : "2|u2;5|u2;")) << whole;
    }
}

TEST_F(PagingTest, CountsBeyond16BitsOverflow) {
    fill(32767);
    Recordset recordset;
    EXPECT_EQ(page(recordset, 2, 15), "11-25 2185/32767");
    raw(file, "insert into Units values (0, 'one more')");
    EXPECT_EQ(failureOf([&] { page(recordset, 1, 15); }), static_cast<int>(Failure::Overflow));
    EXPECT_EQ(failureOf([&] { all(recordset); }), static_cast<int>(Failure::Overflow));
}

}  // namespace
}  // namespace torvane
