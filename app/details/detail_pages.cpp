// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/detail_pages.h"

#include <QtGlobal>

#define DETAIL_TEXT(text) QT_TRANSLATE_NOOP("PlotDetails", text)

namespace corvala::app {

static constexpr DetailRow kContour[] = {
    {style::contourGroups.var, DETAIL_TEXT("Variable")},
    {style::contourGroups.automaticLevels, DETAIL_TEXT("Levels by the data")},
    {style::contourGroups.levelMin, DETAIL_TEXT("Lowest level"),
     style::contourGroups.automaticLevels},
    {style::contourGroups.levelMax, DETAIL_TEXT("Highest level"),
     style::contourGroups.automaticLevels},
    {style::contourGroups.bandCount, DETAIL_TEXT("Bands"), style::contourGroups.automaticLevels},
    {style::contourGroups.colorMap, DETAIL_TEXT("Colors")},
    {style::contourGroups.reversesColors, DETAIL_TEXT("Colors reversed")},
    {style::contourGroups.showLegend, DETAIL_TEXT("Legend")},
    {style::contourGroups.legendTitle, DETAIL_TEXT("Title of the legend")},
    {style::contourGroups.automaticLegend, DETAIL_TEXT("Legend beside the plot")},
    {style::contourGroups.legendX, DETAIL_TEXT("Its left edge [%]"),
     style::contourGroups.automaticLegend},
    {style::contourGroups.legendY, DETAIL_TEXT("Its upper edge [%]"),
     style::contourGroups.automaticLegend},
};

static constexpr DetailRow kVector[] = {
    {style::globalVector.uVar, DETAIL_TEXT("U variable")},
    {style::globalVector.vVar, DETAIL_TEXT("V variable")},
    {style::globalVector.wVar, DETAIL_TEXT("W variable")},
    {style::globalVector.relativeLength, DETAIL_TEXT("Relative length")},
    {style::globalVector.isUniform, DETAIL_TEXT("All of the same length")},
    {style::globalVector.headSize, DETAIL_TEXT("Head size [% of the vector]")},
    {style::globalVector.headAngle, DETAIL_TEXT("Head angle [\302\260]")},
    {style::globalVector.showReference, DETAIL_TEXT("Reference arrow")},
    {style::globalVector.referenceMagnitude, DETAIL_TEXT("Its magnitude (0: a round one)")},
};

static constexpr DetailRow kScatter[] = {
    {style::globalScatter.var, DETAIL_TEXT("Size variable")},
    {style::globalScatter.automaticRange, DETAIL_TEXT("Range by the data")},
    {style::globalScatter.rangeMin, DETAIL_TEXT("Smallest value"),
     style::globalScatter.automaticRange},
    {style::globalScatter.rangeMax, DETAIL_TEXT("Largest value"),
     style::globalScatter.automaticRange},
    {style::globalScatter.smallestSize, DETAIL_TEXT("Smallest size [%]")},
    {style::globalScatter.largestSize, DETAIL_TEXT("Largest size [%]")},
};

static constexpr DetailRow kEdge[] = {
    {style::edgeDetails.creaseAngle, DETAIL_TEXT("Crease angle [\302\260]")},
};

static constexpr DetailRow kLight[] = {
    {style::lightSource.azimuth, DETAIL_TEXT("From the right [\302\260]")},
    {style::lightSource.elevation, DETAIL_TEXT("From above [\302\260]")},
    {style::fieldLayers.useTranslucency, DETAIL_TEXT("Translucent surfaces")},
};

static constexpr DetailRow kRgb[] = {
    {style::globalRgb.redVar, DETAIL_TEXT("Red variable")},
    {style::globalRgb.greenVar, DETAIL_TEXT("Green variable")},
    {style::globalRgb.blueVar, DETAIL_TEXT("Blue variable")},
};

static constexpr const auto& kConstraint = style::blanking.value.constraint;
static constexpr DetailRow kBlanking[] = {
    {style::blanking.value.include, DETAIL_TEXT("Value blanking")},
    {style::blanking.value.blankedCells, DETAIL_TEXT("Takes away")},
    {kConstraint.include, DETAIL_TEXT("In force")},
    {kConstraint.var, DETAIL_TEXT("Where the variable")},
    {kConstraint.relation, DETAIL_TEXT("is")},
    {kConstraint.comparedWith, DETAIL_TEXT("a")},
    {kConstraint.constant, DETAIL_TEXT("Constant")},
    {kConstraint.comparedVar, DETAIL_TEXT("Other variable")},
};

static constexpr DetailRow kSlices[] = {
    {style::slices.show, DETAIL_TEXT("Shown")},
    {style::slices.plane, DETAIL_TEXT("Across")},
    {style::slices.automaticPosition, DETAIL_TEXT("In the middle")},
    {style::slices.position, DETAIL_TEXT("Position"), style::slices.automaticPosition},
    {style::slices.coloring, DETAIL_TEXT("Flood by")},
};

static constexpr DetailRow kIsoSurfaces[] = {
    {style::isoSurfaces.show, DETAIL_TEXT("Shown")},
    {style::isoSurfaces.var, DETAIL_TEXT("Variable")},
    {style::isoSurfaces.count, DETAIL_TEXT("Number")},
    {style::isoSurfaces.automaticValues, DETAIL_TEXT("Values by the data")},
    {style::isoSurfaces.value1, DETAIL_TEXT("First value"), style::isoSurfaces.automaticValues},
    {style::isoSurfaces.value2, DETAIL_TEXT("Second value"), style::isoSurfaces.automaticValues},
    {style::isoSurfaces.value3, DETAIL_TEXT("Third value"), style::isoSurfaces.automaticValues},
    {style::isoSurfaces.coloring, DETAIL_TEXT("Flood by")},
};

static constexpr DetailRow kStreamtraces[] = {
    {style::streamtraces.show, DETAIL_TEXT("Shown")},
    {style::streamtraces.direction, DETAIL_TEXT("Direction")},
    {style::streamtraces.seedCount, DETAIL_TEXT("Lines of the rake")},
    {style::streamtraces.automaticRake, DETAIL_TEXT("Rake across the data")},
    {style::streamtraces.startX, DETAIL_TEXT("Rake from X"), style::streamtraces.automaticRake},
    {style::streamtraces.startY, DETAIL_TEXT("Y"), style::streamtraces.automaticRake},
    {style::streamtraces.startZ, DETAIL_TEXT("Z"), style::streamtraces.automaticRake},
    {style::streamtraces.endX, DETAIL_TEXT("Rake to X"), style::streamtraces.automaticRake},
    {style::streamtraces.endY, DETAIL_TEXT("Y"), style::streamtraces.automaticRake},
    {style::streamtraces.endZ, DETAIL_TEXT("Z"), style::streamtraces.automaticRake},
    {style::streamtraces.points, DETAIL_TEXT("Points besides (X Y Z ...)")},
    {style::streamtraces.color, DETAIL_TEXT("Color")},
    {style::streamtraces.lineThickness, DETAIL_TEXT("Line thickness [%]")},
};

static constexpr DetailRow kAxes[] = {
    {style::fieldAxes.x.automaticRange, DETAIL_TEXT("X range by the data")},
    {style::fieldAxes.x.rangeMin, DETAIL_TEXT("X minimum"), style::fieldAxes.x.automaticRange},
    {style::fieldAxes.x.rangeMax, DETAIL_TEXT("X maximum"), style::fieldAxes.x.automaticRange},
    {style::fieldAxes.x.title, DETAIL_TEXT("X title")},
    {style::fieldAxes.y.automaticRange, DETAIL_TEXT("Y range by the data")},
    {style::fieldAxes.y.rangeMin, DETAIL_TEXT("Y minimum"), style::fieldAxes.y.automaticRange},
    {style::fieldAxes.y.rangeMax, DETAIL_TEXT("Y maximum"), style::fieldAxes.y.automaticRange},
    {style::fieldAxes.y.title, DETAIL_TEXT("Y title")},
    {style::fieldAxes.z.automaticRange, DETAIL_TEXT("Z range by the data")},
    {style::fieldAxes.z.rangeMin, DETAIL_TEXT("Z minimum"), style::fieldAxes.z.automaticRange},
    {style::fieldAxes.z.rangeMax, DETAIL_TEXT("Z maximum"), style::fieldAxes.z.automaticRange},
    {style::fieldAxes.z.title, DETAIL_TEXT("Z title")},
    {style::fieldAxes.fontSize, DETAIL_TEXT("Font size [%]")},
    {style::fieldAxes.showGrid, DETAIL_TEXT("Grid")},
};

const std::vector<DetailPage>& detailPages()
{
    static constexpr style::SwitchKey kNoLayer {};
    static const std::vector<DetailPage> kPages = {
        {"contour", DETAIL_TEXT("Contour"), style::fieldLayers.showContour, DETAIL_TEXT("Group"),
         kContour},
        {"rgb", DETAIL_TEXT("RGB"), kNoLayer, nullptr, kRgb},
        {"vector", DETAIL_TEXT("Vector"), style::fieldLayers.showVector, nullptr, kVector},
        {"scatter", DETAIL_TEXT("Scatter"), style::fieldLayers.showScatter, nullptr, kScatter},
        {"edge", DETAIL_TEXT("Edge"), style::fieldLayers.showEdge, nullptr, kEdge},
        {"light", DETAIL_TEXT("Lighting"), style::fieldLayers.useLightingEffect, nullptr, kLight},
        {"blanking", DETAIL_TEXT("Blanking"), kNoLayer, DETAIL_TEXT("Constraint"), kBlanking},
        {"slices", DETAIL_TEXT("Slices"), kNoLayer, DETAIL_TEXT("Slice"), kSlices},
        {"isoSurfaces", DETAIL_TEXT("Iso-surfaces"), kNoLayer, nullptr, kIsoSurfaces},
        {"streamtraces", DETAIL_TEXT("Streamtraces"), kNoLayer, nullptr, kStreamtraces,
         style::streamtraces.points},
        {"axes", DETAIL_TEXT("Axes"), kNoLayer, nullptr, kAxes},
    };
    return kPages;
}

} // namespace corvala::app
