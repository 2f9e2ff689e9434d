// Every window by its entry in the menu, by keyboard, and for who can't see it: where Tab goes, what Enter and Escape
// press, which page F1 opens, and that whatever takes the focus has a name of its own.

#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QRadioButton>
#include <QTest>
#include <QTextBrowser>
#include <algorithm>

#include "calculators/screens/tab_strip.h"
#include "journeys/journey.h"
#include "shell/menu_tree.h"

namespace torvane {
namespace {

bool isOption(const QWidget& control) {
    return qobject_cast<const QRadioButton*>(&control) || qobject_cast<TabStrip*>(control.parentWidget());
}

// Of a group of options one takes the focus: the set one, or the first. The arrows go to the others.
bool takesFocus(QWidget& control) {
    if (!control.isVisible() || !control.isEnabled() || !(control.focusPolicy() & Qt::TabFocus)) return false;
    if (!isOption(control)) return !control.objectName().startsWith("qt_");
    QList<QAbstractButton*> options;
    for (auto* button : control.parentWidget()->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        if (isOption(*button)) options.append(button);
    const auto set = std::ranges::find_if(options, &QAbstractButton::isChecked);
    return &control == (set == options.end() ? options.constFirst() : *set);
}

// The button that comes next in the panel of a box, or the panel's last.
std::string buttonAfter(const QWidget& box) {
    std::string name;
    bool passed = false;
    for (const auto* control : box.parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        passed = passed || control == &box;
        const auto* button = qobject_cast<const QPushButton*>(control);
        if (!button || button->property("picture") == "help") continue;
        name = utf8(button->objectName());
        if (passed) break;
    }
    return name;
}

// Where Tab goes from here, once round. The parts of a date are one stop.
Texts walk(QWidget& window) {
    Texts way{utf8(QApplication::focusWidget()->objectName())};
    for (int patience = 200; patience > 0; --patience) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        settle();
        const std::string here = utf8(QApplication::focusWidget()->objectName());
        if (here == way.front() && way.size() > 1) break;
        if (here != way.back()) way.push_back(here);
    }
    return way;
}

class KeyboardTest : public JourneyTest {
protected:
    // Tab visits all that takes the focus, and each of them has a name of its own.
    void expectTabsThrough(QWidget& window, std::string_view focus) {
        window.activateWindow();
        settle();
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_EQ(utf8(QApplication::focusWidget()->objectName()), focus) << "has the focus";
        Texts way = walk(window);
        Texts all;
        for (QWidget* control : window.findChildren<QWidget*>())
            if (takesFocus(*control)) all.push_back(utf8(control->objectName()));
        std::ranges::sort(way);
        std::ranges::sort(all);
        EXPECT_EQ(way, all);
        EXPECT_EQ(badControls(window), std::set<std::string>{});
        const QPoint opened = window.pos();
        if (window.objectName() != "frmCalculators") program.placing().place(window);
        EXPECT_EQ(window.pos(), opened) << "over the middle of the main window";
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(),
                  window.windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window);
        QStringList letters;  // with Alt; a second button of the same letter would only be walked to
        for (const auto* button : window.findChildren<QPushButton*>())
            if (button->isVisible() && !button->shortcut().isEmpty()) letters += button->shortcut().toString();
        EXPECT_EQ(letters.removeDuplicates(), 0) << utf8(letters.join(' '));
    }

    // Enter in a text box, and no other key, presses just this button; "next" is buttonAfter().
    static void expectPressed(QWidget& window, const std::string& pressed) {
        std::string log;
        QObject scope;
        for (auto* button : window.findChildren<QAbstractButton*>())
            QObject::connect(button, &QAbstractButton::clicked, &scope,
                             [&, button] { log += utf8(button->objectName()); });
        for (auto* box : window.findChildren<TextBox*>()) {
            if (!takesFocus(*box) || box->isReadOnly()) continue;
            SCOPED_TRACE(utf8(box->objectName()));
            key(*box, Qt::Key_Up);
            log += "|";
            key(*box, Qt::Key_Return);
            EXPECT_EQ(std::exchange(log, ""), "|" + (pressed == "next" ? buttonAfter(*box) : pressed)) << "Enter";
        }
    }

