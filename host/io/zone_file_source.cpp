// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/zone_file_source.h"

#include <QFile>

#include <vtkDataSet.h>
#include <vtkNew.h>
#include <vtkXMLGenericDataObjectReader.h>

namespace corvala::host::io {

ZoneFileSource::ZoneFileSource(std::unique_ptr<ReadFolder> folder, std::vector<std::string> files,
                               std::int64_t cacheBytes)
    : m_folder(std::move(folder))
    , m_files(std::move(files))
    , m_cacheBytes(cacheBytes)
{
}

ZoneFileSource::~ZoneFileSource() = default;

/// VTK looks for rings of references whenever one to a data set goes, which two threads must not do
/// for the same object: each caller gets one of its own about the same numbers.
static vtkSmartPointer<vtkDataSet> separate(vtkDataSet& zone)
{
    auto result = vtkSmartPointer<vtkDataSet>::Take(zone.NewInstance());
    result->ShallowCopy(&zone);
    return result;
}

vtkSmartPointer<vtkDataSet> ZoneFileSource::zone(std::int64_t sourceIndex) const
{
    if (sourceIndex < 0 || sourceIndex >= static_cast<std::int64_t>(m_files.size()))
        return nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_cached.find(sourceIndex);
    if (found != m_cached.end()) {
        m_cache.splice(m_cache.begin(), m_cache, found->second);
        return separate(*found->second->data);
    }
    const vtkSmartPointer<vtkDataSet> data = load(sourceIndex);
    if (!data)
        return nullptr;
    keep(sourceIndex, data);
    return separate(*data);
}

bool ZoneFileSource::hasRoom() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_bytesUsed < m_cacheBytes;
}

vtkSmartPointer<vtkDataSet> ZoneFileSource::load(std::int64_t sourceIndex) const
{
    const QString path =
        m_folder->filePath(QString::fromStdString(m_files[static_cast<std::size_t>(sourceIndex)]));
    if (!QFile::exists(path))
        return nullptr;
    vtkNew<vtkXMLGenericDataObjectReader> reader;
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->Update();
    return vtkDataSet::SafeDownCast(reader->GetOutputDataObject(0));
}

void ZoneFileSource::keep(std::int64_t sourceIndex, const vtkSmartPointer<vtkDataSet>& data) const
{
    const auto bytes = static_cast<std::int64_t>(data->GetActualMemorySize()) * 1024;
    m_cache.push_front({sourceIndex, data, bytes});
    m_cached[sourceIndex] = m_cache.begin();
    m_bytesUsed += bytes;
    while (m_bytesUsed > m_cacheBytes && m_cache.size() > 1) {
        m_bytesUsed -= m_cache.back().bytes;
        m_cached.erase(m_cache.back().sourceIndex);
        m_cache.pop_back();
    }
}

} // namespace corvala::host::io
