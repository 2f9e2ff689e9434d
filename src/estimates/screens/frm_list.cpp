#include "estimates/screens/frm_list.h"

#include "estimates/screens/frm_order.h"
#include "masters/cls_master.h"
#include "screens/fill_names.h"
#include "ui_frm_list.h"
#include "ui_frm_order.h"
#include "values/numbers.h"

namespace torvane {

namespace {

// The sheet's columns from left to right.
enum SheetColumn { itemId, room, code, name, category, quantity, unit, material, labor, roomId };

}  // namespace

frmList::frmList(Program& program, frmOrder& order) : FormOf(program, "frmList"), orderScreen_(order) {
    setHelpContext(15);
}

frmList::~frmList() = default;

void frmList::Form_Load() {
    const Program::Doing doing(program(), "opening the item sheet");
    Category.reset();
    Item.reset();
    on(*this, ui().TreeCategory, &CategoryTree::DblClick, &frmList::TreeCategory_DblClick);
    on(*this, ui().cmdAddEstimate, &QAbstractButton::clicked, &frmList::cmdAddEstimate_Click);
    on(*this, ui().cmdDelete, &QAbstractButton::clicked, &frmList::cmdDelete_Click);
    on(*this, ui().cmdExit, &QAbstractButton::clicked, [this] { Unload(); });
    program().StartUp(*this);
    ui().Splitter->setStretchFactor(1, 1);
    RefreshTree();
    InitListView();
    FillRooms();
}

void frmList::RefreshTree() {
    long PageCount = 0;
    auto categories = Category().GetAllCategories(-1, PageCount, "ParentCategory, Catname", "A");
    // Read once and handed out, in place of a query for each category.
    auto items = Item().GetItemsOfCategories("ItemName", "A");
    ui().TreeCategory->show({std::move(categories), std::move(items)});
}

void frmList::InitListView() {
    ui().ListView1->setColumns({{"ID", 0},
                                {"Takeoff Name", 1200},
                                {"Item #", 840},
                                {"Item Name", 1800},
                                {"Category", 1440},
                                {"Quantity", 840, true},
                                {"Unit", 840},
                                {"Material", 1200, true},
                                {"Labor", 1200, true},
                                {"Room Id", 0}});
}

void frmList::FillRooms() {
    ClsOrder order(program().dataAccess(), orderScreen_);
    fillNames(*ui().cmbRooms, order.GetComboRooms());
}

void frmList::TreeCategory_DblClick() {
    const std::string key = ui().TreeCategory->selectedKey();
    if (!key.starts_with('I')) return;
    const Program::Doing doing(program(), "copying the item to the sheet");
    Item().itemid = strictInt16(key.substr(1));
    Item().GetItem();
    Category().Catid = Item().CategoryId;
    clsMaster units(program().dataAccess());
    units.Mastertable = "Units";
    units.Id = Item().UnitId;
    ui().ListView1->AddRow({generalText(Item().itemid), ui().cmbRooms->Text(), Item().Itemcode, Item().Itemname,
                            Category().GetCatg(), generalText(Item().qty), units.GetCatg(),
                            generalText(Item().Material), generalText(Item().Labor),
                            generalText(ui().cmbRooms->ItemData())});
}

void frmList::cmdDelete_Click() {
    ReportList& sheet = *ui().ListView1;
    if (sheet.RowCount() == 0) return;
    const int row = sheet.SelectedRow();
    if (row < 0) fail(Failure::ObjectNotSet);
    if (program().confirm("Do you want to delete item '" + sheet.Cell(row, code) + "'?", "Delete Item from the List"))
        sheet.RemoveRow(row);
}

void frmList::cmdAddEstimate_Click() {
    const Program::Doing doing(program(), "putting the items into the estimate");
    const ReportList& sheet = *ui().ListView1;
    for (int row = 0; row < sheet.RowCount(); ++row) {
        orderScreen_.ui().cmbRooms->selectItemData(strictInt32(sheet.Cell(row, roomId)));
        orderScreen_.ui().cmbItems->selectItemData(strictInt32(sheet.Cell(row, itemId)));
        orderScreen_.cmdAdd_Click();
    }
    orderScreen_.Show();
    Unload();
}

}  // namespace torvane
