#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <memory>
#include <string>

namespace torvane {

// Says texts aloud, one at a time. Nothing of it waits or fails.
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

// One thing that can speak, or turns out not to. Nothing of it waits.
class SpeechEngine : public QObject {
    Q_OBJECT
public:
    virtual void say(const QString& text) = 0;
    virtual void stop() = 0;

signals:
    // The text of the last say() has been said, or else can't be; at most once for each, and not after stop().
    void ended(bool said);
};

// Speaks by the first engine that can. One that fails is dropped, and the next one says the text; without any the voice
// is silent. An engine is made when it is first needed.
class EngineVoice : public QObject, public Voice {
    Q_OBJECT
public:
    using Maker = std::function<std::unique_ptr<SpeechEngine>()>;
    using Makers = std::deque<Maker>;
    // `find` is asked for the engines once, with the first text.
    explicit EngineVoice(std::function<Makers()> find = [] { return Makers(); });

    void say(const std::string& text, std::function<void()> ended) override;
    void hush() override;
    void giveUp() override;

private:
    void sayByNext();
    void engineEnded(bool said);
    void dropEngine();

    std::function<Makers()> find_;
    Makers waiting_;
    std::unique_ptr<SpeechEngine> engine_;
    QString text_;
    std::function<void()> ended_;
};

}  // namespace torvane
