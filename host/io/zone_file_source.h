// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/mapped_numbers.h"
#include "host/io/read_folder.h"
#include "host/io/stored_zone.h"

#include <list>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace corvala::host::io {

/// Zones that lie in a folder, which goes with this object. A zone is made when it is first asked
/// for, of arrays that show the numbers where they lie; those used last are kept, with what VTK
/// remembers of their arrays. May be called from any thread.
class ZoneFileSource : public ZoneSource
{
public:
    static constexpr std::int64_t kUsualCacheBytes = std::int64_t(1) << 30;

    /// Null when the folder has no zones in it. The cache holds at least one zone.
    static std::shared_ptr<ZoneFileSource> open(std::unique_ptr<ReadFolder> folder,
                                                std::int64_t cacheBytes = kUsualCacheBytes);
    ~ZoneFileSource() override;

    std::int64_t zoneCount() const { return static_cast<std::int64_t>(m_table.zones.size()); }

    vtkSmartPointer<vtkDataSet> zone(std::int64_t sourceIndex) const override;

private:
    ZoneFileSource(std::unique_ptr<ReadFolder> folder, ZoneTable table,
                   std::shared_ptr<MappedNumbers> numbers, std::int64_t cacheBytes);
    struct CachedZone
    {
        std::int64_t sourceIndex;
        vtkSmartPointer<vtkDataSet> data;
        std::int64_t bytes;
    };
    using Cache = std::list<CachedZone>;

    void keep(std::int64_t sourceIndex, const vtkSmartPointer<vtkDataSet>& data) const;

    std::unique_ptr<ReadFolder> m_folder;
    ZoneTable m_table;
    std::shared_ptr<MappedNumbers> m_numbers;
    std::int64_t m_cacheBytes;
    mutable std::mutex m_mutex;
    mutable Cache m_cache; ///< used last first
    mutable std::unordered_map<std::int64_t, Cache::iterator> m_cached;
    mutable std::int64_t m_bytesUsed = 0;
};

} // namespace corvala::host::io
