// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/local_field_scene.h"

#include "host/document/line_map_name.h"
#include "plot/common/document_events.h"

#include <QElapsedTimer>

#include <vtkActor.h>
#include <vtkBox.h>
#include <vtkMath.h>
#include <vtkPropCollection.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <limits>
#include <set>

namespace corvala::plot {

/// Layers that may be coloured by the levels of a contour group.
static constexpr LayerMask kColoredLayers =
    maskOf(FieldLayer::Flood) | maskOf(FieldLayer::ContourLines) | maskOf(FieldLayer::Mesh);

LocalFieldScene::LocalFieldScene(vtkRenderer& back, vtkRenderer& front,
                                 std::shared_ptr<SurfaceCache> cache, CvlInt64 largestScene)
    : m_cache(std::move(cache))
    , m_largestScene(largestScene)
    , m_back(back)
    , m_front(front)
{
    rebuild();
}

LocalFieldScene::~LocalFieldScene() = default;

const host::Frame* LocalFieldScene::frame() const
{
    const host::Frame* const frame = host::Document::instance().frame(m_frame);
    return frame && frame->isFieldPlot() && frame->hasData() ? frame : nullptr;
}

void LocalFieldScene::setFrame(CvlUniqueId frame)
{
    m_frame = frame;
    m_groups.clear();
    rebuild();
}

void LocalFieldScene::rebuild()
{
    const host::Frame* const drawn = frame();
    m_flat = drawn && drawn->plotType() == PlotType_Field2D;
    setStandIn(false);
    m_task.reset();
    m_piece = {};
    m_surfaces.clear();
    m_ranges.clear();
    m_pending = {};
    m_stale = {};
    m_cancelled = {};
    m_shown = {};
    m_refused = {};
    m_done = m_total = 0;
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        m_layers[i] =
            std::make_unique<CompositeLayer>(static_cast<FieldLayer>(i), m_flat, m_back, m_front);
        m_layers[i]->setScale(m_scale);
    }
    if (drawn) {
        m_groups.setVariables(*drawn);
        updateVisibility(*drawn);
        pend(kAllLayers | kGroupValues, drawn->activeFieldMaps());
    }
}

static bool changesData(const host::StateEvent& event)
{
    switch (event.code) {
    case StateCode_DocumentCleared:
    case StateCode_DocumentLoaded:
    case StateCode_DataSetAttached:
    case StateCode_DataSetDetached:
    case StateCode_DataValuesChanged: return true;
    default: return false;
    }
}

static bool changesMaps(const host::StateEvent& event)
{
    switch (event.code) {
    case StateCode_FieldMapListChanged:
    case StateCode_ZonesAdded:
    case StateCode_ZonesRemoved: return true;
    default: return false;
    }
}

bool LocalFieldScene::apply(const host::StateEvent& event)
{
    const host::Frame* const drawn = frame();
    if (!concerns(event, m_frame))
        return false;
    if (changesData(event)) {
        m_cache->clear();
        m_groups.clear();
        rebuild();
        return true;
    }
    if (changesMaps(event)) {
        rebuild();
        return true;
    }
    switch (event.code) {
    case StateCode_Style: return applyStyle(event);
    case StateCode_ColorTableChanged: pend(kAllLayers, m_shown); return true;
    case StateCode_SolutionTimeChanged:
        if (drawn)
            pendTransient(*drawn);
        return drawn != nullptr;
    case StateCode_FrameListChanged:
        if (!drawn)
            rebuild();
        return !drawn;
    case StateCode_VariableListChanged:
    case StateCode_VariableRenamed: return true;
    default: return false;
    }
}

bool LocalFieldScene::applyStyle(const host::StateEvent& event)
{
    if (namesPlotType(event)) {
        rebuild();
        return true;
    }
    const host::Frame* const drawn = frame();
    bool changed = false;
    for (const host::StyleChange& change : event.styleChanges)
        changed = (drawn && applyStyleChange(*drawn, change)) || changed;
    return changed;
}

