#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QRadioButton>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include "screens/probe.h"
#include "screens/qt_host.h"
#include "support/screen_test.h"
#include "widgets/picture_button.h"
#include "widgets/pictures.h"

namespace torvane {

namespace {

class ControlsTest : public ScreenTest {
protected:
    ControlsTest() {
        form.Show();
        settle();
    }
    void note(const std::string& text) { log += (log.empty() ? "" : ", ") + text; }
    static void compose(QWidget& control, const char* text) {
        QInputMethodEvent composed;
        composed.setCommitString(text);
        QApplication::sendEvent(&control, &composed);
    }
    void wheel(QWidget& control) {
        const QPointF centre = control.rect().center();
        QWheelEvent turn(centre, control.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&control, &turn);
    }
    Probe form{program, "frmForm"};
    std::string log;
};

TEST_F(ControlsTest, KeyFilterLooksAtCharactersOnly) {
    form.first->setKeyFilter("0123456789.");
    struct Row {
        const char* name;
        std::function<void(TextBox&)> act;
        std::string expected;
    };
    const Row rows[] = {
        {"digits and points", [](TextBox& box) { type(box, "1.2.3"); }, "1.2.3"},
        {"all else is dropped", [](TextBox& box) { type(box, "-1a 2,e3"); }, "123"},
        {"backspace", [](TextBox& box) { type(box, "12"), key(box, Qt::Key_Backspace); }, "1"},
        {"arrow and Delete", [](TextBox& box) { type(box, "12"), key(box, Qt::Key_Left), key(box, Qt::Key_Delete); },
         "1"},
        {"paste by key",
         [](TextBox& box) {
             QApplication::clipboard()->setText("1,234 (ab)");
             key(box, Qt::Key_V, Qt::ControlModifier);
         },
         "1,234 (ab)"},
        {"a line break comes in as a blank",
         [](TextBox& box) {
             QApplication::clipboard()->setText("1\r\n2\t3\n");
             key(box, Qt::Key_V, Qt::ControlModifier);
             type(box, "4");
         },
         "1 2 3 4"},
        {"signs that are not seen",
         [](TextBox& box) {
             const auto press = [&](const char* sign, Qt::KeyboardModifiers held = {}) {
                 QKeyEvent pressed(QEvent::KeyPress, Qt::Key_unknown, held, sign);
                 QApplication::sendEvent(&box, &pressed);
             };
             type(box, "10");
             for (const char* sign : {"\u00ad", "\u200b", "\ue000", "😀", "\u0085"}) press(sign);
             press("\u200c", Qt::ControlModifier | Qt::ShiftModifier);
         },
         "10"},
        {"copy and cut",
         [](TextBox& box) {
             type(box, "75");
             key(box, Qt::Key_A, Qt::ControlModifier);
             key(box, Qt::Key_X, Qt::ControlModifier);
             key(box, Qt::Key_V, Qt::ControlModifier);
             key(box, Qt::Key_V, Qt::ControlModifier);
         },
         "7575"},
        {"composed characters", [](TextBox& box) { compose(box, "5"), compose(box, "-"), compose(box, "\u200b"); },
         "5"},
        {"code", [](TextBox& box) { box.setText("n\na"); }, "n\na"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        form.first->setText("");
        row.act(*form.first);
        EXPECT_EQ(form.first->Text(), row.expected);
    }
    key(*form.first, Qt::Key_Tab);
    EXPECT_TRUE(form.second->hasFocus());
}

TEST_F(ControlsTest, ResultBoxCanBeCopiedFromButNotTypedInto) {
    form.second->setResult(true);
    form.second->setText("12.5");
    key(*form.first, Qt::Key_Tab);
    EXPECT_TRUE(form.choice->hasFocus());
    type(*form.second, "9");
    EXPECT_EQ(form.second->Text(), "12.5");
    key(*form.second, Qt::Key_A, Qt::ControlModifier);
    key(*form.second, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "12.5");
}

// Each act, and the clicks that it gives.
TEST_F(ControlsTest, DropListClicksOnEachActOfSelecting) {
    const std::vector<DropList::Entry> three{{"a", 4}, {"b", 5}, {"c", 4}};
    struct Row {
        const char* name;
        std::function<void(DropList&)> act;
        const char* expected;
        int index;
    };
    const Row rows[] = {
        {"fill selects nothing", [&](DropList& list) { list.fill(three); }, "", -1},
        {"add selects nothing",
         [](DropList& list) {
             list.Clear();
             list.AddItem("a", 4);
             list.AddItem("b", 5);
         },
         "", -1},
        {"select", [](DropList& list) { list.select(1); }, "b", 1},
        {"select the same again", [](DropList& list) { list.select(1), list.select(1); }, "b, b", 1},
        {"by number, each that fits", [](DropList& list) { list.selectItemData(4); }, "a, c", 2},
        {"by a number that none has", [](DropList& list) { list.select(0), list.selectItemData(6); }, "a", 0},
        {"select none", [](DropList& list) { list.select(0), list.select(-1); }, "a", -1},
        {"clear", [](DropList& list) { list.select(0), list.Clear(); }, "a", -1},
        {"picked", [](DropList& list) { pickInList(list, "b"); }, "b", 1},
        {"picked the same again", [](DropList& list) { pickInList(list, 1), pickInList(list, 1); }, "b, b", 1},
        {"arrow keys", [](DropList& list) { key(list, Qt::Key_Down), key(list, Qt::Key_Down), key(list, Qt::Key_Up); },
         "a, b, a", 0},
        {"letter", [](DropList& list) { type(list, "c"); }, "c", 2},
        {"arrows in the open list, then Escape",
         [](DropList& list) {
             list.setFocus();
             list.showPopup();
             QTest::keyClick(list.view(), Qt::Key_Down);
             QTest::keyClick(list.view(), Qt::Key_Escape);
         },
         "", -1},
        {"wheel, with the focus or without",
         [this](DropList& list) {
             list.select(0);
             wheel(list);
             list.setFocus();
             wheel(list);
         },
         "a", 0},
    };
    on(form, form.choice, &DropList::Click, [&] { note(form.choice->Text()); });
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        form.second->setFocus();
        form.choice->fill(three);
        log.clear();
        row.act(*form.choice);
        settle();
        EXPECT_EQ(log, row.expected);
        EXPECT_EQ(form.choice->ListIndex(), row.index);
    }
}

TEST_F(ControlsTest, DropListPickedWithTheMouse) {
    on(form, form.choice, &DropList::Click, [&] { note(form.choice->Text()); });
    click(*form.choice);
    ASSERT_TRUE(QApplication::activePopupWidget());
    waitFor([] { return false; }, QApplication::doubleClickInterval() + 50);  // sooner it counts as part of the click
    QAbstractItemView& view = *form.choice->view();
    const QPoint place = view.visualRect(form.choice->model()->index(2, 0)).center();
    QTest::mouseClick(view.window()->windowHandle(), Qt::LeftButton, {}, view.viewport()->mapTo(view.window(), place));
    settle();
    EXPECT_EQ(log, "three");
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(ControlsTest, DropListRefusesWhatIsNotThere) {
    struct Row {
        const char* name;
        std::function<void(DropList&)> act;
        int failure;
    };
    const Row rows[] = {
        {"select past the end", [](DropList& list) { list.select(3); }, 5},
        {"select before none", [](DropList& list) { list.select(-2); }, 5},
        {"number of nothing selected", [](DropList& list) { (void)list.ItemData(); }, 9},
        {"number past the end", [](DropList& list) { (void)list.ItemData(3); }, 9},
    };
    for (const Row& row : rows) {
        try {
            row.act(*form.choice);
            ADD_FAILURE() << row.name << " passed";
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), row.failure) << row.name;
        }
    }
    EXPECT_EQ(form.choice->List(3), "");
    EXPECT_EQ(form.choice->Text(), "");
    EXPECT_EQ(form.choice->List(2), "three");
    EXPECT_EQ(form.choice->ItemData(2), 3);
}

TEST_F(ControlsTest, LongDropListOpensAtOnce) {
    std::vector<DropList::Entry> entries;
    for (int number = 0; number < 32767; ++number) entries.push_back({"Item " + std::to_string(number), number});
    form.choice->fill(entries);
    form.choice->showPopup();
    // As a menu it would be as tall as the screen, all entries measured.
    EXPECT_LT(form.choice->view()->height(), 40 * form.choice->fontMetrics().height());
    EXPECT_GT(form.choice->view()->height(), 10 * form.choice->fontMetrics().height());
    form.choice->hidePopup();
    form.choice->selectItemData(32766);
    EXPECT_EQ(form.choice->Text(), "Item 32766");
}

TEST_F(ControlsTest, ReportListHoldsTextsByRowAndColumn) {
    ReportList& list = *form.list;
    EXPECT_EQ(list.SelectedRow(), 0);
    list.selectRow(2);
    list.AddRow({"10", "Lime"});
    EXPECT_EQ(list.SelectedRow(), 2);
    list.setRow(3, {"10", "Lime", "9.99"});
    list.setRow(1, {"18", "Cement"});
    EXPECT_EQ(list.Cell(3, 0) + list.Cell(3, 1) + list.Cell(3, 2), "10Lime9.99");
    EXPECT_EQ(list.Cell(1, 0) + list.Cell(1, 1) + list.Cell(1, 2), "18Cement4");
    list.RemoveRow(0);
    EXPECT_EQ(list.RowCount(), 3);
    EXPECT_EQ(list.Cell(list.SelectedRow(), 1), "Sand");
    list.ClearRows();
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.SelectedRow(), -1);
    list.AddRows({{"1"}, {"2"}});
    EXPECT_EQ(list.SelectedRow(), 0);
    const std::function<void()> refused[] = {
        [&] { (void)list.Cell(-1, 0); },
        [&] { (void)list.Cell(2, 0); },
        [&] { (void)list.Cell(0, 3); },
        [&] { list.RemoveRow(2); },
        [&] { list.selectRow(-1); },
        [&] { list.setRow(2, {}); },
        [&] {
            list.setRow(0, {"", "", "", ""});
        },
    };
    for (const auto& act : refused) EXPECT_THROW(act(), RuntimeFailure) << &act - refused;
    EXPECT_EQ(list.RowCount(), 2);
}

