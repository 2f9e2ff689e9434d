#include "shell/screens.h"

namespace torvane {

namespace {

frmOrder::Others aroundEstimate(Screens& screens) {
    return {
        .showProposal = [&screens](std::int32_t OrderNo) { screens.reports.showProposal(OrderNo); },
        .closeNumberPrompt = [&screens] { screens.orderNo.Unload(); },
        .selectCustomer =
            [&screens] {
                screens.customer.Which = "S";
                screens.customer.ShowModal();
            },
        .addCustomer =
            [&screens] {
                screens.customer.Which = "A";
                screens.customer.Show();
            },
        .showItemSheet = [&screens] { screens.itemSheet.Show(); },
        .showCalculators = [&screens](int group) { screens.calculators(static_cast<std::size_t>(group)).Show(); },
    };
}

}  // namespace

Screens::Screens(Program& program, FileSystem& files, bool previousInstance,
                 std::function<std::unique_ptr<Assistant>(const std::string&)> loadAssistant)
    : help(program),
      about(program),
      reports(program),
      reportPrompt(program, reports),
      calculators2(program, calculatorGroups()[1]),
      calculators3(program, calculatorGroups()[2]),
      calculators4(program, calculatorGroups()[3]),
      scientific(program, [this] { about.Show(); }),
      calculators1(program, scientific, calculators2, calculators3),
      order(program, aroundEstimate(*this)),
      orders(program, order),
      orderNo(program, order),
      itemSheet(program, order),
      blank(program),
      customer(program, [this](std::int32_t CustId, const std::string& name) { order.takeCustomer(CustId, name); }),
      category(program, [this](std::int16_t CategoryId,
                               const std::string& name) { item.entryForm().takeCategory(CategoryId, name); }),
      item(program, category),
      master(program),
      mainMenu(program, menuActions(*this, files), previousInstance, std::move(loadAssistant)) {}

CalculatorWindow& Screens::calculators(std::size_t group) {
    CalculatorWindow* const groups[] = {&calculators1, &calculators2, &calculators3, &calculators4};
    return *groups[group - 1];
}

}  // namespace torvane
