#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "assistant/animated_assistant.h"
#include "assistant/speech.h"
#include "values/failure.h"

namespace torvane {
namespace {

using std::chrono::milliseconds;

// A clock that runs only when it is told to.
class HandTicker : public Ticker {
public:
    void after(milliseconds time, std::function<void()> then) override {
        left = time;
        then_ = std::move(then);
    }
    void stop() override { then_ = nullptr; }
    bool waits() const { return then_ != nullptr; }
    // Lets the time pass, doing what falls due.
    void pass(milliseconds time) {
        while (then_ && left <= time) {
            time -= left;
            now += left;
            const auto then = std::move(then_);
            then_ = nullptr;
            then();
        }
        left -= time;
        now += time;
    }
    milliseconds left{};
    milliseconds now{};

private:
    std::function<void()> then_;
};

// Writes down what the narrator does; frames only where they change what is going on.
class Script : public Stage {
public:
    explicit Script(const Character& character) : character_(character) {}
    void enter() override { lines.push_back("enter"); }
    void leave() override { lines.push_back("leave"); }
    void moveTo(int x, int y) override { lines.push_back("move " + std::to_string(x) + "," + std::to_string(y)); }
    void showFrame(int frame) override {
        // An animation is told by the first frame of it.
        for (const char* name : {"Wave", "Greet", "Sad", "Leaving"})
            if (character_.animation(name)->front().frame == frame && lines.back() != name) lines.push_back(name);
    }
    void showText(const std::string& text) override { lines.push_back("say " + text); }
    void hideText() override { lines.push_back("hush"); }
    std::vector<std::string> lines;

private:
    const Character& character_;
};

// Ends its texts when it is told to; without a sound it ends them at once.
class HandVoice : public Voice {
public:
    void say(const std::string& text, std::function<void()> ended) override {
        calls += "say " + text + "; ";
        ended_ = std::move(ended);
        if (mute) end();
    }
    void hush() override {
        if (ended_) calls += "hush; ";
        ended_ = nullptr;
    }
    void giveUp() override {
        calls += "give up; ";
        ended_ = nullptr;
    }
    void end() { std::exchange(ended_, nullptr)(); }
    bool mute = true;
    std::string calls;

private:
    std::function<void()> ended_;
};

// Each animation begins with a frame of its own.
const char* const plainCharacter =
    "torvane-character 1\n"
    "# a remark\n"
    "size 40 60\n"
    "\n"
    "part dot\n"
    "  <circle cx=\"20\" cy=\"30\" r=\"15\" fill=\"#ff0000\"/>\n"
    "part box\n"
    "  <g><rect x=\"0\" y=\"0\" width=\"40\" height=\"10\" fill=\"#0000ff\"/></g>\n"
    "frame still 0 0 : dot box\n"
    "frame low 0 50 : dot\n"
    "frame gone 0 0 : dot\n"
    "frame wave 0 0 : dot\n"
    "frame greet 0 0 : dot\n"
    "frame sad 0 0 : dot\n"
    "frame talk 0 0 : dot\n"
    "animation Idle : still 1000 low 100\n"
    "animation Speaking : talk 100\n"
    "animation Arriving : low 50 still 50\n"
    "animation Leaving : gone 50\n"
    "animation Wave : wave 300\n"
    "animation Greet : greet 300\n"
    "animation Sad : sad 300\n"
    "end\n";

class CharacterFile : public ::testing::Test {
protected:
    std::string write(const QByteArray& text) {
        const QString name = folder.filePath("Some.ACS");
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        return name.toStdString();
    }
    static std::string failureOf(const std::string& file) {
        try {
            Character::load(file);
            return "loaded";
        } catch (const RuntimeFailure& failure) {
            return std::to_string(failure.number()) + " " + failure.text();
        }
    }
    QTemporaryDir folder;
};

struct Damage {
    const char* what;
    const char* old;    // in the good file
    const char* other;  // in its place
    const char* fault;
};

TEST_F(CharacterFile, DamageIsFoundAndNamed) {
    const std::vector<Damage> rows{
        {"sound", "", "", ""},
        {"line ends of another system", "frame low 0 50 : dot\n", "frame low 0 50 : dot\r\n", ""},
        {"another file", "torvane-character 1", "MZ", "line 1: this is no character file"},
        {"a later version", "character 1", "character 2", "line 1: this is no character file"},
        {"cut off", "end\n", "", "line 23: the end is missing"},
        {"text behind the end", "end\n", "end\npart more\n", "line 24: text behind the end"},
        {"no size", "size 40 60\n", "", "line 4: the size stands once, and first"},
        {"two sizes", "\n\n", "\nsize 40 60\n", "line 4: the size stands once, and first"},
        {"absurd size", "size 40 60", "size 40 60000", "line 3: \"60000\" is no number from 16 to 512"},
        {"size in words", "size 40 60", "size 40 big", "line 3: \"big\" is no number from 16 to 512"},
        {"unknown entry", "part dot", "picture dot", "line 5: \"picture\" is no entry"},
        {"shape outside a part", "\n\n", "\n  <g/>\n", "line 4: a shape outside a part"},
        {"empty part", "part box\n  <g>", "part box\n#", "line 9: the part before is empty"},
        {"broken shape", "</g>", "", "line 9: the part before is broken: Opening and ending tag mismatch."},
        {"part that closes the drawing", "<g>", "</svg><g>", "line 9: the part before is broken: "},
        {"shape that reaches out", "<g>", "<image href=\"x.png\"/><g>", "line 9: \"image\" is no shape"},
        {"part twice", "part box", "part dot", "line 7: the name \"dot\" is given twice"},
        {"frame twice", "frame low", "frame still", "line 10: the name \"still\" is given twice"},
        {"frame of an unknown part", ": dot box", ": dot bax", "line 9: there is no part \"bax\""},
        {"frame of nothing", "0 50 : dot", "0 50 :", "line 10: a frame has a name, two numbers and parts"},
        {"animation twice", "animation Sad", "animation Wave", "line 22: the name \"Wave\" is given twice"},
        {"animation of an unknown frame", "talk 100", "tilt 100", "line 17: there is no frame \"tilt\""},
        {"animation without times", "low 100", "low", "line 16: an animation has a name, and frames with times"},
        {"no time at all", "talk 100", "talk 0", "line 17: \"0\" is no number from 20 to 10000"},
        {"an hour", "talk 100", "talk 3600000", "line 17: \"3600000\" is no number from 20 to 10000"},
        {"animation that the assistant needs", "animation Leaving : gone 50\n", "",
         "line 23: the animation Leaving is missing"},
    };
    std::map<std::string, std::string> expected, found;
    for (const Damage& row : rows) {
        QByteArray text(plainCharacter);
        const auto at = text.indexOf(row.old);
        ASSERT_GE(at, 0) << row.what;
        text.replace(at, static_cast<qsizetype>(qstrlen(row.old)), row.other);
        const std::string file = write(text);
        const std::string start = "321 The assistant's character is damaged: " + file + ", ";
        expected[row.what] = *row.fault ? start + row.fault : "loaded";
        found[row.what] = failureOf(file);
        // The words of the reader below are its own business.
        if (expected[row.what].ends_with("broken: ")) found[row.what].resize(expected[row.what].size());
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(failureOf("/nowhere/Merlin.ACS"), "53 The assistant's character can't be read: /nowhere/Merlin.ACS");
    EXPECT_EQ(failureOf(write(QByteArray(2'000'000, '#'))).substr(0, 3), "321");
}

TEST_F(CharacterFile, TheDeliveredCharacterCanDoWhatTheProgramAsks) {
    const Character character = Character::load(TORVANE_CHARACTER);
    for (const char* name : {"Wave", "Greet", "Sad", "Speaking", "Idle", "Arriving", "Leaving"})
        EXPECT_NE(character.animation(name), nullptr) << name;
    EXPECT_EQ(character.animation("Somersault"), nullptr);
    for (int frame = 0; frame < character.frameCount(); ++frame) {
        QSvgRenderer renderer;
        EXPECT_TRUE(renderer.load(character.drawing(frame))) << frame;
        EXPECT_EQ(renderer.viewBox().size(), character.size()) << frame;
    }
}

class Queue : public CharacterFile {
protected:
    Character character = Character::load(write(plainCharacter));
    HandTicker ticker;
    Script script{character};
    HandVoice voice;
    std::unique_ptr<Narrator> narrator = newNarrator();

    std::unique_ptr<Narrator> newNarrator() { return std::make_unique<Narrator>(character, ticker, script, voice); }

    void greeting() {
        narrator->Show();
        narrator->MoveTo(100, 100);
        narrator->Play("Wave");
        narrator->Speak("Hello");
        narrator->Play("Greet");
        narrator->Speak("Welcome");
        narrator->Hide();
    }
};

using Lines = std::vector<std::string>;

TEST_F(Queue, TheGreetingPlaysInOrderAndLeavesByItself) {
    greeting();
    ticker.pass(Narrator::leadIn - milliseconds(1));
    EXPECT_EQ(script.lines, Lines{}) << "the caller's window is painted first";
    ticker.pass(milliseconds(1));
    EXPECT_EQ(script.lines, Lines{"enter"});
    ticker.pass(milliseconds(60000));
    EXPECT_EQ(script.lines, (Lines{"enter", "move 100,100", "Wave", "say Hello", "hush", "Greet", "say Welcome", "hush",
                                   "Leaving", "leave"}));
    EXPECT_FALSE(ticker.waits()) << "nothing runs while it is away";
}

TEST_F(Queue, ATextStaysForItsLengthThenIdlingBegins) {
    narrator->Show();
    narrator->Speak("Hello");
    ticker.pass(Narrator::leadIn + milliseconds(100));
    const milliseconds reading = Narrator::readingTime("Hello");
    EXPECT_GT(Narrator::readingTime("Hello there"), reading);
    EXPECT_EQ(Narrator::readingTime("\xC3\xA9t\xC3\xA9"), Narrator::readingTime("ete")) << "signs count, not bytes";
    ticker.pass(reading - milliseconds(1));
    EXPECT_EQ(script.lines, (Lines{"enter", "say Hello"}));
    ticker.pass(milliseconds(1));
    EXPECT_EQ(script.lines, (Lines{"enter", "say Hello", "hush"}));
    ticker.pass(milliseconds(50));
    narrator->Play("Sad");
    ticker.pass(milliseconds(0));
    EXPECT_EQ(script.lines.back(), "Sad") << "idling is interrupted at once";
}

struct Course {
    const char* what;
    std::function<void(Narrator&, HandTicker&)> requests;
    Lines lines;
};

TEST_F(Queue, Requests) {
    const std::vector<Course> courses{
        {"the same text twice",
         [](Narrator& one, HandTicker&) { one.Show(), one.Speak("Press Add"), one.Show(), one.Speak("Press Add"); },
         {"enter", "say Press Add", "hush", "say Press Add", "hush"}},
        {"a text while it is away brings it back",
         [](Narrator& one, HandTicker&) { one.Speak("Here"), one.Hide(); },
         {"enter", "say Here", "hush", "Leaving", "leave"}},
        {"an empty text", [](Narrator& one, HandTicker&) { one.Show(), one.Speak(""); }, {"enter", "say ", "hush"}},
        {"an unknown animation is passed over",
         [](Narrator& one, HandTicker&) { one.Show(), one.Play("Somersault"), one.Speak("So"); },
         {"enter", "say So", "hush"}},
        {"no animation while it is away",
         [](Narrator& one, HandTicker&) { one.Play("Wave"), one.MoveTo(3, 4), one.Show(); },
         {"move 3,4", "enter"}},
        {"hidden twice, shown twice",
         [](Narrator& one, HandTicker&) { one.Hide(), one.Show(), one.Show(), one.Hide(), one.Hide(); },
         {"enter", "Leaving", "leave"}},
        {"a dismissed text lets the queue go on",
         [](Narrator& one, HandTicker& clock) {
             one.Speak("First"), one.Speak("Second"), one.Play("Wave");
             clock.pass(milliseconds(200));
             one.dismissText();
         },
         {"enter", "say First", "hush", "say Second", "hush", "Wave"}},
        {"nothing to dismiss",
         [](Narrator& one, HandTicker& clock) {
             one.Show(), one.Play("Wave"), one.Speak("Text");
             clock.pass(milliseconds(150));
             one.dismissText();
         },
         {"enter", "Wave", "say Text", "hush"}},
        {"sent away in the midst, and back for the next text",
         [](Narrator& one, HandTicker& clock) {
             one.Speak("First"), one.Speak("Dropped");
             clock.pass(milliseconds(200));
             one.sendAway();
             clock.pass(milliseconds(1000));
             one.Show(), one.Speak("Next");
         },
         {"enter", "say First", "hush", "Leaving", "leave", "enter", "say Next", "hush"}},
    };
    std::map<std::string, Lines> expected, found;
    for (const Course& run : courses) {
        script.lines.clear();
        narrator = newNarrator();
        run.requests(*narrator, ticker);
        ticker.pass(milliseconds(60000));
        expected[run.what] = run.lines;
        found[run.what] = script.lines;
    }
    EXPECT_EQ(found, expected);
}

TEST_F(Queue, EverythingStopsWithTheNarrator) {
    greeting();
    ticker.pass(milliseconds(500));
    const Lines before = script.lines;
    narrator.reset();
    EXPECT_FALSE(ticker.waits());
    EXPECT_EQ(script.lines, before);
}

TEST_F(Queue, ATextWaitsForTheVoiceButNotForEver) {
    const milliseconds reading = Narrator::readingTime("Hello");
    const milliseconds longest = Narrator::longestVoice("Hello");
    const milliseconds frame{100};  // of the mouth: within it the end is noticed
    struct Row {
        milliseconds ends, stays;
        const char* calls;
    };
    for (const Row& row : {Row{milliseconds(500), reading, "say Hello; "}, Row{reading * 2, reading * 2, "say Hello; "},
                           Row{longest * 2, longest, "say Hello; give up; "}}) {
        script.lines.clear();
        voice.calls.clear();
        voice.mute = false;
        narrator = newNarrator();
        narrator->Speak("Hello");
        while (voice.calls.empty()) ticker.pass(milliseconds(1));
        milliseconds stood{};
        while (script.lines.back() != "hush") {
            ticker.pass(milliseconds(1));
            if (++stood == row.ends) voice.end();
        }
        EXPECT_GE(stood, row.stays);
        EXPECT_LE(stood, row.stays + frame);
        EXPECT_EQ(voice.calls, row.calls);
    }
}

TEST_F(Queue, TheVoiceStopsWithItsText) {
    voice.mute = false;
    for (const char* text : {"one", "two", "three"}) narrator->Speak(text);
    ticker.pass(milliseconds(1000));
    narrator->dismissText();
    narrator->sendAway();
    ticker.pass(milliseconds(1000));
    narrator->Speak("four");
    ticker.pass(milliseconds(1000));
    narrator.reset();
    EXPECT_EQ(voice.calls, "say one; hush; say two; hush; say four; hush; ");
}

// Does what its name says: "speaks", "fails", "dies" in the midst of a text, "hangs".
class FakeEngine : public SpeechEngine {
public:
    FakeEngine(std::string name, std::string& log) : name_(std::move(name)), log_(log) {}
    ~FakeEngine() override { log_ += "-" + name_ + " "; }
    void say(const QString& text) override {
        log_ += name_ + ":" + text.toStdString() + " ";
        if (name_ == "fails") emit ended(false);
        if (name_ == "speaks")
            QMetaObject::invokeMethod(
                this, [this] { emit ended(true); }, Qt::QueuedConnection);
        if (name_ == "dies")
            QMetaObject::invokeMethod(
                this, [this] { emit ended(false); }, Qt::QueuedConnection);
    }
    void stop() override { log_ += "stop "; }

private:
    std::string name_;
    std::string& log_;
};

TEST(EngineVoiceTest, TakesTheFirstEngineThatSpeaks) {
    struct Row {
        std::vector<const char*> engines;
        const char* log;  // of two texts, a and b, each given up when it does not end
        int ended;
    };
    for (const Row& row : {Row{{}, "", 2}, Row{{"speaks", "fails"}, "speaks:a speaks:b ", 2},
                           Row{{"fails", "speaks"}, "fails:a speaks:a -fails speaks:b ", 2},
                           Row{{"dies", "speaks"}, "dies:a speaks:a -dies speaks:b ", 2},
                           Row{{"fails", "dies"}, "fails:a dies:a -dies -fails ", 2},
                           Row{{"hangs", "speaks"}, "hangs:a -hangs speaks:b ", 1}}) {
        std::string log;
        int searches = 0;
        EngineVoice voice([&] {
            ++searches;
            EngineVoice::Makers makers;
            for (const char* name : row.engines)
                makers.emplace_back([name, &log] { return std::make_unique<FakeEngine>(name, log); });
            return makers;
        });
        int ended = 0;
        for (const char* text : {"a", "b"}) {
            const int before = ended;
            voice.say(text, [&] { ++ended; });
            for (std::size_t i = 0; i <= row.engines.size(); ++i) QCoreApplication::processEvents();
            if (ended == before) voice.giveUp();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        voice.say(" ", [&] { ++ended; });
        EXPECT_EQ(log, row.log);
        EXPECT_EQ(ended, row.ended + 1) << row.log << "and a text of nothing";
        EXPECT_EQ(searches, 1);
    }
}

TEST(EngineVoiceTest, AHushedTextIsStoppedAndNotReported) {
    std::string log;
    EngineVoice voice(
        [&] { return EngineVoice::Makers{[&log] { return std::make_unique<FakeEngine>("speaks", log); }}; });
    int ended = 0;
    voice.say("a", [&] { ++ended; });
    voice.hush();
    QCoreApplication::processEvents();
    EXPECT_EQ(log, "speaks:a stop ");
    EXPECT_EQ(ended, 0);
}

struct Program {
    const char* name;
    const char* script;
    bool said;
};

TEST(SpeechProgramTest, EndsAsItsProgramEnds) {
    for (const Program& row : {Program{"says it", "test \"$0\" = \"a text\"", true}, Program{"can't", "exit 1", false},
                               Program{"crashes", "kill -SEGV $$", false}}) {
        SCOPED_TRACE(row.name);
        SpeechProgram engine("/bin/sh", {"-c", row.script});
        std::vector<bool> ended;
        QObject::connect(&engine, &SpeechEngine::ended, [&](bool said) { ended.push_back(said); });
        engine.say("a text");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !ended.empty(); }));
        EXPECT_EQ(ended, std::vector<bool>{row.said});
    }
    SpeechProgram missing("/nowhere/Speak.exe", {});
    int failures = 0;
    QObject::connect(&missing, &SpeechEngine::ended, [&](bool said) { failures += !said; });
    missing.say("a text");
    EXPECT_TRUE(QTest::qWaitFor([&] { return failures == 1; }));
}

TEST(SpeechProgramTest, StopsAtTheEndOfItsInputAndElseByForce) {
    const QTemporaryDir folder;
    // Says what has become of it in a file; the second one does not listen.
    for (const char* script : {"cat; echo left > \"$0\"", "while :; do sleep 0.05; echo on >> \"$0\"; done"}) {
        const QString file = folder.filePath("fate");
        QFile::remove(file);
        SpeechProgram engine("/bin/sh", {"-c", script});
        bool heard = false;
        QObject::connect(&engine, &SpeechEngine::ended, [&] { heard = true; });
        engine.say(file);
        QTest::qWait(30);
        engine.stop();
        EXPECT_TRUE(QTest::qWaitFor([&] { return engine.findChildren<QProcess*>().isEmpty(); }));
        EXPECT_FALSE(heard) << "nobody asks any more";
        const auto size = QFileInfo(file).size();
        EXPECT_GT(size, 0);
        QTest::qWait(150);
        EXPECT_EQ(QFileInfo(file).size(), size) << "it is gone";
    }
}

class OnScreen : public ::testing::Test {
protected:
    HandTicker* ticker = new HandTicker;
    AnimatedAssistant assistant{TORVANE_CHARACTER, std::make_unique<HandVoice>(), std::unique_ptr<Ticker>(ticker)};
    AssistantWindow& window = assistant.window();

