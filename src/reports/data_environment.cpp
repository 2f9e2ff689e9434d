#include "reports/data_environment.h"

#include "datastore/shape.h"
#include "datastore/statement.h"
#include "values/failure.h"

namespace torvane {

namespace {

constexpr std::string_view Command3_Grouping =
    "SHAPE {SELECT Orderinfo.*, Customer.Custname as CustName, OrderItem.*, Rooms.Name as Room, Units.Name as Unit, "
    "Item.Itemname as Item, orderitem.material+orderitem.extension+orderitem.labor+orderitem.others as totitem,\n"
    "orderinfo.tax*orderinfo.amount/100 as taxtot, \n"
    "orderinfo.overhead*orderinfo.amount/100 as ohtot\n"
    "   FROM orderinfo,customer, OrderItem,Rooms, Units, Item where  orderinfo.custid = Customer.custid and "
    "orderinfo.OrderNo = OrderItem.OrderNo and OrderItem.roomid=rooms.id and orderitem.UnitId = Units.id and "
    "OrderItem.Itemid = Item.Itemid }  AS Command3 COMPUTE Command3 BY "
    "'orderinfo.OrderNo','OrderDate','SStreet1','SStreet2','SCity','SState','SZip','CustId','RepId','SCountry','SPhone',"
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

void DataEnvironment1::run(Recordset& recordset, const std::string& source) {
    resumeNext([&] {
        if (Connection1.state() == 1) Connection1.close();
    });
    resumeNext([&] { Connection1.open(connectionText(environment_.host.programDirectory())); });
    resumeNext([&] {
        if (recordset.state() == 1) recordset.close();
    });
    resumeNext([&] { recordset.open(source, Connection1); });
}

ReportRows DataEnvironment1::proposal(std::int32_t OrderNo) {
    const ShapedCommand command = readShape(Command3_Grouping);
    // Lines come in the order in which they were entered.
    run(rsCommand3_Grouping, joined(command.inner, " and  orderinfo.orderno=", OrderNo, " order by OrderItem.rowid"));
    if (rsCommand3_Grouping.state() != 1) return {};
    std::vector<std::string> names = rsCommand3_Grouping.names();
    auto rows = rsCommand3_Grouping.getRows();
    if (!rows) return {};
    return {std::move(names), std::move(*rows), command.by};
}

}  // namespace torvane
