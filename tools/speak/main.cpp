// Says one text aloud; a program of its own, so that an engine that hangs or crashes takes nothing with it.
//
//   Speak.exe <engine> <text>
//
// It ends with status 0 when the text has been said and 1 when the engine can't. When its standard input ends nobody
// wants to hear the rest, and it stops, whatever the engine is doing.

#include <QCoreApplication>
#include <QLocale>
#include <QSocketNotifier>
#include <QTextToSpeech>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

namespace {

class Speaker : public QObject {
public:
    Speaker(const QString& engine, QString text) : speech_(engine), text_(std::move(text)) {
        connect(&speech_, &QTextToSpeech::stateChanged, this, &Speaker::stateChanged);
        // One refusal may be told several times.
        refusal_.setSingleShot(true);
        connect(&speech_, &QTextToSpeech::errorOccurred, &refusal_, [this] { refusal_.start(50); });
        connect(&refusal_, &QTimer::timeout, this, &Speaker::sayAgain);
        // The texts are English whatever the desktop speaks.
        if (works() && speech_.locale().language() != QLocale::English) speech_.setLocale(QLocale(QLocale::English));
        connect(&standardInput_, &QSocketNotifier::activated, this, [this] {
            speech_.stop();
            leaveSoon();
        });
        if (works())
            say();
        else
            leave(1);
    }

private:
    // Engines are not torn down: not all of them survive it.
    [[noreturn]] static void leave(int status) { std::_Exit(status); }
    // What has been handed to the sound system is still to be heard.
    void leaveSoon() {
        standardInput_.setEnabled(false);
        QTimer::singleShot(200, this, [] { leave(0); });
    }

    bool works() const { return speech_.state() != QTextToSpeech::Error; }

    void say() { speech_.say(text_); }

    // Texts that come out at an unlucky length are refused by some sound systems: a little slower they are taken.
    void sayAgain() {
        if (++refused_ > 6) leave(1);
        speech_.setRate(speech_.rate() - 0.03);
        say();
    }

    void stateChanged(QTextToSpeech::State state) {
        const bool wasSpeaking = std::exchange(speaking_, state == QTextToSpeech::Speaking);
        if (state == QTextToSpeech::Ready && wasSpeaking) leaveSoon();
    }

    QTextToSpeech speech_;
    QTimer refusal_;
    QString text_;
    QSocketNotifier standardInput_{0, QSocketNotifier::Read};
    bool speaking_ = false;
    int refused_ = 0;
};

// An engine that waits for a service which does not answer lets no event through. The end of the standard input, which
// comes however the program that asked has ended, is heard all the same.
void endWithStandardInput() {
    while (std::getchar() != EOF) continue;
    std::this_thread::sleep_for(std::chrono::milliseconds(400));  // for those that can still stop in order
    std::_Exit(0);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3) return 2;
    std::thread(endWithStandardInput).detach();
    const Speaker speaker(words.at(1), words.at(2));
    return QCoreApplication::exec();
}
