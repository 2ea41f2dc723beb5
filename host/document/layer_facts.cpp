// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/layer_facts.h"

#include "host/document/document.h"
#include "host/style/schema.h"

#include <algorithm>
#include <cstring>

namespace corvala::host {

static AttributeId fieldAttribute(const char* category, const char* name)
{
    return Schema::instance().find({"FieldMap", category, name});
}

bool drawsSurfaces(const Frame& frame, CvlInt64 map, bool orPoints)
{
    static const AttributeId kSurfaces = fieldAttribute("Surfaces", "SurfacesToPlot");
    static const AttributeId kPoints = fieldAttribute("Points", "PointsToPlot");
    if (frame.fieldInteger(kSurfaces, map) != SurfacesToPlot_None)
        return true;
    const int points = orPoints ? frame.fieldInteger(kPoints, map) : PointsToPlot_SurfaceNodes;
    return points != PointsToPlot_SurfaceNodes && points != PointsToPlot_SurfaceCellCenters;
}

static bool hasContourVariable(const Frame& frame, CvlInt64 map)
{
    static const AttributeId kType = fieldAttribute("Contour", "ContourType");
    static const AttributeId kFlood = fieldAttribute("Contour", "FloodColoring");
    static const AttributeId kLines = fieldAttribute("Contour", "LineContourGroup");
    static const Attribute& kVariable = Schema::instance().leaf({"ContourGroups", "Var"});
    const int type = frame.fieldInteger(kType, map);
    const auto hasVariable = [&](AttributeId group) { // of RGB colours nothing is said here
        const int number = frame.fieldInteger(group, map);
        return number < 1 || frame.values().integer(kVariable, number) > 0;
    };
    return (type != ContourType_Lines && hasVariable(kFlood))
        || ((type == ContourType_Lines || type == ContourType_LinesAndFlood)
            && hasVariable(kLines));
}

static LayerGap gapOf(const Frame& frame, CvlInt64 map, bool needsSurfaces, bool needsVariable)
{
    if (needsSurfaces && frame.fieldMaps().hasVolumeZones(map) && !drawsSurfaces(frame, map, false))
        return LayerGap::NoSurfaces;
    return needsVariable && !hasContourVariable(frame, map) ? LayerGap::NoVariable : LayerGap::None;
}

static LayerFacts lightingFacts(const Frame& frame)
{
    if (frame.plotType() != PlotType_Field3D)
        return {LayerGap::NotInSpace, {}, ""};
    if (frame.fieldLayer("ShowContour") && layerFacts(frame, "Contour").gap == LayerGap::None)
        return {};
    return frame.fieldLayer("ShowShade") ? layerFacts(frame, "Shade")
                                         : LayerFacts {LayerGap::NoFaces, {}, ""};
}

LayerFacts layerFacts(const Frame& frame, const char* category)
{
    if (std::strcmp(category, "Lighting") == 0)
        return lightingFacts(frame);
    const bool isLines = std::strcmp(category, "Lines") == 0;
    const NumberSet& active = isLines ? frame.activeLineMaps() : frame.activeFieldMaps();
    if (active.isEmpty())
        return {LayerGap::NoActiveMaps, active, category};
    const AttributeId show =
        Schema::instance().find({isLines ? "LineMap" : "FieldMap", category, "Show"});
    const bool needsSurfaces = !isLines && std::strcmp(category, "EdgeLayer") != 0;
    const bool needsVariable = std::strcmp(category, "Contour") == 0;
    LayerFacts facts {LayerGap::NotShown, {}, category};
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
    return {
        {"FieldMap", "Surfaces", "SurfacesToPlot"}, double(SurfacesToPlot_BoundaryCellFaces), maps};
}

} // namespace corvala::host
