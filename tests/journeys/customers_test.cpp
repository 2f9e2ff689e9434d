// The customer list and its entry form.

#include <QHeaderView>

#include "journeys/journey.h"

namespace torvane {
namespace {

const std::initializer_list<std::string_view> actions{"cmdAdd", "cmdCopy", "CmdEdit", "cmdDel", "CmdSelect"};
const std::initializer_list<std::string_view> entryBoxes{"TxtCname",  "TxtBstreet1", "TxtBstreet2", "TxtBcity",
                                                         "CmbBState", "TxtBZip",     "TxtBCountry", "TxtBPhone",
                                                         "TxtBfax",   "TxtBMobile",  "TxtBEmail",   "TxtBUrl"};
const std::initializer_list<std::string_view> entryStates{"TxtCname", "TxtBcity", "TxtBPhone", "CmbBState"};
const std::string ann = "7|Ann Lee|Salem|555-1|ann@example.com";
const std::string bob = "8|Bob Ray|Troy|777-1|";

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
    void saved(QWidget& form, std::string_view button) {
        host.expectOk("Customer Saved", "Inventory");
        click(form, button);
        host.verify();
    }
    Texts names() { return data.rows("select CustName from Customer order by CustId"); }
    std::string which() { return screens->customer.Which; }
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
        QWidget& list = customers(row.which);
        EXPECT_EQ(utf8(list.windowTitle()), row.caption);
        EXPECT_EQ(visible(list, actions), row.action);
        EXPECT_EQ(rows(list), (Texts{ann, bob}));
        EXPECT_EQ(text(list, "LblRecords"), "Record 1 - 2 of 2");
        calls.clear();
        click(list, "cmdMainHelp");
        click(list, "cmdMainHelp");
        EXPECT_EQ(calls, (Texts{"Show", "Speak " + row.help, "Show", "Speak " + row.help}));

        if (row.which != std::string("A")) {
            customers("A");  // stays loaded: only the mode changes
            EXPECT_EQ(utf8(list.windowTitle()), row.caption);
            EXPECT_EQ(which(), "A");
        }
        click(list, "cmdExit");
        EXPECT_FALSE(screens->customer.loaded());
    }
    // After a double click there is nothing to say.
    QWidget& list = customers("D");
    inEntryForm([&] { doubleClickRow(list, 0); }, [](QWidget& form) { click(form, "CmdCancel"); });
    EXPECT_EQ(which(), "DE");
    calls.clear();
    click(list, "cmdMainHelp");
    EXPECT_EQ(calls, Texts{"Show"});
}

TEST_F(CustomersTest, AddedOnceByApply) {
    QWidget& list = customers("A");
    enter(list, "txtCustName", "Cara Moe");
    inEntryForm([&] { click(list, "cmdAdd"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, entryBoxes), "Cara Moe||||Alabama|||||||");
                    EXPECT_EQ(enabled(form, entryStates), "TxtCname TxtBcity TxtBPhone CmbBState");
                    enter(form, "TxtBcity", "Reno");
                    enter(form, "TxtBfax", "1");
                    enter(form, "TxtBPhone", "2");
                    enter(form, "TxtBMobile", "3");
                    pick(form, "CmbBState", "Nevada");
                    saved(form, "CmdSave");
                    EXPECT_EQ(enabled(form, {"CmdSave", "cmdOk"}), "cmdOk");
                    EXPECT_EQ(text(form, "TxtCname"), "Cara Moe") << "the boxes keep their text";
                    calls.clear();
                    click(form, "cmdMainHelp");
                    EXPECT_EQ(
                        calls.back(),
                        "Speak Once you enter all the data, press 'Ok' button to save the record and close. 'Cancel' "
                        "button closes "
                        "the window without saving. 'Apply' button saves your data but does not close the window.");
                    click(form, "cmdOk");
                });
    EXPECT_EQ(data.cell("select * from Customer where CustName = 'Cara Moe'"), "9|Cara Moe|||Reno|29|||2|1|3|||null");
    EXPECT_EQ(rows(list), (Texts{ann, bob, "9|Cara Moe|Reno|2|"}));
    EXPECT_EQ(text(list, "LblRecords"), "Record 1 - 3 of 3");
}

