#include "masters/screens/frm_customer.h"

#include <utility>

#include "ui_cust_mast.h"
#include "ui_frm_customer.h"
#include "values/numbers.h"

namespace torvane {

frmCustomer::frmCustomer(Program& program, std::function<void(std::int32_t, const std::string&)> takeCustomer)
    : FormOf(program, "frmCustomer"), takeCustomer_(std::move(takeCustomer)), custMast_(program, *this) {
    setHelpContext(54);
}

frmCustomer::~frmCustomer() = default;

PagedList::Parts frmCustomer::listParts() {
    return {
        .controls = [this]() -> PagedList::Controls {
            return {ui().ListView1, ui().txtCustName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
        },
        .columns = {{{"Customer ID", 0}, ""},
                    {{"Customer Name", 1800}, "CustName"},
                    {{"City", 1200}, "BCity"},
                    {{"Phone", 1200}, "BPhone"},
                    {{"E-Mail Id", 2400}, "BEmail"}},
        .modes = [this]() -> std::vector<PagedList::Mode> {
            return {{"A", "Add Customer", ui().cmdAdd},
                    {"C", "Copy Customer", ui().cmdCopy},
                    {"D", "Delete Customer", ui().cmdDel},
                    {"E", "Edit Customer", ui().CmdEdit},
                    {"S", "Select Customer", ui().CmdSelect}};
        },
        .data = [this]() -> DataClass& { return Cust(); },
        .readAll = [this](auto&&... page) { return Cust().GetAllCustomers(page...); },
        .readSearched = [this](auto&&... page) { return Cust().GetSearchCustomers(page...); },
        .rowTexts =
            [](const RowArray& rows, int row) {
                return rowTexts(rows, row, {0, 1, 2, 3, 4});
            },
        .notFound = "Customer Not Found",
        .offerToAdd = "Customer Not Found : Would You Like To Add ? ",
        .searchedByName = [this] { return ui().OptName->isChecked(); },
        .add = [this] { cmdAdd_Click(); },
    };
}

void frmCustomer::Form_Load() {
    Cust.reset();  // the list's own record is new at each load
    list_.connectSearch(ui().cmdSearch, ui().CmdAll, Cust,
                        {{ui().OptAll, "All"},
                         {ui().OptName, "CustName"},
                         {ui().OptCity, "BCity"},
                         {ui().OptPhone, "BPhone"},
                         {ui().OptEmail, "BEmail"}});
    on(*this, ui().cmdAdd, &QAbstractButton::clicked, &frmCustomer::cmdAdd_Click);
    on(*this, ui().CmdSelect, &QAbstractButton::clicked, &frmCustomer::CmdSelect_Click);
    on(*this, ui().cmdMainHelp, &QAbstractButton::clicked, &frmCustomer::cmdMainHelp_Click);
    on(*this, ui().cmdExit, &QAbstractButton::clicked, [this] { Unload(); });
    on(*this, ui().ListView1, &ReportList::DblClick, &frmCustomer::ListView1_DblClick);
    record_.connect(ui().cmdCopy, ui().CmdEdit, ui().cmdDel);
    // There to be looked at: no event opens it in this window.
    addRelatedMenu(*this, list_,
                   {{"mnuRelManf", "View Related Manufacturers", ""}, {"mnuRelCatg", "View Related Categories", ""}});
    program().StartUp(*this);
    list_.load("CustName");
}

void frmCustomer::cmdAdd_Click() {
    Which = "A";
    Cust().AddEditDel = "A";
    custMast_.Cust().AddEditDel = "A";
    custMast_.ui().TxtCname->setText(ui().txtCustName->Text());
    custMast_.ShowModal();
    RefreshGrid();
}

void frmCustomer::ListView1_DblClick() {
    if (Which != "S" || !list_.hasRows()) return record_.doubleClick();
    CmdSelect_Click();
}

void frmCustomer::CmdSelect_Click() {
    const Program::Doing doing(program(), "taking the selected customer");
    takeCustomer_(strictInt32(list_.selectedKey()), list_.selectedName());
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
