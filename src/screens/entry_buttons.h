#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

class QAbstractButton;
class QWidget;

namespace torvane {

class Form;

// Ok, Apply and Cancel of an entry form, and which fields a mode of its list opens. Apply works once; Ok saves if Apply
// has not been used, and closes also when the save was refused. The form says in `Parts` what differs.
class EntryButtons {
public:
    struct Controls {
        QAbstractButton* cmdOk;
        QAbstractButton* CmdSave;
        QAbstractButton* CmdCancel;
        QAbstractButton* cmdMainHelp = nullptr;  // speaks of the three buttons
    };
    struct Parts {
        std::function<Controls()> controls;
        std::function<void()> copyToRecord;
        std::function<bool()> validate;
        std::function<void()> save;
        std::string_view saved;  // what the box says then
        std::function<void()> ClearClass;
        std::function<void()> refreshList;
    };
    EntryButtons(Form& form, Parts parts);

    // Called at each load.
    void connect();
    // `which` is the mode of the list. Adding and copying open `frames`; editing opens them and `names`; the view of a
    // double click, and deleting, close all and hide Ok and Apply.
    void openByMode(const std::string& which, std::initializer_list<QWidget*> names,
                    std::initializer_list<QWidget*> frames);

private:
    void CmdSave_Click();
    void cmdOk_Click();
    void CmdCancel_Click();

    Form& form_;
    const Parts parts_;
};

}  // namespace torvane
