#include "screens/guarded_application.h"

#include <QSettings>

#include "screens/program.h"
#include "widgets/style.h"

namespace torvane {

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setQuitOnLastWindowClosed(false);
    // The toolkit's dialogs keep what they were last asked in a file of the user's, and read folders from it that may
    // not answer. Below what is no folder there is no such file.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    applyStyle(*this);
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    const auto caught = [this](const RuntimeFailure& failure) {
        if (caught_) caught_(failure);
        return false;
    };
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeFailure& failure) {
        return caught(failure);
    } catch (const std::exception& failure) {
        return caught(RuntimeFailure{0, failure.what()});
    }
}

}  // namespace torvane
