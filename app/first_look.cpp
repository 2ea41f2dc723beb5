// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_look.h"

#include "host/document/layer_facts.h"
#include "host/style/schema.h"
#include "vocabulary/colors.h"

#include <algorithm>
#include <cmath>

namespace corvala::app {

using host::SetStyle;

namespace {

constexpr double kMostMeshCells = 3000; ///< more are too small to be told apart
constexpr std::uint64_t kMostEdgedMaps = 1000; ///< more drown in their edges
constexpr double kThinLine = 0.1; ///< percent of the frame height
constexpr double kBlack = 0;
constexpr double kSmallSymbol = 1.0; ///< percent of the frame height

/// What decides on the look.
struct Facts
{
    bool isInSpace;
    bool hasVariable; ///< to colour by
    bool hasLargeCells;
    bool hasFewMaps;
    host::NumberSet volumes; ///< maps, that no zones which are surfaces show
    host::NumberSet maps;
};

/// Cells that are seen at first: of a volume, about those on its six sides.
double shownCells(const host::Frame& frame, bool showsVolumes)
{
    double cells = 0;
    for (CvlInt64 map = 1; map <= frame.fieldMapCount(); ++map) {
        const CvlInt64 number = frame.candidateZone(map);
        if (number == 0)
            continue;
        const host::ZoneInfo& zone = frame.data()->zone(number);
        const auto count = static_cast<double>(zone.cellCount);
        if (!zone.isVolume())
            cells += count;
        else if (showsVolumes)
            cells += 6 * std::pow(count, 2.0 / 3.0);
    }
    return cells;
}

/// Whether the first contour group has something to tell.
bool hasVaryingVariable(const host::DataSet& data)
{
    const int first = data.contourVariables.empty() ? 0 : data.contourVariables.front();
    return first != 0 && !data.variable(first).isConstant;
}

Facts factsOf(const host::Frame& frame)
{
    const host::DataSet& data = *frame.data();
    const bool showsVolumes = !data.surfacesEncloseVolumes;
    Facts facts {};
    facts.isInSpace = frame.plotType() == PlotType_Field3D;
    facts.hasVariable = hasVaryingVariable(data);
    facts.hasLargeCells = shownCells(frame, showsVolumes) <= kMostMeshCells;
    facts.maps = host::allUpTo(frame.fieldMapCount());
    facts.hasFewMaps = facts.maps.cardinality() <= kMostEdgedMaps;
    for (const std::uint32_t map : facts.maps)
        if (showsVolumes && frame.fieldMaps().hasVolumeZones(map))
            facts.volumes.add(map);
    return facts;
}

/// Collects the values of a look.
class Look
{
public:
    void turn(style::SwitchKey layer, bool isOn)
    {
        add(SetStyle {host::pathOf(layer), isOn, std::nullopt});
    }
    void give(style::Key key, double value, const host::NumberSet& maps)
    {
        add(SetStyle {host::pathOf(key), value, maps});
    }
    void add(SetStyle value)
    {
        value.undoable = false;
        m_values.push_back(std::move(value));
    }
    std::vector<SetStyle> take() { return std::move(m_values); }

private:
    std::vector<SetStyle> m_values;
};

} // namespace

std::vector<SetStyle> firstLook(const std::vector<FirstLine>& lines)
{
    constexpr std::size_t kColors = 6; // that maps have in turn
    const bool areScattered = std::any_of(lines.begin(), lines.end(),
                                          [](const FirstLine& line) { return line.isScattered; });
    const bool haveZones = !lines.empty() && lines.front().zone != lines.back().zone;
    Look look;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        host::NumberSet map;
        map.add(static_cast<std::uint32_t>(i + 1));
        const auto& assign = style::lineMap.assign;
        look.give(assign.zone, lines[i].zone, map);
        look.give(assign.xAxisVar, lines[i].x, map);
        look.give(assign.yAxisVar, lines[i].y, map);
        look.give(assign.yAxis, lines[i].yAxis, map);
        if (lines[i].error > 0) {
            look.give(style::lineMap.errorBars.var, lines[i].error, map);
            look.give(style::lineMap.errorBars.show, 1, map);
        }
        if (i >= kColors)
            look.give(style::lineMap.lines.linePattern, LinePattern_Dashed, map);
        if (lines[i].isScattered) {
            look.give(style::lineMap.lines.show, 0, map);
            look.give(style::lineMap.symbols.size, kSmallSymbol, map);
        } else if (areScattered) {
            look.give(style::lineMap.symbols.show, 0, map);
        }
    }
    look.turn(style::linePlotLayers.showSymbols, areScattered);
    look.turn(style::linePlotLayers.showErrorBars,
              std::any_of(lines.begin(), lines.end(),
                          [](const FirstLine& line) { return line.error > 0; }));
    if (lines.size() == 1) // which the axes name
        look.give(style::lineMap.assign.showInLegend, LegendShow_Auto, host::allUpTo(1));
    if (haveZones)
        look.add(SetStyle {host::pathOf(style::lineMap.name), std::string("&ZN&: &DV&"),
                           host::allUpTo(static_cast<CvlInt64>(lines.size()))});
    return look.take();
}

/// Of the rows of tables: points in the colours of the first variable that is no place, also where
/// they are an XY plot at first.
static std::vector<SetStyle> lookOfRows(const host::Frame& frame)
{
    const host::NumberSet maps = host::allUpTo(frame.fieldMapCount());
    Look look;
    for (const style::SwitchKey layer :
         {style::fieldLayers.showMesh, style::fieldLayers.showEdge, style::fieldLayers.showContour})
        look.turn(layer, false);
    look.turn(style::fieldLayers.showScatter, true);
    look.give(style::fieldMap.scatter.color, style::kFirstGroupColor, maps);
    look.give(style::fieldMap.scatter.frameSize, kSmallSymbol, maps);
    return look.take();
}

std::vector<SetStyle> firstLook(const host::Frame& frame)
{
    if (frame.hasData() && frame.fieldMapCount() > 0 && havePlaces(*frame.data()))
        return lookOfRows(frame);
    if (!frame.isFieldPlot() || !frame.hasData() || frame.fieldMapCount() == 0)
        return {};
    const Facts facts = factsOf(frame);
    Look look;
    look.turn(style::fieldLayers.showContour, facts.hasVariable);
    // Some of several zones may lack the variable.
    look.turn(style::fieldLayers.showShade, !facts.hasVariable || frame.data()->zoneCount() > 1);
    look.turn(style::fieldLayers.useLightingEffect, facts.isInSpace);
    look.turn(style::fieldLayers.showMesh, facts.hasLargeCells);
    look.turn(style::fieldLayers.showEdge, facts.hasFewMaps);
    if (facts.hasLargeCells) { // thin lines that no colour of the surface hides
        look.give(style::fieldMap.mesh.color, kBlack, facts.maps);
        look.give(style::fieldMap.mesh.lineThickness, kThinLine, facts.maps);
    }
    if (facts.hasFewMaps)
        look.give(style::fieldMap.edgeLayer.lineThickness, 2 * kThinLine, facts.maps);
    if (!facts.volumes.isEmpty())
        look.add(host::drawBoundaryFaces(facts.volumes));
    return look.take();
}

} // namespace corvala::app
