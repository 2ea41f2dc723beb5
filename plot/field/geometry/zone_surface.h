// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/data_set.h"
#include "sdk/base/enums.h"

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <array>
#include <vector>

namespace corvala::plot {

/// Planes of one index: numbers from 1, `maximum` 0 stands for the last.
struct IndexRange
{
    int minimum = 1;
    int maximum = 0;
    int skip = 1;
};

/// Which faces of a volume zone are drawn.
struct SurfaceChoice
{
    SurfacesToPlot_e surfaces = SurfacesToPlot_BoundaryCellFaces;
    std::array<IndexRange, 3> planes; ///< I, J, K

    /// With everything that does not matter for this zone set to its default, so that equal
    /// surfaces have equal choices.
    SurfaceChoice normalized(const host::ZoneInfo& zone) const;
};

bool operator==(const SurfaceChoice& left, const SurfaceChoice& right);
inline bool operator!=(const SurfaceChoice& left, const SurfaceChoice& right)
{
    return !(left == right);
}

/// What can be drawn of a zone: its points, lines and faces, without values.
struct ZoneSurface
{
    vtkSmartPointer<vtkPolyData> shape; ///< points, vertices, lines and polygons
    std::vector<vtkIdType> pointIds; ///< the zone's point of each point; empty if it is the same
    std::vector<vtkIdType> cellIds; ///< the zone's cell of each cell; empty if it is the same

    std::size_t memoryUse() const; ///< bytes
};

/// A shape with points and cells of its own about the same numbers. VTK notes things in shapes that
/// are only looked at, and when a reference to one goes: threads must not share them.
vtkSmartPointer<vtkPolyData> separateShape(vtkPolyData& shape);

/// Filters run without threads of their own from now on: these would give faces another order, and
/// with it another picture, each time.
void runFiltersInOrder();

/// The surface of a zone's points and cells. A volume zone gives the faces of the choice, nothing
/// for "None" and, being without index planes, nothing for planes of a zone that is not ordered;
/// any other zone gives all its faces, lines and points. Blanked cells are left out.
ZoneSurface extractSurface(vtkDataSet& data, const host::ZoneInfo& zone,
                           const SurfaceChoice& choice);

} // namespace corvala::plot
