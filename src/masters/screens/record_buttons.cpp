#include "masters/screens/record_buttons.h"

#include <QMenu>

namespace torvane {

void RecordButtons::connect(QAbstractButton* cmdCopy, QAbstractButton* CmdEdit, QAbstractButton* cmdDel) {
    on(form_, cmdCopy, &QAbstractButton::clicked, [this] { copy(); });
    on(form_, CmdEdit, &QAbstractButton::clicked, [this] { edit(); });
    on(form_, cmdDel, &QAbstractButton::clicked, [this] { remove(); });
}

void RecordButtons::copy() {
    which_ = "C";
    showEntryForm_(list_.selectedKey16(), "A");
    list_.RefreshGrid();
}

void RecordButtons::edit() {
    if (!list_.hasRows()) return;
    showEntryForm_(list_.selectedKey16(), "E");
    list_.RefreshGrid();
}

void RecordButtons::doubleClick() {
    if (!list_.hasRows()) return;
    if (which_ == "A" || which_ == "D" || which_ == "E") which_ += 'E';
    showEntryForm_(list_.selectedKey16(), "E");
    list_.refill();
}

void RecordButtons::remove() {
    if (!list_.hasRows()) return;
    Program& program = form_.program();
    const std::int16_t key = list_.selectedKey16();
    if (program.confirm("Are you sure you want to Delete ' " + list_.selectedName() + " '", "Inventory")) {
        const Program::Doing doing(program, "deleting the record");
        delete_(key);
        program.say("Deleted", defaultTitle);
    }
    list_.RefreshGrid();
    list_.clearSearch();
}

QMenu& addRelatedMenu(Form& form, PagedList& list, std::initializer_list<RelatedEntry> entries) {
    auto* menu = new QMenu(&form.window());
    menu->setObjectName(QStringLiteral("mnuRel"));
    for (const RelatedEntry& entry : entries) {
        QAction* action = menu->addAction(QLatin1String(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        if (entry.opens.empty()) continue;
        on(form, action, &QAction::triggered, [&form, &list, opens = entry.opens] {
            const Program::Doing doing(form.program(),
                                       "opening the window \"" + std::string(opens) + list.selectedName() + '"');
            fail(Failure::ObjectNotSet);
        });
    }
    return *menu;
}

}  // namespace torvane
