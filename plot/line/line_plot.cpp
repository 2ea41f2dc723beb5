// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_plot.h"

#include "plot/common/highlight.h"
#include "plot/line/axis_names.h"
#include "plot/line/line_notes.h"
#include "plot/line/stroked_line.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace corvala::plot {

LinePlot::LinePlot(QCustomPlot& plot)
    : MapScene(lineSceneKind(), kLargestPlot)
    , m_plot(plot)
    , m_legend(plot)
    , m_timeLabel(plot)
{
    makeChart();
}

void LinePlot::makeChart()
{
    m_chart.reset(); // before another one takes the plot
    m_chart = isPolar() ? makePolarChart(m_plot) : makeXyChart(m_plot);
    m_legend.setChart(*m_chart);
    m_timeLabel.setChart(*m_chart);
    m_chart->setPatience(m_patience);
    m_chart->setBeforeDrawing([this] { followPlanes(); });
}

void LinePlot::clear(const host::Frame* drawn, Fresh)
{
    const ChartRange range = m_chart->range();
    const PlotType_e plotTypeBefore =
        std::exchange(m_plotType, drawn ? drawn->plotType() : PlotType_None);
    makeChart();
    m_maker.drop();
    m_geometries.clear();
    if (drawn)
        m_chart->setLook(lookOf(*drawn));
    if (!m_isFitted && m_plotType == plotTypeBefore)
        m_chart->setRange(range);
}

void LinePlot::setFrameHeight(int height)
{
    m_height = height;
    pend(lineSceneKind().allLayers(), shownMaps());
}

void LinePlot::setPatience(int milliseconds)
{
    m_patience = milliseconds;
    m_chart->setPatience(milliseconds);
}

/// Scales of axes come first: shapes are made by them.
LayerMask LinePlot::showLayers(const host::Frame& drawn)
{
    m_chart->setLook(lookOf(drawn));
    dropUnwanted(drawn);
    LayerMask shown = 0;
    for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
        shown |= isLayerOn(drawn, layer) ? maskOf(layer) : 0;
    m_chart->ink().setLayers(shown | maskOf(ShapeKey::kMarks));
    return shown;
}

bool LinePlot::canShow(const host::Frame& drawn, CvlInt64 map) const
{
    return isInAnyLayer(drawn, map);
}

void LinePlot::forget(CvlInt64 map)
{
    for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
        m_chart->ink().remove({layer, map});
    m_chart->ink().remove({ShapeKey::kMarks, map});
    m_geometries.erase(map);
}

void LinePlot::setOutlined(const host::NumberSet& maps)
{
    constexpr std::uint64_t kMost = 100;
    const host::NumberSet wanted = maps & shownMaps();
    const host::NumberSet before = m_outlined;
    m_outlined = wanted.cardinality() > kMost ? host::NumberSet() : wanted;
    for (const std::uint32_t map : before ^ m_outlined)
        syncOutline(map);
}

/// Along the line through its points, or the curve in its place.
void LinePlot::syncOutline(CvlInt64 map)
{
    const host::Frame* const drawn = frame();
    const auto known = m_geometries.find(map);
    const ShapeKey key {ShapeKey::kMarks, map};
    if (!drawn || known == m_geometries.end()
        || !m_outlined.contains(static_cast<std::uint32_t>(map))) {
        m_chart->ink().remove(key);
        return;
    }
    const LineGeometry& geometry = known->second;
    LineStroke stroke;
    stroke.color = highlightColor();
    stroke.color.setAlpha(110);
    stroke.width = std::max(7.0, m_height / 70.0);
    stroke.dot = stroke.width;
    m_chart->ink().set(
        key,
        std::make_shared<StrokedLine>(geometry.curve ? geometry.curve : geometry.places, stroke),
        axesOf(*drawn, map));
}

/// Makes again what of it is another one, but for the curve.
LineGeometry& LinePlot::geometryOf(const ShownLine& line)
{
    LineGeometry& geometry = m_geometries[line.map];
    const LineRecipe recipe = recipeOf(line.frame, line.map);
    const LinePlane plane = m_chart->plane(axesOf(line.frame, line.map));
    if (!geometry.points || !(geometry.recipe == recipe)) {
        LinePoints points = linePoints(*line.frame.data(), recipe);
        if (!geometry.points || !(*geometry.points == points)) {
            geometry = LineGeometry();
            geometry.points = std::make_shared<const LinePoints>(std::move(points));
        }
        geometry.recipe = recipe;
    }
    if (!geometry.places || !(geometry.plane == plane)) {
        geometry.plane = plane;
        geometry.places = std::make_shared<const Polyline>(inPlane(*geometry.points, plane));
        geometry.curve.reset();
    }
    return geometry;
}

