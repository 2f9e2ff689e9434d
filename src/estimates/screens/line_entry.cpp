#include "estimates/screens/line_entry.h"

#include <set>

#include "estimates/screens/frm_order.h"
#include "masters/cls_category.h"
#include "screens/fill_names.h"
#include "screens/focus_watcher.h"
#include "ui_frm_order.h"
#include "values/numbers.h"

namespace torvane {

// A box that choosing an item fills from its master prices. A price that is changed in it may go back to the item; the
// quantity may not.
struct PriceBox {
    TextBox* Ui_frmOrder::*box;
    PricePart part;
    std::string_view name = {};  // in the question
    void (ClsItem::*update)(std::int32_t itmid, std::string_view prc) = nullptr;
};

namespace {

constexpr std::string_view boxTitle = "Inventory";

// In the order in which they are filled.
constexpr PriceBox priceBoxes[] = {
    {&Ui_frmOrder::TxtMaterial, PricePart::Material, "Material", &ClsItem::Updatematerialprice},
    {&Ui_frmOrder::txtLabor, PricePart::Labor, "Labor", &ClsItem::Updatelabourprice},
    {&Ui_frmOrder::TxtQty, PricePart::Quantity},
    {&Ui_frmOrder::txtExtension, PricePart::SubLabor, "SubLabor", &ClsItem::UpdateSublabourprice},
    {&Ui_frmOrder::txtOthers, PricePart::Equipment, "Equipment", &ClsItem::UpdateEquipmentprice},
};

}  // namespace

Ui_frmOrder& LineEntry::ui() {
    return screen_.ui();
}

void LineEntry::connect() {
    on(screen_, ui().cmbItems, &DropList::Click, [this] { cmbItems_Click(); });
    for (const PriceBox& each : priceBoxes) {
        TextBox* box = ui().*each.box;
        box->setKeyFilter("0123456789.");
        if (!each.update) continue;
        on(screen_, box, &QLineEdit::textChanged, [this] { CalTot(); });
        screen_.program().focusWatcher().watch(screen_, box, [this, &each] { askMasterPrice(each); });
    }
    for (TextBox* box : {ui().TxtAmount, ui().txtTaxPer, ui().txtOHPer})
        on(screen_, box, &QLineEdit::textChanged, [this] { CalFinalTotal(); });
    on(screen_, ui().ListView1, &ReportList::DblClick, [this] { CmdEdit_Click(); });
    on(screen_, ui().cmdAdd, &QAbstractButton::clicked, [this] { cmdAdd_Click(); });
    on(screen_, ui().CmdEdit, &QAbstractButton::clicked, [this] { CmdEdit_Click(); });
    on(screen_, ui().cmdEditApply, &QAbstractButton::clicked, [this] { cmdEditApply_Click(); });
    on(screen_, ui().cmdEditCanc, &QAbstractButton::clicked, [this] { showEditing(false); });
    on(screen_, ui().cmdDel, &QAbstractButton::clicked, [this] { cmdDel_Click(); });
    // A sum is never cut to another one.
    for (TextBox* box : {ui().txtTotal, ui().TxtAmount, ui().txtFinalTotal})
        box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("12345678.90")));
    // The panel keeps its shape when Apply and Cancel stand in the place of Add.
    ui().cmdAdd->setMinimumWidth(ui().cmdEditApply->sizeHint().width());
    QSizePolicy kept = ui().cmdEditCanc->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    ui().cmdEditCanc->setSizePolicy(kept);
}

void LineEntry::InitListView() {
    std::vector<ReportList::Column> columns;
    for (const LineColumn& column : lineColumns) columns.push_back({column.header, column.twips, column.numeric});
    ui().ListView1->setColumns(columns);
}

// --- The line panel --------------------------------------------------------------------------------------------------

void LineEntry::FillItems() {
    pricedEntry_ = -1;
    const std::shared_ptr<const RowArray> items = screen_.Order().GetComboItems();
    std::vector<int> keys;
    keys.reserve(static_cast<std::size_t>(items->rows()));
    for (int row = 0; row < items->rows(); ++row) keys.push_back(toInt32((*items)(0, row)));
    // The prices come first: selecting an item reads them.
    ui().cmbPrices->fill(keys, [items](int row) { return priceEntry(*items, row); });
    ui().cmbItems->fill(keys, [items](int row) { return textOrEmpty((*items)(1, row)); });
    if (keys.empty()) return;
    ui().cmbPrices->select(0);
    ui().cmbItems->select(0);
}

