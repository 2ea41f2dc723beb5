// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/map_scene.h"

#include "host/document/document.h"
#include "plot/common/document_events.h"

#include <QElapsedTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace corvala::plot {

const AffectedLayers* SceneKind::affectedBy(style::Key value) const
{
    const AffectedLayers* const end = affected + affectedCount;
    const AffectedLayers* const row =
        std::find_if(affected, end, [value](const AffectedLayers& candidate) {
            return candidate.withItsGroup ? style::isInGroupOf(value, candidate.value)
                                          : value == candidate.value;
        });
    return value.isValid() && row != end ? row : nullptr;
}

MapScene::MapScene(const SceneKind& kind, CvlInt64 largestScene)
    : m_kind(kind)
    , m_largestScene(largestScene)
    , m_isVisible(kind.layerCount)
    , m_pending(kind.layerCount + 1)
    , m_stale(kind.layerCount + 1)
    , m_cancelled(kind.layerCount + 1)
{
}

const host::Frame* MapScene::frame() const
{
    const host::Frame* const frame = host::Document::instance().frame(m_frame);
    return frame && (frame->*m_kind.isOfKind)() && frame->hasData() ? frame : nullptr;
}

void MapScene::setFrame(CvlUniqueId frame)
{
    m_frame = frame;
    rebuild(Fresh::Frame);
}

void MapScene::rebuild(Fresh reason)
{
    const host::Frame* const drawn = frame();
    for (auto* const sets : {&m_pending, &m_stale, &m_cancelled})
        sets->assign(m_kind.layerCount + 1, {});
    m_shown = {};
    m_refused = {};
    m_done = m_total = 0;
    clear(drawn, reason);
    if (drawn) {
        frameStyleChanged(*drawn);
        updateVisibility(*drawn);
        pend(m_kind.everything(), activeMaps(*drawn));
    }
}

bool MapScene::apply(const host::StateEvent& event)
{
    const host::Frame* const drawn = frame();
    if (!concerns(event, m_frame))
        return false;
    switch (event.code) {
    case StateCode_DocumentCleared:
    case StateCode_DocumentLoaded:
    case StateCode_DataSetAttached:
    case StateCode_DataSetDetached: rebuild(Fresh::Data); return true;
    case StateCode_DataValuesChanged: rebuild(Fresh::Values); return true;
    case StateCode_ZonesAdded:
    case StateCode_ZonesRemoved: rebuild(Fresh::Maps); return true;
    case StateCode_FieldMapListChanged:
    case StateCode_LineMapListChanged:
        if (event.code == m_kind.mapListChange)
            rebuild(Fresh::Maps);
        return event.code == m_kind.mapListChange;
    case StateCode_FrameListChanged:
        if (!drawn)
            rebuild(Fresh::Maps);
        return !drawn;
    case StateCode_Style: return applyStyle(event);
    case StateCode_ColorTableChanged: pend(m_kind.allLayers(), m_shown); return true;
    case StateCode_SolutionTimeChanged:
        if (drawn)
            pend(m_kind.everything(), transientMaps(*drawn));
        return drawn != nullptr;
    case StateCode_VariableListChanged:
    case StateCode_VariableRenamed: return true;
    default: return false;
    }
}

bool MapScene::applyStyle(const host::StateEvent& event)
{
    if (namesPlotType(event)) {
        rebuild(Fresh::Maps);
        return true;
    }
    const host::Frame* const drawn = frame();
    bool changed = false;
    for (const host::StyleChange& change : event.styleChanges)
        changed = (drawn && applyChange(*drawn, change)) || changed;
    return changed;
}

bool MapScene::applyChange(const host::Frame& drawn, const host::StyleChange& change)
{
    const style::Key key {change.attribute};
    const AffectedLayers* const row = m_kind.affectedBy(key);
    if (!row)
        return false;
    const style::Scope scope = style::entryOf(key).scope;
    if (scope == style::Scope::FieldMap || scope == style::Scope::LineMap
        || !change.maps.isEmpty()) {
        pend(row->layers, change.maps);
        return !(change.maps & (m_shown | activeMaps(drawn))).isEmpty();
    }
    frameStyleChanged(drawn);
    updateVisibility(drawn);
    // Showing a layer costs what changed while it was off; other values of the frame touch all
    // maps.
    pend(row->isSwitch ? static_cast<LayerMask>(row->layers & m_kind.valuesBit()) : row->layers,
         m_shown);
    return true;
}

