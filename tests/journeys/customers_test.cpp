// The entry form of customers. Their list is in finding_test.cpp.

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names entryBoxes{"TxtCname",    "TxtBstreet1", "TxtBstreet2", "TxtBcity",   "CmbBState", "TxtBZip",
                       "TxtBCountry", "TxtBPhone",   "TxtBfax",     "TxtBMobile", "TxtBEmail", "TxtBUrl"};
const Names someBoxes{"TxtCname", "TxtBcity", "TxtBPhone"};
const TestHost::Box saved = ok("Customer Saved");

class CustomersTest : public JourneyTest {
protected:
    // Acts in the entry form that `open` brings up; the form must have gone when that is over.
    void inEntryForm(const std::function<void()>& open, const std::function<void(QWidget& form)>& act) {
        whenModal(act);
        open();
        EXPECT_FALSE(standing("CustMast"));
    }
    std::string which() { return screens->customer.Which; }
};

TEST_F(CustomersTest, AddedOnceAndNotTwice) {
    QWidget& window = customers("A");
    inEntryForm(
        [&] { go(window, "txtCustName=Cara Moe; cmdAdd"); },
        [&](QWidget& form) {
            EXPECT_EQ(utf8(form.windowTitle()) + texts(form, entryBoxes), "Customer InfoCara Moe||||Alabama|||||||");
            EXPECT_EQ(enabled(form, someBoxes), "TxtCname TxtBcity TxtBPhone");
            go(form,
               "TxtBstreet1=1; TxtBstreet2=2; TxtBcity=3; CmbBState=Nevada; TxtBZip=4; TxtBCountry=5; TxtBPhone=6; "
               "TxtBfax=7; TxtBMobile=8; TxtBEmail=9; TxtBUrl=10; CmdSave",
               {saved});
            EXPECT_EQ(enabled(form, {"CmdSave", "cmdOk"}), "cmdOk");
            EXPECT_EQ(text(form, "TxtCname"), "Cara Moe") << "the boxes keep their text";
            go(form, "cmdOk");
        });
    EXPECT_EQ(data.cell("select * from Customer where CustId = 9"), "9|Cara Moe|1|2|3|29|4|5|6|7|8|9|10|null");
    EXPECT_EQ(rows(window)[2], "9|Cara Moe|3|6|9");

    data.execute("insert into Customer values (10, 'Twin', '', '', '', 1, '', '', '', '', '', '', '', null)");
    const TestHost::Box invalid = ok("Please enter Valid Data"), twice = ok("Duplicate Customer Data");
    struct Row {
        const char* name;
        const char* steps;  // Ok loses what was refused, Apply does not
        std::vector<TestHost::Box> boxes;
    };
    for (const Row& row :
         {Row{"", "cmdOk", {ok("Enter Customer Name"), invalid}}, Row{"Twin", "cmdOk", {twice, invalid}},
          Row{"Twin", "CmdSave; TxtBZip=1; cmdOk", {twice, invalid, saved}}})
        inEntryForm([&] { go(window, std::string("txtCustName=") + row.name + "; cmdAdd"); },
                    [&](QWidget& form) { go(form, row.steps, row.boxes); });
    EXPECT_EQ(data.cell("select count(*) || max(BZip) from Customer where CustName in ('', 'Twin')"), "21");
}

TEST_F(CustomersTest, EditedByButtonAndByDoubleClick) {
    QWidget& window = customers("E");
    inEntryForm([&] { go(window, "OptName; txtCustName=Ann; cmdSearch; CmdEdit"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, entryBoxes),
                              "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-2|555-3|ann@example.com|www");
                    go(form, "TxtBcity=Bend; CmdCancel");
                });
    EXPECT_EQ(rows(window).size(), 2U) << "the button shows all";
    inEntryForm([&] { go(window, "CmdEdit"); }, [&](QWidget& form) { go(form, "cmdOk", {saved}); });  // equal to itself
    EXPECT_EQ(which() + rows(window)[0], "E7|Ann Lee|Salem|555-1|ann@example.com");
    inEntryForm([&] { doubleClickRow(window, 1); },
                [&](QWidget& form) {
                    EXPECT_EQ(enabled(form, someBoxes), "TxtCname TxtBcity TxtBPhone");
                    go(form, "TxtBUrl=bob.example.com; cmdOk", {saved});
                });
    EXPECT_EQ(which(), "EE");
    EXPECT_EQ(data.cell("select * from Customer where CustId = 8"),
              "8|Bob Ray|||Troy|1|||777-1||||bob.example.com|null")
        << "a state that is none is saved as the first one";
    go(window, "txtCustName=Ann; cmdSearch");
    inEntryForm([&] { key(list(window), Qt::Key_Return); },
                [&](QWidget& form) {
                    go(form, "TxtCname=Ann Moe; CmdSave", {saved});
                    closeBox(form);
                });
    EXPECT_EQ(rows(window), Texts{"7|Ann Moe|Salem|555-1|ann@example.com"}) << "the double click leaves what was found";
    EXPECT_EQ(data.cell("select BCCNo from Customer where CustId = 7"), "A7");
}

TEST_F(CustomersTest, ShownByADoubleClickAndDeletedAfterAQuestion) {
    QWidget& window = customers("D");
    inEntryForm([&] { doubleClickRow(window, 0); },
                [&](QWidget& form) {
                    EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}), "CmdCancel");
                    EXPECT_EQ(enabled(form, someBoxes), "");
                    closeBox(form);
                });
    calls.clear();
    go(window, "cmdMainHelp");
    EXPECT_EQ(calls, Texts{"Show"}) << "there is nothing to say in this mode";
    const std::string question = "Are you sure you want to Delete ' Bob Ray '";
    clickRow(list(window), 1);
    go(window, "txtCustName=x; cmdDel", {no(question, "Inventory")});
    EXPECT_EQ(text(window, "txtCustName") + std::to_string(rows(window).size()), "2");
    EXPECT_TRUE(find<QWidget>(window, "txtCustName").hasFocus());
    clickRow(list(window), 1);
    const TestHost::Box deleted = ok("Deleted", std::string(defaultTitle));
    go(window, "cmdDel; cmdDel; cmdDel",
       {yes(question, "Inventory"), deleted, yes("Are you sure you want to Delete ' Ann Lee '", "Inventory"), deleted});
    EXPECT_EQ(rows(window), Texts{});
    EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 0 of 1") << "a read without rows leaves the count as it was";
    EXPECT_EQ(lines(5).size(), 1U) << "the estimates of a customer stay";
}

}  // namespace
}  // namespace torvane
