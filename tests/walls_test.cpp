#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

// What the build says of a room: the folders that it links, also by way of others, and its libraries.
struct Room {
    std::string folder;
    std::set<std::string> links;
};

std::map<std::string, Room> planOfTheHouse() {
    std::map<std::string, Room> byAlias;
    std::map<std::string, Room> byFolder;
    std::ifstream plan(TORVANE_PLAN);
    for (std::string line; std::getline(plan, line);) {  // from the ground up
        std::istringstream words(line);
        std::string alias;
        Room room;
        words >> alias >> room.folder;
        for (std::string link; words >> link;) {
            const auto below = byAlias.find(link);
            room.links.insert(below == byAlias.end() ? link : below->second.folder);
            if (below == byAlias.end()) continue;
            // A room keeps its libraries to itself, but for the one of windows.
            for (const std::string& more : below->second.links)
                if (more.find("::") == std::string::npos || more == "Qt6::Widgets") room.links.insert(more);
        }
        byAlias[alias] = byFolder[room.folder] = room;
    }
    return byFolder;
}

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

TEST(Walls, NoIncludeClimbs) {
    const std::filesystem::path source = TORVANE_SOURCE;
    const std::regex own("^#include \"([^\"]+/[^\"]+)\".*");
    const std::regex system("^#include <(Q|sqlite3|unicode/)[^>]*>.*");
    const std::map<std::string, std::string> libraries = {
        {"Q", "Qt6::Widgets"}, {"sqlite3", "SQLite::SQLite3"}, {"unicode/", "ICU::uc"}};
    const auto plan = planOfTheHouse();
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source)) {
        const std::string extension = entry.path().extension().string();
        const std::string name = std::filesystem::relative(entry.path(), source).generic_string();
        // main.cpp puts all together.
        if ((extension != ".cpp" && extension != ".h" && extension != ".ui") || name.find('/') == std::string::npos)
            continue;
        ++files;
        const std::string folder = folderOf(name);
        ASSERT_TRUE(plan.contains(folder)) << "a room that the build does not know: " << folder;
        const auto& links = plan.at(folder).links;
        const std::regex header = extension == ".ui" ? std::regex(".*<header>([^<]+)</header>.*") : own;
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string line; std::getline(file, line);) {
            if (std::regex_match(line, match, header)) {
                const std::string other = folderOf(match[1]);
                EXPECT_TRUE(other == folder || links.contains(other)) << name << " includes " << match[1];
            } else if (std::regex_match(line, match, system)) {
                EXPECT_TRUE(links.contains(libraries.at(match[1]))) << name << ": " << line;
                EXPECT_TRUE(match[1] == "Q" || extension == ".cpp") << name << ": " << line;
            }
        }
    }
    EXPECT_GT(files, 50) << "the sources were not found";
}

}  // namespace
