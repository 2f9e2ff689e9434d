#include "estimates/screens/frm_orders.h"

#include "estimates/screens/frm_order.h"
#include "ui_frm_orders.h"
#include "values/numbers.h"

namespace torvane {

frmOrders::frmOrders(Program& program, frmOrder& order)
    : FormOf(program, "frmOrders"), orderScreen_(order), Order(program.dataAccess(), order) {
    setHelpContext(13);
}

frmOrders::~frmOrders() = default;

PagedList::Parts frmOrders::listParts() {
    const auto read = [this](auto&&... page) { return Order().GetSearchOrders(page...); };
    return {
        .controls = [this]() -> PagedList::Controls {
            return {ui().ListView1, ui().txtName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
        },
        .columns = {{{"Estimate No", 1200}, "OrderNo"},
                    {{"Date", 1200}, "OrderDate"},
                    {{"Customer", 1200}, "CustName"},
                    {{"Amount", 960, true}, "Total"}},
        .data = [this]() -> DataClass& { return Order(); },
        .readAll = read,
        .readSearched = read,
        .rowTexts =
            [this](const RowArray& rows, int row) {
                return rowTexts(rows, row, {0, 1, 2, 4}, program().host().shortDate());
            },
        .notFound = "Estimate Not Found",
        .keepsSelection = false,
    };
}

void frmOrders::Form_Load() {
    Order.reset();  // the list's own record is new at each load
    list_.connectSearch(ui().cmdSearch, ui().CmdAll, Order, {{ui().OptOrderNo, "OrderNo"}, {ui().OptName, "CustName"}});
    on(*this, ui().CmdSelect, &QAbstractButton::clicked, &frmOrders::CmdSelect_Click);
    on(*this, ui().cmdExit, &QAbstractButton::clicked, [this] { Unload(); });
    on(*this, ui().ListView1, &ReportList::DblClick, &frmOrders::CmdSelect_Click);
    program().StartUp(*this);
    Order().SearchFld = "Orderno";
    list_.load("Orderno", 0);
    setCaption("Search Estimate");
    ui().txtName->setFocus();
}

void frmOrders::CmdSelect_Click() {
    if (ui().ListView1->RowCount() == 0) return;
    const Program::Doing doing(program(), "opening the estimate");
    orderScreen_.AddOrDelete = "E";
    orderScreen_.Order().OrderNo = strictInt32(list_.selectedKey());
    orderScreen_.Order().GetOrder();
    Unload();
}

}  // namespace torvane
