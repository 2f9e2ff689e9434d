#include "support/record_test.h"
#include "estimates/cls_order.h"

namespace torvane {
namespace {

struct Screen : EstimateScreen {
    std::string mode;
    int shown = 0;
    const std::string& estimateMode() const override { return mode; }
    void showEstimate() override { ++shown; }
};

class EstimateRecordTest : public RecordTest {
protected:
    EstimateRecordTest() { folder.useEmpty(); }

    void fill(ClsOrder& order) {
        order.OrderNo = 12;
        order.CustId = 3;
        order.OrderDate = {2003, 7, 4};
        order.SStreet1 = "s1";
        order.SStreet2 = "s2";
        order.SCity = "c";
        order.SState = 5;
        order.SZip = "z";
        order.SCountry = "l";
        order.SPhone = "p";
        order.SMobile = "m";
        order.SEmail = "e";
        order.UPSTracking = "t";
        order.Notes = "n";
        order.Amount = 12345678.5F;
        order.Tax = 8.25F;
        order.Overhead = 10;
        order.Total = 123456.78F;
    }
    static void addLine(ClsOrder& order, std::int64_t item, double quantity, double material) {
        order.ColnOrderItems().Add(item, quantity, material, Value{std::int64_t{1}}, Value{std::int64_t{2}}, 0.5, 1.5,
                                   Null{});
    }

