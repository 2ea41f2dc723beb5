// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/one_thread.h"
#include "plot/field/geometry/zone_surface.h"

#include <map>
#include <memory>
#include <mutex>
#include <tuple>

namespace corvala::plot {

/// Surfaces of zones, extracted when they are first asked for, by any thread. A zone belongs to one
/// solution time, so the surfaces of several times are kept side by side. Surfaces that nobody
/// holds are dropped when the cache outgrows its budget.
class SurfaceCache
{
public:
    explicit SurfaceCache(std::size_t budget = std::size_t {1} << 30) ///< bytes
        : m_budget(budget)
    {
        host::io::runVtkInOneThread(); // before there is another thread
    }

    /// Null when the zone has no points or cannot be read.
    std::shared_ptr<const ZoneSurface> surface(const host::DataSet& data, std::int64_t zone,
                                               const SurfaceChoice& choice);
    void clear();
    std::int64_t extractionCount() const;

private:
    using Key = std::tuple<const host::ZoneSource*, std::int64_t, SurfaceChoice>;
    struct Entry
    {
        std::shared_ptr<const host::ZoneSource> source; ///< keeps the key's address in use
        std::shared_ptr<const ZoneSurface> surface;
    };

    void dropUnused(); // with the lock

    mutable std::mutex m_mutex;
    std::map<Key, Entry> m_surfaces;
    std::size_t m_budget;
    std::size_t m_memory = 0;
    std::int64_t m_extractions = 0;
};

} // namespace corvala::plot
