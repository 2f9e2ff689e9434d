#include "masters/screens/frm_item.h"

#include <QMenu>
#include <utility>

#include "ui_frm_item.h"
#include "ui_item_mast.h"
#include "values/numbers.h"

namespace torvane {

frmItem::frmItem(Program& program, frmCategory& categories)
    : FormOf(program, "frmItem"), itemMast_(program, *this, categories) {
    setHelpContext(50);
}

frmItem::~frmItem() = default;

PagedList::Parts frmItem::listParts() {
    return {
        .controls = [this]() -> PagedList::Controls {
            return {ui().ListView1, ui().txtName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
        },
        .columns = {{{"ID", 0}, ""},
                    {{"Item #", 1800}, "Itemcode"},
                    {{"Item Name", 2400}, "ItemName"},
                    {{"Category", 1800}, "CatName"},
                    {{"Material", 1200, true}, "Material"},
                    {{"Quantity", 1200, true}, "Qty"},
                    // Not the unit's name, which is what the column shows.
                    {{"Unit", 1200}, "TU"}},
        .modes = [this]() -> std::vector<PagedList::Mode> {
            return {{"A", "Add Item", ui().cmdAdd},
                    {"C", "Copy Item", ui().cmdCopy},
                    {"D", "Delete Item", ui().cmdDel},
                    {"E", "Edit Item", ui().CmdEdit},
                    {"S", "Select Item", ui().CmdSelect}};
        },
        .data = [this]() -> DataClass& { return Item(); },
        .readAll = [this](auto&&... page) { return Item().GetAllItemsN(page...); },
        .readSearched = [this](auto&&... page) { return Item().GetSearchItems(page...); },
        .rowTexts =
            [](const RowArray& rows, int row) {
                return rowTexts(rows, row, {0, 5, 1, 2, 3, 4, 6});
            },
        .notFound = "Item Not Found",
        .offerToAdd = "Item Not Found : Would You Like To Add ? ",
        .searchedByName = [this] { return ui().OptName->isChecked(); },
        .add = [this] { cmdAdd_Click(); },
    };
}

void frmItem::Form_Load() {
    Item.reset();  // the list's own record is new at each load
    list_.connectSearch(
        ui().cmdSearch, ui().CmdAll, Item,
        {{ui().OptAll, "All"}, {ui().OptName, "ItemName"}, {ui().OptCat, "CatName"}, {ui().OptCode, "ItemCode"}});
    on(*this, ui().cmdAdd, &QAbstractButton::clicked, &frmItem::cmdAdd_Click);
    on(*this, ui().cmdMainHelp, &QAbstractButton::clicked, &frmItem::cmdMainHelp_Click);
    for (QAbstractButton* button : {ui().CmdSelect, ui().cmdExit})
        on(*this, button, &QAbstractButton::clicked, [this] { Unload(); });
    record_.connect(ui().cmdCopy, ui().CmdEdit, ui().cmdDel);
    on(*this, ui().ListView1, &ReportList::DblClick, [this] { record_.doubleClick(); });
    QMenu& mnuRel = addRelatedMenu(*this, list_,
                                   {{"mnuRelManf", "View Related Manufacturers", "Manufacturers associated with "},
                                    {"mnuRelCatg", "View Related Categories", "Categories associated with "}});
    on(*this, ui().ListView1, &ReportList::RightClick, [this, &mnuRel](const QPoint& pointer) {
        if (Which == "E") mnuRel.popup(pointer);
    });
    program().StartUp(*this);
    list_.load("ItemCode");
}

void frmItem::cmdAdd_Click() {
    Which = "A";
    Item().AddEditDel = "A";
    itemMast_.Item().AddEditDel = "A";
    itemMast_.ui().txtCode->setText(generalText(Item().Maxitemno()));
    itemMast_.ui().TxtName->setText(ui().txtName->Text());
    itemMast_.ShowModal();
    RefreshGrid();
}

void frmItem::cmdMainHelp_Click() {
    // Deleting has a text only after a double click.
    const std::string_view text =
        Which == "A"
            ? "This screen allows you to enter the Items in the master table. Click on 'Add' button to add a new "
              "record in the Items database. "
        : Which == "E"
            ? "This screen allows you to edit the Items in the master table. Select the item record by double clicking "
              "on the item row or selecting the item and pressing 'Edit' button"
        : Which == "DE"
            ? "This screen allows you to delete the Item from the master table. Select the item record by clicking the "
              "item and pressing 'Delete' button. It will delete the item record after confirmation."
            : "";
    program().speakHelp(text);
}

}  // namespace torvane
