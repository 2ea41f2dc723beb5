// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/xml_kind.h"

#include "host/io/reader/mapped_file.h"
#include "host/io/reader/read_failure.h"

#include <QFile>

#include <vtkNew.h>
#include <vtkXMLGenericDataObjectReader.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

namespace corvala::host::io::reader {

static constexpr std::size_t kSmall = 1 << 20; ///< bytes; VTK seeks to and fro in files

/// The value of an attribute in a tag; empty when the tag has none of that name.
static std::string_view attributeOf(std::string_view tag, std::string_view name)
{
    static constexpr const char* kSpace = " \t\r\n";
    for (std::size_t at = tag.find(name); at < tag.size(); at = tag.find(name, at + 1)) {
        const std::string_view rest = tag.substr(at + name.size());
        const std::size_t quote = rest.find_first_of("\"'");
        const bool isWord = at > 0 && std::strchr(kSpace, tag[at - 1]);
        if (!isWord || quote == std::string_view::npos
            || rest.find_first_not_of(kSpace) != rest.find('=')
            || rest.find_first_not_of(kSpace, rest.find('=') + 1) != quote)
            continue;
        return rest.substr(quote + 1, rest.find(rest[quote], quote + 1) - quote - 1);
    }
    return {};
}

/// The tag that starts at a place.
static std::string_view tagAt(std::string_view xml, std::size_t at)
{
    const std::string_view rest = xml.substr(std::min(at, xml.size()));
    return rest.substr(0, std::min(rest.find('>'), rest.size() - 1) + 1);
}

static double numberOf(std::string_view tag, std::string_view name)
{
    const std::string text(attributeOf(tag, name));
    return std::strtod(text.c_str(), nullptr);
}

/// The range of points along each axis that a tag tells; empty when it tells none.
static std::vector<int> extentOf(std::string_view tag, std::string_view name)
{
    const std::string text(attributeOf(tag, name));
    std::vector<int> result;
    char* end = nullptr;
    for (const char* at = text.c_str();; at = end) {
        const long number = std::strtol(at, &end, 10);
        if (end == at)
            break;
        result.push_back(static_cast<int>(number));
    }
    return result.size() == 6 ? result : std::vector<int>();
}

static double pointsOf(const std::vector<int>& extent)
{
    double points = extent.empty() ? 0 : 1;
    for (std::size_t i = 0; i < extent.size(); i += 2)
        points *= std::max(static_cast<double>(extent[i + 1]) - extent[i] + 1, 0.0);
    return points;
}

static bool hasArrays(std::string_view piece, const std::string& part)
{
    const std::size_t begin = piece.find('<' + part);
    const std::string_view arrays =
        begin == std::string_view::npos ? std::string_view() : piece.substr(begin);
    return arrays.substr(0, arrays.find("</" + part)).find("<DataArray") < arrays.size();
}

/// Least bytes that what a piece of a serial file claims takes when it is not compressed.
static double leastBytesOf(std::string_view piece, std::string_view tag)
{
    double bytes = 3 * numberOf(tag, "NumberOfPoints");
    for (const char* const cells :
         {"NumberOfCells", "NumberOfVerts", "NumberOfLines", "NumberOfStrips", "NumberOfPolys"})
        bytes += numberOf(tag, cells);
    std::vector<int> extent = extentOf(tag, "Extent");
    if (hasArrays(piece, "PointData"))
        bytes += pointsOf(extent);
    for (std::size_t i = 1; i < extent.size(); i += 2)
        extent[i] -= extent[i] > extent[i - 1] ? 1 : 0;
    if (hasArrays(piece, "CellData"))
        bytes += pointsOf(extent);
    return bytes;
}

/// The tags of the file and of its pieces, from one look through what comes before the values.
struct PieceTags
{
    explicit PieceTags(std::string_view bytes)
        : xml(bytes.substr(0, bytes.find("<AppendedData")))
        , isAppended(xml.size() < bytes.size())
    {
        for (std::size_t at = xml.find("<Piece"); at < xml.size(); at = xml.find("<Piece", at + 1))
            places.push_back(at);
        head = xml.substr(0, places.empty() ? xml.size() : places.front());
    }

    std::string_view tag(std::size_t piece) const { return tagAt(xml, places[piece]); }

