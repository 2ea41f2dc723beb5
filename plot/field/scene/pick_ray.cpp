// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/pick_ray.h"

#include <vtkBoundingBox.h>
#include <vtkBox.h>
#include <vtkMath.h>

namespace corvala::plot {

double PickRay::hitPosition(PlacedSurface& placed) const
{
    constexpr double kMiss = 2.0;
    vtkBoundingBox box(placed.shape->GetBounds());
    box.Inflate(tolerance);
    double bounds[6];
    box.GetBounds(bounds);
    double direction[3];
    double point[3];
    double position = 0.0;
    vtkMath::Subtract(to.data(), from.data(), direction);
    if (placed.shape->GetNumberOfCells() == 0
        || !vtkBox::IntersectBox(bounds, from.data(), direction, point, position))
        return kMiss;
    if (!placed.locator) {
        placed.locator = vtkSmartPointer<vtkCellLocator>::New();
        placed.locator->SetDataSet(placed.shape);
        placed.locator->BuildLocator();
    }
    double parametric[3];
    int subCell = 0;
    vtkIdType cell = -1;
    const bool isHit = placed.locator->IntersectWithLine(from.data(), to.data(), tolerance,
                                                         position, point, parametric, subCell, cell)
        != 0;
    return isHit ? position : kMiss;
}

} // namespace corvala::plot
