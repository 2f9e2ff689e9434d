#pragma once

#include "datastore/at_first_use.h"
#include "masters/cls_category.h"
#include "screens/entry_buttons.h"
#include "screens/form.h"

class Ui_CatMast;

namespace torvane {

class DropList;
class frmCategory;

// Fills a list with "No Parent Category" (number 0) and every category by name, and selects the first entry.
void FillCatg(DropList& cmbParent, clsCategory& categories);

// Entry form of one category, shown modally over the category list, for editing alone.
class CatMast : public FormOf<Ui_CatMast> {
public:
    CatMast(Program& program, frmCategory& list);
    ~CatMast() override;

    // The category being shown; it lives from first touch until the form is closed.
    AtFirstUse<clsCategory> Cat{program().dataAccess()};

protected:
    void Form_Load() override;
    void Form_Unload() override { Cat.reset(); }

private:
    EntryButtons::Parts entryParts(frmCategory& list);
    void FillData();

    EntryButtons buttons_;
};

}  // namespace torvane
