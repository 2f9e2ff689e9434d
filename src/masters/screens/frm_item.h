#pragma once

#include <string>

#include "masters/cls_item.h"
#include "masters/screens/item_mast.h"
#include "masters/screens/record_buttons.h"
#include "screens/form.h"
#include "screens/paged_list.h"

class Ui_frmItem;

namespace torvane {

class frmCategory;

// The list of items, opened by setting `Which` and showing it modeless. A pure editing tool: it hands nothing to
// anyone.
class frmItem : public FormOf<Ui_frmItem> {
public:
    // `categories` is what the entry form opens while there is no category.
    frmItem(Program& program, frmCategory& categories);
    ~frmItem() override;

    // The mode: "A" add, "E" edit, "D" delete, "S" select, "C" copy; a double click on a row turns the first three into
    // "AE", "EE" and "DE", and the value stays so until the next opener sets it.
    std::string Which;
    void RefreshGrid() { list_.RefreshGrid(); }
    void ShowLabel() { list_.ShowLabel(); }
    void SearchItem() { list_.SearchItem(); }

    ItemMast& entryForm() { return itemMast_; }

protected:
    void Form_Load() override;
    PagedList& list() { return list_; }

private:
    void cmdAdd_Click();
    void cmdMainHelp_Click();
    PagedList::Parts listParts();

    AtFirstUse<ClsItem> Item{program().dataAccess()};
    ItemMast itemMast_;
    PagedList list_{*this, Which, listParts()};
    RecordButtons record_{*this, Which, list_, Item, itemMast_, itemMast_.Item, &ClsItem::itemid, &ClsItem::GetItem};
};

}  // namespace torvane
