#include "assistant/engine_voice.h"

#include <QGuiApplication>
#include <QTextToSpeech>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace torvane {

EngineVoice::EngineVoice(std::function<Commands()> find, int patienceMs)
    : find_(std::move(find)), patienceMs_(patienceMs) {}

EngineVoice::~EngineVoice() {
    if (!engine_) return;
    engine_->disconnect(this);
    engine_->closeWriteChannel();
    engine_->waitForFinished(patienceMs_);  // and if it does not, it is killed as it is destroyed
}

void EngineVoice::say(const std::string& text, std::function<void()> ended) {
    if (find_) engines_ = std::exchange(find_, nullptr)();
    hush();
    text_ = QString::fromStdString(text);
    ended_ = std::move(ended);
    start();
}

void EngineVoice::start() {
    if (engines_.isEmpty() || text_.trimmed().isEmpty()) return std::exchange(ended_, nullptr)();
    auto* engine = new QProcess(this);
    engine_ = engine;
    connect(engine, &QProcess::finished, this, [this, engine](int status, QProcess::ExitStatus how) {
        engineEnded(engine, how == QProcess::NormalExit && status == 0);
    });
    connect(engine, &QProcess::errorOccurred, this, [this, engine](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) engineEnded(engine, false);
    });
    engine->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList& command = engines_.constFirst();
    engine->start(command.constFirst(), command.mid(1) + QStringList(text_));
}

void EngineVoice::engineEnded(QProcess* engine, bool said) {
    engine->deleteLater();
    if (engine != engine_) return;
    engine_ = nullptr;
    if (said) return std::exchange(ended_, nullptr)();
    engines_.removeFirst();
    start();
}

void EngineVoice::hush() {
    if (!engine_) return;
    engine_->closeWriteChannel();
    QTimer::singleShot(patienceMs_, engine_.data(), &QProcess::kill);
    engine_ = nullptr;
    ended_ = nullptr;
}

void EngineVoice::giveUp() {
    if (engine_) engines_.removeFirst();
    hush();
}

EngineVoice::Commands machineEngines(const std::string& speakProgram) {
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) return {};
    QStringList names = QTextToSpeech::availableEngines();
    names.sort();
    std::stable_partition(names.begin(), names.end(),
                          [](const QString& name) { return name != QLatin1String("flite"); });
    EngineVoice::Commands commands;
    for (const QString& name : names) commands.append({QString::fromStdString(speakProgram), name});
    return commands;
}

}  // namespace torvane
