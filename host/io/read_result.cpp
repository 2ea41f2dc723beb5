// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_result.h"

#include "host/io/read_protocol.h"
#include "host/io/zone_file_source.h"

#include <QFile>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvala::host::io {

/// Points or cells of a zone whose loading would be felt where it interrupts something else.
static constexpr std::int64_t kLarge = 20'000;

static std::vector<const ZoneInfo*> largeZonesShownFirst(const DataSet& data)
{
    const std::vector<double> times = data.solutionTimes();
    std::vector<const ZoneInfo*> result;
    for (const ZoneInfo& zone : data.zones) {
        const bool isShown = zone.strand == 0 || zone.time <= times.front();
        if (isShown && std::max(zone.pointCount, zone.cellCount) >= kLarge)
            result.push_back(&zone);
    }
    return result;
}

static void loadLargeZones(const DataSet& data, const ZoneFileSource& source,
                           const LoadProgress& progress)
{
    const std::vector<const ZoneInfo*> zones = largeZonesShownFirst(data);
    for (std::size_t i = 0; i < zones.size() && source.hasRoom(); ++i) {
        if (!progress(static_cast<int>(100 * i / zones.size())))
            return;
        source.zone(zones[i]->sourceIndex);
    }
}

/// Empty for a file that is not there.
static std::string contentOf(const ReadFolder& folder, const char* name)
{
    QFile file(folder.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

LoadedData loadData(std::unique_ptr<ReadFolder> folder, const LoadProgress& progress)
{
    LoadedData result;
    if (!progress(0))
        return result;
    result.preview = previewFromJson(contentOf(*folder, kPreviewFile));
    std::optional<DataSetIndex> index = indexFromJson(contentOf(*folder, kIndexFile));
    if (!index)
        return result;
    result.data = std::make_shared<DataSet>(std::move(index->data));
    result.plot3d = index->plot3d;
    result.text = index->text;
    for (const ReadMessage& note : index->notes)
        result.data->notes.push_back(note.toString().toStdString());
    const auto source =
        std::make_shared<ZoneFileSource>(std::move(folder), std::move(index->zoneFiles));
    loadLargeZones(*result.data, *source, progress);
    result.data->source = source;
    return result;
}

} // namespace corvala::host::io
