#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "datastore/data_class.h"
#include "estimates/coln_order_items.h"
#include "estimates/estimate_screen.h"

namespace torvane {

// An estimate: the header in public fields, the lines in a collection, their storage, and the lists that the estimate
// screens show. `Tax` and `Overhead` are percentages of `Amount`, the sum of the lines; `Total` is the grand total.
class ClsOrder : public DataClass {
public:
    ClsOrder(const DataAccess& access, EstimateScreen& screen);

    std::int32_t OrderNo = 0;
    std::int32_t CustId = 0;
    std::int32_t RepId = 0;
    std::int32_t ShipId = 0;
    Date OrderDate;
    std::string SStreet1;
    std::string SStreet2;
    std::string SCity;
    std::int16_t SState = 0;  // key of a row of States
    std::string SZip;
    std::string SCountry;
    std::string SPhone;
    std::string SMobile;
    std::string SEmail;
    std::string UPSTracking;
    std::string Notes;
    float Amount = 0;
    float Tax = 0;
    float Overhead = 0;
    float Total = 0;
    std::string SearchFld;  // a column, or "All" for GetSearchCustomers
    std::string SearchVal;
    std::string AddEditDel;  // Delete acts on "D" only

    // The lines; made at first use.
    torvane::ColnOrderItems& ColnOrderItems();
    void ColnOrderItems(std::unique_ptr<torvane::ColnOrderItems> lines) { lines_ = std::move(lines); }

    // Whether the estimate may be saved: it needs a number, a customer and a line. Says why not in a box.
    bool Validate();
    // By the screen's mode: "A" inserts the estimate, "E" replaces its lines and updates it, any other writes nothing.
    // The statements are flushed together: a process killed in between leaves the estimate as it was before or as it is
    // after, and a failing statement leaves those before it in force. The result is always false.
    bool Save();
    // With the flag "D": removes the estimate `OrderNo`, header first, then its lines.
    void Delete();
    // Loads estimate `OrderNo` and shows the screen. Without such an estimate: a box, a cleared record, and a recordset
    // left open, so that GetSearchOrders fails until another query has been made.
    void GetOrder();
    // Empties the record and its lines; `OrderNo`, `AddEditDel` and the search fields stay. `OrderDate` is today.
    void ClearData();
    // The part of it that the estimate screen enters: customer, job site, day, texts and lines.
    void ClearEntry();

    // Pages of number, date, customer name (Null when the customer has gone), tracking text, total, overhead, tax of
    // the estimates whose SearchFld has SearchVal anywhere; nothing when there are none. Failure::InvalidCall when the
    // recordset stands open.
    ListRows GetSearchOrders(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    ListRows GetAllCustomers(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    ListRows GetSearchCustomers(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // The tax rate of a state in percent; 0 for an empty key, an unknown state and a rate that is Null.
    double GetTaxRate(const Value& StateId);
    // The highest number plus 1, or 1. It is reserved by nothing until the estimate is saved.
    std::int32_t GetNextOrderNo();

    // Whole lists, by name; key in column 0, name in column 1.
    ListRows GetComboRep();
    ListRows GetComboShip();
    ListRows GetComboState();
    ListRows GetComboRooms();
    ListRows GetComboUnits();
    // Key, name, material, labor, default quantity, sub-labor, equipment. Read again only after a write.
    std::shared_ptr<const RowArray> GetComboItems();

private:
    void insertLines();
    DataAccess access_;
    EstimateScreen& screen_;
    std::unique_ptr<torvane::ColnOrderItems> lines_;
    std::shared_ptr<const RowArray> items_;
    std::uint64_t itemsWritten_ = 0;
};

}  // namespace torvane
