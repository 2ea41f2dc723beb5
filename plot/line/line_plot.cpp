// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_plot.h"

#include "host/document/line_map_name.h"
#include "plot/line/line_notes.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace corvala::plot {

LinePlot::LinePlot(QCustomPlot& plot)
    : MapScene(lineSceneKind(), kLargestPlot)
    , m_plot(plot)
    , m_chart(makeXyChart(plot))
    , m_legend(plot)
    , m_patience(m_chart->patience())
{
    m_legend.setChart(*m_chart);
}

void LinePlot::clear(const host::Frame* drawn, Fresh)
{
    const ChartRange range = m_chart->range();
    const PlotType_e plotTypeBefore =
        std::exchange(m_plotType, drawn ? drawn->plotType() : PlotType_None);
    m_chart.reset();
    m_chart = isPolar() ? makePolarChart(m_plot) : makeXyChart(m_plot);
    m_legend.setChart(*m_chart);
    m_chart->setPatience(m_patience);
    m_chart->setBeforeDrawing([this] { followPlanes(); });
    m_geometries.clear();
    if (drawn)
        applyLook(*drawn);
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
    applyLook(drawn);
    LayerMask shown = 0;
    for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
        shown |= isLayerOn(drawn, layer) ? maskOf(layer) : 0;
    m_chart->ink().setLayers(shown);
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
    m_geometries.erase(map);
}

/// Makes again what of it is another one.
const LineGeometry& LinePlot::geometryOf(const ShownLine& line)
{
    LineGeometry& geometry = m_geometries[line.map];
    const LineRecipe recipe = recipeOf(line.frame, line.map);
    const CurveRecipe curve = curveRecipeOf(line.frame, line.map);
    const LinePlane plane = m_chart->plane(axesOf(line.frame, line.map));
    const bool hasPoints = geometry.points && geometry.recipe == recipe;
    const bool hasPlaces = hasPoints && geometry.plane == plane;
    if (!hasPoints) {
        geometry.recipe = recipe;
        geometry.points =
            std::make_shared<const LinePoints>(linePoints(*line.frame.data(), recipe));
    }
    if (!hasPlaces) {
        geometry.plane = plane;
        geometry.places = std::make_shared<const Polyline>(inPlane(*geometry.points, plane));
    }
    if (!hasPlaces || !(geometry.curveRecipe == curve)) {
        geometry.curveRecipe = curve;
        makeCurve(line, geometry);
    }
    return geometry;
}

void LinePlot::makeCurve(const ShownLine& line, LineGeometry& geometry)
{
    geometry.curveProblem = CurveProblem::None;
    geometry.curve = geometry.places;
    if (geometry.curveRecipe.type == CurveType_LineSegments)
        return;
    const LineCurve curve = curveThrough(*line.frame.data(), geometry.recipe, *geometry.points,
                                         geometry.curveRecipe, geometry.plane);
    geometry.curveProblem = curve.problem();
    geometry.curve = std::make_shared<const Polyline>(inPlane(curve.points, geometry.plane));
}

void LinePlot::syncLayer(std::size_t layer, const ShownLine& line, bool isShown)
{
    std::shared_ptr<const ChartShape> shape;
    if (isShown && isInLayer(line.frame, line.map, layer))
        shape = shapeIn(layer, line, geometryOf(line));
    if (shape)
        m_chart->ink().set({layer, line.map}, std::move(shape), axesOf(line.frame, line.map));
    else
        m_chart->ink().remove({layer, line.map});
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
            if (m_chart->ink().shapes().count({layer, map}) > 0)
                syncLayer(layer, {*drawn, map, m_height}, true);
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
    for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
        if (layers & maskOf(layer))
            syncLayer(layer, {drawn, map, m_height}, isShown);
    return layers;
}

bool LinePlot::hasWork() const
{
    return MapScene::hasWork() || m_chart->hasWork();
}

bool LinePlot::advance(int milliseconds)
{
    if (MapScene::hasWork())
        return MapScene::advance(milliseconds);
    return m_chart->hasWork() && m_chart->ink().advance(milliseconds);
}

void LinePlot::prepare()
{
    const host::Frame* const drawn = frame();
    if (drawn)
        applyLook(*drawn);
    m_legend.set(drawn ? legendLookOf(*drawn, shownMaps(), m_height) : LegendLook());
    if (m_isFitted)
        m_chart->fit(isPolar() ? radii() : AxisRange());
    m_chart->updateAxes(!MapScene::hasWork());
}

std::pair<CvlInt64, CvlInt64> LinePlot::progress() const
{
    constexpr int kSyncing = 100; // as much as drawing a line
    const auto [synced, toSync] = MapScene::progress();
    const auto [drawn, toDraw] = m_chart->ink().progress();
    return {kSyncing * synced + drawn, kSyncing * toSync + toDraw};
}

void LinePlot::cancel()
{
    MapScene::cancel();
    m_chart->ink().cancel();
}

void LinePlot::resume()
{
    MapScene::resume();
    m_chart->ink().resume();
}

namespace {

/// Collects the variables along an axis.
struct AxisVariables
{
    QStringList names;
    bool areInstants = true;

    void add(const host::Frame& drawn, CvlInt64 variable);
    QString title(bool hasLegend) const;
    void title(AxisLook& axis, bool hasLegend) const;
};

} // namespace

void AxisVariables::add(const host::Frame& drawn, CvlInt64 variable)
{
    const host::DataSet* const data = drawn.data();
    const QString name = QString::fromStdString(host::shownVariableName(data, variable));
    if (!names.contains(name))
        names.append(name);
    areInstants = areInstants && data && data->hasVariable(variable)
        && data->variable(variable).kind == host::VariableKind::Instant;
}

/// Many names are those of a legend, or the first ones and an ellipsis.
QString AxisVariables::title(bool hasLegend) const
{
    constexpr int kMostNames = 4;
    const QString separator = QStringLiteral(", ");
    if (names.size() <= kMostNames)
        return names.join(separator);
    return hasLegend ? QString() : names.mid(0, kMostNames).join(separator) + ", \u2026";
}

void AxisVariables::title(AxisLook& axis, bool hasLegend) const
{
    axis.isOfInstants = areInstants && !names.isEmpty();
    if (axis.title.isEmpty())
        axis.title = title(hasLegend);
}

/// Axes without a title of their own have the names of the variables along them.
void LinePlot::addNames(const host::Frame& drawn, ChartLook& look) const
{
    std::array<AxisVariables, kAxisCount> first;
    std::array<AxisVariables, kAxisCount> second;
    for (const std::uint32_t map : shownMaps()) {
        if (!isSeen(drawn, map))
            continue;
        const LineRecipe recipe = recipeOf(drawn, map);
        const LineAxes axes = axesOf(drawn, map);
        first[axes.first].add(drawn, recipe.first);
        second[axes.second].add(drawn, recipe.second);
    }
    const bool hasLegend = drawn.isOn(style::lineLegend.show);
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        first[i].title(look.first[i], hasLegend);
        second[i].title(look.second[i], hasLegend);
    }
    const QString angle = first[0].title(hasLegend);
    const QString radius = second[0].title(hasLegend);
    if (look.polar.title.isEmpty() && !angle.isEmpty() && !radius.isEmpty())
        look.polar.title = tr("%1 over %2").arg(radius, angle);
}

void LinePlot::applyLook(const host::Frame& drawn)
{
    ChartLook look = chartLookOf(drawn, m_height);
    addNames(drawn, look);
    m_chart->setLook(look);
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
