// The line panel, the list of lines and the totals.

#include "estimates/line_row.h"
#include "estimates/screens/frm_order.h"
#include "screens/focus_watcher.h"
#include "values/numbers.h"

namespace torvane {

// A box that choosing an item fills from its master prices. A price that is changed in it may go back to the item; the
// quantity may not.
struct PriceBox {
    TextBox* Ui::frmOrder::*box;
    PricePart part;
    std::string_view name = {};  // in the question
    void (ClsItem::*update)(std::int32_t itmid, std::string_view prc) = nullptr;
};

namespace {

constexpr std::string_view boxTitle = "Inventory";

// In the order in which they are filled.
constexpr PriceBox priceBoxes[] = {
    {&Ui::frmOrder::TxtMaterial, PricePart::Material, "Material", &ClsItem::Updatematerialprice},
    {&Ui::frmOrder::txtLabor, PricePart::Labor, "Labor", &ClsItem::Updatelabourprice},
    {&Ui::frmOrder::TxtQty, PricePart::Quantity},
    {&Ui::frmOrder::txtExtension, PricePart::SubLabor, "SubLabor", &ClsItem::UpdateSublabourprice},
    {&Ui::frmOrder::txtOthers, PricePart::Equipment, "Equipment", &ClsItem::UpdateEquipmentprice},
};

}  // namespace

// --- The line panel --------------------------------------------------------------------------------------------------

void frmOrder::connectPanel() {
    on(*this, ui().cmbItems, &DropList::Click, &frmOrder::cmbItems_Click);
    for (const PriceBox& each : priceBoxes) {
        TextBox* box = ui().*each.box;
        box->setKeyFilter("0123456789.");
        if (!each.update) continue;
        on(*this, box, &QLineEdit::textChanged, &frmOrder::CalTot);
        program().focusWatcher().watch(*this, box, [this, &each] { askMasterPrice(each); });
    }
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
    ui().cmbItems->fill(names);
    ui().cmbPrices->fill(prices);
    ui().cmbPrices->select(0);
    ui().cmbItems->select(0);
}

LinePanel frmOrder::panel() {
    return {ui().TxtQty->Text(), ui().TxtMaterial->Text(), ui().txtLabor->Text(), ui().txtExtension->Text(),
            ui().txtOthers->Text()};
}

void frmOrder::cmbItems_Click() {
    pricedEntry_ = ui().cmbItems->ListIndex();
    if (FillingRow) return;
    const Program::Doing doing(program(), "choosing the item");
    const std::string prices = ui().cmbPrices->List(pricedEntry_);
    for (const PriceBox& each : priceBoxes) (ui().*each.box)->setText(pricePart(prices, each.part));
}

void frmOrder::askMasterPrice(const PriceBox& changed) {
    // The question waits while the list of items is open, and the list has the next item by then.
    if (pricedEntry_ < 0) return;
    const TextBox& box = *(ui().*changed.box);
    if (box.Text() == pricePart(ui().cmbPrices->List(pricedEntry_), changed.part)) return;
    if (!program().confirm("You have changed the " + std::string(changed.name) +
                               " Price. Do you want to update this price in Main File?",
                           "Change master file price?"))
        return;
    const Program::Doing doing(program(), "writing the price to the catalogue");
    ClsItem master(program().dataAccess());
    (master.*changed.update)(ui().cmbItems->ItemData(pricedEntry_), box.Text());
}

void frmOrder::readItem(ClsItem& item) {
    item.GetItem();
    if (!category_) category_ = std::make_unique<clsCategory>(program().dataAccess());
    category_->Catid = item.CategoryId;
    category_->GetCatg();
}

bool frmOrder::quantityMissing() {
    if (lenientNumber(ui().TxtQty->Text()) != 0) return false;
    program().say("Please enter Quanttity", boxTitle);
    return true;
}

bool frmOrder::alreadyAdded(std::int32_t itemId, std::int32_t leaveOut) {
    const LineKey key{itemId, ui().cmbRooms->ItemData(), ui().cmbUnits->ItemData()};
    std::int32_t index = 0;
    for (const auto& line : Order().ColnOrderItems().NewEnum()) {
        if (++index == leaveOut || keyOf(*line) != key) continue;
        program().say("Item already added ", boxTitle);
        return true;
    }
    return false;
}

LineNames frmOrder::names(std::int32_t itemId, std::string item) {
    return {itemId,
            std::move(item),
            ui().cmbRooms->ItemData(),
            ui().cmbRooms->Text(),
            ui().cmbUnits->ItemData(),
            ui().cmbUnits->Text()};
}

// The row of the list that the panel stands for.
std::vector<std::string> frmOrder::panelRow(std::int32_t itemId) {
    return cellsOf(enteredRow(names(itemId, ui().cmbItems->Text()), panel()));
}

LineRow frmOrder::listedRow(int row) {
    LineRow line;
    for (const LineColumn& column : lineColumns) line.*column.text = ui().ListView1->Cell(row, columnOf(column.text));
    return line;
}

void frmOrder::loadLines() {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(static_cast<std::size_t>(Order().ColnOrderItems().Count()));
    for (const auto& line : Order().ColnOrderItems().NewEnum()) {
        readItem(*line->Item);
        ui().cmbRooms->selectItemData(line->mvarRoomId);
        ui().cmbUnits->selectItemData(line->mvarUnitId);
        rows.push_back(cellsOf(storedRow(names(line->Item->itemid, line->Item->Itemname), *line)));
    }
    ui().ListView1->AddRows(rows);
}

void frmOrder::cmdAdd_Click() {
    if (quantityMissing()) return;
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
    const Program::Doing doing(program(), "taking the line into the boxes");
    if (ui().ListView1->RowCount() == 0) {
        program().say("No item to Edit", boxTitle);
        return;
    }
    const int selected = selectedRow();
    const LineRow row = listedRow(selected);
    const LineKey key = keyOf(row);
    FillingRow = true;
    ui().cmbRooms->selectItemData(key.roomId);
    ui().TxtQty->setText(row.quantity);
    ui().cmbUnits->selectItemData(key.unitId);
    ui().cmbItems->selectItemData(key.itemId);
    ui().TxtMaterial->setText(unitPriceText(row.quantity, row.material));
    ui().txtLabor->setText(row.labor);
    ui().txtExtension->setText(row.subLabor);
    ui().txtOthers->setText(row.others);
    ui().txtTotal->setText(generalText(lineAmounts(panel()).total));
    ClsItem item(program().dataAccess());
    item.itemid = narrowToInt16(key.itemId);
    item.GetItem();
    showEditing(true);
    CurrentItemId = key.itemId;
    EditRowIndex = narrowToInt16(selected);
    std::int32_t index = 0;
    for (const auto& line : Order().ColnOrderItems().NewEnum()) {
        ++index;
        if (keyOf(*line) == key) EditLineIndex = narrowToInt16(index);
    }
    FillingRow = false;
}

void frmOrder::cmdEditApply_Click() {
    if (quantityMissing()) return;
    const Program::Doing doing(program(), "changing the line");
    if (alreadyAdded(CurrentItemId, EditLineIndex)) return;
    CurrentItemId = ui().cmbItems->ItemData();
    strictInt32(ui().TxtQty->Text());  // only its failure matters
    ClsItem item(program().dataAccess());
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
    const LineKey key = keyOf(listedRow(row));
    auto& lines = Order().ColnOrderItems();
    for (std::int32_t i = lines.Count(); i >= 1; --i)
        if (keyOf(lines.Item(i)) == key) lines.Remove(i);
    list.RemoveRow(row);
    CalTotal();
}

// --- Totals ----------------------------------------------------------------------------------------------------------

void frmOrder::CalTotal() {
    std::vector<std::string> totals;
    const int rows = ui().ListView1->RowCount();
    totals.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) totals.push_back(ui().ListView1->Cell(row, columnOf(&LineRow::total)));
    Order().Amount = sumOfTotals(totals);
    ui().TxtAmount->setText(generalText(Order().Amount));
    CalFinalTotal();
}

void frmOrder::CalTot() {
    const Program::Doing doing(program(), "computing the line");
    ui().txtTotal->setText(generalText(panelTotal(panel())));
}

void frmOrder::CalFinalTotal() {
    const Program::Doing doing(program(), "computing the totals");
    const TotalTexts texts = totalTexts(ui().TxtAmount->Text(), ui().txtTaxPer->Text(), ui().txtOHPer->Text());
    ui().txtTax->setText(texts.tax);
    ui().txtOverhead->setText(texts.overhead);
    ui().txtFinalTotal->setText(texts.finalTotal);
}

}  // namespace torvane
