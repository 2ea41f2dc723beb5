// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_result.h"

#include "host/document/vector_magnitudes.h"
#include "host/io/read_protocol.h"
#include "host/io/zone_file_source.h"

#include <QFile>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvala::host::io {

/// Empty for a file that is not there.
static std::string contentOf(const ReadFolder& folder, const char* name)
{
    QFile file(folder.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

static bool namesOnly(std::int64_t count, const std::vector<ZoneInfo>& zones)
{
    return std::all_of(zones.begin(), zones.end(), [count](const ZoneInfo& zone) {
        return zone.sourceIndex >= 0 && zone.sourceIndex < count;
    });
}

LoadedData loadData(std::unique_ptr<ReadFolder> folder)
{
    LoadedData result;
    result.preview = previewFromJson(contentOf(*folder, kPreviewFile));
    std::optional<DataSetIndex> index = indexFromJson(contentOf(*folder, kIndexFile));
    if (!index)
        return result;
    const auto source = ZoneFileSource::open(std::move(folder));
    if (!source || !namesOnly(source->zoneCount(), index->data.zones))
        return result;
    result.data = std::make_shared<DataSet>(std::move(index->data));
    result.offers = index->offers;
    result.plot3d = index->plot3d;
    result.text = index->text;
    for (const ReadMessage& note : index->notes)
        result.data->notes.push_back(note.toString().toStdString());
    result.noteGroups = grouped(index->notes);
    result.data->source = source;
    addMagnitudes(*result.data);
    return result;
}

} // namespace corvala::host::io
