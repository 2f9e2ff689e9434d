#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

class QAbstractButton;
class QWidget;

namespace torvane {

class Form;

// What the entry forms have in common: which fields a mode of their list opens, and Ok, Apply and Cancel. Apply works
// once; Ok saves if Apply has not been used, and closes also when the save was refused.
class EntrySkeleton {
protected:
    ~EntrySkeleton() = default;

    // --- What an entry form states -----------------------------------------------------------------------------------
    virtual Form& form() = 0;
    virtual QAbstractButton& applyButton() = 0;
    virtual QAbstractButton& okButton() = 0;
    virtual void copyToRecord() = 0;
    virtual bool validateRecord() = 0;
    virtual void saveRecord() = 0;
    virtual void ClearClass() = 0;
    virtual std::string_view savedText() const = 0;
    virtual void refreshList() = 0;

    // --- What it gets ------------------------------------------------------------------------------------------------
    // `which` is the mode of the list. Adding and copying open `frames`; editing opens them and `names`; the view of a
    // double click, and deleting, close all and hide Ok and Apply.
    void openByMode(const std::string& which, std::initializer_list<QWidget*> names,
                    std::initializer_list<QWidget*> frames);
    void CmdSave_Click();
    // Nothing enables Apply again while the form lives.
    void DisableSave();
    void cmdOk_Click();
    void CmdCancel_Click();
    void cmdMainHelp_Click();
};

}  // namespace torvane
