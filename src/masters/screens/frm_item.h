#pragma once

#include <memory>

#include "masters/cls_item.h"
#include "masters/screens/item_mast.h"
#include "masters/screens/master_list.h"
#include "platform/form.h"
#include "ui_frm_item.h"

namespace torvane {

class frmCategory;

// The list of items, opened by setting `Which` and showing it modeless. A pure editing tool: it hands nothing to
// anyone.
class frmItem : public FormOf<Ui::frmItem>, public MasterList {
public:
    // `categories` is what the entry form opens while there is no category.
    frmItem(Program& program, frmCategory& categories);

    ItemMast& entryForm() { return itemMast_; }

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
    std::int16_t pageSize() override { return Item().PageSize; }
    std::int16_t recordCount() override { return Item().RecordCount; }
    bool searchedByName() override { return ui().OptName->isChecked(); }
    std::string_view offerToAdd() const override { return "Item Not Found : Would You Like To Add ? "; }
    std::string_view notFound() const override { return "Item Not Found"; }
    std::string& AddEditDel() override { return Item().AddEditDel; }
    void deleteRecord(std::int16_t key) override;
    void showEntryForm(std::int16_t key, std::string_view flag) override;
    void cmdSearch_Click() override;
    void cmdAdd_Click() override;
    void CmdSelect_Click() override { Unload(); }
    void cmdMainHelp_Click() override;

    ClsItem& Item();

    ItemMast itemMast_;
    std::unique_ptr<ClsItem> item_;
};

}  // namespace torvane
