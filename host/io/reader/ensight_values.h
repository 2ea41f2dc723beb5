// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/ensight_case.h"
#include "host/io/reader/ensight_geometry.h"

#include <vtkFloatArray.h>

#include <functional>

namespace corvala::host::io::reader {

/// Takes the values of one of the parts once they are known to be whole. A part can come again.
using TakeEnSightValues =
    std::function<void(std::size_t part, const vtkSmartPointer<vtkFloatArray>& values)>;

/// Number of values that a variable has in a part, one for each point or cell.
vtkIdType valueCount(const EnSightVariable& variable, const EnSightPart& part);

/// Reads one step of a variable, of version Gold or 6, from its description to its end. The parts
/// are those of the geometry or, for a variable of particles, these. Values are those of a part
/// when what follows them is what must follow. Throws ReadFailure where the file is not sound; what
/// was taken before that stays good.
void readEnSightValues(EnSightStream& file, bool isGold, const EnSightVariable& variable,
                       const std::vector<EnSightPart>& parts, const TakeEnSightValues& take);

} // namespace corvala::host::io::reader
