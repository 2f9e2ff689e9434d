#pragma once

#include <cstdint>
#include <string>

#include "datastore/at_first_use.h"
#include "masters/cls_item.h"
#include "screens/entry_buttons.h"
#include "screens/form.h"

class Ui_ItemMast;

namespace torvane {

class frmCategory;
class frmItem;

// Entry form of one item, shown modally over the item list.
class ItemMast : public FormOf<Ui_ItemMast> {
public:
    ItemMast(Program& program, frmItem& list, frmCategory& categories);
    ~ItemMast() override;

    // The item being shown; it lives from first touch until the form is closed.
    AtFirstUse<ClsItem> Item{program().dataAccess()};

    // The category that was picked while the form had none to offer.
    void takeCategory(std::int16_t CategoryId, const std::string& name);

protected:
    void Form_Load() override;
    void Form_Unload() override { Item.reset(); }

private:
    EntryButtons::Parts entryParts();
    void FillCatg();
    void FillUnits();
    void FillData();
    bool hasCategories();
    void openCategories(const char* which);
    void copyToRecord();

    frmItem& list_;
    frmCategory& categories_;
    EntryButtons buttons_;
};

}  // namespace torvane
