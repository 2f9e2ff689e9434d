#pragma once

#include <memory>

#include "masters/cls_item.h"
#include "masters/screens/item_mast.h"
#include "masters/screens/record_buttons.h"
#include "screens/form.h"
#include "ui_frm_item.h"

namespace torvane {

class frmCategory;

// The list of items, opened by setting `Which` and showing it modeless. A pure editing tool: it hands nothing to
// anyone.
class frmItem : public FormOf<Ui::frmItem> {
public:
    // `categories` is what the entry form opens while there is no category.
    frmItem(Program& program, frmCategory& categories);

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
    void cmdSearch_Click();
    void CmdAll_Click() { list_.showAll(); }
    void cmdAdd_Click();
    void cmdCopy_Click() { record_.copy(); }
    void CmdEdit_Click() { record_.edit(); }
    void cmdDel_Click() { record_.remove(); }
    void CmdSelect_Click() { Unload(); }
    void cmdExit_Click() { Unload(); }
    void cmdMainHelp_Click();
    void showEntryForm(std::int16_t key, std::string_view flag);
    void deleteRecord(std::int16_t key);
    PagedList::Parts listParts();

    ClsItem& Item();

    ItemMast itemMast_;
    std::unique_ptr<ClsItem> item_;
    PagedList list_{*this, Which, listParts()};
    RecordButtons record_{
        *this,
        Which,
        list_,
        {[this]() -> std::string& { return Item().AddEditDel; }, [this](std::int16_t key) { deleteRecord(key); },
         [this](std::int16_t key, std::string_view flag) { showEntryForm(key, flag); }}};
};

}  // namespace torvane
