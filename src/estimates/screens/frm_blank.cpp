#include "estimates/screens/frm_blank.h"

#include "estimates/shared_notes.h"
#include "ui_frm_blank.h"

namespace torvane {

frmBlank::frmBlank(Program& program) : FormOf(program, "frmBlank") {
    setHelpContext(16);
}

frmBlank::~frmBlank() = default;

void frmBlank::Form_Load() {
    const Program::Doing doing(program(), "reading the notes");
    on(*this, ui().cmdOk, &QAbstractButton::clicked, [this] { cmdOk_Click(); });
    on(*this, ui().CmdCancel, &QAbstractButton::clicked, [this] { Unload(); });
    program().StartUp(*this);
    connection_ = std::make_unique<Connection>(program().dataAccess());
    ui().rtfNotes->setText(readSharedNotes(*connection_));
}

void frmBlank::Form_Unload() {
    connection_.reset();
}

void frmBlank::cmdOk_Click() {
    const Program::Doing doing(program(), "saving the notes");
    writeSharedNotes(*connection_, ui().rtfNotes->Text());
    Unload();
}

}  // namespace torvane
