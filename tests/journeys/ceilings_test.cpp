// The program at the most that its 16-bit keys and counts hold.

#include "journeys/journey.h"

namespace torvane {
namespace {

// Scattered by prime factors, so that no list is sorted by chance.
constexpr std::string_view business = R"sql(
begin;
create temp table Number (n integer primary key);
with recursive a(n) as (select 1 union all select n + 1 from a where n < 32767) insert into Number select n from a;
delete from Item; delete from Category; delete from Customer; delete from OrderInfo; delete from OrderItem;
insert into Category select n, 'Category ' || (n * 7919 % 32768), case when n > 50 then n % 50 + 1 end from Number;
insert into Item select n, n * 7919 % 32768, 'Item ' || (n * 104729 % 32768), n % 500 + 1, n % 2 + 1, n / 8.0, n % 5, 0, 0,
    n % 12 + 1, '' from Number;
insert into Customer (CustId, CustName, BState) select n, 'Customer ' || (n * 7919 % 32768), 1 from Number;
insert into OrderInfo (OrderNo, CustId, RepId, OrderDate, SState, ShipId, Amount, Tax, Total, Overhead)
    select n, n, 0, '2003-07-04', 1, 0, n, 5, n, 10 from Number;
insert into OrderItem select 32767, n * 31 % 32767 + 1, n % 9 + 1, n / 4.0, n % 3 + 1, n % 2 + 1, n % 7, n * 1.25, n / 8.0
    from Number where n <= 1000;
commit;
)sql";

TEST_F(JourneyTest, AFullBusinessIsReadAndSaved) {
    data.execute(business);
    host.rowsPerPage = 4096;
    start();
    for (const auto& [entry, name] : {std::pair{"SubMnuEditCat", "frmCategory"},
                                      {"SubMnuEditItem", "frmItem"},
                                      {"SubMnuEditCust", "frmCustomer"},
                                      {"mnuEditEstimate", "frmOrders"}}) {
        SCOPED_TRACE(name);
        choose(entry);
        QWidget& window = *standing(name);
        for (int page = 1; page < 8; ++page) click(window, "CmdNext");
        EXPECT_EQ(text(window, "LblRecords"), "Record 28673 - 32767 of 32767");
        EXPECT_EQ(enabled(window, {"CmdPrev", "CmdNext"}), "CmdPrev");
        closeBox(window);
    }
    const char* sums =
        "select count(*), count(distinct ItemId), sum(Qty), sum(Material), sum(Labor) from OrderItem where OrderNo = 32767";
    const std::string before = data.cell(sums);
    QWidget& order = openEstimate("E", 32767);
    EXPECT_EQ(find<DropList>(order, "cmbItems").ListCount(), 32767);
    EXPECT_EQ(list(order).RowCount(), 1000);
    go(order, "CmdSave", {ok("Estimate Saved")});
    EXPECT_EQ(data.cell(sums), before);
}

}  // namespace
}  // namespace torvane
