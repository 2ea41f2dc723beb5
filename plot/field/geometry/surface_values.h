// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

#include <vtkDoubleArray.h>

namespace corvala::plot {

/// Values of a variable at the points of a zone's surface: those of the zone, or for a variable of
/// the cells the average of the surface cells that meet. Null when the zone has no such values.
vtkSmartPointer<vtkDoubleArray> pointValues(const host::DataSet& data, std::int64_t zone,
                                            std::int64_t variable, const ZoneSurface& surface);

enum class CellValue {
    Average, ///< of the cell's points
    Primary ///< at the cell's first point
};

/// Values of a variable for the cells of a zone's surface; for a variable of the cells its value.
/// Null when the zone has no such values.
vtkSmartPointer<vtkDoubleArray> cellValues(const host::DataSet& data, std::int64_t zone,
                                           std::int64_t variable, const ZoneSurface& surface,
                                           CellValue rule);

} // namespace corvala::plot