    QLabel* balloon() { return window.findChild<QLabel*>("Balloon"); }
    std::string shown() {
        const QLabel* label = balloon();
        return label && label->isVisible() ? label->text().toStdString() : "";
    }
    void pass(int time) {
        ticker->pass(milliseconds(time));
        QCoreApplication::processEvents();
    }
};

TEST_F(OnScreen, TakesNoFocusAndShowsPlainText) {
    QPushButton other("Other");
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    assistant.Show();
    EXPECT_FALSE(window.isVisible());
    assistant.Speak("Press <b>Add</b> & go on");
    pass(2000);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(shown(), "Press <b>Add</b> & go on");
    EXPECT_EQ(balloon()->textFormat(), Qt::PlainText);
    EXPECT_EQ(QApplication::activeWindow(), &other);
    assistant.Hide();
    pass(60000);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(shown(), "");
}

TEST_F(OnScreen, AClickOnEitherAndEscapeAnywhereGoOn) {
    QPushButton other("Other");
    int cancelled = 0;
    QShortcut escape(QKeySequence(Qt::Key_Escape), &other, [&] { ++cancelled; });
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    for (const char* text : {"one", "two", "three"}) assistant.Speak(text);
    pass(2000);
    EXPECT_EQ(shown(), "one");
    QTest::mouseClick(balloon()->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(shown(), "two");
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    EXPECT_EQ(shown(), "three");
    QTest::keyClick(other.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(shown(), "");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    EXPECT_TRUE(static_cast<QObject&>(window).eventFilter(&other, &held))
        << "a key that is held down goes no further than the text";
    EXPECT_EQ(cancelled, 0);
    QTest::keyClick(other.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(cancelled, 1) << "without a text Escape is the window's own again";
}

TEST_F(OnScreen, ADragMovesTheCharacterAndKeepsTheText) {
    assistant.Speak("one");
    pass(2000);
    const QPoint before = window.pos();
    QWindow* const handle = window.windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    QTest::mouseMove(handle, QPoint(120, 110));
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    EXPECT_EQ(window.pos(), before + QPoint(40, 30));
    EXPECT_EQ(shown(), "one");
}

TEST_F(OnScreen, GoesOnAndCanBeClickedAwayWhileAModalWindowStands) {
    assistant.Speak("one");
    assistant.Speak("two");
    pass(2000);
    QDialog modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    QCoreApplication::processEvents();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    EXPECT_EQ(shown(), "two");
    QMessageBox box;
    box.setWindowModality(Qt::ApplicationModal);
    box.show();
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isVisible()) << "a question is not covered";
    EXPECT_EQ(shown(), "");
    assistant.Show();
    pass(500);
    EXPECT_FALSE(window.isVisible());
    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(box.isVisible()) << "a question is answered first";
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), "two");
    QTest::mouseClick(balloon()->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(shown(), "");
    modal.hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(OnScreen, ItsMenuSendsItAway) {
    assistant.Speak("one");
    assistant.Speak("two");
    pass(2000);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(60, 60), window.mapToGlobal(QPoint(60, 60)));
    QCoreApplication::sendEvent(&window, &asked);
    auto* menu = window.findChild<QMenu*>("AssistantMenu");
    ASSERT_NE(menu, nullptr);
    menu->actions().first()->trigger();
    menu->close();
    pass(60000);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(shown(), "");
}

struct Place {
    const char* what;
    QPoint asked;
    int fontSize;
    int words;
};

TEST_F(OnScreen, CharacterAndBalloonStayOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const std::vector<Place> places{
        {"greeting", {100, 100}, 10, 1},       {"upper left", {-500, -500}, 10, 60},
        {"lower right", {9000, 9000}, 10, 60}, {"upper right, large type", {screen.right() - 50, 0}, 24, 60},
        {"huge type", {100, 100}, 48, 40},     {"more than a screen", {100, 100}, 24, 900},
    };
    const QFont usual = QApplication::font();
    for (const Place& place : places) {
        QFont font = usual;
        font.setPointSize(place.fontSize);
        QApplication::setFont(font);
        assistant.MoveTo(place.asked.x(), place.asked.y());
        assistant.Speak(QString("wording ").repeated(place.words).toStdString());
        pass(2000);
        const QRect around = balloon()->window()->geometry();
        EXPECT_TRUE(screen.contains(window.geometry())) << place.what;
        EXPECT_TRUE(screen.contains(around)) << place.what;
        EXPECT_EQ(window.pos() == place.asked, screen.contains(QRect(place.asked, window.size()))) << place.what;
        EXPECT_EQ(balloon()->font().pointSize(), place.fontSize) << place.what;
        const QRect needed = balloon()->fontMetrics().boundingRect(QRect(0, 0, balloon()->width(), 100000),
                                                                   Qt::TextWordWrap, balloon()->text());
        EXPECT_LE(needed.width(), balloon()->width()) << place.what;
        EXPECT_LE(needed.height(), balloon()->height()) << place.what;
        EXPECT_FALSE(around.adjusted(20, 20, -20, -20).contains(window.geometry().center()) && place.words < 40)
            << place.what;
        assistant.window().dismissed();
        pass(0);
    }
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace torvane

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
