#include <gtest/gtest.h>

#include <map>
#include <set>

#include "calculators/calculator_groups.h"
#include "calculators/trade_math.h"
#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {
namespace {

// All panels, each once.
std::vector<std::unique_ptr<Panel>> allPanels() {
    std::set<MakePanel> seen;
    std::vector<std::unique_ptr<Panel>> panels;
    for (const CalculatorGroup& group : calculatorGroups())
        for (const CalculatorTab& tab : group.tabs)
            if (tab.panel && seen.insert(tab.panel).second) panels.push_back(tab.panel());
    return panels;
}

int failureOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

// A panel on which one writes and presses without a window.
class Desk : public PanelDesk {
public:
    explicit Desk(Panel& panel) : panel_(panel) {
        panel.desk = this;
        for (const Control* control : panel.controls()) {
            if (isBox(*control)) texts_[control->name] = control->start;
            if (control->kind == ControlKind::List) selected_[control->name] = -1;
            if (control->kind == ControlKind::Option) set_[control->name] = control->setAtStart;
        }
    }
    std::string text(const Box& box) const override { return texts_.at(box.name); }
    void setText(const Box& box, std::string_view text) override { texts_.at(box.name) = text; }
    int selected(const List& list) const override { return selected_.at(list.name); }
    bool isSet(const Option& option) const override { return set_.at(option.name); }

