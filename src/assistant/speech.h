#pragma once

#include <QThread>

#include "assistant/voice.h"

namespace torvane {

class Mouth;

// An engine of Qt's, by its name there. It is made and driven in a thread of its own: making one can take a quarter of
// a second, and asking a speech service that does not answer far longer.
class QtSpeechEngine : public SpeechEngine {
public:
    explicit QtSpeechEngine(const QString& name);
    // Waits for the thread, but not for an engine that hangs.
    ~QtSpeechEngine() override;
    void say(const QString& text) override;
    void stop() override;

private:
    QThread* thread_;
    Mouth* mouth_;
    int text_ = 0;  // the number of the last one
};

// The engines of this machine in the order in which they are to be tried: the desktop's own before the plain one that
// is built in. None for a program that shows nothing.
EngineVoice::Makers machineEngines();

}  // namespace torvane
