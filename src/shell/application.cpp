#include "shell/application.h"

namespace torvane {

Application::Application(Program& program, FileSystem& files, bool previousInstance,
                         std::function<std::unique_ptr<Assistant>(const std::string&)> loadAssistant)
    : reports(program),
      order(program, [this](std::int32_t OrderNo) { reports.showProposal(OrderNo); }),
      customer(program, order),
      category(program),
      item(program, category),
      master(program),
      mainMenu(program, Screens{order, customer, category, item, master}, files, previousInstance,
               std::move(loadAssistant)) {
    order.setCustomerList(customer);
}

}  // namespace torvane