    std::string_view xml; ///< without appended values
    bool isAppended;
    std::string_view head; ///< before the first piece
    std::vector<std::size_t> places; ///< of the pieces
};

/// VTK makes room for what a file claims before it reads any of it.
static void requireRoom(const MappedFile& file, const PieceTags& pieces)
{
    static constexpr double kMostCompression = 10'000; ///< LZMA of zeros
    const double size = static_cast<double>(file.bytes().size());
    const bool isCompressed = pieces.head.find("compressor") != std::string_view::npos;
    double claimed = 0;
    for (std::size_t i = 0; i < pieces.places.size(); ++i)
        claimed += leastBytesOf(pieces.xml.substr(pieces.places[i]), pieces.tag(i));
    if (claimed > (isCompressed ? kMostCompression : 1) * size)
        throw ReadFailure(
            file.path(),
            QT_TRANSLATE_NOOP("ReadMessage",
                              "it is damaged: what it claims to hold takes at least %1 bytes, of "
                              "which %2 are there"),
            {QString::number(claimed / (isCompressed ? kMostCompression : 1), 'f', 0),
             QString::number(size, 'f', 0)});
}

/// What a piece leaves of an extent, as up to six extents.
static std::vector<std::vector<int>> without(std::vector<int> extent, const std::vector<int>& piece)
{
    std::vector<std::vector<int>> rest;
    for (std::size_t i = 0; i < 6; i += 2)
        if (piece[i] > extent[i + 1] || piece[i + 1] < extent[i])
            return {extent};
    for (std::size_t i = 0; i < 6; i += 2) {
        if (piece[i] > extent[i]) {
            rest.push_back(extent);
            rest.back()[i + 1] = piece[i] - 1;
            extent[i] = piece[i];
        }
        if (piece[i + 1] < extent[i + 1]) {
            rest.push_back(extent);
            rest.back()[i] = piece[i + 1] + 1;
            extent[i + 1] = piece[i + 1];
        }
    }
    return rest;
}

/// Points of the grid that no piece has; pieces may share points.
static double missingPoints(const PieceTags& pieces)
{
    const std::size_t whole = pieces.head.find("WholeExtent");
    if (whole == std::string_view::npos)
        return 0;
    std::vector<std::vector<int>> missing {
        extentOf(tagAt(pieces.head, pieces.head.rfind('<', whole)), "WholeExtent")};
    for (std::size_t i = 0; i < pieces.places.size(); ++i) {
        const std::vector<int> piece = extentOf(pieces.tag(i), "Extent");
        std::vector<std::vector<int>> rest;
        for (const std::vector<int>& extent : missing)
            for (std::vector<int>& part : piece.empty() || extent.empty()
                     ? std::vector<std::vector<int>> {extent}
                     : without(extent, piece))
                rest.push_back(std::move(part));
        missing = std::move(rest);
    }
    return std::accumulate(
        missing.begin(), missing.end(), 0.0,
        [](double sum, const std::vector<int>& extent) { return sum + pointsOf(extent); });
}

/// VTK takes what no piece of a grid fills for whatever the memory held. Returns the extent of a
/// piece that is all there is of a larger grid.
static std::vector<int> extentToRead(const MappedFile& file, const PieceTags& pieces)
{
    const double missing = missingPoints(pieces);
    if (missing > 0 && pieces.places.size() != 1)
        throw ReadFailure(
            file.path(),
            QT_TRANSLATE_NOOP("ReadMessage", "its pieces do not fill its grid: %1 points lack"),
            {QString::number(missing, 'f', 0)});
    return missing > 0 ? extentOf(pieces.tag(0), "Extent") : std::vector<int>();
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
    const std::string_view tag = tagAt(file.bytes(), file.bytes().find("<VTKFile"));
    return std::string(attributeOf(tag, "type"));
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
    const PieceTags pieces(file.bytes());
    if (isParallel) {
        isWhole = missingPoints(pieces) == 0;
        return;
    }
    requireRoom(file, pieces);
    extent = extentToRead(file, pieces);
    const std::string_view rest = file.bytes().substr(end);
    const bool hasRest =
        !pieces.isAppended && rest.find_first_not_of(" \t\r\n") != std::string_view::npos;
    if (hasRest || file.bytes().size() <= kSmall)
        text = file.bytes().substr(0, end);
}

} // namespace corvala::host::io::reader
