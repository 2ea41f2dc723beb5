// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/enclosure.h"

#include <vtkCellType.h>
#include <vtkDataSet.h>
#include <vtkIdList.h>
#include <vtkNew.h>

#include <cmath>
#include <utility>

namespace corvala::host::io::reader {

using Vector = std::array<double, 3>;

/// Corners of a flat cell in their order round it; further points lie on its sides.
static void keepCorners(int type, vtkIdList& points)
{
    if (type == VTK_PIXEL)
        std::swap(*points.GetPointer(2), *points.GetPointer(3));
    else if (type == VTK_QUADRATIC_TRIANGLE || type == VTK_BIQUADRATIC_TRIANGLE)
        points.SetNumberOfIds(3);
    else if (type == VTK_QUADRATIC_QUAD || type == VTK_BIQUADRATIC_QUAD)
        points.SetNumberOfIds(4);
}

/// What is seen of a polygon along each axis.
static Vector seenAreas(vtkDataSet& zone, vtkIdList& corners)
{
    Vector areas {};
    const vtkIdType count = corners.GetNumberOfIds();
    for (vtkIdType i = 0; i < count; ++i) {
        Vector one {};
        Vector next {};
        zone.GetPoint(corners.GetId(i), one.data());
        zone.GetPoint(corners.GetId((i + 1) % count), next.data());
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::size_t u = (axis + 1) % 3;
            const std::size_t v = (axis + 2) % 3;
            areas[axis] += (one[u] - next[u]) * (one[v] + next[v]) / 2;
        }
    }
    for (double& area : areas)
        area = std::abs(area);
    return areas;
}

void Enclosure::add(vtkDataSet& zone, const ZoneInfo& info)
{
    if (info.isVolume())
        m_volumes.AddBounds(zone.GetBounds());
    if (info.cellDimension != 2)
        return;
    Surface& surface = m_surfaces.emplace_back(Surface {vtkBoundingBox(zone.GetBounds()), {}});
    vtkNew<vtkIdList> corners;
    for (vtkIdType cell = 0; cell < zone.GetNumberOfCells(); ++cell) {
        zone.GetCellPoints(cell, corners);
        keepCorners(zone.GetCellType(cell), *corners);
        const Vector areas = seenAreas(zone, *corners);
        for (std::size_t axis = 0; axis < 3; ++axis)
            surface.areas[axis] += areas[axis];
    }
}

/// What is closed is seen twice along each axis, and may be as much smaller than its box as a ball
/// is.
bool Enclosure::isClosed() const
{
    constexpr double kClosed = 1.2; // sides of the box
    constexpr double kOutside = 0.01; // of its diagonal
    if (!m_volumes.IsValid())
        return false;
    vtkBoundingBox box = m_volumes;
    box.Inflate(kOutside * box.GetDiagonalLength());
    Vector seen {};
    for (const Surface& surface : m_surfaces)
        for (std::size_t axis = 0; axis < 3 && box.Contains(surface.box); ++axis)
            seen[axis] += surface.areas[axis];
    for (int axis = 0; axis < 3; ++axis) {
        const double side =
            m_volumes.GetLength((axis + 1) % 3) * m_volumes.GetLength((axis + 2) % 3);
        if (!(seen[static_cast<std::size_t>(axis)] >= kClosed * side))
            return false;
    }
    return true;
}

} // namespace corvala::host::io::reader
