#pragma once

#include <functional>
#include <utility>

namespace torvane {

// Tells that the last window has gone. A handler may close it and open another one, so that counts only when no handler
// runs any more.
class LastWindow {
public:
    // What to do then.
    void onGone(std::function<void()> act) { onGone_ = std::move(act); }

    void shown() { ++windows_; }
    void unloaded() {
        --windows_;
        oneWent_ = true;
    }
    // Called when no handler runs.
    void tell() {
        if (std::exchange(oneWent_, false) && windows_ == 0 && onGone_) onGone_();
    }

private:
    std::function<void()> onGone_;
    int windows_ = 0;
    bool oneWent_ = false;
};

}  // namespace torvane
