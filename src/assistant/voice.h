#pragma once

#include <functional>
#include <string>

namespace torvane {

// Says texts aloud, one at a time. No call waits or fails.
class Voice {
public:
    virtual ~Voice() = default;
    // Says the text. `ended` is called once when it has been said or can't be, perhaps before this call returns; never
    // after hush() or giveUp().
    virtual void say(const std::string& text, std::function<void()> ended) = 0;
    // Stops what is being said.
    virtual void hush() = 0;
    // Stops it for having never come to an end: what has said it is not asked again.
    virtual void giveUp() = 0;
};

}  // namespace torvane
