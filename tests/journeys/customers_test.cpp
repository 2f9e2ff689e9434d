// The customer list and its entry form.

#include <algorithm>

#include "journeys/journey.h"

namespace torvane {
namespace {

const Names entryBoxes{"TxtCname",    "TxtBstreet1", "TxtBstreet2", "TxtBcity",   "CmbBState", "TxtBZip",
                       "TxtBCountry", "TxtBPhone",   "TxtBfax",     "TxtBMobile", "TxtBEmail", "TxtBUrl"};
const Names entryStates{"TxtCname", "TxtBcity", "TxtBPhone", "CmbBState"};
const std::string ann = "7|Ann Lee|Salem|555-1|ann@example.com";
const std::string bob = "8|Bob Ray|Troy|777-1|";
const TestHost::Box saved = ok("Customer Saved");
const TestHost::Box deleted = ok("Deleted", std::string(defaultTitle));

class CustomersTest : public JourneyTest {
protected:
    // Acts in the entry form that `open` brings up; the form must have gone when that is over.
    void inEntryForm(const std::function<void()>& open, const std::function<void(QWidget& form)>& act) {
        whenModal([act](QWidget& form) {
            EXPECT_EQ(utf8(form.windowTitle()), "Customer Info");
            act(form);
        });
        open();
        EXPECT_FALSE(screens->customer.entryForm().loaded());
    }
    Texts names() { return data.rows("select CustName from Customer order by CustId"); }
    std::string which() { return screens->customer.Which; }
    void manyCustomers(int count) {
        std::string all = "delete from Customer";
        for (int i = 101; i <= 100 + count; ++i)
            all += "; insert into Customer (CustName, BCity) values ('C" + std::to_string(i) + "','" +
                   (i % 2 ? "X" : "Y") + "')";
        data.execute(all);
    }
};

TEST_F(CustomersTest, OpensByMode) {
    struct Row {
        const char* which;
        const char* caption;
        const char* action;
        std::string help;
    };
    for (const Row& row :
         {Row{"A", "Add Customer", "cmdAdd",
              "This screen allows you to enter the Customer details in the master table. Click on 'Add' button to add "
              "a new "
              "record in the Customers database. "},
          Row{"E", "Edit Customer", "CmdEdit",
              "This screen allows you to edit the Customer data in the master table. Select the record by double "
              "clicking "
              "on the customer row or selecting the Customer and pressing 'Edit' button"},
          Row{"D", "Delete Customer", "cmdDel",
              "This screen allows you to delete the Customer data from the master table. Select the customer record by "
              "clicking the customer row and pressing 'Delete' button. It will delete the record after "
              "confirmation."}}) {
        SCOPED_TRACE(row.which);
        QWidget& window = customers(row.which);
        EXPECT_EQ(utf8(window.windowTitle()), row.caption);
        EXPECT_EQ(visible(window, {"cmdAdd", "cmdCopy", "CmdEdit", "cmdDel", "CmdSelect"}), row.action);
        EXPECT_EQ(rows(window), (Texts{ann, bob}));
        EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 2 of 2");
        calls.clear();
        go(window, "cmdMainHelp; cmdMainHelp");
        EXPECT_EQ(calls, (Texts{"Show", "Speak " + row.help, "Show", "Speak " + row.help}));
        customers("D");  // stays loaded: only the mode changes
        EXPECT_EQ(utf8(window.windowTitle()) + which(), std::string(row.caption) + "D");
        go(window, "cmdExit");
        EXPECT_FALSE(screens->customer.loaded());
    }
}

TEST_F(CustomersTest, AddedOnceByApply) {
    QWidget& window = customers("A");
    go(window, "txtCustName=Cara Moe");
    inEntryForm([&] { go(window, "cmdAdd"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, entryBoxes), "Cara Moe||||Alabama|||||||");
                    EXPECT_EQ(enabled(form, entryStates), "TxtCname TxtBcity TxtBPhone CmbBState");
                    go(form, "TxtBcity=Reno; TxtBfax=1; TxtBPhone=2; TxtBMobile=3; CmbBState=Nevada; CmdSave", {saved});
                    EXPECT_EQ(enabled(form, {"CmdSave", "cmdOk"}), "cmdOk");
                    EXPECT_EQ(text(form, "TxtCname"), "Cara Moe") << "the boxes keep their text";
                    EXPECT_EQ(screens->customer.entryForm().Cust().CustName, "");
                    go(form, "cmdMainHelp; cmdOk");
                });
    EXPECT_EQ(
        calls.back(),
        "Speak Once you enter all the data, press 'Ok' button to save the record and close. 'Cancel' button closes "
        "the window without saving. 'Apply' button saves your data but does not close the window.");
    EXPECT_EQ(data.cell("select * from Customer where CustName = 'Cara Moe'"), "9|Cara Moe|||Reno|29|||2|1|3|||null");
    EXPECT_EQ(rows(window), (Texts{ann, bob, "9|Cara Moe|Reno|2|"}));
    EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 3 of 3");
}

TEST_F(CustomersTest, WhatOkAndApplyRefuse) {
    data.execute("insert into Customer values (9, 'Twin', '', '', '', 1, '', '', '', '', '', '', '', null)");
    QWidget& window = customers("A");
    struct Row {
        const char* name;
        const char* steps;  // Ok loses what was refused, Apply does not
        std::vector<TestHost::Box> boxes;
    };
    const TestHost::Box invalid = ok("Please enter Valid Data");
    for (const Row& row : {Row{"", "cmdOk", {ok("Enter Customer Name"), invalid}},
                           Row{"Twin", "cmdOk", {ok("Duplicate Customer Data"), invalid}},
                           Row{"Twin", "CmdSave; TxtBZip=1; cmdOk", {ok("Duplicate Customer Data"), invalid, saved}}}) {
        SCOPED_TRACE(row.steps);
        go(window, std::string("txtCustName=") + row.name);
        inEntryForm([&] { go(window, "cmdAdd"); }, [&](QWidget& form) { go(form, row.steps, row.boxes); });
    }
    EXPECT_EQ(names(), (Texts{"Ann Lee", "Bob Ray", "Twin", "Twin"}));
}

TEST_F(CustomersTest, EditedByButtonAndByDoubleClick) {
    QWidget& window = customers("E");
    inEntryForm([&] { go(window, "CmdEdit"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, entryBoxes),
                              "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-2|555-3|ann@example.com|www");
                    go(form, "TxtBcity=Bend; CmdCancel");
                });
    // Equal to itself: only adding looks for a second one.
    inEntryForm([&] { go(window, "CmdEdit"); }, [&](QWidget& form) { go(form, "cmdOk", {saved}); });
    EXPECT_EQ(which() + rows(window)[0], "E" + ann);
    inEntryForm([&] { doubleClickRow(window, 1); },
                [&](QWidget& form) {
                    EXPECT_EQ(enabled(form, entryStates), "TxtCname TxtBcity TxtBPhone CmbBState");
                    EXPECT_EQ(text(form, "CmbBState"), "Alabama") << "a state that is none shows the first one";
                    go(form, "TxtBUrl=bob.example.com; cmdOk", {saved});
                });
    EXPECT_EQ(which(), "EE");
    EXPECT_EQ(data.cell("select * from Customer where CustId = 8"),
              "8|Bob Ray|||Troy|1|||777-1||||bob.example.com|null");
    key(list(window), Qt::Key_Up);  // from the row that was edited
    inEntryForm([&] { key(list(window), Qt::Key_Return); },
                [&](QWidget& form) {
                    go(form, "TxtCname=Ann Moe; CmdSave", {saved});
                    closeBox(form);
                });
    EXPECT_EQ(data.cell("select CustName || BCCNo from Customer where CustId = 7"), "Ann MoeA7");
    EXPECT_EQ(rows(window)[0], "7|Ann Moe|Salem|555-1|ann@example.com");
}

