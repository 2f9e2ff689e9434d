#include "assistant/voice.h"

#include <utility>

namespace torvane {

EngineVoice::EngineVoice(std::function<Makers()> find) : find_(std::move(find)) {}

void EngineVoice::say(const std::string& text, std::function<void()> ended) {
    if (find_) waiting_ = std::exchange(find_, nullptr)();
    hush();
    text_ = QString::fromStdString(text);
    ended_ = std::move(ended);
    if (text_.trimmed().isEmpty()) return engineEnded(true);
    if (engine_)
        engine_->say(text_);
    else
        sayByNext();
}

void EngineVoice::sayByNext() {
    if (waiting_.empty()) return engineEnded(true);
    engine_ = waiting_.front()();
    waiting_.pop_front();
    connect(engine_.get(), &SpeechEngine::ended, this, &EngineVoice::engineEnded);
    engine_->say(text_);
}

void EngineVoice::engineEnded(bool said) {
    if (!ended_) return;
    if (said) return std::exchange(ended_, nullptr)();
    dropEngine();
    sayByNext();
}

void EngineVoice::hush() {
    if (engine_ && ended_) engine_->stop();
    ended_ = nullptr;
}

void EngineVoice::giveUp() {
    ended_ = nullptr;
    dropEngine();
}

// Later: it may be the engine itself that says so.
void EngineVoice::dropEngine() {
    if (!engine_) return;
    engine_->disconnect(this);
    engine_.release()->deleteLater();
}

}  // namespace torvane
