#include "screens/guarded_application.h"

#include <QEvent>
#include <QSettings>
#include <QTimer>
#include <QWidget>

#include "screens/program.h"
#include "widgets/roles.h"
#include "widgets/style.h"

namespace torvane {

namespace {

// What blocks all other windows comes back when it is minimised, which some desktops offer: else nothing would answer.
void bringBack(QObject* receiver, const QEvent& event) {
    auto* window = event.type() == QEvent::WindowStateChange ? qobject_cast<QWidget*>(receiver) : nullptr;
    if (!window || !window->isModal() || !window->isMinimized()) return;
    QTimer::singleShot(0, window, [window] {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->activateWindow();
    });
}

}  // namespace

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setQuitOnLastWindowClosed(false);
    // The toolkit's dialogs keep what they were last asked in a file of the user's, and read folders from it that may
    // not answer. Below what is no folder there is no such file.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    applyStyle(*this);
    installRoles();
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    const auto caught = [this](const RuntimeFailure& failure) {
        if (caught_) caught_(failure);
        return false;
    };
    bringBack(receiver, *event);
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeFailure& failure) {
        return caught(failure);
    } catch (const std::exception& failure) {
        return caught(RuntimeFailure{0, failure.what()});
    }
}

}  // namespace torvane
