#include "estimates/screens/frm_order.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QMenu>
#include <QShortcut>

#include "estimates/screens/area_panel.h"
#include "estimates/shared_notes.h"
#include "screens/fill_names.h"
#include "ui_frm_order.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr std::string_view boxTitle = "Inventory";

// The texts of the job site: the box, where the estimate keeps it, and where the customer has it.
struct SiteText {
    TextBox* Ui_frmOrder::*box;
    std::string ClsOrder::*site;
    std::string ClsCustomer::*billing;
};
constexpr SiteText siteTexts[] = {
    {&Ui_frmOrder::TxtSstreet1, &ClsOrder::SStreet1, &ClsCustomer::BStreet1},
    {&Ui_frmOrder::TxtSstreet2, &ClsOrder::SStreet2, &ClsCustomer::BStreet2},
    {&Ui_frmOrder::TxtScity, &ClsOrder::SCity, &ClsCustomer::BCity},
    {&Ui_frmOrder::TxtSZip, &ClsOrder::SZip, &ClsCustomer::BZip},
    {&Ui_frmOrder::TxtSCountry, &ClsOrder::SCountry, &ClsCustomer::BCountry},
    {&Ui_frmOrder::TxtSPhone, &ClsOrder::SPhone, &ClsCustomer::BPhone},
    {&Ui_frmOrder::TxtSMobile, &ClsOrder::SMobile, &ClsCustomer::BMobile},
    {&Ui_frmOrder::TxtSEmail, &ClsOrder::SEmail, &ClsCustomer::BEmail},
};

// Keeps the notes frame over the list of lines and the lower edge of the line panel, and sets it off from them.
class NotesPlace : public QObject {
public:
    NotesPlace(QWidget& notes, QWidget& lines) : QObject(&notes), notes_(notes), lines_(lines) {
        notes.setParent(lines.parentWidget());
        auto* shadow = new QGraphicsDropShadowEffect(&notes);
        QColor colour = notes.palette().color(QPalette::WindowText);
        constexpr int halfThrough = 160;
        colour.setAlpha(halfThrough);
        shadow->setColor(colour);
        shadow->setOffset(0);
        shadow->setBlurRadius(notes.fontMetrics().height());
        notes.setGraphicsEffect(shadow);
        lines.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Resize && event->type() != QEvent::Move) return false;
        const int edge = notes_.fontMetrics().height();
        notes_.setGeometry(lines_.geometry().adjusted(edge, -edge, -edge, 0));
        return false;
    }

private:
    QWidget& notes_;
    QWidget& lines_;
};

}  // namespace

frmOrder::frmOrder(Program& program, Others others) : FormOf(program, "frmOrder"), others_(std::move(others)) {
    setHelpContext(12);
}

frmOrder::~frmOrder() = default;

void frmOrder::takeCustomer(std::int32_t CustId, const std::string& name) {
    Order().CustId = CustId;
    ui().TxtCustomer->setText(name);
}

// --- Opening ---------------------------------------------------------------------------------------------------------

void frmOrder::connectControls() {
    onClicks<frmOrder>(*this, {{ui().CmdSelCust, &frmOrder::CmdSelCust_Click},
                               {ui().cmdImport, &frmOrder::cmdImport_Click},
                               {ui().cmdCopy, &frmOrder::cmdCopy_Click},
                               {ui().Command7, &frmOrder::Command7_Click},
                               {ui().Command1, &frmOrder::Command1_Click},
                               {ui().CmdSave, &frmOrder::CmdSave_Click},
                               {ui().CmdDeleteOrder, &frmOrder::CmdDeleteOrder_Click},
                               {ui().CmdCancel, &frmOrder::CmdCancel_Click}});
    on(*this, ui().CmdNewCust, &QAbstractButton::clicked, others_.addCustomer);
    on(*this, ui().cmdItemList, &QAbstractButton::clicked, others_.showItemSheet);
    on(*this, ui().Command2, &QAbstractButton::clicked, [this] {
        ui().frmNotes->setVisible(false);
        ui().txtNotes->setFocus();
    });
    on(*this, ui().cmdMainHelp, &QAbstractButton::clicked, [this] { program().help(helpContext()); });
    on(*this, ui().cmdOk, &QAbstractButton::clicked, [this] {
        if (ui().CmdSave->isEnabled()) CmdSave_Click();
    });
    on(*this, new QShortcut(QKeySequence::Save, &window()), &QShortcut::activated, [this] {
        if (ui().CmdSave->isVisible()) ui().CmdSave->click();
    });
    lines_.connect();
    connectAreaPanel(*this);
}

void frmOrder::Form_Load() {
    const Program::Doing doing(program(), "opening the estimate screen");
    connectControls();
    others_.closeNumberPrompt();
    program().StartUp(*this);
    new NotesPlace(*ui().frmNotes, *ui().Frame1);
    ui().TxtDate->setDateStyle(program().host().shortDate());
    ui().TxtDate->setValue(program().host().today());
    lines_.InitListView();
    fillNames(*ui().cmbRooms, Order().GetComboRooms());
    fillNames(*ui().cmbUnits, Order().GetComboUnits());
    lines_.FillItems();
    if (AddOrDelete == "E") {
        setCaption("Edit Estimate");
        FillData();
    } else if (AddOrDelete == "D") {
        setCaption("Delete Estimate");
        FillData();
        for (QWidget* button :
             std::initializer_list<QWidget*>{ui().CmdEdit, ui().cmdAdd, ui().cmdDel, ui().CmdSelCust, ui().CmdNewCust,
                                             ui().cmdEditApply, ui().cmdEditCanc, ui().cmdOk, ui().CmdSave})
            button->setVisible(false);
        ui().CmdDeleteOrder->setVisible(true);
    } else {
        FillState();
        ui().TxtOrder->setText(generalText(Order().GetNextOrderNo()));
    }
}