TEST_F(CustomersTest, WhatOkAndApplyRefuse) {
    data.execute("insert into Customer values (9, 'Twin', '', '', '', 1, '', '', '', '', '', '', '', null)");
    QWidget& list = customers("A");
    struct Row {
        const char* name;
        const char* button;
        const char* refused;
    };
    for (const Row& row : {Row{"", "cmdOk", "Enter Customer Name"}, Row{"Twin", "cmdOk", "Duplicate Customer Data"},
                           Row{"Twin", "CmdSave", "Duplicate Customer Data"}}) {
        SCOPED_TRACE(std::string(row.name) + row.button);
        enter(list, "txtCustName", row.name);
        inEntryForm([&] { click(list, "cmdAdd"); },
                    [&](QWidget& form) {
                        host.expectOk(row.refused, "Inventory");
                        host.expectOk("Please enter Valid Data", "Inventory");
                        click(form, row.button);  // Ok loses what was refused
                        host.verify();
                        if (row.button != std::string("CmdSave")) return;
                        EXPECT_EQ(enabled(form, {"CmdSave"}), "CmdSave");
                        enter(form, "TxtBZip", "1");
                        saved(form, "cmdOk");
                    });
    }
    EXPECT_EQ(names(), (Texts{"Ann Lee", "Bob Ray", "Twin", "Twin"}));
}

TEST_F(CustomersTest, EditedByButtonAndByDoubleClick) {
    QWidget& list = customers("E");
    inEntryForm([&] { click(list, "CmdEdit"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, entryBoxes),
                              "Ann Lee|1 Elm|Apt 2|Salem|Oregon|97301|USA|555-1|555-2|555-3|ann@example.com|www");
                    enter(form, "TxtBcity", "Bend");
                    click(form, "CmdCancel");
                });
    EXPECT_EQ(which(), "E");
    EXPECT_EQ(data.cell("select BCity from Customer where CustId = 7"), "Salem");
    inEntryForm([&] { doubleClickRow(list, 1); },
                [&](QWidget& form) {
                    EXPECT_EQ(enabled(form, entryStates), "TxtCname TxtBcity TxtBPhone CmbBState");
                    EXPECT_EQ(text(form, "CmbBState"), "Alabama") << "a state that is none shows the first one";
                    enter(form, "TxtBUrl", "bob.example.com");
                    saved(form, "cmdOk");
                });
    EXPECT_EQ(which(), "EE");
    EXPECT_EQ(data.cell("select * from Customer where CustId = 8"),
              "8|Bob Ray|||Troy|1|||777-1||||bob.example.com|null");
    inEntryForm([&] { key(find<ReportList>(list, "ListView1"), Qt::Key_Return); },
                [&](QWidget& form) {
                    enter(form, "TxtCname", "Ann Moe");
                    saved(form, "CmdSave");
                    closeBox(form);
                });
    EXPECT_EQ(data.cell("select CustName || BCCNo from Customer where CustId = 7"), "Ann MoeA7");
    EXPECT_EQ(rows(list)[0], "7|Ann Moe|Salem|555-1|ann@example.com");
}

TEST_F(CustomersTest, DoubleClickFromAddAndDeleteOnlyShows) {
    struct Row {
        const char* mode;
        const char* after;
    };
    for (const Row& row : {Row{"A", "AE"}, Row{"D", "DE"}}) {
        SCOPED_TRACE(row.mode);
        QWidget& list = customers(row.mode);
        inEntryForm([&] { doubleClickRow(list, 0); },
                    [&](QWidget& form) {
                        EXPECT_EQ(visible(form, {"cmdOk", "CmdSave", "CmdCancel"}), "CmdCancel");
                        EXPECT_EQ(enabled(form, entryStates), "");
                        EXPECT_EQ(text(form, "TxtCname"), "Ann Lee");
                        click(form, "CmdCancel");
                    });
        EXPECT_EQ(which(), row.after);
        click(list, "cmdExit");
    }
    // Add is Add again, whatever stood before.
    QWidget& list = customers("A");
    inEntryForm([&] { doubleClickRow(list, 0); }, [](QWidget& form) { closeBox(form); });
    inEntryForm([&] { click(list, "cmdAdd"); },
                [&](QWidget& form) {
                    EXPECT_EQ(texts(form, {"TxtCname", "TxtBcity"}), "|");
                    EXPECT_EQ(visible(form, {"cmdOk", "CmdSave"}), "cmdOk CmdSave");
                    click(form, "CmdCancel");
                });
    EXPECT_EQ(which(), "A");
}

