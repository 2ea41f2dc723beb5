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

static LayerGap gapOf(const Frame& frame, CvlInt64 map, bool needsSurfaces, bool needsVariable)
{
    if (needsSurfaces && frame.fieldMaps().hasVolumeZones(map) && !drawsSurfaces(frame, map, false))
        return LayerGap::NoSurfaces;
    return needsVariable && !hasContourVariable(frame, map) ? LayerGap::NoVariable : LayerGap::None;
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
    const bool needsSurfaces = !isLines && layer != style::kEdgeLayer;
    const bool needsVariable = layer == style::kContourLayer;
    LayerFacts facts {LayerGap::NotShown, {}, &layer};
    for (const std::uint32_t map : active) {
        if (!(isLines ? frame.lineInteger(show, map) : frame.fieldInteger(show, map)))
            continue;
        const LayerGap gap = gapOf(frame, map, needsSurfaces, needsVariable);
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
