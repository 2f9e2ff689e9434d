#include "estimates/screens/frm_order_no.h"

#include "estimates/screens/frm_order.h"
#include "ui_frm_order_no.h"
#include "values/numbers.h"

namespace torvane {

FrmOrderNo::FrmOrderNo(Program& program, frmOrder& order) : FormOf(program, "FrmOrderNo"), orderScreen_(order) {
    setHelpContext(14);
}

FrmOrderNo::~FrmOrderNo() = default;

void FrmOrderNo::Form_Load() {
    on(*this, ui().cmdOk, &QAbstractButton::clicked, [this] { cmdOk_Click(); });
    on(*this, ui().CmdCancel, &QAbstractButton::clicked, [this] { Unload(); });
    // One box and one thing to do with it: Enter does it.
    on(*this, ui().TxtGetOrderNo, &QLineEdit::returnPressed, [this] { ui().cmdOk->click(); });
    program().StartUp(*this);
}

void FrmOrderNo::cmdOk_Click() {
    if (ui().TxtGetOrderNo->Text().empty()) {
        program().say("Please Enter Estimate No.", "Search Estimate");
        ui().TxtGetOrderNo->setFocus();
        return;
    }
    const Program::Doing doing(program(), "looking for the estimate");
    orderScreen_.Order().OrderNo = strictInt32(ui().TxtGetOrderNo->Text());
    orderScreen_.Order().GetOrder();
}

}  // namespace torvane
