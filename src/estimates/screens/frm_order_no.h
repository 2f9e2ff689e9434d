#pragma once

#include "screens/form.h"
#include "ui_frm_order_no.h"

namespace torvane {

class frmOrder;

// Asks for the number of the estimate that is to be deleted and shows it on the estimate screen, which closes this
// prompt.
class FrmOrderNo : public FormOf<Ui::FrmOrderNo> {
public:
    FrmOrderNo(Program& program, frmOrder& order);

protected:
    void Form_Load() override;

private:
    void cmdOk_Click();
    frmOrder& orderScreen_;
};

}  // namespace torvane
