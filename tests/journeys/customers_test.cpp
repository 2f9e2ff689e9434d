// The entry form of customers. Their list is in finding_test.cpp.

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names entryBoxes{"TxtCname",    "TxtBstreet1", "TxtBstreet2", "TxtBcity",   "CmbBState", "TxtBZip",
                       "TxtBCountry", "TxtBPhone",   "TxtBfax",     "TxtBMobile", "TxtBEmail", "TxtBUrl"};
const Names frames{"TxtCname", "TxtBcity", "TxtBPhone"};
const TestHost::Box saved = ok("Customer Saved"), invalid = ok("Please enter Valid Data");
const TestHost::Box twice = ok("Duplicate Customer Data"), deleted = ok("Deleted", std::string(defaultTitle));

class CustomersTest : public JourneyTest {};

TEST_F(CustomersTest, AddedOnceAndNotTwice) {
    QWidget& window = customers("A");
    inForm(window, "txtCustName=Cara Moe; cmdAdd", [&](QWidget& form) {
        EXPECT_EQ(utf8(form.windowTitle()) + texts(form, entryBoxes), "Customer InfoCara Moe||||Alabama|||||||");
        EXPECT_EQ(enabled(form, frames), "TxtCname TxtBcity TxtBPhone");
        go(form,
           "TxtBstreet1=1; TxtBstreet2=2; TxtBcity=3; CmbBState=Nevada; TxtBZip=4; TxtBCountry=5; TxtBPhone=6; "
           "TxtBfax=7; TxtBMobile=8; TxtBEmail=9; TxtBUrl=10; CmdSave",
           {saved});
        EXPECT_EQ(enabled(form, {"CmdSave", "cmdOk"}) + text(form, "TxtCname"), "cmdOkCara Moe") << "the text stays";
        go(form, "cmdOk");
    });
    EXPECT_EQ(data.cell("select * from Customer where CustId = 9"), "9|Cara Moe|1|2|3|29|4|5|6|7|8|9|10|null");
    data.execute("insert into Customer values (10, 'Twin', '', '', '', 1, '', '', '', '', '', '', '', null)");
    // Ok loses what was refused, Apply does not.
    go(window, "txtCustName=; cmdAdd > cmdOk", {ok("Enter Customer Name"), invalid});
    go(window, "txtCustName=Twin; cmdAdd > cmdOk", {twice, invalid});
    go(window, "txtCustName=Twin; cmdAdd > CmdSave; TxtBZip=1; cmdOk", {twice, invalid, saved});
    EXPECT_EQ(rows(window), (Texts{"7|Ann Lee|Salem|555-1|ann@example.com", "8|Bob Ray|Troy|777-1|", "9|Cara Moe|3|6|9",
                                   "10|Twin|||", "11|Twin|||"}));
}

TEST_F(CustomersTest, EditedByButtonAndByDoubleClick) {
    QWidget& window = customers("E");
    inForm(window, "OptName; txtCustName=Ann; cmdSearch; CmdEdit", [&](QWidget& form) {
        EXPECT_EQ(texts(form, entryBoxes),
                  "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-2|555-3|ann@example.com|www");
        go(form, "TxtBcity=Bend; CmdCancel");
    });
    EXPECT_EQ(rows(window).size(), 2U) << "the button shows all";
    go(window, "CmdEdit > cmdOk", {saved});  // equal to itself
    inForm(window, "row 1 twice", [&](QWidget& form) {
        EXPECT_EQ(enabled(form, frames), "TxtCname TxtBcity TxtBPhone");
        go(form, "TxtBUrl=bob.example.com; cmdOk", {saved});
    });
    EXPECT_EQ(data.cell("select * from Customer where CustId = 8"),
              "8|Bob Ray|||Troy|1|||777-1||||bob.example.com|null")
        << "a state that is none is saved as the first one";
    go(window, "txtCustName=Ann; cmdSearch; row 0 twice > TxtCname=Ann Moe; CmdSave; close", {saved});
    EXPECT_EQ(rows(window), Texts{"7|Ann Moe|Salem|555-1|ann@example.com"}) << "the double click leaves what was found";
    EXPECT_EQ(data.cell("select BCity || BCCNo from Customer where CustId = 7"), "SalemA7");
}

TEST_F(CustomersTest, LookedAtByADoubleClickAndDeletedAfterAQuestion) {
    QWidget& window = customers("D");
    inForm(window, "row 0 twice", [&](QWidget& form) {
        EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}) + enabled(form, frames), "CmdCancel");
        go(form, "CmdCancel");
    });
    calls.clear();
    go(window, "cmdMainHelp");
    EXPECT_EQ(calls, Texts{"Show"}) << "there is nothing to say in this mode";
    const std::string ann = "Are you sure you want to Delete ' Ann Lee '",
                      bob = "Are you sure you want to Delete ' Bob Ray '";
    go(window, "row 1; txtCustName=x; cmdDel", {no(bob, "Inventory")});
    EXPECT_EQ(text(window, "txtCustName") + std::to_string(rows(window).size()), "2");
    EXPECT_TRUE(find<QWidget>(window, "txtCustName").hasFocus());
    go(window, "row 1; cmdDel; cmdDel; cmdDel", {yes(bob, "Inventory"), deleted, yes(ann, "Inventory"), deleted});
    EXPECT_EQ(rows(window), Texts{});
    EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 0 of 1") << "a read without rows leaves the count as it was";
    EXPECT_EQ(lines(5).size(), 1U) << "the estimates of a customer stay";
}

}  // namespace
}  // namespace torvane
