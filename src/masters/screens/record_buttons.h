#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "datastore/at_first_use.h"
#include "screens/form.h"
#include "screens/paged_list.h"

class QMenu;

namespace torvane {

// What the lists of items and customers do with the selected record: copy, edit, delete, and the double click. The
// entry form stands over the list.
class RecordButtons {
public:
    // `which` is the mode of the screen: a double click turns "A", "D" and "E" into "AE", "DE" and "EE". `listed` is
    // the record of the list, `shown` that of the entry form, `key` the member with its key, and `read` loads its row.
    template <class Record>
    RecordButtons(Form& form, std::string& which, PagedList& list, AtFirstUse<Record>& listed, Form& entryForm,
                  AtFirstUse<Record>& shown, std::int16_t Record::*key, void (Record::*read)())
        : form_(form), which_(which), list_(list) {
        delete_ = [&listed, key](std::int16_t selected) {
            listed().*key = selected;
            listed().AddEditDel = "D";
            listed().Delete();
        };
        showEntryForm_ = [&entryForm, &shown, key, read](std::int16_t selected, std::string_view flag) {
            shown().*key = selected;
            (shown().*read)();
            shown().AddEditDel = flag;
            entryForm.ShowModal();
        };
    }

    // Called at each load.
    void connect(QAbstractButton* cmdCopy, QAbstractButton* CmdEdit, QAbstractButton* cmdDel);
    void doubleClick();

private:
    void copy();
    void edit();
    void remove();

    Form& form_;
    std::string& which_;
    PagedList& list_;
    std::function<void(std::int16_t key)> delete_;
    std::function<void(std::int16_t key, std::string_view flag)> showEntryForm_;
};

struct RelatedEntry {
    const char* name;
    const char* caption;
    std::string_view opens;  // the caption that the opened window would begin with; empty: nothing is opened
};
// The pop-up menu mnuRel of a list. The windows that its entries are for are not part of this system, so choosing one
// is Failure::ObjectNotSet.
QMenu& addRelatedMenu(Form& form, PagedList& list, std::initializer_list<RelatedEntry> entries);

}  // namespace torvane
