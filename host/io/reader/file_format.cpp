// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/file_format.h"

#include "host/io/reader/exodus_names.h"
#include "host/io/reader/read_failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMultiHash>

#include <algorithm>
#include <set>
#include <utility>

namespace corvala::host::io::reader {

/// Which of the files in a folder stand for the others, first ones first.
enum Rank { Case, Index, Part, Values, RankCount };

struct FormatEndings
{
    Format format;
    Rank rank;
    const char* endings;
};

static constexpr FormatEndings kFormats[] = {
    {Format::LegacyVtk, Part, "vtk"},
    {Format::XmlVtk, Part, "vtu vtp vts vtr vti"},
    {Format::XmlVtk, Index, "vtm vtmb vtpc vtpd vthb vth pvtu pvtp pvts pvtr pvti"},
    {Format::Collection, Case, "pvd series"},
    {Format::Surface, Part, "stl ply obj"},
    {Format::Cgns, Part, "cgns adf hdf5"},
    {Format::EnSight, Case, "case encas"},
    {Format::Exodus, Part, "exo e ex2 exii exoii g gen ncdf"},
    {Format::Foam, Case, "foam openfoam"},
    {Format::Plot3D, Part, "xyz x xy grd g bin q f fun fmt p3dfmt"},
    {Format::Plot3D, Index, "p3d"},
    {Format::Table, Values, "csv tsv tab txt dat prn asc"},
};

static constexpr FormatEndings kControlDict {Format::Foam, Case, ""};
static constexpr char kControlDictPath[] = "system/controlDict";
static constexpr int kMostNames = 5; ///< in a message

QByteArray firstBytes(const QString& path, qint64 count)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.read(count);
}

QString nameWithoutEnding(const QString& path)
{
    const QFileInfo info(path);
    const bool isSeries = info.suffix() == QLatin1String("series");
    return isSeries ? QFileInfo(info.completeBaseName()).completeBaseName()
                    : info.completeBaseName();
}

/// Of the formats that share an ending, Exodus files are netCDF or HDF5 files.
static bool mayBe(Format format, const QString& path)
{
    if (format != Format::Plot3D)
        return true;
    const QByteArray start = firstBytes(path, 4);
    return !start.startsWith("CDF") && !start.startsWith("\x89HDF");
}

static const QMultiHash<QString, const FormatEndings*>& kindsByEnding()
{
    static const auto kinds = [] {
        QMultiHash<QString, const FormatEndings*> result;
        for (const FormatEndings& each : kFormats)
            for (const QString& ending : QString::fromLatin1(each.endings).split(QLatin1Char(' ')))
                result.insert(ending, &each);
        return result;
    }();
    return kinds;
}

/// Null for a file of no known format.
static const FormatEndings* kindOf(const QString& path)
{
    if (QFileInfo(path).fileName() == QLatin1String("controlDict"))
        return &kControlDict;
    const FormatEndings* result = nullptr;
    for (const FormatEndings* each : kindsByEnding().values(endingOf(path).toLower()))
        if (!result && mayBe(each->format, path)) // the last of the table comes first
            result = each;
    return result;
}

/// By what stands at the begin of a file of an ending that is not known.
static Format formatByContent(const QString& path)
{
    static constexpr int kStart = 1 << 16;
    const QByteArray start = firstBytes(path, kStart);
    const QByteArray text = start.trimmed();
    if (start.startsWith("# vtk DataFile"))
        return Format::LegacyVtk;
    if (text.startsWith('<') && text.contains("<VTKFile"))
        return text.contains("<Collection") ? Format::Collection : Format::XmlVtk;
    if (text.startsWith('{') && text.contains("\"file-series-version\""))
        return Format::Collection;
    if (text.startsWith("ply\n") || text.startsWith("ply\r"))
        return Format::Surface;
    if (text.startsWith("FORMAT") && text.contains("ensight"))
        return Format::EnSight;
    if (start.startsWith("\x89HDF") && start.contains("CGNSLibraryVersion"))
        return Format::Cgns;
    return start.startsWith("CDF") ? Format::Exodus : Format::Unknown;
}

Format formatOf(const QString& path)
{
    const FormatEndings* kind = kindOf(path);
    return kind ? kind->format : formatByContent(path);
}

/// The files in a folder that stand for the others there; none where there are no data.
static QStringList mainFilesIn(const QDir& files)
{
    const bool isFoamCase = files.exists(QLatin1String(kControlDictPath));
    QStringList found[RankCount];
    std::set<std::pair<QString, int>> runs;
    if (isFoamCase)
        found[Case] << QLatin1String(kControlDictPath);
    for (const QString& name : files.entryList(QDir::Files, QDir::Name)) {
        const FormatEndings* kind = kindOf(files.filePath(name));
        const bool isMarker = isFoamCase && kind && kind->format == Format::Foam;
        const ExodusName exodus = exodusNameOf(name);
        const bool goesOn = kind && kind->format == Format::Exodus
            && !runs.insert({exodus.first, exodus.pieceCount}).second;
        if (kind && !isMarker && !goesOn) // which belong to what was found
            found[kind->rank] << name;
    }
    const auto* best = std::find_if(std::begin(found), std::end(found),
                                    [](const QStringList& names) { return !names.isEmpty(); });
    return best == std::end(found) ? QStringList() : *best;
}

QString mainFileIn(const QString& folder)
{
    const QDir files(folder);
    QStringList names = mainFilesIn(files);
    const QDir::Filters folders = QDir::Dirs | QDir::NoDotAndDotDot;
    if (names.isEmpty())
        for (const QString& inner : files.entryList(folders, QDir::Name))
            for (const QString& name : mainFilesIn(QDir(files.filePath(inner))))
                names << inner + QLatin1Char('/') + name;
    if (names.isEmpty())
        throw ReadFailure(
            folder, QT_TRANSLATE_NOOP("ReadMessage", "it is a folder that holds no data files"));
    if (names.size() == 1)
        return files.filePath(names.first());
    if (names.size() > kMostNames)
        names = names.mid(0, kMostNames) << QStringLiteral("...");
    throw ReadFailure(
        folder,
        QT_TRANSLATE_NOOP("ReadMessage",
                          "it is a folder that holds several data files; open some of them: %1"),
        {names.join(QStringLiteral(", "))});
}

} // namespace corvala::host::io::reader
