#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLocale>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "screens/probe.h"
#include "screens/qt_host.h"

namespace torvane {
namespace {

class ControlsTest : public ProbeTest {
protected:
    ControlsTest() {
        QApplication::setKeyboardInputInterval(0);
        form.Show();
        form.window().resize(500, 700);
        settle();
    }
    static void compose(QWidget& control, const char* text) {
        QInputMethodEvent composed;
        composed.setCommitString(text);
        QApplication::sendEvent(&control, &composed);
    }
    static void press(QWidget& control, const char* sign, Qt::KeyboardModifiers held = {}) {
        QKeyEvent pressed(QEvent::KeyPress, Qt::Key_unknown, held, sign);
        QApplication::sendEvent(&control, &pressed);
    }
    static void wheel(QWidget& control) {
        const QPointF centre = control.rect().center();
        QWheelEvent turn(centre, control.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&control, &turn);
    }
    static void paste(TextBox& box, const char* text) {
        QApplication::clipboard()->setText(text);
        key(box, Qt::Key_V, Qt::ControlModifier);
    }
    static std::string copied() { return utf8(QApplication::clipboard()->text()); }
    Probe form{program, "frmForm"};
    QContextMenuEvent menu{QContextMenuEvent::Keyboard, {}, {}};
};

TEST_F(ControlsTest, KeyFilterLooksAtCharactersOnly) {
    TextBox& box = *form.first;
    box.setKeyFilter("0123456789.");
    const struct {
        const char* name;
        std::function<void()> act;
        const char* expected;
    } rows[] = {
        {"all but digits and points is dropped", [&] { type(box, "-1a. 2,e34"), key(box, Qt::Key_Backspace); }, "1.23"},
        {"pasted, a line break as a blank", [&] { paste(box, "1,a\r\n2\t3\n"), type(box, "4"); }, "1,a 2 3 4"},
        {"a soft hyphen, a face, a next line", [&] { press(box, "\u00ad"), press(box, "😀"), press(box, "\u0085"); },
         ""},
        {"unseen, with Control and Shift", [&] { press(box, "\u200c", Qt::ControlModifier | Qt::ShiftModifier); }, ""},
        {"composed", [&] { compose(box, "5"), compose(box, "-"), compose(box, "\u200b"); }, "5"},
        {"in front of what code has written", [&] { box.setText("2"), type(box, "1"); }, "12"},
        {"by code", [&] { box.setText("n\na"); }, "n\na"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        box.setText("");
        row.act();
        EXPECT_EQ(box.Text(), row.expected);
    }
}

// Each act, the clicks that it gives, and what is selected then.
TEST_F(ControlsTest, ListsByKeyAndMouse) {
    DropList& choice = *form.choice;
    ReportList& list = *form.list;
    QWidget& area = *list.viewport();
    const QPoint first(30, 5);  // in the first row, and in the first header
    const struct {
        const char* name;
        std::function<void()> act;
        const char* expected;
        int index = -1;  // in the drop-down list
        int row = 0;     // in the other one
    } rows[] = {
        {"selected twice", [&] { choice.select(1), choice.select(1); }, "b, b", 1},
        {"by number, each that fits", [&] { choice.selectItemData(4); }, "a, b", 1},
        {"none", [&] { choice.select(0), choice.selectItemData(6), choice.select(-1); }, "a"},
        {"picked twice", [&] { pickInList(choice, 1), pickInList(choice, 1); }, "b, b", 1},
        {"arrows to choose", [&] { key(choice, Qt::Key_Down), key(choice, Qt::Key_Down); }, "a, b", 1},
        {"arrows", [&] { key(list, Qt::Key_Down), key(list, Qt::Key_Down), key(list, Qt::Key_Up); }, "", -1, 1},
        {"letter finds by the first column shown", [&] { type(list, "s"); }, "", -1, 2},
        {"the key's digit finds nothing", [&] { type(list, "9"); }, ""},
        {"Enter on the keypad", [&] { key(list, Qt::Key_Enter); }, "DblClick 0"},
        {"copied without the key", [&] { key(list, Qt::Key_C, Qt::ControlModifier), note(copied()); }, "Brick\t0.50"},
        {"double click below the rows",
         [&] { mouse(QTest::mouseDClick, area, area.rect().bottomLeft() + QPoint(20, -3)); }, "DblClick 0"},
        {"click with Control on the selected row", [&] { mouse(QTest::mouseClick, area, first, Qt::ControlModifier); },
         ""},
        {"right button", [&] { clickRow(list, 1, Qt::RightButton); }, "RightClick", -1, 1},
        {"menu key", [&] { QApplication::sendEvent(&area, &menu); }, "RightClick"},
        {"quick second click on a header", [&] { mouse(QTest::mouseDClick, *list.header()->viewport(), first); },
         "Column 1, Column 1"},
        {"Enter in an empty list", [&] { list.clear(), key(list, Qt::Key_Return), type(list, "s"); }, "", -1, -1},
    };
    on(form, &choice, &DropList::Click, [&] { note(choice.Text()); });
    on(form, &list, &ReportList::DblClick, [&] { note("DblClick " + std::to_string(list.SelectedRow())); });
    on(form, &list, &ReportList::ColumnClick, [&](int column) { note("Column " + std::to_string(column)); });
    on(form, &list, &ReportList::RightClick, [&] { note("RightClick"); });
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        choice.fill({{"a", 4}, {"b", 4}, {"c", 5}});
        list.clear();
        list.AddRows({{"7", "Brick", "0.50"}, {"8", "Mortar", "4"}, {"9", "Sand", "12"}});
        log.clear();
        row.act();
        EXPECT_EQ(log, row.expected);
        EXPECT_EQ(choice.ListIndex(), row.index);
        EXPECT_EQ(list.SelectedRow(), row.row);
    }
    for (const int outside : {-2, 3}) EXPECT_THROW(choice.select(outside), RuntimeFailure);
    list.AddRows({{"7"}, {"8"}, {"9"}});
    EXPECT_THROW(list.setRow(0, Texts(4)), RuntimeFailure);
    for (const int outside : {-1, 3}) {
        EXPECT_THROW((void)choice.ItemData(outside), RuntimeFailure);
        EXPECT_THROW((void)list.Cell(0, outside), RuntimeFailure);
        EXPECT_THROW((void)list.Cell(outside, 0), RuntimeFailure);
    }
}

// Else a price or a date would be read in part.
TEST_F(ControlsTest, ColumnsShareWhatIsFreeUntilOneIsDragged) {
    ReportList& list = *form.list;
    const QAbstractItemView& view = list;
    list.AddRow({"6", std::string(200, 'n'), "a price with a remark"});
    settle();
    EXPECT_TRUE(list.model()->index(0, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) << "a price";
    EXPECT_EQ(list.columnWidth(2), view.sizeHintForColumn(2)) << "the one that lacks least is whole";
    EXPECT_EQ(list.header()->length(), list.viewport()->width()) << "the other one has the rest";
    const auto tip = [&](int row) {
        QHelpEvent asked(QEvent::ToolTip, list.visualRect(list.model()->index(row, 1)).center(), {});
        QApplication::sendEvent(list.viewport(), &asked);
        return utf8(QToolTip::text());
    };
    EXPECT_EQ(tip(0), "") << "a text that is seen whole";
    EXPECT_NE(tip(3).find(std::string(200, 'n')), std::string::npos) << "one that is cut";
    EXPECT_FALSE(list.header()->sectionsMovable());
    form.window().resize(300, 700);
    settle();
    EXPECT_EQ(list.header()->length(), list.viewport()->width()) << "in a narrower window, too";
    list.setRow(3, {"6", "short", std::string(200, 'n')});
    settle();
    EXPECT_EQ(list.columnWidth(1), std::max(view.sizeHintForColumn(1), list.header()->sectionSizeHint(1)))
        << "what it does not need goes to the one that cuts its text";
    list.header()->resizeSection(1, 60);
    form.window().resize(600, 700);
    settle();
    EXPECT_EQ(list.columnWidth(1), 60);
}

// From November 23, 2026, reached by Tab.
TEST_F(ControlsTest, DateBoxTakesWhatIsTypedInTheMachinesOrder) {
    const struct {
        const char* locale;
        std::vector<Qt::Key> keys;
        const char* typed;
        const char* expected;  // as the box shows it then
    } rows[] = {{"en_US", {}, "1/1/1601", "1/1/1601"},
                {"en_US", {}, "12/31/1600", "11/23/2026"},
                {"en_US", {}, "12/31/9999", "12/31/9999"},
                {"en_US", {Qt::Key_End, Qt::Key_Left}, "3/5/2026", "3/5/2026"},
                {"en_US", {Qt::Key_End, Qt::Key_Backspace, Qt::Key_7, Qt::Key_Up}, "", "11/23/2028"},
                {"en_US", {Qt::Key_Up}, "", "12/23/2026"},
                {"en_US", {Qt::Key_End, Qt::Key_Down, Qt::Key_Down}, "30", "11/23/1930"},
                {"en_GB", {Qt::Key_Up, Qt::Key_Up, Qt::Key_PageUp}, "", "05/12/2026"},
                {"ko_KR", {Qt::Key_End, Qt::Key_Left, Qt::Key_Up}, "", "2026. 11. 24."},
                {"en_GB", {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up}, "", "24/11/2026"},
                {"bg_BG", {Qt::Key_End, Qt::Key_Up}, "", "23.11.2027 \u0433."},
                {"ar_EG", {}, "\u0665/\u0663/\u0662\u0660\u0662\u0666", "5/3/2026"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.locale) + " " + row.typed + " " + row.expected);
        form.Unload();
        host.style = shortDateOf(QLocale(row.locale));
        form.Show();
        DateBox& box = *form.date;
        box.setDateStyle(host.style);
        box.setValue({2026, 11, 23});
        form.first->setFocus();
        wheel(box);
        key(*form.choice, Qt::Key_Tab);
        for (const Qt::Key one : row.keys) key(box, one);
        if (std::string_view(row.locale) == "ar_EG")
            compose(box, row.typed);
        else
            type(box, row.typed);
        const Date read = box.Value();  // also while the focus is still there
        key(box, Qt::Key_Tab);
        EXPECT_TRUE(form.list->hasFocus());
        EXPECT_EQ(utf8(box.text()), row.expected);
        EXPECT_EQ(shortDateText(read, host.style), row.expected);
    }
    for (const auto& [pressed, held] : {std::pair{Qt::Key_F4, Qt::NoModifier}, {Qt::Key_Down, Qt::AltModifier}}) {
        key(*form.date, pressed, held);
        ASSERT_TRUE(QApplication::activePopupWidget()) << "the calendar";
        QApplication::activePopupWidget()->close();
    }
}

}  // namespace
}  // namespace torvane
