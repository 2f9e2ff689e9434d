// A monkey at the keyboard: drives all screens of the whole program by seeded random events, in a folder of its own
// with the sample business, and looks for what must never happen: a crash, a hang, a leak (under the sanitizers), an
// exception past the event guard, a broken database.
//
//   monkey <seed> <steps>
//
// The program runs in a child process. One that ends with a run-time error or with its last window is started again on
// the same data with the next seed, until all steps are done. A failure names the seed with which it comes again.

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "assistant/animated_assistant.h"
#include "screens/guarded_application.h"
#include "shell/screens.h"
#include "support/data_folder.h"
#include "support/test_host.h"

namespace torvane {
namespace {

// Sanitizers leave with numbers of their own.
enum Ending { allStepsDone = 0, programEnded = 70, pastTheGuard = 72 };

using Dice = QRandomGenerator;

template <class List>
auto& one(Dice& dice, List& list) {
    return *std::next(std::begin(list), dice.bounded(static_cast<int>(std::size(list))));
}

// Answers every box and file dialog by the dice.
class MonkeyHost : public TestHost {
public:
    MonkeyHost(std::string programFolder, Dice& dice) : TestHost(std::move(programFolder)), dice_(dice) {}
    Answer box(std::string_view, std::string_view, Buttons buttons) override {
        if (buttons == Buttons::Ok) return Answer::Ok;
        return dice_.bounded(2) == 0 ? Answer::Yes : Answer::No;
    }
    std::optional<std::string> askSaveName(std::string_view, std::string_view) override { return name(); }
    std::optional<std::string> askOpenName(std::string_view) override { return name(); }

private:
    std::optional<std::string> name() {
        if (dice_.bounded(4) == 0) return std::nullopt;
        const std::string names[] = {"/Sample.bak", "/other.bak", "/none/there.bak", "/wrong.txt", "/no ending"};
        return folder + one(dice_, names);
    }
    Dice& dice_;
};

class Monkey : public QObject {
public:
    Monkey(Dice& dice, int& left) : dice_(dice), left_(left) { QTimer::singleShot(0, this, &Monkey::step); }

private:
    void step() {
        // The way out through all destructors: what leaks is seen.
        if (left_-- == 0) return QCoreApplication::exit(allStepsDone);
        // The next one now: a step that opens a modal window does not return before that has gone.
        QTimer::singleShot(0, this, &Monkey::step);
        if (QWidget* popup = QApplication::activePopupWidget()) return press(*popup, one(dice_, popupKeys));
        QList<QWidget*> windows;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible()) windows.append(window);
        if (windows.isEmpty()) return;
        QWidget* modal = QApplication::activeModalWidget();
        QWidget& window = modal ? *modal : *one(dice_, windows);
        // The toolkit's own file dialog deletes and makes folders, anywhere on the machine.
        if (qobject_cast<QFileDialog*>(&window)) return window.close(), void();
        const int act = dice_.bounded(12);
        if (act == 0 && dice_.bounded(window.objectName() == "frmMainMenu" ? 60 : 8) == 0) window.close();
        if (act == 1) some<QAction>(window, [](QAction& entry) { entry.trigger(); });
        if (act == 2) press(window, one(dice_, keys));
        if (act == 3) press(window, one(dice_, letters), Qt::ControlModifier);
        if (act == 4 || act == 5) some<QLineEdit>(window, [this](QWidget& box) { type(box); });
        if (act == 6 || act == 7) some<QWidget>(window, [this](QWidget& control) { click(control); });
        if (act >= 8) some<QAbstractButton>(window, [this](QWidget& button) { click(button); });
    }

    // One that can be used. What ends the program is chosen seldom.
    template <class Control, class Act>
    void some(const QWidget& window, Act act) {
        static const QStringList ends{"cmd_Exit",   "mnuExit",    "mnuClose",    "mnuRelSup",
                                      "mnuRelManf", "mnuRelCatg", "tscientific", "tstandard"};
        QList<Control*> controls;
        for (Control* control : window.findChildren<Control*>())
            if (control->isVisible() && control->isEnabled() &&
                (!ends.contains(control->objectName()) || dice_.bounded(40) == 0))
                controls.append(control);
        if (!controls.isEmpty()) act(*one(dice_, controls));
    }

