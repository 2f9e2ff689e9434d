#pragma once

#include <string>
#include <string_view>

#include "host/host.h"

namespace torvane {

class Store;

// The name of the one database of the program, in its folder.
inline constexpr std::string_view databaseName = "Larkfen.mdb";

// What a data class is made with.
struct DataAccess {
    Host& host;
    Store& store;

    std::string database() const { return host.programDirectory() + "/" + std::string(databaseName); }
};

}  // namespace torvane
