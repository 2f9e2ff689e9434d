#include "masters/screens/frm_master.h"

#include <QLabel>

#include "ui_frm_master.h"
#include "values/numbers.h"
#include "widgets/texts.h"

namespace torvane {

frmMaster::frmMaster(Program& program) : FormOf(program, "frmMaster") {
    setHelpContext(56);
}

frmMaster::~frmMaster() = default;

void frmMaster::Form_Load() {
    onClicks<frmMaster>(*this, {{ui().cmdAdd, &frmMaster::cmdAdd_Click},
                                {ui().CmdSave, &frmMaster::CmdSave_Click},
                                {ui().cmdDelete, &frmMaster::cmdDelete_Click},
                                {ui().cmdPrevious, &frmMaster::cmdPrevious_Click},
                                {ui().cmdNext, &frmMaster::cmdNext_Click},
                                {ui().cmdSearch, &frmMaster::cmdSearch_Click},
                                {ui().cmdMainHelp, &frmMaster::cmdMainHelp_Click}});
    on(*this, ui().cmdExit, &QAbstractButton::clicked, [this] { Unload(); });
    program().StartUp(*this);
    master_ = std::make_unique<clsMaster>(program().dataAccess());
    master_->Mastertable = MastertableName;
    const bool rooms = MastertableName == "Rooms";
    setCaption((rooms ? "Takeoff Name " : MastertableName) + " Master Entry Screen");
    const std::string label =
        rooms ? "Takeoff Name :" : MastertableName.substr(0, MastertableName.size() - 1) + " Name :";
    ui().Label1->setText(qstring(label));
    ui().txtName->setAccessibleName(qstring(label));
    RecNo_ = 1;
    master_->AddEditDel = "E";
    ShowData();
    ui().txtName->setFocus();
}

void frmMaster::ShowData() {
    const Program::Doing doing(program(), "showing a name");
    if (master_->AddEditDel == "A" &&
        program().confirm("You have not saved the data you added. Do you want to save it first?", "Master Entry"))
        CmdSave_Click();
    RecNo_ = master_->GetRecord(RecNo_);
    if (RecNo_) {
        ui().txtName->setText(master_->Name);
        ui().lblRecord->setText(qstring("Record : " + generalText(static_cast<double>(*RecNo_)) + " of " +
                                        generalText(master_->RecordCount)));
    }
    master_->AddEditDel = "E";
}

void frmMaster::cmdAdd_Click() {
    master_->AddEditDel = "A";
    ui().txtName->setText("");
    ui().txtName->setFocus();
}

void frmMaster::CmdSave_Click() {
    const Program::Doing doing(program(), "saving the name");
    if (program().confirm("Do you want to save the record?", "Save Data")) {
        master_->Name = ui().txtName->Text();
        if (master_->Validate()) master_->Save();
    }
    master_->AddEditDel = "E";
}

void frmMaster::cmdDelete_Click() {
    const Program::Doing doing(program(), "deleting the name");
    if (!program().confirm("Do you want to delete '" + master_->Name + "'?", "Master Entry")) return;
    master_->AddEditDel = "D";
    master_->Delete();
    cmdNext_Click();
}

void frmMaster::cmdNext_Click() {
    if (RecNo_) ++*RecNo_;
    ShowData();
}

void frmMaster::cmdPrevious_Click() {
    if (RecNo_) --*RecNo_;
    ShowData();
}

void frmMaster::cmdSearch_Click() {
    RecNo_ = master_->GetCategory(ui().txtSearch->Text());
    ShowData();
}

void frmMaster::cmdMainHelp_Click() {
    program().speakHelp(
        "This screen allows you to enter the data which will later be used while creating estimates. Click on 'Add' "
        "button to add a new name, enter the name in the text box and press 'Apply' button. You can navigate through "
        "the records by pressing 'Previous' and 'Next' buttons. Total number of records and current record number are "
        "shown on the screen. Any record can be edited by changing the name and pressing the 'Apply' button. To delete "
        "a record, press 'Delete' button when the particular record is selected.");
}

}  // namespace torvane
