#include <QtGlobal>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "benches.h"
#include "harness.h"
#include "sample.h"
#include "screens/guarded_application.h"

// Prints one line per measurement, of all groups or of those that are named, at the largest sizes or, with "tenth" as
// the first argument, at a tenth of them, which shows how each grows. Status 1 when a figure is over its mark or could
// not be measured; on a busy machine one may be over by chance.
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
        std::vector<std::string> named(argv + 1, argv + argc);
        if (!named.empty() && named.front() == "tenth") {
            std::puts("At a tenth of the sizes that the names tell:");
            bench::Sample::takeATenth();
            named.erase(named.begin());
        }
        const std::vector<std::pair<std::string, void (*)(bench::Sample&)>> groups = {
            {"lists", bench::lists},     {"estimates", bench::estimates},     {"screens", bench::screens},
            {"masters", bench::masters}, {"reports", bench::sheetAndReports}, {"start", bench::start}};
        for (const std::string& name : named)
            if (std::ranges::find(groups, name, &decltype(groups)::value_type::first) == groups.end())
                throw std::runtime_error("no group is called " + name);
        bench::Sample sample(folder);
        for (const auto& [name, measure] : groups)
            if (named.empty() || std::ranges::find(named, name) != named.end()) measure(sample);
        if (!bench::allKept()) status = 1;
    } catch (const std::exception& failure) {
        std::printf("stopped: %s\n", failure.what());
        status = 1;
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return status;
}
