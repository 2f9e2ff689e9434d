#pragma once

#include <QPointer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include "assistant/voice.h"

namespace torvane {

// An engine that is a program: started for each text with the text as its last word, it speaks, and ends with status 0
// when the text has been said. It is to stop when its standard input ends. Engines take their time to get ready, wait
// for services that do not answer, and crash; there, none of it is felt here.
class SpeechProgram : public SpeechEngine {
public:
    SpeechProgram(QString program, QStringList words) : program_(std::move(program)), words_(std::move(words)) {}
    ~SpeechProgram() override;
    void say(const QString& text) override;
    void stop() override;

private:
    QString program_;
    QStringList words_;
    QPointer<QProcess> process_;
};

// Each engine of this machine, spoken by the program given, in the order in which they are to be tried: the desktop's
// own before the plain one that comes with its voices. None for a program that shows nothing.
EngineVoice::Makers machineEngines(const std::string& speakProgram);

}  // namespace torvane
