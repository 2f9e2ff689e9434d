#pragma once

#include <memory>

#include "masters/cls_category.h"
#include "masters/screens/entry_skeleton.h"
#include "platform/form.h"
#include "ui_cat_mast.h"

namespace torvane {

class frmCategory;

// Fills a list with "No Parent Category" (number 0) and every category by name, and selects the first entry.
void FillCatg(DropList& cmbParent, clsCategory& categories);

// Entry form of one category, shown modally over the category list, for editing alone.
class CatMast : public FormOf<Ui::CatMast>, private EntrySkeleton {
public:
    CatMast(Program& program, frmCategory& list);

    // The category being shown; it lives from first touch until the form is closed.
    clsCategory& Cat();

protected:
    void Form_Load() override;
    void Form_Unload() override { cat_.reset(); }

private:
    Form& form() override { return *this; }
    QAbstractButton& applyButton() override { return *ui().CmdSave; }
    QAbstractButton& okButton() override { return *ui().cmdOk; }
    void copyToRecord() override;
    bool validateRecord() override { return Cat().Validate(); }
    void saveRecord() override { Cat().Save(); }
    void ClearClass() override;
    std::string_view savedText() const override { return "Category Saved"; }
    void refreshList() override;

    void FillData();

    frmCategory& list_;
    std::unique_ptr<clsCategory> cat_;
};

}  // namespace torvane
