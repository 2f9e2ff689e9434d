#pragma once

#include <memory>

#include "masters/cls_category.h"
#include "masters/screens/cat_mast.h"
#include "masters/screens/master_list.h"
#include "platform/form.h"
#include "ui_frm_category.h"

namespace torvane {

class CategoryPick;

// The list of categories, with the boxes to add one in the list window itself. Opened by setting `Which` and showing
// it: modeless from the menu, modal with "A" or "S" from the entry form of an item, to which the picked category is
// handed.
class frmCategory : public FormOf<Ui::frmCategory>, public MasterList {
public:
    explicit frmCategory(Program& program);
    // Who takes the picked category. Set once, when the screens are put together.
    void setPick(CategoryPick& pick) { pick_ = &pick; }

    CatMast& entryForm() { return catMast_; }

protected:
    void Form_Load() override;

private:
    Form& form() override { return *this; }
    Controls controls() override;
    std::vector<Column> columns() const override;
    std::vector<Mode> modes() override;
    std::optional<RowArray> readAllRows() override;
    std::optional<RowArray> readSearchedRows() override;
    std::vector<std::string> rowTexts(const RowArray& rows, int row) override;
    std::int16_t pageSize() override { return Cat().PageSize; }
    std::int16_t recordCount() override { return Cat().RecordCount; }
    bool searchedByName() override { return true; }
    std::string_view offerToAdd() const override { return "Category Not Found : Would You Like To Add ? "; }
    std::string_view notFound() const override { return "Category Not Found"; }
    std::string& AddEditDel() override { return Cat().AddEditDel; }
    void deleteRecord(std::int16_t key) override;
    void showEntryForm(std::int16_t key, std::string_view flag) override;
    void cmdSearch_Click() override;
    void CmdAll_Click() override { RefreshGrid(); }
    void cmdAdd_Click() override;
    void CmdEdit_Click() override;
    void cmdDel_Click() override;
    void CmdSelect_Click() override;
    void ListView1_DblClick() override;
    void cmdMainHelp_Click() override;
    void cmdHelp2_Click();

    // Also what finds the parents' names: filling the list overwrites its key, name and parent.
    clsCategory& Cat();
    void saveNew();
    void ClearClass();
    void enableBoxes(bool enabled);

    CategoryPick* pick_ = nullptr;
    CatMast catMast_;
    std::unique_ptr<clsCategory> cat_;
};

}  // namespace torvane
