#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

using Links = std::set<std::string>;

// What the build says of each room, by its folder: the folders that it links, also by way of others, and its libraries.
std::map<std::string, Links> planOfTheHouse() {
    std::map<std::string, std::string> folders;
    std::map<std::string, Links> plan;
    std::ifstream file(TORVANE_PLAN);
    for (std::string line; std::getline(file, line);) {  // from the ground up
        std::istringstream words(line);
        std::string alias, folder;
        words >> alias >> folder;
        folders[alias] = folder;
        for (std::string link; words >> link;) {
            const std::string below = folders.contains(link) ? folders[link] : link;
            plan[folder].insert(below);
            // A room keeps its libraries to itself, but for the one of windows.
            for (const std::string& more : plan[below])
                if (more.find("::") == std::string::npos || more == "Qt6::Widgets") plan[folder].insert(more);
        }
    }
    return plan;
}

TEST(Walls, NoIncludeClimbs) {
    const std::filesystem::path source = TORVANE_SOURCE;
    const std::regex room("^#include \"(.+)/.*|.*<header>(.+)/.*</header>.*");
    const std::regex system("^#include <(Q|sqlite3|unicode/).*");
    std::map<std::string, std::string> libraries{
        {"Q", "Qt6::Widgets"}, {"sqlite3", "SQLite::SQLite3"}, {"unicode/", "ICU::uc"}};
    auto plan = planOfTheHouse();
    const std::regex form("^#include \"ui_(.+)\\.h\"");
    std::map<std::string, std::string> rooms;  // of the forms
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source))
        if (entry.path().extension() == ".ui")
            rooms[entry.path().stem()] = std::filesystem::relative(entry.path().parent_path(), source);
    int seen = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source)) {
        const auto name = std::filesystem::relative(entry.path(), source);
        const std::string folder = name.parent_path().generic_string();
        if (!entry.is_regular_file() || folder.empty()) continue;  // main.cpp puts all together
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string line; std::getline(file, line); ++seen) {
            const bool ofForm = std::regex_match(line, match, form);
            if (ofForm || std::regex_match(line, match, room)) {
                const std::string other = ofForm ? rooms[match[1]] : match[1].str() + match[2].str();
                EXPECT_TRUE(other == folder || plan[folder].contains(other)) << name << ": " << line;
            } else if (std::regex_match(line, match, system)) {
                EXPECT_TRUE(plan[folder].contains(libraries[match[1]])) << name << ": " << line;
                EXPECT_TRUE(match[1] == "Q" || name.extension() == ".cpp") << name << ": " << line;
            }
        }
    }
    EXPECT_GT(seen, 5000) << "the sources were not found";
}

}  // namespace
