#include "reports/report_layout.h"

namespace torvane {

namespace {

using enum ReportControl;
using enum Align;
using enum Face;
using enum Format;
constexpr auto Money = TwoDecimals;

constexpr ReportField estimatesReportHeader[] = {
    {"Label6", Label, "Estimates Report", 2592, 0, 2880, 432, Left, Title},
};

constexpr ReportField estimatesPageHeader[] = {
    {"Label1", Label, "Estimate No.", 0, 144, 1290, 240, Left, Bold},
    {"Label2", Label, "Estimate Date", 1440, 144, 1290, 240, Left, Bold},
    {"Label3", Label, "Customer Name", 3456, 144, 1290, 240, Left, Bold},
    {"Label5", Label, "Total", 7344, 144, 1290, 240, Right, Bold},
    {"Line1", Line, "", 0, 432, 9072, 0},
};

constexpr ReportField estimatesDetail[] = {
    {"txtorderno", Text, "orderno", 0, 0, 1440, 240},
    {"txtOrderdate", Text, "Orderdate", 1440, 0, 1440, 240},
    {"txtCustName", Text, "CustName", 3456, 0, 3312, 240},
    {"txttotal", Text, "total", 7200, 0, 1440, 240, Right, Plain, Money},
};

constexpr ReportField estimatesReportFooter[] = {
    {"Line2", Line, "", 0, 0, 9075, 0},
    {"Function1", Sum, "total", 7200, 144, 1440, 285, Right, Bold, Money},
};

constexpr ReportField customersReportHeader[] = {
    {"Label1", Label, "Customers Report", 2160, 0, 3168, 432, Left, Title},
};

constexpr ReportField customersPageHeader[] = {
    {"Label2", Label, "Name", 0, 144, 1290, 240, Left, Bold},
    {"Label3", Label, "Address", 1440, 144, 1290, 240, Left, Bold},
    {"Label9", Label, "Phone", 3024, 144, 1290, 240, Left, Bold},
    {"Label10", Label, "Fax", 4464, 144, 1290, 240, Left, Bold},
    {"Label12", Label, "Email", 5904, 144, 1290, 240, Left, Bold},
    {"Line1", Line, "", 0, 432, 7200, 0},
};

constexpr ReportField customersDetail[] = {
    {"txtCustName", Text, "CustName", 0, 0, 1440, 240},       {"txtBStreet1", Text, "BStreet1", 1440, 0, 1440, 240},
    {"txtBPhone", Text, "BPhone", 3024, 0, 1440, 240},        {"txtBFax", Text, "BFax", 4464, 0, 1440, 240},
    {"txtBEmail", Text, "BEmail", 5904, 0, 1440, 240},        {"txtBStreet2", Text, "BStreet2", 1440, 288, 1440, 240},
    {"txtBUrl", Text, "BUrl", 5904, 288, 1440, 240},          {"txtBCity", Text, "BCity", 1440, 576, 1440, 240},
    {"txtBState", Text, "BState", 1440, 864, 1440, 240},      {"txtBZip", Text, "BZip", 1440, 1152, 1440, 240},
    {"txtBCountry", Text, "BCountry", 1440, 1440, 1440, 240},
};

constexpr ReportField customersReportFooter[] = {
    {"Line2", Line, "", 0, 144, 7200, 0},
};

constexpr ReportField proposalReportHeader[] = {
    {"Label6", Label, "Estimates Proposal", 144, 144, 3450, 435, Left, Title},
};

// The captions stand over their columns only roughly, and one of them stands for two columns: they stay where they are.
constexpr ReportField proposalGroupHeader[] = {
    {"Label8", Label, "Customer Name", 144, 144, 1290, 240, Left, Bold},
    {"Label4", Label, "Estimate No.", 4176, 144, 1290, 240, Left, Bold},
    {"txtorderinfoOrderNo", Text, "orderinfo.OrderNo", 5616, 144, 1440, 240},
    {"txtCustName", Text, "CustName", 144, 432, 2880, 240},
    {"Label7", Label, "Estimate Date", 4176, 432, 1290, 240, Left, Bold},
    {"txtOrderDate", Text, "OrderDate", 5616, 432, 1440, 240},
    {"txtSStreet1", Text, "SStreet1", 144, 720, 2880, 240},
    {"txtSStreet2", Text, "SStreet2", 144, 1008, 2880, 240},
    {"txtSCity", Text, "SCity", 144, 1296, 2880, 240},
    {"txtSState", Text, "SState", 144, 1584, 2880, 240},
    {"txtSZip", Text, "SZip", 144, 1872, 1440, 240},
    {"txtSCountry", Text, "SCountry", 144, 2160, 1440, 240},
    {"Label14", Label, "Takeoff Name", 144, 2592, 1440, 285, Left, Bold},
    {"Line3", Line, "", 144, 2592, 8790, 0},
    {"Label1", Label, "Qty", 1728, 2592, 585, 240, Left, Bold},
    {"Label10", Label, "Unit", 2304, 2592, 585, 240, Left, Bold},
    {"Label9", Label, "Item", 3312, 2592, 1290, 240, Left, Bold},
    {"Label11", Label, "Material", 5472, 2592, 720, 240, Right, Bold},
    {"Label13", Label, "Labor", 6048, 2592, 720, 240, Right, Bold},
    {"Label12", Label, "SubLabor Others", 6336, 2592, 1872, 240, Right, Bold},
    {"Label2", Label, "Item Total", 8208, 2592, 870, 285, Left, Bold},
    {"Line1", Line, "", 144, 2880, 8790, 0},
};

constexpr ReportField proposalDetail[] = {
    {"txtRoom", Text, "Room", 144, 0, 1440, 240},
    {"txtQty", Text, "Qty", 1728, 0, 576, 240},
    {"txtUnit", Text, "Unit", 2304, 0, 855, 240},
    {"txtItem", Text, "Item", 3312, 0, 2010, 240},
    {"txtMaterial", Text, "Material", 5472, 0, 720, 240, Right, Plain, Money},
    {"txtLabor", Text, "Labor", 6192, 0, 576, 240, Right, Plain, Money},
    {"txtExtension", Text, "Extension", 6768, 0, 576, 240, Right, Plain, Money},
    {"txtOthers", Text, "Others", 7344, 0, 720, 240, Right, Plain, Money},
    {"txttotitem", Text, "totitem", 8064, 0, 870, 240, Right, Plain, Money},
};

constexpr ReportField proposalGroupFooter[] = {
    {"Line2", Line, "", 144, 144, 8790, 0},
    {"Label5", Label, "Amount", 6192, 144, 1290, 240, Right, Bold},
    {"txtAmount", Text, "Amount", 7488, 144, 1440, 240, Right, Plain, Money},
    {"Label15", Label, "Tax:", 5760, 576, 720, 240, Right, Bold},
    {"txtTax", Text, "Tax", 6480, 576, 585, 240, Right, Plain, Money},
    {"Label17", Label, "%", 7056, 576, 285, 285, Left, Bold},
    {"txttaxtot", Text, "taxtot", 7488, 576, 1440, 240, Right, Plain, General},
    {"Label16", Label, "Overhead:", 5616, 864, 870, 240, Right, Bold},
    {"txtOverhead", Text, "Overhead", 6480, 864, 585, 240, Right, Plain, Money},
    {"Label18", Label, "%", 7056, 864, 285, 285, Left, Bold},
    {"txtohtot", Text, "ohtot", 7488, 864, 1440, 240, Right, Plain, General},
    {"Label3", Label, "Total:", 6192, 1152, 1305, 240, Right, Bold},
    {"txtTotal", Text, "Total", 7488, 1152, 1440, 240, Right, Plain, Money},
    {"Line4", Line, "", 144, 1440, 8790, 0},
};

}  // namespace

const ReportLayout estimatesLayout{
    "DataReport1",
    "Estimates Report",
    {495, estimatesReportHeader},
    {528, estimatesPageHeader},
    {},
    {297, estimatesDetail},
    {},
    {540, estimatesReportFooter},
};

const ReportLayout customersLayout{
    "DataReport2",
    "Customers Report",
    {615, customersReportHeader},
    {570, customersPageHeader},
    {},
    {1785, customersDetail},
    {},
    {360, customersReportFooter},
};

const ReportLayout proposalLayout{
    "DataReport3",
    "Estimate Proposal",
    {723, proposalReportHeader},
    {},
    {2937, proposalGroupHeader},
    {300, proposalDetail},
    {1560, proposalGroupFooter},
    {},
};

}  // namespace torvane
