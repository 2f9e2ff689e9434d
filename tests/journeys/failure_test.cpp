// Journeys that end in the run-time error box: what it says that was going on, and what the database holds then.

#include <QApplication>

#include "journeys/journey.h"
#include "support/files.h"

namespace torvane {
namespace {

struct Ending {
    const char* during;
    const char* opened;  // entries of the menu, or "edit" (estimate 3), separated by "; "
    const char* broken;  // statements
    const char* steps;   // in the window in front; "" when the opening itself meets what is broken
    const char* ended;   // number, and the beginning of the refused text
    Boxes boxes = {};
    const char* select = "select ItemId, Qty from OrderItem where OrderNo = 3";
    const char* stored = "1|2.5;3|100.0;";  // its rows afterwards
};

const char* price = "select Material from Item where ItemId = 1";
const char* noteAndLines =
    "select Notes, (select count(*) from OrderItem where OrderNo = 3) from OrderInfo where OrderNo = 3";
const char* customers = "select CustName from Customer";
const Boxes none;
const Boxes update{yes("You have changed the Material Price. Do you want to update this price in Main File?",
                       "Change master file price?")};
const Boxes saved{ok("Estimate Saved")};
const Boxes saveName{yes("Do you want to save the record?", "Save Data")};

const Ending endings[] = {
    {"writing the price to the catalog", "mnuNewEstimate", "", "cmbItems=Joist; TxtMaterial=; TxtQty",
     "1 update Item set Material= where Itemid=1", update, price, "10.0;"},
    {"adding the line", "mnuNewEstimate", "drop table Item", "TxtQty=1; cmdAdd", "1 "},
    {"changing the line", "edit", "", "CmdSave; CmdEdit; cmdEditApply", "9 ", saved},
    {"changing the line", "edit", "", "CmdEdit; TxtQty=1.2.3; cmdEditApply", "13 1.2.3"},
    {"saving the estimate", "edit", "", "txtNotes=Ann's; CmdSave", "1 Update OrderInfo Set CustId = 7, Rep", none,
     noteAndLines, "Old note|0;"},
    {"saving the estimate", "edit; mnuNewEstimate", "", "CmdSave", "19 Insert into OrderInfo (Orderno,"},
    {"computing the totals", "edit", "", "txtTaxPer=1e308; txtOHPer=1e308", "6 "},
    {"reading the notes", "edit", "delete from BlankNotes", "cmdImport", "5 "},
    {"opening the estimate screen", "mnuNewEstimate", "drop table Rooms", "", "1 "},
    {"opening the estimate", "mnuEditEstimate", "alter table OrderItem rename Qty to Lost", "CmdSelect", "5 ", none,
     "select count(*) from OrderItem", "3;"},
    {"looking for the estimate", "mnuDelEstimate", "", "TxtGetOrderNo=3a; cmdOk", "13 3a"},
    {"saving the record", "SubMnuAddCust", "", "txtCustName=O'Hara; cmdAdd",
     "1 Select * from Customer where CustName ='O'Hara' and ", none, customers, "Ann Lee;Bob Ray;"},
    {"searching", "SubMnuEditCust", "", "txtCustName=O'; cmdSearch",
     "1 SELECT CustId,CustName,BCity,BPhone,BEmail,BCCNo from Customer  where CustName like 'O'%'"},
    {"working in the window \"Edit Customer\"", "SubMnuEditCust",
     "pragma ignore_check_constraints = on; update Customer set CustId = 40000 where CustId = 7", "CmdAll; CmdEdit",
     "6 "},
    {"saving the name", "mnuUnits", "drop table Units", "CmdSave", "1 ", saveName},
    {"saving the notes", "mnuBlank", "drop table BlankNotes", "cmdOk", "1 "},
    {"starting the conversions program", "mnucalc1_6", "", "", "53 "},
    {"computing the Resilient Tile Calculator", "mnucalc3_9", "", "cmdTab36", "9 "},
};

TEST_F(JourneyTest, EndsInTheRunTimeErrorBox) {
    const std::string good = bytes(data.database());
    host.missingPrograms = true;
    for (const Ending& row : endings) {
        SCOPED_TRACE(std::string(row.during) + ": " + row.steps);
        write(data.database(), good);
        const RuntimeFailure failure = endOf([&] {
            start();
            if (!*row.steps) data.execute(row.broken);
            for (const QString& entry : QString(row.opened).split("; "))
                entry == "edit" ? void(openEstimate(3)) : choose(utf8(entry));
            data.execute(row.broken);
            // The form in which a record is entered.
            if (std::string_view(row.during) == "saving the record")
                whenModal([](QWidget& form) { click(form, "cmdOk"); });
            go(*QApplication::activeWindow(), row.steps, row.boxes);
        });
        const std::string ended = std::to_string(failure.number()) + " " + failure.refused();
        EXPECT_TRUE(ended.starts_with(row.ended)) << ended;
        EXPECT_EQ(failure.during(), row.during);
        std::string stored;
        for (const std::string& one : data.rows(row.select)) stored += one + ";";
        EXPECT_EQ(stored, row.stored);
    }
}

// What was executed stays: the group that the handler has open is on the disk when the process leaves.
TEST_F(JourneyTest, AnEndInTheMidstOfAWriteKeepsWhatWasWritten) {
    endOf([&] {
        Connection connection({host, store});
        grouped(connection, [&] {
            connection.execute("insert into Units values (3, 'yard')");
            run([] { fail(Failure::TypeMismatch); });
        });
    });
    EXPECT_EQ(data.cell("select Name from Units where Id = 3"), "yard");
}

}  // namespace
}  // namespace torvane
