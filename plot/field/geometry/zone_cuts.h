// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

#include <memory>

namespace corvala::plot {

/// The surface of a zone by the choice and its blanking; null when the zone has no points or cannot
/// be read.
std::shared_ptr<ZoneSurface> surfaceOf(const host::DataSet& data, std::int64_t zone,
                                       const SurfaceChoice& choice);

/// Values of a variable, averaged where it is one of cells, at the points of a surface that is cut;
/// null when the zone has no such values.
vtkSmartPointer<vtkDoubleArray> cutValues(const host::DataSet& data, std::int64_t zone,
                                          std::int64_t variable, const ZoneSurface& surface);

/// What is left of a volume as `visiblePart` gives it, with its values at points, where the fields
/// cut it.
vtkSmartPointer<vtkDataSet> cutVolume(vtkDataSet& numbered, const CutFields& fields);

/// What is left of a surface with numbers in its zone where the fields, values at the zone's
/// points, cut it; all of it without fields.
ZoneSurface cutFaces(const ZoneSurface& surface, const CutFields& fields);

} // namespace corvala::plot
