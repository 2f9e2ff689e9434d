#include "assistant/animated_assistant.h"

#include <algorithm>

namespace torvane {

using std::chrono::milliseconds;

namespace {

// Counts signs, not bytes.
long signs(std::string_view text) {
    return std::ranges::count_if(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
}

milliseconds talkingTime(std::string_view text) {
    return milliseconds(400 + 45 * signs(text));
}

}  // namespace

AnimatedAssistant::AnimatedAssistant(const std::string& characterFile, std::unique_ptr<Voice> voice,
                                     std::unique_ptr<Ticker> ticker)
    : character_(Character::load(characterFile)),
      voice_(std::move(voice)),
      ticker_(std::move(ticker)),
      window_(character_.size()) {
    QObject::connect(&window_, &AssistantWindow::dismissed, &window_, [this] { dismissText(); });
    QObject::connect(&window_, &AssistantWindow::sentAway, &window_, [this] { sendAway(); });
}

milliseconds AnimatedAssistant::readingTime(std::string_view text) {
    return milliseconds(2000 + 65 * signs(text));
}
milliseconds AnimatedAssistant::longestVoice(std::string_view text) {
    return 2 * readingTime(text) + milliseconds(5000);
}

// --- Requests --------------------------------------------------------------------------------------------------------

void AnimatedAssistant::Show() {
    request([this] {
        if (!arrived_) arrive();
    });
}

void AnimatedAssistant::Hide() {
    request([this] {
        if (arrived_) start(Doing::Leaving, "Leaving");
    });
}

void AnimatedAssistant::MoveTo(int x, int y) {
    request([this, x, y] { window_.moveTo(x, y); });
}

void AnimatedAssistant::Play(std::string_view animation) {
    request([this, name = std::string(animation)] {
        if (arrived_ && character_.animation(name)) start(Doing::Playing, name);
    });
}

void AnimatedAssistant::Speak(std::string_view text) {
    request([this, words = std::string(text)] { speak(words); });
}

void AnimatedAssistant::request(std::function<void()> act) {
    waiting_.push_back(std::move(act));
    // Idling is interrupted; anything else goes on to its end and then looks for what waits.
    if (doing_ == Doing::Nothing) tickAfter(leadIn);
    if (doing_ == Doing::Idling) tickAfter(milliseconds(0));
}

void AnimatedAssistant::arrive() {
    arrived_ = true;
    window_.enter();
    start(Doing::Arriving, "Arriving");
}

void AnimatedAssistant::speak(const std::string& text) {
    if (!arrived_) {
        waiting_.emplace_front([this, text] { speak(text); });
        return arrive();
    }
    text_ = text;
    shownFor_ = milliseconds(0);
    window_.showText(text);
    voiceIsSpeaking_ = true;
    voice_->say(text, [this] { voiceIsSpeaking_ = false; });
    start(Doing::Speaking, "Speaking");
}

void AnimatedAssistant::dismissText() {
    if (doing_ != Doing::Speaking) return;
    takeTextAway();
    next();
}

void AnimatedAssistant::sendAway() {
    waiting_.clear();
    if (doing_ == Doing::Speaking) takeTextAway();
    if (arrived_ && doing_ != Doing::Leaving) start(Doing::Leaving, "Leaving");
}

// --- Carrying them out -----------------------------------------------------------------------------------------------

void AnimatedAssistant::start(Doing doing, std::string_view animation) {
    doing_ = doing;
    steps_ = character_.animation(animation);
    step_ = 0;
    tick();
}

void AnimatedAssistant::tickAfter(milliseconds time) {
    ticker_->after(time, [this] { tick(); });
}

void AnimatedAssistant::tick() {
    if (doing_ == Doing::Nothing || (doing_ == Doing::Idling && !waiting_.empty())) return next();
    if (doing_ == Doing::Speaking && !mouthMoves()) return restMouth();
    if (step_ == steps_->size()) {
        if (doing_ != Doing::Idling && doing_ != Doing::Speaking) return finish();
        step_ = 0;
    }
    const Character::Step& step = (*steps_)[step_++];
    window_.showDrawing(step.drawing);
    shownFor_ += step.time;
    tickAfter(step.time);
}

bool AnimatedAssistant::mouthMoves() const {
    return shownFor_ < (voiceIsSpeaking_ ? longestVoice(text_) : talkingTime(text_));
}

// The text stays until it has been read.
void AnimatedAssistant::restMouth() {
    const milliseconds left = readingTime(text_) - shownFor_;
    if (left <= milliseconds(0)) return finish();
    window_.showDrawing(character_.animation("Idle")->front().drawing);
    shownFor_ += left;
    tickAfter(left);
}

void AnimatedAssistant::takeTextAway() {
    window_.hideText();
    voiceIsSpeaking_ = false;
    voice_->hush();
}

void AnimatedAssistant::finish() {
    if (voiceIsSpeaking_) voice_->giveUp();
    if (doing_ == Doing::Speaking) takeTextAway();
    if (doing_ == Doing::Leaving) {
        arrived_ = false;
        window_.leave();
    }
    next();
}

void AnimatedAssistant::next() {
    doing_ = Doing::Nothing;
    while (doing_ == Doing::Nothing && !waiting_.empty()) {
        const auto act = std::move(waiting_.front());
        waiting_.pop_front();
        act();
    }
    if (doing_ == Doing::Nothing && arrived_) start(Doing::Idling, "Idle");
}

}  // namespace torvane
