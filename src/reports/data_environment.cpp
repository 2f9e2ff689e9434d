#include "reports/data_environment.h"

#include "datastore/statement.h"
#include "datastore/store.h"
#include "values/failure.h"

namespace torvane {

namespace {

constexpr std::string_view Command1 =
    "SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
    "Orderinfo.upstracking,orderinfo.total FROM orderinfo,customer where  orderinfo.custid = customer.custid";

constexpr std::string_view Command2 = "select * from customer";

// Of one estimate: the lines, and the columns by which they fall into groups.
constexpr std::string_view Command3 =
    "SELECT Orderinfo.*, Customer.Custname as CustName, OrderItem.*, Rooms.Name as Room, Units.Name as Unit, "
    "Item.Itemname as Item, orderitem.material+orderitem.extension+orderitem.labor+orderitem.others as totitem,\n"
    "orderinfo.tax*orderinfo.amount/100 as taxtot, \n"
    "orderinfo.overhead*orderinfo.amount/100 as ohtot\n"
    "   FROM orderinfo,customer, OrderItem,Rooms, Units, Item where  orderinfo.custid = Customer.custid and "
    "orderinfo.OrderNo = OrderItem.OrderNo and OrderItem.roomid=rooms.id and orderitem.UnitId = Units.id and "
    "OrderItem.Itemid = Item.Itemid";
constexpr std::string_view Command3_Grouping[] = {
    "orderinfo.OrderNo", "OrderDate", "SStreet1", "SStreet2", "SCity",  "SState", "SZip",     "CustId", "RepId",
    "SCountry",          "SPhone",    "SMobile",  "SEmail",   "ShipId", "Amount", "CustName", "Tax",    "Total",
    "Overhead",          "taxtot",    "ohtot"};

}  // namespace

ReportRows DataEnvironment1::run(std::string_view source, std::span<const std::string_view> by) {
    try {
        Connection Connection1(access_);
        return ReportRows(Connection1.query(source), by);
    } catch (const RuntimeFailure&) {
        return {};
    }
}

// The texts ask for no order; rows come in the order of their keys, lines in the order in which they were entered.

ReportRows DataEnvironment1::estimates() {
    return run(joined(Command1, " order by orderinfo.orderno"));
}

ReportRows DataEnvironment1::estimates(const Date& FDate, const Date& TDate) {
    // In the short date of the machine, as a date becomes text by default.
    const ShortDate& style = access_.host.shortDate();
    return run(joined(Command1, " and orderdate>=#", shortDateText(FDate, style), "# and orderdate <= #",
                      shortDateText(TDate, style), "# order by orderinfo.orderno"));
}

ReportRows DataEnvironment1::customers() {
    return run(joined(Command2, " order by CustId"));
}

ReportRows DataEnvironment1::proposal(std::int32_t OrderNo) {
    return run(joined(Command3, " and  orderinfo.orderno=", OrderNo, " order by OrderItem.rowid"), Command3_Grouping);
}

}  // namespace torvane
