#include "masters/screens/cat_mast.h"

#include "masters/screens/frm_category.h"
#include "ui_cat_mast.h"
#include "values/numbers.h"

namespace torvane {

void FillCatg(DropList& cmbParent, clsCategory& categories) {
    std::vector<DropList::Entry> entries{{"No Parent Category", 0}};
    if (const auto rows = categories.GetComboCategories())
        for (int row = 0; row < rows->rows(); ++row)
            entries.push_back({textOrEmpty((*rows)(1, row)), toInt32((*rows)(0, row))});
    cmbParent.fill(std::move(entries));
    cmbParent.select(0);
}

CatMast::CatMast(Program& program, frmCategory& list)
    : FormOf(program, "CatMast"), buttons_(*this, Cat, entryParts(list)) {
    setHelpContext(53);
}

CatMast::~CatMast() = default;

EntryButtons::Parts CatMast::entryParts(frmCategory& list) {
    return {
        .controls = [this]() -> EntryButtons::Controls {
            return {ui().cmdOk, ui().CmdSave, ui().CmdCancel};
        },
        .copyToRecord =
            [this] {
                Cat().Catname = ui().Txtname->Text();
                Cat().ParentCategory = narrowToInt16(ui().cmbParent->ItemData());
            },
        .saved = "Category Saved",
        .refreshList = [&list] { list.RefreshGrid(); },
    };
}

void CatMast::Form_Load() {
    buttons_.connect();
    program().StartUp(*this);
    FillCatg(*ui().cmbParent, Cat());
    FillData();
}

void CatMast::FillData() {
    ui().Txtname->setText(Cat().Catname);
    ui().cmbParent->selectItemData(Cat().ParentCategory);
}

}  // namespace torvane
