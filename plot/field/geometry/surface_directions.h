// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/glyph_points.h"

namespace corvala::plot {

/// Unit normals of the faces of a shape at all its points, of one sign as far as faces hang
/// together; 0 where there are no faces, of which there must be some.
vtkSmartPointer<vtkDataArray> pointNormals(vtkPolyData& shape);

/// Unit normals of a surface at points of it, of any sign. Null for a surface without faces.
vtkSmartPointer<vtkDoubleArray> normalsAt(const GlyphPoints& points, const ZoneSurface& surface,
                                          const PointChoice& choice);

/// Takes from vectors at points of a surface what points away from it: out of its faces, or where
/// it has none, aside from its lines.
void makeTangent(vtkDoubleArray& vectors, const GlyphPoints& points, const ZoneSurface& surface,
                 const PointChoice& choice);

} // namespace corvala::plot
