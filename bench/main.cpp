#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

#include "benches.h"

int main() {
    std::string pattern = (std::filesystem::temp_directory_path() / "torvane-bench-XXXXXX").string();
    const char* made = mkdtemp(pattern.data());
    if (made == nullptr) {
        std::puts("no temporary folder");
        return 0;
    }
    const std::filesystem::path folder = made;
    try {
        torvane::bench::datastore(folder.string());
    } catch (const std::exception& failure) {
        std::printf("stopped: %s\n", failure.what());
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return 0;
}
