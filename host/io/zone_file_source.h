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

/// Zones that lie in a folder, which goes with this object. A zone is made whenever it is asked
/// for, of arrays that show the numbers where they lie, which takes as long as a copy of one that
/// is known. Of many arrays it takes longer: such zones are kept, those used last. May be called
/// from any thread.
class ZoneFileSource : public ZoneSource
{
public:
    static constexpr int kFewArrays = 50; ///< of the points and cells of a zone that is not kept
    static constexpr int kUsualCache = 100'000; ///< arrays

    /// Null when the folder has no zones in it. `cache` is the most arrays of the zones that are
    /// kept, which is at least one.
    static std::shared_ptr<ZoneFileSource> open(std::unique_ptr<ReadFolder> folder,
                                                std::int64_t cache = kUsualCache);
    ~ZoneFileSource() override;

    std::int64_t zoneCount() const { return static_cast<std::int64_t>(m_table.zones.size()); }

    vtkSmartPointer<vtkDataSet> zone(std::int64_t sourceIndex) const override;

private:
    ZoneFileSource(std::unique_ptr<ReadFolder> folder, ZoneTable table,
                   std::shared_ptr<MappedNumbers> numbers, std::int64_t mostArrays);
    struct CachedZone
    {
        std::int64_t sourceIndex;
        vtkSmartPointer<vtkDataSet> data;
    };
    using Cache = std::list<CachedZone>;

    std::int64_t arraysOf(std::int64_t sourceIndex) const;
    void keep(std::int64_t sourceIndex, const vtkSmartPointer<vtkDataSet>& data) const;

    std::unique_ptr<ReadFolder> m_folder;
    ZoneTable m_table;
    std::shared_ptr<MappedNumbers> m_numbers;
    std::int64_t m_mostArrays;
    mutable std::mutex m_mutex;
    mutable Cache m_cache; ///< used last first
    mutable std::unordered_map<std::int64_t, Cache::iterator> m_cached;
    mutable std::int64_t m_arrays = 0; ///< of the zones in the cache
};

} // namespace corvala::host::io
