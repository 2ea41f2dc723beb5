// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/pick_ray.h"

#include <vtkBoundingBox.h>
#include <vtkBox.h>
#include <vtkGenericCell.h>
#include <vtkMath.h>

#include <algorithm>

namespace corvala::plot {

static std::array<double, 3> directionOf(const PickRay& ray)
{
    std::array<double, 3> direction {};
    vtkMath::Subtract(ray.to.data(), ray.from.data(), direction.data());
    return direction;
}

bool PickRay::meetsBox(vtkPolyData& shape) const
{
    vtkBoundingBox box(shape.GetBounds());
    box.Inflate(tolerance);
    double bounds[6];
    box.GetBounds(bounds);
    const std::array<double, 3> direction = directionOf(*this);
    double point[3];
    double position = 0.0;
    return shape.GetNumberOfCells() > 0
        && vtkBox::IntersectBox(bounds, from.data(), direction.data(), point, position) != 0;
}

std::vector<PickRay::Seen> PickRay::seenPoints(vtkPolyData& shape) const
{
    const std::array<double, 3> direction = directionOf(*this);
    double right[3];
    double up[3];
    vtkMath::Perpendiculars(direction.data(), right, up, 0.0);
    std::vector<Seen> points(static_cast<std::size_t>(shape.GetNumberOfPoints()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        double point[3];
        shape.GetPoint(static_cast<vtkIdType>(i), point);
        vtkMath::Subtract(point, from.data(), point);
        points[i] = {vtkMath::Dot(point, right), vtkMath::Dot(point, up)};
    }
    return points;
}

/// Whether the box round a cell, seen along the ray, reaches the ray.
bool PickRay::mayHit(const Corners& corners, const std::vector<Seen>& points) const
{
    for (std::size_t axis = 0; axis < 2; ++axis) {
        bool isBelow = true;
        bool isAbove = true;
        for (vtkIdType i = 0; i < corners.count; ++i) {
            const double place = points[static_cast<std::size_t>(corners.points[i])][axis];
            isBelow = isBelow && place < -tolerance;
            isAbove = isAbove && place > tolerance;
        }
        if (isBelow || isAbove)
            return false;
    }
    return true;
}

static int typeOf(const Corners& corners)
{
    if (!corners.isFace)
        return corners.isLine ? VTK_POLY_LINE : VTK_POLY_VERTEX;
    return corners.count == 3 ? VTK_TRIANGLE : corners.count == 4 ? VTK_QUAD : VTK_POLYGON;
}

/// Looks at every cell, since that takes less time than the search tree of a shape that is clicked
/// once.
double PickRay::hitPosition(vtkPolyData& shape) const
{
    double nearest = 2.0; // a miss
    if (!meetsBox(shape))
        return nearest;
    const std::vector<Seen> points = seenPoints(shape);
    vtkNew<vtkGenericCell> cell;
    forEachCell(shape, [&](vtkIdType, const Corners& corners) {
        if (!mayHit(corners, points))
            return;
        cell->SetCellType(typeOf(corners));
        cell->GetPointIds()->SetNumberOfIds(corners.count);
        cell->GetPoints()->SetDataTypeToDouble();
        cell->GetPoints()->SetNumberOfPoints(corners.count);
        for (vtkIdType i = 0; i < corners.count; ++i) {
            cell->GetPointIds()->SetId(i, i);
            cell->GetPoints()->SetPoint(i, shape.GetPoint(corners.points[i]));
        }
        double position = 0.0;
        double point[3];
        double parametric[3];
        int part = 0;
        if (cell->IntersectWithLine(from.data(), to.data(), tolerance, position, point, parametric,
                                    part))
            nearest = std::min(nearest, position);
    });
    return nearest;
}

} // namespace corvala::plot
