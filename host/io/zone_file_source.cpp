// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/zone_file_source.h"

#include "host/io/attribute_filler.h"
#include "host/io/zone_assembly.h"

#include <QFile>

#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>

namespace corvala::host::io {

ZoneFileSource::ZoneFileSource(std::unique_ptr<ReadFolder> folder, ZoneTable table,
                               std::shared_ptr<MappedNumbers> numbers, std::int64_t mostArrays)
    : m_folder(std::move(folder))
    , m_table(std::move(table))
    , m_numbers(std::move(numbers))
    , m_mostArrays(mostArrays)
{
}

std::shared_ptr<ZoneFileSource> ZoneFileSource::open(std::unique_ptr<ReadFolder> folder,
                                                     std::int64_t cache)
{
    const auto numbers = MappedNumbers::open(folder->filePath(QLatin1String(kNumbersFile)));
    QFile file(folder->filePath(QLatin1String(kZoneTableFile)));
    if (!numbers || !file.open(QIODevice::ReadOnly))
        return nullptr;
    std::optional<ZoneTable> table = zoneTableFromBytes(file.readAll(), numbers->size());
    if (!table)
        return nullptr;
    return std::shared_ptr<ZoneFileSource>(
        new ZoneFileSource(std::move(folder), std::move(*table), numbers, cache));
}

ZoneFileSource::~ZoneFileSource() = default;

/// VTK looks for rings of references whenever one to a data set goes, which two threads must not do
/// for the same object: each caller gets one of its own about the same numbers.
static vtkSmartPointer<vtkDataSet> separate(vtkDataSet& zone)
{
    auto result = vtkSmartPointer<vtkDataSet>::Take(zone.NewInstance());
    const QuietAttributes quietPoints(*result->GetPointData());
    const QuietAttributes quietCells(*result->GetCellData());
    result->ShallowCopy(&zone);
    return result;
}

std::int64_t ZoneFileSource::arraysOf(std::int64_t sourceIndex) const
{
    const StoredZone& stored = m_table.zones[static_cast<std::size_t>(sourceIndex)];
    return std::int64_t(stored.pointArrays) + stored.cellArrays;
}

vtkSmartPointer<vtkDataSet> ZoneFileSource::zone(std::int64_t sourceIndex) const
{
    if (sourceIndex < 0 || sourceIndex >= zoneCount())
        return nullptr;
    const auto assemble = [&] {
        return assembleZone(m_table, static_cast<std::size_t>(sourceIndex), *m_numbers);
    };
    if (arraysOf(sourceIndex) <= kFewArrays)
        return assemble();
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_cached.find(sourceIndex);
    if (found != m_cached.end()) {
        m_cache.splice(m_cache.begin(), m_cache, found->second);
        return separate(*found->second->data);
    }
    const vtkSmartPointer<vtkDataSet> data = assemble();
    if (!data)
        return nullptr;
    keep(sourceIndex, data);
    return separate(*data);
}

void ZoneFileSource::keep(std::int64_t sourceIndex, const vtkSmartPointer<vtkDataSet>& data) const
{
    m_cache.push_front({sourceIndex, data});
    m_cached[sourceIndex] = m_cache.begin();
    m_arrays += arraysOf(sourceIndex);
    while (m_arrays > m_mostArrays && m_cache.size() > 1) {
        const std::int64_t last = m_cache.back().sourceIndex;
        m_arrays -= arraysOf(last);
        m_cached.erase(last);
        m_cache.pop_back();
    }
}

} // namespace corvala::host::io
