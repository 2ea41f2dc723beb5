// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/open_files.h"

#include "host/io/reader/channel.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/plot3d_format.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace corvala::host::io::reader {

enum class Format { Unknown, LegacyVtk, XmlVtk, Collection, Cgns, EnSight, Exodus, Foam, Plot3D };

struct FormatEndings
{
    Format format;
    const char* endings;
};

static constexpr FormatEndings kFormats[] = {
    {Format::LegacyVtk, "vtk"},
    {Format::XmlVtk, "vtm vtmb vtu vtp vts vtr vti pvtu pvtp pvts pvtr pvti"},
    {Format::Collection, "pvd"},
    {Format::Cgns, "cgns"},
    {Format::EnSight, "case encas"},
    {Format::Exodus, "exo e ex2 exii exoii g gen"},
    {Format::Foam, "foam openfoam"},
    {Format::Plot3D, "xyz x xy p3d grd g bin q f fun fmt"},
};

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

QByteArray firstBytes(const QString& path, qint64 count)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.read(count);
}

/// Of the formats that share an ending, Exodus files are netCDF or HDF5 files.
static bool mayBe(Format format, const QString& path)
{
    if (format != Format::Plot3D)
        return true;
    const QByteArray start = firstBytes(path, 4);
    return !start.startsWith("CDF") && !start.startsWith("\x89HDF");
}

static Format formatOf(const QString& path)
{
    if (QFileInfo(path).fileName() == QLatin1String("controlDict"))
        return Format::Foam;
    const QString ending = QFileInfo(path).suffix();
    Format result = Format::Unknown;
    for (const FormatEndings& each : kFormats) {
        const QStringList endings = QString::fromLatin1(each.endings).split(QLatin1Char(' '));
        if (endings.contains(ending, Qt::CaseInsensitive) && mayBe(each.format, path))
            result = each.format;
    }
    return result;
}

static QDir newHelperFolder(const QDir& folder, std::size_t number)
{
    const QString name = QStringLiteral("helpers/%1").arg(number);
    folder.mkpath(name);
    return QDir(folder.filePath(name));
}

static std::unique_ptr<DataFile> openFile(Format format, const QString& path,
                                          const QDir& helperFolder)
{
    switch (format) {
    case Format::LegacyVtk: return openLegacyVtk(path);
    case Format::XmlVtk: return openXmlVtk(path);
    case Format::Collection: return openCollection(path);
    case Format::Cgns: return openCgns(path);
    case Format::EnSight: return openEnSight(path, helperFolder);
    case Format::Exodus: return openExodus(path);
    case Format::Foam: return openFoam(path);
    default: break;
    }
    throw ReadFailure(path,
                      QT_TRANSLATE_NOOP("ReadMessage", "files that end in \"%1\" are not known"),
                      {QFileInfo(path).suffix()});
}

std::vector<std::unique_ptr<DataFile>> openFiles(const ReadRequest& request, const QDir& folder,
                                                 Channel& channel)
{
    std::vector<std::unique_ptr<DataFile>> result;
    QStringList plot3d;
    for (const QString& path : request.files) {
        channel.report(path, 0,
                       ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "Opening %1"),
                                   {QFileInfo(path).fileName()}));
        requireReadable(path, true);
        const Format format = formatOf(path);
        requireReadable(path, format == Format::Foam);
        if (format == Format::Plot3D)
            plot3d << path;
        else
            result.push_back(openFile(format, path, newHelperFolder(folder, result.size())));
    }
    for (const Plot3DSeries& series : groupPlot3D(plot3d, request.plot3d))
        result.push_back(openPlot3D(series, newHelperFolder(folder, result.size())));
    return result;
}

} // namespace corvala::host::io::reader
