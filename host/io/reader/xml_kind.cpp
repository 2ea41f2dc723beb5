// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/xml_kind.h"

#include "host/io/reader/mapped_file.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QXmlStreamReader>

#include <vtkNew.h>
#include <vtkXMLGenericDataObjectReader.h>

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace corvala::host::io::reader {

static QString attributeOf(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

/// The range of points along each axis that a tag tells; empty when it tells none.
static std::vector<int> extentOf(std::string_view tag, const char* name)
{
    QXmlStreamReader xml(QByteArray(tag.data(), static_cast<int>(tag.size())));
    xml.readNextStartElement();
    std::vector<int> result;
    for (const QString& number : attributeOf(xml, name).simplified().split(QLatin1Char(' ')))
        result.push_back(number.toInt());
    return result.size() == 6 ? result : std::vector<int>();
}

static double pointsOf(const std::vector<int>& extent)
{
    double points = extent.empty() ? 0 : 1;
    for (std::size_t i = 0; i < extent.size(); i += 2)
        points *= std::max(static_cast<double>(extent[i + 1]) - extent[i] + 1, 0.0);
    return points;
}

/// Least bytes that what a piece of a serial file claims takes when it is not compressed.
static double leastBytesOf(std::string_view piece, std::string_view tag)
{
    QXmlStreamReader xml(QByteArray(tag.data(), static_cast<int>(tag.size())));
    xml.readNextStartElement();
    double bytes = 3 * attributeOf(xml, "NumberOfPoints").toDouble();
    for (const char* const cells :
         {"NumberOfCells", "NumberOfVerts", "NumberOfLines", "NumberOfStrips", "NumberOfPolys"})
        bytes += attributeOf(xml, cells).toDouble();
    const std::size_t values = piece.find("<PointData");
    const std::string_view arrays =
        values == std::string_view::npos ? std::string_view() : piece.substr(values);
    if (arrays.substr(0, arrays.find("</PointData")).find("<DataArray") < arrays.size())
        bytes += pointsOf(extentOf(tag, "Extent"));
    return bytes;
}

/// VTK makes room for what a file claims before it reads any of it.
static void requireRoom(const MappedFile& file)
{
    static constexpr double kMostCompression = 10'000; ///< LZMA of zeros
    const std::string_view xml = file.bytes().substr(0, file.bytes().find("<AppendedData"));
    const double size = static_cast<double>(file.bytes().size());
    const bool isCompressed =
        xml.substr(0, xml.find("<Piece")).find("compressor") != std::string_view::npos;
    double claimed = 0;
    for (std::size_t at = xml.find("<Piece"); at < xml.size(); at = xml.find("<Piece", at + 1)) {
        const std::string_view piece = xml.substr(at);
        claimed += leastBytesOf(piece, piece.substr(0, piece.find('>') + 1));
    }
    if (claimed > (isCompressed ? kMostCompression : 1) * size)
        throw ReadFailure(
            file.path(),
            QT_TRANSLATE_NOOP("ReadMessage",
                              "it is damaged: what it claims to hold takes at least %1 bytes, of "
                              "which %2 are there"),
            {QString::number(claimed / (isCompressed ? kMostCompression : 1), 'f', 0),
             QString::number(size, 'f', 0)});
}

/// VTK takes what no piece of a grid fills for whatever the memory held. Returns the extent of a
/// piece that is all there is of a larger grid.
static std::vector<int> extentToRead(const MappedFile& file)
{
    const std::string_view xml = file.bytes().substr(0, file.bytes().find("<AppendedData"));
    const std::size_t whole = xml.substr(0, xml.find("<Piece")).find("WholeExtent");
    if (whole == std::string_view::npos)
        return {};
    const auto tagAt = [&](std::size_t at) { return xml.substr(at, xml.substr(at).find('>') + 1); };
    double missing = pointsOf(extentOf(tagAt(xml.rfind('<', whole)), "WholeExtent"));
    std::vector<int> extent;
    int pieces = 0;
    for (std::size_t at = xml.find("<Piece"); at < xml.size(); at = xml.find("<Piece", at + 1)) {
        extent = extentOf(tagAt(at), "Extent");
        missing -= pointsOf(extent);
        ++pieces;
    }
    if (missing > 0 && pieces != 1)
        throw ReadFailure(
            file.path(),
            QT_TRANSLATE_NOOP("ReadMessage", "its pieces do not fill its grid: %1 points lack"),
            {QString::number(missing, 'f', 0)});
    return missing > 0 ? extent : std::vector<int>();
}

/// Returns where the XML ends. VTK takes values after the XML that are cut off for whatever the
/// memory held.
static std::size_t requireEnd(const MappedFile& file)
{
    const std::size_t tag = file.bytes().rfind("</VTKFile");
    if (tag == std::string_view::npos)
        throw ReadFailure(
            file.path(),
            QT_TRANSLATE_NOOP("ReadMessage",
                              "it is cut off after %1 bytes: the end of the XML is missing"),
            {QString::number(file.bytes().size())});
    return std::min(file.bytes().find('>', tag), file.bytes().size() - 1) + 1;
}

/// What the first tag tells of the kind of data; empty for other files.
static std::string typeOf(const MappedFile& file)
{
    const std::string_view xml = file.bytes();
    const std::string_view tag = xml.substr(std::min(xml.find("<VTKFile"), xml.size()));
    const std::string_view attributes = tag.substr(0, tag.find('>'));
    std::size_t at = attributes.find("type=");
    while (at < attributes.size() && attributes[at - 1] == '_') // header_type
        at = attributes.find("type=", at + 1);
    if (at >= attributes.size())
        return {};
    const std::string_view value = attributes.substr(std::min(at + 6, attributes.size()));
    return std::string(value.substr(0, value.find_first_of("\"'")));
}

/// The type of data object that VTK has for a kind, and whether it is parallel.
static std::pair<int, bool> vtkTypeOf(const QString& path, const std::string& type)
{
    static std::map<std::string, std::pair<int, bool>> known; // asking VTK takes a while
    const auto [place, isNew] = known.try_emplace(type, -1, false);
    if (isNew || type.empty())
        place->second.first = vtkNew<vtkXMLGenericDataObjectReader>()->ReadOutputType(
            QFile::encodeName(path).constData(), place->second.second);
    return place->second;
}

XmlKind::XmlKind(const QString& path)
{
    const MappedFile file(path);
    const std::string kind = typeOf(file);
    isTree = kind.rfind("vtk", 0) == 0; // VTK knows some of them only
    if (isTree) // which may be written just now
        return;
    std::tie(type, isParallel) = vtkTypeOf(path, kind);
    if (type < 0)
        throw ReadFailure(
            path,
            QT_TRANSLATE_NOOP("ReadMessage", "it is no VTK XML file of a kind that is known"));
    const std::size_t end = requireEnd(file);
    if (isParallel)
        return;
    requireRoom(file);
    extent = extentToRead(file);
    const std::string_view rest = file.bytes().substr(end);
    const bool isAppended = file.bytes().find("<AppendedData") != std::string_view::npos;
    if (!isAppended && rest.find_first_not_of(" \t\r\n") != std::string_view::npos)
        text = file.bytes().substr(0, end);
}

} // namespace corvala::host::io::reader
