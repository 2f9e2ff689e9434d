#include "assistant/speech.h"

#include <QGuiApplication>
#include <QLocale>
#include <QTextToSpeech>
#include <algorithm>

namespace torvane {

// Lives in the engine's thread.
class Mouth : public QObject {
    Q_OBJECT
public:
    explicit Mouth(QString engine) : engine_(std::move(engine)) {}

    void say(int number, const QString& text) {
        if (!speech_) open();
        number_ = number;
        begun_ = false;
        if (speech_->state() == QTextToSpeech::Error) return end(false);
        speech_->say(text);
    }
    void stop() {
        number_ = 0;
        if (speech_) speech_->stop();
    }

signals:
    void ended(int number, bool said);

private:
    void open() {
        speech_ = new QTextToSpeech(engine_, this);
        connect(speech_, &QTextToSpeech::stateChanged, this, &Mouth::stateChanged);
        connect(speech_, &QTextToSpeech::errorOccurred, this, [this] { end(false); });
        // The texts are English whatever the desktop speaks.
        const bool works = speech_->state() != QTextToSpeech::Error;
        if (works && speech_->locale().language() != QLocale::English) speech_->setLocale(QLocale(QLocale::English));
    }
    void stateChanged(QTextToSpeech::State state) {
        if (state == QTextToSpeech::Error) end(false);
        if (state == QTextToSpeech::Ready && begun_) end(true);
        begun_ = state == QTextToSpeech::Speaking;
    }
    void end(bool said) {
        if (number_ != 0) emit ended(std::exchange(number_, 0), said);
    }

    QString engine_;
    QTextToSpeech* speech_ = nullptr;
    int number_ = 0;  // of the text that is being said; 0 without one
    bool begun_ = false;
};

QtSpeechEngine::QtSpeechEngine(const QString& name) : thread_(new QThread), mouth_(new Mouth(name)) {
    mouth_->moveToThread(thread_);
    connect(thread_, &QThread::finished, mouth_, &QObject::deleteLater);
    connect(mouth_, &Mouth::ended, this, [this](int number, bool said) {
        if (number == text_) emit ended(said);
    });
    thread_->start();
}

QtSpeechEngine::~QtSpeechEngine() {
    constexpr int patienceMs = 300;
    mouth_->disconnect(this);
    thread_->quit();
    if (thread_->wait(patienceMs)) delete thread_;
}

void QtSpeechEngine::say(const QString& text) {
    QMetaObject::invokeMethod(mouth_, [mouth = mouth_, number = ++text_, text] { mouth->say(number, text); });
}

void QtSpeechEngine::stop() {
    ++text_;
    QMetaObject::invokeMethod(mouth_, [mouth = mouth_] { mouth->stop(); });
}

EngineVoice::Makers machineEngines() {
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) return {};
    QStringList names = QTextToSpeech::availableEngines();
    names.removeAll(QStringLiteral("mock"));
    std::sort(names.begin(), names.end(), [](const QString& one, const QString& other) {
        const auto plain = [](const QString& name) { return name == QLatin1String("flite"); };
        return std::pair(plain(one), one) < std::pair(plain(other), other);
    });
    EngineVoice::Makers makers;
    for (const QString& name : names) makers.emplace_back([name] { return std::make_unique<QtSpeechEngine>(name); });
    return makers;
}

}  // namespace torvane

#include "speech.moc"
