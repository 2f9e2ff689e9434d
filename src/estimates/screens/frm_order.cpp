#include "estimates/screens/frm_order.h"

#include "masters/screens/frm_customer.h"
#include "screens/fill_names.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr std::string_view boxTitle = "Inventory";

// The texts of the job site: the box, where the estimate keeps it, and where the customer has it.
struct SiteText {
    TextBox* Ui::frmOrder::*box;
    std::string ClsOrder::*site;
    std::string ClsCustomer::*billing;
};
constexpr SiteText siteTexts[] = {
    {&Ui::frmOrder::TxtSstreet1, &ClsOrder::SStreet1, &ClsCustomer::BStreet1},
    {&Ui::frmOrder::TxtSstreet2, &ClsOrder::SStreet2, &ClsCustomer::BStreet2},
    {&Ui::frmOrder::TxtScity, &ClsOrder::SCity, &ClsCustomer::BCity},
    {&Ui::frmOrder::TxtSZip, &ClsOrder::SZip, &ClsCustomer::BZip},
    {&Ui::frmOrder::TxtSCountry, &ClsOrder::SCountry, &ClsCustomer::BCountry},
    {&Ui::frmOrder::TxtSPhone, &ClsOrder::SPhone, &ClsCustomer::BPhone},
    {&Ui::frmOrder::TxtSMobile, &ClsOrder::SMobile, &ClsCustomer::BMobile},
    {&Ui::frmOrder::TxtSEmail, &ClsOrder::SEmail, &ClsCustomer::BEmail},
};

}  // namespace

frmOrder::frmOrder(Program& program, std::function<void(std::int32_t)> showProposal)
    : FormOf(program, "frmOrder"), showProposal_(std::move(showProposal)) {}

frmOrder::~frmOrder() = default;

ClsOrder& frmOrder::Order() {
    if (!order_) order_ = std::make_unique<ClsOrder>(program().dataAccess(), *this);
    return *order_;
}

ClsCustomer& frmOrder::Customer() {
    if (!customer_) customer_ = std::make_unique<ClsCustomer>(program().dataAccess());
    return *customer_;
}

void frmOrder::takeCustomer(std::int32_t CustId, const std::string& name) {
    Order().CustId = CustId;
    ui().TxtCustomer->setText(name);
}

// --- Opening ---------------------------------------------------------------------------------------------------------

void frmOrder::connectControls() {
    const std::pair<QAbstractButton*, void (frmOrder::*)()> clicks[] = {
        {ui().CmdSelCust, &frmOrder::CmdSelCust_Click},   {ui().CmdNewCust, &frmOrder::CmdNewCust_Click},
        {ui().cmdAdd, &frmOrder::cmdAdd_Click},           {ui().cmdEditApply, &frmOrder::cmdEditApply_Click},
        {ui().cmdEditCanc, &frmOrder::cmdEditCanc_Click}, {ui().CmdEdit, &frmOrder::CmdEdit_Click},
        {ui().cmdDel, &frmOrder::cmdDel_Click},           {ui().cmdMove, &frmOrder::cmdMove_Click},
        {ui().cmdImport, &frmOrder::cmdImport_Click},     {ui().cmdCopy, &frmOrder::cmdCopy_Click},
        {ui().Command2, &frmOrder::Command2_Click},       {ui().Command7, &frmOrder::Command7_Click},
        {ui().Command1, &frmOrder::Command1_Click},       {ui().cmdOk, &frmOrder::cmdOk_Click},
        {ui().CmdSave, &frmOrder::CmdSave_Click},         {ui().CmdDeleteOrder, &frmOrder::CmdDeleteOrder_Click},
        {ui().CmdCancel, &frmOrder::CmdCancel_Click},     {ui().cmdMainHelp, &frmOrder::cmdMainHelp_Click},
        {ui().cmdItemList, &frmOrder::cmdItemList_Click},
    };
    for (const auto& [button, handler] : clicks) on(*this, button, &QAbstractButton::clicked, handler);
    on(*this, ui().ListView1, &ReportList::DblClick, &frmOrder::CmdEdit_Click);
    connectPanel();
    for (TextBox* box : {ui().TxtAmount, ui().txtTaxPer, ui().txtOHPer})
        on(*this, box, &QLineEdit::textChanged, &frmOrder::CalFinalTotal);
    for (TextBox* box : {ui().txtLength, ui().txtWidth, ui().txtHeight})
        on(*this, box, &QLineEdit::textChanged, &frmOrder::CalTotalArea);
}

void frmOrder::Form_Load() {
    const Program::Doing doing(program(), "opening the estimate screen");
    connectControls();
    placeNotes();
    if (numberPrompt_) numberPrompt_->Unload();
    program().StartUp(*this);
    setHelpContext(12);
    ui().TxtDate->setDateStyle(program().host().shortDate());
    ui().TxtDate->setValue(program().host().today());
    InitListView();
    FillRooms();
    FillUnits();
    FillItems();
    if (AddOrDelete == "E") {
        setCaption("Edit Estimate");
        FillData();
    } else if (AddOrDelete != "D") {
        FillState();
        ui().TxtOrder->setText(generalText(Order().GetNextOrderNo()));
    } else {
        setCaption("Delete Estimate");
        FillData();
    }
    if (AddOrDelete == "D") {
        for (QWidget* button :
             std::initializer_list<QWidget*>{ui().CmdEdit, ui().cmdAdd, ui().cmdDel, ui().CmdSelCust, ui().CmdNewCust,
                                             ui().cmdEditApply, ui().cmdEditCanc, ui().cmdOk, ui().CmdSave})
            button->setVisible(false);
        ui().CmdDeleteOrder->setVisible(true);
    }
}

