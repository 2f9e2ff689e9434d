#include "assistant/narrator.h"

#include <algorithm>

namespace torvane {

using std::chrono::milliseconds;

namespace {

// Counts signs, not bytes.
long signs(std::string_view text) {
    return std::count_if(text.begin(), text.end(),
                         [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
}

}  // namespace

Narrator::Narrator(const Character& character, Ticker& ticker, Stage& stage, Voice& voice)
    : character_(character), ticker_(ticker), stage_(stage), voice_(voice) {}

Narrator::~Narrator() {
    ticker_.stop();
    voice_.hush();
}

void Narrator::Show() {
    request(ShowRequest{});
}
void Narrator::Hide() {
    request(HideRequest{});
}
void Narrator::MoveTo(int x, int y) {
    request(MoveRequest{x, y});
}
void Narrator::Play(std::string_view animation) {
    request(PlayRequest{std::string(animation)});
}
void Narrator::Speak(std::string_view text) {
    request(SpeakRequest{std::string(text)});
}

milliseconds Narrator::readingTime(std::string_view text) {
    return milliseconds(2000 + 65 * signs(text));
}
milliseconds Narrator::talkingTime(std::string_view text) {
    return milliseconds(400 + 45 * signs(text));
}
milliseconds Narrator::longestVoice(std::string_view text) {
    return 2 * readingTime(text) + milliseconds(5000);
}

void Narrator::dismissText() {
    if (doing_ != Doing::Speaking) return;
    takeTextAway();
    next();
}

void Narrator::sendAway() {
    waiting_.clear();
    if (doing_ == Doing::Speaking) takeTextAway();
    if (present_ && doing_ != Doing::Leaving) start(Doing::Leaving, "Leaving");
}

void Narrator::request(Request request) {
    waiting_.push_back(std::move(request));
    // Idling is interrupted; anything else goes on to its end and then looks for what waits.
    if (doing_ == Doing::Nothing) tickSoon(leadIn);
    if (doing_ == Doing::Idling) tickSoon(milliseconds(0));
}

void Narrator::carryOut(const ShowRequest&) {
    if (!present_) arrive();
}

void Narrator::carryOut(const HideRequest&) {
    if (present_) start(Doing::Leaving, "Leaving");
}

void Narrator::carryOut(const MoveRequest& request) {
    stage_.moveTo(request.x, request.y);
}

void Narrator::carryOut(const PlayRequest& request) {
    if (present_ && character_.animation(request.animation)) start(Doing::Playing, request.animation);
}

void Narrator::carryOut(const SpeakRequest& request) {
    if (!present_) {
        waiting_.emplace_front(request);
        arrive();
        return;
    }
    spoken_ = milliseconds(0);
    talking_ = talkingTime(request.text);
    reading_ = readingTime(request.text);
    longest_ = longestVoice(request.text);
    stage_.showText(request.text);
    saying_ = true;
    voice_.say(request.text, [this] { saying_ = false; });
    start(Doing::Speaking, "Speaking");
}

void Narrator::arrive() {
    present_ = true;
    stage_.enter();
    start(Doing::Arriving, "Arriving");
}

void Narrator::start(Doing doing, std::string_view animation) {
    doing_ = doing;
    steps_ = character_.animation(animation);
    step_ = 0;
    tick();
}

void Narrator::tickSoon(milliseconds time) {
    ticker_.after(time, [this] { tick(); });
}

void Narrator::tick() {
    if (doing_ == Doing::Nothing || (doing_ == Doing::Idling && !waiting_.empty())) return next();
    if (doing_ == Doing::Speaking && !talks()) return speakOn();
    if (step_ == steps_->size()) {
        if (doing_ != Doing::Idling && doing_ != Doing::Speaking) return finish();
        step_ = 0;
    }
    const Character::Step& step = (*steps_)[step_++];
    stage_.showFrame(step.frame);
    spoken_ += step.time;
    tickSoon(step.time);
}

bool Narrator::talks() const {
    return spoken_ < (saying_ ? longest_ : talking_);
}

// The mouth has come to rest; the text stays until it has been read.
void Narrator::speakOn() {
    if (spoken_ >= reading_) return finish();
    stage_.showFrame(character_.animation("Idle")->front().frame);
    const milliseconds left = reading_ - spoken_;
    spoken_ = reading_;
    tickSoon(left);
}

void Narrator::takeTextAway() {
    stage_.hideText();
    saying_ = false;
    voice_.hush();
}

void Narrator::finish() {
    if (saying_) voice_.giveUp();
    if (doing_ == Doing::Speaking) takeTextAway();
    if (doing_ == Doing::Leaving) {
        present_ = false;
        stage_.leave();
    }
    next();
}

void Narrator::next() {
    doing_ = Doing::Nothing;
    while (doing_ == Doing::Nothing && !waiting_.empty()) {
        const Request request = std::move(waiting_.front());
        waiting_.pop_front();
        std::visit([this](const auto& one) { carryOut(one); }, request);
    }
    if (doing_ != Doing::Nothing) return;
    if (present_)
        start(Doing::Idling, "Idle");
    else
        ticker_.stop();
}

}  // namespace torvane
