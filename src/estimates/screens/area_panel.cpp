#include "estimates/screens/area_panel.h"

#include "estimates/screens/frm_order.h"
#include "estimates/take_off.h"
#include "ui_frm_order.h"

namespace torvane {

namespace {

// A result of the area panel: its box, and the option that chooses it for the line.
struct AreaBox {
    TextBox* Ui_frmOrder::*box;
    std::string RoomAreas::*text;
    QRadioButton* Ui_frmOrder::*option;
};
// In the order in which they are written.
constexpr AreaBox areaBoxes[] = {
    {&Ui_frmOrder::txtPerimeter, &RoomAreas::perimeter, &Ui_frmOrder::chkarea1},
    {&Ui_frmOrder::txtWalls, &RoomAreas::walls, &Ui_frmOrder::chkarea2},
    {&Ui_frmOrder::txtCeiling, &RoomAreas::ceiling, &Ui_frmOrder::chkarea3},
    {&Ui_frmOrder::txtFloorCeil, &RoomAreas::floorCeiling, &Ui_frmOrder::chkarea5},
    {&Ui_frmOrder::txtTotArea, &RoomAreas::totalArea, &Ui_frmOrder::chkarea6},
    {&Ui_frmOrder::txtConcrete, &RoomAreas::concrete, &Ui_frmOrder::chkarea4},
    {&Ui_frmOrder::txtPlywood, &RoomAreas::plywood, &Ui_frmOrder::chkarea7},
    {&Ui_frmOrder::txtDrywall4x12, &RoomAreas::drywall4x12, &Ui_frmOrder::chkarea8},
    {&Ui_frmOrder::txtDrywall4x8, &RoomAreas::drywall4x8, &Ui_frmOrder::chkarea9},
};

void CalTotalArea(frmOrder& screen) {
    const Program::Doing doing(screen.program(), "computing the areas");
    Ui_frmOrder& ui = screen.ui();
    const RoomAreas areas = roomAreas(ui.txtLength->Text(), ui.txtWidth->Text(), ui.txtHeight->Text());
    for (const AreaBox& area : areaBoxes) (ui.*area.box)->setText(areas.*area.text);
}

void cmdMove_Click(Ui_frmOrder& ui) {
    ui.TxtQty->setText(ui.txtTotArea->Text());
    for (const AreaBox& area : areaBoxes)
        if ((ui.*area.option)->isChecked()) ui.TxtQty->setText((ui.*area.box)->Text());
}

}  // namespace

void connectAreaPanel(frmOrder& screen) {
    Ui_frmOrder& ui = screen.ui();
    for (TextBox* box : {ui.txtLength, ui.txtWidth, ui.txtHeight})
        on(screen, box, &QLineEdit::textChanged, [&screen] { CalTotalArea(screen); });
    on(screen, ui.cmdMove, &QAbstractButton::clicked, [&screen] { cmdMove_Click(screen.ui()); });
}

}  // namespace torvane
