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
#include <tuple>
#include <vector>

#include "assistant/animated_assistant.h"
#include "values/failure.h"

namespace torvane {
namespace {

using std::chrono::milliseconds;
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
struct HandVoice : Voice {
    void say(const std::string& text, std::function<void()> ended) override {
        calls += "say " + text + "; ";
        end = std::move(ended);
        if (mute) std::exchange(end, nullptr)();
    }
    void hush() override {
        if (std::exchange(end, nullptr)) calls += "hush; ";
    }
    void giveUp() override {
        calls += "give up; ";
        end = nullptr;
    }
    bool mute = true;
    std::string calls;
    std::function<void()> end;
};

// What goes on is told by the colour.
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
    "frame still 0 0 : box\n"
    "frame wave 0 0 : box green\n"
    "frame gone 0 -10 : red\n"
    "animation Idle : still 1000 still 100\n"
    "animation Speaking : still 100\n"
    "animation Arriving : still 50 still 50\n"
    "animation Leaving : gone 50\n"
    "animation Wave : still 10000 wave 300\n"
    "end\n";

class CharacterFile : public ::testing::Test {
protected:
    std::string write(const QByteArray& text) {
        QFile file(folder.filePath("Some.ACS"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        return file.fileName().toStdString();
    }
    // The number and the text of the failure; the file's name is %.
    static std::string loading(const std::string& file) {
        try {
            Character::load(file);
        } catch (const RuntimeFailure& failure) {
            std::string text = failure.text();
            return std::to_string(failure.number()) + " " + text.replace(text.find(file), file.size(), "%");
        }
        return "loaded";
    }
    QTemporaryDir folder;
};

TEST_F(CharacterFile, DamageIsFoundAndNamed) {
    const std::string damaged = "321 The assistant's character is damaged: %, ";
    // What stands in the sound file, what stands in its place, and the fault, if it is one.
    const std::tuple<const char*, const char*, std::string> rows[] = {
        {"animation Idle", "\r\nanimation Idle", ""},
        {"character 1", "character 2", "line 1: this is no character file"},
        {"end\n", "", "line 19: the end is missing"},
        {"end\n", "end\npart more\n", "line 20: text behind the end"},
        {"size 40 60\n", "", "line 4: the size stands once, and first"},
        {"\n\n", "\nsize 40 60\n", "line 4: the size stands once, and first"},
        {"size 40 60", "size 40 513", "line 3: \"513\" is no number from 16 to 512"},
        {"part box", "picture box", "line 5: \"picture\" is no entry"},
        {"\n\n", "\n  <g/>\n", "line 4: a shape outside a part"},
        {"part box\n  <g>", "part box\n#", "line 7: the part before is empty"},
        {"</g>", "", "line 7: the part before is broken: Opening and ending tag mismatch."},
        {"<g>", "<image href=\"x.png\"/><g>", "line 7: \"image\" is no shape"},
        {"part green", "part box", "line 7: the name \"box\" is given twice"},
        {": box green", ": box bax", "line 12: there is no part \"bax\""},
        {"-10 : red", "-10 :", "line 13: a frame has a name, two numbers and parts"},
        {"animation Wave", "animation Idle", "line 18: the name \"Idle\" is given twice"},
        {"still 100\n", "still\n", "line 14: an animation has a name, and frames with times"},
        {"wave 300\n", "wave 10001\n", "line 18: \"10001\" is no number from 20 to 10000"},
        {"animation Leaving : gone 50\n", "", "line 19: the animation Leaving is missing"},
    };
    for (const auto& [before, after, fault] : rows) {
        QByteArray text(plainCharacter);
        text.replace(text.indexOf(before), static_cast<qsizetype>(qstrlen(before)), after);
        EXPECT_EQ(loading(write(text)), fault.empty() ? "loaded" : damaged + fault);
    }
    EXPECT_EQ(loading(write(QByteArray(2'000'000, '#'))), damaged + "line 0: the file is too large");
    EXPECT_EQ(loading("/nowhere/Merlin.ACS"), "53 The assistant's character can't be read: %");
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

// The assistant on the screen, and what a user sees of it, one after the other: a text, or else what it does.
class AssistantTest : public CharacterFile {
protected:
    QStringList seen;
    HandTicker* ticker = new HandTicker;
    HandVoice* voice = new HandVoice;
    AnimatedAssistant assistant{write(plainCharacter), std::unique_ptr<Voice>(voice), std::unique_ptr<Ticker>(ticker)};
    AssistantWindow& window = assistant.window();

    QLabel* balloon() { return window.findChild<QLabel*>("Balloon"); }
    std::string shown() { return balloon() && balloon()->isVisible() ? balloon()->text().toStdString() : ""; }
    void look() {
        const QColor colour = window.isVisible() ? window.grab().toImage().pixelColor(20, 30) : QColor();
        const char* doing = !colour.isValid() ? "away" : colour.green() ? "waves" : colour.red() ? "leaves" : "stands";
        const QString now = shown().empty() ? doing : QString::fromStdString(shown());
        if (seen.isEmpty() || seen.last() != now) seen.append(now);
    }
    void pass(milliseconds time) {
        ticker->pass(time, [this] { look(); });
        QCoreApplication::processEvents();
    }
    static void clickOn(QWidget& window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    }
    void carryOut(const QString& act) {
        const std::string rest = act.section(' ', 1).toStdString();
        if (act == "show") assistant.Show();
        if (act == "hide") assistant.Hide();
        if (act == "wave") assistant.Play("Wave");
        if (act == "jump") assistant.Play("Somersault");
        if (act.startsWith("say")) assistant.Speak(rest);
        if (act.startsWith("pass")) pass(milliseconds(std::stoi(rest)));
        if (act == "click") clickOn(window);
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
};

TEST_F(AssistantTest, Requests) {
    const std::pair<const char*, const char*> courses[] = {
        {"show, wave, say Hello, say Welcome, hide", "away, stands, waves, Hello, Welcome, leaves, away"},
        {"say Here, hide", "away, stands, Here, leaves, away"},
        {"wave, show, jump, say So, hide", "away, stands, So, leaves, away"},
        {"hide, show, show, hide, hide", "away, stands, leaves, away"},
        {"show, pass 2500, hide, pass 0, click", "away, stands, leaves, away"},
        {"say First, say Second, wave, hide, pass 200, click",
         "away, stands, First, Second, stands, waves, leaves, away"},
        {"say First, say Dropped, pass 200, menu, menu, pass 1000, show, say Next, hide",
         "away, stands, First, leaves, away, stands, Next, leaves, away"},
    };
    for (const auto& [acts, sights] : courses) {
        seen.clear();
        for (const QString& act : QString(acts).split(", ")) carryOut(act);
        pass(milliseconds(60000));
        EXPECT_EQ(seen.join(", ").toStdString(), sights) << acts;
        EXPECT_FALSE(ticker->waits()) << "nothing runs while it is away";
    }
}

TEST_F(AssistantTest, ATextWaitsForTheReaderAndTheVoiceButNotForEver) {
    EXPECT_GT(AnimatedAssistant::readingTime("Hello there"), AnimatedAssistant::readingTime("Hello"));
    EXPECT_EQ(AnimatedAssistant::readingTime("\xC3\xA9t\xC3\xA9"), AnimatedAssistant::readingTime("ete"));
    const milliseconds reading = AnimatedAssistant::readingTime("Hello");
    const milliseconds longest = AnimatedAssistant::longestVoice("Hello");
    const milliseconds frame{100};  // of the mouth: within it the end is noticed
    // When the voice ends, how long the text stays, and what is asked of the voice.
    const std::tuple<milliseconds, milliseconds, const char*> rows[] = {{milliseconds(500), reading, "say Hello; "},
                                                                        {reading * 2, reading * 2, "say Hello; "},
                                                                        {longest * 2, longest, "say Hello; give up; "}};
    assistant.Show();
    pass(AnimatedAssistant::leadIn - milliseconds(1));
    EXPECT_FALSE(window.isVisible()) << "the caller's window is painted first";
    pass(milliseconds(5000));
    voice->mute = false;
    for (const auto& [ends, stays, calls] : rows) {
        voice->calls.clear();
        assistant.Speak("Hello");
        pass(milliseconds(0));
        milliseconds stood{};
        for (; shown() == "Hello"; ++stood) {
            if (stood == ends) std::exchange(voice->end, nullptr)();
            ticker->pass(milliseconds(1), [] {});
        }
        EXPECT_GE(stood, stays);
        EXPECT_LE(stood, stays + frame);
        EXPECT_EQ(voice->calls, calls);
    }
    voice->calls.clear();
    for (const char* act : {"say one", "say one", "pass 1000", "click", "menu"}) carryOut(act);
    EXPECT_EQ(voice->calls, "say one; hush; say one; hush; ") << "the voice stops with its text";
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

TEST_F(EngineVoiceTest, TakesTheFirstEngineThatSpeaksAndStopsIt) {
    const struct {
        std::vector<const char*> engines;
        void (EngineVoice::*stop)();  // the text a, when it has begun; else it comes to its end
        const char* log;              // of a, and then b
    } rows[] = {
        {{}, nullptr, ""},
        {{"speaks", "fails"}, nullptr, "speaks a; speaks b; "},
        {{"/nowhere/Speak.exe", "fails", "crashes", "speaks"}, nullptr, "fails a; crashes a; speaks a; speaks b; "},
        {{"fails", "crashes"}, nullptr, "fails a; crashes a; "},
        {{"listens", "speaks"}, &EngineVoice::hush, "listens a; stopped; listens b; "},
        {{"hangs", "speaks"}, &EngineVoice::hush, "hangs a; hangs b; "},
        {{"hangs", "speaks"}, &EngineVoice::giveUp, "hangs a; speaks b; "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.log);
        QFile::remove(name);
        int searches = 0;
        EngineVoice voice([&] {
            ++searches;
            EngineVoice::Commands commands;
            for (const char* program : row.engines) commands.append(engine(program, name));
            return commands;
        });
        int ended = 0;
        voice.say("a", [&] { ++ended; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return row.stop ? !log().empty() : ended == 1; }));
        if (row.stop) (voice.*row.stop)();
        EXPECT_TRUE(QTest::qWaitFor([&] { return voice.findChildren<QProcess*>().isEmpty(); }));
        EXPECT_EQ(ended, row.stop ? 0 : 1) << "when it is stopped nobody asks any more";
        voice.say("b", [&] { ++ended; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return log() == row.log && (row.stop || ended == 2); })) << log();
        EXPECT_EQ(searches, 1);
    }
}

TEST_F(AssistantTest, TakesNoFocusAndGoesOnByClickAndEscape) {
    QPushButton other("Other");
    int cancelled = 0;
    QShortcut escape(QKeySequence(Qt::Key_Escape), &other, [&] { ++cancelled; });
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    for (const char* text : {"Press <b>Add</b> & go on", "two", "three", " "}) assistant.Speak(text);
    pass(milliseconds(200));
    EXPECT_EQ(shown(), "Press <b>Add</b> & go on");
    EXPECT_EQ(balloon()->textFormat(), Qt::PlainText);
    EXPECT_EQ(QApplication::activeWindow(), &other);
    clickOn(*balloon()->window());
    const QPoint before = window.pos();
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    QTest::mouseMove(window.windowHandle(), QPoint(35, 50));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    EXPECT_EQ(window.pos(), before + QPoint(15, 20));
    EXPECT_EQ(shown(), "two") << "a drag keeps the text";
    clickOn(window);
    EXPECT_EQ(shown(), "three");
    for (int i = 0; i < 2; ++i) QTest::keyClick(other.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(shown(), "");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    EXPECT_TRUE(static_cast<QObject&>(window).eventFilter(&other, &held))
        << "a key that is held down goes no further than the text";
    EXPECT_EQ(cancelled, 0);
    QTest::keyClick(other.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(cancelled, 1) << "without a text Escape is the window's own again";
}

TEST_F(AssistantTest, GoesOnOverModalWindowsAndCoversNoQuestion) {
    QDialog modal;
    QMessageBox question;
    const auto show = [](QDialog& dialog) {
        dialog.setWindowModality(Qt::ApplicationModal);
        dialog.show();
        QCoreApplication::processEvents();
    };
    assistant.Speak("one");
    assistant.Speak("two");
    pass(milliseconds(200));
    show(modal);
    clickOn(window);
    EXPECT_EQ(shown(), "two");
    show(question);
    EXPECT_EQ(shown(), "");
    assistant.Show();
    pass(milliseconds(500));
    EXPECT_FALSE(window.isVisible()) << "a question is not covered";
    QTest::keyClick(question.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(question.isVisible()) << "it is answered first";
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), "two");
    clickOn(*balloon()->window());
    EXPECT_EQ(shown(), "");
    modal.hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AssistantTest, CharacterAndBalloonStayOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const std::tuple<const char*, QPoint, int, int> places[] = {
        {"greeting", {100, 100}, 10, 1},       {"upper left", {-500, -500}, 10, 60},
        {"lower right", {9000, 9000}, 10, 60}, {"upper right, large type", {screen.right() - 50, 0}, 24, 60},
        {"huge type", {100, 100}, 48, 40},     {"more than a screen", {100, 100}, 24, 900},
    };
    const QFont usual = QApplication::font();
    for (const auto& [what, asked, fontSize, words] : places) {
        SCOPED_TRACE(what);
        QFont font = usual;
        font.setPointSize(fontSize);
        QApplication::setFont(font);
        assistant.MoveTo(asked.x(), asked.y());
        assistant.Speak(QString("wording ").repeated(words).toStdString());
        pass(milliseconds(2000));
        const QRect around = balloon()->window()->geometry();
        EXPECT_TRUE(screen.contains(window.geometry()));
        EXPECT_TRUE(screen.contains(around));
        EXPECT_EQ(window.pos() == asked, screen.contains(QRect(asked, window.size())));
        const QRect needed = balloon()->fontMetrics().boundingRect(QRect(0, 0, balloon()->width(), 100000),
                                                                   Qt::TextWordWrap, balloon()->text());
        EXPECT_LE(needed.width(), balloon()->width());
        EXPECT_LE(needed.height(), balloon()->height());
        EXPECT_FALSE(around.adjusted(20, 20, -20, -20).contains(window.geometry().center()) && words < 900);
        clickOn(*balloon()->window());
    }
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace torvane
