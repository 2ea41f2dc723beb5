// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/field_scene.h"

#include "host/document/line_map_name.h"
#include "host/style/schema.h"
#include "plot/field/scene/proposals.h"
#include "plot/field/scene/scene_notes.h"

#include <vtkActor.h>
#include <vtkMath.h>
#include <vtkPropCollection.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <set>

namespace corvala::plot {

FieldScene::FieldScene(vtkRenderer& back, vtkRenderer& front, std::shared_ptr<SurfaceCache> cache,
                       CvlInt64 largestScene)
    : MapScene(fieldSceneKind(), largestScene)
    , m_cache(std::move(cache))
    , m_back(back)
    , m_front(front)
{
    FieldScene::clear(nullptr, Fresh::Frame);
}

FieldScene::~FieldScene() = default;

void FieldScene::clear(const host::Frame* drawn, Fresh reason)
{
    m_flat = drawn && drawn->plotType() == PlotType_Field2D;
    if (reason >= Fresh::Data)
        m_cache->clear();
    if (reason >= Fresh::Frame)
        m_groups.clear();
    setStandIn(false);
    m_task.reset();
    m_piece = {};
    m_failures.clear();
    m_probe.clear();
    for (auto& [map, surfaces] : m_surfaces)
        for (PlacedSurface& placed : surfaces)
            m_release.take(std::move(placed.shape));
    m_surfaces.clear();
    m_ranges.clear();
    m_streamStart = {};
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        if (m_layers[i])
            m_layers[i]->giveUp(m_release);
        m_layers[i] =
            std::make_unique<CompositeLayer>(static_cast<FieldLayer>(i), m_flat, m_back, m_front);
    }
}

LayerMask FieldScene::showLayers(const host::Frame& drawn)
{
    m_groups.takeStyle(drawn);
    LayerMask shown = 0;
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        const bool isOn = isLayerOn(drawn, static_cast<FieldLayer>(i));
        m_layers[i]->setVisible(isOn);
        shown |= isOn ? maskOf(i) : 0;
    }
    return shown;
}

host::NumberSet FieldScene::transientMaps(const host::Frame& drawn) const
{
    host::NumberSet transient;
    for (const std::uint32_t map : drawn.activeFieldMaps())
        if (drawn.fieldMaps().strand(map) > 0)
            transient.add(map);
    return transient;
}

void FieldScene::cancel()
{
    MapScene::cancel();
    m_task.reset();
}

bool FieldScene::canShow(const host::Frame& drawn, CvlInt64 map) const
{
    const CvlInt64 zone = drawn.candidateZone(map);
    return zone != 0 && drawn.enabledZones().contains(static_cast<std::uint32_t>(zone));
}

void FieldScene::forget(CvlInt64 map)
{
    m_surfaces.erase(map);
    m_ranges.remove(map);
}

bool FieldScene::handOverValues(const host::Frame& drawn, const ShownMap& shown)
{
    const auto wanted = m_ranges.unknown(shown, m_groups);
    const auto isOfLargeZone = [&](const GroupRanges::Unknown& values) {
        return isLarge(drawn.data()->zone(values.zone));
    };
    if (m_mayWait || std::none_of(wanted.begin(), wanted.end(), isOfLargeZone))
        return false;
    m_handed = {shown.map, kFieldLayerCount, {}, wanted};
    m_task =
        std::make_unique<BackgroundTask<ScenePiece>>(makerOfRanges(drawn.sharedData(), wanted));
    return true;
}

bool FieldScene::handOverBlock(const host::Frame& drawn, CvlInt64 map, std::size_t layer,
                               const BlockRecipe& recipe)
{
    const bool takesLong = recipe.kind == BlockKind::Streamtraces
        ? !recipe.streams.zones.empty()
        : isLarge(drawn.data()->zone(recipe.zone));
    if (m_mayWait || !takesLong || m_piece.isBlock(map, recipe))
        return false;
    m_handed = {map, layer, recipe, {}};
    m_task = std::make_unique<BackgroundTask<ScenePiece>>(makerOfBlock(
        {drawn.sharedData(), m_groups, m_cache, map, recipe, m_flat, m_surfaces[map]}));
    return true;
}

