#include "reports/data_environment.h"

#include "datastore/shape.h"
#include "datastore/statement.h"
#include "values/failure.h"

namespace torvane {

namespace {

constexpr std::string_view Command1 =
    "SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
    "Orderinfo.upstracking,orderinfo.total FROM orderinfo,customer where  orderinfo.custid = customer.custid";

constexpr std::string_view Command2 = "select * from customer";

constexpr std::string_view Command3_Grouping =
    "SHAPE {SELECT Orderinfo.*, Customer.Custname as CustName, OrderItem.*, Rooms.Name as Room, Units.Name as Unit, "
    "Item.Itemname as Item, orderitem.material+orderitem.extension+orderitem.labor+orderitem.others as totitem,\n"
    "orderinfo.tax*orderinfo.amount/100 as taxtot, \n"
    "orderinfo.overhead*orderinfo.amount/100 as ohtot\n"
    "   FROM orderinfo,customer, OrderItem,Rooms, Units, Item where  orderinfo.custid = Customer.custid and "
    "orderinfo.OrderNo = OrderItem.OrderNo and OrderItem.roomid=rooms.id and orderitem.UnitId = Units.id and "
    "OrderItem.Itemid = Item.Itemid }  AS Command3 COMPUTE Command3 BY "
    "'orderinfo.OrderNo','OrderDate','SStreet1','SStreet2','SCity','SState','SZip','CustId','RepId','SCountry','SPhone'"
    ","
    "'SMobile','SEmail','ShipId','Amount','CustName','Tax','Total','Overhead','taxtot','ohtot'";

// A report run resumes at the next step after any error.
template <class Step>
void resumeNext(Step step) {
    try {
        step();
    } catch (const RuntimeFailure&) {
    }
}

}  // namespace

DataEnvironment1::DataEnvironment1(const Environment& environment)
    : environment_(environment), Connection1(environment.store) {}

ReportRows DataEnvironment1::run(Recordset& recordset, const std::string& source, const std::vector<std::string>& by) {
    resumeNext([&] {
        if (Connection1.state() == 1) Connection1.close();
    });
    resumeNext([&] { Connection1.open(connectionText(environment_.host.programDirectory())); });
    resumeNext([&] {
        if (recordset.state() == 1) recordset.close();
    });
    resumeNext([&] { recordset.open(source, Connection1); });
    ReportRows filled;
    resumeNext([&] {
        std::vector<std::string> names = recordset.names();
        if (auto rows = recordset.getRows()) filled = {std::move(names), std::move(*rows), by};
        recordset.close();
    });
    return filled;
}

// The texts ask for no order; rows come in the order of their keys, lines in the order in which they were entered.

ReportRows DataEnvironment1::estimates() {
    return run(rsCommand1, joined(Command1, " order by orderinfo.orderno"), {});
}

ReportRows DataEnvironment1::estimates(const Date& FDate, const Date& TDate) {
    // In the short date of the machine, as a date becomes text by default.
    const ShortDate& style = environment_.host.shortDate();
    return run(rsCommand1,
               joined(Command1, " and orderdate>=#", shortDateText(FDate, style), "# and orderdate <= #",
                      shortDateText(TDate, style), "# order by orderinfo.orderno"),
               {});
}

ReportRows DataEnvironment1::customers() {
    return run(rsCommand2, joined(Command2, " order by CustId"), {});
}

ReportRows DataEnvironment1::proposal(std::int32_t OrderNo) {
    const ShapedCommand command = readShape(Command3_Grouping);
    return run(rsCommand3_Grouping,
               joined(command.inner, " and  orderinfo.orderno=", OrderNo, " order by OrderItem.rowid"), command.by);
}

}  // namespace torvane
