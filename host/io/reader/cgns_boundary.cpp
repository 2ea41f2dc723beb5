// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_boundary.h"

#include "host/io/reader/cgns_elements.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace corvala::host::io::reader {

using Node = CgnsTree::Node;
using Numbers = std::vector<std::int64_t>;

/// Which points or elements a boundary condition names.
struct PointSet
{
    Numbers numbers; ///< from 1; of a range, the first and the last
    bool isRange = false;
    std::string location = "Vertex";
};

struct ZoneShape
{
    bool isStructured = false;
    std::size_t dimension = 0; ///< of indices
    Numbers sizes; ///< points along each index
};

static PointSet pointSetOf(const CgnsTree& file, double node)
{
    PointSet result;
    for (const Node& child : file.children(node)) {
        const bool isOfElements = child.name == "ElementRange" || child.name == "ElementList";
        if (child.label == "GridLocation_t")
            result.location = file.text(child.id);
        if (!isOfElements && child.name != "PointRange" && child.name != "PointList")
            continue;
        result.isRange = child.label == "IndexRange_t";
        result.numbers = file.numbers(child.id);
        if (isOfElements)
            result.location = "FaceCenter";
    }
    return result;
}

static ZoneShape shapeOf(const CgnsTree& file, double zone)
{
    ZoneShape result;
    for (const Node& type : file.children(zone, "ZoneType_t"))
        result.isStructured = file.text(type.id) != "Unstructured";
    const Numbers sizes = file.numbers(zone);
    result.dimension = std::min<std::size_t>(sizes.size() / 3, 3);
    result.sizes.assign(sizes.begin(),
                        sizes.begin() + static_cast<std::ptrdiff_t>(result.dimension));
    return result;
}

ReadMessage pointsMissing()
{
    return ReadMessage(
        QT_TRANSLATE_NOOP("ReadMessage", "it names points or elements that are not there"));
}

/// The index whose direction the patch bounds. Names of locations tell it, or the range does.
static std::size_t normalOf(const PointSet& set, std::size_t dimension)
{
    const std::size_t named = std::string("IJK").find(set.location.front());
    if (named < dimension && set.location.find("FaceCenter") == 1)
        return named;
    for (std::size_t i = 0; i < dimension; ++i)
        if (set.numbers[i] == set.numbers[dimension + i])
            return i;
    return dimension;
}

/// Faces have the number of their points along their normal, and that of cells along the others.
static void setBlock(const PointSet& set, const ZoneShape& shape, BoundaryPatch& patch)
{
    const std::size_t normal = normalOf(set, shape.dimension);
    const bool isOfPoints = set.location == "Vertex";
    const bool isOfCells = set.location == "CellCenter";
    for (std::size_t i = 0; i < shape.dimension; ++i) {
        std::int64_t first = std::min(set.numbers[i], set.numbers[shape.dimension + i]);
        std::int64_t last = std::max(set.numbers[i], set.numbers[shape.dimension + i]);
        if (!isOfPoints && i != normal)
            last += 1;
        else if (isOfCells && first > 1)
            first = last = last + 1;
        if (first < 1 || last > shape.sizes[i])
            patch.fault = pointsMissing();
        patch.block[2 * i] = first - 1;
        patch.block[2 * i + 1] = last - 1;
    }
    patch.isBlock = true;
    if (!isOfPoints && normal == shape.dimension)
        patch.fault = ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "it is no face of its zone"));
}

/// Numbers of a list or a range, which must not be longer than what it is of.
static Numbers expanded(const PointSet& set, std::int64_t most)
{
    if (!set.isRange)
        return set.numbers;
    const auto [first, last] = std::minmax(set.numbers[0], set.numbers[1]);
    Numbers result;
    if (first >= 1 && last <= most)
        for (std::int64_t number = first; number <= last; ++number)
            result.push_back(number);
    return result;
}

static void setPoints(const Numbers& numbers, const ZoneShape& shape, BoundaryPatch& patch)
{
    for (std::size_t i = 0; i + shape.dimension <= numbers.size(); i += shape.dimension) {
        std::int64_t point = 0;
        for (std::size_t j = shape.dimension; j-- > 0;) {
            const std::int64_t index = numbers[i + j];
            if (index < 1 || index > shape.sizes[j]) {
                patch.fault = pointsMissing();
                return;
            }
            point = point * shape.sizes[j] + index - 1;
        }
        patch.points.push_back(point);
    }
}

static void setFaces(const Numbers& numbers, const ZoneShape& shape, CgnsElements& elements,
                     BoundaryPatch& patch)
{
    for (const std::int64_t element : numbers) {
        BoundaryPatch::Face face = elements.face(element);
        if (face.points.empty()) {
            patch.fault = elements.has(element) ? ReadMessage(QT_TRANSLATE_NOOP(
                              "ReadMessage", "it has elements that are no faces of a known kind"))
                                                : pointsMissing();
            return;
        }
        for (vtkIdType& point : face.points)
            if (--point < 0 || point >= shape.sizes.front())
                patch.fault = pointsMissing();
        patch.faces.push_back(std::move(face));
    }
}

static void setPlace(const CgnsTree& file, double node, const ZoneShape& shape,
                     CgnsElements& elements, BoundaryPatch& patch)
{
    const PointSet set = pointSetOf(file, node);
    if (set.location.empty() || shape.dimension == 0 || set.numbers.empty()
        || (set.isRange && set.numbers.size() != 2 * shape.dimension))
        patch.fault = pointsMissing();
    else if (shape.isStructured && set.isRange)
        setBlock(set, shape, patch);
    else if (set.location == "Vertex")
        setPoints(expanded(set, shape.sizes.front()), shape, patch);
    else if (shape.isStructured)
        patch.fault = ReadMessage(QT_TRANSLATE_NOOP(
            "ReadMessage", "its faces of a structured zone are listed one by one"));
    else
        setFaces(expanded(set, elements.lastElement()), shape, elements, patch);
    if (patch.fault.isEmpty() && !patch.isBlock && patch.faces.empty() && patch.points.empty())
        patch.fault = pointsMissing();
}

/// Calls `take` with the zone, its base and each of its boundary conditions.
template<class Take>
static void forEachBoundary(const CgnsTree& file, const Take& take)
{
    for (const Node& base : file.children(file.root(), "CGNSBase_t"))
        for (const Node& zone : file.children(base.id, "Zone_t"))
            for (const Node& conditions : file.children(zone.id, "ZoneBC_t"))
                for (const Node& condition : file.children(conditions.id, "BC_t"))
                    take(base, zone, condition);
}

std::int64_t boundaryCount(const CgnsTree& file)
{
    std::int64_t count = 0;
    forEachBoundary(file, [&](const Node&, const Node&, const Node&) { ++count; });
    return count;
}

std::vector<BoundaryPatch> boundariesOf(const CgnsTree& file)
{
    std::vector<BoundaryPatch> result;
    std::string zonePath;
    ZoneShape shape;
    CgnsElements elements(file);
    forEachBoundary(file, [&](const Node& base, const Node& zone, const Node& condition) {
        if (const std::string path = base.name + '/' + zone.name; path != zonePath) {
            zonePath = path;
            shape = shapeOf(file, zone.id);
            elements.enter(zone);
        }
        BoundaryPatch patch;
        patch.base = base.name;
        patch.zone = zone.name;
        patch.name = condition.name;
        for (const Node& family : file.children(condition.id, "FamilyName_t"))
            patch.family = file.text(family.id);
        setPlace(file, condition.id, shape, elements, patch);
        result.push_back(std::move(patch));
    });
    return result;
}

} // namespace corvala::host::io::reader