bool FieldScene::takeBack(const host::Frame& drawn, int milliseconds)
{
    if (!m_task)
        return true;
    if (!m_task->wait(milliseconds))
        return false;
    try {
        m_piece = m_task->take();
    } catch (const std::exception& problem) {
        m_piece = {};
        giveUp(drawn, m_handed, problem.what());
    }
    m_task.reset();
    for (const auto& [values, range] : m_piece.ranges)
        m_ranges.learn(*drawn.data(), values, range);
    return true;
}

void FieldScene::giveUp(const host::Frame& drawn, const Handed& handed, const char* reason)
{
    for (const GroupRanges::Unknown& values : handed.values)
        m_ranges.learn(*drawn.data(), values, {});
    const CvlInt64 zone = drawn.candidateZone(handed.map);
    const QString what = handed.layer < kFieldLayerCount
        ? layerName(static_cast<FieldLayer>(handed.layer))
        : tr("Values");
    m_failures[{handed.map, handed.layer}] = {
        handed.recipe,
        tr("Not drawn: %1 of zone %2 (%3)")
            .arg(what, QString::fromStdString(drawn.data()->zone(zone).name),
                 QString::fromLocal8Bit(reason))};
}

/// Whether a block would fail again; what failed is forgotten when another is wanted.
bool FieldScene::isGivenUp(CvlInt64 map, std::size_t layer, const std::optional<BlockLook>& look)
{
    const auto failure = m_failures.find({map, layer});
    if (failure == m_failures.end())
        return false;
    const bool isSame = look && failure->second.recipe == look->recipe;
    if (!isSame)
        m_failures.erase(failure);
    return isSame;
}

QString FieldScene::notice() const
{
    const QString notice = MapScene::notice();
    if (!notice.isEmpty() || m_failures.empty())
        return notice;
    const QString first = m_failures.begin()->second.text;
    const auto more = static_cast<int>(m_failures.size()) - 1;
    return more > 0 ? tr("%1, and %Ln more", nullptr, more).arg(first) : first;
}

bool FieldScene::noteValues(const host::Frame& drawn, CvlInt64 map)
{
    const ShownMap shown {drawn, map, drawn.candidateZone(map)};
    if (handOverValues(drawn, shown))
        return false;
    if (m_ranges.add(shown, m_groups)) // a group is new: the other maps have to say what they have
        pend(fieldSceneKind().valuesBit(), shownMaps());
    return true;
}

void FieldScene::valuesKnown(const host::Frame& drawn)
{
    if (m_ranges.update(drawn, m_groups))
        pend(coloredLayers(), shownMaps());
}

CompositeLayer::Builder FieldScene::builderOf(const host::Frame& drawn, CvlInt64 map)
{
    return [this, &drawn, map](const BlockRecipe& recipe) {
        const bool isOfStreams =
            recipe.kind == BlockKind::Streamtraces && !recipe.streams.zones.empty();
        StreamStart ofOtherMaps;
        StreamStart& start = isOfStreams ? m_streamStart : ofOtherMaps;
        if (m_piece.isBlock(map, recipe)) {
            m_surfaces[map] = std::move(m_piece.surfaces);
            start = m_piece.start;
            return std::exchange(m_piece, {}).block;
        }
        const auto height = static_cast<double>(map);
        return BlockBuilder(*drawn.data(), m_groups, *m_cache)
            .build(recipe, m_flat ? &height : nullptr, m_surfaces[map], &start);
    };
}

void FieldScene::syncLayer(const host::Frame& drawn, CvlInt64 map, std::size_t layer,
                           const std::optional<BlockLook>& look)
{
    const CompositeLayer::Builder build = builderOf(drawn, map);
    try {
        m_layers[layer]->sync(map, look, build);
    } catch (const std::exception& problem) {
        giveUp(drawn, {map, layer, look->recipe, {}}, problem.what());
        m_layers[layer]->sync(map, std::nullopt, build);
    }
}

