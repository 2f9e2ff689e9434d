#include "masters/screens/item_mast.h"

#include <QLabel>

#include "masters/cls_category.h"
#include "masters/cls_master.h"
#include "masters/screens/frm_category.h"
#include "masters/screens/frm_item.h"
#include "screens/fill_names.h"
#include "ui_item_mast.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// An amount of the item: its box, and where the record keeps it.
struct ItemAmount {
    TextBox* Ui_ItemMast::*box;
    float ClsItem::*amount;
};
constexpr ItemAmount itemAmounts[] = {
    {&Ui_ItemMast::TxtMaterial, &ClsItem::Material}, {&Ui_ItemMast::txtLabor, &ClsItem::Labor},
    {&Ui_ItemMast::txtSubLabor, &ClsItem::SubLabor}, {&Ui_ItemMast::txtEquipment, &ClsItem::Equipment},
    {&Ui_ItemMast::TxtQty, &ClsItem::qty},
};

}  // namespace

ItemMast::ItemMast(Program& program, frmItem& list, frmCategory& categories)
    : FormOf(program, "ItemMast"), list_(list), categories_(categories), buttons_(*this, Item, entryParts()) {
    setHelpContext(51);
}

ItemMast::~ItemMast() = default;

EntryButtons::Parts ItemMast::entryParts() {
    return {
        .controls = [this]() -> EntryButtons::Controls {
            return {ui().cmdOk, ui().CmdSave, ui().CmdCancel, ui().cmdMainHelp};
        },
        .copyToRecord = [this] { copyToRecord(); },
        .saved = " Item Saved",
        .refreshList = [this] { list_.RefreshGrid(); },
    };
}

void ItemMast::takeCategory(std::int16_t CategoryId, const std::string& name) {
    Item().CategoryId = CategoryId;
    ui().txtCatName->setText(name);
}

void ItemMast::Form_Load() {
    const Program::Doing doing(program(), "opening the item form");
    on(*this, ui().CmbCat, &DropList::Click, [this] { Item().CategoryId = narrowToInt16(ui().CmbCat->ItemData()); });
    on(*this, ui().CmdSelCat, &QAbstractButton::clicked, [this] { openCategories("S"); });
    on(*this, ui().cmdAddCat, &QAbstractButton::clicked, [this] {
        openCategories("A");
        FillCatg();
    });
    buttons_.connect();
    program().StartUp(*this);
    FillCatg();
    FillUnits();
    FillData();
    buttons_.openByMode(list_.Which, {ui().txtCode, ui().TxtName, ui().Frame1});
}

bool ItemMast::hasCategories() {
    return ui().CmbCat->ListCount() > 0;
}

void ItemMast::FillCatg() {
    clsCategory category(program().dataAccess());
    DropList& list = *ui().CmbCat;
    const auto rows = category.GetComboCategories();
    if (!rows) return;
    std::vector<DropList::Entry> entries;
    entries.reserve(static_cast<std::size_t>(rows->rows()));
    for (int row = 0; row < rows->rows(); ++row) {
        const std::int16_t key = toInt16((*rows)(0, row));
        entries.push_back({textOrEmpty((*rows)(1, row)) + category.GetParentName(key), key});
    }
    list.fill(std::move(entries));
    list.select(0);
    list.setVisible(true);
    for (QWidget* standIn : std::initializer_list<QWidget*>{ui().txtCatName, ui().CmdSelCat, ui().cmdAddCat})
        standIn->setVisible(false);
    ui().Label3->setBuddy(&list);
}

void ItemMast::FillUnits() {
    clsMaster units(program().dataAccess());
    units.Mastertable = "Units";
    fillNames(*ui().cmbUnit, units.GetComboCategories());
}

void ItemMast::FillData() {
    Item().GetItem();
    ui().txtCode->setText(Item().Itemcode);
    ui().TxtName->setText(Item().Itemname);
    clsCategory category(program().dataAccess());
    category.Catid = Item().CategoryId;
    ui().txtCatName->setText(category.GetCatg());  // shown where there is no list
    ui().CmbCat->selectItemData(Item().CategoryId);
    ui().cmbUnit->selectItemData(Item().UnitId);
    for (const ItemAmount& each : itemAmounts) (ui().*each.box)->setText(generalText(Item().*each.amount));
}

void ItemMast::openCategories(const char* which) {
    categories_.Which = which;
    categories_.ShowModal();
}

void ItemMast::copyToRecord() {
    Item().Itemcode = ui().txtCode->Text();
    Item().Itemname = ui().TxtName->Text();
    for (const ItemAmount& each : itemAmounts)
        Item().*each.amount = narrowToSingle(lenientNumber((ui().*each.box)->Text()));
    Item().TU.clear();
    // While the list has no category to offer, the one that was picked instead stays, or none.
    if (hasCategories()) Item().CategoryId = narrowToInt16(ui().CmbCat->ItemData());
    Item().UnitId = narrowToInt16(ui().cmbUnit->ItemData());
}

}  // namespace torvane
