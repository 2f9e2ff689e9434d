#include "masters/screens/cust_mast.h"

#include "masters/screens/frm_customer.h"
#include "screens/fill_names.h"
#include "values/numbers.h"

namespace torvane {

CustMast::CustMast(Program& program, frmCustomer& list)
    : FormOf(program, "CustMast"),
      list_(list),
      buttons_(*this, {
                          .controls = [this]() -> EntryButtons::Controls {
                              return {ui().cmdOk, ui().CmdSave, ui().CmdCancel, ui().cmdMainHelp};
                          },
                          .copyToRecord = [this] { copyToRecord(); },
                          .validate = [this] { return Cust().Validate(); },
                          .save = [this] { Cust().Save(); },
                          .saved = "Customer Saved",
                          .ClearClass = [this] { ClearClass(); },
                          .refreshList = [this] { list_.RefreshGrid(); },
                      }) {
    setHelpContext(55);
}

ClsCustomer& CustMast::Cust() {
    if (!cust_) cust_ = std::make_unique<ClsCustomer>(program().dataAccess());
    return *cust_;
}

void CustMast::Form_Load() {
    buttons_.connect();
    program().StartUp(*this);
    FillData();
    buttons_.openByMode(list_.Which, {ui().TxtCname}, {ui().Frame1, ui().Frame2});
}

void CustMast::Form_Unload() {
    cust_.reset();
}

void CustMast::FillData() {
    Cust().GetCustomer();
    ui().TxtCname->setText(Cust().CustName);
    ui().TxtBstreet1->setText(Cust().BStreet1);
    ui().TxtBstreet2->setText(Cust().BStreet2);
    ui().TxtBcity->setText(Cust().BCity);
    ui().TxtBZip->setText(Cust().BZip);
    ui().TxtBCountry->setText(Cust().BCountry);
    ui().TxtBPhone->setText(Cust().BPhone);
    ui().TxtBfax->setText(Cust().BFax);
    ui().TxtBMobile->setText(Cust().BMobile);
    ui().TxtBEmail->setText(Cust().BEmail);
    ui().TxtBUrl->setText(Cust().BUrl);
    FillState();
    ui().CmbBState->selectItemData(Cust().BState);
}

void CustMast::FillState() {
    fillNames(*ui().CmbBState, Cust().GetComboState());
}

void CustMast::copyToRecord() {
    Cust().CustName = ui().TxtCname->Text();
    Cust().BStreet1 = ui().TxtBstreet1->Text();
    Cust().BStreet2 = ui().TxtBstreet2->Text();
    Cust().BCity = ui().TxtBcity->Text();
    Cust().BState = narrowToInt16(ui().CmbBState->ItemData());
    Cust().BZip = ui().TxtBZip->Text();
    Cust().BCountry = ui().TxtBCountry->Text();
    Cust().BFax = ui().TxtBfax->Text();
    Cust().BPhone = ui().TxtBPhone->Text();
    Cust().BMobile = ui().TxtBMobile->Text();
    Cust().BEmail = ui().TxtBEmail->Text();
    Cust().BUrl = ui().TxtBUrl->Text();
}

void CustMast::ClearClass() {
    Cust().CustId = 0;
    Cust().BState = 0;
    Cust().ExpDate = program().host().today();
    for (std::string* text :
         {&Cust().CustName, &Cust().BStreet1, &Cust().BStreet2, &Cust().BCity, &Cust().BZip, &Cust().BCountry,
          &Cust().BPhone, &Cust().BFax, &Cust().BMobile, &Cust().BEmail, &Cust().BUrl, &Cust().BCCNo})
        text->clear();
}

}  // namespace torvane