bool LocalFieldScene::applyStyleChange(const host::Frame& drawn, const host::StyleChange& change)
{
    const LayerMask affected = affectedBy(change.attribute);
    if (affected == 0)
        return false;
    const host::Attribute& attribute = host::Schema::instance().at(change.attribute);
    if (attribute.scope == host::Scope::FieldMap || !change.maps.isEmpty()) {
        pend(affected, change.maps);
        return !(change.maps & (m_shown | drawn.activeFieldMaps())).isEmpty();
    }
    m_groups.setVariables(drawn);
    updateVisibility(drawn);
    // Showing a layer costs what changed while it was off; other values of the frame touch all
    // maps.
    const bool isLayerSwitch = style::isInGroupOf({attribute.id}, style::fieldLayers.showMesh)
        && attribute.id != style::fieldLayers.useLightingEffect;
    pend(isLayerSwitch ? static_cast<LayerMask>(affected & kGroupValues) : affected, m_shown);
    return true;
}

void LocalFieldScene::updateVisibility(const host::Frame& drawn)
{
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        const bool isOn = isLayerOn(drawn, static_cast<FieldLayer>(i));
        m_layers[i]->setVisible(isOn);
        if (isOn && !m_stale[i].isEmpty()) {
            const host::NumberSet stale = std::exchange(m_stale[i], {});
            pend(maskOf(static_cast<FieldLayer>(i)), stale);
        }
    }
}

void LocalFieldScene::pend(LayerMask layers, const host::NumberSet& maps)
{
    const host::Frame* const drawn = frame();
    if (!drawn || maps.isEmpty())
        return;
    if (!hasWork())
        m_done = m_total = 0;
    const host::NumberSet relevant = maps & (m_shown | drawn->activeFieldMaps());
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        if (!(layers & (1U << i)))
            continue;
        if (i < kFieldLayerCount && !m_layers[i]->isVisible()) {
            m_stale[i] |= relevant;
            continue;
        }
        const std::uint64_t before = m_pending[i].cardinality();
        m_pending[i] |= relevant;
        m_total += static_cast<CvlInt64>(m_pending[i].cardinality() - before);
    }
}

void LocalFieldScene::pendTransient(const host::Frame& drawn)
{
    host::NumberSet transient;
    for (const std::uint32_t map : drawn.activeFieldMaps())
        if (drawn.fieldMaps().strand(map) > 0)
            transient.add(map);
    pend(kAllLayers | kGroupValues, transient);
}

bool LocalFieldScene::hasWork() const
{
    return std::any_of(m_pending.begin(), m_pending.end(),
                       [](const host::NumberSet& maps) { return !maps.isEmpty(); });
}

void LocalFieldScene::cancel()
{
    for (std::size_t i = 0; i < m_pending.size(); ++i)
        m_cancelled[i] |= std::exchange(m_pending[i], {});
    m_task.reset();
    m_done = m_total = 0;
}

void LocalFieldScene::resume()
{
    for (std::size_t i = 0; i < m_cancelled.size(); ++i)
        pend(static_cast<LayerMask>(1U << i), std::exchange(m_cancelled[i], {}));
}

std::optional<ShownMap> LocalFieldScene::shown(const host::Frame& drawn, CvlInt64 map)
{
    const auto member = static_cast<std::uint32_t>(map);
    if (!drawn.activeFieldMaps().contains(member)) {
        m_refused.remove(member);
        return std::nullopt;
    }
    const CvlInt64 zone = drawn.candidateZone(map);
    if (zone == 0 || !drawn.enabledZones().contains(static_cast<std::uint32_t>(zone)))
        return std::nullopt;
    if (!m_shown.contains(member)
        && static_cast<CvlInt64>(m_shown.cardinality()) >= m_largestScene) {
        m_refused.add(member);
        return std::nullopt;
    }
    m_shown.add(member);
    return ShownMap {drawn, map, zone};
}

void LocalFieldScene::forget(CvlInt64 map)
{
    const auto member = static_cast<std::uint32_t>(map);
    if (m_shown.contains(member)) {
        m_shown.remove(member);
        m_surfaces.erase(map);
        m_ranges.remove(map);
        pend(kAllLayers | kGroupValues, std::exchange(m_refused, {}));
    }
}