void frmOrder::Form_Unload() {
    Order().ClearData();
}

void frmOrder::InitListView() {
    std::vector<ReportList::Column> columns;
    for (const LineColumn& column : lineColumns) columns.push_back({column.header, column.twips, column.numeric});
    ui().ListView1->setColumns(columns);
}

void frmOrder::FillRooms() {
    fillNames(*ui().cmbRooms, Order().GetComboRooms());
}

void frmOrder::FillUnits() {
    fillNames(*ui().cmbUnits, Order().GetComboUnits());
}

void frmOrder::FillState() {
    fillNames(*ui().cmbSState, Order().GetComboState());
}

void frmOrder::FillData() {
    Customer().CustId = narrowToInt16(Order().CustId);
    Customer().GetCustomer();
    ui().TxtCustomer->setText(Customer().CustName);
    ui().TxtOrder->setText(generalText(Order().OrderNo));
    ui().TxtOrder->setEnabled(false);
    for (const SiteText& text : siteTexts) (ui().*text.box)->setText(Order().*text.site);
    ui().TxtAmount->setText(generalText(Order().Amount));
    // The saved grand total stands in the line panel's own box until a line is loaded or a price changes.
    ui().txtTotal->setText(generalText(Order().Total));
    ui().txtTaxPer->setText(generalText(Order().Tax));
    ui().txtOHPer->setText(generalText(Order().Overhead));
    ui().txtNotes->setText(Order().Notes);
    ui().TxtDate->setValue(Order().OrderDate);
    FillState();
    ui().cmbSState->selectItemData(Order().SState);
    loadLines();
}

// --- Header, saving, closing -----------------------------------------------------------------------------------------

void frmOrder::CmdSelCust_Click() {
    customerList_->Which = "S";
    customerList_->ShowModal();
    const Program::Doing doing(program(), "taking over the customer's address");
    Customer().CustId = narrowToInt16(Order().CustId);
    Customer().GetCustomer();
    for (const SiteText& text : siteTexts) (ui().*text.box)->setText(Customer().*text.billing);
    ui().cmbSState->selectItemData(Customer().BState);
}

void frmOrder::CmdNewCust_Click() {
    customerList_->Which = "A";
    customerList_->Show();
}

void frmOrder::CmdSave_Click() {
    const Program::Doing doing(program(), "saving the estimate");
    for (const SiteText& text : siteTexts) Order().*text.site = (ui().*text.box)->Text();
    Order().SState = narrowToInt16(ui().cmbSState->ItemData());
    Order().OrderNo = strictInt32(ui().TxtOrder->Text());
    Order().OrderDate = ui().TxtDate->Value();
    Order().UPSTracking.clear();
    Order().Notes = ui().txtNotes->Text();
    CalTotal();
    Order().Tax = narrowToSingle(lenientNumber(ui().txtTaxPer->Text()));
    Order().Overhead = narrowToSingle(lenientNumber(ui().txtOHPer->Text()));
    Order().Total =
        narrowToSingle(Order().Amount + lenientNumber(ui().txtTax->Text()) + lenientNumber(ui().txtOverhead->Text()));
    if (!Order().Validate()) {
        program().say("Please enter Valid Data", boxTitle);
        return;
    }
    Order().Save();
    program().say("Estimate Saved", boxTitle);
    ClearClass();
    ui().CmdSave->setEnabled(false);
}

void frmOrder::ClearClass() {
    Order().OrderNo = 0;
    Order().ClearEntry();
}

void frmOrder::cmdOk_Click() {
    if (ui().CmdSave->isEnabled()) CmdSave_Click();
}

void frmOrder::CmdCancel_Click() {
    if (program().confirm("Are you sure you want to cancel this screen and discard any changes done?",
                          "Confirm Cancel"))
        Unload();
}

void frmOrder::CmdDeleteOrder_Click() {
    if (!program().confirm("Are you sure you want to Delete Estimate No.  " + generalText(Order().OrderNo),
                           "Estimate deletion"))
        return;
    const Program::Doing doing(program(), "deleting the estimate");
    Order().AddEditDel = "D";
    Order().Delete();
    program().say("Order Deleted", "");
    Unload();
}

void frmOrder::Command1_Click() {
    program().say(
        "In case you made any changes to the proposal, you will need to save your changes first so that the changes "
        "appear in the print out.",
        defaultTitle);
    // From the box: the record is empty after a save.
    showProposal_(strictInt32(ui().TxtOrder->Text()));
}

void frmOrder::cmdMainHelp_Click() {
    program().help(helpContext());
}

}  // namespace torvane
