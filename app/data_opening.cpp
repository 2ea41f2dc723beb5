// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_opening.h"

#include "app/first_look.h"
#include "host/document/document.h"

#include <algorithm>

namespace corvala::app {

using host::io::ReadRequest;
using host::io::ReadResult;

static void attach(const ReadResult& result, const ReadRequest& request)
{
    host::Document& document = host::Document::instance();
    PlotType_e plotType = result.data->suggestedPlotType();
    std::vector<FirstLine> lines;
    if (plotType == PlotType_LineXY) {
        lines = firstLines(*result.data);
        plotType = firstPlotType(*result.data, lines);
    }
    const host::DataOrigin origin {
        result.data->files, {}, 0, host::io::toText(request.text).toStdString()};
    document.execute(host::AttachData {origin, result.data, plotType,
                                       std::max<CvlInt64>(1, static_cast<CvlInt64>(lines.size()))});
    for (const host::SetStyle& value : firstLook(*document.activeFrame()))
        document.execute(value);
    for (const host::SetStyle& value : firstLook(lines))
        document.execute(value);
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
    attach(result, request);
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
        attach(result, m_request);
        Q_EMIT opened(result);
    } else if (result.preview) {
        Q_EMIT previewed(*result.preview);
    } else if (result.badRowCount > 0) {
        Q_EMIT badRowsMet(result);
    } else if (!result.cancelled) {
        Q_EMIT failed(result.error);
    }
    Q_EMIT ended(result.data != nullptr);
}

} // namespace corvala::app