void MapScene::updateVisibility(const host::Frame& drawn)
{
    for (std::size_t layer = 0; layer < m_kind.layerCount; ++layer) {
        m_isVisible[layer] = isLayerOn(drawn, layer);
        setLayerVisible(layer, m_isVisible[layer]);
        if (m_isVisible[layer])
            pend(static_cast<LayerMask>(1U << layer), std::exchange(m_stale[layer], {}));
    }
}

void MapScene::pend(LayerMask layers, const host::NumberSet& maps)
{
    const host::Frame* const drawn = frame();
    if (!drawn || maps.isEmpty())
        return;
    if (!MapScene::hasWork())
        m_done = m_total = 0;
    const host::NumberSet relevant = maps & (m_shown | activeMaps(*drawn));
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer) {
        if (!(layers & m_kind.everything() & (1U << layer)))
            continue;
        if (layer < m_kind.layerCount && !m_isVisible[layer]) {
            m_stale[layer] |= relevant;
            continue;
        }
        const std::uint64_t before = m_pending[layer].cardinality();
        m_pending[layer] |= relevant;
        m_total += static_cast<CvlInt64>(m_pending[layer].cardinality() - before);
    }
}

bool MapScene::hasWork() const
{
    return std::any_of(m_pending.begin(), m_pending.end(),
                       [](const host::NumberSet& maps) { return !maps.isEmpty(); });
}

void MapScene::cancel()
{
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer)
        m_cancelled[layer] |= std::exchange(m_pending[layer], {});
    m_done = m_total = 0;
}

void MapScene::resume()
{
    for (std::size_t layer = 0; layer < m_cancelled.size(); ++layer)
        pend(static_cast<LayerMask>(1U << layer), std::exchange(m_cancelled[layer], {}));
}

/// Whether a map is to be shown; it counts from then on.
bool MapScene::take(const host::Frame& drawn, CvlInt64 map)
{
    const auto member = static_cast<std::uint32_t>(map);
    m_refused.remove(member);
    if (!activeMaps(drawn).contains(member) || !canShow(drawn, map))
        return false;
    if (!m_shown.contains(member)
        && static_cast<CvlInt64>(m_shown.cardinality()) >= m_largestScene) {
        m_refused.add(member);
        return false;
    }
    m_shown.add(member);
    return true;
}

void MapScene::drop(CvlInt64 map)
{
    const auto member = static_cast<std::uint32_t>(map);
    if (m_shown.contains(member)) {
        m_shown.remove(member);
        forget(map);
        pend(m_kind.everything(), std::exchange(m_refused, {}));
    }
}

void MapScene::workOnValues(const host::Frame& drawn)
{
    host::NumberSet& pending = m_pending[m_kind.layerCount];
    const std::uint32_t map = pending.minimum();
    const bool isShown = take(drawn, map);
    if (isShown && handOverValues(drawn, map))
        return;
    pending.remove(map);
    ++m_done;
    if (isShown)
        gather(drawn, map);
    else
        drop(map);
    if (pending.isEmpty())
        allGathered(drawn);
}

void MapScene::workOnMap(const host::Frame& drawn)
{
    std::uint32_t map = std::numeric_limits<std::uint32_t>::max();
    for (std::size_t layer = 0; layer < m_kind.layerCount; ++layer)
        if (!m_pending[layer].isEmpty())
            map = std::min(map, m_pending[layer].minimum());
    const bool isShown = take(drawn, map);
    if (!isShown)
        drop(map);
    LayerMask layers = 0;
    for (std::size_t layer = 0; layer < m_kind.layerCount; ++layer)
        if (m_pending[layer].contains(map))
            layers = static_cast<LayerMask>(layers | (1U << layer));
    const LayerMask done = sync(drawn, map, layers, isShown);
    for (std::size_t layer = 0; layer < m_kind.layerCount; ++layer) {
        if (done & (1U << layer)) {
            m_pending[layer].remove(map);
            ++m_done;
        }
    }
}

bool MapScene::advance(int milliseconds)
{
    const host::Frame* const drawn = frame();
    QElapsedTimer clock;
    clock.start();
    const auto left = [&] {
        return milliseconds < 0 ? -1
                                : std::max(milliseconds - static_cast<int>(clock.elapsed()), 0);
    };
    while (drawn && MapScene::hasWork() && takeBack(*drawn, left())) {
        // Values come first: levels have to be known before anything is coloured by them.
        if (m_pending[m_kind.layerCount].isEmpty())
            workOnMap(*drawn);
        else
            workOnValues(*drawn);
        if (left() == 0)
            break;
    }
    return MapScene::hasWork();
}

QString MapScene::notice() const
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