    Screen screen;
};

TEST_F(EstimateRecordTest, Validation) {
    ClsOrder order(environment, screen);
    const auto refusedWith = [&](const char* text) {
        host.expectOk(text, "Estimate");
        EXPECT_FALSE(order.Validate());
    };
    refusedWith("No Estimate number found");
    order.OrderNo = 1;
    refusedWith("Select Customer ");
    order.CustId = 1;
    refusedWith("No Items Selected");
    addLine(order, 1, 1, 1);
    EXPECT_TRUE(order.Validate());
}

TEST_F(EstimateRecordTest, StatementsWordForWord) {
    ClsOrder order(environment, screen);
    fill(order);
    order.SCity = "O'Fallon";
    screen.mode = "A";
    EXPECT_EQ(
        "Insert into OrderInfo (Orderno,CustId,RepId,OrderDate,SStreet1,SStreet2,SCity,SState,SZip,SCountry,SPhone,"
        "SMobile,SEmail,ShipId,Amount,Tax,Total,UPSTracking,Notes,Overhead) values (12,3,0,#7/4/2003#,'s1','s2',"
        "'O'Fallon',5,'z','l','p','m','e',0,1.234568E+07,8.25,123456.8,'t','n',10)",
        refusedBy([&] { order.Save(); }));
    screen.mode = "E";
    EXPECT_EQ(
        "Update OrderInfo Set CustId = 3, RepId = 0, OrderDate = #7/4/2003#, SStreet1 = 's1', SStreet2 = 's2', "
        "SCity = 'O'Fallon', SState = 5, SZip = 'z', SCountry = 'l', SPhone = 'p', SMobile = 'm', SEmail = 'e', "
        "ShipId = 0, Amount = 1.234568E+07, Tax = 8.25, Overhead = 10, Total = 123456.8, UPSTracking='t', "
        "Notes='n' where OrderNo=12",
        refusedBy([&] { order.Save(); }));
}

TEST_F(EstimateRecordTest, SaveByMode) {
    ClsOrder order(environment, screen);
    fill(order);
    addLine(order, 7, 2.5, 25);
    addLine(order, 8, 1, 3);
    screen.mode = "D";
    EXPECT_FALSE(order.Save());
    EXPECT_EQ("0", folder.cell("select count(*) from OrderInfo"));
    screen.mode = "A";
    EXPECT_FALSE(order.Save());
    EXPECT_EQ("12|3|2003-07-04|12345680.0|8.25|123456.8|10.0",
              folder.cell("select OrderNo, CustId, OrderDate, Amount, Tax, Total, Overhead from OrderInfo"));
    const std::vector<std::string> lines{"7|2.5|25.0|1|2|0.5|1.5|0.0", "8|1.0|3.0|1|2|0.5|1.5|0.0"};
    EXPECT_EQ(lines,
              folder.rows("select ItemId, Qty, Material, RoomId, UnitId, Extension, Labor, Others from OrderItem "
                          "where OrderNo = 12 order by rowid"));
    // The same number again is refused by the engine, and nothing of the second save remains.
    EXPECT_NE(0, numberOf([&] { order.Save(); }));
    EXPECT_EQ("2", folder.cell("select count(*) from OrderItem"));
    // An edit replaces all lines.
    screen.mode = "E";
    order.ColnOrderItems().Remove(1);
    order.Save();
    EXPECT_EQ("8", folder.cell("select ItemId from OrderItem"));
}

TEST_F(EstimateRecordTest, AFailingSaveLeavesWhatWentBefore) {
    ClsOrder order(environment, screen);
    fill(order);
    addLine(order, 7, 1, 1);
    screen.mode = "A";
    order.Save();
    order.Notes = "the client's";
    screen.mode = "E";
    EXPECT_NE(0, numberOf([&] { order.Save(); }));
    EXPECT_EQ("n|0", folder.cell("select Notes, (select count(*) from OrderItem) from OrderInfo"));
}

TEST_F(EstimateRecordTest, OpeningReadsWhatWasSaved) {
    ClsOrder order(environment, screen);
    fill(order);
    addLine(order, 7, 2.5, 25);
    screen.mode = "A";
    order.Save();
    folder.execute("update OrderInfo set RepId = null, SStreet2 = null, Amount = null");
    ClsOrder again(environment, screen);
    again.OrderNo = 12;
    again.GetOrder();
    EXPECT_EQ(1, screen.shown);
    EXPECT_EQ(3, again.CustId);
    EXPECT_EQ("", again.SStreet2);
    EXPECT_EQ(0, again.Amount);
    EXPECT_EQ((Date{2003, 7, 4}), again.OrderDate);
    ASSERT_EQ(1, again.ColnOrderItems().Count());
    EXPECT_EQ(2.5F, again.ColnOrderItems().Item(1).mvarQty);
    EXPECT_EQ(7, again.ColnOrderItems().Item(1).Item->itemid);
    for (const auto& [column, number] : {std::pair{"CustId", 94}, std::pair{"OrderDate", 13}}) {
        SCOPED_TRACE(column);
        folder.execute("update OrderInfo set " + std::string(column) + " = null");
        EXPECT_EQ(number, numberOf([&] { again.GetOrder(); }));
        folder.execute("update OrderInfo set CustId = 3, OrderDate = '2003-07-04'");
    }
}

TEST_F(EstimateRecordTest, AnUnknownNumberClearsTheRecordAndLeavesTheRecordsetOpen) {
    ClsOrder order(environment, screen);
    fill(order);
    addLine(order, 7, 1, 1);
    host.expectOk("Estimate not found corresponding to entered Estimate Number", "Search Estimate");
    order.GetOrder();
    EXPECT_EQ(0, screen.shown);
    EXPECT_EQ(12, order.OrderNo);
    EXPECT_EQ(0, order.CustId);
    EXPECT_EQ(host.now, order.OrderDate);
    EXPECT_EQ(0, order.ColnOrderItems().Count());
    long pages = 0;
    order.SearchFld = "OrderNo";
    EXPECT_EQ(5, numberOf([&] { order.GetSearchOrders(1, pages, "OrderNo", "A"); }));
    EXPECT_EQ(1, order.GetNextOrderNo());
    EXPECT_FALSE(order.GetSearchOrders(1, pages, "OrderNo", "A").has_value());
}

TEST_F(EstimateRecordTest, DeletingNeedsItsFlag) {
    folder.useSample();
    ClsOrder order(environment, screen);
    order.OrderNo = 1;
    order.Delete();
    EXPECT_EQ("1", folder.cell("select count(*) from OrderInfo where OrderNo = 1"));
    order.AddEditDel = "D";
    order.Delete();
    EXPECT_EQ("0|0", folder.cell("select (select count(*) from OrderInfo where OrderNo = 1), (select count(*) from "
                                 "OrderItem where OrderNo = 1)"));
}

TEST_F(EstimateRecordTest, SearchKeepsEstimatesWithoutTheirCustomer) {
    folder.useSample();
    folder.execute("delete from Customer where CustId = (select CustId from OrderInfo where OrderNo = 2)");
    ClsOrder order(environment, screen);
    order.SearchFld = "Orderinfo.OrderNo";
    order.SearchVal = "2";
    long pages = 0;
    const auto rows = order.GetSearchOrders(1, pages, "Orderno", "A");
    ASSERT_TRUE(rows);
    EXPECT_EQ("2", textOf((*rows)(0, 0)));
    EXPECT_TRUE(isNull((*rows)(2, 0)));
}

TEST_F(EstimateRecordTest, Gateways) {
    folder.useSample();
    folder.execute(
        "insert into Representatives values (1, 'Zoe'), (2, 'Abe'); insert into Ship values (1, 'Truck');"
        "insert into Tax values (3, 6.25), (4, null)");
    ClsOrder order(environment, screen);
    EXPECT_EQ("Abe", textOf((*order.GetComboRep())(1, 0)));
    EXPECT_EQ("Truck", textOf((*order.GetComboShip())(1, 0)));
    EXPECT_EQ(6.25, order.GetTaxRate(std::int64_t{3}));
    EXPECT_EQ(0, order.GetTaxRate(std::int64_t{4}));
    EXPECT_EQ(0, order.GetTaxRate(std::int64_t{99}));
    EXPECT_EQ(0, order.GetTaxRate(std::string{}));
    long pages = 0;
    order.SearchFld = "All";
    order.SearchVal = "Alder";
    EXPECT_EQ(1, order.GetSearchCustomers(1, pages, "CustName", "A")->rows());
    EXPECT_EQ(folder.cell("select count(*) from Customer"),
              std::to_string(order.GetAllCustomers(1, pages, "CustName", "D")->rows()));
    EXPECT_EQ(7, order.GetComboItems()->columns());
    EXPECT_EQ(std::to_string(order.GetNextOrderNo()), folder.cell("select max(OrderNo) + 1 from OrderInfo"));
}

TEST_F(EstimateRecordTest, LinesRefuseWhatDoesNotFit) {
    ColnOrderItems lines(environment);
    EXPECT_EQ(0, lines.Count());
    const Value one{std::int64_t{1}};
    const Value large{std::int64_t{32768}};
    EXPECT_EQ(6, numberOf([&] { lines.Add(large, 1.0, 1.0, one, one, 1.0, 1.0, 1.0); }));
    EXPECT_EQ(94, numberOf([&] { lines.Add(one, Null{}, 1.0, one, one, 1.0, 1.0, 1.0); }));
    EXPECT_EQ(6, numberOf([&] { lines.Add(one, 1.0, 1e39, one, one, 1.0, 1.0, 1.0); }));
    EXPECT_EQ(0, lines.Count());
    for (const std::int64_t item : {1, 2, 3}) lines.Add(item, 1.0, 1.0, one, one, 1.0, 1.0, Null{});
    EXPECT_EQ(0, lines.Item(1).mvarOthers);
    lines.Remove(1);
    EXPECT_EQ(2, lines.Item(1).Item->itemid);
    EXPECT_EQ(9, numberOf([&] { lines.Item(3); }));
    EXPECT_EQ(9, numberOf([&] { lines.Remove(0); }));
}

}  // namespace
}  // namespace torvane
