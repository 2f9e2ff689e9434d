#include "estimates/cls_order.h"

#include "datastore/fields.h"
#include "masters/customer_lists.h"

namespace torvane {

namespace {

constexpr Field<ClsOrder> siteFields[] = {
    {"SStreet1", &ClsOrder::SStreet1}, {"SStreet2", &ClsOrder::SStreet2}, {"SCity", &ClsOrder::SCity},
    {"SState", &ClsOrder::SState},     {"SZip", &ClsOrder::SZip},         {"SCountry", &ClsOrder::SCountry},
    {"SPhone", &ClsOrder::SPhone},     {"SMobile", &ClsOrder::SMobile},   {"SEmail", &ClsOrder::SEmail}};
constexpr Field<ClsOrder> textFields[] = {{"UPSTracking", &ClsOrder::UPSTracking}, {"Notes", &ClsOrder::Notes}};

// Month first, without leading zeros, whatever the machine's own short date is.
std::string dateLiteral(const Date& date) {
    return joined("#", date.month, "/", date.day, "/", date.year, "#");
}

}  // namespace

ClsOrder::ClsOrder(const Environment& environment, EstimateScreen& screen)
    : DataClass(environment), environment_(environment), screen_(screen) {}

torvane::ColnOrderItems& ClsOrder::ColnOrderItems() {
    if (!lines_) lines_ = std::make_unique<torvane::ColnOrderItems>(environment_);
    return *lines_;
}

bool ClsOrder::Validate() {
    const auto refuse = [this](std::string_view text) {
        host_.box(text, "Estimate");
        return false;
    };
    if (OrderNo == 0) return refuse("No Estimate number found");
    if (CustId == 0) return refuse("Select Customer ");
    if (ColnOrderItems().Count() == 0) return refuse("No Items Selected");
    return true;
}

void ClsOrder::insertLines() {
    const std::int16_t count = narrowToInt16(ColnOrderItems().Count());
    for (std::int32_t i = 1; i <= count; ++i) {
        const ClsOrderItems& line = ColnOrderItems().Item(i);
        connection_.execute(
            joined("Insert into OrderItem (OrderNo,ItemId,Qty,Material,RoomId,UnitId,Extension,Labor,Others) values (",
                   OrderNo, ",", line.Item->itemid, ",", line.mvarQty, ",", line.mvarMaterial, ",", line.mvarRoomId,
                   ",", line.mvarUnitId, ",", line.mvarExtension, ",", line.mvarLabor, ",", line.mvarOthers, ")"));
    }
}

bool ClsOrder::Save() {
    const std::string& mode = screen_.estimateMode();
    if (mode == "E") {
        grouped(connection_, [this] {
            connection_.execute(joined("Delete * from Orderitem where OrderNo = ", OrderNo));
            connection_.execute(joined(
                "Update OrderInfo Set CustId = ", CustId, ", RepId = ", RepId, ", OrderDate = ", dateLiteral(OrderDate),
                ", ", columnsWithValues(*this, siteFields, " = ", ", "), ", ShipId = ", ShipId, ", Amount = ", Amount,
                ", Tax = ", Tax, ", Overhead = ", Overhead, ", Total = ", Total, ", ",
                columnsWithValues(*this, textFields, "=", ", "), " where OrderNo=", OrderNo));
            insertLines();
        });
    } else if (mode == "A") {
        grouped(connection_, [this] {
            connection_.execute(joined("Insert into OrderInfo (Orderno,CustId,RepId,OrderDate,", columnList(siteFields),
                                       ",ShipId,Amount,Tax,Total,", columnList(textFields), ",Overhead) values (",
                                       OrderNo, ",", CustId, ",", RepId, ",", dateLiteral(OrderDate), ",",
                                       valueList(*this, siteFields), ",", ShipId, ",", Amount, ",", Tax, ",", Total,
                                       ",", valueList(*this, textFields), ",", Overhead, ")"));
            insertLines();
        });
    }
    return false;
}

void ClsOrder::Delete() {
    if (AddEditDel != "D") return;
    grouped(connection_, [this] {
        connection_.execute(joined("Delete * from OrderInfo where OrderNo = ", OrderNo));
        connection_.execute(joined("Delete * from Orderitem where OrderNo = ", OrderNo));
    });
}

void ClsOrder::GetOrder() {
    ClearData();
    Recordset& rows = read(joined("Select * from orderinfo where OrderNo = ", OrderNo));
    if (rows.eof()) {
        host_.box("Estimate not found corresponding to entered Estimate Number", "Search Estimate");
        return;
    }
    CustId = toInt32(rows.field("CustId"));
    RepId = int32OrZero(rows.field("RepId"));
    ShipId = int32OrZero(rows.field("ShipId"));
    readFields(*this, siteFields, rows);
    // A date that is Null counts as the empty text, which is no date.
    const Value& date = rows.field("OrderDate");
    OrderDate = toDate(isNull(date) ? Value{std::string{}} : date, host_.shortDate());
    Amount = singleOrZero(rows.field("Amount"));
    Tax = singleOrZero(rows.field("Tax"));
    Overhead = singleOrZero(rows.field("Overhead"));
    Total = singleOrZero(rows.field("Total"));
    readFields(*this, textFields, rows);

    for (read(joined("Select * from orderItem where OrderNo = ", OrderNo)); !rows.eof(); rows.moveNext())
        ColnOrderItems().Add(rows.field("ItemId"), rows.field("Qty"), rows.field("Material"), rows.field("RoomId"),
                             rows.field("UnitId"), rows.field("Extension"), rows.field("Labor"), rows.field("Others"));
    rows.close();
    screen_.showEstimate();
}

void ClsOrder::ClearEntry() {
    CustId = 0;
    OrderDate = host_.today();
    clearFields(*this, siteFields);
    clearFields(*this, textFields);
    for (std::int32_t i = ColnOrderItems().Count(); i >= 1; --i) ColnOrderItems().Remove(i);
}

void ClsOrder::ClearData() {
    RepId = ShipId = 0;
    Amount = Tax = Overhead = Total = 0;
    ClearEntry();
}

std::optional<RowArray> ClsOrder::GetSearchOrders(long Page, long& PageCount, std::string_view FldName,
                                                  std::string_view AscOrDesc) {
    return recordset_.readPage(
        joined("SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
               "Orderinfo.upstracking,orderinfo.total,orderinfo.overhead,orderinfo.tax FROM orderinfo left join "
               "customer  on orderinfo.custid = customer.custid where  ",
               SearchFld, " like '%", SearchVal, "%'"),
        FldName, AscOrDesc, connection_, Page, PageSize, PageCount, RecordCount);
}

std::optional<RowArray> ClsOrder::GetAllCustomers(long Page, long& PageCount, std::string_view FldName,
                                                  std::string_view AscOrDesc) {
    return readPage(allCustomersStatement(), Page, PageCount, FldName, AscOrDesc);
}

std::optional<RowArray> ClsOrder::GetSearchCustomers(long Page, long& PageCount, std::string_view FldName,
                                                     std::string_view AscOrDesc) {
    return readPage(searchCustomersStatement(SearchFld, SearchVal), Page, PageCount, FldName, AscOrDesc);
}

double ClsOrder::GetTaxRate(const Value& StateId) {
    const std::string key = textOf(StateId);
    if (key.empty()) return 0;
    const Recordset& row = read(joined("Select TaxRate from Tax where Stateid=", key));
    const double rate = row.eof() || isNull(row.field("TaxRate")) ? 0 : toDouble(row.field("TaxRate"));
    recordset_.close();
    return rate;
}

std::int32_t ClsOrder::GetNextOrderNo() {
    const Value highest = read("Select max(OrderNo) from OrderInfo").field(0);
    recordset_.close();
    return isNull(highest) ? 1 : narrowToInt32(toDouble(highest) + 1);
}

std::optional<RowArray> ClsOrder::GetComboRep() {
    return readRows("Select * from Representatives order by RepName");
}

std::optional<RowArray> ClsOrder::GetComboShip() {
    return readRows("Select * from Ship order by ShippingMedia");
}

std::optional<RowArray> ClsOrder::GetComboState() {
    return readRows("Select * from States order by StateName");
}

std::optional<RowArray> ClsOrder::GetComboRooms() {
    return readRows("Select * from Rooms order by Name");
}

std::optional<RowArray> ClsOrder::GetComboUnits() {
    return readRows("Select * from Units order by Name");
}

std::optional<RowArray> ClsOrder::GetComboItems() {
    return readRows("Select ItemId,ItemName,Material,Labor,Qty,SubLabor,Equipment from Item order by ItemName");
}

}  // namespace torvane
