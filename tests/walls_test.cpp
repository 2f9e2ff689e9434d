#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

using Folders = std::set<std::string>;

// What the build says of each room, by its folder: the folders that it links, also by way of others.
std::map<std::string, Folders> planOfTheHouse() {
    std::map<std::string, std::string> folders;
    std::map<std::string, Folders> plan;
    std::ifstream file(TORVANE_PLAN);
    for (std::string line; std::getline(file, line);) {  // from the ground up
        std::istringstream words(line);
        std::string alias, folder;
        words >> alias >> folder;
        folders[alias] = folder;
        for (std::string link; words >> link;) {
            plan[folder].insert(folders[link]);
            plan[folder].insert(plan[folders[link]].begin(), plan[folders[link]].end());
        }
    }
    return plan;
}

// What the compiler lets through, since all rooms have one source folder. Qt, and the forms of other rooms, are not on
// the path of a room that does not link them.
TEST(Walls, NoIncludeClimbs) {
    const std::filesystem::path source = TORVANE_SOURCE;
    const std::regex room("^#include \"(.+)/.*|.*<header>(.+)/.*</header>.*");
    const std::regex library("^#include <(sqlite3|unicode/).*");
    auto plan = planOfTheHouse();
    int seen = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source)) {
        const auto name = std::filesystem::relative(entry.path(), source);
        const std::string folder = name.parent_path().generic_string();
        if (!entry.is_regular_file() || folder.empty()) continue;  // main.cpp puts all together
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string line; std::getline(file, line); ++seen) {
            if (std::regex_match(line, match, room)) {
                const std::string other = match[1].str() + match[2].str();
                EXPECT_TRUE(other == folder || plan[folder].contains(other)) << name << ": " << line;
            } else if (std::regex_match(line, match, library)) {
                EXPECT_EQ(folder, match[1] == "sqlite3" ? "datastore" : "values") << name << ": " << line;
                EXPECT_EQ(name.extension(), ".cpp") << line;
            }
        }
    }
    EXPECT_GT(seen, 5000) << "the sources were not found";
}

}  // namespace
