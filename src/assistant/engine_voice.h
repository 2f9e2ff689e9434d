#pragma once

#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QStringList>

#include "assistant/voice.h"

namespace torvane {

// Speaks by the first engine that can; one that fails is dropped, and the next one says the text. Without any the voice
// is silent.
//
// An engine is a command, a program and its first words. It is started for each text with the text as its last word,
// speaks, and ends with status 0 when the text has been said. It is to stop when its standard input ends, and is killed
// when it does not. Engines take their time to get ready, wait for services that do not answer, and crash; in a
// process of their own none of it is felt here.
class EngineVoice : public QObject, public Voice {
    Q_OBJECT
public:
    using Commands = QList<QStringList>;
    // `find` is asked for the engines once, with the first text. An engine that is to stop has so many milliseconds.
    explicit EngineVoice(
        std::function<Commands()> find = [] { return Commands(); }, int patienceMs = 300);
    ~EngineVoice() override;

    void say(const std::string& text, std::function<void()> ended) override;
    void hush() override;
    void giveUp() override;

private:
    void start();
    void engineEnded(QProcess* engine, bool said);

    std::function<Commands()> find_;
    const int patienceMs_;
    Commands engines_;
    QPointer<QProcess> engine_;  // null when nothing is being said
    QString text_;
    std::function<void()> ended_;
};

// Each engine of this machine, spoken by the program given, in the order in which they are to be tried: the desktop's
// own before the plain one that comes with its voices. None for a program that shows nothing.
EngineVoice::Commands machineEngines(const std::string& speakProgram);

}  // namespace torvane
