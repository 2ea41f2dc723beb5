// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_look.h"

#include "host/document/layer_facts.h"
#include "host/style/schema.h"

#include <algorithm>
#include <cmath>

namespace corvala::app {

using host::SetStyle;

namespace {

constexpr double kMostMeshCells = 3000; ///< more are too small to be told apart
constexpr std::size_t kMostEdgedZones = 1000; ///< more drown in their edges
constexpr double kThinLine = 0.1; ///< percent of the frame height
constexpr double kBlack = 0;

/// What decides on the look.
struct Facts
{
    bool isInSpace;
    bool hasVariable; ///< to colour by
    bool hasSurfaces; ///< zones that are surfaces by themselves
    bool hasLargeCells;
    bool hasFewZones;
    host::NumberSet volumes; ///< maps
    host::NumberSet maps;
};

bool isSurface(const host::ZoneInfo& zone)
{
    return zone.cellDimension == 2;
}

/// Cells that are seen: of a volume, about those on its six sides.
double shownCells(const host::DataSet& data, bool hasSurfaces)
{
    double cells = 0;
    for (const host::ZoneInfo& zone : data.zones) {
        const auto count = static_cast<double>(zone.cellCount);
        if (!zone.isVolume())
            cells += count;
        else if (!hasSurfaces)
            cells += 6 * std::pow(count, 2.0 / 3.0);
    }
    return cells;
}

Facts factsOf(const host::Frame& frame)
{
    const host::DataSet& data = *frame.data();
    Facts facts {};
    facts.isInSpace = frame.plotType() == PlotType_Field3D;
    facts.hasVariable = !data.contourVariables.empty() && data.contourVariables.front() != 0;
    facts.hasSurfaces = std::any_of(data.zones.begin(), data.zones.end(), isSurface);
    facts.hasLargeCells = shownCells(data, facts.hasSurfaces) <= kMostMeshCells;
    facts.hasFewZones = data.zones.size() <= kMostEdgedZones;
    facts.maps = host::allUpTo(frame.fieldMapCount());
    for (const std::uint32_t map : facts.maps)
        if (frame.fieldMaps().hasVolumeZones(map))
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

std::vector<SetStyle> firstLook(const host::Frame& frame)
{
    if (!frame.isFieldPlot() || !frame.hasData() || frame.fieldMapCount() == 0)
        return {};
    const Facts facts = factsOf(frame);
    Look look;
    look.turn(style::fieldLayers.showContour, facts.hasVariable);
    // Some of several zones may lack the variable.
    look.turn(style::fieldLayers.showShade, !facts.hasVariable || frame.data()->zoneCount() > 1);
    look.turn(style::fieldLayers.useLightingEffect, facts.isInSpace);
    look.turn(style::fieldLayers.showMesh, facts.hasLargeCells);
    look.turn(style::fieldLayers.showEdge, facts.hasFewZones);
    if (facts.hasLargeCells) { // thin lines that no colour of the surface hides
        look.give(style::fieldMap.mesh.color, kBlack, facts.maps);
        look.give(style::fieldMap.mesh.lineThickness, kThinLine, facts.maps);
    }
    if (facts.hasFewZones)
        look.give(style::fieldMap.edgeLayer.lineThickness, 2 * kThinLine, facts.maps);
    if (!facts.hasSurfaces && !facts.volumes.isEmpty())
        look.add(host::drawBoundaryFaces(facts.volumes));
    return look.take();
}

} // namespace corvala::app
