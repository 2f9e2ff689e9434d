#include "masters/screens/master_list.h"

#include <QMenu>

#include "values/numbers.h"

namespace torvane {

void MasterList::cmdCopy_Click() {
    Which = "C";
    AddEditDel() = "A";
    showEntryForm(selectedKey16(), "A");
    RefreshGrid();
}

void MasterList::CmdEdit_Click() {
    if (!hasRows()) return;
    showEntryForm(selectedKey16(), "E");
    RefreshGrid();
}

void MasterList::ListView1_DblClick() {
    if (!hasRows()) return;
    if (Which == "A" || Which == "D" || Which == "E") Which += 'E';
    showEntryForm(selectedKey16(), "E");
    refill();
}

void MasterList::cmdDel_Click() {
    if (!hasRows()) return;
    Program& program = form().program();
    const std::int16_t key = selectedKey16();
    if (program.confirm("Are you sure you want to Delete ' " + selectedName() + " '", "Inventory")) {
        const Program::Doing doing(program, "deleting the record");
        AddEditDel() = "D";
        deleteRecord(key);
        program.say("Deleted", defaultTitle);
    }
    RefreshGrid();
    controls().search->setText("");
    enableSearch();
}

QMenu& MasterList::addRelatedMenu(std::initializer_list<RelatedEntry> entries) {
    auto* menu = new QMenu(&form().window());
    menu->setObjectName(QStringLiteral("mnuRel"));
    for (const RelatedEntry& entry : entries) {
        QAction* action = menu->addAction(QLatin1String(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        if (entry.opens.empty()) continue;
        on(form(), action, &QAction::triggered, [this, opens = entry.opens] {
            const Program::Doing doing(form().program(),
                                       "opening the window \"" + std::string(opens) + selectedName() + '"');
            fail(Failure::ObjectNotSet);
        });
    }
    return *menu;
}

std::int16_t MasterList::selectedKey16() {
    return strictInt16(selectedKey());
}

}  // namespace torvane
