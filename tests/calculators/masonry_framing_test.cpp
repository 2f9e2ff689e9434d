#include <algorithm>
#include <functional>
#include <set>
#include <sstream>
#include <tuple>

#include "calculators/panel_probe.h"
#include "calculators/trade_math.h"
#include "values/numbers.h"

namespace torvane::test {

namespace {

// Texts as name=value with blanks between, the names without what all boxes of the panel begin with.
struct Row {
    std::string frame;
    std::string buttons;
    std::string given;
    std::string expected;
};

PanelProbe probe(const std::string& frame) {
    const auto masonry = masonryPanels();
    const bool inMasonry =
        std::any_of(masonry.begin(), masonry.end(), [&](auto& panel) { return panel.frame == frame; });
    return {inMasonry ? masonry : framingPanels(), frame};
}

std::string boxOf(const std::string& frame, const std::string& name) {
    return (frame == "frmTab5" ? "txt" : "txt" + frame.substr(3) + "_") + name;
}

void forEachWord(const std::string& words, const std::function<void(std::string, std::string)>& action) {
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
        const std::size_t mark = word.find('=');
        action(word.substr(0, mark), mark == std::string::npos ? "" : word.substr(mark + 1));
    }
}

void run(const Row& row) {
    PanelProbe panel = probe(row.frame);
    forEachWord(row.given, [&](const auto& name, const auto& value) {
        if (name.starts_with("cmb"))
            panel.choose(name, std::stoi(value));
        else if (name.starts_with("Tab"))
            panel.set(name);
        else
            panel.setText(boxOf(row.frame, name), value);
    });
    forEachWord(row.buttons, [&](const auto& button, const auto&) { panel.press(button); });
    forEachWord(row.expected, [&](const auto& name, const auto& value) {
        EXPECT_EQ(panel.text(boxOf(row.frame, name)), value) << row.frame << " " << name << " of " << row.given;
    });
}

Failure failureOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeFailure& failure) {
        return static_cast<Failure>(failure.number());
    }
    return Failure{};
}

}  // namespace

TEST(MasonryPanels, WorkedExamples) {
    const std::string sides = "Length1=30 Length2=30 Length3=20 Length4=20 Height=7.5";
    const std::string counts = "Blocks1=23 Blocks2=23 Blocks3=15 Blocks4=15 FooterBlocks=76 TotalBlocks=912";
    const Row rows[] = {
        {"frmTab1", "cmdTab6_1", sides, counts},
        {"frmTab1", "cmdTab6_2", sides, counts},
        {"frmTab1", "cmdTab6_1", "Length1=10 Height=7.34 BlockSize=18", "Blocks1=7 Blocks2=0 TotalBlocks=84"},
        {"frmTab1", "cmdTab6_1", "Length1=10 Height=8 BlockSize=0", "Blocks1=0 FooterBlocks=0 TotalBlocks=0"},
        {"frmTab2", "cmdTab2", "2=27 1=1 3=1 Tab2_Option2", "4=1 Basevolume=0"},
        {"frmTab2", "cmdTab2", "2=10 1=10 3=4", "Slabarea=100 4=1.23457 Basevolume=0 Totvolume=1.23457"},
        // Exact halves in the sixth place go to the even fifth; the total is of the exact volumes.
        {"frmTab2", "cmdTab2", "2=27 1=1 3=.015625 BaseDepth=.046875 Tab2_Option2",
         "4=0.01562 Basevolume=0.04688 Totvolume=0.0625"},
        {"frmTab2", "cmdTab2", "2=27 1=1 3=.000004 BaseDepth=.000004 Tab2_Option2", "4=0 Totvolume=1E-05"},
        {"frmTab3", "cmdTab3", "1=8 2=100", "4=9.48148"},
        {"frmTab3", "cmdTab3", "1=8 2=100 Tab3_Option2", "4=15.11111"},
        {"frmTab4", "cmdTab4", "1=10 2=12", "4=0.29089"},
        {"frmTab5", "cmdTab5_1 cmdTab5_4",
         "Length1=10.5 Width1=8.25 nBricks1=6.75 Bricks2=abc Bricks3=2.5x Length4=120 Width4=24 nBricks4=4.5",
         "Area1=86.625 Bricks1=607 Bricks91=780 Bricksn1=585 Area2= Bricks4=20160 Bricks94=25920 Bricksn4=12960 "
         "Total=20769.5 Total2=26700 Total3=13545"},
        {"frmTab8", "cmdTab8_1 cmdTab8_2", "1=160 2=16 3=8 4=4 5=8 8=110.50",
         "6=5.26749 7=15.80247 9=6 10=18 11=24 12=2652 13=7956 14=10608"},
        // 25 x 1.12 is a little over 28 as a double, and 28 as a text.
        {"frmTab8", "cmdTab8_1 cmdTab8_2", "1=270 2=30 3=12 4=3.75 5=8 8=95", "6=25 7=25 9=28 10=27 14=20900"},
        {"frmTab8", "cmdTab8_2", "1=270 2=30 3=12 8=95", "6= 9=0 14=0"},
        {"frmTab14", "cmdTab14", "1=10 2=0.5 3=120", "4=2 5=240 6=720 7=960"},
    };
    for (const Row& row : rows) run(row);
}