TEST_F(CustomersTest, DoubleClickFromAddAndDeleteOnlyShows) {
    for (const std::string mode : {"D", "A"}) {
        SCOPED_TRACE(mode);
        QWidget& window = customers(mode);
        inEntryForm([&] { doubleClickRow(window, 0); },
                    [&](QWidget& form) {
                        EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}), "CmdCancel");
                        EXPECT_EQ(enabled(form, entryStates), "");
                        EXPECT_EQ(text(form, "TxtCname"), "Ann Lee");
                        closeBox(form);
                    });
        EXPECT_EQ(which(), mode + "E");
        calls.clear();
        go(window, "cmdMainHelp");
        EXPECT_EQ(calls, Texts{"Show"}) << "there is nothing to say in this mode";
        if (mode == "D") go(window, "cmdExit");
    }
    // Add is Add again, whatever stood before.
    inEntryForm([&] { go(screens->customer.window(), "cmdAdd"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, {"TxtCname", "TxtBcity"}), "|");
                    EXPECT_EQ(visible(form, {"cmdOk", "CmdSave"}), "cmdOk CmdSave");
                    go(form, "CmdCancel");
                });
    EXPECT_EQ(which(), "A");
}

TEST_F(CustomersTest, DeletedAfterAQuestion) {
    QWidget& window = customers("D");
    go(window, "txtCustName=x");
    clickRow(list(window), 1);
    const std::string question = "Are you sure you want to Delete ' Bob Ray '";
    go(window, "cmdDel", {no(question, "Inventory")});
    EXPECT_EQ(names().size(), 2U);
    EXPECT_EQ(text(window, "txtCustName"), "");
    clickRow(list(window), 1);
    go(window, "cmdDel", {yes(question, "Inventory"), deleted});
    EXPECT_EQ(rows(window), Texts{ann});
    EXPECT_TRUE(find<QWidget>(window, "txtCustName").hasFocus());
    EXPECT_EQ(lines(5).size(), 1U) << "the estimates of a customer stay";

    go(window, "cmdDel; cmdDel; CmdAll", {yes("Are you sure you want to Delete ' Ann Lee '", "Inventory"), deleted});
    EXPECT_EQ(rows(window), Texts{});
    EXPECT_EQ(text(window, "LblRecords"), "Record 1 - 0 of 1") << "a read without rows leaves the count as it was";
    EXPECT_EQ(names(), Texts{});
}

