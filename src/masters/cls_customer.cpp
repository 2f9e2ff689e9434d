#include "masters/cls_customer.h"

#include "datastore/statement.h"
#include "masters/customer_lists.h"

namespace torvane {

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
    const bool equal =
        anyRow(joined("Select * from Customer where CustName ='", CustName, "' and BStreet1 ='", BStreet1,
                      "' and BStreet2 ='", BStreet2, "' and BCity ='", BCity, "' and BState =", BState, " and BZip ='",
                      BZip, "' and BCountry ='", BCountry, "' and BPhone ='", BPhone, "' and BFax ='", BFax,
                      "' and BMobile ='", BMobile, "' and BEmail ='", BEmail, "' and BUrl ='", BUrl, "'"));
    if (AddEditDel == "A" && equal) {
        host_.box("Duplicate Customer Data", "Inventory");
        return false;
    }
    return true;
}

bool ClsCustomer::Save() {
    if (AddEditDel == "A") {
        connection_.execute(joined(
            "Insert into Customer (CustName,BStreet1,BStreet2,BCity,BState,BZip,BCountry,BPhone,BFax,BMobile,BEmail,"
            "BUrl) values ('",
            CustName, "','", BStreet1, "','", BStreet2, "','", BCity, "',", BState, ",'", BZip, "','", BCountry, "','",
            BPhone, "','", BFax, "','", BMobile, "','", BEmail, "','", BUrl, "')"));
    } else if (AddEditDel == "E") {
        connection_.execute(joined("Update Customer Set CustName = '", CustName, "', BStreet1 = '", BStreet1,
                                   "', BStreet2 = '", BStreet2, "', BCity = '", BCity, "', BState = ", BState,
                                   ", BZip = '", BZip, "', BCountry = '", BCountry, "', BPhone = '", BPhone,
                                   "', BFax = '", BFax, "', BMobile = '", BMobile, "', BEmail = '", BEmail,
                                   "', BUrl = '", BUrl, "' where CustId=", CustId));
    }
    return false;
}

void ClsCustomer::Delete() {
    if (AddEditDel == "D") connection_.execute(joined("Delete * from Customer where CustId = ", CustId));
}

void ClsCustomer::GetCustomer() {
    const Recordset& row = read(joined("Select * from Customer where CustId = ", CustId));
    if (!row.eof()) {
        CustName = textOf(row.field("CustName"));
        BStreet1 = textOrEmpty(row.field("BStreet1"));
        BStreet2 = textOrEmpty(row.field("BStreet2"));
        BCity = textOrEmpty(row.field("BCity"));
        BState = int16OrZero(row.field("BState"));
        BZip = textOrEmpty(row.field("BZip"));
        BCountry = textOrEmpty(row.field("BCountry"));
        BPhone = textOrEmpty(row.field("BPhone"));
        BFax = textOrEmpty(row.field("BFax"));
        BMobile = textOrEmpty(row.field("BMobile"));
        BEmail = textOrEmpty(row.field("BEmail"));
        BUrl = textOrEmpty(row.field("BUrl"));
    }
    recordset_.close();
}

std::optional<RowArray> ClsCustomer::GetAllCustomers(long Page, long& PageCount, std::string_view FldName,
                                                     std::string_view AscOrDesc) {
    return readPage(allCustomersStatement(), Page, PageCount, FldName, AscOrDesc);
}

std::optional<RowArray> ClsCustomer::GetSearchCustomers(long Page, long& PageCount, std::string_view FldName,
                                                        std::string_view AscOrDesc) {
    return readPage(searchCustomersStatement(SearchFld, SearchVal), Page, PageCount, FldName, AscOrDesc);
}

std::optional<RowArray> ClsCustomer::GetComboCustomers() {
    return readRows("Select * from Customer order by CustName");
}

std::optional<RowArray> ClsCustomer::GetComboState() {
    return readRows("Select * from States order by StateName");
}

}  // namespace torvane