    // Straight to the controls: no other event comes between press and release, but anything may be gone after each.
    void click(QWidget& control) {
        const QPointer<QWidget> there = &control;
        const QPoint point(dice_.bounded(control.width() + 1), dice_.bounded(control.height() + 1));
        const Qt::MouseButton button = dice_.bounded(12) == 0 ? Qt::RightButton : Qt::LeftButton;
        if (control.focusPolicy() & Qt::ClickFocus) control.setFocus(Qt::MouseFocusReason);
        if (there) QTest::mousePress(there, button, {}, point);
        if (there) QTest::mouseRelease(there, button, {}, point);
        if (there && dice_.bounded(4) == 0) QTest::mouseDClick(there, button, {}, point);
    }

    void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
        const QPointer<QWidget> there = window.focusWidget() ? window.focusWidget() : &window;
        QTest::sendKeyEvent(QTest::Press, there, key, text, modifiers);
        if (there) QTest::sendKeyEvent(QTest::Release, there, key, text, modifiers);
    }

    void type(QWidget& box) {
        const QPointer<QWidget> there = &box;
        box.setFocus(Qt::MouseFocusReason);
        if (there && dice_.bounded(2) == 0) press(box, Qt::Key_A, Qt::ControlModifier);
        for (const QChar sign : one(dice_, texts))
            if (there) press(box, Qt::Key_unknown, Qt::NoModifier, QString(sign));
    }

    const QString texts[16] = {"12", "0", "-5",  "1e308",    "O'Brien", "12abc", "%",  "_",
                               "",   "#", "1.5", "99999999", " 7 ",     "é漢",   "--", QString(300, 'w')};
    static constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Delete,
                                       Qt::Key_F1,     Qt::Key_Space,  Qt::Key_Down, Qt::Key_Up,      Qt::Key_PageDown};
    static constexpr Qt::Key letters[] = {Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_A, Qt::Key_Z};
    static constexpr Qt::Key popupKeys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape};
    Dice& dice_;
    int& left_;
};

int run(int argc, char** argv, unsigned seed, int& left, const std::string& folder) {
    GuardedApplication application(argc, argv);
    Dice dice(seed);
    MonkeyHost host(folder, dice);
    Store store(host.shortDate());
    FileSystem files;
    const Monkey monkey(dice, left);
    Program program({host, store}, [](int) { std::_Exit(programEnded); });
    application.setLastNet([](const RuntimeFailure& failure) {
        std::fprintf(stderr, "past the guard: %d %s\n", failure.number(), failure.text().c_str());
        std::_Exit(pastTheGuard);
    });
    program.lastWindow().onGone([] { std::_Exit(programEnded); });
    Screens screens(program, files, false,
                    [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
    program.guarded([&screens] { screens.mainMenu.Show(); });
    return QApplication::exec();
}

}  // namespace
}  // namespace torvane

int main(int argc, char** argv) {
    if (argc != 3) return std::puts("monkey <seed> <steps>"), 2;
    constexpr unsigned patience = 600;  // seconds
    torvane::DataFolder data;
    data.useSample();
    for (const std::string name : {"/Sample.bak", "/Merlin.ACS"})
        std::filesystem::copy_file(TORVANE_DELIVERED + name, data.path() + name);
    std::filesystem::current_path(data.path());
    qputenv("HOME", data.path().c_str());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The child counts here, so that its parent knows how far it came.
    int& left =
        *static_cast<int*>(::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    left = std::atoi(argv[2]);
    for (auto seed = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10)); left > 0; ++seed) {
        const int steps = left;
        const pid_t child = ::fork();
        if (child == 0) {
            ::alarm(patience);
            std::exit(torvane::run(argc, argv, seed, left, data.path()));
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        const int ending = WIFEXITED(status) ? WEXITSTATUS(status) : torvane::pastTheGuard;
        const std::string database = data.cell("pragma integrity_check");
        if ((ending == torvane::allStepsDone || ending == torvane::programEnded) && database == "ok") continue;
        std::printf("seed %u, %d steps: %d left, status %d, database %s\n", seed, steps, left, status,
                    database.c_str());
        return 1;
    }
    return 0;
}
