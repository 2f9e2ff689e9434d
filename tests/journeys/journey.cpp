#include "journeys/journey.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>

#include "screens/assistant.h"
#include "values/numbers.h"
#include "widgets/text_area.h"

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

class RecordingAssistant : public Assistant {
public:
    explicit RecordingAssistant(Texts& calls) : calls_(calls) {}
    ~RecordingAssistant() override { calls_.push_back("Gone"); }
    void Show() override { calls_.push_back("Show"); }
    void Hide() override { calls_.push_back("Hide"); }
    void MoveTo(int x, int y) override { calls_.push_back("MoveTo " + generalText(x) + " " + generalText(y)); }
    void Play(std::string_view what) override { calls_.push_back("Play " + std::string(what)); }
    void Speak(std::string_view text) override { calls_.push_back("Speak " + std::string(text)); }

private:
    Texts& calls_;
};

std::string joinedNames(const QWidget& in, const Names& controls, bool (QWidget::*has)() const) {
    std::string names;
    for (const std::string_view name : controls)
        if ((find<QWidget>(in, name).*has)()) names += (names.empty() ? "" : " ") + std::string(name);
    return names;
}

void clear(QWidget& box) {
    click(box);
    key(box, Qt::Key_A, Qt::ControlModifier);
    key(box, Qt::Key_Delete);
}

void step(const QWidget& in, std::string_view what) {
    const auto mark = what.find('=');
    const std::string_view name = what.substr(0, mark);
    if (mark == std::string_view::npos)
        click(in, name);
    else if (in.findChild<DropList*>(qstring(name)))
        pick(in, name, what.substr(mark + 1));
    else
        enter(in, name, what.substr(mark + 1));
}

}  // namespace

std::string text(const QWidget& in, std::string_view name) {
    QWidget& control = find<QWidget>(in, name);
    if (const auto* box = qobject_cast<TextBox*>(&control)) return box->Text();
    if (const auto* area = qobject_cast<TextArea*>(&control)) return area->Text();
    if (const auto* choices = qobject_cast<DropList*>(&control)) return choices->Text();
    return utf8(find<QLabel>(in, name).text());
}

std::string texts(const QWidget& in, const Names& controls) {
    std::string all;
    for (const std::string_view& name : controls) all += (&name == &controls.front() ? "" : "|") + text(in, name);
    return all;
}

std::string visible(const QWidget& in, const Names& controls) {
    return joinedNames(in, controls, &QWidget::isVisible);
}

std::string enabled(const QWidget& in, const Names& controls) {
    return joinedNames(in, controls, &QWidget::isEnabled);
}

ReportList& list(const QWidget& in) {
    return find<ReportList>(in, "ListView1");
}

Texts rows(const QWidget& in) {
    const ReportList& view = list(in);
    Texts all;
    for (int row = 0; row < view.RowCount(); ++row) {
        std::string& cells = all.emplace_back();
        for (int column = 0; column < view.columnCount(); ++column)
            cells += (column > 0 ? "|" : "") + view.Cell(row, column);
    }
    return all;
}

void pasteInto(QWidget& box, std::string_view text) {
    clear(box);
    QApplication::clipboard()->setText(qstring(text));
    key(box, Qt::Key_V, Qt::ControlModifier);
}

void click(const QWidget& in, std::string_view control) {
    click(find<QWidget>(in, control));
}

void doubleClickRow(const QWidget& in, int row) {
    doubleClickRow(list(in), row);
}

void enter(const QWidget& in, std::string_view box, std::string_view text) {
    auto& control = find<QWidget>(in, box);
    clear(control);
    type(control, text);
}

void paste(const QWidget& in, std::string_view box, std::string_view text) {
    pasteInto(find<QWidget>(in, box), text);
}

void pick(const QWidget& in, std::string_view name, std::string_view entry) {
    pickInList(find<DropList>(in, name), entry);
}

QWidget* standing(std::string_view name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && utf8(window->objectName()) == name) return window;
    return nullptr;
}

TestHost::Box ok(std::string text, std::string title) {
    return {std::move(text), std::move(title)};
}

TestHost::Box yes(std::string text, std::string title) {
    return {std::move(text), std::move(title), Buttons::YesNo, Answer::Yes};
}

TestHost::Box no(std::string text, std::string title) {
    return {std::move(text), std::move(title), Buttons::YesNo, Answer::No};
}

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

void JourneyTest::go(const QWidget& in, std::string_view steps, const std::vector<TestHost::Box>& boxes) {
    for (const TestHost::Box& box : boxes) host.expect(box);
    for (auto end = steps.find("; "); end != std::string_view::npos; end = steps.find("; ")) {
        step(in, steps.substr(0, end));
        steps.remove_prefix(end + 2);
    }
    step(in, steps);
    host.verify();
}

QWidget& JourneyTest::newEstimate() {
    if (!screens) start();
    choose("mnuNewEstimate");
    return screens->order.window();
}

void JourneyTest::readEstimate(const char* mode, std::int32_t number) {
    run([&] {
        screens->order.AddOrDelete = mode;
        screens->order.Order().OrderNo = number;
        screens->order.Order().GetOrder();
    });
    settle();
}

QWidget& JourneyTest::openEstimate(const char* mode, std::int32_t number) {
    if (!screens) start();
    readEstimate(mode, number);
    return screens->order.window();
}

QWidget& JourneyTest::customers(std::string_view mode) {
    if (!screens) start();
    choose(mode == "A" ? "SubMnuAddCust" : mode == "E" ? "SubMnuEditCust" : "SubMnuDelCust");
    return screens->customer.window();
}

void JourneyTest::pickCustomer(QWidget& order, const std::function<void(QWidget&)>& act) {
    whenModal([act](QWidget& top) {
        EXPECT_EQ(utf8(top.objectName()), "frmCustomer");
        act(top);
    });
    go(order, "CmdSelCust");
}

std::string JourneyTest::header(int number) const {
    return data.cell("select * from OrderInfo where OrderNo = " + std::to_string(number));
}

Texts JourneyTest::lines(int number) const {
    return data.rows(
        "select ItemId, Qty, Material, RoomId, UnitId, Extension, Labor, Others from OrderItem where OrderNo = " +
        std::to_string(number) + " order by rowid");
}

std::string JourneyTest::endedBy(const std::function<void()>& act) {
    const RuntimeFailure failure = endOf(act);
    return std::to_string(failure.number()) + " " + failure.refused();
}

}  // namespace torvane
