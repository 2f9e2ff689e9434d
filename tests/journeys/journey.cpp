#include "journeys/journey.h"

#include <QApplication>

#include "screens/assistant.h"
#include "values/numbers.h"

namespace torvane {

namespace {

constexpr std::string_view smallBusiness = R"sql(
delete from Rooms; delete from Units; delete from sqlite_sequence;
insert into Rooms values (1, 'Attic'), (2, 'Deck'), (3, 'Roof');
insert into Units values (1, 'Each'), (2, 'Bag');
insert into Category values (1, 'Framing', 0);
insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Labor, SubLabor, Equipment, Qty) values
    (1, '1', 'Joist', 1, 1, 10, 4, 5, 6, 2), (2, '2', 'Nails', 1, 1, 2.5, 0, 0, 0, 0), (3, '3', 'Brick', 1, 2, 0.5, 20, 0, 1.25, 100);
insert into Customer values
    (7, 'Ann Lee', '1 Elm', 'Apt 2', 'Salem', 38, '97301', 'USA', '555-1', '555-2', '555-3', 'ann@example.com', 'www', 'A7'),
    (8, 'Bob Ray', null, null, 'Troy', 99, null, null, '777-1', null, null, null, null, null);
insert into OrderInfo (OrderNo, CustId, RepId, OrderDate, SStreet1, SState, ShipId, Amount, Tax, Overhead, Total, UPSTracking, Notes)
    values (3, 7, 2, '2003-07-04', '9 Oak', 38, 4, 200, 8, 10, 236, 'Lot 3', 'Old note'), (5, 8, 0, '2004-01-31', '5 Fir', 99, 0, 10, 0, 0, 10, '', '');
insert into OrderItem (OrderNo, ItemId, Qty, Material, RoomId, UnitId, Extension, Labor, Others) values
    (3, 1, 2.5, 25, 2, 1, 5, 4, null), (3, 3, 100, 50, 3, 2, 0, 20, 1.25), (5, 1, 1, 10, 1, 1, 0, 0, 0);
update BlankNotes set Notes = 'Good for 30 days.' || char(10) || 'Half is due on signing.';
)sql";

struct RecordingAssistant : Assistant {
    explicit RecordingAssistant(Texts& calls) : calls_(calls) {}
    ~RecordingAssistant() override { calls_.push_back("Gone"); }
    void Show() override { calls_.push_back("Show"); }
    void Hide() override { calls_.push_back("Hide"); }
    void MoveTo(int x, int y) override { calls_.push_back("MoveTo " + generalText(x) + " " + generalText(y)); }
    void Play(std::string_view what) override { calls_.push_back("Play " + std::string(what)); }
    void Speak(std::string_view text) override { calls_.push_back("Speak " + std::string(text)); }
    Texts& calls_;
};

}  // namespace

JourneyTest::JourneyTest() {
    data.useEmpty();
    data.execute(smallBusiness);
    host.folder = data.path();
}

std::unique_ptr<Assistant> JourneyTest::recordingAssistant() {
    return std::make_unique<RecordingAssistant>(calls);
}

void JourneyTest::start(bool previousInstance, LoadAssistant loadAssistant) {
    if (!loadAssistant) loadAssistant = [this](const std::string&) { return recordingAssistant(); };
    screens = std::make_unique<Screens>(program, files, previousInstance, loadAssistant);
    run([&] { screens->mainMenu.Show(); });
    settle();
}

QWidget& JourneyTest::opened(std::string_view entryName) {
    if (!screens) start();
    choose(entryName);
    return *QApplication::activeWindow();
}

QWidget& JourneyTest::openEstimate(int number) {
    go(opened("mnuEditEstimate"), "txtName=" + std::to_string(number) + "; cmdSearch; CmdSelect");
    return screens->order.window();
}

Texts JourneyTest::lines(int number) const {
    return data.rows(
        "select ItemId, Qty, Material, RoomId, UnitId, Extension, Labor, Others from OrderItem where OrderNo = " +
        std::to_string(number) + " order by rowid");
}

}  // namespace torvane
