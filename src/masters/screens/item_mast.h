#pragma once

#include <memory>

#include "masters/cls_category.h"
#include "masters/cls_item.h"
#include "masters/cls_master.h"
#include "masters/screens/category_pick.h"
#include "screens/entry_buttons.h"
#include "screens/form.h"
#include "ui_item_mast.h"

namespace torvane {

class frmCategory;
class frmItem;

// Entry form of one item, shown modally over the item list.
class ItemMast : public FormOf<Ui::ItemMast>, public CategoryPick {
public:
    ItemMast(Program& program, frmItem& list, frmCategory& categories);

    // The item being shown; it lives from first touch until the form is closed.
    ClsItem& Item();

    // The category that was picked while the form had none to offer.
    void takeCategory(std::int16_t CategoryId, const std::string& name) override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void copyToRecord();
    void ClearClass();
    void FillCatg();
    void FillUnits();
    void FillData();
    void openCategories(const char* which);
    void cmdAddCat_Click();

    frmItem& list_;
    frmCategory& categories_;
    std::unique_ptr<ClsItem> item_;
    std::unique_ptr<clsCategory> category_;
    std::unique_ptr<clsMaster> units_;
    bool categoriesFilled_ = false;
    EntryButtons buttons_;
};

}  // namespace torvane
