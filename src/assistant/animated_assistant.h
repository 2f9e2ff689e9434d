#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "assistant/assistant_window.h"
#include "assistant/character.h"
#include "assistant/engine_voice.h"
#include "assistant/ticker.h"
#include "screens/assistant.h"

namespace torvane {

// Carries out the requests to the assistant, one after the other, by its clock; no call does anything before it
// returns. Nothing is drawn before the character is shown for the first time. A text while it is away brings it back
// first, so that no text is lost. An animation that the character does not have is passed over, and so is one that is
// asked for while it is away. Everything stops when the assistant is destroyed.
class AnimatedAssistant : public Assistant {
public:
    // Loads the character; failures as of Character::load.
    explicit AnimatedAssistant(const std::string& characterFile,
                               std::unique_ptr<Voice> voice = std::make_unique<EngineVoice>(),
                               std::unique_ptr<Ticker> ticker = std::make_unique<QtTicker>());

    void Show() override;
    void Hide() override;
    void MoveTo(int x, int y) override;
    void Play(std::string_view animation) override;
    void Speak(std::string_view text) override;

    AssistantWindow& window() { return window_; }

    // The pause before a character that is away does anything: the window that calls it is to be painted first.
    static constexpr std::chrono::milliseconds leadIn{40};
    // How long a text stays at least. The mouth moves for a part of it, and both go on while the voice is speaking, but
    // not longer than the voice may take, so that the queue goes on if no end is heard.
    static std::chrono::milliseconds readingTime(std::string_view text);
    static std::chrono::milliseconds longestVoice(std::string_view text);

private:
    enum class Doing { Nothing, Idling, Arriving, Leaving, Playing, Speaking };

    void request(std::function<void()> act);
    void arrive();
    void speak(const std::string& text);
    void start(Doing doing, std::string_view animation);
    void tick();
    void tickAfter(std::chrono::milliseconds time);
    bool mouthMoves() const;
    void restMouth();
    void takeTextAway();
    void finish();
    void next();
    // What the user can do. The text that is being shown goes, and the queue goes on; nothing without a text.
    void dismissText();
    // The text and all that waits are dropped, and the character leaves.
    void sendAway();

    const Character character_;
    const std::unique_ptr<Voice> voice_;
    const std::unique_ptr<Ticker> ticker_;
    AssistantWindow window_;
    std::deque<std::function<void()>> waiting_;
    Doing doing_ = Doing::Nothing;
    const std::vector<Character::Step>* steps_ = nullptr;  // of the animation that is being played
    std::size_t step_ = 0;                                 // the next one
    std::string text_;                                     // the last one spoken
    std::chrono::milliseconds shownFor_{};                 // how long it has been shown
    bool voiceIsSpeaking_ = false;
    bool arrived_ = false;
};

}  // namespace torvane
