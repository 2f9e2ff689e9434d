#pragma once

#include <memory>

#include "masters/cls_category.h"
#include "masters/screens/cat_mast.h"
#include "screens/form.h"
#include "screens/paged_list.h"
#include "ui_frm_category.h"

namespace torvane {

class CategoryPick;

// The list of categories, with the boxes to add one in the list window itself. Opened by setting `Which` and showing
// it: modeless from the menu, modal with "A" or "S" from the entry form of an item, to which the picked category is
// handed.
class frmCategory : public FormOf<Ui::frmCategory> {
public:
    explicit frmCategory(Program& program);
    // Who takes the picked category. Set once, when the screens are put together.
    void setPick(CategoryPick& pick) { pick_ = &pick; }

    std::string Which;  // the mode, as that of the items' list; there is no "C"
    void RefreshGrid() { list_.RefreshGrid(); }
    void ShowLabel() { list_.ShowLabel(); }
    void SearchCat() { list_.SearchItem(); }

    CatMast& entryForm() { return catMast_; }

protected:
    void Form_Load() override;

private:
    void cmdSearch_Click();
    void CmdAll_Click() { list_.RefreshGrid(); }
    void cmdAdd_Click();
    void CmdEdit_Click();
    void cmdDel_Click();
    void CmdSelect_Click();
    void cmdExit_Click() { Unload(); }
    void cmdMainHelp_Click();
    void cmdHelp2_Click();
    void ListView1_DblClick();
    void showEntryForm(std::int16_t key);
    PagedList::Parts listParts();
    std::vector<std::string> rowTexts(const RowArray& rows, int row);

    // Also what finds the parents' names: filling the list overwrites its key, name and parent.
    clsCategory& Cat();
    void saveNew();
    void ClearClass();
    void enableBoxes(bool enabled);

    CategoryPick* pick_ = nullptr;
    CatMast catMast_;
    std::unique_ptr<clsCategory> cat_;
    PagedList list_{*this, Which, listParts()};
};

}  // namespace torvane