TEST(FramingPanels, WorkedExamples) {
    const Row rows[] = {
        {"frmTab9", "cmdTab9", "1=148 2=16 3=4 6=57 7=16 8=2 9=4 10=6",
         "11=120 12=960 13=28 14=68 15=362.666666666667 16=11"},
        // Without a spacing, or without a length, only the extra studs are left.
        {"frmTab9", "cmdTab9", "1=10 3=1 6=-40 7=16 10=.6", "11=2 13=2 14=2 16=0"},
        // 8.4 x 12 / 14.4 is a little over 7 as a double, and 7 as a text.
        {"frmTab9", "cmdTab9", "1=8.4 2=14.4", "11=8 13=2"},
        {"frmTab10", "cmdTab10", "1=6 2=28 3=65 4=20", "5=2035 6=64 7=1280"},
        {"frmTab10", "cmdTab10", "1=5 2=24 3=30 4=18.50", "5=780 6=25 7=463"},
        {"frmTab11", "cmdTab11", "cmbTab11_1=5 1=14 cmbTab11_2=2 2=8 cmbTab11_3=6 3=10 5=3 6=10 4=20",
         "7=9.33333333333333 8=2 9=10 10=50 11=71.3333333333333"},
        {"frmTab11", "cmdTab11", "cmbTab11_1=7 1=12 cmbTab11_2=4 2=12 cmbTab11_3=0 3=12", "7=16 8=6 9=0 10=0 11=22"},
        {"frmTab11", "cmdTab11", "cmbTab11_1=1 1=12 cmbTab11_2=3 2=12 3=8", "7=2 8=4 9=0 11=6"},
        {"frmTab12", "cmdTab12", "1=8 3=15 4=1.5",
         "5=19.83053 6=25.79729 7=23.45208 8=2.34521 9=33.69007 10=23.09347 11=25.2394"},
        {"frmTab12", "cmdTab12", "1=9 2=1.5 3=12 4=2", "5=17.42188 6=22.31089 7=19.10932 8=3.20156"},
        // A ridge wider than the run.
        {"frmTab12", "cmdTab12", "1=12 2=48 3=1", "5=0 7=0 8=0 9=45 10=30 11=35.26439"},
        {"frmTab15", "cmdTab15", "1=90 2=38", "3=31.61901 4=33.86291 5=52"},
        {"frmTab15", "cmdTab15", "1=135 2=38", "3=14.30638 4=17.55124 5=52"},
        {"frmTab15", "cmdTab15", "1=270 2=38", "3=-31.61901 4=-33.86291 5=52"},
        {"frmTab15", "cmdTab15", "1=180 2=38", "3=0 4=0 5=52"},
        {"frmTab15", "cmdTab15", "1=90 2=0", "3=0 4=45 5=90"},
        {"frmTab15", "cmdTab15", "1=1e-9 2=0", "3=0 4=0 5=90"},
        {"frmTab15", "cmdTab15", "1=360 2=38", "3=0 4=0 5=0"},
        {"frmTab16", "cmdTab16", "1=12 2=6 3=8 4=9 5=4 6=14", "7=15.67708"},
        {"frmTab16", "cmdTab16", "1=16 2=4 4=13 5=7", "7=21.24346"},
        {"frmTab37", "cmdTab37", "cmbTab37=2 1=1000", "2=1120 3=12"},
        {"frmTab37", "cmdTab37", "cmbTab37=0 1=2000", "2=2120 3=22"},
        {"frmTab37", "cmdTab37", "cmbTab37=4 1=1250", "2=1500 3=15"},
        {"frmTab37", "cmdTab37", "1=9 2=150", "2=150 3=2"},
        {"frmTab38", "cmdTab38", "cmbTab38_1=9 cmbTab38_2=1 1=1.25 2=40", "3=50"},
    };
    for (const Row& row : rows) run(row);
    const char* slopes[] = {"106", "108", "112", "116", "120", "125", "130", "136", "142"};
    for (std::size_t pitch = 0; pitch < std::size(slopes); ++pitch)
        run({"frmTab37", "cmdTab37", "1=100 cmbTab37=" + std::to_string(pitch), std::string("3=2 2=") + slopes[pitch]});
}

