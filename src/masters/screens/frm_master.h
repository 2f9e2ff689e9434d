#pragma once

#include <memory>
#include <optional>
#include <string>

#include "masters/cls_master.h"
#include "screens/form.h"

class Ui_frmMaster;

namespace torvane {

// Takeoff names or units, one record at a time. Opened by setting `MastertableName` and showing it; the name takes
// effect when the window loads.
class frmMaster : public FormOf<Ui_frmMaster> {
public:
    explicit frmMaster(Program& program);
    ~frmMaster() override;

    std::string MastertableName;  // "Rooms" or "Units"

protected:
    void Form_Load() override;

private:
    void ShowData();
    void cmdAdd_Click();
    void CmdSave_Click();
    void cmdDelete_Click();
    void cmdPrevious_Click();
    void cmdNext_Click();
    void cmdSearch_Click();
    void cmdMainHelp_Click();

    std::unique_ptr<clsMaster> master_;  // new at each load
    std::optional<long> RecNo_;          // position from 1; nothing on an empty table and after a search in vain
};

}  // namespace torvane
