#include <gtest/gtest.h>

#include <QString>
#include <iostream>

#include "platform/application.h"

namespace {

// The screenless platform complains at each window that it cannot raise.
void print(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith("This plugin does not support")) std::cerr << message.toStdString() << std::endl;
}

}  // namespace

// One application object for all tests of the program; without a screen unless one is asked for.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(print);
    torvane::TorvaneApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
