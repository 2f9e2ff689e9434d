#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

#include "benches.h"
#include "sample.h"
#include "screens/guarded_application.h"

// Prints one line per measurement. Status 1 only when something could not be measured: on a busy machine a ratio may
// miss its limit by chance.
int main(int argc, char** argv) {
    using namespace torvane;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const GuardedApplication application(argc, argv);

    std::string folder = (std::filesystem::temp_directory_path() / "torvane-bench-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) {
        std::puts("no temporary folder");
        return 1;
    }
    int status = 0;
    try {
        bench::Sample sample(folder);
        bench::lists(sample);
        bench::estimates(sample);
        bench::screens(sample);
        bench::masters(sample);
        bench::sheetAndReports(sample);
        bench::start(sample);
    } catch (const std::exception& failure) {
        std::printf("stopped: %s\n", failure.what());
        status = 1;
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return status;
}