TEST_F(ControlsTest, ReportListByKeyAndMouse) {
    struct Row {
        const char* name;
        std::function<void(ReportList&)> act;
        const char* expected;
        int selected;
    };
    const Row rows[] = {
        {"Down, Down, Up",
         [](ReportList& list) { key(list, Qt::Key_Down), key(list, Qt::Key_Down), key(list, Qt::Key_Up); }, "", 1},
        {"End", [](ReportList& list) { key(list, Qt::Key_End); }, "", 2},
        {"End, Home", [](ReportList& list) { key(list, Qt::Key_End), key(list, Qt::Key_Home); }, "", 0},
        {"PgDn", [](ReportList& list) { key(list, Qt::Key_PageDown); }, "", 2},
        {"letter finds by the first column shown", [](ReportList& list) { type(list, "s"); }, "", 2},
        {"the key's digit finds nothing", [](ReportList& list) { type(list, "9"); }, "", 0},
        {"Enter", [](ReportList& list) { key(list, Qt::Key_Down), key(list, Qt::Key_Return); }, "DblClick 1", 1},
        {"Enter on the keypad", [](ReportList& list) { key(list, Qt::Key_Enter); }, "DblClick 0", 0},
        {"click", [](ReportList& list) { clickRow(list, 1); }, "", 1},
        {"double click", [](ReportList& list) { doubleClickRow(list, 2); }, "DblClick 2", 2},
        {"double click below the rows",
         [](ReportList& list) {
             QWidget& area = *list.viewport();
             const QPoint below = area.mapTo(list.window(), area.rect().bottomLeft() + QPoint(20, -3));
             QTest::mouseDClick(list.window()->windowHandle(), Qt::LeftButton, {}, below);
         },
         "DblClick 0", 0},
        {"click with Control on the selected row",
         [](ReportList& list) {
             const QPoint place =
                 list.viewport()->mapTo(list.window(), list.visualItemRect(list.topLevelItem(0)).center());
             QTest::mouseClick(list.window()->windowHandle(), Qt::LeftButton, Qt::ControlModifier, place);
         },
         "", 0},
        {"right button", [](ReportList& list) { clickRow(list, 1, Qt::RightButton); }, "RightClick", 1},
        {"menu key",
         [](ReportList& list) {
             QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, {});
             QApplication::sendEvent(list.viewport(), &menu);
         },
         "RightClick", 0},
        {"quick second click on a header",
         [](ReportList& list) {
             QWidget& header = *list.header()->viewport();
             const QPoint place =
                 header.mapTo(list.window(), QPoint(list.header()->sectionViewportPosition(2) + 20, 5));
             QTest::mouseDClick(list.window()->windowHandle(), Qt::LeftButton, {}, place);
         },
         "Column 2, Column 2", 0},
        {"headers", [](ReportList& list) { clickHeader(list, 2), clickHeader(list, 1); }, "Column 2, Column 1", 0},
        {"Enter in an empty list", [](ReportList& list) { list.ClearRows(), key(list, Qt::Key_Return); }, "", -1},
        {"letter in an empty list", [](ReportList& list) { list.ClearRows(), type(list, "s"); }, "", -1},
    };
    form.window().resize(500, 700);
    settle();
    on(form, form.list, &ReportList::DblClick, [&] { note("DblClick " + std::to_string(form.list->SelectedRow())); });
    on(form, form.list, &ReportList::ColumnClick, [&](int column) { note("Column " + std::to_string(column)); });
    on(form, form.list, &ReportList::RightClick, [&] { note("RightClick"); });
    const std::vector<std::vector<std::string>> content{
        {"7", "Brick", "0.50"}, {"8", "Mortar", "4"}, {"9", "Sand", "12"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        form.list->ClearRows();
        form.list->AddRows(content);
        log.clear();
        waitFor([] { return false; }, 5);
        row.act(*form.list);
        EXPECT_EQ(log, row.expected);
        EXPECT_EQ(form.list->SelectedRow(), row.selected);
        waitFor([] { return false; }, QApplication::keyboardInputInterval() / 8);
    }
}

