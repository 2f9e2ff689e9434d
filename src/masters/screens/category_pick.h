#pragma once

#include <cstdint>
#include <string>

namespace torvane {

// Who takes the category that is picked in the category list: the entry form of an item.
class CategoryPick {
public:
    virtual ~CategoryPick() = default;
    // Key and name of the picked row.
    virtual void takeCategory(std::int16_t CategoryId, const std::string& name) = 0;
};

}  // namespace torvane
