#include "estimates/screens/frm_order.h"

#include "masters/screens/frm_customer.h"
#include "platform/fill_names.h"
#include "platform/focus_watcher.h"
#include "platform/help_contexts.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr std::string_view boxTitle = "Inventory";
// Columns of the list of lines that code reads by index.
constexpr int itemIdColumn = 0;
constexpr int quantityColumn = 2;
constexpr int materialColumn = 5;
constexpr int laborColumn = 6;
constexpr int subLaborColumn = 7;
constexpr int othersColumn = 8;
constexpr int totalColumn = 9;
constexpr int roomIdColumn = 10;
constexpr int unitIdColumn = 11;

}  // namespace

frmOrder::frmOrder(Program& program, std::function<void(std::int32_t)> showProposal)
    : FormOf(program, "frmOrder"), showProposal_(std::move(showProposal)) {}

frmOrder::~frmOrder() = default;

ClsOrder& frmOrder::Order() {
    if (!order_) order_ = std::make_unique<ClsOrder>(program().environment(), *this);
    return *order_;
}

ClsCustomer& frmOrder::Customer() {
    if (!customer_) customer_ = std::make_unique<ClsCustomer>(program().environment());
    return *customer_;
}

void frmOrder::takeCustomer(std::int32_t CustId, const std::string& name) {
    Order().CustId = CustId;
    ui().TxtCustomer->setText(name);
}

// --- Opening ---------------------------------------------------------------------------------------------------------

void frmOrder::connectControls() {
    const auto click = [this](auto* control, void (frmOrder::*handler)()) {
        on(*this, control, &QAbstractButton::clicked, handler);
    };
    click(ui().CmdSelCust, &frmOrder::CmdSelCust_Click);
    click(ui().CmdNewCust, &frmOrder::CmdNewCust_Click);
    click(ui().cmdAdd, &frmOrder::cmdAdd_Click);
    click(ui().cmdEditApply, &frmOrder::cmdEditApply_Click);
    click(ui().cmdEditCanc, &frmOrder::cmdEditCanc_Click);
    click(ui().CmdEdit, &frmOrder::CmdEdit_Click);
    click(ui().cmdDel, &frmOrder::cmdDel_Click);
    click(ui().cmdMove, &frmOrder::cmdMove_Click);
    click(ui().cmdImport, &frmOrder::cmdImport_Click);
    click(ui().cmdCopy, &frmOrder::cmdCopy_Click);
    click(ui().Command2, &frmOrder::Command2_Click);
    click(ui().Command7, &frmOrder::Command7_Click);
    click(ui().Command1, &frmOrder::Command1_Click);
    click(ui().cmdOk, &frmOrder::cmdOk_Click);
    click(ui().CmdSave, &frmOrder::CmdSave_Click);
    click(ui().CmdDeleteOrder, &frmOrder::CmdDeleteOrder_Click);
    click(ui().CmdCancel, &frmOrder::CmdCancel_Click);
    click(ui().cmdMainHelp, &frmOrder::cmdMainHelp_Click);
    click(ui().cmdItemList, &frmOrder::cmdItemList_Click);

    on(*this, ui().ListView1, &ReportList::DblClick, &frmOrder::CmdEdit_Click);
    on(*this, ui().cmbItems, &DropList::Click, &frmOrder::cmbItems_Click);

    for (TextBox* box : {ui().TxtMaterial, ui().txtLabor, ui().txtExtension, ui().txtOthers})
        on(*this, box, &QLineEdit::textChanged, &frmOrder::CalTot);
    for (TextBox* box : {ui().TxtAmount, ui().txtTaxPer, ui().txtOHPer})
        on(*this, box, &QLineEdit::textChanged, &frmOrder::CalFinalTotal);
    for (TextBox* box : {ui().txtLength, ui().txtWidth, ui().txtHeight})
        on(*this, box, &QLineEdit::textChanged, &frmOrder::CalTotalArea);
    for (TextBox* box : {ui().TxtQty, ui().TxtMaterial, ui().txtLabor, ui().txtExtension, ui().txtOthers})
        box->setKeyFilter("0123456789.");

    const auto lostFocus = [this](TextBox* box, PricePart part, std::string_view prompt,
                                  void (ClsItem::*update)(std::int32_t, std::string_view)) {
        program().focusWatcher().watch(*this, box, [=, this] { askMasterPrice(*box, part, prompt, update); });
    };
    lostFocus(ui().TxtMaterial, PricePart::Material,
              "You have changed the Material Price. Do you want to update this price in Main File?",
              &ClsItem::Updatematerialprice);
    lostFocus(ui().txtLabor, PricePart::Labor,
              "You have changed the Labor Price. Do you want to update this price in Main File?",
              &ClsItem::Updatelabourprice);
    lostFocus(ui().txtExtension, PricePart::SubLabor,
              "You have changed the SubLabor Price. Do you want to update this price in Main File?",
              &ClsItem::UpdateSublabourprice);
    lostFocus(ui().txtOthers, PricePart::Equipment,
              "You have changed the Equipment Price. Do you want to update this price in Main File?",
              &ClsItem::UpdateEquipmentprice);
}

