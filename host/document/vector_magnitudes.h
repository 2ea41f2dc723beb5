// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

namespace corvala::host {

/// Appends the magnitudes of the vectors of a field that have none yet: those of arrays with two or
/// three components, and the one that the data propose. The same data always get the same ones.
void addMagnitudes(DataSet& data);

} // namespace corvala::host