/// With what only all maps together tell.
std::optional<BlockLook> FieldScene::lookIn(std::size_t layer, const ShownMap& shown)
{
    auto look = lookOf(static_cast<FieldLayer>(layer), shown, m_groups);
    if (!look || look->recipe.kind != BlockKind::Streamtraces)
        return look;
    if (!m_streamMaps)
        m_streamMaps = streamMaps(shown.frame);
    if (!m_streamMaps->empty() && m_streamMaps->front().map == shown.map)
        for (const StreamMap& map : *m_streamMaps)
            look->recipe.streams.zones.push_back(map.zone);
    return look;
}

LayerMask FieldScene::sync(const host::Frame& drawn, CvlInt64 map, LayerMask layers, bool isShown)
{
    const LayerMask values = layers & fieldSceneKind().valuesBit();
    LayerMask done = values && isShown && !noteValues(drawn, map) ? 0 : values;
    const ShownMap shown {drawn, map, drawn.candidateZone(map)};
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        if (!(layers & maskOf(i)))
            continue;
        auto look = isShown ? lookIn(i, shown) : std::nullopt;
        if (isGivenUp(map, i, look))
            look.reset();
        if (m_layers[i]->builds(map, look) && handOverBlock(drawn, map, i, look->recipe))
            return done;
        syncLayer(drawn, map, i, look);
        done |= maskOf(i);
    }
    dropSurfaces(map);
    return done;
}

void FieldScene::dropSurfaces(CvlInt64 map)
{
    const auto known = m_surfaces.find(map);
    if (known == m_surfaces.end())
        return;
    const auto isUnused = [&](const PlacedSurface& placed) {
        return std::none_of(m_layers.begin(), m_layers.end(),
                            [&](const auto& layer) { return layer->uses(map, placed.choice); });
    };
    std::vector<PlacedSurface>& surfaces = known->second;
    surfaces.erase(std::remove_if(surfaces.begin(), surfaces.end(), isUnused), surfaces.end());
}

bool FieldScene::advance(int milliseconds)
{
    m_mayWait = milliseconds < 0;
    m_streamMaps.reset(); // nothing changes meanwhile
    const bool hasMore = MapScene::advance(milliseconds);
    if (!hasMore)
        m_piece = {};
    return hasMore;
}

void FieldScene::prepare(const ViewScale& scale)
{
    double widest = 0.0;
    for (const auto& layer : m_layers) {
        layer->prepare(scale, m_groups);
        widest = std::max(widest, layer->widestLine());
    }
    for (const auto& layer : m_layers)
        layer->setWidestLine(widest);
    orderActors(m_back);
    orderActors(m_front);
    weighActors();
}

void FieldScene::weighActors()
{
    m_costs.clear();
    for (const auto& layer : m_layers) {
        const std::vector<vtkActor*> actors = layer->actors();
        const std::vector<std::int64_t> sizes = layer->actorSizes();
        for (std::size_t i = 0; i < actors.size(); ++i)
            m_costs[actors[i]] = sizes[i];
    }
}

std::int64_t FieldScene::drawingCost(vtkProp* prop) const
{
    const auto known = m_costs.find(prop);
    return known == m_costs.end() ? 0 : known->second;
}

std::int64_t FieldScene::drawingCost() const
{
    std::int64_t all = 0;
    for (const auto& [prop, cost] : m_costs)
        all += prop->GetVisibility() ? cost : 0;
    return all;
}

std::int64_t FieldScene::expectedCost() const
{
    std::int64_t all = 0;
    for (const auto& layer : m_layers)
        all += layer->cost();
    return all;
}

std::int64_t FieldScene::translucentCost() const
{
    std::int64_t all = 0;
    for (const auto& [prop, cost] : m_costs)
        all += prop->GetVisibility() && prop->HasTranslucentPolygonalGeometry() ? cost : 0;
    return all;
}

