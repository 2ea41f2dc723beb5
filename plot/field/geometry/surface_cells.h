// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>

namespace corvala::plot {

/// A cell of a surface.
struct Corners
{
    vtkIdType count = 0;
    const vtkIdType* points = nullptr;
    bool isFace = false;
    bool isLine = false;
};

/// Calls `visit(number, corners)` for the vertices, lines and faces of a shape, in their order.
template<class Visit>
void forEachCell(vtkPolyData& shape, Visit visit)
{
    vtkIdType number = 0;
    for (vtkCellArray* const cells : {shape.GetVerts(), shape.GetLines(), shape.GetPolys()}) {
        const auto cell = vtk::TakeSmartPointer(cells->NewIterator());
        Corners corners;
        corners.isFace = cells == shape.GetPolys();
        corners.isLine = cells == shape.GetLines();
        for (cell->GoToFirstCell(); !cell->IsDoneWithTraversal(); cell->GoToNextCell()) {
            cell->GetCurrentCell(corners.count, corners.points);
            visit(number++, corners);
        }
    }
}

} // namespace corvala::plot
