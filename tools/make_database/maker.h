#pragma once

#include <filesystem>

namespace torvane {

enum class Contents {
    Delivered,  // states, units, takeoff names and the empty notes: what a new user starts with
    Sample,     // the same with the business under sample/: catalogue, customers, estimates, notes
};

// Makes the database file anew from the data folder; the same data give the same bytes. A fault in the data is a
// DataFault, anything else a std::runtime_error; what stood under the name before is untouched then.
void makeDatabase(const std::filesystem::path& dataFolder, const std::filesystem::path& file, Contents contents);

}  // namespace torvane
