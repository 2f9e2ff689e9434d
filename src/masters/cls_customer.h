#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datastore/data_class.h"

namespace torvane {

// The customers: one customer in public fields, its storage, and the lists.
class ClsCustomer : public DataClass {
public:
    explicit ClsCustomer(const DataAccess& access) : DataClass(access) {}

    std::int16_t CustId = 0;
    std::string CustName;
    std::string BStreet1;
    std::string BStreet2;
    std::string BCity;
    std::int16_t BState = 0;  // key of a row of States
    std::string BZip;
    std::string BCountry;
    std::string BPhone;
    std::string BFax;
    std::string BMobile;
    std::string BEmail;
    std::string BUrl;
    std::string BCCNo;      // neither loaded nor saved; only the lists read the column
    Date ExpDate;           // neither loaded nor saved
    std::string SearchFld;  // "All" or a column
    std::string SearchVal;
    std::string AddEditDel;  // "A", "E", "D"

    // Whether the customer may be saved; says why not in a box. Only the name must be there; adding refuses a customer
    // equal in all twelve fields.
    bool Validate();
    // Inserts ("A") or updates ("E"). The result is always false.
    bool Save();
    // With the flag "D": removes the row of `CustId`, also when estimates use it.
    void Delete();
    // Loads the row of `CustId`. Without such a row every field stays as it is.
    void GetCustomer();

    // Pages of key, name, city, phone, e-mail, BCCNo; nothing when there are none.
    ListRows GetAllCustomers(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // The same for rows whose SearchFld (under "All" any of the five texts) begins with SearchVal.
    ListRows GetSearchCustomers(long Page, long& PageCount, std::string_view FldName, std::string_view AscOrDesc);
    // Every customer by name, and every state by name: key, name.
    ListRows GetComboCustomers();
    ListRows GetComboState();
};

// The statements of the customer lists, without their order clause; the estimate record offers the same lists.
std::string_view allCustomersStatement();
// Customers whose `field` begins with `text`; under "All" any of name, city, phone, e-mail and BCCNo.
std::string searchCustomersStatement(std::string_view field, std::string_view text);

}  // namespace torvane
