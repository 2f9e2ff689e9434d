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

// What the handler of a window holds stays until the handler is done, and goes then.
TEST_F(FormTest, AWindowIsUnloadedInItsOwnHandlers) {
    QPointer<QWidget> window;
    const auto close = [&] {
        list.Unload();
        settle();  // whatever would delete the window has its chance
        EXPECT_TRUE(window && !window->isVisible());
        list.list->clear();
    };
    list.whenLoaded = [&] {
        on(list, list.list, &ReportList::ColumnClick, close);
        on(list, list.list, &ReportList::RightClick, close);
        on(list, list.first, &TextBox::textChanged, close);
        on(list, list.choice, &DropList::Click, close);
        // From the entry form that the double click has opened over the list.
        on(list, list.list, &ReportList::DblClick, [&] {
            whenModal([&](QWidget&) { click(*entry.button); });
            entry.ShowModal();
            EXPECT_TRUE(window && !list.loaded());
        });
    };
    entry.whenLoaded = [&] { on(entry, entry.button, &QPushButton::clicked, [&] { close(), entry.Unload(); }); };
    const std::function<void()> acts[] = {
        [&] { clickHeader(*list.list, 1); },    [&] { clickRow(*list.list, 0, Qt::RightButton); },
        [&] { type(*list.first, "x"); },        [&] { pickInList(*list.choice, "two"); },
        [&] { doubleClickRow(*list.list, 0); }, [&] { key(*list.list, Qt::Key_Return); },
    };
    for (const auto& act : acts) {
        SCOPED_TRACE(&act - acts);
        list.Show();
        window = &list.window();
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
    whenModal([&](QWidget&) {
        whenModal([&](QWidget& top) {
            EXPECT_EQ(top.windowHandle()->transientParent(), entry.window().windowHandle());
            EXPECT_NE(entry.window().windowHandle()->transientParent(), top.windowHandle());
            type(*list.first, "usable");
            EXPECT_EQ(list.first->Text(), "usable");
            click(*main.second);
            EXPECT_FALSE(main.second->hasFocus());
            main.Show();
            click(*main.second);
            EXPECT_TRUE(main.second->hasFocus());
            closeBox(top);
            EXPECT_EQ(QApplication::activeModalWidget(), &entry.window());
            note("list closed");
        });
        run([&] { list.ShowModal(); });
        closeBox(entry.window());
    });
    run([&] { entry.ShowModal(); });
    EXPECT_EQ(log, "list closed");
}

TEST_F(FormTest, PlacesWindowsOverTheMainWindowWhollyOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const struct {
        const char* name;
        QRect main;
        QSize window;
        QPoint expected;
    } rows[] = {
        {"centred and lifted by 17 pixels", {100, 150, 600, 400}, {300, 350}, {250, 158}},
        {"larger than the main window", {100, 150, 200, 360}, {400, 370}, {0, 128}},
        {"off the upper edge", {200, 0, 400, 350}, {300, 350}, {250, 0}},
        {"off the right lower edge",
         {screen.bottomRight() - QPoint(99, 99), QSize(600, 600)},
         {300, 350},
         screen.bottomRight() - QPoint(299, 349)},
    };
    for (const auto& row : rows) {
        for (const bool gone : {false, true}) {
            SCOPED_TRACE(std::string(row.name) + (gone ? ", main window gone" : ""));
            main.window().setGeometry(row.main);
            program.placing().setMainWindow(&main.window());
            if (gone) main.Unload();
            list.window().resize(row.window);
            program.StartUp(list);
            EXPECT_EQ(list.window().geometry(), QRect(row.expected, row.window));
            list.Unload();
        }
    }
}

}  // namespace
}  // namespace torvane