TEST_F(CustomersTest, DeletedAfterAQuestion) {
    QWidget& list = customers("D");
    enter(list, "txtCustName", "x");
    clickRow(find<ReportList>(list, "ListView1"), 1);
    const char* question = "Are you sure you want to Delete ' Bob Ray '";
    host.expectYesNo(question, "Inventory", Answer::No);
    click(list, "cmdDel");
    EXPECT_EQ(names().size(), 2U);
    EXPECT_EQ(text(list, "txtCustName"), "");
    clickRow(find<ReportList>(list, "ListView1"), 1);
    host.expectYesNo(question, "Inventory", Answer::Yes);
    host.expectOk("Deleted", std::string(defaultTitle));
    click(list, "cmdDel");
    EXPECT_EQ(names(), Texts{"Ann Lee"});
    EXPECT_EQ(rows(list), Texts{ann});
    EXPECT_TRUE(find<QWidget>(list, "txtCustName").hasFocus());
    EXPECT_EQ(lines(5).size(), 1U) << "its estimates stay";

    host.expectYesNo("Are you sure you want to Delete ' Ann Lee '", "Inventory", Answer::Yes);
    host.expectOk("Deleted", std::string(defaultTitle));
    click(list, "cmdDel");
    EXPECT_EQ(rows(list), Texts{});
    EXPECT_EQ(text(list, "LblRecords"), "Record 1 - 0 of 1") << "a read without rows leaves the count as it was";
    for (const char* button : {"cmdDel", "CmdAll"}) click(list, button);
    EXPECT_EQ(names(), Texts{});
}

TEST_F(CustomersTest, SearchesByTheBeginningInTheChosenColumn) {
    data.execute("update Customer set BCCNo = 'Troy-9' where CustId = 7");
    struct Row {
        const char* option;
        const char* text;
        Texts found;  // none: the box comes and the rows before stay
    };
    QWidget& list = customers("E");
    for (const Row& row :
         {Row{"OptAll", "troy", {ann, bob}}, Row{"OptCity", "Troy", {bob}}, Row{"OptName", "ann", {ann}},
          Row{"OptName", "Lee", {}}, Row{"OptPhone", "777", {bob}}, Row{"OptEmail", "ann@", {ann}},
          Row{"OptEmail", "x", {}}, Row{"OptAll", "", {ann, bob}}, Row{"OptCity", "_roy", {bob}}}) {
        SCOPED_TRACE(std::string(row.option) + " " + row.text);
        const Texts before = rows(list);
        const std::string label = text(list, "LblRecords");
        click(list, row.option);
        enter(list, "txtCustName", row.text);
        key(find<QWidget>(list, "txtCustName"), Qt::Key_Return);
        EXPECT_EQ(rows(list), before) << "Enter searches nothing";
        if (row.found.empty()) host.expectOk("Customer Not Found", "");
        click(list, "cmdSearch");
        host.verify();
        EXPECT_EQ(rows(list), row.found.empty() ? before : row.found);
        EXPECT_EQ(text(list, "LblRecords"), row.found.empty() ? label
                                                              : "Record 1 - " + std::to_string(row.found.size()) +
                                                                    " of " + std::to_string(row.found.size()));
        EXPECT_TRUE(find<QWidget>(list, "txtCustName").hasFocus());
        EXPECT_EQ(utf8(find<TextBox>(list, "txtCustName").selectedText()), row.text);
    }
    // A double click leaves the list as it was searched, the button shows all.
    click(list, "OptName");
    enter(list, "txtCustName", "Bob");
    click(list, "cmdSearch");
    inEntryForm([&] { doubleClickRow(list, 0); }, [](QWidget& form) { click(form, "CmdCancel"); });
    EXPECT_EQ(rows(list), Texts{bob});
    inEntryForm([&] { click(list, "CmdEdit"); }, [](QWidget& form) { click(form, "CmdCancel"); });
    EXPECT_EQ(rows(list), (Texts{ann, bob}));
    EXPECT_EQ(text(list, "txtCustName"), "Bob");
}

TEST_F(CustomersTest, NothingFoundWhileAddingOffersToAdd) {
    QWidget& list = customers("A");
    enter(list, "txtCustName", "Zoe");
    host.expectOk("Customer Not Found", "");
    click(list, "cmdSearch");
    click(list, "OptName");
    const char* question = "Customer Not Found : Would You Like To Add ? ";
    host.expectYesNo(question, "Inventory", Answer::No);
    click(list, "cmdSearch");
    host.expectYesNo(question, "Inventory", Answer::Yes);
    inEntryForm([&] { click(list, "cmdSearch"); },
                [&](QWidget& form) {
                    EXPECT_EQ(text(form, "TxtCname"), "Zoe");
                    saved(form, "cmdOk");
                });
    EXPECT_EQ(rows(list).size(), 3U);
    EXPECT_EQ(names().back(), "Zoe");
}

