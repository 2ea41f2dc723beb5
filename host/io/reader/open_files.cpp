// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/open_files.h"

#include "host/io/reader/channel.h"
#include "host/io/reader/exodus_names.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/file_time.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/plot3d_format.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/text/table_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <set>
#include <utility>

namespace corvala::host::io::reader {

void requireReadable(const QString& path, bool mayBeEmpty)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "there is no such file"));
    if (info.isDir())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it is a folder"));
    if (!info.isFile())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it is not a regular file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ReadFailure(path, "%1", {file.errorString()});
    if (info.size() == 0 && !mayBeEmpty)
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it is empty"));
}

static QDir newHelperFolder(const QDir& folder, std::size_t number)
{
    const QString name = QStringLiteral("helpers/%1").arg(number);
    folder.mkpath(name);
    return QDir(folder.filePath(name));
}

static std::unique_ptr<DataFile> openSound(Format format, const QString& path,
                                           const ReadChoices& choices, const QDir& helper)
{
    switch (format) {
    case Format::LegacyVtk: return openLegacyVtk(path);
    case Format::XmlVtk: return openXmlVtk(path);
    case Format::Collection: return openCollection(path);
    case Format::Surface: return openSurface(path);
    case Format::Cgns: return openCgns(path, choices.boundaryPatches, helper);
    case Format::EnSight: return openEnSight(path);
    case Format::Exodus: return openExodus(path);
    case Format::Foam: return openFoam(path, helper);
    default: break;
    }
    throw ReadFailure(path,
                      QT_TRANSLATE_NOOP("ReadMessage", "files that end in \"%1\" are not known"),
                      {QFileInfo(path).suffix()});
}

/// One of a series that cannot be opened is left out when its time comes.
static std::unique_ptr<DataFile> openFile(Format format, const QString& path,
                                          const ReadChoices& choices, const QDir& helper)
{
    try {
        return openSound(format, path, choices, helper);
    } catch (const ReadFailure& failure) {
        if (!choices.numberedTimes)
            throw;
        return unreadableFile(path, failure);
    }
}

OpenedFiles openFiles(const ReadRequest& request, const QDir& folder, Channel& channel)
{
    DataFiles result;
    QStringList plot3d;
    QStringList tables;
    std::set<std::pair<QString, int>> runs; // of Exodus, which are opened by any of their files
    for (const QString& named : request.files) {
        const QString path = QFileInfo(named).isDir() ? mainFileIn(named) : named;
        channel.report(path, 0,
                       ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "Opening %1"),
                                   {QFileInfo(path).fileName()}));
        requireReadable(path, true);
        const Format format = formatOf(path);
        requireReadable(path, format == Format::Foam);
        const ExodusName exodus = exodusNameOf(path);
        if (format == Format::Exodus && !runs.insert({exodus.first, exodus.pieceCount}).second)
            continue;
        if (format == Format::Plot3D)
            plot3d << path;
        else if (format == Format::Table || (format == Format::Unknown && isTable(path)))
            tables << path;
        else
            result.push_back(
                openFile(format, path, request.choices, newHelperFolder(folder, result.size())));
    }
    result = joinedByTime(std::move(result));
    for (const Plot3DSeries& series : groupPlot3D(plot3d, request.plot3d))
        result.push_back(openPlot3D(series, newHelperFolder(folder, result.size())));
    if (request.choices.numberedTimes)
        result = joinedByNumber(std::move(result));
    const auto numbered = static_cast<std::int64_t>(numberedCount(result));
    for (std::unique_ptr<DataFile>& table : openTables(tables, request.text))
        result.push_back(std::move(table));
    return {std::move(result), numbered};
}

} // namespace corvala::host::io::reader
