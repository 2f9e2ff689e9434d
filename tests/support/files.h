#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace torvane {

inline std::string bytes(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void write(const std::string& file, std::string_view content) {
    std::ofstream(file, std::ios::binary) << content;
}

// The names in a folder, sorted.
inline std::vector<std::string> filesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& one : std::filesystem::directory_iterator(folder)) names.push_back(one.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace torvane
