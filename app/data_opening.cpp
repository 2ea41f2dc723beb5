// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_opening.h"

#include "app/first_look.h"
#include "host/document/document.h"

namespace corvala::app {

using host::io::ReadRequest;
using host::io::ReadResult;

static void attach(const ReadResult& result)
{
    host::Document& document = host::Document::instance();
    document.execute(host::AttachData {
        {result.data->files, {}}, result.data, result.data->suggestedPlotType(), 1});
    for (const host::SetStyle& value : firstLook(*document.activeFrame()))
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
