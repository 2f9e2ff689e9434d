#include <QStandardPaths>

#include "assistant/animated_assistant.h"
#include "assistant/engine_voice.h"
#include "datastore/store.h"
#include "screens/guarded_application.h"
#include "screens/qt_host.h"
#include "shell/folder_lock.h"
#include "shell/program_folder.h"
#include "shell/screens.h"
#include "widgets/pictures.h"
#include "widgets/texts.h"

int main(int argc, char** argv) {
    using namespace torvane;
    GuardedApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Torvane Construction Estimator"));
    QApplication::setWindowIcon(picture(QStringLiteral("program")));

    FileSystem files;
    const QString userData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const std::string folder =
        programFolder(files, utf8(QCoreApplication::applicationDirPath()), utf8(userData) + "/torvane");
    QtHost host(folder);
    Store store(host.shortDate());
    const FolderLock lock(folder);
    Program program({host, store}, leaveProcess);
    application.setLastNet([&program](const RuntimeFailure& failure) { program.guard().end(failure); });
    program.lastWindow().onGone([] { QCoreApplication::exit(0); });

    const auto engines = [&folder] { return machineEngines(folder + "/Speak.exe"); };
    Screens screens(program, files, lock.previousInstance(), [&engines](const std::string& characterFile) {
        return std::make_unique<AnimatedAssistant>(characterFile, std::make_unique<EngineVoice>(engines));
    });
    program.guarded([&screens] { screens.mainMenu.Show(); });
    return QApplication::exec();
}