    // The page that F1 opens. The help can be used over a modal form, too, also when it stood open before.
    void expectHelp(QWidget& window, const std::string& page) {
        window.activateWindow();
        key(window, Qt::Key_F1);
        const auto shown = [] { return utf8(find<QTextBrowser>(*standing("frmHelp"), "Page").source().fileName()); };
        EXPECT_EQ(shown(), page);
        EXPECT_TRUE(find<QWidget>(*standing("frmHelp"), "Page").hasFocus());
        go(*standing("frmHelp"), "cmdContents");
        EXPECT_EQ(shown(), "index.html");
        EXPECT_TRUE(window.isVisible());
    }
};

TEST_F(KeyboardTest, EveryWindow) {
    constexpr bool form = true;
    struct Row {
        const char* entry;  // of the menu
        const char* page;
        const char* focus;
        bool inForm = false;  // all that is in the form that a double click opens
        const char* enter = "";
        std::optional<TestHost::Box> question = {};  // of Escape
    };
    const auto discard =
        yes("Are you sure you want to cancel this screen and discard any changes done?", "Confirm Cancel");
    data.useHelpBook();
    start();
    expectTabsThrough(screens->mainMenu.window(), "cmd_Files");
    expectHelp(screens->mainMenu.window(), "main-window.html");
    expectHelp(*standing("frmHelp"), "help.html");
    calls.clear();
    for (const Row& row :
         {Row{"SubMnuAddCat", "categories.html", "txtCatName"},
          Row{"SubMnuEditCat", "category-form.html", "Txtname", form}, Row{"SubMnuDelItem", "items.html", "txtName"},
          Row{"SubMnuEditItem", "item-form.html", "txtCode", form},
          Row{"SubMnuEditCust", "customers.html", "txtCustName"},
          Row{"SubMnuEditCust", "customer-form.html", "TxtCname", form},
          Row{"SubMnuDelCust", "customer-form.html", "CmdCancel", form}, Row{"mnuRooms", "names.html", "txtName"},
          Row{"mnuUnits", "names.html", "txtName"}, Row{"mnuEditEstimate", "search-estimate.html", "txtName"},
          Row{"mnuDelEstimate", "delete-estimate.html", "TxtGetOrderNo", false, "cmdOk"},
          Row{"mnuBlank", "notes-area.html", "rtfNotes"}, Row{"mnusalesrpt", "report-prompt.html", "FDate"},
          Row{"mnucustrpt", "customers-report.html", "scroll"},
          Row{"mnuNewEstimate", "estimate.html", "TxtCustomer", false, "", discard},
          Row{"mnuHelpAbout", "about.html", "cmdClose"}, Row{"mnucalc1_7", "scientific.html", "Command2_4"}}) {
        SCOPED_TRACE(row.entry);
        const auto visit = [&](QWidget& window) {
            expectTabsThrough(window, row.focus);
            if (*row.enter) host.expect(ok("Please Enter Estimate No.", "Search Estimate"));
            expectPressed(window, row.enter);
            expectHelp(window, row.page);
            if (row.question) host.expect(*row.question);
            const QPointer<QWidget> stands = &window;
            window.activateWindow();
            key(window, Qt::Key_Escape);
            const bool machine = row.page == std::string_view("scientific.html");  // it has an Escape of its own
            EXPECT_EQ(!stands.isNull(), machine);
            if (machine) closeBox(window);
        };
        choose(row.entry);
        QWidget& window = *QApplication::activeWindow();
        if (!row.inForm) visit(window);
        if (!row.inForm) continue;
        whenModal(visit);
        doubleClickRow(list(window), 0);
        closeBox(window);
    }
    EXPECT_EQ(calls, Texts{}) << "the assistant speaks when it is asked";
}

TEST_F(KeyboardTest, EstimateWithItsNotesAndALineUnderEdit) {
    data.useHelpBook();
    QWidget& order = newEstimate();
    go(order, "cmbRooms=Deck; cmbItems=Joist; cmdAdd");
    doubleClickRow(list(order), 0);
    expectTabsThrough(order, "ListView1");
    expectPressed(order, "");
    go(order, "cmdEditCanc; cmdImport");
    expectTabsThrough(order, "rtfNotes");
    const QRect lines = find<QWidget>(order, "Frame1").geometry(), notes = find<QWidget>(order, "frmNotes").geometry();
    EXPECT_TRUE(notes.bottom() == lines.bottom() && notes.width() < lines.width() && notes.intersects(lines));
    key(order, Qt::Key_Escape);
    EXPECT_EQ(visible(order, {"frmNotes"}), "") << "Escape closes the notes, not the estimate";
    EXPECT_TRUE(find<QWidget>(order, "txtNotes").hasFocus());
    go(order, "cmdItemList");
    expectTabsThrough(*standing("frmList"), "TreeCategory");
    expectHelp(*standing("frmList"), "item-sheet.html");
}

TEST_F(KeyboardTest, CalculatorPanels) {
    data.useHelpBook();
    start();
    for (const MenuEntry& entry : menuTree()) {
        if (entry.group == 0) continue;
        SCOPED_TRACE(entry.name);
        choose(entry.name);
        const CalculatorGroup& group = calculatorGroups()[entry.group - 1];
        const CalculatorTab& tab = group.tabs[static_cast<std::size_t>(entry.Which - 1)];
        QWidget& window = *standing(group.name);
        EXPECT_EQ(utf8(window.windowTitle()), "Calculators");
        QStringList frames;
        for (const QGroupBox* frame : window.findChildren<QGroupBox*>())
            if (frame->isVisible() && frame->objectName().startsWith("frmTab")) frames += frame->objectName();
        EXPECT_EQ(utf8(frames.join(' ')), tab.panel ? tab.panel()->frame : "");
        EXPECT_TRUE(find<QAbstractButton>(window, "TabStrip1_1").isChecked()) << "an entry moves no mark";
        go(window, "cmdHelpMain");
        EXPECT_TRUE(calls.back().starts_with("Speak You can transfer any of the totals you want"));
        const std::string page =
            tab.panel ? "tab" + utf8(frames.join(' ').mid(6)) : "group" + std::to_string(entry.group);
        expectHelp(window, page + ".html");
        if (!tab.panel) continue;
        window.activateWindow();
        const auto panel = tab.panel();
        auto& frame = find<QGroupBox>(window, panel->frame);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&frame)->text(QAccessible::Name),
                  qstring(panel->caption.empty() ? tab.caption : panel->caption));
        EXPECT_EQ(text(frame, "lblTab"), tab.caption) << "which stands over a panel without a caption";
        EXPECT_EQ(visible(frame, {"lblTab"}), panel->caption.empty() ? "lblTab" : "");
        for (const Control* control : panel->controls()) {
            if (control->kind != ControlKind::Help) continue;
            go(window, control->name);
            EXPECT_EQ(calls.back(), "Speak " + control->label);
        }
        find<QWidget>(window, "TabStrip1_1").setFocus();
        expectTabsThrough(window, "TabStrip1_1");
        for (auto* list : window.findChildren<DropList*>())
            if (list->isVisible() && list->ListIndex() < 0) pickInList(*list, 0);
        expectPressed(window, "next");
    }
    QWidget& window = *standing("frmCalculators");
    auto* tab = &find<QWidget>(window, "TabStrip1_1");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(tab)->role(), QAccessible::PageTab);
    std::string way;
    for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left}) {
        window.activateWindow();
        key(*tab, arrow);
        tab = QApplication::focusWidget();
        way += utf8(tab->objectName()) + " ";
    }
    EXPECT_EQ(way, "TabStrip1_2 TabStrip1_6 TabStrip1_7 TabStrip1_3 TabStrip1_2 ");
    EXPECT_TRUE(find<QAbstractButton>(window, "TabStrip1_1").isChecked()) << "the arrows only walk";
    key(*tab, Qt::Key_Space);
    EXPECT_EQ(visible(window, {"frmTab1", "frmTab2"}), "frmTab2");
    tab = &find<QWidget>(window, "TabStrip1_4");
    key(*tab, Qt::Key_Enter);
    EXPECT_EQ(visible(window, {"frmTab2", "frmTab4"}), "frmTab4");
    auto& third = *QAccessible::queryAccessibleInterface(&find<QWidget>(window, "TabStrip1_3"));
    third.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(third.state().selectable && third.state().selected && find<QWidget>(window, "frmTab3").isVisible());
    EXPECT_EQ(host.started, Texts{data.path() + "/Convert.exe"}) << "by the menu only";
}

}  // namespace
}  // namespace torvane
