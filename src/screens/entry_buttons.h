#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "datastore/at_first_use.h"

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
        std::string_view saved;  // what the box says then
        std::function<void()> refreshList;
    };
    // `record` is the one that the form shows.
    template <class Record>
    EntryButtons(Form& form, AtFirstUse<Record>& record, Parts parts)
        : form_(form),
          parts_(std::move(parts)),
          validate_([&record] { return record().Validate(); }),
          save_([&record] { record().Save(); }),
          ClearClass_([&record] { record.reset(); }) {}

    // Called at each load.
    void connect();
    // `which` is the mode of the list. The view of a double click, and deleting, close `fields` and hide Ok and Apply;
    // in every other mode all is open.
    void openByMode(const std::string& which, std::initializer_list<QWidget*> fields);

private:
    void CmdSave_Click();
    void cmdOk_Click();
    void CmdCancel_Click();

    Form& form_;
    const Parts parts_;
    const std::function<bool()> validate_;
    const std::function<void()> save_;
    const std::function<void()> ClearClass_;
};

}  // namespace torvane
