// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

namespace corvala::plot {

/// The lines of a mesh, each once: the edges of the polygons and the lines of `shape`. Shares the
/// points of `shape` and keeps its vertices and point data.
vtkSmartPointer<vtkPolyData> meshLines(vtkPolyData& shape);

/// The same lines joined end to end where they go on straight, with the arc length along each chain
/// as first texture coordinate, in the unit of the coordinates: a pattern runs on across the cells.
/// Every chain has points of its own; point data are copied.
vtkSmartPointer<vtkPolyData> withArcLength(vtkPolyData& lines);

} // namespace corvala::plot
