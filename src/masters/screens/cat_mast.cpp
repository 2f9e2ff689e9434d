#include "masters/screens/cat_mast.h"

#include "masters/screens/frm_category.h"
#include "values/numbers.h"

namespace torvane {

void FillCatg(DropList& cmbParent, clsCategory& categories) {
    std::vector<DropList::Entry> entries{{"No Parent Category", 0}};
    if (const auto rows = categories.GetComboCategories())
        for (int row = 0; row < rows->rows(); ++row)
            entries.push_back({textOrEmpty((*rows)(1, row)), toInt32((*rows)(0, row))});
    cmbParent.fill(entries);
    cmbParent.select(0);
}

CatMast::CatMast(Program& program, frmCategory& list)
    : FormOf(program, "CatMast"),
      list_(list),
      buttons_(*this, {
                          .controls = [this]() -> EntryButtons::Controls {
                              return {ui().cmdOk, ui().CmdSave, ui().CmdCancel};
                          },
                          .copyToRecord = [this] { copyToRecord(); },
                          .validate = [this] { return Cat().Validate(); },
                          .save = [this] { Cat().Save(); },
                          .saved = "Category Saved",
                          .ClearClass = [this] { ClearClass(); },
                          .refreshList = [this] { list_.RefreshGrid(); },
                      }) {
    setHelpContext(53);
}

clsCategory& CatMast::Cat() {
    if (!cat_) cat_ = std::make_unique<clsCategory>(program().dataAccess());
    return *cat_;
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

void CatMast::copyToRecord() {
    Cat().Catname = ui().Txtname->Text();
    Cat().ParentCategory = narrowToInt16(ui().cmbParent->ItemData());
}

void CatMast::ClearClass() {
    Cat().Catid = 0;
    Cat().Catname.clear();
    Cat().ParentCategory = 0;
}

}  // namespace torvane
