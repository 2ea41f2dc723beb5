// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_opening.h"

#include "host/document/document.h"

#include <vtkBoundingBox.h>
#include <vtkDataSet.h>

#include <algorithm>

namespace corvala::app {

using host::io::ReadRequest;
using host::io::ReadResult;

/// Looking at the points of every zone would read them all before the first picture.
static constexpr std::int64_t kZonesLookedAt = 100;

/// Rounding in a file must not make a plane thick.
static constexpr double kFlat = 1e-6;

static bool hasThirdCoordinate(const host::DataSet& data)
{
    return std::any_of(data.variables.begin(), data.variables.end(),
                       [](const host::Variable& variable) {
                           return variable.isCoordinate() && variable.component == 2;
                       });
}

PlotType_e proposedPlotType(const host::DataSet& data)
{
    if (!hasThirdCoordinate(data))
        return PlotType_Field2D;
    vtkBoundingBox box;
    for (std::int64_t zone = 1; zone <= std::min(data.zoneCount(), kZonesLookedAt); ++zone) {
        if (data.zone(zone).isVolume())
            return PlotType_Field3D;
        if (const auto points = data.geometry(zone))
            box.AddBounds(points->GetBounds());
    }
    return box.IsValid() && box.GetLength(2) > kFlat * box.GetMaxLength() ? PlotType_Field3D
                                                                          : PlotType_Field2D;
}

static void attach(const ReadResult& result)
{
    host::Document::instance().attachDataSet(result.data, proposedPlotType(*result.data), 1);
}

static QStringList notesOf(const host::DataSet& data)
{
    QStringList notes;
    for (const std::string& note : data.notes)
        notes << QString::fromStdString(note);
    return notes;
}

OpenedData openAndWait(const ReadRequest& request)
{
    const ReadResult result = host::io::DataReader::read(request);
    if (!result.data)
        return {result.error, {}};
    attach(result);
    return {{}, notesOf(*result.data)};
}

DataOpener::DataOpener(QObject* parent)
    : QObject(parent)
{
    connect(&m_reader, &host::io::DataReader::progress, this, &DataOpener::progress);
    connect(&m_reader, &host::io::DataReader::finished, this, &DataOpener::take);
}

void DataOpener::start(const ReadRequest& request)
{
    if (isRunning())
        return;
    m_request = request;
    Q_EMIT started();
    m_reader.start(request);
}

void DataOpener::take(const ReadResult& result)
{
    if (result.data) {
        attach(result);
        Q_EMIT opened(result);
    } else if (!result.cancelled) {
        Q_EMIT failed(result.error);
    }
    Q_EMIT ended(result.data != nullptr);
}

} // namespace corvala::app
