#pragma once

#include <QTimer>
#include <chrono>
#include <functional>
#include <utility>

namespace torvane {

// The clock of the assistant: one thing to do, after a time. Tests step one by hand.
class Ticker {
public:
    virtual ~Ticker() = default;
    // Does `then` once, from the event loop, never before this call has returned. Replaces what waits.
    virtual void after(std::chrono::milliseconds time, std::function<void()> then) = 0;
};

class QtTicker : public Ticker {
public:
    QtTicker() {
        timer_.setSingleShot(true);
        // What is done may ask for the next thing.
        timer_.callOnTimeout([this] { std::exchange(then_, nullptr)(); });
    }
    void after(std::chrono::milliseconds time, std::function<void()> then) override {
        then_ = std::move(then);
        timer_.start(time);
    }

private:
    QTimer timer_;
    std::function<void()> then_;
};

}  // namespace torvane
