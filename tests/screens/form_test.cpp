#include <QApplication>
#include <QScreen>
#include <QTimer>
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

// From the entry form that a double click has opened over it. What the handler holds stays until it is done.
TEST_F(FormTest, AListIsUnloadedUnderItsOwnDoubleClick) {
    QPointer<QWidget> window;
    list.whenLoaded = [&] {
        on(list, list.first, &TextBox::textChanged, [&] { note("Change"); });
        on(list, list.list, &ReportList::DblClick, [&] {
            entry.ShowModal();
            EXPECT_TRUE(window && !window->isVisible() && !list.loaded());
            list.first->setText("of a window that has gone");
            list.Load();
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
    window = &list.window();
    whenModal([&](QWidget&) { click(*entry.button); });
    doubleClickRow(*list.list, 0);
    EXPECT_EQ(log, "");
    EXPECT_FALSE(window);
    EXPECT_TRUE(list.loaded());
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
            top.showMinimized();
            type(*list.first, "usable");
            EXPECT_EQ(list.first->Text(), top.isMinimized() ? "out of reach" : "usable");
            click(*main.second);
            EXPECT_FALSE(main.second->hasFocus());
            main.window().showMinimized();
            settle();
            EXPECT_TRUE(main.window().isMinimized());
            main.Show();
            click(*main.second);
            EXPECT_TRUE(main.second->hasFocus() && !main.window().isMinimized());
            closeBox(top);
            EXPECT_EQ(QApplication::activeModalWidget(), &entry.window());
        });
        run([&] { list.ShowModal(); });
        closeBox(entry.window());
    });
    run([&] { entry.ShowModal(); });
}

// Also when the main window has gone.
TEST_F(FormTest, PlacesWindowsOverTheMainWindowWhollyOnTheScreen) {
    const QPoint corner = QGuiApplication::primaryScreen()->availableGeometry().bottomRight();
    const QSize size(300, 350);
    for (const auto& [place, expected] : {std::pair{QRect(100, 150, 600, 400), QPoint(250, 158)},  // 17 pixels higher
                                          {QRect(200, 0, 400, 350), QPoint(250, 0)},
                                          {QRect(0, 100, 200, 600), QPoint(0, 208)},
                                          {QRect(corner, size), corner - QPoint(299, 349)}}) {
        main.window().setGeometry(place);
        program.placing().setMainWindow(&main.window());
        for (int times = 0; times < 2; ++times) {
            list.window().resize(size);
            program.StartUp(list);
            EXPECT_EQ(list.window().geometry(), QRect(expected, size));
            list.Unload();
            main.Unload();
        }
    }
}

TEST_F(FormTest, NothingRunsWhileAFailureIsShown) {
    QTimer ticks;
    list.whenLoaded = [&] {
        on(list, &ticks, &QTimer::timeout, [&] { note("tick"); });
        on(list, list.first, &TextBox::textChanged, [&] { note("Change"); });
        on(list, list.button, &QPushButton::clicked, [&] { fail(Failure::TypeMismatch, "12a"); });
        program.focusWatcher().watch(list, list.second, [&] { note("LostFocus"); });
    };
    list.Show();
    list.second->setFocus();
    ticks.start(0);
    settle();
    EXPECT_TRUE(log.starts_with("tick"));
    whileFailureShows = [&] {
        log.clear();
        list.first->setText("x");
        list.first->setFocus();
        click(*list.button);
        program.guard().end(RuntimeFailure{2, "second box"});
        EXPECT_EQ(log, "");
    };
    EXPECT_EQ(endOf([&] { list.button->click(); }).refused(), "12a");
}

}  // namespace
}  // namespace torvane
