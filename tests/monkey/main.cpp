// A monkey at the keyboard: drives all screens of the whole program by seeded random events, in a folder of its own
// with the sample business, and looks for what must never happen: a crash, a hang, a leak (under the sanitizers), an
// exception past the event guard, a broken database.
//
//   monkey <seed> <steps>
//
// The program runs in a child process. One that ends with a run-time error or with its last window is started again on
// the same data with the next seed, until all steps are done. A failure names the seed with which it comes again.

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <tuple>
#include <utility>

#include "assistant/animated_assistant.h"
#include "screens/guarded_application.h"
#include "shell/screens.h"
#include "support/data_folder.h"
#include "support/test_host.h"
#include "widgets/drop_list.h"

namespace torvane {
namespace {

enum Ending { allStepsDone = 0, runTimeError = 1, pastTheGuard = 70, lastWindowGone = 71 };

class Dice {
public:
    explicit Dice(unsigned seed) : numbers_(seed) {}
    int below(int limit) { return static_cast<int>(numbers_() % static_cast<unsigned>(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }
    template <class List>
    auto& one(List& list) {
        return *std::next(std::begin(list), below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937 numbers_;
};

// Answers every box and file dialog by the dice.
class MonkeyHost : public TestHost {
public:
    MonkeyHost(std::string programFolder, Dice& dice) : TestHost(std::move(programFolder)), dice_(dice) {}
    Answer box(std::string_view, std::string_view, Buttons buttons) override {
        if (buttons == Buttons::Ok) return Answer::Ok;
        return dice_.oneIn(2) ? Answer::Yes : Answer::No;
    }
    std::optional<std::string> askSaveName(std::string_view, std::string_view) override { return name(); }
    std::optional<std::string> askOpenName(std::string_view) override { return name(); }

private:
    std::optional<std::string> name() {
        if (dice_.oneIn(4)) return std::nullopt;
        const std::string names[] = {"/Sample.bak", "/other.bak", "/none/there.bak", "/wrong.txt", "/no ending"};
        return folder + names[dice_.below(5)];
    }
    Dice& dice_;
};

class Monkey : public QObject {
public:
    Monkey(Dice& dice, int steps) : dice_(dice), left_(steps) { next(); }
    // Says how far it came, and leaves.
    [[noreturn]] void leave(Ending ending) const {
        report();
        std::_Exit(ending);
    }
    void report() const {
        std::printf("left %d\n", left_);
        std::fflush(stdout);
    }

private:
    // Asked for before each step: one that opens a modal window does not return before that has gone.
    void next(int milliseconds = 0) { QTimer::singleShot(milliseconds, this, &Monkey::step); }

    void step() {
        // Not in the midst of a step, but for a modal window or a menu that it has opened.
        const QPointer<QWidget> modal = QApplication::activeModalWidget();
        if (busy_ && modal == modalOfStep_ && !QApplication::activePopupWidget()) return next(1);
        const auto before = std::pair(std::exchange(busy_, true), std::exchange(modalOfStep_, modal));
        act();
        std::tie(busy_, modalOfStep_) = before;
    }

    void act() {
        constexpr int signOfLife = 100;
        if (left_ % signOfLife == 0) report();
        // The way out through all destructors: what leaks is seen.
        if (left_-- == 0) return QCoreApplication::exit(allStepsDone);
        next();
        if (QWidget* popup = QApplication::activePopupWidget()) return inPopup(*popup);
        QWidget* window = someWindow();
        if (!window) return;
        // Buttons and typing come more often.
        static const std::vector<void (Monkey::*)(QWidget&)> acts{&Monkey::click<QAbstractButton>,
                                                                  &Monkey::click<QAbstractButton>,
                                                                  &Monkey::click<QAbstractButton>,
                                                                  &Monkey::click<QAbstractButton>,
                                                                  &Monkey::click<QHeaderView>,
                                                                  &Monkey::type,
                                                                  &Monkey::type,
                                                                  &Monkey::key,
                                                                  &Monkey::pick,
                                                                  &Monkey::row,
                                                                  &Monkey::entry,
                                                                  &Monkey::close};
        (this->*dice_.one(acts))(*window);
    }

    void close(QWidget& window) {
        if (dice_.oneIn(window.objectName() == QLatin1String("frmMainMenu") ? 60 : 8)) window.close();
    }

    QWidget* someWindow() {
        if (QWidget* modal = QApplication::activeModalWidget()) return modal;
        QList<QWidget*> windows;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible()) windows.append(window);
        return windows.isEmpty() ? nullptr : dice_.one(windows);
    }

    // What ends the program is chosen seldom.
    bool leaves(const QObject& control) {
        static const QStringList ends{"cmd_Exit",   "mnuExit",    "mnuClose",    "mnuRelSup",
                                      "mnuRelManf", "mnuRelCatg", "tscientific", "tstandard"};
        return ends.contains(control.objectName()) && !dice_.oneIn(40);
    }

    template <class Control>
    Control* some(QWidget& window) {
        QList<Control*> controls;
        for (Control* control : window.findChildren<Control*>())
            // A file dialog that has gone up to the root would leave its new folders there.
            if (control->isVisible() && control->isEnabled() && !leaves(*control) &&
                control->objectName() != QLatin1String("newFolderButton"))
                controls.append(control);
        return controls.isEmpty() ? nullptr : dice_.one(controls);
    }

    // Straight to the controls: no other event comes between press and release, but anything may be gone after each.
    void clickAt(QWidget& control, const QPoint& point, bool twice = false) {
        const QPointer<QWidget> there = &control;
        const Qt::MouseButton button = dice_.oneIn(12) ? Qt::RightButton : Qt::LeftButton;
        if (control.focusPolicy() & Qt::ClickFocus) control.setFocus(Qt::MouseFocusReason);
        if (there) QTest::mousePress(there, button, {}, point);
        if (there) QTest::mouseRelease(there, button, {}, point);
        if (there && twice) QTest::mouseDClick(there, button, {}, point);
    }

    void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
        const QPointer<QWidget> there = window.focusWidget() ? window.focusWidget() : &window;
        QTest::sendKeyEvent(QTest::Press, there, key, text, modifiers);
        if (there) QTest::sendKeyEvent(QTest::Release, there, key, text, modifiers);
    }

    template <class Control>
    void click(QWidget& window) {
        if (auto* control = some<Control>(window))
            clickAt(*control, {dice_.below(control->width() + 1), dice_.below(control->height() + 1)});
    }

    void type(QWidget& window) {
        static const QString texts[] = {"12", "0", "-5",    "1e308", "O'Brien",  "12abc",
                                        "%",  "_", "Joist", "1.5",   "99999999", " 7 ",
                                        "",   "#", "é漢",   "--",    "select;",  QString(300, 'w')};
        QWidget* box = some<QLineEdit>(window);
        if (!box || dice_.oneIn(6)) box = some<QTextEdit>(window);
        if (!box) return;
        const QPointer<QWidget> there = &window;  // anything may go with each event
        clickAt(*box, box->rect().center());
        if (there && dice_.oneIn(2)) press(window, Qt::Key_A, Qt::ControlModifier);
        for (const QChar sign : texts[dice_.below(std::size(texts))]) {
            if (!there) return;
            press(window, Qt::Key_unknown, Qt::NoModifier, QString(sign));
        }
    }

    void key(QWidget& window) {
        constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Delete,
                                    Qt::Key_F1,     Qt::Key_Space,  Qt::Key_Down, Qt::Key_Up,      Qt::Key_PageDown,
                                    Qt::Key_C,      Qt::Key_V,      Qt::Key_X,    Qt::Key_A,       Qt::Key_Z};
        const Qt::Key pressed = keys[dice_.below(std::size(keys))];
        press(window, pressed, pressed >= Qt::Key_A && pressed <= Qt::Key_Z ? Qt::ControlModifier : Qt::NoModifier);
    }

    void pick(QWidget& window) {
        auto* list = some<QComboBox>(window);
        if (!list || list->count() == 0) return;
        list->setFocus();
        if (auto* drop = qobject_cast<DropList*>(list); drop && dice_.oneIn(2))
            drop->select(dice_.below(drop->ListCount()));
        else
            list->showPopup();
    }

    void row(QWidget& window) {
        auto* list = some<QTreeWidget>(window);
        if (!list || list->topLevelItemCount() == 0) return;
        const QRect place = list->visualItemRect(list->topLevelItem(dice_.below(list->topLevelItemCount())));
        if (list->viewport()->rect().contains(place.center()))
            clickAt(*list->viewport(), {dice_.below(list->viewport()->width()), place.center().y()}, dice_.oneIn(2));
    }

    void entry(QWidget& window) {
        QList<QAction*> entries;
        for (QAction* action : window.findChildren<QAction*>())
            if (!action->objectName().isEmpty() && !action->menu() && action->isVisible() && action->isEnabled() &&
                !leaves(*action))
                entries.append(action);
        if (!entries.isEmpty()) dice_.one(entries)->trigger();
    }

    void inPopup(QWidget& popup) {
        constexpr Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape};
        press(popup, keys[dice_.below(std::size(keys))]);
    }

