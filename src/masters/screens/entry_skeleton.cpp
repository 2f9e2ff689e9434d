#include "masters/screens/entry_skeleton.h"

#include <QAbstractButton>

#include "platform/form.h"

namespace torvane {

void EntrySkeleton::openByMode(const std::string& which, std::initializer_list<QWidget*> names,
                               std::initializer_list<QWidget*> frames) {
    const bool viewing = which == "DE" || which == "D" || which == "AE";
    const bool editing = which == "EE" || which == "E";
    const bool adding = which == "C" || which == "A";
    if (viewing) {
        applyButton().setVisible(false);
        okButton().setVisible(false);
    }
    if (viewing || editing)
        for (QWidget* widget : names) widget->setEnabled(editing);
    if (viewing || editing || adding)
        for (QWidget* widget : frames) widget->setEnabled(!viewing);
}

void EntrySkeleton::CmdSave_Click() {
    const Program::Doing doing(form().program(), "saving the record");
    copyToRecord();
    if (!validateRecord()) {
        form().program().say("Please enter Valid Data", "Inventory");
        return;
    }
    saveRecord();
    form().program().say(savedText(), "Inventory");
    ClearClass();
    DisableSave();
}

void EntrySkeleton::DisableSave() {
    applyButton().setEnabled(false);
}

void EntrySkeleton::cmdOk_Click() {
    if (applyButton().isEnabled()) CmdSave_Click();
    refreshList();
    form().Unload();
}

void EntrySkeleton::CmdCancel_Click() {
    ClearClass();
    form().Unload();
}

void EntrySkeleton::cmdMainHelp_Click() {
    form().program().speakHelp(
        "Once you enter all the data, press 'Ok' button to save the record and close. 'Cancel' button closes the "
        "window "
        "without saving. 'Apply' button saves your data but does not close the window.");
}

}  // namespace torvane
