#include <gtest/gtest.h>

#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <iostream>

#include "screens/guarded_application.h"

namespace {

// The screenless platform complains at each window that it cannot raise.
void print(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith("This plugin does not support")) std::cerr << message.toStdString() << std::endl;
}

}  // namespace

// One application object for all tests of the program; without a screen unless one is asked for, in a home of its own,
// where no test may leave a dialog's settings.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // A thread that ends may hold a lock of this library's at a fork (endOf), and the child would wait for it for ever.
    qputenv("QT_NO_GLIB", "1");
    qInstallMessageHandler(print);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) qunsetenv(folder);
    torvane::GuardedApplication application(argc, argv);
    const int failed = RUN_ALL_TESTS();
    if (!QFile::exists(home.filePath(QStringLiteral(".config")))) return failed;
    std::cerr << "a file of settings was left" << std::endl;
    return 1;
}
