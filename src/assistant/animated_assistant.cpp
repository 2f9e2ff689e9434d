#include "assistant/animated_assistant.h"

namespace torvane {

AnimatedAssistant::AnimatedAssistant(const std::string& characterFile, std::unique_ptr<Voice> voice,
                                     std::unique_ptr<Ticker> ticker)
    : character_(Character::load(characterFile)),
      voice_(std::move(voice)),
      ticker_(std::move(ticker)),
      window_(character_),
      narrator_(character_, *ticker_, window_, *voice_) {
    QObject::connect(&window_, &AssistantWindow::dismissed, &window_, [this] { narrator_.dismissText(); });
    QObject::connect(&window_, &AssistantWindow::sentAway, &window_, [this] { narrator_.sendAway(); });
}

}  // namespace torvane
