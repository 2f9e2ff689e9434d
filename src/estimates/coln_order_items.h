#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "datastore/data_access.h"
#include "masters/cls_item.h"
#include "values/value.h"

namespace torvane {

// One priced line of an estimate.
struct ClsOrderItems {
    float mvarQty = 0;
    float mvarMaterial = 0;  // for the whole line: quantity times unit price
    std::int16_t mvarRoomId = 0;
    std::int16_t mvarUnitId = 0;
    float mvarExtension = 0;  // sub-labor
    float mvarLabor = 0;
    float mvarOthers = 0;  // equipment and others
    std::shared_ptr<ClsItem> Item;
};

// The lines of an estimate in the order of their addition, at positions from 1.
class ColnOrderItems {
public:
    explicit ColnOrderItems(const DataAccess& access) : blank_(access) {}

    // Appends a line; its item knows no more than its key. Failures, with nothing appended: Null in any argument but
    // `Others` (where it is 0), a key beyond 16 bits, an amount beyond a float32.
    ClsOrderItems& Add(const Value& Item, const Value& Qty, const Value& Material, const Value& RoomId,
                       const Value& UnitId, const Value& Extension, const Value& Labor, const Value& Others);
    // Failure::Subscript outside 1..Count, with nothing changed.
    ClsOrderItems& Item(std::int32_t vntIndexKey);
    void Remove(std::int32_t vntIndexKey);
    std::int32_t Count() const { return static_cast<std::int32_t>(lines_.size()); }
    // The lines in order, for a walk.
    const std::vector<std::unique_ptr<ClsOrderItems>>& NewEnum() const { return lines_; }

private:
    void requirePosition(std::int32_t position) const;
    const ClsItem blank_;  // of which each line's item is a copy, on a connection that is open already
    std::vector<std::unique_ptr<ClsOrderItems>> lines_;
};

}  // namespace torvane
