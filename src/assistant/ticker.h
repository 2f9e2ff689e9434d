#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

namespace torvane {

// The clock of the assistant: one thing to do, after a time. Tests step one by hand.
class Ticker {
public:
    virtual ~Ticker() = default;
    // Does `then` once, from the event loop, never before this call has returned. Replaces what waits.
    virtual void after(std::chrono::milliseconds time, std::function<void()> then) = 0;
    // Forgets what waits.
    virtual void stop() = 0;
};

class QtTicker : public Ticker {
public:
    QtTicker() {
        timer_.setSingleShot(true);
        timer_.callOnTimeout([this] {
            // What is done may ask for the next thing.
            const auto then = std::move(then_);
            then_ = nullptr;
            then();
        });
    }
    void after(std::chrono::milliseconds time, std::function<void()> then) override {
        then_ = std::move(then);
        timer_.start(time);
    }
    void stop() override { timer_.stop(); }

private:
    QTimer timer_;
    std::function<void()> then_;
};

}  // namespace torvane
