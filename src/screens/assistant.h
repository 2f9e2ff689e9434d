#pragma once

#include <string_view>

namespace torvane {

// The animated assistant as every screen sees it. Each call is queued and returns at once; the assistant carries them
// out in order, and nobody waits for one.
class Assistant {
public:
    virtual ~Assistant() = default;
    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual void MoveTo(int x, int y) = 0;              // screen pixels
    virtual void Play(std::string_view animation) = 0;  // "Wave", "Greet", "Sad"
    virtual void Speak(std::string_view text) = 0;
};

}  // namespace torvane
