// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/local_field_scene.h"

#include "host/document/line_map_name.h"

#include <vtkActor.h>
#include <vtkBox.h>
#include <vtkMath.h>
#include <vtkPropCollection.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <set>

namespace corvala::plot {

/// Layers that may be coloured by the levels of a contour group.
static constexpr LayerMask kColoredLayers =
    maskOf(FieldLayer::Flood) | maskOf(FieldLayer::ContourLines) | maskOf(FieldLayer::Mesh);

LocalFieldScene::LocalFieldScene(vtkRenderer& back, vtkRenderer& front,
                                 std::shared_ptr<SurfaceCache> cache, CvlInt64 largestScene)
    : MapScene(fieldSceneKind(), largestScene)
    , m_cache(std::move(cache))
    , m_back(back)
    , m_front(front)
{
    rebuild(Fresh::Frame);
}

LocalFieldScene::~LocalFieldScene() = default;

void LocalFieldScene::clear(const host::Frame* drawn, Fresh reason)
{
    m_flat = drawn && drawn->plotType() == PlotType_Field2D;
    if (reason == Fresh::Data || reason == Fresh::Values)
        m_cache->clear();
    if (reason != Fresh::Maps)
        m_groups.clear();
    setStandIn(false);
    m_task.reset();
    m_piece = {};
    m_surfaces.clear();
    m_ranges.clear();
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        m_layers[i] =
            std::make_unique<CompositeLayer>(static_cast<FieldLayer>(i), m_flat, m_back, m_front);
        m_layers[i]->setScale(m_scale);
    }
}

void LocalFieldScene::frameStyleChanged(const host::Frame& drawn)
{
    m_groups.setVariables(drawn);
}

bool LocalFieldScene::isLayerOn(const host::Frame& drawn, std::size_t layer) const
{
    return plot::isLayerOn(drawn, static_cast<FieldLayer>(layer));
}

void LocalFieldScene::setLayerVisible(std::size_t layer, bool isVisible)
{
    m_layers[layer]->setVisible(isVisible);
}

host::NumberSet LocalFieldScene::transientMaps(const host::Frame& drawn) const
{
    host::NumberSet transient;
    for (const std::uint32_t map : drawn.activeFieldMaps())
        if (drawn.fieldMaps().strand(map) > 0)
            transient.add(map);
    return transient;
}

void LocalFieldScene::cancel()
{
    MapScene::cancel();
    m_task.reset();
}

bool LocalFieldScene::canShow(const host::Frame& drawn, CvlInt64 map) const
{
    const CvlInt64 zone = drawn.candidateZone(map);
    return zone != 0 && drawn.enabledZones().contains(static_cast<std::uint32_t>(zone));
}

void LocalFieldScene::forget(CvlInt64 map)
{
    m_surfaces.erase(map);
    m_ranges.remove(map);
}

static ShownMap shown(const host::Frame& drawn, CvlInt64 map)
{
    return {drawn, map, drawn.candidateZone(map)};
}

/// Zones with as many points or cells take longer than a slice of work.
static bool isLarge(const host::ZoneInfo& zone)
{
    constexpr std::int64_t kMany = 50'000;
    return std::max(zone.pointCount, zone.cellCount) >= kMany;
}

bool LocalFieldScene::handOverValues(const host::Frame& drawn, CvlInt64 map)
{
    auto wanted = m_ranges.unknown(shown(drawn, map), m_groups);
    const auto data = drawn.sharedData();
    if (m_mayWait || std::none_of(wanted.begin(), wanted.end(), [&](const auto& values) {
            return isLarge(data->zone(values.zone));
        }))
        return false;
    m_task = std::make_unique<BackgroundTask<Piece>>([data, wanted = std::move(wanted)] {
        Piece piece;
        for (const GroupRanges::Unknown& values : wanted)
            piece.ranges.emplace_back(values, GroupRanges::rangeOf(*data, values));
        return piece;
    });
    return true;
}

bool LocalFieldScene::handOverBlock(const host::Frame& drawn, CvlInt64 map,
                                    const BlockRecipe& recipe)
{
    if (m_mayWait || !isLarge(drawn.data()->zone(recipe.zone)) || hasPiece(map, recipe))
        return false;
    std::vector<PlacedSurface> surfaces = m_surfaces[map];
    for (PlacedSurface& placed : surfaces) {
        // What belongs to this thread stays here: it may be asked for cells meanwhile.
        auto shape = vtkSmartPointer<vtkPolyData>::New();
        shape->CopyStructure(placed.shape);
        placed.shape = shape;
        placed.locator = nullptr;
    }
    m_task = std::make_unique<BackgroundTask<Piece>>([data = drawn.sharedData(), groups = m_groups,
                                                      cache = m_cache, recipe, map, flat = m_flat,
                                                      surfaces = std::move(surfaces)] {
        Piece piece;
        piece.map = map;
        piece.recipe = recipe;
        const auto height = static_cast<double>(map);
        piece.surfaces = surfaces;
        piece.block = BlockBuilder(*data, groups, *cache)
                          .build(recipe, flat ? &height : nullptr, piece.surfaces);
        for (const PlacedSurface& placed : piece.surfaces)
            placed.shape->GetBounds(); // are kept
        return piece;
    });
    return true;
}

