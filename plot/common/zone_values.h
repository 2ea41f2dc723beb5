// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/data_set.h"

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>

namespace corvala::plot {

/// Values of a variable at all points, or for all cells, of a zone; averaged where the zone has
/// them in the other place. Null when the zone has no such values.
vtkSmartPointer<vtkDataArray> zoneValues(const host::DataSet& data, std::int64_t zone,
                                         std::int64_t variable, host::ValueLocation location);

} // namespace corvala::plot
