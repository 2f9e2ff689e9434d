#include "estimates/cls_order.h"

#include "datastore/fields.h"
#include "masters/cls_customer.h"

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

ClsOrder::ClsOrder(const DataAccess& access, EstimateScreen& screen)
    : DataClass(access), access_(access), screen_(screen) {}

torvane::ColnOrderItems& ClsOrder::ColnOrderItems() {
    if (!lines_) lines_ = std::make_unique<torvane::ColnOrderItems>(access_);
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
    if (mode != "A" && mode != "E") return false;
    grouped(connection_, [&] {
        if (mode == "E") {
            connection_.execute(joined("Delete * from Orderitem where OrderNo = ", OrderNo));
            connection_.execute(joined(
                "Update OrderInfo Set CustId = ", CustId, ", RepId = ", RepId, ", OrderDate = ", dateLiteral(OrderDate),
                ", ", columnsWithValues(*this, siteFields, " = ", ", "), ", ShipId = ", ShipId, ", Amount = ", Amount,
                ", Tax = ", Tax, ", Overhead = ", Overhead, ", Total = ", Total, ", ",
                columnsWithValues(*this, textFields, "=", ", "), " where OrderNo=", OrderNo));
        } else {
            connection_.execute(joined("Insert into OrderInfo (Orderno,CustId,RepId,OrderDate,", columnList(siteFields),
                                       ",ShipId,Amount,Tax,Total,", columnList(textFields), ",Overhead) values (",
                                       OrderNo, ",", CustId, ",", RepId, ",", dateLiteral(OrderDate), ",",
                                       valueList(*this, siteFields), ",", ShipId, ",", Amount, ",", Tax, ",", Total,
                                       ",", valueList(*this, textFields), ",", Overhead, ")"));
        }
        insertLines();
    });
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
    const RowArray header = query(joined("Select * from orderinfo where OrderNo = ", OrderNo));
    if (header.empty()) {
        leftOpen_ = true;
        host_.box("Estimate not found corresponding to entered Estimate Number", "Search Estimate");
        return;
    }
    CustId = toInt32(header("CustId", 0));
    RepId = int32OrZero(header("RepId", 0));
    ShipId = int32OrZero(header("ShipId", 0));
    readFields(*this, siteFields, header);
    // A date that is Null counts as the empty text, which is no date.
    const Value& date = header("OrderDate", 0);
    OrderDate = toDate(isNull(date) ? Value{std::string{}} : date, host_.shortDate());
    Amount = singleOrZero(header("Amount", 0));
    Tax = singleOrZero(header("Tax", 0));
    Overhead = singleOrZero(header("Overhead", 0));
    Total = singleOrZero(header("Total", 0));
    readFields(*this, textFields, header);

    const RowArray lines = query(joined("Select * from orderItem where OrderNo = ", OrderNo));
    for (int row = 0; row < lines.rows(); ++row)
        ColnOrderItems().Add(lines("ItemId", row), lines("Qty", row), lines("Material", row), lines("RoomId", row),
                             lines("UnitId", row), lines("Extension", row), lines("Labor", row), lines("Others", row));
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

ListRows ClsOrder::GetSearchOrders(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    if (leftOpen_) fail(Failure::InvalidCall);
    return readPage(
        joined("SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
               "Orderinfo.upstracking,orderinfo.total,orderinfo.overhead,orderinfo.tax FROM orderinfo left join "
               "customer  on orderinfo.custid = customer.custid where  ",
               SearchFld, " like '%", SearchVal, "%'"),
        Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsOrder::GetAllCustomers(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc) {
    return readPage(allCustomersStatement(), Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsOrder::GetSearchCustomers(long Page, long& PageCount, std::string_view FldName,
                                      std::string_view AscOrDesc) {
    return readPage(searchCustomersStatement(SearchFld, SearchVal), Page, PageCount, FldName, AscOrDesc);
}

double ClsOrder::GetTaxRate(const Value& StateId) {
    const std::string key = textOf(StateId);
    if (key.empty()) return 0;
    const RowArray row = query(joined("Select TaxRate from Tax where Stateid=", key));
    return row.empty() || isNull(row(0, 0)) ? 0 : toDouble(row(0, 0));
}

std::int32_t ClsOrder::GetNextOrderNo() {
    const Value highest = query("Select max(OrderNo) from OrderInfo")(0, 0);
    return isNull(highest) ? 1 : narrowToInt32(toDouble(highest) + 1);
}

ListRows ClsOrder::GetComboRep() {
    return readRows("Select * from Representatives order by RepName");
}

ListRows ClsOrder::GetComboShip() {
    return readRows("Select * from Ship order by ShippingMedia");
}

ListRows ClsOrder::GetComboState() {
    return readRows("Select * from States order by StateName");
}

ListRows ClsOrder::GetComboRooms() {
    return readRows("Select * from Rooms order by Name");
}

ListRows ClsOrder::GetComboUnits() {
    return readRows("Select * from Units order by Name");
}

std::shared_ptr<const RowArray> ClsOrder::GetComboItems() {
    leftOpen_ = false;
    if (const std::uint64_t written = connection_.writes(); !items_ || written != itemsWritten_) {
        items_ = std::make_shared<const RowArray>(
            query("Select ItemId,ItemName,Material,Labor,Qty,SubLabor,Equipment from Item order by ItemName"));
        itemsWritten_ = written;
    }
    return items_;
}

}  // namespace torvane
