#include <set>

#include "calculators/panel_probe.h"

namespace torvane {
namespace {

using test::PanelProbe;

const std::vector<Panel>& allPanels() {
    static const std::vector<Panel> panels = [] {
        std::vector<Panel> all;
        for (const auto& group : {finishesPanels(), siteWorkPanels()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return panels;
}

// A panel by its number, with texts in its boxes from number 1 up, and an entry (or option) picked; -1 picks none.
struct Sheet : PanelProbe {
    Sheet(int number, int pick, const std::vector<std::string>& texts)
        : PanelProbe(allPanels(), "frmTab" + std::to_string(number)) {
        const std::string prefix = "txtTab" + std::to_string(number) + "_";
        for (std::size_t i = 0; i < texts.size(); ++i) setText(prefix + std::to_string(i + 1), texts[i]);
        if (pick < 0) return;
        if (number == 28)
            set("optTab28_" + std::to_string(pick));
        else
            choose("cmbTab" + std::to_string(number), pick);
    }
    void compute() {
        for (const PanelControl& control : panel().controls)
            if (control.kind == PanelKind::Button) press(control.name);
    }
    std::string results() const {
        std::string joined;
        for (const PanelControl& control : panel().controls)
            if (control.kind == PanelKind::Result) joined += (joined.empty() ? "" : " | ") + text(control.name);
        return joined;
    }
};

TEST(FinishesAndSiteWork, Results) {
    struct Row {
        int panel;
        int pick;
        std::vector<std::string> texts;
        std::string results;
    };
    const Row rows[] = {
        {17, -1, {"10.1", "x", "12ft", "0.2"}, "22.3"},
        {26, -1, {"40", "40", "28.5", ""}, "108.5"},
        {20, -1, {"1 2", "8"}, "96"},
        {22, -1, {"12", "12"}, "144"},
        // Paint: surface, then length, width, height, doors, windows, cost.
        {13,
         0,
         {"10", "15", "9", "1", "1", "30"},
         "150 | 0.333333333333333 | 10 | 415 | 0.922222222222222 | 27.6666666666667 | 37.6666666666667"},
        {13, 2, {"12", "14", "8", "1", "2", "25"}, "168 | 0.672 | 16.8 | 366 | 1.464 | 36.6 | 53.4"},
        {13, -1, {"12", "14", "8", "1", "2", "25"}, "168 | 0 | 0 | 366 | 0 | 0 | 0"},
        {13, 4, {"10", "15", "", "1", "1", "30"}, "150 | 1 | 30 | 0 | 0 | 0 | 30"},
        {32, 5, {"10", "12"}, "120 | 132"},
        {32, 0, {"10", "10"}, "100 | 1760"},
        {32, 9, {"10.5", "7"}, "73.5 | 20.2125"},
        {33, -1, {"12", "", "", "3", "15", "", "", "13"}, "180 | 0 | 0 | 78 | 258 | 29"},
        {35, -1, {"12", "", "", "3", "15", "", "", "13"}, "180 | 0 | 0 | 39 | 219 | 25"},
        {33, -1, {"1", "2", "3", "1", "1", "2", "10", "5"}, "1 | 4 | 30 | 10 | 45 | 5"},
        // As a double the sum is a trace above 9, as text it is 9.
        {35, -1, {"1.5", "1", "", "", "5.4", "0.9"}, "8.1 | 0.9 | 0 | 0 | 9 | 1"},
        {34, -1, {"8", "10", "8", "40", "10", "4"}, "320 | 100 | 12 | 432 | 16"},
        {34, -1, {"10", "", "", "44"}, "440 | 0 | 0 | 440 | 16.5"},
        {34, -1, {"10", "", "", "42"}, "420 | 0 | 0 | 420 | 16"},
        {34, -1, {"10", "", "", "41.85"}, "418.5 | 0 | 0 | 418.5 | 15.5"},
        {36, 1, {"9", "", "", "9"}, "81 | 0 | 0 | 81 | 144"},
        {36, 0, {"1", "2", "3", "1.5", "1", "2"}, "1.5 | 2 | 6 | 9.5 | 10"},
        // Tank: round unless 2 ("No") is picked.
        {28, -1, {"5", "10", "6", "10", "", "", "6", "6"}, "22.22 | 1.85 | 15.37 | 5"},
        {28, 1, {"5", "10", "6", "10", "4", "8", "6", "6"}, "22.22 | 1.85 | 15.37 | 5"},
        {28, 2, {"", "", "", "", "4", "8", "5", ""}, "0 | 0 | -6 | 6"},
        {28, -1, {"", "3.375", "1", "1"}, "0.12 | 0 | 0.12 | 0"},
        {29, -1, {"24", "36", "100", "6", "6", "6"}, "22.22 | 3.7 | 17.59 | 0.93"},
        {30, -1, {"1000", "2", "3", "4", "3"}, "3000"},
        {30, -1, {"10", "1", "1", "1", "0.3333"}, "8.33325"},
        {31, -1, {"31", "20"}, "0.5 | 620"},
        {31, -1, {"100", "40"}, "2 | 4000"},
        {31, -1, {"18", "100"}, "1 | 1800"},
        {31, -1, {"100", "35"}, "1.75 | 3500"},
        {31, -1, {"1", "2001"}, "1.25 | 2001"},
        {31, -1, {"1", "1001"}, "0.75 | 1001"},
        {31, -1, {"1", "0.1"}, "0.25 | 0.1"},
    };
    for (const Row& row : rows) {
        Sheet sheet(row.panel, row.pick, row.texts);
        sheet.compute();
        EXPECT_EQ(sheet.results(), row.results) << row.panel;
    }
}

TEST(FinishesAndSiteWork, EmptyBoxesGiveZeroEverywhere) {
    for (const Panel& panel : allPanels()) {
        PanelProbe probe(allPanels(), panel.frame);
        for (const PanelControl& control : panel.controls) {
            if (control.kind == PanelKind::List) probe.choose(control.name, 0);
            if (control.compute) control.compute(probe);
        }
        for (const PanelControl& control : panel.controls) {
            if (control.kind != PanelKind::Result) continue;
            EXPECT_EQ(probe.text(control.name), "0") << control.name;
        }
    }
}

int failureOf(Sheet& sheet) {
    try {
        sheet.compute();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

TEST(FinishesAndSiteWork, WhatWasWrittenBeforeAFailureStays) {
    Sheet noTile(36, -1, {"2", "", "", "3"});
    EXPECT_EQ(failureOf(noTile), 9);
    EXPECT_EQ(noTile.results(), "6 | 0 | 0 | 6 | ");
    Sheet noCeramic(32, -1, {"2", "3"});
    EXPECT_EQ(failureOf(noCeramic), 9);
    EXPECT_EQ(noCeramic.results(), "6 | ");
    Sheet tooLarge(33, -1, {"2", "1e200", "", "", "3", "1e200"});
    EXPECT_EQ(failureOf(tooLarge), 6);
    EXPECT_EQ(tooLarge.results(), "6 |  |  |  |  | ");
    Sheet undefinedWall(13, 0, {"1", "1", "1e308", "1e307", "-1e308"});
    EXPECT_EQ(failureOf(undefinedWall), 6);
}

// Controls that lie on one another, or that answer to one name, are slips in a table.
TEST(FinishesAndSiteWork, EveryControlHasItsOwnCellAndName) {
    std::set<std::string_view> names;
    for (const Panel& panel : allPanels()) {
        std::set<std::pair<int, int>> cells;
        for (const PanelControl& control : panel.controls) {
            EXPECT_TRUE(control.name.empty() || names.insert(control.name).second) << control.name;
            EXPECT_TRUE(control.kind == PanelKind::Label || cells.emplace(control.row, control.column).second)
                << panel.frame << control.name;
        }
    }
}

}  // namespace
}  // namespace torvane