/// Hands over what takes long. Nothing while another thread works on it.
std::optional<std::vector<RunCurve>> LinePlot::fittedCurves(const ShownLine& line,
                                                            const LineGeometry& geometry,
                                                            const CurveRecipe& recipe)
{
    if (!m_maker.makes(geometry.points, recipe)) {
        const LinePoints& points = *geometry.points;
        std::vector<double> weights =
            weightsOf(*line.frame.data(), geometry.recipe, points, recipe);
        if (m_mayWait || !areManyToFit(points))
            return curvesThrough(points, weights, recipe);
        m_maker.begin({geometry.points, std::move(weights), recipe});
        m_handedMap = line.map;
    }
    return m_maker.wait(0) ? std::optional(m_maker.take()) : std::nullopt;
}

/// What was fitted stays while its places move. False while another thread fits.
bool LinePlot::makeCurve(const ShownLine& line, LineGeometry& geometry)
{
    const CurveRecipe recipe = curveRecipeOf(line.frame, line.map);
    const int placeCount = curvePlaceCount(line.frame, line.map);
    if (!geometry.curves || !(geometry.curveRecipe == recipe)) {
        geometry.curves.reset();
        geometry.curve.reset();
        geometry.curveProblem = CurveProblem::None;
    }
    if (recipe.type == CurveType_LineSegments) {
        geometry.curve = geometry.places;
        return true;
    }
    if (!geometry.curves) {
        auto curves = fittedCurves(line, geometry, recipe);
        if (!curves)
            return false;
        geometry.curveRecipe = recipe;
        geometry.curveProblem = problemOf(*curves);
        geometry.curves = std::make_shared<const std::vector<RunCurve>>(std::move(*curves));
    }
    if (!geometry.curve || geometry.curvePlaceCount != placeCount) {
        geometry.curvePlaceCount = placeCount;
        geometry.curve = std::make_shared<const Polyline>(inPlane(
            placesAlong(*geometry.curves, recipe, placeCount, geometry.plane), geometry.plane));
    }
    return true;
}

/// Whether the fit that another thread makes is still one of the picture.
bool LinePlot::isHandedWanted(const host::Frame& drawn) const
{
    const CvlInt64 map = m_handedMap;
    const auto known = m_geometries.find(map);
    return known != m_geometries.end() && shownMaps().contains(static_cast<std::uint32_t>(map))
        && drawn.activeLineMaps().contains(static_cast<std::uint32_t>(map))
        && isSeenAsCurve(drawn, map) && known->second.recipe == recipeOf(drawn, map)
        && m_maker.makes(known->second.points, curveRecipeOf(drawn, map));
}

void LinePlot::dropUnwanted(const host::Frame& drawn)
{
    if (m_maker.isAtWork() && !isHandedWanted(drawn))
        m_maker.drop();
}

bool LinePlot::takeBack(const host::Frame& drawn, int milliseconds)
{
    dropUnwanted(drawn);
    return m_maker.wait(milliseconds);
}

/// False while its curve is in work: only its place is there until it is ready.
bool LinePlot::syncLayer(std::size_t layer, const ShownLine& line, bool isShown)
{
    std::shared_ptr<const ChartShape> shape;
    bool isMade = true;
    if (isShown && isInLayer(line.frame, line.map, layer)) {
        LineGeometry& geometry = geometryOf(line);
        isMade = !followsCurve(layer) || makeCurve(line, geometry);
        shape = isMade ? shapeIn(layer, line, geometry) : awaitedShape(geometry);
    }
    if (shape)
        m_chart->ink().set({layer, line.map}, std::move(shape), axesOf(line.frame, line.map));
    else
        m_chart->ink().remove({layer, line.map});
    return isMade;
}