LinePanel LineEntry::panel() {
    return {ui().TxtQty->Text(), ui().TxtMaterial->Text(), ui().txtLabor->Text(), ui().txtExtension->Text(),
            ui().txtOthers->Text()};
}

void LineEntry::cmbItems_Click() {
    pricedEntry_ = ui().cmbItems->ListIndex();
    if (FillingRow) return;
    const Program::Doing doing(screen_.program(), "choosing the item");
    const std::string prices = ui().cmbPrices->List(pricedEntry_);
    for (const PriceBox& each : priceBoxes) (ui().*each.box)->setText(pricePart(prices, each.part));
}

void LineEntry::askMasterPrice(const PriceBox& changed) {
    // The question waits while the list of items is open, and the list has the next item by then.
    if (pricedEntry_ < 0) return;
    const TextBox& box = *(ui().*changed.box);
    if (box.Text() == pricePart(ui().cmbPrices->List(pricedEntry_), changed.part)) return;
    if (!screen_.program().confirm("You have changed the " + std::string(changed.name) +
                                       " Price. Do you want to update this price in Main File?",
                                   "Change master file price?"))
        return;
    const Program::Doing doing(screen_.program(), "writing the price to the catalog");
    ClsItem master(screen_.program().dataAccess());
    (master.*changed.update)(ui().cmbItems->ItemData(pricedEntry_), box.Text());
}

void LineEntry::readItem(ClsItem& item) {
    item.GetItem();
    clsCategory category(screen_.program().dataAccess());
    category.Catid = item.CategoryId;
    category.GetCatg();
}

bool LineEntry::quantityMissing() {
    if (lenientNumber(ui().TxtQty->Text()) != 0) return false;
    screen_.program().say("Please enter Quanttity", boxTitle);
    return true;
}

bool LineEntry::alreadyAdded(std::int32_t itemId, std::int32_t leaveOut) {
    const LineKey key{itemId, ui().cmbRooms->ItemData(), ui().cmbUnits->ItemData()};
    std::int32_t index = 0;
    for (const auto& line : screen_.Order().ColnOrderItems().NewEnum()) {
        if (++index == leaveOut || keyOf(*line) != key) continue;
        screen_.program().say("Item already added ", boxTitle);
        return true;
    }
    return false;
}

LineNames LineEntry::names(std::int32_t itemId, std::string item) {
    return {itemId,
            std::move(item),
            ui().cmbRooms->ItemData(),
            ui().cmbRooms->Text(),
            ui().cmbUnits->ItemData(),
            ui().cmbUnits->Text()};
}

LineRow LineEntry::panelRow(std::int32_t itemId) {
    return enteredRow(names(itemId, ui().cmbItems->Text()), panel());
}

LineRow LineEntry::listedRow(int row) {
    LineRow texts;
    for (int column = 0; column < std::ssize(lineColumns); ++column) texts.push_back(ui().ListView1->Cell(row, column));
    return texts;
}

void LineEntry::loadLines() {
    const auto& lines = screen_.Order().ColnOrderItems().NewEnum();
    std::vector<ClsItem*> items;
    items.reserve(lines.size());
    for (const auto& line : lines) items.push_back(line->Item.get());
    if (!items.empty()) items.front()->GetItems(items);
    std::set<std::int16_t> categories;
    for (const ClsItem* item : items) categories.insert(item->CategoryId);
    clsCategory(screen_.program().dataAccess()).GetCategories(categories);
    std::vector<LineRow> rows;
    rows.reserve(lines.size());
    for (const auto& line : lines) {
        ui().cmbRooms->selectItemData(line->mvarRoomId);
        ui().cmbUnits->selectItemData(line->mvarUnitId);
        rows.push_back(storedRow(names(line->Item->itemid, line->Item->Itemname), *line));
    }
    ui().ListView1->AddRows(rows);
}

void LineEntry::cmdAdd_Click() {
    if (quantityMissing()) return;
    const Program::Doing doing(screen_.program(), "adding the line");
    CurrentItemId = ui().cmbItems->ItemData();
    if (alreadyAdded(CurrentItemId, 0)) return;
    const LineAmounts amounts = lineAmounts(panel());
    ClsOrderItems& line = screen_.Order().ColnOrderItems().Add(
        Value{std::int64_t{CurrentItemId}}, amounts.quantity, amounts.material,
        Value{std::int64_t{ui().cmbRooms->ItemData()}}, Value{std::int64_t{ui().cmbUnits->ItemData()}},
        amounts.extension, amounts.labor, amounts.others);
    readItem(*line.Item);
    ui().ListView1->AddRow(panelRow(line.Item->itemid));
    CalTotal();
}

