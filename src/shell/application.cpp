#include "shell/application.h"

namespace torvane {

Application::Application(Program& program, FileSystem& files, bool previousInstance,
                         std::function<std::unique_ptr<Assistant>(const std::string&)> loadAssistant)
    : help(program),
      about(program),
      reports(program),
      reportPrompt(program, reports),
      calculators2(program, calculatorGroups()[1]),
      calculators3(program, calculatorGroups()[2]),
      calculators4(program, calculatorGroups()[3]),
      scientific(program),
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
      mainMenu(program,
               Screens{order,
                       orders,
                       orderNo,
                       blank,
                       customer,
                       category,
                       item,
                       master,
                       reportPrompt,
                       reports,
                       help,
                       about,
                       {&calculators1, &calculators2, &calculators3, &calculators4}},
               files, previousInstance, std::move(loadAssistant)) {
    program.setHelp([this](int context) { help.showPage(context); });
    scientific.setAbout([this] { about.Show(); });
    order.setCustomerList(customer);
    order.setCompanions(orderNo, itemSheet, {&calculators1, &calculators2, &calculators3, &calculators4});
}

}  // namespace torvane
