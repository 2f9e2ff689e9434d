#include "estimates/line_row.h"

#include "values/numbers.h"

namespace torvane {

namespace {

LineRow rowOf(const LineNames& names, const LineAmounts& amounts) {
    return {generalText(names.itemId),
            names.room,
            generalText(amounts.quantity),
            names.unit,
            names.item,
            generalText(amounts.material),
            generalText(amounts.labor),
            generalText(amounts.extension),
            generalText(amounts.others),
            generalText(amounts.total),
            generalText(names.roomId),
            generalText(names.unitId)};
}

}  // namespace

LineRow enteredRow(const LineNames& names, const LinePanel& panel) {
    return rowOf(names, lineAmounts(panel));
}

LineRow storedRow(const LineNames& names, const ClsOrderItems& line) {
    LineAmounts amounts;
    amounts.quantity = narrowToInt32(line.mvarQty);
    amounts.material = narrowToCurrency(line.mvarMaterial);
    amounts.labor = narrowToCurrency(line.mvarLabor);
    // As they are shown, so that the four amounts on screen add up to the total beside them.
    amounts.extension = decimalOf(line.mvarExtension);
    amounts.others = decimalOf(line.mvarOthers);
    amounts.total = finite(amounts.material + amounts.labor + amounts.extension + amounts.others);
    LineRow row = rowOf(names, amounts);
    row[LineColumn::subLabor] = generalText(line.mvarExtension);
    row[LineColumn::others] = generalText(line.mvarOthers);
    return row;
}

LineKey keyOf(const ClsOrderItems& line) {
    return {line.Item->itemid, line.mvarRoomId, line.mvarUnitId};
}

LineKey keyOf(const LineRow& row) {
    return {strictInt32(row[LineColumn::itemId]), strictInt32(row[LineColumn::roomId]),
            strictInt32(row[LineColumn::unitId])};
}

}  // namespace torvane
