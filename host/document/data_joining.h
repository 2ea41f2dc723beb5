// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

namespace corvala::host {

/// The zones of `present` and then those of `added`, with the variables of both: those of one name
/// are one variable, whose numbers in `present` stay. Coordinates are one whatever their names are.
/// A strand goes on where it has zones of the same names at other times; other strands of `added`
/// get numbers of their own. All this goes by the names as they were read, and by the zones that
/// were deleted as well, so that the same files come to the same data again.
std::shared_ptr<DataSet> joined(const DataSet& present, const DataSet& added);

} // namespace corvala::host
