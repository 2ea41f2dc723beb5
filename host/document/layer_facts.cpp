// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/layer_facts.h"

#include "host/document/document.h"
#include "host/style/schema.h"

#include <algorithm>

namespace corvala::host {

bool drawsSurfaces(const Frame& frame, CvlInt64 map, bool orPoints)
{
    if (frame.fieldInteger(style::fieldMap.surfaces.surfacesToPlot, map) != SurfacesToPlot_None)
        return true;
    const int points = orPoints ? frame.fieldInteger(style::fieldMap.points.pointsToPlot, map)
                                : PointsToPlot_SurfaceNodes;
    return points != PointsToPlot_SurfaceNodes && points != PointsToPlot_SurfaceCellCenters;
}

static bool hasContourVariable(const Frame& frame, CvlInt64 map)
{
    const auto& contour = style::fieldMap.contour;
    const Attribute& variable = Schema::instance().at(style::contourGroups.var);
    const int type = frame.fieldInteger(contour.contourType, map);
    const auto hasVariable = [&](AttributeId group) { // of RGB colours nothing is said here
        const int number = frame.fieldInteger(group, map);
        return number < 1 || frame.values().integer(variable, number) > 0;
    };
    return (type != ContourType_Lines && hasVariable(contour.floodColoring))
        || ((type == ContourType_Lines || type == ContourType_LinesAndFlood)
            && hasVariable(contour.lineContourGroup));
}

static bool hasVector(const Frame& frame)
{
    const bool isInSpace = frame.plotType() == PlotType_Field3D;
    const auto isSet = [&](style::VariableKey key) { return frame.integer(key) > 0; };
    return isSet(style::globalVector.uVar) || isSet(style::globalVector.vVar)
        || (isInSpace && isSet(style::globalVector.wVar));
}

/// Of a layer of a field plot.
static LayerGap gapOf(const Frame& frame, CvlInt64 map, const style::Layer& layer)
{
    const bool isOfPoints = layer == style::kVectorLayer || layer == style::kScatterLayer;
    if (layer != style::kEdgeLayer && frame.fieldMaps().hasVolumeZones(map)
        && !drawsSurfaces(frame, map, isOfPoints))
        return LayerGap::NoSurfaces;
    if (layer == style::kVectorLayer && !hasVector(frame))
        return LayerGap::NoVector;
    return layer == style::kContourLayer && !hasContourVariable(frame, map) ? LayerGap::NoVariable
                                                                            : LayerGap::None;
}

LayerFacts lightingFacts(const Frame& frame)
{
    if (frame.plotType() != PlotType_Field3D)
        return {LayerGap::NotInSpace, {}, nullptr};
    if (frame.isOn(style::kContourLayer.shown)
        && layerFacts(frame, style::kContourLayer).gap == LayerGap::None)
        return {};
    return frame.isOn(style::kShadeLayer.shown) ? layerFacts(frame, style::kShadeLayer)
                                                : LayerFacts {LayerGap::NoFaces, {}, nullptr};
}

LayerFacts layerFacts(const Frame& frame, const style::Layer& layer)
{
    const bool isLines = layer.isOfLines();
    const NumberSet& active = isLines ? frame.activeLineMaps() : frame.activeFieldMaps();
    if (active.isEmpty())
        return {LayerGap::NoActiveMaps, active, &layer};
    const AttributeId show = layer.shownForMap;
    LayerFacts facts {LayerGap::NotShown, {}, &layer};
    for (const std::uint32_t map : active) {
        if (!(isLines ? frame.lineInteger(show, map) : frame.fieldInteger(show, map)))
            continue;
        const LayerGap gap = isLines ? LayerGap::None : gapOf(frame, map, layer);
        if (gap == LayerGap::None)
            return {};
        facts.gap = std::max(gap, facts.gap);
        facts.maps.add(map);
    }
    if (facts.gap == LayerGap::NotShown)
        facts.maps = active;
    return facts;
}

SetStyle drawBoundaryFaces(const NumberSet& maps)
{
    return {pathOf(style::fieldMap.surfaces.surfacesToPlot),
            double(SurfacesToPlot_BoundaryCellFaces), maps};
}

} // namespace corvala::host