TEST_F(CustomersTest, PagesOfFifteen) {
    std::string many = "delete from Customer; insert into Customer (CustName, BCity) values ('C 01', 'X')";
    for (int i = 2; i <= 32; ++i)
        many += ",('C " + std::string(i < 10 ? "0" : "") + std::to_string(i) + "', '" + (i % 2 ? "X" : "Y") + "')";
    data.execute(many);
    QWidget& list = customers("E");
    struct Row {
        const char* button;
        const char* label;
        const char* enabled;
        const char* firstRow;
    };
    const auto look = [&](const Row& row) {
        SCOPED_TRACE(std::string(row.button) + " " + row.label);
        if (row.button[0]) click(list, row.button);
        EXPECT_EQ(text(list, "LblRecords"), row.label);
        EXPECT_EQ(enabled(list, {"CmdPrev", "CmdNext"}), row.enabled);
        EXPECT_TRUE(rows(list)[0].find(row.firstRow) != std::string::npos) << rows(list)[0];
        EXPECT_EQ(find<ReportList>(list, "ListView1").SelectedRow(), 0);
    };
    for (const Row& row : {Row{"", "Record 1 - 15 of 32", "CmdNext", "C 01"},
                           Row{"CmdNext", "Record 16 - 30 of 32", "CmdPrev CmdNext", "C 16"},
                           Row{"CmdNext", "Record 31 - 32 of 32", "CmdPrev", "C 31"},
                           Row{"CmdAll", "Record 31 - 32 of 32", "CmdPrev", "C 31"},
                           Row{"CmdPrev", "Record 16 - 30 of 32", "CmdPrev CmdNext", "C 16"}})
        look(row);
    clickHeader(find<ReportList>(list, "ListView1"), 1);  // the page stays
    look({"", "Record 16 - 30 of 32", "CmdPrev CmdNext", "C 17"});
    click(list, "OptCity");
    enter(list, "txtCustName", "x");
    look({"cmdSearch", "Record 1 - 15 of 16", "CmdNext", "C 31"});
    look({"CmdNext", "Record 16 - 16 of 16", "CmdPrev", "C 01"});
}

TEST_F(CustomersTest, ThePageStaysWhenItsLastRowIsDeleted) {
    std::string many = "delete from Customer; insert into Customer (CustName) values ('C')";
    for (int i = 1; i < 16; ++i) many += ",('C')";
    data.execute(many);
    QWidget& list = customers("D");
    click(list, "CmdNext");
    EXPECT_EQ(rows(list), Texts{"16|C|||"});
    host.expectYesNo("Are you sure you want to Delete ' C '", "Inventory", Answer::Yes);
    host.expectOk("Deleted", std::string(defaultTitle));
    click(list, "cmdDel");
    EXPECT_EQ(rows(list), Texts{});
    EXPECT_EQ(text(list, "LblRecords"), "Record 16 - 15 of 15");
    click(list, "cmdDel");
    EXPECT_EQ(enabled(list, {"CmdPrev", "CmdNext"}), "CmdPrev");
    click(list, "CmdPrev");
    EXPECT_EQ(rows(list).size(), 15U);
}

TEST_F(CustomersTest, OneFlagSortsAllColumns) {
    QWidget& list = customers("E");
    auto& view = find<ReportList>(list, "ListView1");
    const auto icons = [&] {
        std::string all;
        for (int column = 0; column < view.columnCount(); ++column)
            all += view.columnIcon(column) == ReportList::Icon::Up     ? 'U'
                   : view.columnIcon(column) == ReportList::Icon::Down ? 'D'
                                                                       : '-';
        return all;
    };
    EXPECT_EQ(icons(), "-D---");
    struct Row {
        int column;
        const char* icons;
        const char* first;
    };
    for (const Row& row : {Row{1, "-D---", "Bob"}, Row{1, "-U---", "Ann"}, Row{2, "--D--", "Bob"},
                           Row{3, "---U-", "Ann"}, Row{4, "----D", "Ann"}, Row{1, "-U---", "Ann"}}) {
        SCOPED_TRACE(row.column);
        clickHeader(view, row.column);
        EXPECT_EQ(icons(), row.icons);
        EXPECT_NE(rows(list)[0].find(row.first), std::string::npos) << rows(list)[0];
    }
    // After a search the found rows are sorted.
    enter(list, "txtCustName", "Bob");
    click(list, "cmdSearch");
    clickHeader(view, 2);
    EXPECT_EQ(rows(list), Texts{bob});
    EXPECT_TRUE(view.header()->isSectionHidden(0));
}

}  // namespace
}  // namespace torvane
