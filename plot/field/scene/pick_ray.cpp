// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/pick_ray.h"

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

double PickRay::entry(const std::array<double, 3>& low, const std::array<double, 3>& high) const
{
    double first = 0.0;
    double last = 1.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double way = to[axis] - from[axis];
        const double ends[] = {low[axis] - tolerance - from[axis],
                               high[axis] + tolerance - from[axis]};
        if (way == 0.0) {
            last = ends[0] > 0.0 || ends[1] < 0.0 ? -1.0 : last;
        } else {
            first = std::max(first, std::min(ends[0] / way, ends[1] / way));
            last = std::min(last, std::max(ends[0] / way, ends[1] / way));
        }
    }
    return first <= last ? first : kMiss;
}

double PickRay::entry(vtkPolyData& shape) const
{
    const double* const box = shape.GetBounds();
    return shape.GetNumberOfCells() > 0 ? entry({box[0], box[2], box[4]}, {box[1], box[3], box[5]})
                                        : kMiss;
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

void fillCell(vtkPolyData& shape, const Corners& corners, vtkGenericCell& cell)
{
    cell.SetCellType(typeOf(corners));
    cell.GetPointIds()->SetNumberOfIds(corners.count);
    cell.GetPoints()->SetDataTypeToDouble();
    cell.GetPoints()->SetNumberOfPoints(corners.count);
    for (vtkIdType i = 0; i < corners.count; ++i) {
        double place[3];
        shape.GetPoint(corners.points[i], place);
        cell.GetPointIds()->SetId(i, corners.points[i]);
        cell.GetPoints()->SetPoint(i, place);
    }
}

double PickRay::position(vtkPolyData& shape, const Corners& corners, vtkGenericCell& room) const
{
    fillCell(shape, corners, room);
    double position = 0.0;
    double point[3];
    double parametric[3];
    int part = 0;
    return room.IntersectWithLine(from.data(), to.data(), tolerance, position, point, parametric,
                                  part)
        ? position
        : kMiss;
}

double PickRay::hitPosition(vtkPolyData& shape) const
{
    double nearest = kMiss;
    if (entry(shape) > 1.0)
        return nearest;
    const std::vector<Seen> points = seenPoints(shape);
    vtkNew<vtkGenericCell> cell;
    forEachCell(shape, [&](vtkIdType, const Corners& corners) {
        if (mayHit(corners, points))
            nearest = std::min(nearest, position(shape, corners, *cell));
    });
    return nearest;
}

} // namespace corvala::plot
