#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches.h"
#include "datastore/statement.h"
#include "estimates/cls_order.h"
#include "harness.h"
#include "sample.h"

// An estimate of 1,000 lines into the database and out of it, against the same statements through SQLite alone.

namespace torvane::bench {

namespace {

struct ModeOnly : EstimateScreen {
    std::string mode;
    const std::string& estimateMode() const override { return mode; }
    void showEstimate() override {}
};

std::string insertedHeader(std::int32_t number) {
    return joined(
        "Insert into OrderInfo "
        "(Orderno,CustId,RepId,OrderDate,SStreet1,SStreet2,SCity,SState,SZip,SCountry,SPhone,SMobile,SEmail,"
        "ShipId,Amount,Tax,Total,UPSTracking,Notes,Overhead) values (",
        number, ",9,0,'2024-03-15','7 Side Street','','City',3,'','','','','',0,7,5,7.35,'','As agreed',10)");
}

std::string updatedHeader(std::int32_t number) {
    return joined(
        "Update OrderInfo Set CustId = 9, RepId = 0, OrderDate = '2024-03-15', SStreet1 = '7 Side Street', SStreet2 = "
        "'', SCity = 'City', SState = 3, SZip = '', SCountry = '', SPhone = '', SMobile = '', SEmail = '', ShipId = 0, "
        "Amount = 7, Tax = 5, Overhead = 10, Total = 7.35, UPSTracking='', Notes='As agreed' where OrderNo=",
        number);
}

std::vector<std::string> insertedLines(ClsOrder& order, std::int32_t number) {
    std::vector<std::string> statements;
    for (const auto& line : order.ColnOrderItems().NewEnum())
        statements.push_back(
            joined("Insert into OrderItem (OrderNo,ItemId,Qty,Material,RoomId,UnitId,Extension,Labor,Others) values (",
                   number, ",", line->Item->itemid, ",", line->mvarQty, ",", line->mvarMaterial, ",", line->mvarRoomId,
                   ",", line->mvarUnitId, ",", line->mvarExtension, ",", line->mvarLabor, ",", line->mvarOthers, ")"));
    return statements;
}

}  // namespace

void estimates(Sample& sample) {
    ModeOnly screen;
    ClsOrder order(sample.access, screen);
    order.OrderNo = Sample::largeOrder;
    order.GetOrder();
    if (order.ColnOrderItems().Count() != Sample::largeOrderLines) throw std::runtime_error("not the large estimate");
    Raw& raw = sample.raw;

    screen.mode = "E";
    std::vector<std::string> replacing = insertedLines(order, Sample::largeOrder);
    replacing.insert(replacing.begin(), {joined("Delete from Orderitem where OrderNo = ", Sample::largeOrder),
                                         updatedHeader(Sample::largeOrder)});
    const auto transaction = [&raw](const std::vector<std::string>& statements) {
        raw.execute("begin immediate");
        for (const std::string& statement : statements) raw.execute(statement);
        raw.execute("commit");
    };
    compare(
        "estimate of 1,000 lines saved again", {.ratio = 2}, [&] { order.Save(); }, [&] { transaction(replacing); });

    screen.mode = "A";
    std::int32_t next = Sample::most;
    std::int32_t rawNext = Sample::most;
    compare(
        "new estimate of 1,000 lines saved", {.ratio = 2},
        [&] {
            order.OrderNo = ++next;
            order.Save();
        },
        [&] {
            // The texts are ready before the time is taken.
            std::vector<std::string> adding = insertedLines(order, ++rawNext);
            adding.insert(adding.begin(), insertedHeader(rawNext));
            auto add = [&] { transaction(adding); };
            return timed(add);
        });

    compare(
        "estimate of 1,000 lines loaded", {.ratio = 2},
        [&] {
            // As into the screen's record, which has been cleared when its window closed.
            ClsOrder fresh(sample.access, screen);
            fresh.OrderNo = Sample::largeOrder;
            auto load = [&] { fresh.GetOrder(); };
            return timed(load);
        },
        [&] {
            raw.read(joined("Select * from orderinfo where OrderNo = ", Sample::largeOrder));
            raw.read(joined("Select * from orderItem where OrderNo = ", Sample::largeOrder));
        });
}

}  // namespace torvane::bench
