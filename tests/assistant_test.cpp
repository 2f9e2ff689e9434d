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
#include <memory>
#include <string>
#include <vector>

#include "assistant/animated_assistant.h"
#include "values/failure.h"

namespace torvane {
namespace {

using std::chrono::milliseconds;
using Lines = QStringList;

// A clock that runs only when it is told to.
class HandTicker : public Ticker {
public:
    void after(milliseconds time, std::function<void()> then) override {
        left_ = time;
        then_ = std::move(then);
    }
    bool waits() const { return then_ != nullptr; }
    // Lets the time pass, doing what falls due; looks around after each.
    void pass(milliseconds time, const std::function<void()>& look) {
        while (then_ && left_ <= time) {
            time -= left_;
            std::exchange(then_, nullptr)();
            look();
        }
        left_ -= time;
    }

private:
    milliseconds left_{};
    std::function<void()> then_;
};

// Ends its texts when it is told to; without a sound it ends them at once.
class HandVoice : public Voice {
public:
    explicit HandVoice(Lines& calls) : calls_(calls) {}
    void say(const std::string& text, std::function<void()> ended) override {
        calls_.push_back(QString::fromStdString("say " + text));
        ended_ = std::move(ended);
        if (mute) end();
    }
    void hush() override { stop("hush"); }
    void giveUp() override { stop("give up"); }
    void end() { std::exchange(ended_, nullptr)(); }
    bool mute = true;

private:
    void stop(const char* how) {
        if (std::exchange(ended_, nullptr)) calls_.emplace_back(how);
    }
    Lines& calls_;
    std::function<void()> ended_;
};

// Each animation that tells what is going on has a colour of its own.
const char* const plainCharacter =
    "torvane-character 1\n"
    "# a remark\n"
    "size 40 60\n"
    "\n"
    "part box\n"
    "  <g><rect x=\"0\" y=\"0\" width=\"40\" height=\"60\" fill=\"#0000ff\"/></g>\n"
    "part green\n"
    "  <rect x=\"0\" y=\"0\" width=\"40\" height=\"60\" fill=\"#00ff00\"/>\n"
    "part red\n"
    "  <rect x=\"0\" y=\"0\" width=\"40\" height=\"60\" fill=\"#ff0000\"/>\n"
    "part black\n"
    "  <circle cx=\"20\" cy=\"30\" r=\"15\" fill=\"#000000\"/>\n"
    "frame still 0 0 : box\n"
    "frame low 0 50 : box\n"
    "frame wave 0 0 : green\n"
    "frame sad 0 0 : box red\n"
    "frame gone 0 0 : black\n"
    "animation Idle : still 1000 low 100\n"
    "animation Speaking : still 100\n"
    "animation Arriving : low 50 still 50\n"
    "animation Leaving : gone 50\n"
    "animation Wave : wave 300\n"
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

TEST_F(CharacterFile, DamageIsFoundAndNamed) {
    const struct {
        const char* old;    // in the good file
        const char* other;  // in its place
        std::string fault;  // "" for none
    } rows[] = {
        {"red\nframe low 0 50 : box\n", "red\nframe low 0 50 : box\r\n", ""},
        {"torvane-character 1", "MZ", "line 1: this is no character file"},
        {"character 1", "character 2", "line 1: this is no character file"},
        {"end\n", "", "line 24: the end is missing"},
        {"end\n", "end\npart more\n", "line 25: text behind the end"},
        {"size 40 60\n", "", "line 4: the size stands once, and first"},
        {"\n\n", "\nsize 40 60\n", "line 4: the size stands once, and first"},
        {"size 40 60", "size 40 513", "line 3: \"513\" is no number from 16 to 512"},
        {"size 40 60", "size 40 big", "line 3: \"big\" is no number from 16 to 512"},
        {"part box", "picture box", "line 5: \"picture\" is no entry"},
        {"\n\n", "\n  <g/>\n", "line 4: a shape outside a part"},
        {"part box\n  <g>", "part box\n#", "line 7: the part before is empty"},
        {"</g>", "", "line 7: the part before is broken: Opening and ending tag mismatch."},
        {"<g>", "<image href=\"x.png\"/><g>", "line 7: \"image\" is no shape"},
        {"part green", "part box", "line 7: the name \"box\" is given twice"},
        {": box red", ": box bax", "line 16: there is no part \"bax\""},
        {"0 50 : box", "0 50 :", "line 14: a frame has a name, two numbers and parts"},
        {"animation Sad", "animation Wave", "line 23: the name \"Wave\" is given twice"},
        {"low 100", "low", "line 18: an animation has a name, and frames with times"},
        {"still 100\n", "still 10001\n", "line 19: \"10001\" is no number from 20 to 10000"},
        {"animation Leaving : gone 50\n", "", "line 24: the animation Leaving is missing"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        QByteArray text(plainCharacter);
        text.replace(text.indexOf(row.old), static_cast<qsizetype>(qstrlen(row.old)), row.other);
        const std::string file = write(text);
        EXPECT_EQ(failureOf(file), row.fault.empty()
                                       ? "loaded"
                                       : "321 The assistant's character is damaged: " + file + ", " + row.fault);
    }
    EXPECT_EQ(failureOf("/nowhere/Merlin.ACS"), "53 The assistant's character can't be read: /nowhere/Merlin.ACS");
    EXPECT_EQ(failureOf(write(QByteArray(2'000'000, '#'))).substr(0, 3), "321");
}

TEST_F(CharacterFile, TheDeliveredCharacterCanDoWhatTheProgramAsks) {
    const Character character = Character::load(TORVANE_CHARACTER);
    for (const char* name : {"Wave", "Greet", "Sad", "Idle", "Speaking", "Arriving", "Leaving"}) {
        ASSERT_NE(character.animation(name), nullptr) << name;
        for (const Character::Step& step : *character.animation(name)) {
            QSvgRenderer renderer;
            EXPECT_TRUE(renderer.load(step.drawing)) << name;
            EXPECT_EQ(renderer.viewBox().size(), character.size()) << name;
        }
    }
}

// The assistant on the screen, and what a user sees of it as lines: it enters, moves, says a text and takes it away,
// plays an animation, and leaves.
class AssistantTest : public CharacterFile {
protected:
    Lines lines;
    HandTicker* ticker = new HandTicker;
    HandVoice* voice = new HandVoice(lines);
    AnimatedAssistant assistant{write(plainCharacter), std::unique_ptr<Voice>(voice), std::unique_ptr<Ticker>(ticker)};
    AssistantWindow& window = assistant.window();

    QLabel* balloon() { return window.findChild<QLabel*>("Balloon"); }
    std::string shown() {
        const QLabel* label = balloon();
        return label && label->isVisible() ? label->text().toStdString() : "";
    }
    void look() {
        static const std::map<QRgb, const char*> colours{
            {qRgb(0, 255, 0), "Wave"}, {qRgb(255, 0, 0), "Sad"}, {qRgb(0, 0, 0), "Leaving"}};
        const bool entered = !std::exchange(visible_, window.isVisible()) && visible_;
        if (entered) lines.emplace_back("enter");
        if (const QPoint before = std::exchange(place_, window.pos()); before != place_ && !entered)
            lines.push_back(QString("move %1,%2").arg(place_.x()).arg(place_.y()));
        if (const std::string before = std::exchange(text_, shown()); !before.empty() && text_.empty())
            lines.emplace_back("away");
        const auto colour = colours.find(visible_ ? window.grab().toImage().pixel(20, 30) : 1);
        const QString before = std::exchange(animation_, colour == colours.end() ? "" : colour->second);
        if (animation_ != before && !animation_.isEmpty()) lines.push_back(animation_);
        if (!visible_ && !lines.empty() && lines.back() == "Leaving") lines.emplace_back("leave");
    }
    void pass(milliseconds time) {
        ticker->pass(time, [this] { look(); });
        QCoreApplication::processEvents();
    }
    void pass(int time) { pass(milliseconds(time)); }
    // Takes the text away as a user does.
    void clickBalloon() {
        QTest::mouseClick(balloon()->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        look();
    }

    void carryOut(const QString& act) {
        const QString rest = act.section(' ', 1);
        if (act == "show") assistant.Show();
        if (act == "hide") assistant.Hide();
        if (act == "move") assistant.MoveTo(110, 90);
        if (act.startsWith("play")) assistant.Play(rest.toStdString());
        if (act.startsWith("speak")) assistant.Speak(rest.toStdString());
        if (act.startsWith("pass")) pass(rest.toInt());
        if (act == "click") QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
        if (act == "menu") {
            QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(20, 30), window.mapToGlobal(QPoint(20, 30)));
            QCoreApplication::sendEvent(&window, &asked);
            auto* menu = window.findChild<QMenu*>("AssistantMenu");
            menu->actions().first()->trigger();
            menu->close();
            QCoreApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
        }
        look();
    }

private:
    bool visible_ = false;
    QPoint place_ = window.pos();
    std::string text_;
    QString animation_;
};

TEST_F(AssistantTest, Requests) {
    const struct {
        const char* what;
        const char* acts;
        const char* lines;
    } courses[] = {
        {"the greeting", "show, move, play Wave, speak Hello, play Sad, speak Bye, hide",
         "enter, move 110,90, Wave, say Hello, away, Sad, say Bye, away, Leaving, leave"},
        {"the same text twice", "show, speak Press Add, show, speak Press Add, hide",
         "enter, say Press Add, say Press Add, away, Leaving, leave"},
        {"a text while it is away brings it back", "speak Here, hide", "enter, say Here, away, Leaving, leave"},
        {"no animation while it is away, or that it has not", "play Wave, show, play Somersault, speak So, hide",
         "enter, say So, away, Leaving, leave"},
        {"hidden twice, shown twice", "hide, show, show, hide, hide", "enter, Leaving, leave"},
        {"idling is interrupted at once", "show, pass 2500, play Sad, pass 0, click, hide",
         "enter, Sad, Leaving, leave"},
        {"a text that is clicked away lets the queue go on",
         "speak First, speak Second, play Wave, hide, pass 200, click",
         "enter, say First, say Second, away, Wave, Leaving, leave"},
        {"sent away in the midst, and back for the next text",
         "speak First, speak Dropped, pass 200, menu, menu, pass 1000, show, speak Next, hide",
         "enter, say First, away, Leaving, leave, enter, say Next, away, Leaving, leave"},
    };
    for (const auto& course : courses) {
        lines.clear();
        for (const QString& act : QString(course.acts).split(", ")) carryOut(act);
        pass(60000);
        EXPECT_EQ(lines.join(", ").toStdString(), course.lines) << course.what;
        EXPECT_FALSE(ticker->waits()) << "nothing runs while it is away";
        assistant.MoveTo(100, 100);
        pass(1000);
    }
}

TEST_F(AssistantTest, ATextWaitsForTheReaderAndTheVoiceButNotForEver) {
    EXPECT_GT(AnimatedAssistant::readingTime("Hello there"), AnimatedAssistant::readingTime("Hello"));
    EXPECT_EQ(AnimatedAssistant::readingTime("\xC3\xA9t\xC3\xA9"), AnimatedAssistant::readingTime("ete"));
    const milliseconds reading = AnimatedAssistant::readingTime("Hello");
    const milliseconds longest = AnimatedAssistant::longestVoice("Hello");
    const milliseconds frame{100};  // of the mouth: within it the end is noticed
    const struct {
        milliseconds ends, stays;
        const char* calls;
    } rows[] = {{milliseconds(500), reading, "say Hello"},
                {reading * 2, reading * 2, "say Hello"},
                {longest * 2, longest, "say Hello, give up"}};
    assistant.Show();
    pass(AnimatedAssistant::leadIn - milliseconds(1));
    EXPECT_EQ(lines, Lines{}) << "the caller's window is painted first";
    pass(1);
    EXPECT_EQ(lines, Lines("enter"));
    pass(5000);
    voice->mute = false;
    for (const auto& row : rows) {
        lines.clear();
        assistant.Speak("Hello");
        pass(0);
        milliseconds stood{};
        for (; shown() == "Hello"; ++stood) {
            if (stood == row.ends) voice->end();
            ticker->pass(milliseconds(1), [] {});
        }
        EXPECT_GE(stood, row.stays);
        EXPECT_LE(stood, row.stays + frame);
        EXPECT_EQ(lines.join(", "), row.calls);
    }
    lines.clear();
    assistant.Speak("one"), assistant.Speak("two");
    pass(1000);
    clickBalloon();
    clickBalloon();
    EXPECT_EQ(lines.join(", "), "say one, hush, say two, hush, away") << "the voice stops with its text";
}

// Engines are shell scripts here, which tell in a file, $0, what becomes of them.
class EngineVoiceTest : public ::testing::Test {
protected:
    static QStringList engine(const char* program, const QString& file) {
        const std::map<std::string_view, const char*> scripts{
            {"speaks", "echo speaks $1 >> $0"},
            {"fails", "echo fails $1 >> $0; exit 1"},
            {"crashes", "echo crashes $1 >> $0; kill -SEGV $$"},
            {"listens", "echo listens $1 >> $0; cat; echo stopped >> $0"},
            {"hangs", "echo hangs $1 >> $0; exec sleep 1000"},
        };
        const auto script = scripts.find(program);
        if (script == scripts.end()) return {program};
        return {"/bin/sh", "-c", script->second, file};
    }
    std::string log() {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll().replace('\n', "; ").toStdString() : "";
    }
    QTemporaryDir folder;
    const QString name = folder.filePath("log");
};

TEST_F(EngineVoiceTest, TakesTheFirstEngineThatSpeaks) {
    const struct {
        std::vector<const char*> engines;
        const char* log;
    } rows[] = {{{}, ""},
                {{"speaks", "fails"}, "speaks a; speaks b; "},
                {{"/nowhere/Speak.exe", "fails", "crashes", "speaks"}, "fails a; crashes a; speaks a; speaks b; "},
                {{"fails", "crashes"}, "fails a; crashes a; "}};
    for (const auto& row : rows) {
        QFile::remove(name);
        int searches = 0;
        EngineVoice voice([&] {
            ++searches;
            EngineVoice::Commands commands;
            for (const char* program : row.engines) commands.append(engine(program, name));
            return commands;
        });
        int ended = 0;
        int said = 0;
        for (const char* text : {"a", "b", " "}) {
            voice.say(text, [&] { ++ended; });
            ++said;
            EXPECT_TRUE(QTest::qWaitFor([&] { return ended == said; })) << text;
        }
        EXPECT_EQ(log(), row.log);
        EXPECT_EQ(searches, 1);
    }
}

TEST_F(EngineVoiceTest, AnEngineIsStoppedByTheEndOfItsInputAndElseByForce) {
    const struct {
        const char* program;
        void (EngineVoice::*stop)();
        const char* log;
    } rows[] = {{"listens", &EngineVoice::hush, "listens a; stopped; listens b; "},
                {"hangs", &EngineVoice::hush, "hangs a; hangs b; "},
                {"hangs", &EngineVoice::giveUp, "hangs a; speaks b; "}};
    for (const auto& row : rows) {
        QFile::remove(name);
        EngineVoice voice([&] { return EngineVoice::Commands{engine(row.program, name), engine("speaks", name)}; });
        bool ended = false;
        voice.say("a", [&] { ended = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return !log().empty(); }));
        (voice.*row.stop)();
        EXPECT_TRUE(QTest::qWaitFor([&] { return voice.findChildren<QProcess*>().isEmpty(); }));
        EXPECT_FALSE(ended) << "nobody asks any more";
        const std::string before = log();
        voice.say("b", [] {});
        EXPECT_TRUE(QTest::qWaitFor([&] { return log() != before; }));
        EXPECT_EQ(log(), row.log);
    }
}

TEST_F(AssistantTest, TakesNoFocusAndGoesOnByClickAndEscape) {
    QPushButton other("Other");
    int cancelled = 0;
    QShortcut escape(QKeySequence(Qt::Key_Escape), &other, [&] { ++cancelled; });
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    for (const char* text : {"Press <b>Add</b> & go on", "two", "three"}) assistant.Speak(text);
    pass(200);
    EXPECT_EQ(shown(), "Press <b>Add</b> & go on");
    EXPECT_EQ(balloon()->textFormat(), Qt::PlainText);
    EXPECT_EQ(QApplication::activeWindow(), &other);
    clickBalloon();
    EXPECT_EQ(shown(), "two");
    QWindow* const handle = window.windowHandle();
    const QPoint before = window.pos();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    QTest::mouseMove(handle, QPoint(35, 50));
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    EXPECT_EQ(window.pos(), before + QPoint(15, 20));
    EXPECT_EQ(shown(), "two") << "a drag keeps the text";
    QTest::mouseClick(handle, Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
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

TEST_F(AssistantTest, GoesOnOverModalWindowsAndCoversNoQuestion) {
    assistant.Speak("one");
    assistant.Speak("two");
    pass(200);
    QDialog modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    QCoreApplication::processEvents();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
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
    clickBalloon();
    EXPECT_EQ(shown(), "");
    modal.hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AssistantTest, CharacterAndBalloonStayOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const struct {
        const char* what;
        QPoint asked;
        int fontSize;
        int words;
    } places[] = {
        {"greeting", {100, 100}, 10, 1},       {"upper left", {-500, -500}, 10, 60},
        {"lower right", {9000, 9000}, 10, 60}, {"upper right, large type", {screen.right() - 50, 0}, 24, 60},
        {"huge type", {100, 100}, 48, 40},     {"more than a screen", {100, 100}, 24, 900},
    };
    const QFont usual = QApplication::font();
    for (const auto& place : places) {
        SCOPED_TRACE(place.what);
        QFont font = usual;
        font.setPointSize(place.fontSize);
        QApplication::setFont(font);
        assistant.MoveTo(place.asked.x(), place.asked.y());
        assistant.Speak(QString("wording ").repeated(place.words).toStdString());
        pass(2000);
        const QRect around = balloon()->window()->geometry();
        EXPECT_TRUE(screen.contains(window.geometry()));
        EXPECT_TRUE(screen.contains(around));
        EXPECT_EQ(window.pos() == place.asked, screen.contains(QRect(place.asked, window.size())));
        const QRect needed = balloon()->fontMetrics().boundingRect(QRect(0, 0, balloon()->width(), 100000),
                                                                   Qt::TextWordWrap, balloon()->text());
        EXPECT_LE(needed.width(), balloon()->width());
        EXPECT_LE(needed.height(), balloon()->height());
        EXPECT_FALSE(around.adjusted(20, 20, -20, -20).contains(window.geometry().center()) && place.words < 900);
        clickBalloon();
        pass(0);
    }
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace torvane
