// What stands beside the estimate itself: the area panel, the notes and the way to the calculators.

#include <QEvent>
#include <QMenu>

#include "estimates/screens/frm_order.h"
#include "estimates/shared_notes.h"
#include "estimates/take_off.h"

namespace torvane {

namespace {

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
    const RoomAreas areas = roomAreas(ui().txtLength->Text(), ui().txtWidth->Text(), ui().txtHeight->Text());
    ui().txtPerimeter->setText(areas.perimeter);
    ui().txtWalls->setText(areas.walls);
    ui().txtCeiling->setText(areas.ceiling);
    ui().txtFloorCeil->setText(areas.floorCeiling);
    ui().txtTotArea->setText(areas.totalArea);
    ui().txtConcrete->setText(areas.concrete);
    ui().txtPlywood->setText(areas.plywood);
    ui().txtDrywall4x12->setText(areas.drywall4x12);
    ui().txtDrywall4x8->setText(areas.drywall4x8);
}

void frmOrder::placeNotes() {
    new NotesPlace(*ui().frmNotes);
}

void frmOrder::cmdMove_Click() {
    ui().TxtQty->setText(ui().txtTotArea->Text());
    const std::pair<QRadioButton*, TextBox*> rows[] = {
        {ui().chkarea1, ui().txtPerimeter}, {ui().chkarea2, ui().txtWalls},       {ui().chkarea3, ui().txtCeiling},
        {ui().chkarea4, ui().txtConcrete},  {ui().chkarea5, ui().txtFloorCeil},   {ui().chkarea6, ui().txtTotArea},
        {ui().chkarea7, ui().txtPlywood},   {ui().chkarea8, ui().txtDrywall4x12}, {ui().chkarea9, ui().txtDrywall4x8}};
    for (const auto& [option, box] : rows)
        if (option->isChecked()) ui().TxtQty->setText(box->Text());
}

void frmOrder::cmdImport_Click() {
    Connection connection(program().environment());
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
