// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/detail_pages.h"

#include <QCoreApplication>

#define DETAIL_TEXT(text) QT_TRANSLATE_NOOP("PlotDetails", text)

namespace corvala::app {

using Proposal = DetailRow::Proposal;

static constexpr DetailCondition kInSpace {style::plotType, PlotType_Field3D};
static constexpr style::SwitchKey kOwn {}; ///< does not follow from the data

static constexpr DetailCondition kHasLegend {style::contourGroups.showLegend};
static constexpr DetailRow kContour[] = {
    {style::contourGroups.var, DETAIL_TEXT("Variable")},
    {style::contourGroups.automaticLevels, DETAIL_TEXT("Range by the data")},
    {style::contourGroups.levelMin, DETAIL_TEXT("Lowest level"),
     style::contourGroups.automaticLevels},
    {style::contourGroups.levelMax, DETAIL_TEXT("Highest level"),
     style::contourGroups.automaticLevels},
    {style::contourGroups.bandCount, DETAIL_TEXT("Bands"), kOwn, {}, Proposal::AtZero},
    {style::contourGroups.moreLines, DETAIL_TEXT("More lines at (values)")},
    {style::contourGroups.colorMap, DETAIL_TEXT("Colors")},
    {style::contourGroups.reversesColors, DETAIL_TEXT("Colors reversed")},
    {style::contourGroups.showLegend, DETAIL_TEXT("Legend")},
    {style::contourGroups.legendTitle, DETAIL_TEXT("Title of the legend"), kOwn, {kHasLegend}},
    {style::contourGroups.automaticLegend,
     DETAIL_TEXT("Legend beside the plot"),
     kOwn,
     {kHasLegend}},
    {style::contourGroups.legendX,
     DETAIL_TEXT("Its left edge [%]"),
     style::contourGroups.automaticLegend,
     {kHasLegend}},
    {style::contourGroups.legendY,
     DETAIL_TEXT("Its upper edge [%]"),
     style::contourGroups.automaticLegend,
     {kHasLegend}},
};
static constexpr DetailReset kResetLevels {DETAIL_TEXT("Reset Levels"),
                                           style::contourGroups.moreLines,
                                           {style::contourGroups.automaticLevels,
                                            style::contourGroups.bandCount,
                                            style::contourGroups.moreLines}};

static constexpr DetailCondition kOfAnyLength {style::globalVector.isUniform, 0};
static constexpr DetailRow kVector[] = {
    {style::globalVector.uVar, DETAIL_TEXT("U variable")},
    {style::globalVector.vVar, DETAIL_TEXT("V variable")},
    {style::globalVector.wVar, DETAIL_TEXT("W variable"), kOwn, {kInSpace}},
    {style::globalVector.automaticLength, DETAIL_TEXT("Length by the data")},
    {style::globalVector.lengthOfOne, DETAIL_TEXT("Length of magnitude 1"),
     style::globalVector.automaticLength},
    {style::globalVector.relativeLength, DETAIL_TEXT("Relative length")},
    {style::globalVector.isUniform, DETAIL_TEXT("All of the same length")},
    {style::globalVector.headSize, DETAIL_TEXT("Head size [% of the vector]")},
    {style::globalVector.headAngle, DETAIL_TEXT("Head angle [\302\260]")},
    {style::globalVector.showReference, DETAIL_TEXT("Reference arrow"), kOwn, {kOfAnyLength}},
    {style::globalVector.referenceMagnitude,
     DETAIL_TEXT("Its magnitude (0: a round one)"),
     kOwn,
     {kOfAnyLength, {style::globalVector.showReference}}},
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
    {style::lightSource.azimuth, DETAIL_TEXT("From the right [\302\260]"), kOwn, {kInSpace}},
    {style::lightSource.elevation, DETAIL_TEXT("From above [\302\260]"), kOwn, {kInSpace}},
    {style::fieldLayers.useTranslucency, DETAIL_TEXT("Translucent surfaces"), kOwn, {kInSpace}},
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
    {kConstraint.constant,
     DETAIL_TEXT("Constant"),
     kOwn,
     {{{kConstraint.comparedWith, ComparedWith_Constant}}}},
    {kConstraint.comparedVar,
     DETAIL_TEXT("Other variable"),
     kOwn,
     {{{kConstraint.comparedWith, ComparedWith_Variable}}}},
};

static constexpr DetailRow kSlices[] = {
    {style::slices.show, DETAIL_TEXT("Shown")},
    {style::slices.plane, DETAIL_TEXT("Across"), kOwn, {kInSpace}},
    {style::slices.automaticPosition, DETAIL_TEXT("In the middle"), kOwn, {kInSpace}},
    {style::slices.position, DETAIL_TEXT("Position"), style::slices.automaticPosition, {kInSpace}},
    {style::slices.coloring, DETAIL_TEXT("Flood by"), kOwn, {kInSpace}},
};

static constexpr DetailCondition isoSurfaces(int least)
{
    return {style::isoSurfaces.count, least, style::IsoSurfaces::kCount};
}
static constexpr DetailRow kIsoSurfaces[] = {
    {style::isoSurfaces.show, DETAIL_TEXT("Shown")},
    {style::isoSurfaces.var, DETAIL_TEXT("Variable"), kOwn, {kInSpace}},
    {style::isoSurfaces.count, DETAIL_TEXT("Number"), kOwn, {kInSpace}},
    {style::isoSurfaces.automaticValues, DETAIL_TEXT("Values by the data"), kOwn, {kInSpace}},
    {style::isoSurfaces.value1,
     DETAIL_TEXT("First value"),
     style::isoSurfaces.automaticValues,
     {kInSpace}},
    {style::isoSurfaces.value2,
     DETAIL_TEXT("Second value"),
     style::isoSurfaces.automaticValues,
     {kInSpace, isoSurfaces(2)}},
    {style::isoSurfaces.value3,
     DETAIL_TEXT("Third value"),
     style::isoSurfaces.automaticValues,
     {kInSpace, isoSurfaces(3)}},
    {style::isoSurfaces.coloring, DETAIL_TEXT("Flood by"), kOwn, {kInSpace}},
};

static constexpr DetailRow ofRake(style::RealKey key, const char* text)
{
    return {key,
            text,
            style::streamtraces.automaticRake,
            {kInSpace, {style::streamtraces.seedCount, 1, 1000}}};
}
static constexpr DetailRow kStreamtraces[] = {
    {style::streamtraces.show, DETAIL_TEXT("Shown")},
    {style::streamtraces.direction, DETAIL_TEXT("Direction"), kOwn, {kInSpace}},
    {style::streamtraces.seedCount, DETAIL_TEXT("Lines of the rake"), kOwn, {kInSpace}},
    {style::streamtraces.automaticRake, DETAIL_TEXT("Rake across the data"), kOwn, {kInSpace}},
    ofRake(style::streamtraces.startX, DETAIL_TEXT("Rake from X")),
    ofRake(style::streamtraces.startY, DETAIL_TEXT("Y")),
    ofRake(style::streamtraces.startZ, DETAIL_TEXT("Z")),
    ofRake(style::streamtraces.endX, DETAIL_TEXT("Rake to X")),
    ofRake(style::streamtraces.endY, DETAIL_TEXT("Y")),
    ofRake(style::streamtraces.endZ, DETAIL_TEXT("Z")),
    {style::streamtraces.points, DETAIL_TEXT("Points besides (X Y Z ...)"), kOwn, {kInSpace}},
    {style::streamtraces.color, DETAIL_TEXT("Color"), kOwn, {kInSpace}},
    {style::streamtraces.lineThickness, DETAIL_TEXT("Line thickness [%]"), kOwn, {kInSpace}},
};

/// An end of the range of an axis. Equal scales of the axes show more of one than was set.
static constexpr DetailRow endOf(const style::FieldAxis& axis, style::RealKey end, const char* text,
                                 DetailCondition matters = {})
{
    return {end, text, axis.automaticRange, {matters}, Proposal::BesideOwn};
}
static constexpr const auto& kX = style::fieldAxes.x;
static constexpr const auto& kY = style::fieldAxes.y;
static constexpr const auto& kZ = style::fieldAxes.z;
static constexpr DetailRow kAxes[] = {
    {kX.automaticRange, DETAIL_TEXT("X range by the data")},
    endOf(kX, kX.rangeMin, DETAIL_TEXT("X minimum")),
    endOf(kX, kX.rangeMax, DETAIL_TEXT("X maximum")),
    {kX.title, DETAIL_TEXT("X title")},
    {kY.automaticRange, DETAIL_TEXT("Y range by the data")},
    endOf(kY, kY.rangeMin, DETAIL_TEXT("Y minimum")),
    endOf(kY, kY.rangeMax, DETAIL_TEXT("Y maximum")),
    {kY.title, DETAIL_TEXT("Y title")},
    {kZ.automaticRange, DETAIL_TEXT("Z range by the data"), kOwn, {kInSpace}},
    endOf(kZ, kZ.rangeMin, DETAIL_TEXT("Z minimum"), kInSpace),
    endOf(kZ, kZ.rangeMax, DETAIL_TEXT("Z maximum"), kInSpace),
    {kZ.title, DETAIL_TEXT("Z title"), kOwn, {kInSpace}},
    {style::fieldAxes.fontSize, DETAIL_TEXT("Font size [%]")},
    {style::fieldAxes.showGrid, DETAIL_TEXT("Grid")},
};

static constexpr DetailCondition kInXy {style::plotType, PlotType_LineXY};
static constexpr DetailCondition kInPolar {style::plotType, PlotType_LinePolar};

/// Of one direction of an XY plot.
static constexpr std::array<DetailRow, 8> rowsOf(const style::LineAxis& axis)
{
    return {{
        {axis.title, DETAIL_TEXT("Title"), kOwn, {kInXy}},
        {axis.automaticRange, DETAIL_TEXT("Range by the data"), kOwn, {kInXy}},
        {axis.rangeMin, DETAIL_TEXT("Minimum"), axis.automaticRange, {kInXy}},
        {axis.rangeMax, DETAIL_TEXT("Maximum"), axis.automaticRange, {kInXy}},
        {axis.scale, DETAIL_TEXT("Scale"), kOwn, {kInXy}},
        {axis.isReversed, DETAIL_TEXT("Reversed"), kOwn, {kInXy}},
        {axis.color, DETAIL_TEXT("Color"), kOwn, {kInXy}},
        {axis.side, DETAIL_TEXT("Side"), kOwn, {kInXy}},
    }};
}
static constexpr std::array<DetailRow, 8> kXAxes = rowsOf(style::lineAxes.x);
static constexpr std::array<DetailRow, 8> kYAxes = rowsOf(style::lineAxes.y);

static constexpr const auto& kPolar = style::lineAxes.polar;
static constexpr DetailRow kPolarAxes[] = {
    {kPolar.title, DETAIL_TEXT("Title"), kOwn, {kInPolar}},
    {kPolar.automaticRange, DETAIL_TEXT("Radius by the data"), kOwn, {kInPolar}},
    {kPolar.rangeMin, DETAIL_TEXT("Radius at the middle"), kPolar.automaticRange, {kInPolar}},
    {kPolar.rangeMax, DETAIL_TEXT("Radius at the rim"), kPolar.automaticRange, {kInPolar}},
    {kPolar.start, DETAIL_TEXT("Angle 0"), kOwn, {kInPolar}},
    {kPolar.isClockwise, DETAIL_TEXT("Clockwise"), kOwn, {kInPolar}},
};

static constexpr DetailCondition kHasLineLegend {style::lineLegend.show};
static constexpr DetailRow kLineLegend[] = {
    {style::lineLegend.show, DETAIL_TEXT("Legend")},
    {style::lineLegend.automaticPlace,
     DETAIL_TEXT("In the corner where it hides least"),
     kOwn,
     {kHasLineLegend}},
    {style::lineLegend.x,
     DETAIL_TEXT("Its left edge [%]"),
     style::lineLegend.automaticPlace,
     {kHasLineLegend}},
    {style::lineLegend.y,
     DETAIL_TEXT("Its upper edge [%]"),
     style::lineLegend.automaticPlace,
     {kHasLineLegend}},
    {style::lineLegend.showBox, DETAIL_TEXT("Box"), kOwn, {kHasLineLegend}},
};

static constexpr DetailRow kLineFrame[] = {
    {style::lineFrame.title, DETAIL_TEXT("Title of the plot")},
    {style::lineFrame.fontSize, DETAIL_TEXT("Font size [%]")},
    {style::lineFrame.showGrid, DETAIL_TEXT("Grid")},
    {style::lineFrame.showBox, DETAIL_TEXT("Box")},
};

static constexpr DetailCondition kHasTime {style::timeText.show};
static constexpr DetailRow kTimeText[] = {
    {style::timeText.show, DETAIL_TEXT("Time in the picture")},
    {style::timeText.title, DETAIL_TEXT("Text before the time"), kOwn, {kHasTime}},
    {style::timeText.unit, DETAIL_TEXT("Unit"), kOwn, {kHasTime}},
    {style::timeText.digits, DETAIL_TEXT("Digits"), kOwn, {kHasTime}},
    {style::timeText.automaticPlace, DETAIL_TEXT("In the corner of the plot"), kOwn, {kHasTime}},
    {style::timeText.x,
     DETAIL_TEXT("Its left edge [%]"),
     style::timeText.automaticPlace,
     {kHasTime}},
    {style::timeText.y,
     DETAIL_TEXT("Its upper edge [%]"),
     style::timeText.automaticPlace,
     {kHasTime}},
};

static DetailPage ofLines(const char* name, const char* title, const char* indexText,
                          const DetailRows& rows)
{
    return {name, title, {}, indexText, rows, {}, {}, true};
}

const std::vector<DetailPage>& detailPages()
{
    static constexpr style::SwitchKey kNoLayer {};
    static const std::vector<DetailPage> kPages = {
        {"contour",
         DETAIL_TEXT("Contour"),
         style::fieldLayers.showContour,
         DETAIL_TEXT("Group"),
         kContour,
         {},
         kResetLevels},
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
        {"timeText", DETAIL_TEXT("Time"), kNoLayer, nullptr, kTimeText},
        ofLines("xAxes", DETAIL_TEXT("X Axes"), DETAIL_TEXT("Axis"), kXAxes),
        ofLines("yAxes", DETAIL_TEXT("Y Axes"), DETAIL_TEXT("Axis"), kYAxes),
        ofLines("polarAxes", DETAIL_TEXT("Polar Axes"), nullptr, kPolarAxes),
        ofLines("lineLegend", DETAIL_TEXT("Legend"), nullptr, kLineLegend),
        ofLines("lineFrame", DETAIL_TEXT("Frame"), nullptr, kLineFrame),
        ofLines("lineTimeText", DETAIL_TEXT("Time"), nullptr, kTimeText),
    };
    return kPages;
}

QString shownTitle(const DetailPage& page)
{
    return QCoreApplication::translate("PlotDetails", page.title);
}

} // namespace corvala::app