/// What lies in the same place is covered by what is drawn later: actors are drawn in the order of
/// layers and maps, and not in that of the edits which made them. What is translucent follows,
/// since it shows what lies behind it.
void FieldScene::orderActors(vtkRenderer& renderer) const
{
    vtkPropCollection& props = *renderer.GetViewProps();
    std::vector<vtkProp*> wanted;
    for (const auto& layer : m_layers)
        for (vtkActor* const actor : layer->actors())
            if (props.IsItemPresent(actor))
                wanted.push_back(actor);
    std::stable_partition(wanted.begin(), wanted.end(), [](vtkProp* prop) {
        return prop->HasTranslucentPolygonalGeometry() == 0;
    });
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

void FieldScene::setStandIn(bool standsIn)
{
    if (!standsIn && !m_standIn)
        return;
    if (!standsIn) {
        m_back.RemoveActor(m_standIn->actor());
        m_standIn.reset();
    } else if (!m_standIn) {
        std::vector<const CompositeLayer*> layers;
        for (const FieldLayer layer : layersToStandIn())
            layers.push_back(m_layers[static_cast<std::size_t>(layer)].get());
        m_standIn = std::make_unique<StandIn>();
        m_standIn->take(layers, shownMaps(), m_groups);
        m_back.AddActor(m_standIn->actor());
    }
    for (const auto& layer : m_layers)
        layer->setHidden(standsIn);
}

vtkBoundingBox FieldScene::bounds() const
{
    vtkBoundingBox box;
    for (const auto& [map, surfaces] : m_surfaces) {
        for (const PlacedSurface& placed : surfaces)
            if (placed.shape->GetNumberOfPoints() > 0)
                box.AddBounds(placed.shape->GetBounds());
    }
    if (layer(FieldLayer::Streamtraces).isVisible())
        box.AddBox(layer(FieldLayer::Streamtraces).bounds());
    return box;
}

vtkBoundingBox FieldScene::boundsOf(const host::NumberSet& maps) const
{
    vtkBoundingBox box;
    for (const std::uint32_t map : maps& shownMaps()) {
        const auto known = m_surfaces.find(map);
        if (known == m_surfaces.end())
            continue;
        for (const PlacedSurface& placed : known->second)
            if (placed.shape->GetNumberOfPoints() > 0)
                box.AddBounds(placed.shape->GetBounds());
    }
    return box;
}

std::vector<vtkBoundingBox> FieldScene::boxesOf(const host::NumberSet& maps, std::size_t most) const
{
    const host::NumberSet shown = maps & shownMaps();
    std::vector<vtkBoundingBox> boxes;
    if (shown.cardinality() > most)
        boxes.push_back(boundsOf(shown));
    else
        for (const std::uint32_t map : shown)
            boxes.push_back(boundsOf(host::NumberSet::bitmapOf(1, map)));
    return boxes;
}

bool FieldScene::hasBoxIn(const std::function<bool(const vtkBoundingBox&)>& test) const
{
    for (const auto& [map, surfaces] : m_surfaces)
        for (const PlacedSurface& placed : surfaces)
            if (placed.shape->GetNumberOfPoints() > 0
                && test(vtkBoundingBox(placed.shape->GetBounds())))
                return true;
    const CompositeLayer& streams = layer(FieldLayer::Streamtraces);
    return streams.isVisible() && streams.bounds().IsValid() && test(streams.bounds());
}

vtkBoundingBox FieldScene::drawnBounds() const
{
    vtkBoundingBox box = bounds();
    for (const std::uint32_t map : shownMaps())
        if (layer(FieldLayer::Vectors).draws(map))
            for (const auto& piece : layer(FieldLayer::Vectors).pieces(map))
                box.AddBounds(piece->GetBounds());
    return box;
}

bool FieldScene::isSeen(CvlInt64 map, LayerMask layers) const
{
    for (std::size_t i = 0; i < kFieldLayerCount; ++i)
        if ((layers & maskOf(i)) && m_layers[i]->draws(map))
            return true;
    return false;
}

std::optional<SurfacePlace> FieldScene::probe(const PickRay& ray, LayerMask layers)
{
    std::vector<SurfaceProbe::Candidate> candidates;
    for (const auto& [map, surfaces] : m_surfaces) {
        for (const PlacedSurface& placed : surfaces) {
            const double entry = ray.entry(*placed.shape);
            if (entry <= 1.0 && isSeen(map, layers))
                candidates.push_back({&placed, entry});
        }
    }
    return m_probe.probe(ray, std::move(candidates), frame()->sharedData(), m_groups.variable(1));
}

std::optional<SurfacePlace> FieldScene::probe(const PickRay& ray)
{
    if (!frame())
        return std::nullopt;
    const LayerMask outlines = outlineLayers();
    const auto found = probe(ray, fieldSceneKind().allLayers() & ~outlines);
    return found || isProbing() ? found : probe(ray, outlines);
}

FieldScene::Hit FieldScene::nearestHit(const PickRay& ray, LayerMask layers)
{
    Hit nearest {0, 1.5};
    for (const auto& [map, surfaces] : m_surfaces) {
        const bool isInPicture = isSeen(map, layers);
        for (const PlacedSurface& placed : surfaces) {
            const double position = isInPicture ? ray.hitPosition(*placed.shape) : nearest.position;
            if (position < nearest.position)
                nearest = {placed.zone, position};
        }
    }
    return nearest;
}

FieldScene::Hit FieldScene::hitOf(const PickRay& ray)
{
    const LayerMask outlines = outlineLayers();
    const Hit hit = nearestHit(ray, fieldSceneKind().allLayers() & ~outlines);
    return hit.zone != 0 ? hit : nearestHit(ray, outlines);
}

std::optional<std::array<double, 3>> FieldScene::placeAt(const PickRay& ray)
{
    constexpr double kBehind = 1e-3; // of the whole
    const Hit hit = hitOf(ray);
    if (hit.zone == 0)
        return std::nullopt;
    std::array<double, 3> way {};
    vtkMath::Subtract(ray.to.data(), ray.from.data(), way.data());
    const double length = vtkMath::Norm(way.data());
    const double position =
        hit.position + (length > 0.0 ? kBehind * bounds().GetDiagonalLength() / length : 0.0);
    std::array<double, 3> place = ray.from;
    for (std::size_t axis = 0; axis < 3; ++axis)
        place[axis] += position * way[axis];
    return place;
}

bool FieldScene::isTranslucent() const
{
    const host::Frame* const drawn = frame();
    return drawn && !m_flat && drawn->isOn(style::fieldLayers.useTranslucency);
}

std::array<double, 3> FieldScene::lightDirection() const
{
    const host::Frame* const drawn = frame();
    const auto angle = [drawn](style::RealKey key) {
        return vtkMath::RadiansFromDegrees(drawn ? drawn->real(key)
                                                 : style::entryOf(key).defaultNumber);
    };
    const double right = angle(style::lightSource.azimuth);
    const double up = angle(style::lightSource.elevation);
    return {std::sin(right) * std::cos(up), std::sin(up), std::cos(right) * std::cos(up)};
}

static QString shownName(const host::Frame& drawn, CvlInt64 variable)
{
    return QString::fromStdString(host::shownVariableName(drawn.data(), variable));
}

/// Nothing when the group has no legend.
static std::optional<QString> legendTitle(const host::Frame& drawn, int group, CvlInt64 variable)
{
    constexpr const auto& kGroup = style::contourGroups;
    if (!drawn.data()->hasVariable(variable) || drawn.integer(kGroup.showLegend, group) == 0)
        return std::nullopt;
    const auto& title = drawn.text(kGroup.legendTitle, group);
    return title.empty() ? shownName(drawn, variable) : QString::fromStdString(title);
}

/// Nothing when it is beside the plot.
static std::optional<std::array<double, 2>> legendPlace(const host::Frame& drawn, int group)
{
    constexpr const auto& kGroup = style::contourGroups;
    if (drawn.integer(kGroup.automaticLegend, group) != 0)
        return std::nullopt;
    return std::array<double, 2> {drawn.real(kGroup.legendX, group) / 100.0,
                                  drawn.real(kGroup.legendY, group) / 100.0};
}

std::vector<FieldLegend> FieldScene::legends() const
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
        const auto title =
            drawn ? legendTitle(*drawn, group, m_groups.variable(group)) : std::nullopt;
        if (!title)
            continue;
        FieldLegend& legend = result.emplace_back();
        legend.title = *title;
        legend.colors = m_groups.colors(group);
        legend.group = group;
        legend.place = legendPlace(*drawn, group);
        if (m_groups.hasRange(group))
            legend.levels = m_groups.levels(group);
    }
    return result;
}

