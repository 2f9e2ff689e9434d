#pragma once

#include <memory>

#include "masters/cls_category.h"
#include "screens/entry_buttons.h"
#include "screens/form.h"
#include "ui_cat_mast.h"

namespace torvane {

class frmCategory;

// Fills a list with "No Parent Category" (number 0) and every category by name, and selects the first entry.
void FillCatg(DropList& cmbParent, clsCategory& categories);

// Entry form of one category, shown modally over the category list, for editing alone.
class CatMast : public FormOf<Ui::CatMast> {
public:
    CatMast(Program& program, frmCategory& list);

    // The category being shown; it lives from first touch until the form is closed.
    clsCategory& Cat();

protected:
    void Form_Load() override;
    void Form_Unload() override { cat_.reset(); }

private:
    void copyToRecord();
    void ClearClass();
    void FillData();

    frmCategory& list_;
    std::unique_ptr<clsCategory> cat_;
    EntryButtons buttons_;
};

}  // namespace torvane
