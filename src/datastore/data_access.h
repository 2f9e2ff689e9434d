#pragma once

#include <string>

#include "host/host.h"

namespace torvane {

class Store;

// What a data class is made with.
struct DataAccess {
    Host& host;
    Store& store;

    // The one database of the program, in its folder.
    std::string database() const { return host.programDirectory() + "/Larkfen.mdb"; }
};

}  // namespace torvane
