#include "masters/cls_customer.h"

#include "datastore/fields.h"

namespace torvane {

namespace {

constexpr Field<ClsCustomer> fields[] = {
    {"CustName", &ClsCustomer::CustName}, {"BStreet1", &ClsCustomer::BStreet1}, {"BStreet2", &ClsCustomer::BStreet2},
    {"BCity", &ClsCustomer::BCity},       {"BState", &ClsCustomer::BState},     {"BZip", &ClsCustomer::BZip},
    {"BCountry", &ClsCustomer::BCountry}, {"BPhone", &ClsCustomer::BPhone},     {"BFax", &ClsCustomer::BFax},
    {"BMobile", &ClsCustomer::BMobile},   {"BEmail", &ClsCustomer::BEmail},     {"BUrl", &ClsCustomer::BUrl}};

}  // namespace

std::string_view allCustomersStatement() {
    return "Select CustId,CustName,BCity,BPhone,BEmail,BCCNo  from Customer";
}

std::string searchCustomersStatement(std::string_view field, std::string_view text) {
    if (field == "All")
        return joined("SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like '", text,
                      "%' or BCity like '", text, "%'  or BPhone like '", text, "%' or BEmail like '", text,
                      "%'  or BCCNo like '", text, "%' ");
    return joined("SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo  from Customer  where ", field, " like '", text,
                  "%'");
}

bool ClsCustomer::Validate() {
    if (CustName.empty()) {
        host_.box("Enter Customer Name", "Inventory");
        return false;
    }
    // Read for every action, so that a text which no statement can carry fails before an edit too.
    const RowArray equal =
        query(joined("Select * from Customer where ", columnsWithValues(*this, fields, " =", " and ")));
    if (AddEditDel == "A" && !equal.empty()) {
        host_.box("Duplicate Customer Data", "Inventory");
        return false;
    }
    return true;
}

bool ClsCustomer::Save() {
    if (AddEditDel == "A")
        connection_.execute(
            joined("Insert into Customer (", columnList(fields), ") values (", valueList(*this, fields), ")"));
    else if (AddEditDel == "E")
        connection_.execute(
            joined("Update Customer Set ", columnsWithValues(*this, fields, " = ", ", "), " where CustId=", CustId));
    return false;
}

void ClsCustomer::Delete() {
    if (AddEditDel == "D") connection_.execute(joined("Delete * from Customer where CustId = ", CustId));
}

void ClsCustomer::GetCustomer() {
    const RowArray row = query(joined("Select * from Customer where CustId = ", CustId));
    if (row.empty()) return;
    textOf(row("CustName", 0));  // the one text that may not be Null
    readFields(*this, fields, row);
}

ListRows ClsCustomer::GetAllCustomers(long Page, long& PageCount, std::string_view FldName,
                                      std::string_view AscOrDesc) {
    return readPage(allCustomersStatement(), Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsCustomer::GetSearchCustomers(long Page, long& PageCount, std::string_view FldName,
                                         std::string_view AscOrDesc) {
    return readPage(searchCustomersStatement(SearchFld, SearchVal), Page, PageCount, FldName, AscOrDesc);
}

ListRows ClsCustomer::GetComboCustomers() {
    return readRows("Select * from Customer order by CustName");
}

ListRows ClsCustomer::GetComboState() {
    return readRows("Select * from States order by StateName");
}

}  // namespace torvane
