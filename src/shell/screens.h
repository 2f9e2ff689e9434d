#pragma once

#include <functional>
#include <memory>

#include "calculators/screens/calculator_window.h"
#include "calculators/screens/scientific.h"
#include "estimates/screens/frm_blank.h"
#include "estimates/screens/frm_list.h"
#include "estimates/screens/frm_order.h"
#include "estimates/screens/frm_order_no.h"
#include "estimates/screens/frm_orders.h"
#include "files/file_copy.h"
#include "help/frm_help.h"
#include "masters/screens/frm_category.h"
#include "masters/screens/frm_customer.h"
#include "masters/screens/frm_item.h"
#include "masters/screens/frm_master.h"
#include "reports/screens/data_reports.h"
#include "reports/screens/frm_rpt_orders.h"
#include "screens/program.h"
#include "shell/frm_about.h"
#include "shell/frm_main_menu.h"

namespace torvane {

// The one instance of each screen, put together. main() makes one, and so does each test of whole journeys.
struct Screens {
    Screens(Program& program, FileSystem& files, bool previousInstance,
            std::function<std::unique_ptr<Assistant>(const std::string& characterFile)> loadAssistant);

    // One of the calculator windows, from 1 to 4.
    CalculatorWindow& calculators(std::size_t group);

    frmHelp help;
    frmAbout about;
    DataReports reports;
    frmRptOrders reportPrompt;
    CalculatorWindow calculators2;
    CalculatorWindow calculators3;
    CalculatorWindow calculators4;
    torvane::scientific scientific;
    frmCalculators calculators1;
    frmOrder order;
    frmOrders orders;
    FrmOrderNo orderNo;
    frmList itemSheet;
    frmBlank blank;
    frmCustomer customer;
    frmCategory category;
    frmItem item;
    frmMaster master;
    frmMainMenu mainMenu;
};

}  // namespace torvane
