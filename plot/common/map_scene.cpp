// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/map_scene.h"

#include "host/document/document.h"
#include "plot/common/document_events.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace corvala::plot {

static std::uint32_t member(CvlInt64 map)
{
    return static_cast<std::uint32_t>(map);
}

static CvlInt64 countOf(const host::NumberSet& maps)
{
    return static_cast<CvlInt64>(maps.cardinality());
}

MapScene::MapScene(const SceneKind& kind, CvlInt64 largestScene)
    : m_kind(kind)
    , m_largestScene(largestScene)
    , m_pending(kind.layerCount + 1)
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
    m_pending.assign(m_pending.size(), {});
    m_cancelled.assign(m_cancelled.size(), {});
    m_shown = {};
    m_refused = {};
    m_visible = 0;
    m_done = 0;
    clear(drawn, reason);
    if (drawn) {
        takeFrameStyle(*drawn);
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
    case StateCode_DataSetDetached:
    case StateCode_ZonesAdded:
    case StateCode_DataValuesChanged: rebuild(Fresh::Data); return true;
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
            pendAtOtherTime(*drawn);
        return drawn != nullptr;
    case StateCode_VariableListChanged:
    case StateCode_VariableRenamed: return true;
    case StateCode_ZoneRenamed:
    case StateCode_LineMapRenamed: return m_kind.namesMaps;
    default: return false;
    }
}

void MapScene::pendAtOtherTime(const host::Frame& drawn)
{
    const host::NumberSet maps = transientMaps(drawn);
    pend(m_kind.everything(), maps);
    if (!maps.isEmpty())
        pend(m_kind.jointLayers(), m_shown);
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
    const TouchedLayers touched = m_kind.touchedBy(key);
    if (touched.layers == 0)
        return touched.isBeside;
    const style::Scope scope = style::entryOf(key).scope;
    if (scope == style::Scope::FieldMap || scope == style::Scope::LineMap
        || !change.maps.isEmpty()) {
        pend(touched.layers, change.maps);
        pend(touched.layers & m_kind.jointLayers(), m_shown);
        return !(change.maps & (m_shown | activeMaps(drawn))).isEmpty();
    }
    takeFrameStyle(drawn);
    // Showing a layer costs what changed while it was off; other values of the frame touch all
    // maps.
    pend(touched.layers & ~touched.switched, m_shown);
    return true;
}

void MapScene::takeFrameStyle(const host::Frame& drawn)
{
    if (!isPending(m_visible))
        m_done = 0;
    m_visible = showLayers(drawn) | m_kind.valuesBit();
}

void MapScene::pend(LayerMask layers, const host::NumberSet& maps)
{
    const host::Frame* const drawn = frame();
    if (!drawn || maps.isEmpty())
        return;
    if (!isPending(m_visible))
        m_done = 0;
    const host::NumberSet relevant = maps & (m_shown | activeMaps(*drawn));
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer)
        if (layers & m_kind.everything() & maskOf(layer))
            m_pending[layer] |= relevant;
}

bool MapScene::isPending(LayerMask layers) const
{
    return nextMap(layers) != 0;
}

/// The lowest map that is pending in one of the layers; 0 without.
CvlInt64 MapScene::nextMap(LayerMask layers) const
{
    CvlInt64 next = 0;
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer) {
        if ((layers & maskOf(layer)) && !m_pending[layer].isEmpty()) {
            const CvlInt64 map = m_pending[layer].minimum();
            next = next == 0 ? map : std::min(next, map);
        }
    }
    return next;
}

LayerMask MapScene::pendingLayers(CvlInt64 map, LayerMask layers) const
{
    LayerMask pending = 0;
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer)
        if (m_pending[layer].contains(member(map)))
            pending |= maskOf(layer);
    return pending & layers;
}

bool MapScene::hasWork() const
{
    return isPending(m_visible);
}

std::pair<CvlInt64, CvlInt64> MapScene::progress() const
{
    CvlInt64 left = 0;
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer)
        left += m_visible & maskOf(layer) ? countOf(m_pending[layer]) : 0;
    return {m_done, m_done + left};
}

void MapScene::cancel()
{
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer)
        if (m_visible & maskOf(layer))
            m_cancelled[layer] |= std::exchange(m_pending[layer], {});
    m_done = 0;
}

void MapScene::resume()
{
    for (std::size_t layer = 0; layer < m_cancelled.size(); ++layer)
        pend(maskOf(layer), std::exchange(m_cancelled[layer], {}));
}

/// Whether a map is to be shown; it counts from then on.
bool MapScene::take(const host::Frame& drawn, CvlInt64 map)
{
    m_refused.remove(member(map));
    if (!activeMaps(drawn).contains(member(map)) || !canShow(drawn, map))
        return false;
    if (!m_shown.contains(member(map)) && countOf(m_shown) >= m_largestScene) {
        m_refused.add(member(map));
        return false;
    }
    m_shown.add(member(map));
    return true;
}

void MapScene::drop(CvlInt64 map)
{
    if (m_shown.contains(member(map))) {
        m_shown.remove(member(map));
        forget(map);
        pend(m_kind.everything(), std::exchange(m_refused, {}));
    }
}

/// The next map. Values come first: levels have to be known before anything is coloured by them.
void MapScene::work(const host::Frame& drawn)
{
    const LayerMask values = m_kind.valuesBit();
    const LayerMask worked = isPending(values) ? values : m_visible;
    const CvlInt64 map = nextMap(worked);
    const bool isShown = take(drawn, map);
    if (!isShown)
        drop(map);
    const LayerMask done = sync(drawn, map, pendingLayers(map, worked), isShown);
    for (std::size_t layer = 0; layer < m_pending.size(); ++layer) {
        if (done & maskOf(layer)) {
            m_pending[layer].remove(member(map));
            m_cancelled[layer].remove(member(map));
            ++m_done;
        }
    }
    if ((done & values) && !isPending(values))
        valuesKnown(drawn);
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
    while (drawn && isPending(m_visible) && takeBack(*drawn, left())) {
        work(*drawn);
        if (left() == 0)
            break;
    }
    return isPending(m_visible);
}

bool MapScene::finish(const WorkWatch& watch)
{
    constexpr int kSlice = 30; // milliseconds
    while (advance(watch ? kSlice : -1)) {
        const auto [done, total] = progress();
        if (watch && !watch(done, total))
            return false;
    }
    return true;
}

QString MapScene::notice() const
{
    const bool ofZones = m_kind.mapListChange == StateCode_FieldMapListChanged;
    if (!m_refused.isEmpty()) {
        const CvlInt64 all = countOf(m_shown) + countOf(m_refused);
        const QString text =
            ofZones ? tr("Drawing %L1 of %L2 active zones") : tr("Drawing %L1 of %L2 active lines");
        return text.arg(countOf(m_shown)).arg(all);
    }
    host::NumberSet missing;
    for (const host::NumberSet& maps : m_cancelled)
        missing |= maps;
    const auto count = static_cast<int>(missing.cardinality());
    if (count == 0)
        return {};
    return ofZones ? tr("Drawing was cancelled: %Ln zone(s) missing", nullptr, count)
                   : tr("Drawing was cancelled: %Ln line(s) missing", nullptr, count);
}

} // namespace corvala::plot
