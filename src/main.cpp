#include <QIcon>

#include "assistant/animated_assistant.h"
#include "assistant/speech.h"
#include "datastore/store.h"
#include "platform/application.h"
#include "platform/controls.h"
#include "platform/pictures.h"
#include "platform/qt_host.h"
#include "shell/application.h"
#include "shell/folder_lock.h"
#include "shell/pictures_init.h"

int main(int argc, char** argv) {
    using namespace torvane;
    TorvaneApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Torvane Construction Estimator"));
    initPictures();
    QApplication::setWindowIcon(picture(QStringLiteral("program")));

    const std::string folder = utf8(QCoreApplication::applicationDirPath());
    QtHost host(folder);
    Store store(host.shortDate());
    FileSystem files;
    const FolderLock lock(folder);
    Program program({host, store}, leaveProcess);
    application.setLastNet([&program](const RuntimeFailure& failure) { program.end(failure); });
    program.onLastWindowGone([] { QCoreApplication::exit(0); });

    const auto engines = [&folder] { return machineEngines(folder + "/Speak.exe"); };
    Application screens(program, files, lock.previousInstance(), [&engines](const std::string& characterFile) {
        return std::make_unique<AnimatedAssistant>(characterFile, std::make_unique<EngineVoice>(engines));
    });
    program.guarded([&screens] { screens.mainMenu.Show(); });
    return QApplication::exec();
}
