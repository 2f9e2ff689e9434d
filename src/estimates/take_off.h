#pragma once

#include <string>
#include <string_view>

namespace torvane {

// Common take-off quantities of a room from its three dimensions in feet, as the texts that the area panel shows. The
// inputs are read leniently; nothing is rounded. A result beyond a double is Failure::Overflow.
struct RoomAreas {
    std::string perimeter;     // feet
    std::string walls;         // square feet
    std::string ceiling;       // square feet, ceiling and walls
    std::string floorCeiling;  // square feet, floor alone
    std::string totalArea;     // square feet; repeats `ceiling`
    std::string concrete;      // (length + width) / height, 0 without a height
    std::string plywood;       // sheets of 4 x 8 feet on the floor
    std::string drywall4x12;   // sheets of 4 x 12 feet on the floor
    std::string drywall4x8;    // sheets of 4 x 8 feet on the floor
};
RoomAreas roomAreas(std::string_view length, std::string_view width, std::string_view height);

}  // namespace torvane
