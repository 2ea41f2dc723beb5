// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_coordinates.h"

#include "host/io/reader/cgns_tree.h"
#include "host/io/reader/read_failure.h"

#include <QFileInfo>

#include <algorithm>
#include <string>

namespace corvala::host::io::reader {

static void requireCoordinates(const QString& path, const CgnsTree& file,
                               const CgnsTree::Node& zone, int dimension)
{
    const auto grids = file.children(zone.id, "GridCoordinates_t");
    if (grids.empty())
        return;
    const auto arrays = file.children(grids.front().id, "DataArray_t");
    for (int axis = 0; axis < std::min(dimension, 3); ++axis) {
        const std::string name = std::string("Coordinate") + "XYZ"[axis];
        const bool isThere = std::any_of(arrays.begin(), arrays.end(),
                                         [&](const auto& array) { return array.name == name; });
        if (!isThere)
            throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "the zone \"%1\" has no %2"),
                              {QString::fromStdString(zone.name), QString::fromStdString(name)});
    }
}

void requireCgnsCoordinates(const QString& path)
{
    const CgnsTree file(path);
    if (!file.isOpen())
        return;
    const auto bases = file.children(file.root(), "CGNSBase_t");
    if (bases.empty())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it has no CGNS base"));
    for (const CgnsTree::Node& base : bases) {
        const std::vector<int> dimensions = file.integers(base.id);
        for (const CgnsTree::Node& zone : file.children(base.id, "Zone_t"))
            requireCoordinates(path, file, zone, dimensions.size() > 1 ? dimensions[1] : 0);
    }
}

} // namespace corvala::host::io::reader
