#pragma once

#include <string>

namespace torvane::bench {

// Each prints its lines by way of compare(). `folder` is an empty temporary one.
void datastore(const std::string& folder);

}  // namespace torvane::bench
