// What the record of an estimate does that no screen asks of it, and what it refuses.

#include "support/record_test.h"

#include "estimates/cls_order.h"

namespace torvane {
namespace {

struct Screen : EstimateScreen {
    std::string mode;
    const std::string& estimateMode() const override { return mode; }
    void showEstimate() override {}
};

class EstimateRecordTest : public RecordTest {
protected:
    const std::string file = folder.useSample();
    Screen screen;
    ClsOrder order{access, screen};
};

TEST_F(EstimateRecordTest, OpeningTakesNullsButForTheCustomerAndTheDay) {
    folder.execute("insert into OrderInfo (OrderNo, CustId, OrderDate) values (12, 3, '2003-07-04')");
    order.OrderNo = 12;
    order.Amount = 5;
    order.SStreet2 = "before";
    order.GetOrder();
    EXPECT_EQ(order.SStreet2 + std::to_string(order.Amount), "0.000000");
    for (const auto& [column, number] : {std::pair{"CustId", 94}, std::pair{"OrderDate", 13}}) {
        folder.execute("update OrderInfo set CustId = 3, OrderDate = '2003-07-04'; update OrderInfo set " +
                       std::string(column) + " = null");
        EXPECT_EQ(numberOf([&] { order.GetOrder(); }), number) << column;
    }
}

TEST_F(EstimateRecordTest, AnUnknownNumberClearsTheRecordAndLeavesTheRecordsetOpen) {
    order.OrderNo = 999;
    order.CustId = 5;
    order.ColnOrderItems().Add(std::int64_t{1}, 1.0, 1.0, std::int64_t{1}, std::int64_t{1}, 0.0, 0.0, Null{});
    host.expectOk("Estimate not found corresponding to entered Estimate Number", "Search Estimate");
    order.GetOrder();
    EXPECT_EQ(order.OrderDate, host.now);
    EXPECT_EQ(order.CustId + order.ColnOrderItems().Count(), 0);
    long pages = 0;
    order.SearchFld = "OrderNo";
    EXPECT_EQ(numberOf([&] { order.GetSearchOrders(1, pages, "OrderNo", "A"); }), 5);
    order.GetNextOrderNo();
    EXPECT_TRUE(order.GetSearchOrders(1, pages, "OrderNo", "A").has_value());
}

TEST_F(EstimateRecordTest, Gateways) {
    folder.execute(
        "insert into Representatives values (1, 'Zoe'), (2, 'Abe'); insert into Ship values (1, 'Truck');"
        "insert into Tax values (3, 6.25), (4, null)");
    EXPECT_EQ(textOf((*order.GetComboRep())(1, 0)) + textOf((*order.GetComboShip())(1, 0)), "AbeTruck");
    for (const auto& [state, rate] : {std::pair<Value, double>{std::int64_t{3}, 6.25},
                                      {std::int64_t{4}, 0},
                                      {std::int64_t{99}, 0},
                                      {std::string{}, 0}})
        EXPECT_EQ(order.GetTaxRate(state), rate);
    long pages = 0;
    order.SearchFld = "All";
    order.SearchVal = "Alder";
    EXPECT_EQ(order.GetSearchCustomers(1, pages, "CustName", "A")->rows(), 1);
    EXPECT_GT(order.GetAllCustomers(1, pages, "CustName", "D")->rows(), 10);
}

TEST_F(EstimateRecordTest, LinesRefuseWhatDoesNotFit) {
    host.expectOk("No Estimate number found", "Estimate");
    EXPECT_FALSE(order.Validate());
    ColnOrderItems& lines = order.ColnOrderItems();
    const Value one{std::int64_t{1}};
    EXPECT_EQ(numberOf([&] { lines.Add(std::int64_t{32768}, 1.0, 1.0, one, one, 1.0, 1.0, 1.0); }), 6);
    EXPECT_EQ(numberOf([&] { lines.Add(one, Null{}, 1.0, one, one, 1.0, 1.0, 1.0); }), 94);
    EXPECT_EQ(numberOf([&] { lines.Add(one, 1.0, 1e39, one, one, 1.0, 1.0, 1.0); }), 6);
    EXPECT_EQ(lines.Count(), 0);
    for (const std::int64_t item : {1, 2}) lines.Add(item, 1.0, 1.0, one, one, 1.0, 1.0, Null{});
    lines.Remove(1);
    EXPECT_EQ(lines.Item(1).Item->itemid, 2);
    for (int outside : {0, 2}) EXPECT_EQ(numberOf([&] { lines.Item(outside); }), 9);
}

}  // namespace
}  // namespace torvane