bool LocalFieldScene::takeBack(const host::Frame& drawn, int milliseconds)
{
    if (!m_task)
        return true;
    if (!m_task->wait(milliseconds))
        return false;
    m_piece = m_task->take();
    m_task.reset();
    for (const auto& [values, range] : m_piece.ranges)
        m_ranges.learn(*drawn.data(), values, range);
    return true;
}

void LocalFieldScene::gather(const host::Frame& drawn, CvlInt64 map)
{
    if (m_ranges.add(shown(drawn, map), m_groups))
        pend(kGroupValues, shownMaps()); // a group is new: every map has to say what it has of it
}

void LocalFieldScene::allGathered(const host::Frame& drawn)
{
    if (m_ranges.update(drawn, m_groups))
        pend(kColoredLayers, shownMaps());
}

LayerMask LocalFieldScene::sync(const host::Frame& drawn, CvlInt64 map, LayerMask layers,
                                bool isShown)
{
    const double height = static_cast<double>(map);
    const BlockBuilder builder(*drawn.data(), m_groups, *m_cache);
    LayerMask done = 0;
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        const auto layer = static_cast<FieldLayer>(i);
        if (!(layers & maskOf(layer)))
            continue;
        const auto look = isShown ? lookOf(layer, shown(drawn, map), m_groups) : std::nullopt;
        if (m_layers[i]->builds(map, look) && handOverBlock(drawn, map, look->recipe))
            return done;
        done = static_cast<LayerMask>(done | maskOf(layer));
        m_layers[i]->sync(map, look, [&](const BlockRecipe& recipe) {
            if (hasPiece(map, recipe)) {
                m_surfaces[map] = std::move(m_piece.surfaces);
                return std::exchange(m_piece, {}).block;
            }
            return builder.build(recipe, m_flat ? &height : nullptr, m_surfaces[map]);
        });
    }
    return done;
}

bool LocalFieldScene::advance(int milliseconds)
{
    m_mayWait = milliseconds < 0;
    const bool hasMore = MapScene::advance(milliseconds);
    for (const auto& layer : m_layers)
        layer->updateLevels(m_groups);
    if (!hasMore)
        m_piece = {};
    return hasMore;
}

void LocalFieldScene::setScale(const ViewScale& scale)
{
    m_scale = scale;
    double widest = 0.0;
    for (const auto& layer : m_layers) {
        layer->setScale(scale);
        widest = std::max(widest, layer->widestLine());
    }
    for (const auto& layer : m_layers)
        layer->setWidestLine(widest);
    orderActors(m_back);
    orderActors(m_front);
}

/// What lies in the same place is covered by what is drawn later: actors are drawn in the order of
/// layers and maps, and not in that of the edits which made them.
void LocalFieldScene::orderActors(vtkRenderer& renderer) const
{
    vtkPropCollection& props = *renderer.GetViewProps();
    std::vector<vtkProp*> wanted;
    for (const auto& layer : m_layers)
        for (vtkActor* const actor : layer->actors())
            if (props.IsItemPresent(actor))
                wanted.push_back(actor);
    if (m_standIn && props.IsItemPresent(m_standIn->actor()))
        wanted.push_back(m_standIn->actor());
    std::vector<vtkProp*> present;
    vtkCollectionSimpleIterator position;
    props.InitTraversal(position);
    while (vtkProp* const prop = props.GetNextProp(position))
        present.push_back(prop);
    if (wanted == present)
        return;
    props.RemoveAllItems(); // the renderer's own way would release what the actors have uploaded
    for (vtkProp* const prop : wanted)
        props.AddItem(prop);
}

