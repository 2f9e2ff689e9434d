#pragma once

#include <memory>
#include <string>

#include "assistant/assistant_window.h"
#include "assistant/character.h"
#include "assistant/narrator.h"
#include "assistant/ticker.h"
#include "assistant/voice.h"
#include "screens/assistant.h"

namespace torvane {

// The assistant as the program has it: a character, its window, its voice, and the queue of what it is to do. Nothing
// is drawn before it is shown for the first time; everything stops when it is destroyed.
class AnimatedAssistant : public Assistant {
public:
    // Loads the character; failures as of Character::load.
    explicit AnimatedAssistant(const std::string& characterFile,
                               std::unique_ptr<Voice> voice = std::make_unique<EngineVoice>(),
                               std::unique_ptr<Ticker> ticker = std::make_unique<QtTicker>());

    void Show() override { narrator_.Show(); }
    void Hide() override { narrator_.Hide(); }
    void MoveTo(int x, int y) override { narrator_.MoveTo(x, y); }
    void Play(std::string_view animation) override { narrator_.Play(animation); }
    void Speak(std::string_view text) override { narrator_.Speak(text); }

    AssistantWindow& window() { return window_; }

private:
    Character character_;
    std::unique_ptr<Voice> voice_;
    std::unique_ptr<Ticker> ticker_;
    AssistantWindow window_;
    Narrator narrator_;
};

}  // namespace torvane