/// Shapes are made again whose plane the user has changed by moving an axis.
void LinePlot::followPlanes()
{
    const host::Frame* const drawn = frame();
    if (!drawn)
        return;
    for (const auto& [map, geometry] : m_geometries) {
        if (geometry.plane == m_chart->plane(axesOf(*drawn, map)))
            continue;
        for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
            if (m_chart->ink().shapes().count({layer, map}) > 0
                && !syncLayer(layer, {*drawn, map, m_height}, true))
                pend(maskOf(layer), host::NumberSet::bitmapOf(1, static_cast<std::uint32_t>(map)));
    }
}

AxisRange LinePlot::radii() const
{
    AxisRange range {std::numeric_limits<double>::infinity(),
                     -std::numeric_limits<double>::infinity()};
    for (const auto& [map, geometry] : m_geometries) {
        for (const double value : geometry.points->second) {
            if (std::isfinite(value)) {
                range.minimum = std::min(range.minimum, value);
                range.maximum = std::max(range.maximum, value);
            }
        }
    }
    return range;
}

LayerMask LinePlot::sync(const host::Frame& drawn, CvlInt64 map, LayerMask layers, bool isShown)
{
    ++m_syncs;
    LayerMask done = 0;
    for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
        if ((layers & maskOf(layer)) && syncLayer(layer, {drawn, map, m_height}, isShown))
            done |= maskOf(layer);
    if (m_outlined.contains(static_cast<std::uint32_t>(map)))
        syncOutline(map);
    return done;
}

bool LinePlot::hasWork() const
{
    return MapScene::hasWork() || m_chart->hasWork();
}

bool LinePlot::advance(int milliseconds)
{
    const QScopedValueRollback<bool> whileAdvancing(m_mayWait, milliseconds < 0);
    // What is there is drawn while another thread fits.
    const bool isAwaiting = !m_mayWait && m_maker.isAtWork() && !m_maker.wait(0);
    if (MapScene::hasWork() && !(isAwaiting && m_chart->hasWork()))
        return MapScene::advance(milliseconds);
    return (m_chart->hasWork() && m_chart->ink().advance(milliseconds)) || MapScene::hasWork();
}

void LinePlot::prepare()
{
    const host::Frame* const drawn = frame();
    if (drawn) {
        const ChartLook look = lookOf(*drawn);
        m_chart->setLook(look);
        m_legend.set(legendLookOf(*drawn, shownMaps(), m_height, look));
        m_timeLabel.set(timeTextOf(*drawn, shownMaps()), look.font);
    } else {
        m_legend.set({});
        m_timeLabel.set({}, 1.0);
    }
    if (m_isFitted && !m_maker.isAtWork()) // a line that comes soon has its place
        m_chart->fit(isPolar() ? radii() : AxisRange());
    m_chart->updateAxes(!MapScene::hasWork());
}

std::pair<CvlInt64, CvlInt64> LinePlot::progress() const
{
    constexpr int kSyncing = 100; // as much as drawing a line
    const auto [synced, toSync] = MapScene::progress();
    const auto [drawn, toDraw] = m_chart->ink().progress();
    const int handed = m_maker.isAtWork() ? kSyncing / 2 : 0;
    return {kSyncing * synced + handed + drawn, kSyncing * toSync + toDraw};
}

void LinePlot::cancel()
{
    MapScene::cancel();
    m_maker.drop();
    m_chart->ink().cancel();
}

void LinePlot::resume()
{
    MapScene::resume();
    m_chart->ink().resume();
}

ChartLook LinePlot::lookOf(const host::Frame& drawn) const
{
    ChartLook look = chartLookOf(drawn, m_height);
    addVariableNames(drawn, shownMaps(), look);
    return look;
}

std::vector<SceneNote> LinePlot::notes() const
{
    const host::Frame* const drawn = frame();
    return drawn ? lineNotesOn({*drawn, shownMaps(), m_geometries}) : std::vector<SceneNote>();
}

QString LinePlot::notice() const
{
    const QString notice = MapScene::notice();
    if (!notice.isEmpty())
        return notice;
    if (const auto missing = static_cast<int>(m_chart->ink().missingCount()))
        return tr("Drawing was cancelled: %Ln line(s) missing", nullptr, missing);
    return m_chart->ink().simplifiedCount() > 0 ? tr("Dense lines are drawn thin") : QString();
}

} // namespace corvala::plot
