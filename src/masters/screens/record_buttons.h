#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "screens/paged_list.h"

class QMenu;

namespace torvane {

// What the lists of items and customers do with the selected record: copy, edit, delete, and the double click. The
// entry form stands over the list.
class RecordButtons {
public:
    struct Parts {
        // The action flag of the list's own record.
        std::function<std::string&()> AddEditDel;
        // Removes the record with this key; the flag is "D" by then.
        std::function<void(std::int16_t key)> remove;
        // Puts the record with this key and an action flag into the entry form, and shows that modally.
        std::function<void(std::int16_t key, std::string_view flag)> showEntryForm;
    };
    // `which` is the mode of the screen: a double click turns "A", "D" and "E" into "AE", "DE" and "EE".
    RecordButtons(Form& form, std::string& which, PagedList& list, Parts parts);

    void copy();
    void edit();
    void remove();
    void doubleClick();

private:
    Form& form_;
    std::string& which_;
    PagedList& list_;
    const Parts parts_;
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