void frmOrder::Form_Load() {
    const Program::Doing doing(program(), "opening the estimate screen");
    connectControls();
    placeNotes();
    if (numberPrompt_) numberPrompt_->Unload();
    program().StartUp(*this);
    setHelpContext(HelpContext::estimate);
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
    ui().ListView1->setColumns({{"Item ID", 0},
                                {"Takeoff Name", 1800},
                                {"Quantity", 1200, true},
                                {"Unit", 1200},
                                {"Item Name", 1800},
                                {"Material", 1200, true},
                                {"Labor", 1200, true},
                                {"Sub-Labor", 1200, true},
                                {"Others", 1200, true},
                                {"Total", 1200, true},
                                {"Roomid", 0},
                                {"Unitid", 0}});
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

void frmOrder::FillItems() {
    ui().cmbItems->Clear();
    ui().cmbPrices->Clear();
    pricedEntry_ = -1;
    const auto items = Order().GetComboItems();
    if (!items) return;
    std::vector<DropList::Entry> names;
    std::vector<DropList::Entry> prices;
    names.reserve(static_cast<std::size_t>(items->rows()));
    prices.reserve(static_cast<std::size_t>(items->rows()));
    for (int row = 0; row < items->rows(); ++row) {
        const std::int32_t key = toInt32((*items)(0, row));
        names.push_back({textOrEmpty((*items)(1, row)), key});
        prices.push_back({priceEntry(*items, row), key});
    }
    ui().cmbItems->fill(std::move(names));
    ui().cmbPrices->fill(std::move(prices));
    ui().cmbPrices->select(0);
    ui().cmbItems->select(0);
}

void frmOrder::FillData() {
    Customer().CustId = narrowToInt16(Order().CustId);
    Customer().GetCustomer();
    ui().TxtCustomer->setText(Customer().CustName);
    ui().TxtOrder->setText(generalText(Order().OrderNo));
    ui().TxtOrder->setEnabled(false);
    ui().TxtSstreet1->setText(Order().SStreet1);
    ui().TxtSstreet2->setText(Order().SStreet2);
    ui().TxtScity->setText(Order().SCity);
    ui().TxtSZip->setText(Order().SZip);
    ui().TxtSCountry->setText(Order().SCountry);
    ui().TxtSPhone->setText(Order().SPhone);
    ui().TxtSMobile->setText(Order().SMobile);
    ui().TxtSEmail->setText(Order().SEmail);
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

void frmOrder::loadLines() {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(static_cast<std::size_t>(Order().ColnOrderItems().Count()));
    for (const auto& line : Order().ColnOrderItems().NewEnum()) {
        const LineAmounts amounts = loadedAmounts(*line);
        readItem(*line->Item);
        ui().cmbRooms->selectItemData(line->mvarRoomId);
        ui().cmbUnits->selectItemData(line->mvarUnitId);
        rows.push_back({generalText(line->Item->itemid), ui().cmbRooms->Text(), generalText(amounts.quantity),
                        ui().cmbUnits->Text(), line->Item->Itemname, generalText(amounts.material),
                        generalText(amounts.labor), generalText(line->mvarExtension), generalText(line->mvarOthers),
                        generalText(amounts.total), generalText(ui().cmbRooms->ItemData()),
                        generalText(ui().cmbUnits->ItemData())});
    }
    ui().ListView1->AddRows(rows);
}

// --- Header, saving, closing -----------------------------------------------------------------------------------------

void frmOrder::CmdSelCust_Click() {
    customerList_->Which = "S";
    customerList_->ShowModal();
    Customer().CustId = narrowToInt16(Order().CustId);
    Customer().GetCustomer();
    ui().TxtScity->setText(Customer().BCity);
    ui().TxtSCountry->setText(Customer().BCountry);
    ui().TxtSEmail->setText(Customer().BEmail);
    ui().TxtSMobile->setText(Customer().BMobile);
    ui().TxtSPhone->setText(Customer().BPhone);
    ui().TxtSstreet1->setText(Customer().BStreet1);
    ui().TxtSstreet2->setText(Customer().BStreet2);
    ui().cmbSState->selectItemData(Customer().BState);
    ui().TxtSZip->setText(Customer().BZip);
}

void frmOrder::CmdNewCust_Click() {
    customerList_->Which = "A";
    customerList_->Show();
}

void frmOrder::CmdSave_Click() {
    const Program::Doing doing(program(), "saving the estimate");
    Order().SStreet1 = ui().TxtSstreet1->Text();
    Order().SStreet2 = ui().TxtSstreet2->Text();
    Order().SCity = ui().TxtScity->Text();
    Order().SState = narrowToInt16(ui().cmbSState->ItemData());
    Order().SZip = ui().TxtSZip->Text();
    Order().SCountry = ui().TxtSCountry->Text();
    Order().SPhone = ui().TxtSPhone->Text();
    Order().SMobile = ui().TxtSMobile->Text();
    Order().SEmail = ui().TxtSEmail->Text();
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
    Order().CustId = 0;
    Order().OrderDate = program().host().today();
    Order().SState = 0;
    for (std::string* text : {&Order().SStreet1, &Order().SStreet2, &Order().SCity, &Order().SZip, &Order().SCountry,
                              &Order().SPhone, &Order().SMobile, &Order().SEmail, &Order().UPSTracking, &Order().Notes})
        text->clear();
    Order().ClearLines();
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

// --- The line panel --------------------------------------------------------------------------------------------------

LinePanel frmOrder::panel() {
    return {ui().TxtQty->Text(), ui().TxtMaterial->Text(), ui().txtLabor->Text(), ui().txtExtension->Text(),
            ui().txtOthers->Text()};
}

void frmOrder::cmbItems_Click() {
    pricedEntry_ = ui().cmbItems->ListIndex();
    if (FillingRow) return;
    const std::string prices = ui().cmbPrices->List(pricedEntry_);
    ui().TxtMaterial->setText(pricePart(prices, PricePart::Material));
    ui().txtLabor->setText(pricePart(prices, PricePart::Labor));
    ui().TxtQty->setText(pricePart(prices, PricePart::Quantity));
    ui().txtExtension->setText(pricePart(prices, PricePart::SubLabor));
    ui().txtOthers->setText(pricePart(prices, PricePart::Equipment));
}

void frmOrder::askMasterPrice(const TextBox& box, PricePart part, std::string_view prompt,
                              void (ClsItem::*update)(std::int32_t, std::string_view)) {
    // The question waits while the list of items is open, and the list has the next item by then.
    if (pricedEntry_ < 0) return;
    if (box.Text() == pricePart(ui().cmbPrices->List(pricedEntry_), part)) return;
    if (!program().confirm(prompt, "Change master file price?")) return;
    const Program::Doing doing(program(), "writing the price to the catalogue");
    ClsItem master(program().environment());
    (master.*update)(ui().cmbItems->ItemData(pricedEntry_), box.Text());
}

void frmOrder::readItem(ClsItem& item) {
    item.GetItem();
    if (!category_) category_ = std::make_unique<clsCategory>(program().environment());
    category_->Catid = item.CategoryId;
    category_->GetCatg();
}

bool frmOrder::alreadyAdded(std::int32_t itemId, std::int32_t leaveOut) {
    const int room = ui().cmbRooms->ItemData();
    const int unit = ui().cmbUnits->ItemData();
    std::int32_t index = 0;
    for (const auto& line : Order().ColnOrderItems().NewEnum()) {
        ++index;
        if (line->Item->itemid == itemId && line->mvarRoomId == room && line->mvarUnitId == unit && index != leaveOut) {
            program().say("Item already added ", boxTitle);
            return true;
        }
    }
    return false;
}

// The row of the list that the panel stands for.
std::vector<std::string> frmOrder::panelRow(std::int16_t itemid) {
    const LineAmounts amounts = lineAmounts(panel());
    return {generalText(itemid),
            ui().cmbRooms->Text(),
            generalText(amounts.quantity),
            ui().cmbUnits->Text(),
            ui().cmbItems->Text(),
            generalText(amounts.material),
            generalText(amounts.labor),
            generalText(amounts.extension),
            generalText(amounts.others),
            generalText(amounts.total),
            generalText(ui().cmbRooms->ItemData()),
            generalText(ui().cmbUnits->ItemData())};
}

void frmOrder::cmdAdd_Click() {
    if (lenientNumber(ui().TxtQty->Text()) == 0) {
        program().say("Please enter Quanttity", boxTitle);
        return;
    }
    const Program::Doing doing(program(), "adding the line");
    CurrentItemId = ui().cmbItems->ItemData();
    if (alreadyAdded(CurrentItemId, 0)) return;
    const LineAmounts amounts = lineAmounts(panel());
    ClsOrderItems& line = Order().ColnOrderItems().Add(Value{std::int64_t{CurrentItemId}}, amounts.quantity,
                                                       amounts.material, Value{std::int64_t{ui().cmbRooms->ItemData()}},
                                                       Value{std::int64_t{ui().cmbUnits->ItemData()}},
                                                       amounts.extension, amounts.labor, amounts.others);
    readItem(*line.Item);
    ui().ListView1->AddRow(panelRow(line.Item->itemid));
    CalTotal();
}

int frmOrder::selectedRow() {
    const int row = ui().ListView1->SelectedRow();
    if (row < 0) fail(Failure::ObjectNotSet);
    return row;
}

void frmOrder::showEditing(bool editing) {
    ui().cmdAdd->setVisible(!editing);
    ui().cmdEditApply->setVisible(editing);
    ui().cmdEditCanc->setVisible(editing);
}

void frmOrder::CmdEdit_Click() {
    ReportList& list = *ui().ListView1;
    if (list.RowCount() == 0) {
        program().say("No item to Edit", boxTitle);
        return;
    }
    const int row = selectedRow();
    FillingRow = true;
    ui().cmbRooms->selectItemData(strictInt32(list.Cell(row, roomIdColumn)));
    ui().TxtQty->setText(list.Cell(row, quantityColumn));
    ui().cmbUnits->selectItemData(strictInt32(list.Cell(row, unitIdColumn)));
    ui().cmbItems->selectItemData(strictInt32(list.Cell(row, itemIdColumn)));
    ui().TxtMaterial->setText(unitPriceText(ui().TxtQty->Text(), list.Cell(row, materialColumn)));
    ui().txtLabor->setText(list.Cell(row, laborColumn));
    ui().txtExtension->setText(list.Cell(row, subLaborColumn));
    ui().txtOthers->setText(list.Cell(row, othersColumn));
    ui().txtTotal->setText(generalText(lineAmounts(panel()).total));
    ClsItem item(program().environment());
    item.itemid = strictInt16(list.Cell(row, itemIdColumn));
    item.GetItem();
    showEditing(true);
    CurrentItemId = strictInt32(list.Cell(row, itemIdColumn));
    EditRowIndex = narrowToInt16(row);
    const double itemId = lenientNumber(list.Cell(row, itemIdColumn));
    const double roomId = lenientNumber(list.Cell(row, roomIdColumn));
    const double unitId = lenientNumber(list.Cell(row, unitIdColumn));
    std::int32_t index = 0;
    for (const auto& line : Order().ColnOrderItems().NewEnum()) {
        ++index;
        if (line->Item->itemid == itemId && line->mvarRoomId == roomId && line->mvarUnitId == unitId)
            EditLineIndex = narrowToInt16(index);
    }
    FillingRow = false;
}

void frmOrder::cmdEditApply_Click() {
    if (lenientNumber(ui().TxtQty->Text()) == 0) {
        program().say("Please enter Quanttity", boxTitle);
        return;
    }
    const Program::Doing doing(program(), "changing the line");
    if (alreadyAdded(CurrentItemId, EditLineIndex)) return;
    CurrentItemId = ui().cmbItems->ItemData();
    strictInt32(ui().TxtQty->Text());  // only its failure matters
    ClsItem item(program().environment());
    item.itemid = narrowToInt16(CurrentItemId);
    const LineAmounts amounts = lineAmounts(panel());
    // The line keeps its item, also when another one has been chosen.
    ClsOrderItems& line = Order().ColnOrderItems().Item(EditLineIndex);
    line.mvarRoomId = narrowToInt16(ui().cmbRooms->ItemData());
    line.mvarQty = narrowToSingle(amounts.quantity);
    line.mvarUnitId = narrowToInt16(ui().cmbUnits->ItemData());
    line.mvarMaterial = narrowToSingle(amounts.material);
    line.mvarLabor = narrowToSingle(amounts.labor);
    line.mvarExtension = narrowToSingle(amounts.extension);
    line.mvarOthers = narrowToSingle(amounts.others);
    readItem(item);
    ui().ListView1->setRow(EditRowIndex, panelRow(item.itemid));
    showEditing(false);
    CalTotal();
}

void frmOrder::cmdEditCanc_Click() {
    showEditing(false);
}

void frmOrder::cmdDel_Click() {
    ReportList& list = *ui().ListView1;
    if (list.RowCount() == 0) {
        program().say("No item to Delete", boxTitle);
        return;
    }
    if (!program().confirm("Do you want to delete selected item from the list?", "Confirm Deletion")) return;
    const int row = selectedRow();
    const double itemId = strictDouble(list.Cell(row, itemIdColumn));
    const double roomId = strictDouble(list.Cell(row, roomIdColumn));
    const double unitId = strictDouble(list.Cell(row, unitIdColumn));
    auto& lines = Order().ColnOrderItems();
    for (std::int32_t i = lines.Count(); i >= 1; --i) {
        const ClsOrderItems& line = lines.Item(i);
        if (line.Item->itemid == itemId && line.mvarRoomId == roomId && line.mvarUnitId == unitId) lines.Remove(i);
    }
    list.RemoveRow(row);
    CalTotal();
}

// --- Totals ----------------------------------------------------------------------------------------------------------

void frmOrder::CalTotal() {
    std::vector<std::string> totals;
    const int rows = ui().ListView1->RowCount();
    totals.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) totals.push_back(ui().ListView1->Cell(row, totalColumn));
    Order().Amount = sumOfTotals(totals);
    ui().TxtAmount->setText(generalText(Order().Amount));
    CalFinalTotal();
}

void frmOrder::CalTot() {
    ui().txtTotal->setText(generalText(panelTotal(panel())));
}

void frmOrder::CalFinalTotal() {
    const TotalTexts texts = totalTexts(ui().TxtAmount->Text(), ui().txtTaxPer->Text(), ui().txtOHPer->Text());
    ui().txtTax->setText(texts.tax);
    ui().txtOverhead->setText(texts.overhead);
    ui().txtFinalTotal->setText(texts.finalTotal);
}

}  // namespace torvane
