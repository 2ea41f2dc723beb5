// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/read_folder.h"

#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace corvala::host::io {

/// Zones that lie as VTK XML files in a folder, which goes with this object. A zone is loaded when
/// it is first asked for; those used last stay in memory. May be called from any thread.
class ZoneFileSource : public ZoneSource
{
public:
    static constexpr std::int64_t kUsualCacheBytes = std::int64_t(1) << 30;

    /// `files` are names in the folder, one per source index. The cache holds at least one zone.
    ZoneFileSource(std::unique_ptr<ReadFolder> folder, std::vector<std::string> files,
                   std::int64_t cacheBytes = kUsualCacheBytes);
    ~ZoneFileSource() override;

    vtkSmartPointer<vtkDataSet> zone(std::int64_t sourceIndex) const override;

    /// The cache takes more zones without giving others up.
    bool hasRoom() const;

private:
    struct CachedZone
    {
        std::int64_t sourceIndex;
        vtkSmartPointer<vtkDataSet> data;
        std::int64_t bytes;
    };
    using Cache = std::list<CachedZone>;

    vtkSmartPointer<vtkDataSet> load(std::int64_t sourceIndex) const;
    void keep(std::int64_t sourceIndex, const vtkSmartPointer<vtkDataSet>& data) const;

    std::unique_ptr<ReadFolder> m_folder;
    std::vector<std::string> m_files;
    std::int64_t m_cacheBytes;
    mutable std::mutex m_mutex;
    mutable Cache m_cache; ///< used last first
    mutable std::unordered_map<std::int64_t, Cache::iterator> m_cached;
    mutable std::int64_t m_bytesUsed = 0;
};

} // namespace corvala::host::io