    Dice& dice_;
    int left_;
    bool busy_ = false;
    QPointer<QWidget> modalOfStep_;
};

int run(int argc, char** argv, unsigned seed, int steps, const std::string& folder) {
    GuardedApplication application(argc, argv);
    Dice dice(seed);
    MonkeyHost host(folder, dice);
    Store store(host.shortDate());
    FileSystem files;
    Monkey monkey(dice, steps);
    Program program({host, store}, [&monkey](int) { monkey.leave(runTimeError); });
    host.onRuntimeError = [](const RuntimeFailure& failure) {
        std::printf("ended by %d %s: %s\n", failure.number(), failure.text().c_str(), failure.refused().c_str());
    };
    application.setLastNet([&monkey](const RuntimeFailure& failure) {
        std::printf("past the guard: %d %s\n", failure.number(), failure.text().c_str());
        monkey.leave(pastTheGuard);
    });
    program.lastWindow().onGone([&monkey] { monkey.leave(lastWindowGone); });
    Screens screens(program, files, false,
                    [](const std::string& file) { return std::make_unique<AnimatedAssistant>(file); });
    program.guarded([&screens] { screens.mainMenu.Show(); });
    return QApplication::exec();
}

// Runs children until all steps are done. False when one did what must never happen.
bool watch(const QString& program, unsigned seed, int steps) {
    constexpr int patienceMs = 60'000;
    DataFolder data;
    data.useSample();
    const QString folder = QString::fromStdString(data.path());
    QFile::copy(QStringLiteral(TORVANE_DELIVERED "/Sample.bak"), folder + "/Sample.bak");
    QFile::copy(QStringLiteral(TORVANE_DELIVERED "/Merlin.ACS"), folder + "/Merlin.ACS");
    int restarts = 0;
    for (; steps > 0; ++seed, ++restarts) {
        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.setWorkingDirectory(folder);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", folder);
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        child.setProcessEnvironment(environment);
        child.start(program, {QString::number(seed), QString::number(steps), folder});
        QByteArray output;
        while (child.state() != QProcess::NotRunning && child.waitForReadyRead(patienceMs)) output += child.readAll();
        child.waitForFinished(1000);
        const bool hangs = child.state() != QProcess::NotRunning;
        if (hangs) child.kill();
        output += child.readAll();
        const int mark = static_cast<int>(output.lastIndexOf("left "));
        const int left = mark < 0 ? steps : output.mid(mark + 5).split('\n').value(0).toInt();
        const int ending = child.exitCode();
        const std::string database = data.cell("pragma integrity_check");
        const bool good = !hangs && child.exitStatus() == QProcess::NormalExit && database == "ok" &&
                          (ending == allStepsDone || ending == runTimeError || ending == lastWindowGone);
        if (!good) {
            std::printf("seed %u, %d steps, %d left, status %d%s, database %s\n%s\n", seed, steps, left, ending,
                        hangs ? ", hangs" : "", database.c_str(), output.constData());
            return false;
        }
        if (ending == allStepsDone) break;
        steps = left;
    }
    std::printf("all steps done, %d restarts\n", restarts);
    return true;
}

}  // namespace
}  // namespace torvane

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "monkey <seed> <steps>\n");
        return 2;
    }
    const auto seed = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10));
    const int steps = std::atoi(argv[2]);
    if (argc == 4) return torvane::run(argc, argv, seed, steps, argv[3]);
    return torvane::watch(QFileInfo(QString::fromLocal8Bit(argv[0])).absoluteFilePath(), seed, steps) ? 0 : 1;
}
