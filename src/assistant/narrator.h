#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "assistant/character.h"
#include "assistant/ticker.h"
#include "assistant/voice.h"
#include "screens/assistant.h"

namespace torvane {

// Where the narrator performs.
class Stage {
public:
    virtual ~Stage() = default;
    virtual void enter() = 0;
    virtual void leave() = 0;
    virtual void moveTo(int x, int y) = 0;
    virtual void showFrame(int frame) = 0;
    virtual void showText(const std::string& text) = 0;
    virtual void hideText() = 0;
};

// Carries out the requests to the assistant, one after the other, by the clock that it is given; no call does anything
// before it returns. A text while the character is away brings it back first, so that no text is lost. An animation
// that the character has not is passed over, and so is one that is asked for while it is away.
class Narrator : public Assistant {
public:
    // All of them outlive the narrator, which leaves nothing waiting in the clock and nothing being said.
    Narrator(const Character& character, Ticker& ticker, Stage& stage, Voice& voice);
    ~Narrator() override;
    Narrator(const Narrator&) = delete;
    Narrator& operator=(const Narrator&) = delete;

    void Show() override;
    void Hide() override;
    void MoveTo(int x, int y) override;
    void Play(std::string_view animation) override;
    void Speak(std::string_view text) override;

    // What the user can do. The text that is being shown goes, and the queue goes on. Nothing without a text.
    void dismissText();
    // The text and all that waits are dropped, and the character leaves.
    void sendAway();

    bool textShown() const { return doing_ == Doing::Speaking; }

    // The pause before a character that is away does anything: the window that calls it is to be painted first.
    static constexpr std::chrono::milliseconds leadIn{40};
    // How long a text stays at least, and for how long of that the mouth moves; both as long as the voice is at it, but
    // not longer than the voice may take, so that the queue goes on if no end is heard.
    static std::chrono::milliseconds readingTime(std::string_view text);
    static std::chrono::milliseconds talkingTime(std::string_view text);
    static std::chrono::milliseconds longestVoice(std::string_view text);

private:
    struct ShowRequest {};
    struct HideRequest {};
    struct MoveRequest {
        int x;
        int y;
    };
    struct PlayRequest {
        std::string animation;
    };
    struct SpeakRequest {
        std::string text;
    };
    using Request = std::variant<ShowRequest, HideRequest, MoveRequest, PlayRequest, SpeakRequest>;
    enum class Doing { Nothing, Idling, Arriving, Leaving, Playing, Speaking };

    void request(Request request);
    void carryOut(const ShowRequest&);
    void carryOut(const HideRequest&);
    void carryOut(const MoveRequest& request);
    void carryOut(const PlayRequest& request);
    void carryOut(const SpeakRequest& request);
    void arrive();
    void start(Doing doing, std::string_view animation);
    void tick();
    void tickSoon(std::chrono::milliseconds time);
    bool talks() const;
    void speakOn();
    void takeTextAway();
    void finish();
    void next();

    const Character& character_;
    Ticker& ticker_;
    Stage& stage_;
    Voice& voice_;
    std::deque<Request> waiting_;
    Doing doing_ = Doing::Nothing;
    const std::vector<Character::Step>* steps_ = nullptr;
    std::size_t step_ = 0;
    std::chrono::milliseconds spoken_{};
    std::chrono::milliseconds talking_{};
    std::chrono::milliseconds reading_{};
    std::chrono::milliseconds longest_{};
    bool saying_ = false;
    bool present_ = false;
};

}  // namespace torvane