TEST(MasonryAndFramingPanels, EmptyInputsGiveZeroAndNothingStandsOnAnother) {
    for (const auto panels : {masonryPanels(), framingPanels()}) {
        for (const Panel& panel : panels) {
            PanelProbe boxes(panels, panel.frame);
            std::set<std::tuple<std::string_view, int, int>> cells;
            for (const PanelControl& control : panel.controls) {
                EXPECT_TRUE(cells.emplace(control.frame, control.row, control.column).second)
                    << panel.frame << " " << control.name;
                if (control.kind == PanelKind::List) boxes.choose(control.name, 0);
            }
            for (const PanelControl& control : panel.controls)
                if (control.kind == PanelKind::Button) boxes.press(control.name);
            for (const PanelControl& control : panel.controls)
                if (control.kind == PanelKind::Result || control.name == "txtTab3_4" || control.name == "txtTab4_4") {
                    EXPECT_EQ(boxes.text(control.name), "0") << control.name;
                }
        }
    }
}

TEST(MasonryAndFramingPanels, BeyondADoubleIsOverflowAndWhatIsWrittenStays) {
    PanelProbe roof = probe("frmTab10");
    roof.type("txtTab10_", {{"2", "1e200"}, {"3", "32"}, {"4", "1e200"}});
    EXPECT_EQ(failureOf([&] { roof.press("cmdTab10"); }), Failure::Overflow);
    EXPECT_EQ(roof.text("txtTab10_6"), "1E+200");
    EXPECT_EQ(roof.text("txtTab10_7"), "");

    PanelProbe column = probe("frmTab4");
    column.type("txtTab4_", {{"1", "1"}, {"2", "1e200"}});
    EXPECT_EQ(failureOf([&] { column.press("cmdTab4"); }), Failure::Overflow);
    EXPECT_EQ(column.text("txtTab4_4"), "");
}

TEST(TradeMath, ArcSineByArcTangent) {
    EXPECT_EQ(generalText(asin(0.5)), "0.523598775598299");
    for (const double x : {1.0, -1.0}) EXPECT_EQ(failureOf([&] { asin(x); }), Failure::DivisionByZero);
    for (const double x : {1.1, -2.0, 1e300}) EXPECT_EQ(failureOf([&] { asin(x); }), Failure::InvalidCall);
}

}  // namespace torvane::test
