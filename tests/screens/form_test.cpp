#include <QApplication>
#include <QScreen>
#include <QWindow>

#include "screens/probe.h"

namespace torvane {
namespace {

class FormTest : public ProbeTest {
protected:
    Probe main{program, "frmMain"};
    Probe list{program, "frmList"};
    Probe entry{program, "frmEntry"};
};

TEST_F(FormTest, ALoadThatFailsOrUnloadsLeavesNoWindow) {
    list.whenLoaded = [] { fail(Failure::NullValue); };
    EXPECT_THROW(list.Load(), RuntimeFailure);
    EXPECT_FALSE(list.loaded());
    list.whenLoaded = [&] { list.Unload(); };
    list.Show();
    list.ShowModal();
    EXPECT_THROW(list.window(), RuntimeFailure);
}

// The double click opens a modal form, which unloads the list under it; what the handler holds stays until it is done.
TEST_F(FormTest, ListUnloadedFromTheEntryFormThatItHasOpened) {
    list.whenLoaded = [&] {
        on(list, list.first, &TextBox::textChanged, [&] { note("Change"); });
        on(list, list.list, &ReportList::DblClick, [&] {
            ReportList* const held = list.list;
            const QPointer<QWidget> window = &list.window();
            note("opens " + held->Cell(held->SelectedRow(), 1));
            entry.ShowModal();
            EXPECT_TRUE(window && !window->isVisible());
            note("held " + std::to_string(held->RowCount()));
            list.first->setText("of a window that has gone");
            list.Load();
            EXPECT_TRUE(window && window != &list.window());
        });
    };
    entry.whenLoaded = [&] {
        on(entry, entry.button, &QPushButton::clicked, [&] {
            list.Unload();
            settle();  // whatever would delete the list's window has its chance
            entry.Unload();
        });
    };
    list.Show();
    const QPointer<QWidget> old = &list.window();
    whenModal([&](QWidget&) { click(*entry.button); });
    doubleClickRow(*list.list, 1);
    EXPECT_EQ(log, "opens Mortar, held 3");
    EXPECT_FALSE(old);
    EXPECT_EQ(list.loads, 2);
}

TEST_F(FormTest, ClosesItselfInItsOwnHandlers) {
    const std::function<void()> acts[] = {
        [&] { doubleClickRow(*list.list, 0); },
        [&] { key(*list.list, Qt::Key_Return); },
        [&] { clickHeader(*list.list, 1); },
        [&] { clickRow(*list.list, 0, Qt::RightButton); },
        [&] { click(*list.button); },
        [&] { type(*list.first, "x"); },
        [&] { pickInList(*list.choice, "two"); },
        [&] { closeBox(list.window()); },
    };
    list.whenLoaded = [&] {
        const auto close = [&] { list.Unload(); };
        on(list, list.list, &ReportList::DblClick, close);
        on(list, list.list, &ReportList::ColumnClick, close);
        on(list, list.list, &ReportList::RightClick, close);
        on(list, list.button, &QPushButton::clicked, close);
        on(list, list.first, &TextBox::textChanged, close);
        on(list, list.choice, &DropList::Click, close);
    };
    for (const auto& act : acts) {
        SCOPED_TRACE(&act - acts);
        list.Show();
        const QPointer<QWidget> window = &list.window();
        act();
        EXPECT_FALSE(list.loaded());
        settle();
        EXPECT_FALSE(window);
    }
}

// Entry form over the list, and over both the list again: no ring of windows that stand over each other. A window
// behind them can't be used until it is shown again.
TEST_F(FormTest, ModalWindowsOverEachOther) {
    main.Show();
    list.Show();
    list.whenLoaded = [] { FAIL() << "a window that stands open is not loaded again"; };
    on(list, list.button, &QPushButton::clicked, [&] { entry.ShowModal(); });
    entry.whenLoaded = [&] { on(entry, entry.button, &QPushButton::clicked, [&] { list.ShowModal(); }); };
    whenModal([&](QWidget&) {
        whenModal([&](QWidget&) {
            whenModal([&](QWidget& top) {
                int above = 0;
                for (QWindow* step = top.windowHandle(); step && above < 10; step = step->transientParent()) ++above;
                EXPECT_EQ(above, 2);
                type(*list.first, "usable");
                EXPECT_EQ(list.first->Text(), "usable");
                click(*main.second);
                EXPECT_NE(main.window().focusWidget(), main.second);
                main.Show();
                click(*main.second);
                EXPECT_EQ(main.window().focusWidget(), main.second);
                closeBox(top);
                EXPECT_EQ(QApplication::activeModalWidget(), &entry.window());
                note("list closed");
            });
            click(*entry.button);
            closeBox(entry.window());
        });
        click(*list.button);
    });
    run([&] {
        list.ShowModal();
        note("all done");
    });
    EXPECT_EQ(log, "list closed, all done");
}

TEST_F(FormTest, LastWindowEndsTheProgramWhenTheHandlersAreDone) {
    int ends = 0;
    program.lastWindow().onGone([&] { ++ends; });
    list.whenLoaded = [&] {
        on(list, list.button, &QPushButton::clicked, [&] {
            list.Unload();
            entry.Show();
        });
        on(list, list.list, &ReportList::DblClick, [&] {
            list.Unload();
            EXPECT_EQ(ends, 0);
        });
    };
    main.setAuxiliary(true);
    main.Show();
    list.Show();
    click(*list.button);
    list.Show();
    entry.Unload();
    EXPECT_EQ(ends, 0);
    doubleClickRow(*list.list, 0);
    EXPECT_EQ(ends, 1);
}

TEST_F(FormTest, PlacesWindowsOverTheMainWindowWhollyOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    struct Row {
        const char* name;
        QRect main;
        QSize window;
        QPoint expected;
    };
    const Row rows[] = {
        {"centred and lifted by 17 pixels", {100, 150, 600, 400}, {300, 350}, {250, 158}},
        {"larger than the main window", {100, 150, 200, 360}, {400, 370}, {0, 128}},
        {"off the upper edge", {200, 0, 400, 350}, {300, 350}, {250, 0}},
        {"off the right lower edge",
         {screen.right() - 99, screen.bottom() - 99, 600, 600},
         {300, 350},
         {screen.right() - 299, screen.bottom() - 349}},
    };
    for (const bool gone : {false, true}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(row.name) + (gone ? ", main window gone" : ""));
            main.window().setGeometry(row.main);
            program.placing().setMainWindow(&main.window());
            if (gone) main.Unload();
            list.window().setMinimumSize(1, 1);
            list.window().resize(row.window);
            program.StartUp(list);
            EXPECT_EQ(list.window().geometry(), QRect(row.expected, row.window));
            list.Unload();
        }
    }
}

}  // namespace
}  // namespace torvane
