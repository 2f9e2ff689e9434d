#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "masters/cls_category.h"
#include "masters/screens/cat_mast.h"
#include "screens/form.h"
#include "screens/paged_list.h"

class Ui_frmCategory;

namespace torvane {

// The list of categories, with the boxes to add one in the list window itself. Opened by setting `Which` and showing
// it: modeless from the menu, modal with "A" or "S" from the entry form of an item, to which the picked category is
// handed.
class frmCategory : public FormOf<Ui_frmCategory> {
public:
    // `takeCategory` is given the key and the name of the picked row.
    frmCategory(Program& program, std::function<void(std::int16_t CategoryId, const std::string& name)> takeCategory);
    ~frmCategory() override;

    std::string Which;  // the mode, as that of the items' list; there is no "C"
    void RefreshGrid() { list_.RefreshGrid(); }
    void ShowLabel() { list_.ShowLabel(); }
    void SearchCat() { list_.SearchItem(); }

protected:
    void Form_Load() override;

private:
    void cmdSearch_Click();
    void cmdAdd_Click();
    void CmdEdit_Click();
    void cmdDel_Click();
    void CmdSelect_Click();
    void cmdMainHelp_Click();
    void cmdHelp2_Click();
    void ListView1_DblClick();
    PagedList::Parts listParts();
    std::vector<std::string> rowTexts(const RowArray& rows, int row);
    void saveNew();
    void ClearClass();
    void enableBoxes(bool enabled);

    std::function<void(std::int16_t, const std::string&)> takeCategory_;
    // Also what finds the parents' names: filling the list overwrites its key, name and parent.
    AtFirstUse<clsCategory> Cat{program().dataAccess()};
    CatMast catMast_;
    PagedList list_{*this, Which, listParts()};
};

}  // namespace torvane
