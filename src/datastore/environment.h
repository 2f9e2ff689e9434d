#pragma once

#include "host/host.h"

namespace torvane {

class Store;

// What a data class is made with.
struct Environment {
    Host& host;
    Store& store;
};

}  // namespace torvane