void LocalFieldScene::setStandIn(bool standsIn)
{
    if (!standsIn && !m_standIn)
        return;
    if (!standsIn) {
        m_back.RemoveActor(m_standIn->actor());
        m_standIn.reset();
    } else if (!m_standIn) {
        std::vector<const CompositeLayer*> layers;
        for (const auto layer : {FieldLayer::Flood, FieldLayer::Shade, FieldLayer::ContourLines,
                                 FieldLayer::Mesh, FieldLayer::Background, FieldLayer::Edges})
            layers.push_back(m_layers[static_cast<std::size_t>(layer)].get());
        m_standIn = std::make_unique<StandIn>();
        m_standIn->take(layers, shownMaps(), m_groups);
        m_back.AddActor(m_standIn->actor());
    }
    for (const auto& layer : m_layers)
        layer->setHidden(standsIn);
}

vtkBoundingBox LocalFieldScene::bounds() const
{
    vtkBoundingBox box;
    for (const auto& [map, surfaces] : m_surfaces) {
        for (const PlacedSurface& placed : surfaces)
            if (placed.shape->GetNumberOfPoints() > 0)
                box.AddBounds(placed.shape->GetBounds());
    }
    return box;
}

/// Where along the ray the surface is hit, from 0 to 1; above 1 when it is not.
static double hitPosition(PlacedSurface& placed, const PickRay& ray)
{
    constexpr double kMiss = 2.0;
    vtkBoundingBox box(placed.shape->GetBounds());
    box.Inflate(ray.tolerance);
    double bounds[6];
    box.GetBounds(bounds);
    double direction[3];
    double point[3];
    double position = 0.0;
    vtkMath::Subtract(ray.to.data(), ray.from.data(), direction);
    if (placed.shape->GetNumberOfCells() == 0
        || !vtkBox::IntersectBox(bounds, ray.from.data(), direction, point, position))
        return kMiss;
    if (!placed.locator) {
        placed.locator = vtkSmartPointer<vtkCellLocator>::New();
        placed.locator->SetDataSet(placed.shape);
        placed.locator->BuildLocator();
    }
    double parametric[3];
    int subCell = 0;
    vtkIdType cell = -1;
    const bool isHit =
        placed.locator->IntersectWithLine(ray.from.data(), ray.to.data(), ray.tolerance, position,
                                          point, parametric, subCell, cell)
        != 0;
    return isHit ? position : kMiss;
}

CvlInt64 LocalFieldScene::nearestZone(const PickRay& ray, const std::vector<FieldLayer>& layers)
{
    double nearest = 1.5;
    CvlInt64 zone = 0;
    for (auto& [map, surfaces] : m_surfaces) {
        const bool isSeen =
            std::any_of(layers.begin(), layers.end(), [&, number = map](auto layer) {
                return m_layers[static_cast<std::size_t>(layer)]->draws(number);
            });
        for (PlacedSurface& placed : surfaces) {
            const double position = isSeen ? hitPosition(placed, ray) : nearest;
            if (position < nearest) {
                nearest = position;
                zone = placed.zone;
            }
        }
    }
    return zone;
}

CvlInt64 LocalFieldScene::zoneAt(const PickRay& ray)
{
    const CvlInt64 zone = nearestZone(ray,
                                      {FieldLayer::Background, FieldLayer::Shade, FieldLayer::Flood,
                                       FieldLayer::ContourLines, FieldLayer::Mesh});
    return zone != 0 ? zone : nearestZone(ray, {FieldLayer::Edges});
}

static QString shownName(const host::Frame& drawn, CvlInt64 variable)
{
    return QString::fromStdString(host::shownVariableName(drawn.data(), variable));
}

std::vector<FieldLegend> LocalFieldScene::legends() const
{
    std::set<int> inUse;
    for (const auto& layer : m_layers) {
        const std::vector<int> groups =
            layer->isVisible() ? layer->groupsInUse() : std::vector<int>();
        inUse.insert(groups.begin(), groups.end());
    }
    std::vector<FieldLegend> result;
    const host::Frame* const drawn = frame();
    for (const int group : inUse) {
        const CvlInt64 variable = m_groups.variable(group);
        if (drawn && drawn->data()->hasVariable(variable)) {
            FieldLegend& legend = result.emplace_back();
            legend.title = shownName(*drawn, variable);
            if (m_groups.hasRange(group))
                legend.levels = m_groups.levels(group);
        }
    }
    return result;
}

std::array<QString, 3> LocalFieldScene::axisTitles() const
{
    std::array<QString, 3> titles = {"X", "Y", "Z"};
    if (const host::Frame* const drawn = frame()) {
        for (CvlInt64 number = 1; number <= drawn->data()->variableCount(); ++number) {
            const host::Variable& variable = drawn->data()->variable(number);
            if (variable.isCoordinate())
                titles[static_cast<std::size_t>(variable.component)] = shownName(*drawn, number);
        }
    }
    return titles;
}

} // namespace corvala::plot