    // Texts with commas between, for the numbered boxes from 1 up; or name=text, without what the names of the boxes
    // begin with. A list is given its entry from 0, an option 1.
    void enter(const std::string& entries, const std::string& panelNumber) {
        int number = 0;
        for (std::size_t at = 0; at < entries.size();) {
            const std::size_t end = std::min(entries.find(", ", at), entries.size());
            const std::string entry = entries.substr(at, end - at);
            const std::size_t equals = entry.find('=');
            const std::string name = equals == std::string::npos ? std::to_string(++number) : entry.substr(0, equals);
            const std::string text = equals == std::string::npos ? entry : entry.substr(equals + 1);
            if (selected_.contains(name)) {
                selected_.at(name) = std::stoi(text);
            } else if (set_.contains(name)) {
                for (auto& [option, set] : set_) set = option == name;
            } else {
                texts_.at((panelNumber == "5" ? "txt" : "txtTab" + panelNumber + "_") + name) = text;
            }
            at = end + 2;
        }
    }
    // All buttons, or those whose names are among the given ones.
    void press(std::string_view buttons = "") {
        for (const Control* control : panel_.controls())
            if (control->kind == ControlKind::Button &&
                (buttons.empty() || buttons.find(control->name) != std::string_view::npos))
                control->compute();
    }
    void selectFirstEntries() {
        for (auto& [list, index] : selected_) index = 0;
    }
    std::string results() const {
        std::string joined;
        for (const Control* control : panel_.controls())
            if (control->kind == ControlKind::Result || control->label == "Cubic Yards Required")
                joined += texts_.at(control->name) + " | ";
        return joined.substr(0, joined.size() - 3);
    }

private:
    static bool isBox(const Control& control) {
        return control.kind == ControlKind::Input || control.kind == ControlKind::Result;
    }
    Panel& panel_;
    std::map<std::string, std::string> texts_;
    std::map<std::string, int> selected_;
    std::map<std::string, bool> set_;
};

struct Row {
    const char* panel;
    std::string entries;
    std::string results;
    const char* buttons = "";
    int failure = 0;
};

void check(const Row& row) {
    SCOPED_TRACE(row.panel + (": " + row.entries));
    const auto panels = allPanels();
    const auto panel = std::find_if(panels.begin(), panels.end(),
                                    [&row](auto& one) { return one->frame == std::string("frmTab") + row.panel; });
    ASSERT_NE(panel, panels.end());
    Desk desk(**panel);
    desk.enter(row.entries, row.panel);
    EXPECT_EQ(failureOf([&] { desk.press(row.buttons); }), row.failure);
    EXPECT_EQ(desk.results(), row.results);
}

TEST(Panels, Masonry) {
    const std::string sides = "Length1=30, Length2=30, Length3=20, Length4=20, Height=7.5";
    const Row rows[] = {
        {"1", sides, "23 | 23 | 15 | 15 | 76 | 912", "cmdTab6_1"},
        {"1", sides, "23 | 23 | 15 | 15 | 76 | 912", "cmdTab6_2"},
        {"1", "Length1=10, Height=7.34, BlockSize=18", "7 | 0 | 0 | 0 | 7 | 84"},
        {"1", "Length1=10, Height=8, BlockSize=0", "0 | 0 | 0 | 0 | 0 | 0"},
        {"2", "1=1, 2=27, 3=1, Tab2_Option2=1", "27 | 1 | 0 | 1"},
        {"2", "10, 10, 4", "100 | 1.23457 | 0 | 1.23457"},
        // Exact halves in the sixth place go to the even fifth; the total is of the exact volumes.
        {"2", "1, 27, .015625, BaseDepth=.046875, Tab2_Option2=1", "27 | 0.01562 | 0.04688 | 0.0625"},
        {"2", "1, 27, .000004, BaseDepth=.000004, Tab2_Option2=1", "27 | 0 | 0 | 1E-05"},
        {"3", "8, 100", "9.48148"},
        {"3", "8, 100, Tab3_Option2=1", "15.11111"},
        {"4", "10, 12", "0.29089"},
        {"5",
         "Length1=10.5, Width1=8.25, nBricks1=6.75, Bricks2=abc, Bricks3=2.5x, Length4=120, Width4=24, nBricks4=4.5",
         "86.625 | 607 | 780 | 585 |  | abc |  |  |  | 2.5x |  |  | 2880 | 20160 | 25920 | 12960 | 20769.5 | 26700 | "
         "13545",
         "cmdTab5_1 cmdTab5_4"},
        {"8", "160, 16, 8, 4, 8, 8=110.50", "5.26749 | 15.80247 | 6 | 18 | 24 | 2652 | 7956 | 10608"},
        // 25 x 1.12 is a little over 28 as a double, and 28 as a text.
        {"8", "270, 30, 12, 3.75, 8, 8=95", "25 | 25 | 28 | 27 | 55 | 5225 | 15675 | 20900"},
        {"8", "270, 30, 12, 8=95", " |  | 0 | 0 | 0 | 0 | 0 | 0", "cmdTab8_2"},
        {"14", "10, 0.5, 120", "2 | 240 | 720 | 960"},
    };
    for (const Row& row : rows) check(row);
}

TEST(Panels, Framing) {
    const Row rows[] = {
        {"9", "148, 16, 4, 6=57, 7=16, 8=2, 9=4, 10=6", "120 | 960 | 28 | 68 | 362.666666666667 | 11"},
        // Without a spacing, or without a length, only the extra studs are left.
        {"9", "10, 3=1, 6=-40, 7=16, 10=.6", "2 | 16 | 2 | 2 | 10.6666666666667 | 0"},
        // 8.4 x 12 / 14.4 is a little over 7 as a double, and 7 as a text.
        {"9", "8.4, 14.4", "8 | 64 | 2 | 0 | 0 | 0"},
        {"10", "6, 28, 65, 20", "2035 | 64 | 1280"},
        {"10", "5, 24, 30, 18.50", "780 | 25 | 463"},
        {"11", "14, 8, 10, 20, 3, 10, cmbTab11_1=5, cmbTab11_2=2, cmbTab11_3=6",
         "9.33333333333333 | 2 | 10 | 50 | 71.3333333333333"},
        {"11", "12, 12, 12, cmbTab11_1=7, cmbTab11_2=4, cmbTab11_3=0", "16 | 6 | 0 | 0 | 22"},
        {"11", "12, 12, 8, cmbTab11_1=1, cmbTab11_2=3", "2 | 4 | 0 | 0 | 6"},
        {"12", "8, , 15, 1.5", "19.83053 | 25.79729 | 23.45208 | 2.34521 | 33.69007 | 23.09347 | 25.2394"},
        {"12", "9, 1.5, 12, 2", "17.42188 | 22.31089 | 19.10932 | 3.20156 | 36.8699 | 25.10409 | 27.93835"},
        // A ridge wider than the run.
        {"12", "12, 48, 1", "0 | 0 | 0 | 0 | 45 | 30 | 35.26439"},
        {"15", "90, 38", "31.61901 | 33.86291 | 52"},
        {"15", "135, 38", "14.30638 | 17.55124 | 52"},
        {"15", "270, 38", "-31.61901 | -33.86291 | 52"},
        {"15", "180, 38", "0 | 0 | 52"},
        {"15", "90, 0", "0 | 45 | 90"},
        {"15", "1e-9, 0", "0 | 0 | 90"},
        {"15", "360, 38", "0 | 0 | 0"},
        {"16", "12, 6, 8, 9, 4, 14", "15.67708"},
        {"16", "16, 4, , 13, 7", "21.24346"},
        {"37", "1000, cmbTab37=2", "1120 | 12"},
        {"37", "2000, cmbTab37=0", "2120 | 22"},
        {"37", "1250, cmbTab37=4", "1500 | 15"},
        {"37", "9, 150", "150 | 2"},
        {"38", "1.25, 40, cmbTab38_1=9, cmbTab38_2=1", "50"},
        // What was written before a failure stays.
        {"10", ", 1e200, 32, 1e200", "3.2E+201 | 1E+200 | ", "", 6},
        {"4", "1, 1e200", "", "", 6},
    };
    for (const Row& row : rows) check(row);
    const char* slopes[] = {"106", "108", "112", "116", "120", "125", "130", "136", "142"};
    for (std::size_t pitch = 0; pitch < std::size(slopes); ++pitch)
        check({"37", "100, cmbTab37=" + std::to_string(pitch), std::string(slopes[pitch]) + " | 2"});
}

TEST(Panels, FinishesAndSiteWork) {
    const Row rows[] = {
        {"17", "10.1, x, 12ft, 0.2", "22.3"},
        {"26", "40, 40, 28.5", "108.5"},
        {"20", "1 2, 8", "96"},
        {"22", "12, 12", "144"},
        // Paint: length, width, height, doors, windows, cost.
        {"13", "10, 15, 9, 1, 1, 30, cmbTab13=0",
         "150 | 0.333333333333333 | 10 | 415 | 0.922222222222222 | 27.6666666666667 | 37.6666666666667"},
        {"13", "12, 14, 8, 1, 2, 25, cmbTab13=2", "168 | 0.672 | 16.8 | 366 | 1.464 | 36.6 | 53.4"},
        {"13", "12, 14, 8, 1, 2, 25", "168 | 0 | 0 | 366 | 0 | 0 | 0"},
        {"13", "10, 15, , 1, 1, 30, cmbTab13=4", "150 | 1 | 30 | 0 | 0 | 0 | 30"},
        {"32", "10, 12, cmbTab32=5", "120 | 132"},
        {"32", "10, 10, cmbTab32=0", "100 | 1760"},
        {"32", "10.5, 7, cmbTab32=9", "73.5 | 20.2125"},
        {"33", "12, , , 3, 15, , , 13", "180 | 0 | 0 | 78 | 258 | 29"},
        {"35", "12, , , 3, 15, , , 13", "180 | 0 | 0 | 39 | 219 | 25"},
        {"33", "1, 2, 3, 1, 1, 2, 10, 5", "1 | 4 | 30 | 10 | 45 | 5"},
        // As a double the sum is a trace above 9, as text it is 9.
        {"35", "1.5, 1, , , 5.4, 0.9", "8.1 | 0.9 | 0 | 0 | 9 | 1"},
        {"34", "8, 10, 8, 40, 10, 4", "320 | 100 | 12 | 432 | 16"},
        {"34", "10, , , 44", "440 | 0 | 0 | 440 | 16.5"},
        {"34", "10, , , 42", "420 | 0 | 0 | 420 | 16"},
        {"34", "10, , , 41.85", "418.5 | 0 | 0 | 418.5 | 15.5"},
        {"36", "9, , , 9, cmbTab36=1", "81 | 0 | 0 | 81 | 144"},
        {"36", "1, 2, 3, 1.5, 1, 2, cmbTab36=0", "1.5 | 2 | 6 | 9.5 | 10"},
        // Tank: round unless "No" is chosen.
        {"28", "5, 10, 6, 10, , , 6, 6", "22.22 | 1.85 | 15.37 | 5"},
        {"28", "5, 10, 6, 10, 4, 8, 6, 6, optTab28_1=1", "22.22 | 1.85 | 15.37 | 5"},
        {"28", ", , , , 4, 8, 5, optTab28_2=1", "0 | 0 | -6 | 6"},
        {"28", ", 3.375, 1, 1", "0.12 | 0 | 0.12 | 0"},
        {"29", "24, 36, 100, 6, 6, 6", "22.22 | 3.7 | 17.59 | 0.93"},
        {"30", "1000, 2, 3, 4, 3", "3000"},
        {"30", "10, 1, 1, 1, 0.3333", "8.33325"},
        {"31", "31, 20", "0.5 | 620"},
        {"31", "100, 40", "2 | 4000"},
        {"31", "18, 100", "1 | 1800"},
        {"31", "100, 35", "1.75 | 3500"},
        {"31", "1, 2001", "1.25 | 2001"},
        {"31", "1, 1001", "0.75 | 1001"},
        {"31", "1, 0.1", "0.25 | 0.1"},
        // What was written before a failure stays.
        {"36", "2, , , 3", "6 | 0 | 0 | 6 | ", "", 9},
        {"32", "2, 3", "6 | ", "", 9},
        {"33", "2, 1e200, , , 3, 1e200", "6 |  |  |  |  | ", "", 6},
        {"13", "1, 1, 1e308, 1e307, -1e308, cmbTab13=0", "1 | 0.00222222222222222 | 0 |  |  |  | ", "", 6},
    };
    for (const Row& row : rows) check(row);
}

// Controls that lie on one another, or that answer to one name, are slips in a panel.
TEST(Panels, EmptyBoxesGiveZeroAndEachControlHasItsOwnCellAndName) {
    std::set<std::string> names;
    for (const auto& panel : allPanels()) {
        std::set<std::tuple<const Control*, int, int>> cells;
        for (const Control* control : panel->controls()) {
            EXPECT_TRUE(control->name.empty() || names.insert(control->name).second) << control->name;
            EXPECT_TRUE(control->kind == ControlKind::Label ||
                        cells.emplace(control->frame, control->row, control->column).second)
                << panel->frame << " " << control->name;
        }
        Desk desk(*panel);
        desk.selectFirstEntries();
        desk.press();
        EXPECT_EQ(desk.results().find_first_not_of("0 |"), std::string::npos) << panel->frame;
        EXPECT_NE(desk.results(), "") << panel->frame;
    }
    EXPECT_GT(names.size(), 250U);
}

TEST(TradeMath, ArcSineByArcTangent) {
    EXPECT_EQ(generalText(asin(0.5)), "0.523598775598299");
    for (const double x : {1.0, -1.0}) EXPECT_EQ(failureOf([&] { asin(x); }), 11);
    for (const double x : {1.1, -2.0, 1e300}) EXPECT_EQ(failureOf([&] { asin(x); }), 5);
}

}  // namespace
}  // namespace torvane
