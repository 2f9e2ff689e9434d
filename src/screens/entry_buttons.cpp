#include "screens/entry_buttons.h"

#include <QAbstractButton>

#include "screens/form.h"

namespace torvane {

void EntryButtons::connect() {
    const Controls controls = parts_.controls();
    on(form_, controls.cmdOk, &QAbstractButton::clicked, [this] { cmdOk_Click(); });
    on(form_, controls.CmdSave, &QAbstractButton::clicked, [this] { CmdSave_Click(); });
    on(form_, controls.CmdCancel, &QAbstractButton::clicked, [this] { CmdCancel_Click(); });
    if (!controls.cmdMainHelp) return;
    on(form_, controls.cmdMainHelp, &QAbstractButton::clicked, [this] {
        form_.program().speakHelp(
            "Once you enter all the data, press 'Ok' button to save the record and close. 'Cancel' button closes the "
            "window without saving. 'Apply' button saves your data but does not close the window.");
    });
}

void EntryButtons::openByMode(const std::string& which, std::initializer_list<QWidget*> fields) {
    const bool viewing = which == "DE" || which == "D" || which == "AE";
    parts_.controls().CmdSave->setVisible(!viewing);
    parts_.controls().cmdOk->setVisible(!viewing);
    for (QWidget* widget : fields) widget->setEnabled(!viewing);
}

void EntryButtons::CmdSave_Click() {
    const Program::Doing doing(form_.program(), "saving the record");
    parts_.copyToRecord();
    if (!validate_()) {
        form_.program().say("Please enter Valid Data", "Inventory");
        return;
    }
    save_();
    form_.program().say(parts_.saved, "Inventory");
    ClearClass_();
    // Nothing enables Apply again while the form lives.
    parts_.controls().CmdSave->setEnabled(false);
}

void EntryButtons::cmdOk_Click() {
    if (parts_.controls().CmdSave->isEnabled()) CmdSave_Click();
    parts_.refreshList();
    form_.Unload();
}

void EntryButtons::CmdCancel_Click() {
    form_.Unload();  // which clears the record
}

}  // namespace torvane
