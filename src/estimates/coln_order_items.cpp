#include "estimates/coln_order_items.h"

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

ClsOrderItems& ColnOrderItems::Add(const Value& Item, const Value& Qty, const Value& Material, const Value& RoomId,
                                   const Value& UnitId, const Value& Extension, const Value& Labor,
                                   const Value& Others) {
    auto line = std::make_unique<ClsOrderItems>();
    line->Item = std::make_shared<ClsItem>(blank_);
    line->Item->itemid = toInt16(Item);
    line->mvarQty = toSingle(Qty);
    line->mvarMaterial = toSingle(Material);
    line->mvarRoomId = toInt16(RoomId);
    line->mvarUnitId = toInt16(UnitId);
    line->mvarExtension = toSingle(Extension);
    line->mvarLabor = toSingle(Labor);
    line->mvarOthers = singleOrZero(Others);
    return *lines_.emplace_back(std::move(line));
}

void ColnOrderItems::requirePosition(std::int32_t position) const {
    if (position < 1 || position > Count()) fail(Failure::Subscript);
}

ClsOrderItems& ColnOrderItems::Item(std::int32_t vntIndexKey) {
    requirePosition(vntIndexKey);
    return *lines_[static_cast<std::size_t>(vntIndexKey - 1)];
}

void ColnOrderItems::Remove(std::int32_t vntIndexKey) {
    requirePosition(vntIndexKey);
    lines_.erase(lines_.begin() + (vntIndexKey - 1));
}

}  // namespace torvane
