// Every window by keyboard: where Tab goes, and what Enter and Escape press.

#include <QApplication>
#include <QButtonGroup>
#include <QRadioButton>
#include <QTest>
#include <algorithm>
#include <utility>

#include "calculators/screens/tab_strip.h"
#include "journeys/journey.h"
#include "shell/menu_tree.h"

namespace torvane {
namespace {

using Way = std::vector<QWidget*>;

std::string nameOf(const QWidget& control) {
    return utf8(control.objectName());
}

std::string namesOf(const Way& way) {
    std::string names;
    for (const QWidget* control : way) names += " " + nameOf(*control);
    return names;
}

bool isHelp(const QWidget& control) {
    const auto* button = qobject_cast<const PictureButton*>(&control);
    return button && button->picture() == QLatin1String("help");
}

bool isOption(const QWidget& control) {
    return qobject_cast<const QRadioButton*>(&control) || qobject_cast<TabStrip*>(control.parentWidget());
}

// Of a group of options one takes the focus: the set one, or the first. The arrows go to the others.
bool takesFocus(QWidget& control) {
    if (!control.isVisible() || !control.isEnabled() || !(control.focusPolicy() & Qt::TabFocus)) return false;
    if (!isOption(control)) return true;
    QList<QAbstractButton*> options;
    for (auto* button : control.parentWidget()->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        if (isOption(*button)) options.append(button);
    const auto set = std::ranges::find_if(options, &QAbstractButton::isChecked);
    return &control == (set == options.end() ? options.constFirst() : *set);
}

// Where Tab or Shift+Tab goes from here, once round. The parts of a date are one stop.
Way walk(QWidget& window, Qt::Key tab) {
    constexpr int patience = 200;
    Way way{QApplication::focusWidget()};
    for (int steps = 0; steps < patience; ++steps) {
        QTest::keyClick(window.windowHandle(), tab);
        settle();
        QWidget* here = QApplication::focusWidget();
        if (here == way.back()) continue;
        if (here == way.front()) return way;
        way.push_back(here);
    }
    ADD_FAILURE() << "does not come back:" << namesOf(way);
    return way;
}

// --- Reading order ---------------------------------------------------------------------------------------------------

QRect placeOf(const QWidget& control) {
    return {control.mapTo(control.window(), QPoint()), control.size()};
}

bool overlap(int first, int last, int otherFirst, int otherLast) {
    return first <= otherLast && otherFirst <= last;
}

// Row by row and in a row from the left, or column by column and in a column from the top.
bool byRows(const QWidget* a, const QWidget* b) {
    const QRect one = placeOf(*a), other = placeOf(*b);
    return overlap(one.top(), one.bottom(), other.top(), other.bottom()) ? one.left() < other.left()
                                                                         : one.top() < other.top();
}

bool byColumns(const QWidget* a, const QWidget* b) {
    const QRect one = placeOf(*a), other = placeOf(*b);
    return overlap(one.left(), one.right(), other.left(), other.right()) ? one.top() < other.top()
                                                                         : one.left() < other.left();
}

// The parts of a window as they are read: what lies together in a frame; in a calculator first what is typed, then its
// buttons, then what they give.
std::string partOf(const QWidget& control) {
    const auto* box = qobject_cast<const TextBox*>(&control);
    const bool inPanel = nameOf(*control.parentWidget()).find("tmTab") != std::string::npos ||
                         nameOf(*control.parentWidget()).starts_with("frmTab");
    std::string part = std::to_string(reinterpret_cast<std::uintptr_t>(control.parentWidget()));
    if (inPanel)
        part += box && box->isReadOnly() ? "result" : qobject_cast<const QPushButton*>(&control) ? "button" : "";
    return part;
}

// Whether a step from one part to the next goes on: seen as controls, or as the frames that they lie in.
bool goesOn(const QWidget* from, const QWidget* to) {
    if (byRows(from, to)) return true;
    const QWidget* outer = from;
    while (!outer->isAncestorOf(to)) {
        from = outer;
        outer = outer->parentWidget();
    }
    while (to->parentWidget() != outer) to = to->parentWidget();
    return byRows(from, to);
}

// What is wrong with the order of a way; help may come at any time, and a new part begins after a leap.
std::string misplaced(Way way, const Names& leaps) {
    std::erase_if(way, [](const QWidget* control) { return isHelp(*control); });
    std::ranges::rotate(way, std::ranges::min_element(way, byRows));
    const auto leapAfter = [&](const QWidget* control) { return std::ranges::count(leaps, nameOf(*control)) > 0; };
    std::string wrong;
    for (auto part = way.begin(); part != way.end();) {
        auto end = part + 1;
        while (end != way.end() && partOf(**end) == partOf(**part) && !leapAfter(*(end - 1))) ++end;
        if (!std::is_sorted(part, end, byRows) && !std::is_sorted(part, end, byColumns))
            wrong += " within" + namesOf({part, end}) + ";";
        if (end != way.end() && (*end)->parentWidget() != (*part)->parentWidget() && !leapAfter(*(end - 1)) &&
            !goesOn(*(end - 1), *end))
            wrong += " after " + nameOf(**(end - 1)) + ": " + nameOf(**end) + ";";
        part = end;
    }
    return wrong;
}

// --- The windows -----------------------------------------------------------------------------------------------------

class KeyboardTest : public JourneyTest {
protected:
    // The button that Tab comes to next in the panel of a box, or the panel's last.
    static std::string buttonAfter(const QWidget& box) {
        const QWidget* button = nullptr;
        bool passed = false;
        for (const auto* control : box.parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (qobject_cast<const QPushButton*>(control) && !isHelp(*control)) button = control;
            passed = passed || control == &box;
            if (passed && button == control) break;
        }
        return nameOf(*button);
    }

    // Tab visits all that takes the focus, in the order of reading but for the leaps, and Shift+Tab goes the way back.
    void expectTabsThrough(QWidget& window, std::string_view focus, const Names& leaps = {}) {
        window.activateWindow();
        settle();
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_EQ(nameOf(*QApplication::focusWidget()), focus) << "has the focus";
        Way way = walk(window, Qt::Key_Tab);
        EXPECT_EQ(misplaced(way, leaps), "");
        Way back = walk(window, Qt::Key_Backtab);
        std::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(namesOf(back), namesOf(way));
        Way all;
        for (QWidget* control : window.findChildren<QWidget*>())
            if (!nameOf(*control).starts_with("qt_") && takesFocus(*control)) all.push_back(control);
        std::ranges::sort(way);
        std::ranges::sort(all);
        EXPECT_EQ(namesOf(way), namesOf(all));
    }

    // Escape presses nothing in a text box, and Enter just this button; "next" is buttonAfter().
    void expectPressed(QWidget& window, std::string_view pressed) {
        std::string log;
        QObject scope;
        for (auto* button : window.findChildren<QAbstractButton*>())
            QObject::connect(button, &QAbstractButton::clicked, &scope, [&, button] { log += nameOf(*button); });
        for (auto* box : window.findChildren<TextBox*>()) {
            if (!takesFocus(*box) || box->isReadOnly()) continue;
            key(*box, Qt::Key_Escape);
            EXPECT_EQ(log, "") << "Escape in " << nameOf(*box);
            key(*box, Qt::Key_Return);
            EXPECT_EQ(std::exchange(log, ""), pressed == "next" ? buttonAfter(*box) : pressed)
                << "Enter in " << nameOf(*box);
        }
        EXPECT_TRUE(window.isVisible());
    }
};

TEST_F(KeyboardTest, Screens) {
    struct Row {
        const char* entry;  // of the menu
        const char* window;
        const char* focus;
        const char* enter = "";
        Names leaps = {};
    };
    start();
    expectTabsThrough(screens->mainMenu.window(), "cmd_Files");
    for (const Row& row : {
             Row{"SubMnuAddCat", "frmCategory", "txtCatName"},
             Row{"SubMnuDelItem", "frmItem", "txtName"},
             Row{"SubMnuEditCust", "frmCustomer", "txtCustName"},
             Row{"mnuRooms", "frmMaster", "txtName"},
             Row{"mnuEditEstimate", "frmOrders", "txtName"},
             Row{"mnuDelEstimate", "FrmOrderNo", "TxtGetOrderNo", "cmdOk"},
             Row{"mnuBlank", "frmBlank", "rtfNotes"},
             Row{"mnusalesrpt", "frmRptOrders", "FDate"},
             Row{"mnucustrpt", "DataReport2", "scroll"},
             // The address comes right after the name, before the buttons beside the name.
             Row{"mnuNewEstimate", "frmOrder", "TxtCustomer", "", {"TxtSCountry"}},
             // Two blocks of keys; what is typed and Enter reach the calculator wherever the focus is.
             Row{"mnucalc1_7", "scientific", "Command2_4", "", {"Command13"}},
         }) {
        SCOPED_TRACE(row.window);
        choose(row.entry);
        ASSERT_TRUE(standing(row.window));
        expectTabsThrough(*standing(row.window), row.focus, row.leaps);
        if (*row.enter) host.expectOk("Please Enter Estimate No.", "Search Estimate");
        expectPressed(*standing(row.window), row.enter);
        closeBox(*standing(row.window));
    }
}

TEST_F(KeyboardTest, EntryForms) {
    struct Row {
        const char* entry;
        const char* list;
        const char* focus;
    };
    start();
    for (const Row& row :
         {Row{"SubMnuEditCat", "frmCategory", "Txtname"}, Row{"SubMnuEditItem", "frmItem", "txtCode"},
          Row{"SubMnuEditCust", "frmCustomer", "TxtCname"}, Row{"SubMnuDelCust", "frmCustomer", "CmdCancel"}}) {
        SCOPED_TRACE(row.entry);
        choose(row.entry);
        whenModal([&](QWidget& form) {
            expectTabsThrough(form, row.focus);
            expectPressed(form, "");
            click(form, "CmdCancel");
        });
        doubleClickRow(*standing(row.list), 0);
        closeBox(*standing(row.list));
    }
}

TEST_F(KeyboardTest, EstimateWithItsNotesAndALineUnderEdit) {
    QWidget& order = newEstimate();
    go(order, "cmbRooms=Deck; cmbItems=Joist; cmdAdd");
    doubleClickRow(order, 0);
    expectTabsThrough(order, "ListView1", {"TxtSCountry"});
    expectPressed(order, "");
    click(order, "cmdEditCanc");
    click(order, "cmdImport");
    find<QWidget>(order, "rtfNotes").setFocus();
    expectTabsThrough(order, "rtfNotes", {"TxtSCountry", "cmdImport"});  // the notes lie over the rest
    click(order, "cmdItemList");
    expectTabsThrough(*standing("frmList"), "TreeCategory");
}

TEST_F(KeyboardTest, CalculatorPanels) {
    start();
    const char* windows[] = {"frmCalculators", "frmCalculator2", "frmCalculator3", "frmCalculator4"};
    for (const MenuEntry& entry : menuTree()) {
        if (entry.group == 0) continue;
        choose(entry.name);
        QWidget& window = *standing(windows[entry.group - 1]);
        if (standing("scientific") || !window.focusWidget()) continue;
        SCOPED_TRACE(entry.name);
        find<QWidget>(window, "TabStrip1_1").setFocus();
        expectTabsThrough(window, "TabStrip1_1");
        for (auto* list : window.findChildren<DropList*>())
            if (list->isVisible() && list->ListIndex() < 0) pickInList(*list, 0);
        expectPressed(window, "next");
    }
    QWidget& window = *standing("frmCalculators");
    auto& first = find<QWidget>(window, "TabStrip1_1");
    for (const auto& [arrow, tab] : {std::pair{Qt::Key_Right, "TabStrip1_2"},
                                     {Qt::Key_Down, "TabStrip1_6"},
                                     {Qt::Key_Right, "TabStrip1_7"},
                                     {Qt::Key_Up, "TabStrip1_3"},
                                     {Qt::Key_Left, "TabStrip1_2"}}) {
        first.window()->activateWindow();
        key(*(QApplication::focusWidget()->window() == &window ? QApplication::focusWidget() : &first), arrow);
        EXPECT_EQ(nameOf(*QApplication::focusWidget()), tab);
    }
    EXPECT_EQ(host.started.size(), 1U) << "by the menu only";
    EXPECT_FALSE(standing("scientific"));
}

}  // namespace
}  // namespace torvane
