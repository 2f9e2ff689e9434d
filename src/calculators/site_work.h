#pragma once

#include "calculators/panel.h"
#include "calculators/trade_math.h"

namespace torvane::panels {

struct TankTrenching : Panel {
    TankTrenching() : Panel("frmTab28", "Trenching for Tanks", 128) {
        label("Tank is Round?", 0, 0);
        for (Option* answer : {&round, &square}) answer->says = "Tank is Round? " + answer->label;
    }
    Option round = option("optTab28_1", "Yes", 0, 0);
    Option square = option("optTab28_2", "No", 1, 0);
    Box diameter = input("txtTab28_1", "Diameter if Round", 2, 0, "LF");
    Box holeWidth = input("txtTab28_2", "Tank Excavation Width", 3, 0, "LF");
    Box holeDepth = input("txtTab28_3", "Tank Excavation Depth", 4, 0, "LF");
    Box holeLength = input("txtTab28_4", "Tank Excavation Length", 5, 0, "LF");
    Box width = input("txtTab28_5", "Tank Width", 6, 0, "LF");
    Box length = input("txtTab28_6", "Tank Length", 7, 0, "LF");
    Box depth = input("txtTab28_7", "Tank Depth", 8, 0, "LF");
    Box bedDepth = input("txtTab28_8", "Bed Tank Depth", 9, 0, "IN");
    Button compute = button("cmdTab28", "Compute", 10, 0, [this] {
        hole = rounded(holeWidth * holeDepth * holeLength / cubicFeetInYard, 2);
        // The bed lies under the whole hole.
        bed = rounded(holeWidth * holeLength * (bedDepth / inchesInFoot) / cubicFeetInYard, 2);
        tank = raised((square ? width * length * depth : cylinder()) / cubicFeetInYard);
        backFill = rounded(hole - bed - tank, 2);
    });
    Box hole = result("txtTab28_9", "Tank Hole Volume", 2, 1, "CY");
    Box bed = result("txtTab28_10", "Tank Bed Fill Volume", 3, 1, "CY");
    Box backFill = result("txtTab28_11", "Tank Back Fill Volume", 4, 1, "CY");
    Box tank = result("txtTab28_12", "Tank Volume", 5, 1, "CY");

private:
    double cylinder() const {
        const double radius = diameter / 2;
        return radius * radius * circleConstant * depth;
    }
};

struct UtilityTrenching : Panel {
    UtilityTrenching() : Panel("frmTab29", "Utility Trenching", 129) {}
    Box width = input("txtTab29_1", "Trench for Utilities-1 Excavation Width", 0, 0, "IN");
    Box depth = input("txtTab29_2", "Trench for Utilities-1 Excavation Depth", 1, 0, "IN");
    Box length = input("txtTab29_3", "Trench for Utilities-1 Excavation Length", 2, 0, "LF");
    Box pipeWidth = input("txtTab29_4", "Pipe/casing Width", 3, 0, "IN");
    Box pipeHeight = input("txtTab29_5", "Pipe/casing Height", 4, 0, "IN");
    Box bedDepth = input("txtTab29_6", "Sand/gravel Bed Depth", 5, 0, "IN");
    Button compute = button("cmdTab29", "Compute", 6, 0, [this] {
        trench = yardsAlong(depth, width);
        bed = yardsAlong(bedDepth, width);
        pipe = yardsAlong(pipeHeight, pipeWidth);
        backFill = rounded(trench - pipe - bed, 2);
    });
    Box trench = result("txtTab29_7", "Trench for Utilities-1 Excavation Volume", 7, 0, "CY");
    Box bed = result("txtTab29_8", "Trench for Utilities-1 Bed Fill Volume", 8, 0, "CY");
    Box backFill = result("txtTab29_9", "Trench for Utilities-1 Back Fill Volume", 9, 0, "CY");
    Box pipe = result("txtTab29_10", "Pipe/casing Volume deduct", 10, 0, "CY");

private:
    // Cubic yards along the trench, of a cross section in inches.
    double yardsAlong(double height, double across) const {
        return rounded((height / inchesInFoot) * (across / inchesInFoot) * length / cubicFeetInYard, 2);
    }
};

struct ExcavationVolume : Panel {
    ExcavationVolume() : Panel("frmTab30", "Excavation Volume", 130) {}
    Box area = input("txtTab30_1", "Surface Area", 0, 0, "Sq. Ft.");
    Box heightA = input("txtTab30_2", "Height A:", 1, 0, "LF");
    Box heightB = input("txtTab30_3", "Height B:", 2, 0, "LF");
    Box heightC = input("txtTab30_4", "Height C:", 3, 0, "LF");
    Box heightD = input("txtTab30_5", "Height D:", 4, 0, "LF");
    Button compute =
        button("cmdTab30", "Compute", 5, 0, [this] { volume = area * ((heightA + heightB + heightC + heightD) / 4); });
    Box volume = result("txtTab30_6", "Excavation Volume", 6, 0, "CF");
};

struct SteelBeam : Panel {
    SteelBeam() : Panel("frmTab31", "Steel Beam", 131) {}
    Box poundsPerFoot = input("txtTab31_1", "Steel Beam Unit Weight", 0, 0, "LB/FT");
    Box length = input("txtTab31_2", "Beam Weight", 1, 0, "LF");
    Button compute = button("cmdTab31", "Compute", 2, 0, [this] {
        constexpr double poundsInShortTon = 2000;
        tons = raised(poundsPerFoot * length / poundsInShortTon, 4);
        pounds = poundsPerFoot * length;
    });
    Box tons = result("txtTab31_3", "Steel Beam Weight (Ton.)", 3, 0, "Ton");
    Box pounds = result("txtTab31_4", "Steel Beam Weight (Lbs.)", 4, 0, "Lbs.");
};

}  // namespace torvane::panels
