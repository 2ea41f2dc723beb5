// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

class vtkDataSet;

namespace corvala::host::io::reader {

/// What would make a filter read outside the arrays of a zone: cells of points that do not exist or
/// of too few points, or too few coordinates. VTK's readers pass on what a file says. Empty when
/// the zone is sound.
ReadMessage faultOf(vtkDataSet& zone);

} // namespace corvala::host::io::reader
