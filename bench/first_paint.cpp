#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>

// Linked to a program, this ends it with status 0 as soon as its main window stands painted on the screen, and writes
// its resident memory in KiB to the standard output.

namespace {

long residentKibibytes() {
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long resident = 0;
    statm >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            watched->objectName() == QStringLiteral("frmMainMenu")) {
            // Comes when the children are painted, too, and all of it has been handed to the window system.
            QTimer::singleShot(0, [] {
                std::printf("%ld\n", residentKibibytes());
                std::fflush(stdout);
                std::_Exit(0);
            });
        }
        return false;
    }
};

void watchApplication() {
    qApp->installEventFilter(new FirstPaint(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watchApplication)