void frmOrder::FillState() {
    fillNames(*ui().cmbSState, Order().GetComboState());
}

void frmOrder::FillData() {
    Customer().CustId = narrowToInt16(Order().CustId);
    Customer().GetCustomer();
    ui().TxtCustomer->setText(Customer().CustName);
    ui().TxtOrder->setText(generalText(Order().OrderNo));
    ui().TxtOrder->setEnabled(false);
    for (const SiteText& text : siteTexts) (ui().*text.box)->setText(Order().*text.site);
    ui().TxtAmount->setText(generalText(Order().Amount));
    // The saved grand total stands in the line panel's own box until a line is loaded or a price changes.
    ui().txtTotal->setText(generalText(Order().Total));
    ui().txtTaxPer->setText(generalText(Order().Tax));
    ui().txtOHPer->setText(generalText(Order().Overhead));
    ui().txtNotes->setText(Order().Notes);
    ui().TxtDate->setValue(Order().OrderDate);
    FillState();
    ui().cmbSState->selectItemData(Order().SState);
    lines_.loadLines();
}

// --- Header, saving, closing -----------------------------------------------------------------------------------------

void frmOrder::CmdSelCust_Click() {
    others_.selectCustomer();
    const Program::Doing doing(program(), "taking over the customer's address");
    Customer().CustId = narrowToInt16(Order().CustId);
    Customer().GetCustomer();
    for (const SiteText& text : siteTexts) (ui().*text.box)->setText(Customer().*text.billing);
    ui().cmbSState->selectItemData(Customer().BState);
}

void frmOrder::CmdSave_Click() {
    const Program::Doing doing(program(), "saving the estimate");
    for (const SiteText& text : siteTexts) Order().*text.site = (ui().*text.box)->Text();
    Order().SState = narrowToInt16(ui().cmbSState->ItemData());
    Order().OrderNo = strictInt32(ui().TxtOrder->Text());
    Order().OrderDate = ui().TxtDate->Value();
    Order().UPSTracking.clear();
    Order().Notes = ui().txtNotes->Text();
    lines_.CalTotal();
    Order().Tax = narrowToSingle(lenientNumber(ui().txtTaxPer->Text()));
    Order().Overhead = narrowToSingle(lenientNumber(ui().txtOHPer->Text()));
    Order().Total =
        narrowToSingle(Order().Amount + lenientNumber(ui().txtTax->Text()) + lenientNumber(ui().txtOverhead->Text()));
    if (!Order().Validate()) {
        program().say("Please enter Valid Data", boxTitle);
        return;
    }
    Order().Save();
    program().say("Estimate Saved", boxTitle);
    ClearClass();
    ui().CmdSave->setEnabled(false);
    ui().Command1->setFocus();  // what is left to do is to print it
}

void frmOrder::ClearClass() {
    Order().OrderNo = 0;
    Order().ClearEntry();
}

void frmOrder::CmdCancel_Click() {
    if (program().confirm("Are you sure you want to cancel this screen and discard any changes done?",
                          "Confirm Cancel"))
        Unload();
}

void frmOrder::CmdDeleteOrder_Click() {
    if (!program().confirm("Are you sure you want to Delete Estimate No.  " + generalText(Order().OrderNo),
                           "Estimate deletion"))
        return;
    const Program::Doing doing(program(), "deleting the estimate");
    Order().AddEditDel = "D";
    Order().Delete();
    program().say("Order Deleted", "");
    Unload();
}

void frmOrder::Command1_Click() {
    program().say(
        "In case you made any changes to the proposal, you will need to save your changes first so that the changes "
        "appear in the print out.",
        defaultTitle);
    // From the box: the record is empty after a save.
    others_.showProposal(strictInt32(ui().TxtOrder->Text()));
}

// --- Notes, calculators ----------------------------------------------------------------------------------------------

void frmOrder::cmdImport_Click() {
    const Program::Doing doing(program(), "reading the notes");
    Connection connection(program().dataAccess());
    ui().rtfNotes->setText(readSharedNotes(connection));
    ui().frmNotes->setVisible(true);
    ui().frmNotes->raise();
    ui().rtfNotes->setFocus();
}

void frmOrder::cmdCopy_Click() {
    const std::string selected = ui().rtfNotes->SelText();
    ui().txtNotes->setText(selected.empty() ? ui().rtfNotes->Text() : selected);
}

void frmOrder::Command7_Click() {
    auto* menu = new QMenu(&window());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("mnuCalc"));
    for (int group = 1; group <= 4; ++group) {
        QAction* entry = menu->addAction(QStringLiteral("Group %1").arg(group));
        entry->setObjectName(QStringLiteral("mnuCalc%1").arg(group));
        on(*this, entry, &QAction::triggered, [this, group] { others_.showCalculators(group); });
    }
    menu->popup(ui().Command7->mapToGlobal(QPoint(ui().Command7->width(), 0)));
}

}  // namespace torvane