TEST_F(ControlsTest, ReportListCopiesWhatIsShown) {
    form.list->selectRow(1);
    key(*form.list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Mortar\t4");
}

TEST_F(ControlsTest, ReportListShowsACutTextAsItIs) {
    for (const char* name :
         {"Pipe 12\" & fittings,  galvanized steel", "<b>Brick</b> &amp; &lt; long enough to be cut"}) {
        form.list->setRow(0, {"", name});
        const QPoint place = form.list->visualRect(form.list->model()->index(0, 1)).center();
        QHelpEvent help(QEvent::ToolTip, place, form.list->viewport()->mapToGlobal(place));
        QApplication::sendEvent(form.list->viewport(), &help);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        EXPECT_TRUE(Qt::mightBeRichText(QToolTip::text()));
        EXPECT_EQ(utf8(shown.toPlainText()), name);
    }
}

TEST_F(ControlsTest, ColumnsGrowWithTheType) {
    ReportList list;
    QFont type = list.font();
    type.setPointSizeF(type.pointSizeF() * 2);
    list.setFont(type);
    list.setColumns({{"Item", 1800}});
    EXPECT_NEAR(list.columnWidth(0), 240, 12);
}

TEST_F(ControlsTest, MarksThatAreNotSetCanBeSeenOnLightAndDark) {
    for (const char* ground : {"#efefef", "#2d2d2d"}) {
        QRadioButton round;
        QCheckBox square;
        for (QAbstractButton* mark : {static_cast<QAbstractButton*>(&round), static_cast<QAbstractButton*>(&square)}) {
            mark->setPalette(QPalette(QColor(ground)));
            const QImage drawn = mark->grab().toImage();
            int seen = 0;
            for (int y = 0; y < drawn.height(); ++y)
                for (int x = 0; x < drawn.width(); ++x)
                    seen += std::abs(qGray(drawn.pixel(x, y)) - qGray(QColor(ground).rgb())) > 45;
            EXPECT_GT(seen, 25) << mark->metaObject()->className() << " on " << ground;
        }
    }
}

TEST_F(ControlsTest, ReportListHeader) {
    ReportList& list = *form.list;
    EXPECT_TRUE(list.isColumnHidden(0));
    EXPECT_EQ(list.columnWidth(1), 120);
    const auto header = [&] { return list.header()->grab().toImage(); };
    list.setColumnIcon(1, ReportList::Icon::Blank);
    const QImage blank = header();
    list.setColumnIcon(1, ReportList::Icon::Up);
    const QImage up = header();
    list.setColumnIcon(1, ReportList::Icon::Down);
    const QImage down = header();
    EXPECT_EQ(list.columnIcon(1), ReportList::Icon::Down);
    EXPECT_EQ(list.columnIcon(2), ReportList::Icon::Blank);
    EXPECT_NE(blank, up);
    EXPECT_NE(up, down);
    EXPECT_TRUE(list.itemDelegateForColumn(2));  // aligns to the right
    list.setColumns({{"ID", 0}, {"Price", 1200, true}, {"Name", 1800}});
    EXPECT_TRUE(list.itemDelegateForColumn(1));
    EXPECT_FALSE(list.itemDelegateForColumn(2));
}

// From November 23, 2026, reached by Tab.
TEST_F(ControlsTest, DateBoxTakesWhatIsTypedInTheMachinesOrder) {
    using Act = std::function<void(DateBox&)>;
    const auto keys = [](std::initializer_list<Qt::Key> pressed, const char* then = "") -> Act {
        return [pressed = std::vector(pressed), then](DateBox& box) {
            for (const Qt::Key one : pressed) key(box, one);
            type(box, then);
        };
    };
    const auto typed = [&](const char* text) { return keys({}, text); };
    const struct {
        const char* locale;
        const char* name;
        Act act;
        const char* expected;  // as the box shows it then
    } rows[] = {
        {"en_US", "slashes", typed("3/5/2026"), "3/5/2026"},
        {"en_US", "two digits, points", typed("03.05.26"), "3/5/2026"},
        {"en_US", "another century, dashes", typed("12-31-30"), "12/31/1930"},
        {"en_US", "another order", typed("31/12/2025"), "12/31/2025"},
        {"en_US", "no such day", typed("2/30/2026"), "11/23/2026"},
        {"en_US", "before the calendar", typed("1/1/1600"), "11/23/2026"},
        {"en_US", "part of a date", typed("3/5"), "11/23/2026"},
        {"en_US", "in front of the old one", keys({Qt::Key_Home}, "3/5/2026"), "3/5/2026"},
        {"en_US", "within the old one", keys({Qt::Key_End, Qt::Key_Left}, "3/5/2026"), "3/5/2026"},
        {"en_US", "one digit of it", keys({Qt::Key_End, Qt::Key_Backspace}, "5"), "11/23/2025"},
        {"en_US", "first part up", keys({Qt::Key_Up}), "12/23/2026"},
        {"en_US", "last part down, typed over", keys({Qt::Key_End, Qt::Key_Down, Qt::Key_Down}, "30"), "11/23/1930"},
        {"en_GB", "a day that this month lacks", typed("31/12/2025"), "31/12/2025"},
        {"en_GB", "blanks", typed("5 3 26"), "05/03/2026"},
        {"en_GB", "the day after the last", keys({}, "30/11/2026"), "30/11/2026"},
        {"en_GB", "up over the month's end", keys({Qt::Key_Up, Qt::Key_Up, Qt::Key_PageUp}), "05/12/2026"},
        {"de_DE", "points", typed("05.03.2026"), "05.03.2026"},
        {"de_DE", "short", typed("5.3.26"), "05.03.2026"},
        {"ko_KR", "points and blanks", typed("2026. 3. 5."), "2026. 3. 5."},
        {"ko_KR", "two digits", typed("26-3-5"), "2026. 3. 5."},
        {"ko_KR", "the month",
         keys({Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up}),
         "2026. 12. 23."},
        {"ar_EG", "slashes", typed("5/3/2026"), "5/3/2026"},
        {"ar_EG", "the machine's own digits", [](DateBox& box) { compose(box, "٥/٣/٢٠٢٦"); }, "5/3/2026"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.locale) + ", " + row.name);
        form.Unload();
        host.style = shortDateOf(QLocale(row.locale));
        form.Show();
        form.date->setDateStyle(host.style);
        form.date->setValue({2026, 11, 23});
        key(*form.choice, Qt::Key_Tab);
        row.act(*form.date);
        const Date read = form.date->Value();  // also while the focus is still there
        key(*form.date, Qt::Key_Tab);
        EXPECT_TRUE(form.list->hasFocus());
        EXPECT_EQ(utf8(form.date->text()), row.expected);
        EXPECT_EQ(shortDateText(read, host.style), row.expected);
    }
}

TEST_F(ControlsTest, DateBoxKeepsTheDay) {
    for (const Date day : {Date{2031, 2, 28}, Date{1899, 12, 30}}) {
        form.date->setValue(day);
        form.first->setFocus();
        wheel(*form.date);
        EXPECT_EQ(form.date->Value(), day);
    }
}

TEST_F(ControlsTest, PictureButtonIsNeverBlank) {
    PictureButton button;
    button.setText("&Select");
    button.setPicture("no such picture");
    button.show();
    EXPECT_EQ(utf8(button.accessibleName()), "Select");
    EXPECT_EQ(utf8(button.toolTip()), "Select");
    const QImage withText = button.grab().toImage();
    button.setText("");
    EXPECT_EQ(button.grab().toImage().size(), withText.size());
    QPushButton bare;
    bare.resize(button.size());
    EXPECT_NE(button.grab().toImage(), bare.grab().toImage());
    EXPECT_TRUE(torvane::picture("no such picture").isNull());
}

}  // namespace

}  // namespace torvane
