#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <tuple>

#include "calculators/calculator_groups.h"
#include "values/failure.h"

namespace torvane {
namespace {

// A panel on which one writes and presses without a window.
class Desk : public PanelDesk {
public:
    explicit Desk(MakePanel make) : panel_(make()) {
        panel_->desk = this;
        for (const Control* control : panel_->controls()) texts_[control] = control->setAtStart ? "x" : control->start;
    }
    std::string text(const Box& box) const override { return texts_.at(&box); }
    void setText(const Box& box, std::string_view text) override { texts_.at(&box) = text; }
    int selected(const List& list) const override {
        return texts_.at(&list).empty() ? -1 : std::stoi(texts_.at(&list));
    }
    bool isSet(const Option& option) const override { return texts_.at(&option) == "x"; }

    // Entries for what can be entered, in the order of Tab: texts, the index in a list, x for an option; an empty one
    // leaves what stands there.
    void enter(const std::string& entries) {
        std::istringstream rest(entries);
        for (const Control* control : panel_->controls()) {
            if (control->kind != ControlKind::Input && control->kind != ControlKind::List &&
                control->kind != ControlKind::Option && control->kind != ControlKind::Check)
                continue;
            std::string entry;
            std::getline(rest >> std::ws, entry, ',');
            if (entry.empty()) continue;
            if (control->kind == ControlKind::Option)
                for (auto& [other, text] : texts_)
                    if (other->kind == ControlKind::Option) text.clear();
            texts_.at(control) = entry;
        }
    }
    // Presses all buttons, or only one; gives the number of the failure, 0 when all went well.
    int press(std::string_view button = "") {
        try {
            for (const Control* control : panel_->controls())
                if (control->kind == ControlKind::Button && (button.empty() || button == control->name))
                    control->compute();
        } catch (const RuntimeFailure& failure) {
            return failure.number();
        }
        return 0;
    }
    std::string results() const {
        std::string joined;
        for (const Control* control : panel_->controls())
            if (control->kind == ControlKind::Result || control->label == "Cubic Yards Required")
                joined += texts_.at(control) + " | ";
        return joined.substr(0, joined.size() - 3);
    }

private:
    std::unique_ptr<Panel> panel_;
    std::map<const Control*, std::string> texts_;
};

// All panels, each once, by their frames.
std::map<std::string, MakePanel> allPanels() {
    std::map<std::string, MakePanel> panels;
    for (const CalculatorGroup& group : calculatorGroups())
        for (const CalculatorTab& tab : group.tabs)
            if (tab.panel) panels.emplace(tab.panel()->frame, tab.panel);
    return panels;
}

TEST(Panels, Compute) {
    const struct {
        const char* panel;
        const char* entries;
        const char* results;
        const char* button = "";
        int failure = 0;
    } rows[] = {
        {"1", ", 30, 29, 20, 10, 7.5", "23 | 22 | 15 | 8 | 68 | 816", "cmdTab6_1"},
        {"1", "18, 10, , , , 7.34", "7 | 0 | 0 | 0 | 7 | 84", "cmdTab6_2"},
        {"2", "10, 10, , , 4", "100 | 1.23457 | 0 | 1.23457"},
        // Exact halves in the sixth place go to the even fifth; the total is of the exact volumes.
        {"2", "27, 1, , x, .015625, .046875", "27 | 0.01562 | 0.04688 | 0.0625"},
        {"3", "8, 100, , x", "15.11111"},
        {"4", "10, 12", "0.29089"},
        {"5", "10.5, 8.25, 6.75, 1, 1, 1, 1, 1, 2, 120, 24, 4.5",
         "86.625 | 607 | 780 | 585 | 1 | 7 | 9 | 1 | 1 | 7 | 9 | 2 | 2880 | 20160 | 25920 | 12960 | 20781 | 26718 | "
         "13548"},
        {"8", "160, 16, 8, 4, 8, 110.50", "5.26749 | 15.80247 | 6 | 18 | 24 | 2652 | 7956 | 10608"},
        // 25 x 1.12 is a little over 28 as a double, and 28 as a text.
        {"8", "270, 30, 12, 3.75, 8, 95", "25 | 25 | 28 | 27 | 55 | 5225 | 15675 | 20900"},
        {"9", "148, 16, 4, , , 57, 16, 2, 4, 6", "120 | 960 | 28 | 68 | 362.666666666667 | 11"},
        // 8.4 x 12 / 14.4 is a little over 7 as a double, and 7 as a text.
        {"9", "8.4, 14.4", "8 | 64 | 2 | 0 | 0 | 0"},
        {"10", "6, 28, 65, 20", "2035 | 64 | 1280"},
        {"11", "5, 14, 2, 8, 6, 10, 3, 10, 20", "9.33333333333333 | 2 | 10 | 50 | 71.3333333333333"},
        {"12", "9, 1.5, 12, 2, x", "17.42188 | 22.31089 | 19.10932 | 3.20156 | 36.8699 | 25.10409 | 27.93835"},
        // A ridge wider than the run.
        {"12", "12, 48, 1", "0 | 0 | 0 | 0 | 45 | 30 | 35.26439"},
        {"13", "10, 15, 9, 1, 1, 0, 30",
         "150 | 0.333333333333333 | 10 | 415 | 0.922222222222222 | 27.6666666666667 | 37.6666666666667"},
        {"13", "10, 15, , 1, 1, 4, 30", "150 | 1 | 30 | 0 | 0 | 0 | 30"},
        {"14", "10, 0.5, 120", "2 | 240 | 720 | 960"},
        {"15", "135, 38", "14.30638 | 17.55124 | 52"},
        {"15", "360, 38", "0 | 0 | 0"},
        {"15", "1e-9, 0", "0 | 0 | 90"},
        {"16", "12, 6, 8, 9, 4, 14", "15.67708"},
        {"17", "10.1, x, 12ft, 0.2", "22.3"},
        {"20", "1 2, 8", "96"},
        {"22", "12, 12", "144"},
        {"26", "40, 40, 28.5, 2", "110.5"},
        // Round unless "No" is chosen.
        {"28", ", , 5, 10, 6, 10, , , 6, 6", "22.22 | 1.85 | 15.37 | 5"},
        {"28", ", x, 5, , , , 4, 8, 5", "0 | 0 | -6 | 6"},
        {"29", "24, 36, 100, 6, 6, 3", "22.22 | 1.85 | 19.44 | 0.93"},
        {"30", "1000, 2, 3, 4, 3.5", "3125"},
        {"31", "100, 35", "1.75 | 3500"},
        {"31", "1, 2001", "1.25 | 2001"},
        {"32", "10.5, 7, 9", "73.5 | 20.2125"},
        {"33", "1, 1, 2, 2, 3, 10, 1, 5", "1 | 4 | 30 | 10 | 45 | 5"},
        {"35", "12, 15, , , , , 3, 13", "180 | 0 | 0 | 39 | 219 | 25"},
        // As a double the sum is a trace above 9, as text it is 9.
        {"35", "1.5, 5.4, 1, 0.9", "8.1 | 0.9 | 0 | 0 | 9 | 1"},
        {"34", "8, 40, 10, 10, 8, 4", "320 | 100 | 12 | 432 | 16"},
        {"34", "10, 41.85", "418.5 | 0 | 0 | 418.5 | 15.5"},
        {"36", "1, 1.5, 2, 1, 3, 2, 0", "1.5 | 2 | 6 | 9.5 | 10"},
        {"38", "9, 1, 1.25, 40", "50"},
        // What was written before a failure stays.
        {"36", "2, 3", "6 | 0 | 0 | 6 | ", "", 9},
        {"4", "1, 1e200", "", "", 6},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.panel + std::string(": ") + row.entries);
        Desk desk(allPanels().at(std::string("frmTab") + row.panel));
        desk.enter(row.entries);
        EXPECT_EQ(desk.press(row.button), row.failure);
        EXPECT_EQ(desk.results(), row.results);
    }
}

// The last result of a panel for each entry of its list, with the other boxes filled.
TEST(Panels, WhatTheEntriesOfListsStandFor) {
    const std::tuple<std::string, std::string, const char*, std::string> rows[] = {
        {"frmTab11", "", ", 12", "0 2 3 4 6 8 12 16 "},
        {"frmTab13", "6300, 1, , , , ", ", 1", "14 15.75 25.2 15 42 14 "},
        {"frmTab32", "210, 1, ", "",
         "3696 2079 924 519.75 332.64 231 169.714285714285 129.9375 102.666666666667 57.75 "},
        {"frmTab36", "1, 81, , , , , ", "", "81 144 324 "},
        {"frmTab37", "10000, ", "", "106 108 112 116 120 125 130 136 142 "},
    };
    for (const auto& [frame, before, after, expected] : rows) {
        std::string results;
        for (std::ptrdiff_t entry = 0; entry < std::count(expected.begin(), expected.end(), ' '); ++entry) {
            Desk desk(allPanels().at(frame));
            desk.enter(before + std::to_string(entry) + after);
            desk.press();
            results += desk.results().substr(desk.results().rfind("| ") + 2) + " ";
        }
        EXPECT_EQ(results, expected) << frame;
    }
}

TEST(Panels, EmptyBoxesCountAsZero) {
    for (const auto& [frame, make] : allPanels()) {
        Desk desk(make);
        desk.press();
        EXPECT_EQ(desk.results().find_first_not_of("0 |"), std::string::npos) << frame;
        EXPECT_NE(desk.results().find('0'), std::string::npos) << frame;
    }
}

}  // namespace
}  // namespace torvane
