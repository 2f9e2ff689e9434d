#include "masters/screens/frm_customer.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/help_contexts.h"
#include "values/numbers.h"

namespace torvane {

frmCustomer::frmCustomer(Program& program, CustomerPick& pick)
    : FormOf(program, "frmCustomer"), pick_(pick), custMast_(program, *this) {
    setHelpContext(HelpContext::customers);
}

ClsCustomer& frmCustomer::Cust() {
    if (!cust_) cust_ = std::make_unique<ClsCustomer>(program().environment());
    return *cust_;
}

ListSkeleton::Controls frmCustomer::controls() {
    return {ui().ListView1, ui().txtCustName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
}

std::vector<ListSkeleton::Column> frmCustomer::columns() const {
    return {{{"Customer ID", 0}, ""},
            {{"Customer Name", 1800}, "CustName"},
            {{"City", 1200}, "BCity"},
            {{"Phone", 1200}, "BPhone"},
            {{"E-Mail Id", 2400}, "BEmail"}};
}

std::vector<ListSkeleton::Mode> frmCustomer::modes() {
    return {{"A", "Add Customer", ui().cmdAdd},
            {"C", "Copy Customer", ui().cmdCopy},
            {"D", "Delete Customer", ui().cmdDel},
            {"E", "Edit Customer", ui().CmdEdit},
            {"S", "Select Customer", ui().CmdSelect}};
}

void frmCustomer::Form_Load() {
    cust_.reset();  // the list's own object is new at each load
    connectList(ui());
    // There to be looked at: no event opens it in this window.
    addRelatedMenu({{"mnuRelManf", "View Related Manufacturers", ""}, {"mnuRelCatg", "View Related Categories", ""}});
    program().StartUp(*this);
    loadList("CustName");
}

std::optional<RowArray> frmCustomer::readAllRows() {
    return Cust().GetAllCustomers(Page, PageCount, FldName, AscOrDesc);
}

std::optional<RowArray> frmCustomer::readSearchedRows() {
    return Cust().GetSearchCustomers(Page, PageCount, FldName, AscOrDesc);
}

std::vector<std::string> frmCustomer::rowTexts(const RowArray& rows, int row) {
    return {textOrEmpty(rows(0, row)), textOrEmpty(rows(1, row)), textOrEmpty(rows(2, row)), textOrEmpty(rows(3, row)),
            textOrEmpty(rows(4, row))};
}

void frmCustomer::cmdSearch_Click() {
    Cust().SearchVal = ui().txtCustName->Text();
    const std::pair<QRadioButton*, std::string_view> options[] = {{ui().OptAll, "All"},
                                                                  {ui().OptName, "CustName"},
                                                                  {ui().OptCity, "BCity"},
                                                                  {ui().OptPhone, "BPhone"},
                                                                  {ui().OptEmail, "BEmail"}};
    const auto* option = std::find_if(std::begin(options), std::end(options),
                                      [](const auto& candidate) { return candidate.first->isChecked(); });
    if (option == std::end(options)) fail(Failure::ObjectNotSet);
    Cust().SearchFld = option->second;
    startSearch();
}

void frmCustomer::cmdAdd_Click() {
    Which = "A";
    Cust().AddEditDel = "A";
    custMast_.Cust().AddEditDel = "A";
    custMast_.ui().TxtCname->setText(ui().txtCustName->Text());
    custMast_.ShowModal();
    RefreshGrid();
}

void frmCustomer::showEntryForm(std::int16_t key, std::string_view flag) {
    custMast_.Cust().CustId = key;
    custMast_.Cust().GetCustomer();
    custMast_.Cust().AddEditDel = flag;
    custMast_.ShowModal();
}

void frmCustomer::deleteRecord(std::int16_t key) {
    Cust().CustId = key;
    Cust().Delete();
}

void frmCustomer::ListView1_DblClick() {
    if (Which != "S" || !hasRows()) return MasterList::ListView1_DblClick();
    CmdSelect_Click();
    Unload();
}

void frmCustomer::CmdSelect_Click() {
    const Program::Doing doing(program(), "taking the selected customer");
    const std::int32_t key = strictInt32(selectedKey());
    pick_.takeCustomer(key, selectedName());
    Unload();
}

void frmCustomer::cmdMainHelp_Click() {
    const std::string_view text =
        Which == "A"
            ? "This screen allows you to enter the Customer details in the master table. Click on 'Add' button "
              "to add a new record in the Customers database. "
        : Which == "E"
            ? "This screen allows you to edit the Customer data in the master table. Select the record by double "
              "clicking on the customer row or selecting the Customer and pressing 'Edit' button"
        : Which == "D"
            ? "This screen allows you to delete the Customer data from the master table. Select the customer record by "
              "clicking the customer row and pressing 'Delete' button. It will delete the record after confirmation."
            : "";
    program().speakHelp(text);
}

}  // namespace torvane
