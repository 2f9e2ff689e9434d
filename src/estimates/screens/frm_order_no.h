#pragma once

#include "screens/form.h"

class Ui_FrmOrderNo;

namespace torvane {

class frmOrder;

// Asks for the number of the estimate that is to be deleted and shows it on the estimate screen, which closes this
// prompt.
class FrmOrderNo : public FormOf<Ui_FrmOrderNo> {
public:
    FrmOrderNo(Program& program, frmOrder& order);
    ~FrmOrderNo() override;

protected:
    void Form_Load() override;

private:
    void cmdOk_Click();
    frmOrder& orderScreen_;
};

}  // namespace torvane
