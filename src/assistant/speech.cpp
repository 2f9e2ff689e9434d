#include "assistant/speech.h"

#include <QGuiApplication>
#include <QTextToSpeech>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace torvane {

namespace {

constexpr int patienceMs = 300;  // with a program that has been told to stop

}  // namespace

SpeechProgram::~SpeechProgram() {
    if (!process_) return;
    process_->disconnect(this);
    process_->closeWriteChannel();
    process_->waitForFinished(patienceMs);
    process_->kill();
}

void SpeechProgram::say(const QString& text) {
    stop();
    auto* process = new QProcess(this);
    process_ = process;
    connect(process, &QProcess::finished, this, [this, process](int status, QProcess::ExitStatus how) {
        process->deleteLater();
        if (process == process_) emit ended(how == QProcess::NormalExit && status == 0);
    });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && process == process_) emit ended(false);
    });
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(program_, words_ + QStringList(text));
}

void SpeechProgram::stop() {
    if (!process_) return;
    process_->closeWriteChannel();
    QTimer::singleShot(patienceMs, process_.data(), &QProcess::kill);
    process_ = nullptr;
}

EngineVoice::Makers machineEngines(const std::string& speakProgram) {
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) return {};
    QStringList names = QTextToSpeech::availableEngines();
    std::sort(names.begin(), names.end());
    std::stable_partition(names.begin(), names.end(),
                          [](const QString& name) { return name != QLatin1String("flite"); });
    EngineVoice::Makers makers;
    for (const QString& name : names)
        makers.emplace_back([program = QString::fromStdString(speakProgram), name] {
            return std::make_unique<SpeechProgram>(program, QStringList(name));
        });
    return makers;
}

}  // namespace torvane
