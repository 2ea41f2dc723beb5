// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/mapped_numbers.h"
#include "host/io/stored_zone.h"

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <cstddef>

namespace corvala::host::io {

/// The zone with this index, whose arrays show the numbers where they lie; null when they are too
/// many or too few for an ordered zone. What cells name was checked by the reading program.
vtkSmartPointer<vtkDataSet> assembleZone(const ZoneTable& table, std::size_t index,
                                         const MappedNumbers& numbers);

} // namespace corvala::host::io
