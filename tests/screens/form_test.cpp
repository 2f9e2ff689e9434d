#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

#include "screens/assistant.h"
#include "screens/probe.h"
#include "support/screen_test.h"

namespace torvane {

namespace {

using Log = std::vector<std::string>;

class FormTest : public ScreenTest {
protected:
    Probe main{program, "frmMain"};
    Probe list{program, "frmList"};
    Probe entry{program, "frmEntry"};
    Log log;
    void note(std::string text) { log.push_back(std::move(text)); }
};

TEST_F(FormTest, LoadsOnceAndAnewAfterUnload) {
    list.whenLoaded = [&] {
        list.window();  // touching it from here loads nothing
        list.setCaption("Add Item");
    };
    EXPECT_FALSE(list.loaded());
    list.Load();
    list.Show();
    EXPECT_EQ(list.loads, 1);
    EXPECT_EQ(list.window().objectName(), "frmList");
    EXPECT_EQ(list.caption(), "Add Item");
    const QPointer<QWidget> before = &list.window();
    list.Unload();
    list.Unload();
    EXPECT_FALSE(list.loaded());
    EXPECT_EQ(list.unloads, 1);
    settle();
    EXPECT_FALSE(before);
    EXPECT_EQ(list.caption(), "Add Item");
    EXPECT_EQ(list.loads, 2);
}

TEST_F(FormTest, FailingLoadLeavesNoWindow) {
    list.whenLoaded = [] { fail(Failure::NullValue); };
    EXPECT_THROW(list.Load(), RuntimeFailure);
    EXPECT_FALSE(list.loaded());
    EXPECT_EQ(list.unloads, 0);
}

TEST_F(FormTest, ScreenThatUnloadsItselfWhileLoadingIsNotShown) {
    list.whenLoaded = [&] { list.Unload(); };
    list.Show();
    list.ShowModal();
    EXPECT_FALSE(list.loaded());
    EXPECT_THROW(list.window(), RuntimeFailure);
}

// The double click opens a modal form, which unloads the list under it; what the handler holds stays until it is done.
TEST_F(FormTest, ListUnloadedFromTheEntryFormThatItHasOpened) {
    list.whenLoaded = [&] {
        on(list, list.list, &ReportList::DblClick, [&] {
            ReportList* const held = list.list;
            const QPointer<QWidget> window = &list.window();
            note("opens " + held->Cell(held->SelectedRow(), 1));
            entry.ShowModal();
            EXPECT_TRUE(window);
            EXPECT_FALSE(window->isVisible());
            note("held " + std::to_string(held->RowCount()));
            list.Unload();  // a second close follows the first
            list.Load();
            note("new " + std::to_string(list.list->RowCount()));
            EXPECT_TRUE(window);
            EXPECT_NE(window, &list.window());
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
    whenModal([&](QWidget& top) { click(find<QPushButton>(top, "button")); });
    doubleClickRow(*list.list, 1);
    EXPECT_EQ(log, (Log{"opens Mortar", "held 3", "new 3"}));
    EXPECT_FALSE(old);
    EXPECT_EQ(list.loads, 2);
    EXPECT_EQ(list.unloads, 1);
}

TEST_F(FormTest, ClosesItselfInItsOwnHandlers) {
    struct Row {
        const char* name;
        std::function<void(Probe&)> act;
    };
    const Row rows[] = {
        {"double click", [](Probe& form) { doubleClickRow(*form.list, 0); }},
        {"Enter in the list", [](Probe& form) { key(*form.list, Qt::Key_Return); }},
        {"header", [](Probe& form) { clickHeader(*form.list, 1); }},
        {"right button", [](Probe& form) { clickRow(*form.list, 0, Qt::RightButton); }},
        {"button", [](Probe& form) { click(*form.button); }},
        {"typed text", [](Probe& form) { type(*form.first, "x"); }},
        {"pick in a list", [](Probe& form) { pickInList(*form.choice, "two"); }},
        {"close box", [](Probe& form) { closeBox(form.window()); }},
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
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        list.Show();
        const QPointer<QWidget> window = &list.window();
        row.act(list);
        EXPECT_FALSE(list.loaded());
        settle();
        EXPECT_FALSE(window);
    }
    EXPECT_EQ(list.unloads, static_cast<int>(std::size(rows)));
}

TEST_F(FormTest, HandlersOfAnUnloadedWindowAreDead) {
    list.whenLoaded = [&] { on(list, list.first, &TextBox::textChanged, [&] { note("Change"); }); };
    run([&] {
        list.Load();
        const RunningHandler handler(&list.window());
        TextBox* const held = list.first;
        held->setText("a");
        list.Unload();
        held->setText("b");
    });
    EXPECT_EQ(log, Log{"Change"});
    EXPECT_FALSE(list.loaded());
}

TEST_F(FormTest, ModelessScreenShownModallyLoadsNothing) {
    list.Show();
    list.first->setText("kept");
    main.whenLoaded = [&] {
        on(main, main.button, &QPushButton::clicked, [&] {
            list.ShowModal();
            note("back");
        });
    };
    main.Show();
    whenModal([&](QWidget& top) {
        EXPECT_EQ(&top, &list.window());
        EXPECT_EQ(list.first->Text(), "kept");
        const int loads = main.loads;
        click(*main.button);  // blocked
        EXPECT_EQ(main.loads, loads);
        EXPECT_TRUE(log.empty());
        closeBox(top);
    });
    click(*main.button);
    EXPECT_EQ(log, Log{"back"});
    EXPECT_EQ(list.loads, 1);
    EXPECT_EQ(QApplication::activeWindow(), &main.window());
}

// Entry form over the list, and over both the list again: no ring of windows that stand over each other.
TEST_F(FormTest, ListOverTheEntryFormThatItHasOpened) {
    list.whenLoaded = [&] {
        on(list, list.button, &QPushButton::clicked, [&] {
            entry.ShowModal();
            note("entry done");
        });
    };
    entry.whenLoaded = [&] {
        on(entry, entry.button, &QPushButton::clicked, [&] {
            list.ShowModal();
            note("list done");
        });
    };
    whenModal([&](QWidget&) {
        whenModal([&](QWidget&) {
            whenModal([&](QWidget& top) {
                EXPECT_EQ(&top, &list.window());
                int above = 0;
                for (QWindow* step = top.windowHandle(); step && above < 10; step = step->transientParent()) ++above;
                EXPECT_EQ(above, 2);
                type(*list.first, "usable");
                EXPECT_EQ(list.first->Text(), "usable");
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
    EXPECT_EQ(log, (Log{"list closed", "list done", "entry done", "all done"}));
}

TEST_F(FormTest, ModelessWindowOverAModalOneIsUsable) {
    main.Show();
    list.Show();
    whenModal([&](QWidget& top) {
        click(*main.second);
        EXPECT_NE(main.window().focusWidget(), main.second);
        main.Show();  // revived
        click(*main.second);
        EXPECT_EQ(main.window().focusWidget(), main.second);
        click(*entry.second);
        closeBox(top);
    });
    run([&] { entry.ShowModal(); });
    EXPECT_TRUE(main.loaded());
    click(*list.second);
    EXPECT_EQ(list.window().focusWidget(), list.second);
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
    EXPECT_EQ(ends, 0);
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
            EXPECT_EQ(program.placing().mainWindowHasGone(), gone);
            list.window().setMinimumSize(1, 1);
            list.window().resize(row.window);
            program.StartUp(list);
            EXPECT_EQ(list.window().geometry(), QRect(row.expected, row.window));
            list.Unload();
        }
    }
}

TEST_F(FormTest, HelpKeyInEveryControl) {
    std::vector<int> contexts;
    program.setHelp([&](int context) { contexts.push_back(context); });
    list.setHelpContext(2);
    list.Show();
    QWidget* const controls[] = {list.first, list.choice, list.date, list.list, list.button};
    for (QWidget* control : controls) {
        contexts.clear();
        key(*control, Qt::Key_F1);
        EXPECT_EQ(contexts, std::vector{2}) << control->objectName().toStdString();
        key(*control, Qt::Key_Escape);
        EXPECT_TRUE(list.loaded());
    }
}

struct Voice : Assistant {
    explicit Voice(Log& theLog) : log(theLog) {}
    void Show() override { log.push_back("Show"); }
    void Hide() override {}
    void MoveTo(int, int) override {}
    void Play(std::string_view) override {}
    void Speak(std::string_view text) override { log.emplace_back(text); }
    Log& log;
};

TEST_F(FormTest, AssistantSpeaksWhileTheMainWindowStands) {
    Voice voice(log);
    program.setMerlin(&voice);
    program.placing().setMainWindow(&main.window());
    program.speakHelp("Press Add");
    main.Unload();
    program.speakHelp("Press Edit");
    EXPECT_EQ(log, (Log{"Show", "Press Add"}));
    program.setMerlin(nullptr);
    EXPECT_THROW(program.Merlin(), RuntimeFailure);
}

}  // namespace

}  // namespace torvane
