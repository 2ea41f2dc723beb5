// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/file_time.h"

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/legacy_number.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/vtk_messages.h"
#include "host/io/reader/xml_kind.h"
#include "host/io/reader/xml_pieces.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

#include <vtkXMLGenericDataObjectReader.h>
#include <vtkXMLPolyDataReader.h>
#include <vtkXMLReader.h>

#include <cmath>
#include <cstring>
#include <map>
#include <set>

namespace corvala::host::io::reader {

static constexpr int kDeepest = 10; ///< of files that name files

static std::optional<double> timeOf(const QString& path, int depth);

static std::optional<double> timeInLegacy(const QString& path)
{
    static constexpr qint64 kStart = 4096; // where the field data are, if there are any
    static const QRegularExpression field(QStringLiteral("\n(?:TIME|TimeValue) 1 1 double *\r?\n"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QByteArray start = firstBytes(path, kStart);
    const auto match = field.match(QString::fromLatin1(start));
    if (!match.hasMatch())
        return std::nullopt;
    const QByteArray rest = start.mid(match.capturedEnd());
    if (!start.contains("\nBINARY"))
        return numberOf({rest.constData(), static_cast<std::size_t>(rest.size())});
    if (rest.size() < 8)
        return std::nullopt;
    const auto bits = qFromBigEndian<quint64>(rest.constData());
    double result = 0;
    std::memcpy(&result, &bits, sizeof result);
    return result;
}

static std::optional<double> timeIn(const QString& path, vtkXMLReader& reader)
{
    const std::vector<double> times = AlgorithmFile(path, &reader).times();
    VtkMessages::takeError(); // which reading gives again
    return times.size() == 1 ? std::optional(times.front()) : std::nullopt;
}

/// What a tree of files tells itself: its field data, read as those of a surface.
static std::optional<double> timeInTree(const QString& path)
{
    static const QRegularExpression kind(QStringLiteral("\\btype\\s*=\\s*(\"[^\"]*\"|'[^']*')"));
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray all = file.readAll();
    const int start = all.indexOf("<VTKFile");
    const int field = all.indexOf("<FieldData", start);
    const int end = all.indexOf("</FieldData>", field);
    const int appended = all.indexOf("<AppendedData", end);
    if (start < 0 || field < 0 || end < 0 || all.indexOf("\"TimeValue\"", field) < 0)
        return std::nullopt;
    const QString head = QString::fromLatin1(all.mid(start, all.indexOf('>', start) + 1 - start));
    const QByteArray text =
        QString(head).replace(kind, QStringLiteral("type=\"PolyData\"")).toLatin1() + "<PolyData>"
        + all.mid(field, end - field) + "</FieldData><Piece NumberOfPoints=\"0\"/></PolyData>"
        + (appended < 0 ? QByteArray("</VTKFile>") : all.mid(appended));
    const auto reader = vtkSmartPointer<vtkXMLPolyDataReader>::New();
    reader->ReadFromInputStringOn();
    reader->SetInputString(text.toStdString());
    return timeIn(path, *reader);
}

static std::optional<double> timeOfFirst(const PieceNode& node, int depth)
{
    if (!node.file.isEmpty())
        return timeOf(node.file, depth + 1);
    return node.children.empty() ? std::nullopt : timeOfFirst(node.children.front(), depth);
}

static std::optional<double> timeInXml(const QString& path, int depth)
{
    const XmlKind kind(path);
    if (kind.isTree) {
        const std::optional<double> own = timeInTree(path);
        return own ? own : timeOfFirst(pieceTree(path).root, depth);
    }
    if (kind.isParallel) {
        const QStringList pieces = piecesOf(path);
        return pieces.isEmpty() ? std::nullopt : timeOf(pieces.front(), depth + 1);
    }
    const auto reader = vtkXMLGenericDataObjectReader::CreateReader(kind.type, false);
    reader->SetFileName(QFile::encodeName(path).constData());
    return timeIn(path, *reader);
}

static std::optional<double> timeOf(const QString& path, int depth)
{
    const Format format = formatOf(path);
    if (depth > kDeepest || (format != Format::LegacyVtk && format != Format::XmlVtk))
        return std::nullopt;
    try {
        requireReadable(path);
        const std::optional<double> time =
            format == Format::LegacyVtk ? timeInLegacy(path) : timeInXml(path, depth);
        return time && std::isfinite(*time) ? time : std::nullopt;
    } catch (const ReadFailure&) {
        VtkMessages::takeError(); // which reading gives again
        return std::nullopt;
    }
}

std::optional<double> fileTime(const QString& path)
{
    return timeOf(path, 0);
}

/// The path without the last number of the file's name: files of a series agree in it.
static QString withoutNumber(const QString& path)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+(?=[^0-9/]*$)"));
    return QString(path).remove(number);
}

std::vector<std::unique_ptr<DataFile>> joinedByTime(std::vector<std::unique_ptr<DataFile>> files)
{
    std::map<QString, std::map<double, QString>> series; // paths by time
    std::map<QString, std::size_t> members;
    const auto seriesOf = [](const DataFile& file) {
        const Format format = formatOf(file.path());
        const bool isOfVtk = format == Format::XmlVtk || format == Format::LegacyVtk;
        return isOfVtk && file.times().size() == 1 ? withoutNumber(file.path()) : QString();
    };
    for (const auto& file : files)
        if (const QString name = seriesOf(*file); !name.isEmpty()) {
            series[name].emplace(file->times().front(), file->path());
            ++members[name];
        }
    std::vector<std::unique_ptr<DataFile>> result;
    std::set<QString> joined;
    for (auto& file : files) {
        const QString name = seriesOf(*file);
        const bool isSeries = series[name].size() > 1 && series[name].size() == members[name];
        if (!isSeries)
            result.push_back(std::move(file));
        else if (joined.insert(name).second)
            result.push_back(openSeries(name, series[name]));
    }
    return result;
}

} // namespace corvala::host::io::reader
