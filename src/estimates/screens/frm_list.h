#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "masters/cls_category.h"
#include "masters/cls_item.h"
#include "screens/form.h"
#include "ui_frm_list.h"

namespace torvane {

class frmOrder;

// The item sheet: collects items from the category tree and puts them into the open estimate in one action, one row at
// a time, as if each were added on the estimate screen. Nothing of the sheet is stored.
class frmList : public FormOf<Ui::frmList> {
public:
    frmList(Program& program, frmOrder& order);

protected:
    void Form_Load() override;

private:
    clsCategory& Category();
    ClsItem& Item();
    void InitListView();
    void FillRooms();
    void RefreshTree();
    void TreeCategory_DblClick();
    void cmdDelete_Click();
    void cmdAddEstimate_Click();

    frmOrder& orderScreen_;
    std::unique_ptr<clsCategory> category_;
    std::unique_ptr<ClsItem> item_;
    std::int16_t Page = -1;  // all rows
    long PageCount = 0;
    std::string FldName;
    std::string AscOrDesc;
};

}  // namespace torvane