/// The name of the array that the components are of; of others, the names of all.
static QString vectorTitle(const host::Frame& drawn, const ContourGroups& groups)
{
    QStringList names;
    QStringList arrays;
    for (int axis = 0; axis < 3; ++axis) {
        const CvlInt64 variable = groups.variable(ContourGroups::kVector + axis);
        if (variable == 0 || (axis == 2 && drawn.plotType() != PlotType_Field3D))
            continue;
        const host::Variable& component = drawn.data()->variable(variable);
        names << shownName(drawn, variable);
        arrays << (component.alias.empty() ? QString::fromStdString(component.array)
                                           : names.last());
    }
    arrays.removeDuplicates();
    return arrays.size() == 1 ? arrays.first() : names.join(QStringLiteral(", "));
}

std::optional<VectorKey> FieldScene::vectorKey() const
{
    const host::Frame* const drawn = frame();
    const CompositeLayer& vectors = layer(FieldLayer::Vectors);
    if (!drawn || !drawn->isOn(style::globalVector.showReference)
        || drawn->isOn(style::globalVector.isUniform) || !vectors.isVisible()
        || !vectors.hasGeometry())
        return std::nullopt;
    const auto real = [&](style::RealKey key) { return drawn->real(key); };
    return VectorKey {vectorTitle(*drawn, m_groups), arrowScale(*drawn, m_groups),
                      real(style::globalVector.referenceMagnitude),
                      real(style::globalVector.headSize) / 100.0,
                      real(style::globalVector.headAngle)};
}

