#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>
#include <map>
#include <tuple>
#include <vector>

#include "assistant/animated_assistant.h"
#include "values/failure.h"

namespace torvane {
namespace {

using std::chrono::milliseconds;

// A clock that runs only when it is told to.
struct HandTicker : Ticker {
    void after(milliseconds time, std::function<void()> then) override {
        left = time;
        due = std::move(then);
    }
    milliseconds left{};
    std::function<void()> due;
};

// Ends its texts when it is told to; without a sound it ends them at once.
struct HandVoice : Voice {
    explicit HandVoice(QStringList& told) : seen(told) {}
    void say(const std::string&, std::function<void()> ended) override {
        end = std::move(ended);
        if (mute) std::exchange(end, nullptr)();
    }
    void hush() override {
        if (std::exchange(end, nullptr)) seen.append("hush");
    }
    void giveUp() override {
        seen.append("give up");
        end = nullptr;
    }
    QStringList& seen;
    bool mute = true;
    std::function<void()> end;
};

// What goes on is told by the colour.
const char* const plainCharacter = R"(torvane-character 1
size 40 60
part box
  <g><rect x="0" y="0" width="40" height="60" fill="#0000ff"/></g>
part green
  <rect x="0" y="0" width="40" height="60" fill="#00ff00"/>
part red
  <rect x="0" y="0" width="40" height="60" fill="#ff0000"/>
frame still 0 0 : box
frame wave 0 0 : box green
frame gone 0 -10 : red
animation Idle : still 1000 still 100
animation Speaking : still 20
animation Arriving : still 50 still 50
animation Leaving : gone 50
animation Wave : still 10000 wave 300
end
)";

std::string characterFile(const QTemporaryDir& folder, const QByteArray& text) {
    QFile file(folder.filePath("Some.ACS"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    return file.fileName().toStdString();
}

TEST(CharacterFile, IsWholeAndCanDoWhatTheProgramAsks) {
    const Character character = Character::load(TORVANE_CHARACTER);
    for (const char* name : {"Wave", "Greet", "Sad", "Idle", "Speaking", "Arriving", "Leaving"}) {
        ASSERT_NE(character.animation(name), nullptr) << name;
        for (const Character::Step& step : *character.animation(name))
            EXPECT_EQ(QSvgRenderer(step.drawing).viewBox().size(), character.size()) << name;
    }
    // What stands in a sound file, what stands in its place, and the fault.
    const std::tuple<const char*, const char*, std::string> damages[] = {
        {"end\n", "", "line 17: the end is missing"},
        {"</g>", "", "line 5: the part before is broken: Opening and ending tag mismatch."},
        {"torvane-character 1", "torvane-character 2", "line 1: this is no character file"},
        {"size 40 60\n", "size 40 60\nsize 40 60\n", "line 3: the size stands once, and first"},
        {"size 40 60", "size 15 60", "line 2: \"15\" is no number from 16 to 512"},
        {"</g>", "</g><script/>", "line 5: \"script\" is no shape"},
        {"part red", "part box", "line 7: the name \"box\" is given twice"},
        {"0 0 : box green", "0 0 box green", "line 10: a frame has a name, two numbers and parts"},
        {"still 50 still 50", "still 50 still 19", "line 14: \"19\" is no number from 20 to 10000"},
        {"end\n", "stop\n", "line 17: \"stop\" is no entry"},
        {"still 1000 still 100", "still 1000 still", "line 12: an animation has a name, and frames with times"},
        {": box green", ": box bax", "line 10: there is no part \"bax\""},
        {"animation Leaving : gone 50\n", "", "line 17: the animation Leaving is missing"},
    };
    const QTemporaryDir folder;
    for (const auto& [before, after, fault] : damages) {
        const std::string file = characterFile(folder, QByteArray(plainCharacter).replace(before, after));
        try {
            Character::load(file);
            ADD_FAILURE() << "accepted: " << fault;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.text(), "The assistant's character is damaged: " + file + ", " + fault);
        }
    }
}

// The assistant on the screen beside a window, and what a user sees of it, one after the other: a text, or else what it
// does.
class AssistantTest : public ::testing::Test {
protected:
    const QTemporaryDir folder;
    QStringList seen;
    HandTicker* ticker = new HandTicker;
    HandVoice* voice = new HandVoice(seen);
    AnimatedAssistant assistant{characterFile(folder, plainCharacter), std::unique_ptr<Voice>(voice),
                                std::unique_ptr<Ticker>(ticker)};
    AssistantWindow& window = assistant.window();
    QPushButton other{"Other"};
    QShortcut escape{QKeySequence(Qt::Key_Escape), &other, [this] { seen.append("cancelled"); }};
    QDialog modal;
    QMessageBox question;

    AssistantTest() {
        for (QDialog* dialog : {&modal, static_cast<QDialog*>(&question)}) dialog->setModal(true);
        other.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    QLabel* balloon() { return window.findChild<QLabel*>("Balloon"); }
    std::string shown() { return balloon() && balloon()->isVisible() ? balloon()->text().toStdString() : ""; }
    void look() {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_TRUE(screen.contains(window.geometry()));
        EXPECT_TRUE(shown().empty() || screen.contains(balloon()->window()->geometry()));
        EXPECT_TRUE(shown().empty() || balloon()->textFormat() == Qt::PlainText);
        EXPECT_FALSE(window.isActiveWindow()) << "it takes no focus";
        const QColor colour = window.isVisible() ? window.grab().toImage().pixelColor(20, 30) : QColor();
        const char* doing = !colour.isValid() ? "away" : colour.green() ? "waves" : colour.red() ? "leaves" : "stands";
        const QString now = shown().empty() ? doing : QString::fromStdString(shown());
        if (seen.isEmpty() || seen.last() != now) seen.append(now);
    }
    void pass(milliseconds time) {
        for (; ticker->due && ticker->left <= time; look()) {
            time -= ticker->left;
            std::exchange(ticker->due, nullptr)();
        }
        ticker->left -= time;
    }
    static void clickOn(const QWidget& window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    }
    void drag() {
        const QPoint before = window.pos();
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
        QTest::mouseMove(window.windowHandle(), QPoint(35, 50));
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
        EXPECT_EQ(window.pos(), before + QPoint(15, 20));
    }
    void chooseHide() {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(20, 30), window.pos());
        QCoreApplication::sendEvent(&window, &asked);
        const std::unique_ptr<QMenu> menu(window.findChild<QMenu*>("AssistantMenu"));
        menu->actions().first()->trigger();
    }
    void carryOut(const QString& act) {
        const std::string rest = act.section(' ', 1).toStdString();
        if (act == "show") assistant.Show();
        if (act == "hide") assistant.Hide();
        if (act.startsWith("play")) assistant.Play(rest);
        if (act.startsWith("move")) assistant.MoveTo(std::stoi(rest), std::stoi(rest));
        if (act.startsWith("say")) assistant.Speak(rest);
        if (act.startsWith("pass")) {
            pass(milliseconds(std::stoi(rest)));
            seen.append(seen.last());  // what is seen at its end is told, be it the same or not
        }
        if (act == "click") clickOn(window);
        if (act == "click balloon") clickOn(*balloon()->window());
        if (act == "drag") drag();
        if (act == "menu") chooseHide();
        if (act == "escape") QTest::keyClick(other.windowHandle(), Qt::Key_Escape);
        if (act == "hold escape") {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
            EXPECT_TRUE(static_cast<QObject&>(window).eventFilter(&other, &held)) << "it goes no further";
        }
        if (act == "loud") voice->mute = false;
        if (act == "end") std::exchange(voice->end, nullptr)();
        if (act == "open modal") modal.show();
        if (act == "close modal") modal.hide();
        if (act == "ask") question.show();
        if (act == "answer") QTest::keyClick(question.windowHandle(), Qt::Key_Escape);
        QCoreApplication::processEvents();
        look();
    }
};

TEST_F(AssistantTest, Requests) {
    const std::pair<const char*, const char*> courses[] = {
        {"show, pass 39, pass 1, hide", "away, away, stands, stands, leaves, away"},  // the caller's window is first
        {"show, play Wave, say Hello, say Welcome, hide", "away, stands, waves, Hello, Welcome, leaves, away"},
        {"play Wave, show, play Jump, say So, hide", "away, stands, So, leaves, away"},
        {"move -500, say Far, move 9000, say Farther, move -500, hide", "away, stands, Far, Farther, leaves, away"},
        {"hide, show, show, hide, hide", "away, stands, leaves, away"},
        {"show, pass 2500, hide, pass 0, click", "away, stands, stands, leaves, leaves, away"},
        {"say First, say Second, play Wave, hide, pass 200, click",
         "away, stands, First, First, Second, stands, waves, leaves, away"},
        // A drag keeps the text. Without a text Escape is the window's own.
        {"say <b>one</b>, say two, say three, pass 200, click balloon, drag, click, escape, hold escape, escape, hide",
         "away, stands, <b>one</b>, <b>one</b>, two, three, stands, cancelled, stands, leaves, away"},
        // Over a modal window it goes on, and a question is not covered.
        {"say one, say two, pass 200, open modal, click, ask, show, pass 500, answer, close modal, escape, hide",
         "away, stands, one, one, two, away, away, two, stands, leaves, away"},
        // A text stays until it has been read and said, and at the latest until the voice is given up.
        {"loud, say ete, pass 1000, end, pass 1300, pass 100, hide",
         "away, stands, ete, ete, ete, stands, stands, leaves, away"},
        {"loud, say ete, pass 4000, end, pass 100, hide", "away, stands, ete, ete, stands, stands, leaves, away"},
        {"loud, say ete, pass 9500, pass 200, hide", "away, stands, ete, ete, give up, stands, stands, leaves, away"},
        {"loud, say one, say two, pass 1000, click, menu", "away, stands, one, one, hush, two, hush, leaves, away"},
        {"say First, say Dropped, pass 200, menu, menu, pass 1000, show, say Next, hide",
         "away, stands, First, First, leaves, away, away, stands, Next, leaves, away"},
    };
    for (const auto& [acts, sights] : courses) {
        seen.clear();
        voice->mute = true;
        for (const QString& act : QString(acts).split(", ")) carryOut(act);
        pass(milliseconds(60000));
        EXPECT_EQ(seen.join(", ").toStdString(), sights) << acts;
        EXPECT_FALSE(ticker->due) << "nothing runs while it is away";
    }
}

// As on Wayland, where it is a part of a window: it goes with the text, and outlives the window.
TEST_F(AssistantTest, AsAPartOfTheWindowInWhichItSpeaks) {
    AssistantWindow part(QSize(40, 60), false);
    part.showDrawing(Character::load(characterFile(folder, plainCharacter)).animation("Idle")->front().drawing);
    part.enter();
    auto form = std::make_unique<QDialog>();
    form->setModal(true);
    const auto expect = [&](const QWidget* in, bool inSight, const char* after) {
        QCoreApplication::processEvents();
        const auto* text = in ? in->findChild<QLabel*>("Balloon") : nullptr;
        EXPECT_EQ(part.parentWidget(), in) << after;
        EXPECT_TRUE(part.isVisible() == inSight && (!text || text->isVisible() == inSight)) << after;
        EXPECT_TRUE(!in || in->rect().contains(part.geometry())) << after;
    };
    other.resize(300, 300);
    expect(&other, true, "it has come");
    form->show();
    expect(&other, true, "a window opens, and there is nothing to say");
    part.showText("So");
    expect(form.get(), true, "a text");
    form->resize(80, 90);
    expect(form.get(), true, "the window is smaller");
    question.show();
    expect(form.get(), false, "a question");
    question.hide();
    expect(form.get(), true, "an answer");
    form.reset();
    expect(&other, true, "the window has gone for good");
    part.leave();
    expect(nullptr, false, "it has left");
}

// --- The voice -------------------------------------------------------------------------------------------------------

TEST(EngineVoiceTest, TakesTheFirstEngineThatSpeaksAndStopsIt) {
    // Shell scripts behind an engine that is missing. They tell in a file, $0, what becomes of them.
    const std::map<std::string_view, const char*> scripts{
        {"speaks", "echo speaks $1 >> $0"},
        {"fails", "echo fails $1 >> $0; exit 1"},
        {"crashes", "echo crashes $1 >> $0; kill -SEGV $$"},
        {"listens", "echo listens $1 >> $0; cat; echo stopped >> $0"},
        {"hangs", "echo hangs $1 >> $0; exec sleep 1000"},
    };
    const struct {
        std::vector<const char*> engines;
        void (EngineVoice::*stop)();  // the text a, when it has begun; else it comes to its end
        const char* log;              // of a, and then b
    } rows[] = {
        {{"fails", "crashes", "speaks"}, nullptr, "fails a; crashes a; speaks a; speaks b; "},
        {{"fails", "crashes"}, nullptr, "fails a; crashes a; "},
        {{"listens", "speaks"}, &EngineVoice::hush, "listens a; stopped; listens b; "},
        {{"hangs", "speaks"}, &EngineVoice::hush, "hangs a; hangs b; "},
        {{"hangs", "speaks"}, &EngineVoice::giveUp, "hangs a; speaks b; "},
    };
    for (const auto& row : rows) {
        const QTemporaryDir folder;
        const QString file = folder.filePath("log");
        const auto log = [&] {
            QFile told(file);
            return told.open(QIODevice::ReadOnly) ? told.readAll().replace('\n', "; ").toStdString() : "";
        };
        EngineVoice::Commands commands{{"/nowhere/Speak.exe"}};
        for (const char* engine : row.engines) commands.append({"/bin/sh", "-c", scripts.at(engine), file});
        const bool hangs = row.engines.front() == std::string_view("hangs");
        auto voice = std::make_unique<EngineVoice>([&] { return commands; }, hangs ? 0 : 300);
        int ended = 0;
        voice->say("a", [&] { ++ended; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return row.stop ? !log().empty() : ended == 1; }));
        if (row.stop) (voice.get()->*row.stop)();
        EXPECT_TRUE(QTest::qWaitFor([&] { return voice->findChildren<QProcess*>().isEmpty(); }));
        EXPECT_EQ(ended, row.stop ? 0 : 1) << "when it is stopped nobody asks any more: " << row.log;
        voice->say("b", [&] { ++ended; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return log() == row.log && (row.stop || ended == 2); })) << log();
        voice.reset();
        EXPECT_EQ(log().ends_with("listens b; stopped; "), log().starts_with("listens"));
    }
}

}  // namespace
}  // namespace torvane
