#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

using Rooms = std::set<std::string>;

// Which rooms a room may include from, itself aside. Each is also what it may link.
const std::map<std::string, Rooms> allowed = {
    {"values", {}},
    {"host", {"values"}},
    {"files", {}},
    {"datastore", {"values", "host", "files"}},
    {"masters", {"values", "host", "datastore"}},
    {"estimates", {"values", "host", "datastore", "masters"}},
    {"reports", {"values", "host", "datastore"}},
    {"calculators", {"values"}},
    {"conversions", {"values"}},
    {"widgets", {"values"}},
    {"screens", {"values", "host", "datastore", "widgets"}},
    {"assistant", {"values", "host", "widgets", "screens"}},
    {"help", {"values", "host", "widgets", "screens"}},
    {"calculators/screens", {"values", "host", "datastore", "calculators", "widgets", "screens"}},
    {"conversions/screens", {"conversions", "widgets"}},
    {"masters/screens", {"values", "host", "datastore", "masters", "widgets", "screens"}},
    {"reports/screens", {"values", "host", "datastore", "reports", "widgets", "screens", "files"}},
    {"estimates/screens",
     {"values", "host", "datastore", "masters", "estimates", "widgets", "screens", "masters/screens",
      "reports/screens"}},
    {"shell",
     {"values", "host", "datastore", "masters", "estimates", "reports", "widgets", "screens", "assistant", "help",
      "calculators", "files", "calculators/screens", "masters/screens", "estimates/screens", "reports/screens"}},
};
const Rooms belowTheQtLine = {"values",  "host",        "datastore",   "masters", "estimates",
                              "reports", "calculators", "conversions", "files"};

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

TEST(Walls, NoIncludeClimbs) {
    const std::filesystem::path source = TORVANE_SOURCE;
    const std::regex own("^#include \"([^\"]+)\".*");
    const std::regex system("^#include <(Q[^>]*|sqlite3[^>]*|unicode/[^>]*)>.*");
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".cpp" && extension != ".h") continue;
        const std::string name = std::filesystem::relative(entry.path(), source).generic_string();
        if (name.find('/') == std::string::npos) continue;  // main.cpp, which puts all together
        ++files;
        const std::string room = folderOf(name);
        ASSERT_TRUE(allowed.contains(room)) << "a room that the table does not know: " << room;
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string line; std::getline(file, line);) {
            if (std::regex_match(line, match, own) && match[1].str().find('/') != std::string::npos) {
                const std::string other = folderOf(match[1]);
                EXPECT_TRUE(other == room || allowed.at(room).contains(other)) << name << " includes " << match[1];
            } else if (std::regex_match(line, match, system)) {
                const std::string header = match[1];
                if (header.starts_with("Q"))
                    EXPECT_FALSE(belowTheQtLine.contains(room)) << name << " includes " << header;
                else
                    EXPECT_TRUE(room == (header.starts_with("unicode") ? "values" : "datastore") && extension == ".cpp")
                        << name << " includes " << header;
            }
        }
    }
    EXPECT_GT(files, 50) << "the sources were not found";
}

}  // namespace
