#include "support/record_test.h"
#include "estimates/cls_order.h"
#include "estimates/line_row.h"

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
    ClsOrder order(access, screen);
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
    ClsOrder order(access, screen);
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

TEST_F(EstimateRecordTest, OpeningTakesNullsButForTheCustomerAndTheDay) {
    folder.execute("insert into OrderInfo (OrderNo, CustId, OrderDate) values (12, 3, '2003-07-04')");
    ClsOrder order(access, screen);
    fill(order);
    order.GetOrder();
    EXPECT_EQ(1, screen.shown);
    EXPECT_EQ("", order.SStreet2);
    EXPECT_EQ(0, order.Amount);
    for (const auto& [column, number] : {std::pair{"CustId", 94}, std::pair{"OrderDate", 13}}) {
        SCOPED_TRACE(column);
        folder.execute("update OrderInfo set " + std::string(column) + " = null");
        EXPECT_EQ(number, numberOf([&] { order.GetOrder(); }));
        folder.execute("update OrderInfo set CustId = 3, OrderDate = '2003-07-04'");
    }
}

TEST_F(EstimateRecordTest, AnUnknownNumberClearsTheRecordAndLeavesTheRecordsetOpen) {
    ClsOrder order(access, screen);
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
    ClsOrder order(access, screen);
    order.OrderNo = 1;
    order.Delete();
    EXPECT_EQ("1", folder.cell("select count(*) from OrderInfo where OrderNo = 1"));
    order.AddEditDel = "D";
    order.Delete();
    EXPECT_EQ("0|0", folder.cell("select (select count(*) from OrderInfo where OrderNo = 1), (select count(*) from "
                                 "OrderItem where OrderNo = 1)"));
}

TEST_F(EstimateRecordTest, Gateways) {
    folder.useSample();
    folder.execute(
        "insert into Representatives values (1, 'Zoe'), (2, 'Abe'); insert into Ship values (1, 'Truck');"
        "insert into Tax values (3, 6.25), (4, null)");
    ClsOrder order(access, screen);
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
    ColnOrderItems lines(access);
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

TEST_F(EstimateRecordTest, LinesAsTheirRowsShowThem) {
    const LineNames names{7, "Stud", 3, "Attic", 2, "each"};
    const auto texts = [](const LineRow& row) {
        std::string all;
        for (const std::string& cell : row) all += cell + '|';
        return all;
    };
    EXPECT_EQ("7|Attic|2.5|each|Stud|25|1|2|3|31|3|2|", texts(enteredRow(names, {"2.5", "10", "1", "2", "3"})));
    ColnOrderItems lines(access);
    const auto stored = [&](double quantity, double material, double labor, double extension, double others) {
        return texts(storedRow(names, lines.Add(std::int64_t{7}, quantity, material, Value{std::int64_t{3}},
                                                Value{std::int64_t{2}}, extension, labor, others)));
    };
    EXPECT_EQ("7|Attic|2|each|Stud|25|0|0|0|25|3|2|", stored(2.5, 25, 0, 0, 0)) << "a whole quantity";
    EXPECT_EQ("7|Attic|4|each|Stud|1|0|0|0|1|3|2|", stored(3.5, 1.00005, 0, 0, 0)) << "four decimals";
    EXPECT_EQ("7|Attic|1|each|Stud|12.35|0.1|3.15|0.4|16|3|2|", stored(1, 12.35, 0.1, 3.15, 0.4));
    EXPECT_EQ("7|Attic|1|each|Stud|0|0|1.234568E+07|0|12345680|3|2|", stored(1, 0, 0, 12345678, 0));
    EXPECT_EQ(6, numberOf([&] { stored(3e9, 0, 0, 0, 0); }));
    EXPECT_EQ(keyOf(lines.Item(1)), keyOf(enteredRow(names, {})));
}

}  // namespace
}  // namespace torvane
