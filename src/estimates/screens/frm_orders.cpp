#include "estimates/screens/frm_orders.h"

#include "estimates/screens/frm_order.h"
#include "platform/help_contexts.h"
#include "values/numbers.h"

namespace torvane {

frmOrders::frmOrders(Program& program, frmOrder& order) : FormOf(program, "frmOrders"), orderScreen_(order) {
    setHelpContext(HelpContext::searchEstimate);
}

ClsOrder& frmOrders::Order() {
    if (!order_) order_ = std::make_unique<ClsOrder>(program().environment(), orderScreen_);
    return *order_;
}

ListSkeleton::Controls frmOrders::controls() {
    return {ui().ListView1, ui().txtName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
}

std::vector<ListSkeleton::Column> frmOrders::columns() const {
    return {{{"Estimate No", 1200}, "OrderNo"},
            {{"Date", 1200}, "OrderDate"},
            {{"Customer", 1200}, "CustName"},
            {{"Amount", 960, true}, "Total"}};
}

void frmOrders::Form_Load() {
    order_.reset();  // the list's own object is new at each load
    const auto click = [this](QAbstractButton* button, auto handler) {
        on(*this, button, &QAbstractButton::clicked, handler);
    };
    click(ui().cmdSearch, [this] { cmdSearch_Click(); });
    click(ui().CmdAll, [this] { CmdAll_Click(); });
    click(ui().CmdPrev, [this] { CmdPrev_Click(); });
    click(ui().CmdNext, [this] { CmdNext_Click(); });
    click(ui().CmdSelect, [this] { CmdSelect_Click(); });
    click(ui().cmdExit, [this] { Unload(); });
    on(*this, ui().ListView1, &ReportList::DblClick, [this] { CmdSelect_Click(); });
    on(*this, ui().ListView1, &ReportList::ColumnClick, [this](int column) { sortBy(column); });
    program().StartUp(*this);
    Order().SearchFld = "Orderno";
    loadList("Orderno", 0);
    setCaption("Search Estimate");
    ui().txtName->setFocus();
}

std::optional<RowArray> frmOrders::readAllRows() {
    return Order().GetSearchOrders(Page, PageCount, FldName, AscOrDesc);
}

std::vector<std::string> frmOrders::rowTexts(const RowArray& rows, int row) {
    const ShortDate& dates = program().host().shortDate();
    return {textOrEmpty(rows(0, row)), textOrEmpty(rows(1, row), dates), textOrEmpty(rows(2, row)),
            textOrEmpty(rows(4, row))};
}

void frmOrders::cmdSearch_Click() {
    Order().SearchVal = ui().txtName->Text();
    if (ui().OptOrderNo->isChecked())
        Order().SearchFld = "OrderNo";
    else if (ui().OptName->isChecked())
        Order().SearchFld = "CustName";
    startSearch();
}

void frmOrders::CmdSelect_Click() {
    if (ui().ListView1->RowCount() == 0) return;
    const Program::Doing doing(program(), "opening the estimate");
    orderScreen_.AddOrDelete = "E";
    orderScreen_.Order().OrderNo = strictInt32(selectedKey());
    orderScreen_.Order().GetOrder();
    Unload();
}

}  // namespace torvane
