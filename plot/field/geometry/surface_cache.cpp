// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/surface_cache.h"

#include "plot/field/geometry/zone_cuts.h"

namespace corvala::plot {

std::shared_ptr<const ZoneSurface>
SurfaceCache::surface(const host::DataSet& data, std::int64_t zone, const SurfaceChoice& choice)
{
    const host::ZoneInfo& info = data.zone(zone);
    const SurfaceChoice normal = choice.normalized(info);
    const Key key {data.source.get(), info.sourceIndex, normal};
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto known = m_surfaces.find(key);
        if (known != m_surfaces.end())
            return known->second.surface;
    }
    auto surface = surfaceOf(data, zone, normal);
    if (!surface)
        return nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_extractions;
    m_memory += surface->memoryUse();
    if (m_memory > m_budget)
        dropUnused();
    m_surfaces[key] = {data.source, surface};
    return surface;
}

void SurfaceCache::clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_surfaces.clear();
    m_memory = 0;
}

std::int64_t SurfaceCache::extractionCount() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_extractions;
}

void SurfaceCache::dropUnused()
{
    for (auto entry = m_surfaces.begin(); entry != m_surfaces.end();) {
        if (entry->second.surface.use_count() == 1) {
            m_memory -= entry->second.surface->memoryUse();
            entry = m_surfaces.erase(entry);
        } else {
            ++entry;
        }
    }
}

} // namespace corvala::plot
