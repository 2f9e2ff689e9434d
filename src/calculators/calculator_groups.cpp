#include "calculators/calculator_groups.h"

#include "calculators/finishes.h"
#include "calculators/framing.h"
#include "calculators/masonry.h"
#include "calculators/site_work.h"

namespace torvane {

namespace {

using namespace panels;

template <class P>
std::unique_ptr<Panel> make() {
    return std::make_unique<P>();
}

constexpr CalculatorTab tabs1[] = {
    {"Blocks Calculator", make<Blocks>},
    {"Concrete Materials Calculators", make<ConcreteMaterials>},
    {"Block Wall Calculator", make<BlockWall>},
    {"Column Calculator", make<Column>},
    {"Bricks Calculator", make<Bricks>},
    {"Conversions", nullptr, TabOpens::Conversions, "Open conversions calculator window"},
    {"Scientific Calculator", nullptr, TabOpens::Scientific},
    {"Foundation Concrete Calculator", make<FoundationConcrete>},
    {"Wall Framing Calculator", make<WallFraming>},
    {"Roof Area Calculator", make<RoofArea>},
    {"Board Foot Calculator", make<BoardFoot>},
};

constexpr CalculatorTab tabs2[] = {
    {"Rafter Angle Calculator", make<RafterAngle>},
    {"Paint Coverage Calculator", make<PaintCoverage>},
    {"Concrete Calculator for Circular Volumes", make<CircularVolumes>},
    {"Crown Molding Calculator", make<CrownMolding>},
    {"Square House Calculator", make<SquareHouse>},
    {"Wall base", make<LinearTotal>},
    {"Shoe mould", make<LinearTotal>},
    {"Crown mould", make<LinearTotal>},
    {"Insulation", make<SurfaceByHeight>},
    {"Deck hand railing input", make<LinearTotal>},
    {"Deck", make<FloorSurface>},
    {"Tile", make<FloorSurface>},
    {"Oak floor", make<FloorSurface>},
    {"Carpet", make<FloorSurface>},
    {"Gutter", make<LinearTotalBySide>},
    {"Sofface", make<LinearTotalBySide>},
};

constexpr CalculatorTab tabs3[] = {
    {"Trenching for Tanks", make<TankTrenching>},       {"Utility Trenching", make<UtilityTrenching>},
    {"Excavation Volume", make<ExcavationVolume>},      {"Steel Beam", make<SteelBeam>},
    {"Ceramic Tile Calculator", make<CeramicTile>},     {"Carpet Calculator", make<Carpet>},
    {"Wallpaper Calculator", make<Wallpaper>},          {"Sheet Vinyl Calculator", make<SheetVinyl>},
    {"Resilient Tile Calculator", make<ResilientTile>},
};

constexpr CalculatorTab tabs4[] = {
    {"Roofing Calculator", make<Roofing>},
    {"Lumber Calculator", make<LumberCost>},
};

constexpr CalculatorGroup groups[] = {
    {"frmCalculators", "Label23", tabs1, 21},
    {"frmCalculator2", "Label99", tabs2, 22},
    {"frmCalculator3", "Label82", tabs3, 23},
    {"frmCalculator4", "Label82", tabs4, 24},
};

}  // namespace

std::span<const CalculatorGroup, 4> calculatorGroups() {
    return groups;
}

}  // namespace torvane