TEST_F(CustomersTest, SearchesByTheBeginningInTheChosenColumn) {
    data.execute("update Customer set BCCNo = 'Troy-9' where CustId = 7");
    struct Row {
        const char* steps;
        Texts found;  // none: a box comes, the rows and the counter of before stay
    };
    QWidget& window = customers("E");
    auto& box = find<TextBox>(window, "txtCustName");
    for (const Row& row : {Row{"OptAll; txtCustName=troy", {ann, bob}}, Row{"OptCity; txtCustName=Troy", {bob}},
                           Row{"OptName; txtCustName=ann", {ann}}, Row{"OptName; txtCustName=Lee", {}},
                           Row{"OptPhone; txtCustName=777", {bob}}, Row{"OptEmail; txtCustName=ann@", {ann}},
                           Row{"OptEmail; txtCustName=x", {}}, Row{"OptAll; txtCustName=", {ann, bob}}}) {
        SCOPED_TRACE(row.steps);
        const Texts before = rows(window);
        const std::string label = text(window, "LblRecords");
        go(window, row.steps);
        key(box, Qt::Key_Return);
        EXPECT_EQ(rows(window), before) << "Enter searches nothing";
        std::vector<TestHost::Box> boxes;
        if (row.found.empty()) boxes.push_back(ok("Customer Not Found", ""));
        go(window, "cmdSearch", boxes);
        const std::string count = std::to_string(row.found.size());
        EXPECT_EQ(rows(window), row.found.empty() ? before : row.found);
        EXPECT_EQ(text(window, "LblRecords"), row.found.empty() ? label : "Record 1 - " + count + " of " + count);
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(utf8(box.selectedText()), box.Text());
    }
    // A double click leaves the list as it was searched, the button shows all.
    go(window, "OptName; txtCustName=Bob; cmdSearch");
    inEntryForm([&] { doubleClickRow(window, 0); }, [&](QWidget& form) { go(form, "CmdCancel"); });
    EXPECT_EQ(rows(window), Texts{bob});
    inEntryForm([&] { go(window, "CmdEdit"); }, [&](QWidget& form) { go(form, "CmdCancel"); });
    EXPECT_EQ(rows(window), (Texts{ann, bob}));
}

