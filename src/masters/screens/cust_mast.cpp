#include "masters/screens/cust_mast.h"

#include "masters/screens/frm_customer.h"
#include "screens/fill_names.h"
#include "ui_cust_mast.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// A text of the customer: its box, and where the record keeps it.
struct CustomerText {
    TextBox* Ui_CustMast::*box;
    std::string ClsCustomer::*text;
};
constexpr CustomerText customerTexts[] = {
    {&Ui_CustMast::TxtCname, &ClsCustomer::CustName},    {&Ui_CustMast::TxtBstreet1, &ClsCustomer::BStreet1},
    {&Ui_CustMast::TxtBstreet2, &ClsCustomer::BStreet2}, {&Ui_CustMast::TxtBcity, &ClsCustomer::BCity},
    {&Ui_CustMast::TxtBZip, &ClsCustomer::BZip},         {&Ui_CustMast::TxtBCountry, &ClsCustomer::BCountry},
    {&Ui_CustMast::TxtBPhone, &ClsCustomer::BPhone},     {&Ui_CustMast::TxtBfax, &ClsCustomer::BFax},
    {&Ui_CustMast::TxtBMobile, &ClsCustomer::BMobile},   {&Ui_CustMast::TxtBEmail, &ClsCustomer::BEmail},
    {&Ui_CustMast::TxtBUrl, &ClsCustomer::BUrl},
};

}  // namespace

CustMast::CustMast(Program& program, frmCustomer& list)
    : FormOf(program, "CustMast"), list_(list), buttons_(*this, Cust, entryParts()) {
    setHelpContext(55);
}

CustMast::~CustMast() = default;

EntryButtons::Parts CustMast::entryParts() {
    return {
        .controls = [this]() -> EntryButtons::Controls {
            return {ui().cmdOk, ui().CmdSave, ui().CmdCancel, ui().cmdMainHelp};
        },
        .copyToRecord = [this] { copyToRecord(); },
        .saved = "Customer Saved",
        .refreshList = [this] { list_.RefreshGrid(); },
    };
}

void CustMast::Form_Load() {
    buttons_.connect();
    program().StartUp(*this);
    FillData();
    buttons_.openByMode(list_.Which, {ui().TxtCname, ui().Frame1, ui().Frame2});
}

void CustMast::FillData() {
    Cust().GetCustomer();
    for (const CustomerText& each : customerTexts) (ui().*each.box)->setText(Cust().*each.text);
    fillNames(*ui().CmbBState, Cust().GetComboState());
    ui().CmbBState->selectItemData(Cust().BState);
}

void CustMast::copyToRecord() {
    for (const CustomerText& each : customerTexts) Cust().*each.text = (ui().*each.box)->Text();
    Cust().BState = narrowToInt16(ui().CmbBState->ItemData());
}

}  // namespace torvane
