// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/ensight_stream.h"

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// The elements of one kind of a part.
struct EnSightElements
{
    std::string kind; ///< as the files call it
    qint64 count = 0;
    bool isGhost = false; ///< not among the cells of the grid
};

/// A part of an EnSight geometry at one time.
struct EnSightPart
{
    int number = 0;
    std::string name;
    bool isBlock = false;
    std::vector<EnSightElements> elements; ///< in the order of the cells; none for a block
    vtkSmartPointer<vtkDataSet> grid; ///< without values
};

/// The parts of a geometry file of EnSight Gold, from the description on to the end of the step.
/// Throws ReadFailure, as the others do, where the file is not sound.
std::vector<EnSightPart> readGoldGeometry(EnSightStream& file);

/// The same of EnSight 6, whose parts without blocks share their points.
std::vector<EnSightPart> readEnSight6Geometry(EnSightStream& file);

/// Measured particles, in either version.
EnSightPart readParticles(EnSightStream& file);

} // namespace corvala::host::io::reader
