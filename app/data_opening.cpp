// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_opening.h"

#include "app/data_adding.h"
#include "app/first_look.h"
#include "app/plot3d_layout.h"
#include "host/document/document.h"
#include "samples/demo_data.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace corvala::app {

using host::io::ReadRequest;
using host::io::ReadResult;

std::shared_ptr<host::DataSet> embeddedData(const host::DataOrigin& origin, QString& problem)
{
    std::string error;
    samples::DemoData demo = samples::demoData(origin.demo, origin.scale, error);
    problem = QString::fromStdString(error);
    return std::move(demo.data);
}

host::DataOrigin originOf(const ReadRequest& request)
{
    host::DataOrigin origin;
    for (const QString& file : request.files)
        origin.files.push_back(QDir::cleanPath(QFileInfo(file).absoluteFilePath()).toStdString());
    origin.table = host::io::toText(request.text).toStdString();
    origin.plot3d = plot3DLayoutText(request.plot3d).toStdString();
    origin.boundaryPatches = request.choices.boundaryPatches;
    origin.numberedTimes = request.choices.numberedTimes;
    return origin;
}

ReadRequest requestOf(const host::DataOrigin& origin, QString& problem)
{
    ReadRequest request;
    for (const std::string& file : origin.files)
        request.files << QString::fromStdString(file);
    request.choices = {origin.boundaryPatches, origin.numberedTimes};
    problem = host::io::parseTextDialect(QString::fromStdString(origin.table), request.text);
    if (problem.isEmpty())
        problem = parsePlot3DLayout(QString::fromStdString(origin.plot3d), request.plot3d);
    return request;
}

std::shared_ptr<host::DataSet> readAndWait(const host::DataOrigin& origin, QString& problem)
{
    if (!origin.demo.empty())
        return embeddedData(origin, problem);
    const ReadRequest request = requestOf(origin, problem);
    if (!problem.isEmpty())
        return nullptr;
    const ReadResult result = host::io::DataReader::read(request);
    problem = result.error;
    return result.data;
}

/// Returns what one may wonder at in what is seen at first.
static QStringList attach(const ReadResult& result, const ReadRequest& request)
{
    host::Document& document = host::Document::instance();
    PlotType_e plotType = result.data->suggestedPlotType();
    std::vector<FirstLine> lines;
    std::size_t possible = 0;
    if (plotType == PlotType_LineXY) {
        lines = firstLines(*result.data, &possible);
        plotType = firstPlotType(*result.data, lines);
    }
    document.execute(host::AttachData {originOf(request), result.data, plotType,
                                       std::max<CvlInt64>(1, static_cast<CvlInt64>(lines.size()))});
    for (const host::SetStyle& value : firstLook(*document.activeFrame()))
        document.execute(value);
    if (lines.empty())
        lines = firstFieldLines(*result.data);
    for (const host::SetStyle& value : firstLook(lines))
        document.execute(value);
    if (plotType != PlotType_LineXY || possible <= lines.size())
        return {};
    return {DataOpener::tr("%L1 lines can be made of the columns: the first %L2 are shown, more "
                           "can be created in Mapping Style.")
                .arg(possible)
                .arg(lines.size())};
}

/// The data of the frame may be closed by now. Returns notes, as attach.
static QStringList take(const ReadResult& result, const ReadRequest& request, DataUse use)
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (use != DataUse::Add || !frame || !frame->hasData())
        return attach(result, request);
    addToFrame({originOf(request), result.data});
    return {};
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
    const QStringList look = attach(result, request);
    return {{}, notesOf(*result.data) + describe(result.offers) + look};
}

DataOpener::DataOpener(QObject* parent)
    : QObject(parent)
{
    connect(&m_reader, &host::io::DataReader::progress, this, &DataOpener::progress);
    connect(&m_reader, &host::io::DataReader::finished, this, &DataOpener::take);
}

void DataOpener::start(const ReadRequest& request, DataUse use)
{
    if (isRunning())
        return;
    m_taker = nullptr;
    m_request = request;
    m_use = use;
    Q_EMIT started();
    m_reader.start(request);
}

void DataOpener::start(std::vector<ReadRequest> requests, Taker taker)
{
    if (isRunning())
        return;
    m_requests = std::move(requests);
    m_results.clear();
    m_taker = std::move(taker);
    if (!m_requests.empty())
        m_request = m_requests.front();
    Q_EMIT started();
    readNext();
}

void DataOpener::readNext()
{
    if (m_results.size() == m_requests.size()) {
        const Taker taker = std::exchange(m_taker, nullptr);
        const bool isTaken = taker(std::exchange(m_results, {}));
        Q_EMIT ended(isTaken);
        return;
    }
    m_request = m_requests[m_results.size()];
    m_reader.start(m_request);
}

void DataOpener::take(const ReadResult& result)
{
    if (m_taker && result.data) {
        m_results.push_back(result);
        readNext();
        return;
    }
    const bool isForFrame = !std::exchange(m_taker, nullptr);
    if (isForFrame && result.data) {
        const QStringList look = app::take(result, m_request, m_use);
        Q_EMIT opened(result, look);
    } else if (isForFrame && result.preview) {
        Q_EMIT previewed(*result.preview);
    } else if (isForFrame && result.badRowCount > 0) {
        Q_EMIT badRowsMet(result);
    } else if (!result.cancelled) {
        Q_EMIT failed(result.error);
    }
    Q_EMIT ended(result.data != nullptr);
}

} // namespace corvala::app
