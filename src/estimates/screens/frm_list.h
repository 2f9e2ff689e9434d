#pragma once

#include "datastore/at_first_use.h"
#include "masters/cls_category.h"
#include "masters/cls_item.h"
#include "screens/form.h"

class Ui_frmList;

namespace torvane {

class frmOrder;

// The item sheet: collects items from the category tree and puts them into the open estimate in one action, one row at
// a time, as if each were added on the estimate screen. Nothing of the sheet is stored.
class frmList : public FormOf<Ui_frmList> {
public:
    frmList(Program& program, frmOrder& order);
    ~frmList() override;

protected:
    void Form_Load() override;

private:
    void InitListView();
    void FillRooms();
    void RefreshTree();
    void TreeCategory_DblClick();
    void cmdDelete_Click();
    void cmdAddEstimate_Click();

    frmOrder& orderScreen_;
    AtFirstUse<clsCategory> Category{program().dataAccess()};
    AtFirstUse<ClsItem> Item{program().dataAccess()};
};

}  // namespace torvane
