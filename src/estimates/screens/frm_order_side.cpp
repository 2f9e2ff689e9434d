// What stands beside the estimate itself: the area panel, the notes and the way to the calculators.

#include <QEvent>
#include <QMenu>

#include "estimates/screens/frm_order.h"
#include "estimates/shared_notes.h"
#include "estimates/take_off.h"

namespace torvane {

namespace {

// A result of the area panel: its box, and the option that chooses it for the line.
struct AreaBox {
    TextBox* Ui::frmOrder::*box;
    std::string RoomAreas::*text;
    QRadioButton* Ui::frmOrder::*option;
};
// In the order in which they are written.
constexpr AreaBox areaBoxes[] = {
    {&Ui::frmOrder::txtPerimeter, &RoomAreas::perimeter, &Ui::frmOrder::chkarea1},
    {&Ui::frmOrder::txtWalls, &RoomAreas::walls, &Ui::frmOrder::chkarea2},
    {&Ui::frmOrder::txtCeiling, &RoomAreas::ceiling, &Ui::frmOrder::chkarea3},
    {&Ui::frmOrder::txtFloorCeil, &RoomAreas::floorCeiling, &Ui::frmOrder::chkarea5},
    {&Ui::frmOrder::txtTotArea, &RoomAreas::totalArea, &Ui::frmOrder::chkarea6},
    {&Ui::frmOrder::txtConcrete, &RoomAreas::concrete, &Ui::frmOrder::chkarea4},
    {&Ui::frmOrder::txtPlywood, &RoomAreas::plywood, &Ui::frmOrder::chkarea7},
    {&Ui::frmOrder::txtDrywall4x12, &RoomAreas::drywall4x12, &Ui::frmOrder::chkarea8},
    {&Ui::frmOrder::txtDrywall4x8, &RoomAreas::drywall4x8, &Ui::frmOrder::chkarea9},
};

// Keeps the notes frame over the lower middle of its window, whatever the window's size.
class NotesPlace : public QObject {
public:
    explicit NotesPlace(QWidget& frame) : QObject(&frame), frame_(frame) {
        frame.parentWidget()->installEventFilter(this);
        place();
    }
    void place() {
        const QSize whole = frame_.parentWidget()->size();
        frame_.setGeometry(whole.width() / 8, whole.height() * 2 / 5, whole.width() * 3 / 4, whole.height() * 9 / 20);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize) place();
        return false;
    }

private:
    QWidget& frame_;
};

}  // namespace

void frmOrder::CalTotalArea() {
    const Program::Doing doing(program(), "computing the areas");
    const RoomAreas areas = roomAreas(ui().txtLength->Text(), ui().txtWidth->Text(), ui().txtHeight->Text());
    for (const AreaBox& area : areaBoxes) (ui().*area.box)->setText(areas.*area.text);
}

void frmOrder::placeNotes() {
    new NotesPlace(*ui().frmNotes);
}

void frmOrder::cmdMove_Click() {
    ui().TxtQty->setText(ui().txtTotArea->Text());
    for (const AreaBox& area : areaBoxes)
        if ((ui().*area.option)->isChecked()) ui().TxtQty->setText((ui().*area.box)->Text());
}

void frmOrder::cmdImport_Click() {
    const Program::Doing doing(program(), "reading the notes");
    Connection connection(program().dataAccess());
    ui().rtfNotes->setText(readSharedNotes(connection));
    ui().frmNotes->setVisible(true);
    ui().frmNotes->raise();
}

void frmOrder::cmdCopy_Click() {
    const std::string selected = ui().rtfNotes->SelText();
    ui().txtNotes->setText(selected.empty() ? ui().rtfNotes->Text() : selected);
}

void frmOrder::Command2_Click() {
    ui().frmNotes->setVisible(false);
}

void frmOrder::cmdItemList_Click() {
    itemSheet_->Show();
}

void frmOrder::Command7_Click() {
    auto* menu = new QMenu(&window());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("mnuCalc"));
    int group = 0;
    for (Form* calculator : calculators_) {
        ++group;
        QAction* entry = menu->addAction(QStringLiteral("Group %1").arg(group));
        entry->setObjectName(QStringLiteral("mnuCalc%1").arg(group));
        on(*this, entry, &QAction::triggered, [calculator] { calculator->Show(); });
    }
    menu->popup(ui().Command7->mapToGlobal(QPoint(ui().Command7->width(), 0)));
}

}  // namespace torvane
