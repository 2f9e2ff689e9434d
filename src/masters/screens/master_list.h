#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "masters/screens/list_skeleton.h"
#include "platform/form.h"

class QMenu;

namespace torvane {

// What the lists of items, categories and customers have beyond the skeleton: their records are copied, edited and
// deleted from here, with an entry form over the list. A list states its record and what it does otherwise.
class MasterList : public ListSkeleton {
protected:
    ~MasterList() = default;

    // --- What a list states ------------------------------------------------------------------------------------------
    // The action flag of the list's own record.
    virtual std::string& AddEditDel() = 0;
    // Removes the record with this key; the flag is "D" by then.
    virtual void deleteRecord(std::int16_t key) = 0;
    // Puts the record with this key and an action flag into the entry form, and shows that modally.
    virtual void showEntryForm(std::int16_t key, std::string_view flag) = 0;
    virtual void cmdSearch_Click() = 0;
    virtual void CmdSelect_Click() = 0;
    virtual void cmdMainHelp_Click() = 0;

    // --- What it gets ------------------------------------------------------------------------------------------------
    // Connects the controls that all these lists have.
    template <class Ui>
    void connectList(Ui& ui);
    struct RelatedEntry {
        const char* name;
        const char* caption;
        std::string_view opens;  // the caption that the opened window would begin with; empty: nothing is opened
    };
    // The pop-up menu mnuRel. The windows that its entries are for are not part of this system, so choosing one is
    // Failure::ObjectNotSet.
    QMenu& addRelatedMenu(std::initializer_list<RelatedEntry> entries);
    void cmdCopy_Click();
    virtual void CmdEdit_Click();
    virtual void cmdDel_Click();
    virtual void ListView1_DblClick();
    std::int16_t selectedKey16();
};

template <class Ui>
void MasterList::connectList(Ui& ui) {
    const auto click = [this](QAbstractButton* button, void (MasterList::*handler)()) {
        on(form(), button, &QAbstractButton::clicked, [this, handler] { (this->*handler)(); });
    };
    click(ui.cmdSearch, &MasterList::cmdSearch_Click);
    click(ui.CmdAll, &MasterList::CmdAll_Click);
    click(ui.CmdPrev, &MasterList::CmdPrev_Click);
    click(ui.CmdNext, &MasterList::CmdNext_Click);
    click(ui.cmdAdd, &MasterList::cmdAdd_Click);
    if constexpr (requires { ui.cmdCopy; }) click(ui.cmdCopy, &MasterList::cmdCopy_Click);
    click(ui.CmdEdit, &MasterList::CmdEdit_Click);
    click(ui.cmdDel, &MasterList::cmdDel_Click);
    click(ui.CmdSelect, &MasterList::CmdSelect_Click);
    click(ui.cmdMainHelp, &MasterList::cmdMainHelp_Click);
    on(form(), ui.cmdExit, &QAbstractButton::clicked, [this] { form().Unload(); });
    on(form(), ui.ListView1, &ReportList::DblClick, [this] { ListView1_DblClick(); });
    on(form(), ui.ListView1, &ReportList::ColumnClick, [this](int column) { sortBy(column); });
}

}  // namespace torvane