/// Zones with as many points or cells take longer than a slice of work.
static bool isLarge(const host::ZoneInfo& zone)
{
    constexpr std::int64_t kMany = 50'000;
    return std::max(zone.pointCount, zone.cellCount) >= kMany;
}

bool LocalFieldScene::handOverValues(const host::Frame& drawn, const ShownMap& map)
{
    auto wanted = m_ranges.unknown(map, m_groups);
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

/// Takes what another thread has made, when it is there in time. True while none works.
bool LocalFieldScene::takePiece(const host::Frame& drawn, int milliseconds)
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

void LocalFieldScene::workOnValues(const host::Frame& drawn)
{
    host::NumberSet& pending = m_pending[kGroupStage];
    const std::uint32_t map = pending.minimum();
    const std::optional<ShownMap> current = shown(drawn, map);
    if (current && handOverValues(drawn, *current))
        return;
    pending.remove(map);
    ++m_done;
    if (current && m_ranges.add(*current, m_groups))
        pend(kGroupValues, m_shown); // a group is new: every map has to say what it has of it
    if (!current)
        forget(map);
    if (pending.isEmpty() && m_ranges.update(drawn, m_groups))
        pend(kColoredLayers, m_shown);
}

void LocalFieldScene::workOnMap(const host::Frame& drawn)
{
    std::uint32_t map = std::numeric_limits<std::uint32_t>::max();
    for (std::size_t i = 0; i < kFieldLayerCount; ++i)
        if (!m_pending[i].isEmpty())
            map = std::min(map, m_pending[i].minimum());
    const std::optional<ShownMap> current = shown(drawn, map);
    if (!current)
        forget(map);
    const double height = map;
    const BlockBuilder builder(*drawn.data(), m_groups, *m_cache);
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        if (!m_pending[i].contains(map))
            continue;
        const auto look =
            current ? lookOf(static_cast<FieldLayer>(i), *current, m_groups) : std::nullopt;
        if (m_layers[i]->builds(map, look) && handOverBlock(drawn, map, look->recipe))
            return;
        m_pending[i].remove(map);
        ++m_done;
        m_layers[i]->sync(map, look, [&](const BlockRecipe& recipe) {
            if (hasPiece(map, recipe)) {
                m_surfaces[map] = std::move(m_piece.surfaces);
                return std::exchange(m_piece, {}).block;
            }
            return builder.build(recipe, m_flat ? &height : nullptr, m_surfaces[map]);
        });
    }
}

bool LocalFieldScene::advance(int milliseconds)
{
    const host::Frame* const drawn = frame();
    QElapsedTimer clock;
    clock.start();
    m_mayWait = milliseconds < 0;
    const auto left = [&] {
        return m_mayWait ? -1 : std::max(milliseconds - static_cast<int>(clock.elapsed()), 0);
    };
    while (drawn && hasWork() && takePiece(*drawn, left())) {
        // Values come first: levels have to be known before anything is coloured by them.
        if (m_pending[kGroupStage].isEmpty())
            workOnMap(*drawn);
        else
            workOnValues(*drawn);
        if (left() == 0)
            break;
    }
    for (const auto& layer : m_layers)
        layer->updateLevels(m_groups);
    if (!hasWork())
        m_piece = {};
    return hasWork();
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
        m_standIn->take(layers, m_shown, m_groups);
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

QString LocalFieldScene::notice() const
{
    const auto shownCount = static_cast<CvlInt64>(m_shown.cardinality());
    if (!m_refused.isEmpty()) {
        const CvlInt64 all = shownCount + static_cast<CvlInt64>(m_refused.cardinality());
        return tr("Drawing %L1 of %L2 active maps").arg(shownCount).arg(all);
    }
    host::NumberSet missing;
    for (const host::NumberSet& maps : m_cancelled)
        missing |= maps;
    return missing.isEmpty() ? QString()
                             : tr("Drawing was cancelled: %Ln map(s) missing", nullptr,
                                  static_cast<int>(missing.cardinality()));
}

} // namespace corvala::plot
