#include "masters/screens/item_mast.h"

#include <QLabel>

#include "masters/screens/frm_category.h"
#include "masters/screens/frm_item.h"
#include "screens/fill_names.h"
#include "values/numbers.h"

namespace torvane {

ItemMast::ItemMast(Program& program, frmItem& list, frmCategory& categories)
    : FormOf(program, "ItemMast"),
      list_(list),
      categories_(categories),
      buttons_(*this, {
                          .controls = [this]() -> EntryButtons::Controls {
                              return {ui().cmdOk, ui().CmdSave, ui().CmdCancel, ui().cmdMainHelp};
                          },
                          .copyToRecord = [this] { copyToRecord(); },
                          .validate = [this] { return Item().Validate(); },
                          .save = [this] { Item().Save(); },
                          .saved = " Item Saved",
                          .ClearClass = [this] { ClearClass(); },
                          .refreshList = [this] { list_.RefreshGrid(); },
                      }) {
    setHelpContext(51);
    categories_.setPick(*this);
}

ClsItem& ItemMast::Item() {
    if (!item_) item_ = std::make_unique<ClsItem>(program().dataAccess());
    return *item_;
}

void ItemMast::takeCategory(std::int16_t CategoryId, const std::string& name) {
    Item().CategoryId = CategoryId;
    ui().txtCatName->setText(name);
}

void ItemMast::Form_Load() {
    const Program::Doing doing(program(), "opening the item form");
    category_ = std::make_unique<clsCategory>(program().dataAccess());
    units_ = std::make_unique<clsMaster>(program().dataAccess());
    categoriesFilled_ = false;
    on(*this, ui().CmbCat, &DropList::Click, [this] { Item().CategoryId = narrowToInt16(ui().CmbCat->ItemData()); });
    on(*this, ui().cmdAddCat, &QAbstractButton::clicked, [this] { cmdAddCat_Click(); });
    on(*this, ui().CmdSelCat, &QAbstractButton::clicked, [this] { openCategories("S"); });
    buttons_.connect();
    program().StartUp(*this);
    FillCatg();
    FillUnits();
    FillData();
    buttons_.openByMode(list_.Which, {ui().txtCode, ui().TxtName}, {ui().Frame1});
}

void ItemMast::Form_Unload() {
    item_.reset();
    category_.reset();
    units_.reset();
}

void ItemMast::FillCatg() {
    const auto rows = category_->GetComboCategories();
    DropList& list = *ui().CmbCat;
    list.Clear();
    if (!rows) return;
    std::vector<DropList::Entry> entries;
    entries.reserve(static_cast<std::size_t>(rows->rows()));
    for (int row = 0; row < rows->rows(); ++row) {
        const std::int16_t key = toInt16((*rows)(0, row));
        entries.push_back({textOrEmpty((*rows)(1, row)) + category_->GetParentName(key), key});
    }
    list.fill(entries);
    list.select(0);
    list.setVisible(true);
    for (QWidget* standIn : {static_cast<QWidget*>(ui().txtCatName), static_cast<QWidget*>(ui().CmdSelCat),
                             static_cast<QWidget*>(ui().cmdAddCat)})
        standIn->setVisible(false);
    ui().Label3->setBuddy(&list);
    categoriesFilled_ = true;
}

void ItemMast::FillUnits() {
    units_->Mastertable = "Units";
    fillNames(*ui().cmbUnit, units_->GetComboCategories());
}

void ItemMast::FillData() {
    Item().GetItem();
    ui().txtCode->setText(Item().Itemcode);
    ui().TxtName->setText(Item().Itemname);
    category_->Catid = Item().CategoryId;
    const std::string name = category_->GetCatg();
    if (categoriesFilled_)
        ui().CmbCat->selectItemData(Item().CategoryId);
    else
        ui().txtCatName->setText(name);
    ui().cmbUnit->selectItemData(Item().UnitId);
    ui().TxtMaterial->setText(generalText(Item().Material));
    ui().txtLabor->setText(generalText(Item().Labor));
    ui().txtSubLabor->setText(generalText(Item().SubLabor));
    ui().txtEquipment->setText(generalText(Item().Equipment));
    ui().TxtQty->setText(generalText(Item().qty));
}

void ItemMast::openCategories(const char* which) {
    categories_.Which = which;
    categories_.ShowModal();
}

void ItemMast::cmdAddCat_Click() {
    openCategories("A");
    FillCatg();
}

void ItemMast::copyToRecord() {
    const auto amount = [](const TextBox* box) { return narrowToSingle(lenientNumber(box->Text())); };
    Item().Itemcode = ui().txtCode->Text();
    Item().Itemname = ui().TxtName->Text();
    Item().Material = amount(ui().TxtMaterial);
    Item().Labor = amount(ui().txtLabor);
    Item().SubLabor = amount(ui().txtSubLabor);
    Item().Equipment = amount(ui().txtEquipment);
    Item().qty = amount(ui().TxtQty);
    Item().TU.clear();
    // While the list has no category to offer, the one that was picked instead stays, or none.
    if (categoriesFilled_) Item().CategoryId = narrowToInt16(ui().CmbCat->ItemData());
    Item().UnitId = narrowToInt16(ui().cmbUnit->ItemData());
}

void ItemMast::ClearClass() {
    Item().itemid = 0;
    Item().CategoryId = 0;
    Item().UnitId = 0;
    Item().Material = Item().Labor = Item().SubLabor = Item().Equipment = Item().qty = 0;
    for (std::string* text : {&Item().Itemcode, &Item().Itemname, &Item().TU}) text->clear();
}

}  // namespace torvane