AxesStyle FieldScene::axes() const
{
    const host::Frame* const drawn = frame();
    return drawn ? axesStyleOf(*drawn) : AxesStyle();
}

TimeText FieldScene::timeText() const
{
    const host::Frame* const drawn = frame();
    return drawn ? timeTextOf(*drawn, shownMaps()) : TimeText();
}

std::optional<double> FieldScene::proposal(style::Key value, int index) const
{
    constexpr const auto& streams = style::streamtraces;
    constexpr style::Key kRake[] = {streams.startX, streams.startY, streams.startZ,
                                    streams.endX,   streams.endY,   streams.endZ};
    const host::Frame* const drawn = frame();
    const auto* const ofRake = std::find(std::begin(kRake), std::end(kRake), value);
    if (ofRake == std::end(kRake))
        return drawn ? proposedValue(*drawn, m_groups, value, index) : std::nullopt;
    return m_streamStart.rake
        ? std::optional((*m_streamStart.rake)[static_cast<std::size_t>(ofRake - kRake)])
        : std::nullopt;
}

/// Whether blanking leaves nothing of surfaces that would be drawn.
bool FieldScene::isAllBlanked() const
{
    bool isBlanked = false;
    for (const auto& [map, surfaces] : m_surfaces) {
        for (const PlacedSurface& placed : surfaces) {
            if (placed.shape->GetNumberOfCells() > 0)
                return false;
            isBlanked = isBlanked
                || (!placed.choice.blanking.tests.empty() && placed.choice.iso.variable == 0
                    && placed.choice.surfaces != SurfacesToPlot_None);
        }
    }
    return isBlanked;
}

std::vector<SceneNote> FieldScene::notes() const
{
    const host::Frame* const drawn = frame();
    if (!drawn || hasWork())
        return {};
    const CompositeLayer& streams = layer(FieldLayer::Streamtraces);
    const bool startsOutside = streams.isVisible() && m_streamStart.isOutside;
    NoteFacts facts {*drawn, m_groups, shownMaps(), isAllBlanked(),
                     startsOutside && !streamMaps(*drawn).empty()};
    for (int group = 1; group <= style::ContourGroups::kCount && facts.lackingMaps.empty();
         ++group) {
        facts.lackingGroup = group;
        facts.lackingMaps = m_ranges.lacking(*drawn, m_groups, group);
    }
    return notesOn(facts);
}

} // namespace corvala::plot
