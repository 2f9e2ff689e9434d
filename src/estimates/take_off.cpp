#include "estimates/take_off.h"

#include "values/numbers.h"

namespace torvane {

RoomAreas roomAreas(std::string_view length, std::string_view width, std::string_view height) {
    const double L = lenientNumber(length);
    const double W = lenientNumber(width);
    const double H = lenientNumber(height);
    const auto text = [](double value) { return generalText(finite(value)); };
    constexpr double sheet4x8 = 32;
    constexpr double sheet4x12 = 48;

    RoomAreas areas;
    areas.perimeter = text((W + L) * 2);
    areas.walls = text(2 * W * H + 2 * L * H);
    areas.ceiling = text(L * W + lenientNumber(areas.walls));
    areas.floorCeiling = text(L * W);
    areas.totalArea = text(lenientNumber(areas.ceiling));
    areas.concrete = text(H > 0 ? (L + W) / H : 0);
    areas.plywood = text(L * W / sheet4x8);
    areas.drywall4x12 = text(L * W / sheet4x12);
    areas.drywall4x8 = text(L * W / sheet4x8);
    return areas;
}

}  // namespace torvane