TEST_F(CustomersTest, NothingFoundWhileAddingOffersToAdd) {
    QWidget& window = customers("A");
    go(window, "txtCustName=Zoe; cmdSearch", {ok("Customer Not Found", "")});
    const std::string question = "Customer Not Found : Would You Like To Add ? ";
    go(window, "OptName; cmdSearch", {no(question, "Inventory")});
    inEntryForm(
        [&] {
            go(window, "cmdSearch", {yes(question, "Inventory"), saved});
        },
        [&](QWidget& form) {
            EXPECT_EQ(text(form, "TxtCname"), "Zoe");
            click(form, "cmdOk");
        });
    EXPECT_EQ(rows(window).size(), 3U);
    EXPECT_EQ(names().back(), "Zoe");
}

TEST_F(CustomersTest, PagesOfFifteen) {
    manyCustomers(32);
    QWidget& window = customers("D");
    struct Row {
        const char* steps;
        const char* label;
        const char* enabled;
        std::string firstName;
    };
    for (const Row& row : {Row{"CmdAll", "Record 1 - 15 of 32", "CmdNext", "C101"},
                           Row{"CmdNext", "Record 16 - 30 of 32", "CmdPrev CmdNext", "C116"},
                           Row{"CmdNext", "Record 31 - 32 of 32", "CmdPrev", "C131"},
                           Row{"CmdAll", "Record 31 - 32 of 32", "CmdPrev", "C131"},
                           Row{"CmdPrev", "Record 16 - 30 of 32", "CmdPrev CmdNext", "C116"},
                           Row{"OptCity; txtCustName=x; cmdSearch", "Record 1 - 15 of 16", "CmdNext", "C101"},
                           Row{"CmdNext", "Record 16 - 16 of 16", "CmdPrev", "C131"}}) {
        SCOPED_TRACE(row.label);
        go(window, row.steps);
        EXPECT_EQ(text(window, "LblRecords"), row.label);
        EXPECT_EQ(enabled(window, {"CmdPrev", "CmdNext"}), row.enabled);
        EXPECT_EQ(list(window).Cell(list(window).SelectedRow(), 1), row.firstName);
    }
    clickHeader(list(window), 1);  // the page stays
    EXPECT_EQ(text(window, "LblRecords") + list(window).Cell(0, 1), "Record 16 - 16 of 16C101");

    // So it does when its last row is deleted.
    go(window, "cmdExit");
    manyCustomers(16);
    QWidget& again = customers("D");
    go(again, "CmdNext; cmdDel", {yes("Are you sure you want to Delete ' C116 '", "Inventory"), deleted});
    EXPECT_EQ(rows(again), Texts{});
    EXPECT_EQ(text(again, "LblRecords"), "Record 16 - 15 of 15");
    go(again, "cmdDel; CmdPrev");
    EXPECT_EQ(rows(again).size(), 15U);
}

TEST_F(CustomersTest, OneFlagSortsAllColumns) {
    QWidget& window = customers("E");
    const auto icons = [&] {
        std::string all;
        for (int column = 0; column < list(window).columnCount(); ++column)
            all += "-UD"[static_cast<int>(list(window).columnIcon(column))];
        return all;
    };
    EXPECT_EQ(icons(), "-D---");
    struct Row {
        int column;
        const char* icons;
        std::string first;
    };
    for (const Row& row : {Row{1, "-D---", bob}, Row{1, "-U---", ann}, Row{2, "--D--", bob}, Row{3, "---U-", ann},
                           Row{4, "----D", ann}, Row{1, "-U---", ann}}) {
        SCOPED_TRACE(row.column);
        clickHeader(list(window), row.column);
        EXPECT_EQ(icons(), row.icons);
        EXPECT_EQ(rows(window)[0], row.first);
    }
    go(window, "txtCustName=Bob; cmdSearch");
    clickHeader(list(window), 2);
    EXPECT_EQ(rows(window), Texts{bob}) << "what was found is sorted";
}

}  // namespace
}  // namespace torvane
