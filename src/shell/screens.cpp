#include "shell/screens.h"

namespace torvane {

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
      order(program, [this](std::int32_t OrderNo) { reports.showProposal(OrderNo); }),
      orders(program, order),
      orderNo(program, order),
      itemSheet(program, order),
      blank(program),
      customer(program, order),
      category(program),
      item(program, category),
      master(program),
      mainMenu(program, menuActions(*this, files), previousInstance, std::move(loadAssistant)) {
    order.setCustomerList(customer);
    order.setCompanions(orderNo, itemSheet, {&calculators1, &calculators2, &calculators3, &calculators4});
}

}  // namespace torvane