int LineEntry::selectedRow() {
    const int row = ui().ListView1->SelectedRow();
    if (row < 0) fail(Failure::ObjectNotSet);
    return row;
}

void LineEntry::showEditing(bool editing) {
    ui().cmdAdd->setVisible(!editing);
    ui().cmdEditApply->setVisible(editing);
    ui().cmdEditCanc->setVisible(editing);
}

void LineEntry::CmdEdit_Click() {
    const Program::Doing doing(screen_.program(), "taking the line into the boxes");
    if (ui().ListView1->RowCount() == 0) {
        screen_.program().say("No item to Edit", boxTitle);
        return;
    }
    const int selected = selectedRow();
    const LineRow row = listedRow(selected);
    const LineKey key = keyOf(row);
    FillingRow = true;
    ui().cmbRooms->selectItemData(key.roomId);
    ui().TxtQty->setText(row[LineColumn::quantity]);
    ui().cmbUnits->selectItemData(key.unitId);
    ui().cmbItems->selectItemData(key.itemId);
    ui().TxtMaterial->setText(unitPriceText(row[LineColumn::quantity], row[LineColumn::material]));
    ui().txtLabor->setText(row[LineColumn::labor]);
    ui().txtExtension->setText(row[LineColumn::subLabor]);
    ui().txtOthers->setText(row[LineColumn::others]);
    ui().txtTotal->setText(generalText(lineAmounts(panel()).total));
    ClsItem item(screen_.program().dataAccess());
    item.itemid = narrowToInt16(key.itemId);
    item.GetItem();
    showEditing(true);
    CurrentItemId = key.itemId;
    EditRowIndex = narrowToInt16(selected);
    std::int32_t index = 0;
    for (const auto& line : screen_.Order().ColnOrderItems().NewEnum()) {
        ++index;
        if (keyOf(*line) == key) EditLineIndex = narrowToInt16(index);
    }
    FillingRow = false;
}

void LineEntry::cmdEditApply_Click() {
    if (quantityMissing()) return;
    const Program::Doing doing(screen_.program(), "changing the line");
    if (alreadyAdded(CurrentItemId, EditLineIndex)) return;
    CurrentItemId = ui().cmbItems->ItemData();
    strictInt32(ui().TxtQty->Text());  // only its failure matters
    ClsItem item(screen_.program().dataAccess());
    item.itemid = narrowToInt16(CurrentItemId);
    const LineAmounts amounts = lineAmounts(panel());
    // The line keeps its item, also when another one has been chosen.
    ClsOrderItems& line = screen_.Order().ColnOrderItems().Item(EditLineIndex);
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

void LineEntry::cmdDel_Click() {
    ReportList& list = *ui().ListView1;
    if (list.RowCount() == 0) {
        screen_.program().say("No item to Delete", boxTitle);
        return;
    }
    if (!screen_.program().confirm("Do you want to delete selected item from the list?", "Confirm Deletion")) return;
    const int row = selectedRow();
    const LineKey key = keyOf(listedRow(row));
    auto& lines = screen_.Order().ColnOrderItems();
    for (std::int32_t i = lines.Count(); i >= 1; --i)
        if (keyOf(lines.Item(i)) == key) lines.Remove(i);
    list.RemoveRow(row);
    CalTotal();
}

// --- Totals ----------------------------------------------------------------------------------------------------------

void LineEntry::CalTotal() {
    std::vector<std::string> totals;
    const int rows = ui().ListView1->RowCount();
    totals.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) totals.push_back(ui().ListView1->Cell(row, LineColumn::total));
    screen_.Order().Amount = sumOfTotals(totals);
    ui().TxtAmount->setText(generalText(screen_.Order().Amount));
    CalFinalTotal();
}

void LineEntry::CalTot() {
    const Program::Doing doing(screen_.program(), "computing the line");
    ui().txtTotal->setText(generalText(panelTotal(panel())));
}

void LineEntry::CalFinalTotal() {
    const Program::Doing doing(screen_.program(), "computing the totals");
    const TotalTexts texts = totalTexts(ui().TxtAmount->Text(), ui().txtTaxPer->Text(), ui().txtOHPer->Text());
    ui().txtTax->setText(texts.tax);
    ui().txtOverhead->setText(texts.overhead);
    ui().txtFinalTotal->setText(texts.finalTotal);
}

}  // namespace torvane
